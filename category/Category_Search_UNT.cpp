#include "Category_Search_UNT.h"

#include "AdvListEditorPer.h"
#include "HostServices.h"
#include "PopupMenu.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Category_Search_UNT.h"

namespace {

/// Intended: one for all frames of the process, and the frame opened last writes it. The ids are kept for
/// nobody.
struct TAllCategories
{
    QStringList Ids;
    QStringList IdsAgain;
    QStringList Names;
};

TAllCategories& AllCategories()
{
    static TAllCategories categories;
    return categories;
}

} // namespace

TCategory_frame::TCategory_frame(QWidget* owner)
    : TFrame(owner), PopupMenu1(new TPopupMenu(this)), tmpds(new TDataSource(this)),
      tmpqry(new TADOQuery(this))
{
    Ui::TCategory_frame form;
    form.setupUi(this);
    SmartLabel_TRV1 = form.SmartLabel_TRV1;
    Editor = form.Editor;
    Select_btn = form.Select_btn;
    SmartLabel_TRV1->SetFocusControl(Editor);

    PopupMenu1->setObjectName(QStringLiteral("PopupMenu1"));
    tmpds->setObjectName(QStringLiteral("tmpds"));
    tmpqry->setObjectName(QStringLiteral("tmpqry"));
    tmpds->SetDataSet(tmpqry);
    tmpqry->SetConnection(Host().DM.ADOConnection1());
    picker_ = std::make_unique<TCategoryPicker>(*Editor, *PopupMenu1, *tmpqry,
                                                [this](QObject* sender) { POP_click(sender); });
    BindHandlers();
    FormReady();
}

TCategory_frame::~TCategory_frame() = default;

void TCategory_frame::BindHandlers()
{
    Editor->OnEnter = [this](QObject*) { EditorEnter(); };
    Editor->OnExit = [this](QObject*) { EditorExit(); };
    Editor->OnMouseDown = [this](QObject*, Qt::MouseButton, Qt::KeyboardModifiers, int x, int y) {
        EditorMouseDown(x, y);
    };
    Editor->OnKeyUp = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { EditorKeyUp(key); };
    Editor->OnKeyPress = [this](QObject*, QChar& key) { EditorKeyPress(key); };
    Editor->OnValueEditDone = [this](QObject*, int, QString& text) { EditorValueEditDone(text); };
}

void TCategory_frame::open(bool Clear)
{
    Editor->SetRightToLeft(true);
    if (Clear)
        Editor->Values().Clear();
    Runfirst();
    AllCategories().Ids = Fill_allPop();
    AllCategories().IdsAgain = Fill_allPop();
    AllCategories().Names = Fill_allPopname();
    Editor->CorrectEditPos();
}

bool TCategory_frame::Existinmenu(const QString& text) const
{
    return AllCategories().Names.contains(text);
}

void TCategory_frame::POP_click(QObject* Sender)
{
    picker_->POP_click(Sender);
}

void TCategory_frame::EditorEnter() const
{
    Editor->SetColor(TCategoryPicker::ColorInside);
}

void TCategory_frame::EditorExit() const
{
    Editor->SetColor(TCategoryPicker::ColorOutside);
}

void TCategory_frame::EditorMouseDown(int x, int y) const
{
    // Intended: the place inside the editor serves as a place on the screen.
    PopupMenu1->Popup(QPoint(x, y));
}

void TCategory_frame::EditorKeyPress(QChar& key) const
{
    if (key != u'+')
        return;
    key = QChar();
    Select_btn->Click();
}

void TCategory_frame::EditorKeyUp(quint16 key)
{
    Editor->Getvalue();
    if (key == VirtualKey::Enter)
        TakeTypedName();
    else if (key == VirtualKey::Delete || key == VirtualKey::Back)
        FollowRemoval();
}

void TCategory_frame::TakeTypedName()
{
    const QString typed = Editor->EditText();
    if (Existinmenu(typed)) {
        DrawItem(typed);
        Editor->CorrectEditPos();
    }
    if (!Editor->Values().IsEmpty()) {
        DrawItem(picker_->LastName());
        Editor->CorrectEditPos();
    }
}

void TCategory_frame::FollowRemoval()
{
    if (picker_->NothingIsLeft()) {
        Editor->Values().Clear();
        createmenuItemByCode(0);
    } else if (picker_->HasRemoved()) {
        const std::optional<TCategoryRow> removed = picker_->Tree().FirstCategory(
            QStringLiteral("select * from category where id=") + QString::number(picker_->RemovedId()));
        picker_->CutPathBack();
        createmenuItemByCode(removed ? removed->ParentId : 0);
    }
}

void TCategory_frame::EditorValueEditDone(const QString& text)
{
    DrawItem(text);
    Editor->CorrectEditPos();
    if (!picker_->LastValue().isEmpty())
        picker_->OfferUnderLastBubble();
}
