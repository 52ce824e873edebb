#include "Category_SearchWithManager_UNT.h"

#include "AdvListEditorPer.h"
#include "HostServices.h"
#include "Look.h"
#include "PopupMenu.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Category_SearchWithManager_UNT.h"

#include <algorithm>
#include <QCursor>
#include <QPainter>
#include <stdexcept>

namespace {

/// Intended: one for all frames of the process; kept for nobody.
struct TAllCategoryIds
{
    QStringList Ids;
    QStringList IdsAgain;
};

TAllCategoryIds& AllCategoryIds()
{
    static TAllCategoryIds ids;
    return ids;
}

QString ColumnOf(quint8 listKind)
{
    switch (listKind) {
    case TCategorysearchframe::PersonLists:
        return QStringLiteral("Person");
    case TCategorysearchframe::GoodsLists:
        return QStringLiteral("Good");
    default:
        throw std::invalid_argument("lists are of kind 1 (persons) or 2 (goods)");
    }
}

QString CategoryOfRecord(quint8 recordKind)
{
    switch (recordKind) {
    case TCategorysearchframe::Goods:
        return QStringLiteral("select * from kala_category where kala_code=");
    case TCategorysearchframe::Person:
        return QStringLiteral("select * from Person_category where person_code=");
    default:
        throw std::invalid_argument("records are of kind 1 (goods) or 2 (persons)");
    }
}

} // namespace

TCategorysearchframe::TCategorysearchframe(QWidget* owner)
    : TFrame(owner), PopupMenu1(new TPopupMenu(this)), tmpds(new TDataSource(this)),
      tmpqry(new TADOQuery(this)), TarvaSearch1(new TTarvaSearch(this))
{
    Ui::TCategorySearchFrame form;
    form.setupUi(this);
    CategorySearch_LBL = form.CategorySearch_LBL;
    Editor = form.Editor;
    select_BTN = form.select_BTN;
    CategorySearch_LBL->SetFocusControl(Editor);

    PopupMenu1->setObjectName(QStringLiteral("PopupMenu1"));
    tmpds->setObjectName(QStringLiteral("tmpds"));
    tmpqry->setObjectName(QStringLiteral("tmpqry"));
    TarvaSearch1->setObjectName(QStringLiteral("TarvaSearch1"));
    TarvaSearch1->SetItemIndex(0);
    tmpds->SetDataSet(tmpqry);
    tmpqry->SetConnection(Host().DM.ADOConnection1());
    picker_ = std::make_unique<TCategoryPicker>(*Editor, *PopupMenu1, *tmpqry,
                                                [this](QObject* sender) { POP_click(sender); });
    BindHandlers();
    FormReady();
}

TCategorysearchframe::~TCategorysearchframe() = default;

void TCategorysearchframe::BindHandlers()
{
    Editor->OnEnter = [this](QObject*) { EditorEnter(); };
    Editor->OnExit = [this](QObject*) { EditorExit(); };
    Editor->OnMouseDown = [this](QObject* sender, Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
        select_BTNClick(sender);
    };
    Editor->OnKeyDown = [this](QObject* sender, quint16& key, Qt::KeyboardModifiers shift) {
        EditorKeyDown(sender, key, shift);
    };
    Editor->OnKeyUp = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { EditorKeyUp(key); };
    Editor->OnKeyPress = [this](QObject*, QChar& key) { EditorKeyPress(key); };
    Editor->OnValueEditDone = [this](QObject*, int, QString& text) { EditorValueEditDone(text); };
    select_BTN->OnClick = [this](QObject* sender) { select_BTNClick(sender); };
}

void TCategorysearchframe::open(quint8 kind)
{
    Editor->SetRightToLeft(true);
    Editor->Values().Clear();
    Runfirst();
    DrawDefaultItems(kind);
}

void TCategorysearchframe::DrawDefaultItems(quint8 kind)
{
    const QString column = ColumnOf(kind);
    const std::optional<int> category = picker_->Tree().FirstId(
        QStringLiteral("select Code_category from category left join DefaultUserCategory on category.id = "
                       "DefaultUserCategory.Code_category where user_code=") +
            QString::number(Host().Settings.UserInfo().Code) + QStringLiteral(" and ") + column +
            QStringLiteral("=1"),
        QStringLiteral("Code_category"));
    ShowCategory(category);
    const QPointer<QWidget> guard(this);
    Publish(picker_->ChosenId());
    if (!guard)
        return;
    AllCategoryIds().Ids = Fill_allPop();
    AllCategoryIds().IdsAgain = Fill_allPop();
    Editor->CorrectEditPos();
}

void TCategorysearchframe::active_checker(const QString& code, quint8 kind)
{
    const QString statement = CategoryOfRecord(kind) + TCategoryTree::Digits(code);
    ShowCategory(picker_->Tree().FirstId(statement, QStringLiteral("category_code")));
    Publish(ValueBetweenCommas());
}

bool TCategorysearchframe::Existinmenu(const QString& text) const
{
    for (int index = 0; index < PopupMenu1->Count(); ++index) {
        if (PopupMenu1->Item(index)->Caption() == text)
            return true;
    }
    return false;
}

void TCategorysearchframe::POP_click(QObject* Sender)
{
    if (picker_->POP_click(Sender))
        Publish(ValueBetweenCommas());
}

void TCategorysearchframe::select_BTNClick(QObject* /*Sender*/) const
{
    // Intended: two readings.
    const int x = QCursor::pos().x();
    const int y = QCursor::pos().y();
    PopupMenu1->Popup(QPoint(x, y));
}

void TCategorysearchframe::EditorEnter() const
{
    Editor->SetColor(TCategoryPicker::ColorInside);
    Editor->CorrectEditPos();
}

void TCategorysearchframe::EditorExit() const
{
    Editor->SetColor(TCategoryPicker::ColorOutside);
}

void TCategorysearchframe::EditorKeyDown(QObject* /*Sender*/, quint16& Key,
                                         Qt::KeyboardModifiers /*Shift*/) const
{
    if (Key == VirtualKey::Add)
        Editor->clear();
}

void TCategorysearchframe::EditorKeyPress(QChar& key) const
{
    if (key == u'+') {
        key = QChar();
        select_BTN->Click();
    } else {
        Editor->Getvalue();
    }
}

void TCategorysearchframe::EditorKeyUp(quint16 key)
{
    Editor->Getvalue();
    if (key == VirtualKey::Enter)
        TakeShownName();
    else if (key == VirtualKey::Delete || key == VirtualKey::Back)
        FollowRemoval();
}

void TCategorysearchframe::TakeShownName()
{
    const QString name = picker_->LastName();
    if (Existinmenu(name)) {
        DrawItem(name);
        Editor->CorrectEditPos();
    }
    Publish(ValueBetweenCommas());
}

void TCategorysearchframe::FollowRemoval()
{
    const QPointer<QWidget> guard(this);
    if (picker_->NothingIsLeft()) {
        Editor->Values().Clear();
        TarvaSearch1->SetValue1(QString());
        if (guard)
            createmenuItemByCode(0);
    } else if (!Editor->Values().IsEmpty() && picker_->HasRemoved()) {
        TarvaSearch1->SetValue1(ValueBetweenCommas());
        if (guard)
            OfferUnderRemoved();
    }
    if (guard)
        Publish(ValueBetweenCommas());
}

/// Intended: what is under the removed category, not its siblings.
void TCategorysearchframe::OfferUnderRemoved()
{
    const std::optional<TCategoryRow> removed = picker_->Tree().Category(picker_->RemovedId());
    picker_->CutPathBack();
    createmenuItemByCode(removed ? removed->Id : 0);
}

void TCategorysearchframe::EditorValueEditDone(const QString& text)
{
    if (!picker_->LastValue().isEmpty()) {
        DrawItem(text);
        Editor->CorrectEditPos();
        picker_->OfferUnderLastBubble();
    }
    // Intended: the bare id, and the criterion is not switched on.
    TarvaSearch1->SetValue1(picker_->ChosenId());
}

/// Nothing stays of the category of another record.
void TCategorysearchframe::ShowCategory(std::optional<int> category)
{
    if (category) {
        create_bubble(*category, TCategoryPicker::WholePath);
    } else if (!Editor->Values().IsEmpty()) {
        Editor->Values().Clear();
        Runfirst();
    }
}

QString TCategorysearchframe::ValueBetweenCommas() const
{
    return Editor->Values().IsEmpty() ? QString() : u',' + picker_->ChosenId() + u',';
}

void TCategorysearchframe::Publish(const QString& value) const
{
    const QPointer<TTarvaSearch> criterion(TarvaSearch1);
    criterion->SetValue1(value);
    if (criterion)
        criterion->SetActive(true);
}

void TCategorysearchframe::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
