#include "Tags_search_UNT.h"

#include "ADOCommand.h"
#include "ADOQuery.h"
#include "AdvListEditorPer.h"
#include "HostServices.h"
#include "Look.h"
#include "OpenAnew.h"
#include "PopupMenu.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "TagStore.h"
#include "ui_Tags_search_UNT.h"

#include <QCursor>
#include <QPainter>
#include <QPointer>

namespace {

constexpr quint32 EditorColorInside = 65535; // yellow
constexpr quint32 EditorColorOutside = 0xFFFFFF;
constexpr int MostChosenTags = 10;
constexpr int MostTagsOfPicker = 10;
constexpr quint8 CreateMode = 1;

} // namespace

TTags_search_FRM::TTags_search_FRM(QWidget* owner) : TFrame(owner)
{
    Ui::TTags_search_FRM form;
    form.setupUi(this);
    Tags_LBL = form.Tags_LBL;
    Tag_editor = form.Tag_editor;
    add_btn = form.add_btn;
    TagHelp_BTN = form.TagHelp_BTN;
    Tags_LBL->SetFocusControl(Tag_editor);
    MakeComponents();
    BindHandlers();
    FormReady();
}

TTags_search_FRM::~TTags_search_FRM() = default;

void TTags_search_FRM::MakeComponents()
{
    tags_list_pop = new TPopupMenu(this);
    tags_list_pop->setObjectName(QStringLiteral("tags_list_pop"));
    TarvaSearch_tags = new TTarvaSearch(this);
    TarvaSearch_tags->setObjectName(QStringLiteral("TarvaSearch_tags"));
    TarvaSearch_tags->SetItemIndex(0);
    Tags_qry = new TADOQuery(this);
    Tags_qry->setObjectName(QStringLiteral("Tags_qry"));
    Colors_qry = new TADOQuery(this);
    Colors_qry->setObjectName(QStringLiteral("Colors_qry"));
    cmd = new TADOCommand(this);
    cmd->setObjectName(QStringLiteral("cmd"));
    TADOConnection* const connection = Host().DM.ADOConnection1();
    Tags_qry->SetConnection(connection);
    Colors_qry->SetConnection(connection);
    cmd->SetConnection(connection);
}

void TTags_search_FRM::BindHandlers()
{
    Tag_editor->OnEnter = [this](QObject*) { Tag_editorEnter(); };
    Tag_editor->OnExit = [this](QObject*) { Tag_editorExit(); };
    Tag_editor->OnKeyUp = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { Tag_editorKeyUp(key); };
    Tag_editor->OnKeyPress = [this](QObject*, QChar& key) { Tag_editorKeyPress(key); };
    Tag_editor->OnValueEditDone = [this](QObject*, int, QString&) { Tag_editorValueEditDone(); };
    add_btn->OnClick = [this](QObject*) { add_btnClick(); };
    TagHelp_BTN->OnClick = [this](QObject*) { TagHelp_BTNClick(); };
}

void TTags_search_FRM::frame_load()
{
    OpenAnew(*Tags_qry, TagStatements::TagsOfForm());
    Tag_editor->SetRightToLeft(true);
    Tag_editor->Values().Clear();
    // The editor and the menu each get a list of their own.
    fill_imageList();
    Tag_editor->SetImages(pictures_.Images());
    fill_imageList();
    DrawItems();
    layout()->removeWidget(TagHelp_BTN);
    static_cast<QHBoxLayout*>(layout())->insertWidget(0, TagHelp_BTN);
    setTabOrder(TagHelp_BTN, Tag_editor);
    setTabOrder(Tag_editor, add_btn);
}

void TTags_search_FRM::fill_imageList()
{
    pictures_.Clear();
    pictures_.Add(*Colors_qry, TagStatements::PicturesOfTags(), QStringLiteral("color_code"),
                  QStringLiteral("H-img"));
}

void TTags_search_FRM::DrawItems()
{
    OpenAnew(*Colors_qry, TagStatements::MenuOfTags());
    tags_list_pop->Clear();
    tags_list_pop->SetImages(pictures_.Images());
    const int code = Colors_qry->FieldByName(QStringLiteral("code"))->Index();
    const int name = Colors_qry->FieldByName(QStringLiteral("Name"))->Index();
    const int color = Colors_qry->FieldByName(QStringLiteral("color_code"))->Index();
    for (int row = 0; row < Colors_qry->RecordCount(); ++row) {
        TMenuItem* const item = tags_list_pop->AddItem(
            Colors_qry->ValueAt(row, name).toString(), Colors_qry->ValueAt(row, code).toInt(),
            pictures_.IndexOf(Colors_qry->ValueAt(row, color).toString()));
        item->OnClick = [this](QObject* Sender) { POP_click(Sender); };
    }
}

void TTags_search_FRM::Filter()
{
    const TAdvListValues& values = Tag_editor->Values();
    const QPointer<TTags_search_FRM> alive(this);
    TarvaSearch_tags->SetValue1(values.IsEmpty() ? QString(QLatin1String("")) : values.Last().Value);
    if (alive)
        TarvaSearch_tags->SetActive(true);
}

QStringList TTags_search_FRM::splitter(const QString& text)
{
    return TagCodes::SplitChosen(text);
}

bool TTags_search_FRM::Tag_Registered(const QString& name) const
{
    return Tag_editor->Values().IndexOfText(name) >= 0;
}

bool TTags_search_FRM::exist(const QString& name, bool flag)
{
    TADOQuery query;
    query.SetConnection(Host().DM.ADOConnection1());
    OpenAnew(query, TagStatements::TagByName(name));
    if (query.IsEmpty())
        return false;
    if (flag)
        return true;
    const QString code = query.FieldByName(QStringLiteral("Code"))->AsString();
    const TAdvListValues& values = Tag_editor->Values();
    for (itemIndex_ = 0; itemIndex_ < values.Count(); ++itemIndex_) {
        if (values[itemIndex_].Value == code)
            return true;
    }
    return false;
}

bool TTags_search_FRM::exist1(const QString& name) const
{
    OpenAnew(*Colors_qry, TagStatements::TagWithPicture(name));
    return !Colors_qry->IsEmpty();
}

bool TTags_search_FRM::AllowinsertTag() const
{
    OpenAnew(*Colors_qry, TagStatements::CountOfTags());
    return Colors_qry->Field(0)->AsInteger() < MostTagsOfPicker;
}

void TTags_search_FRM::tags_CHKClick()
{
}

void TTags_search_FRM::Tag_editor1KeyUp()
{
}

void TTags_search_FRM::Tag_editor1Exit() const
{
    Tag_editor->SetColor(EditorColorOutside);
}

void TTags_search_FRM::Tag_editorEnter() const
{
    Tag_editor->CorrectEditPos();
    Tag_editor->clear();
    Tag_editor->SetColor(EditorColorInside);
}

void TTags_search_FRM::Tag_editorExit() const
{
    Tag_editor->SetColor(EditorColorOutside);
    Tag_editor->clear();
}

void TTags_search_FRM::Tag_editorValueEditDone()
{
    if (searchble_)
        Filter();
}

void TTags_search_FRM::Tag_editorKeyPress(QChar key)
{
    Tag_editor->Getvalue();
    if (key == QChar(VirtualKey::Enter) && Tag_editor->EditText().trimmed().isEmpty())
        focusNextPrevChild(true);
}

void TTags_search_FRM::Tag_editorKeyUp(quint16 key)
{
    const QPointer<TTags_search_FRM> alive(this);
    Tag_editor->Getvalue();
    if (searchble_ && !TarvaSearch_tags->Active())
        TarvaSearch_tags->SetActive(true);
    if (!alive)
        return;
    const bool ends = key == VirtualKey::Tab || key == VirtualKey::Enter;
    if (ends && Tag_editor->Values().Count() < MostChosenTags && !Tag_editor->EditText().isEmpty())
        TakeTyped();
    if (key == VirtualKey::Delete || key == VirtualKey::Back) {
        Tag_editor->Update_selectedItems();
        FollowChosen();
    }
}

void TTags_search_FRM::TakeTyped()
{
    const QString name = Tag_editor->EditText();
    if (Tag_Registered(name)) {
        Tag_editor->clear();
        Tag_editor->CorrectEditPos();
        return;
    }
    const QPointer<TTags_search_FRM> alive(this);
    if (exist1(name)) {
        const QString color = Colors_qry->FieldByName(QStringLiteral("color_code"))->AsString();
        Tag_editor->Values().AddPair(Colors_qry->FieldByName(QStringLiteral("Name"))->AsString(),
                                     Colors_qry->FieldByName(QStringLiteral("code"))->AsString(),
                                     pictures_.IndexOf(color));
        if (searchble_)
            Filter();
        if (alive)
            EndTyping();
        return;
    }
    if (!searchble_)
        CreateTag(name);
    if (!alive)
        return;
    EndTyping();
    FollowChosen();
}

void TTags_search_FRM::CreateTag(const QString& name)
{
    if (!AllowinsertTag())
        return;
    const QPointer<TTags_search_FRM> alive(this);
    const TMessageResult answer =
        Host().Messages.ShowSmartMessage(TConfirmationMessage::cmCreateTag, TMessageButtons::mbYesNo, 0);
    if (answer != TMessageResult::mrYes || !alive)
        return;
    // Intended: only the low byte of the code counts.
    const auto code = static_cast<quint8>(Host().Pickers.Call_insert_tags(name, CreateMode));
    if (code != 0 && alive)
        AddNewTag(code);
}

void TTags_search_FRM::AddNewTag(quint8 code)
{
    OpenAnew(*Tags_qry, TagStatements::NewTag(QString::number(code)));
    fill_imageList();
    Tag_editor->SetImages(pictures_.Images());
    // -1, the answer at the host's limit, becomes 255 like any code; a tag that is not there adds nothing.
    if (Tags_qry->IsEmpty())
        return;
    // Intended: of the colour, too, only the low byte counts.
    const auto color = static_cast<quint8>(Tags_qry->FieldByName(QStringLiteral("Code"))->AsInteger());
    Tag_editor->Values().AddPair(Tags_qry->FieldByName(QStringLiteral("Name"))->AsString(),
                                 Tags_qry->FieldByName(QStringLiteral("ID"))->AsString(),
                                 pictures_.IndexOf(QString::number(color)));
}

void TTags_search_FRM::EndTyping() const
{
    Tag_editor->clear();
    Tag_editor->Update_selectedItems();
    Tag_editor->CorrectEditPos();
}

void TTags_search_FRM::FollowChosen()
{
    if (!searchble_)
        return;
    chosen_ = splitter(Tag_editor->KeyList);
    Filter();
}

void TTags_search_FRM::POP_click(QObject* Sender)
{
    const auto* entry = qobject_cast<const TMenuItem*>(Sender);
    if (entry == nullptr)
        return;
    const QPointer<TTags_search_FRM> alive(this);
    if (!exist(entry->Caption(), false)) {
        Tag_editor->Values().AddPair(entry->Caption(), QString::number(entry->Tag), entry->ImageIndex);
        Tag_editor->setFocus();
        Tag_editor->CorrectEditPos();
        Tag_editor->Update_selectedItems();
        if (searchble_)
            Filter();
    }
    // Intended: also where the frame only picks.
    if (alive && !Tag_editor->Values().IsEmpty())
        Filter();
}

void TTags_search_FRM::add_btnClick()
{
    constexpr int time = 6000;
    TADOQuery& query = *Host().DM.SharedQuery();
    OpenAnew(query, TagStatements::MenuOfTagsAtButton());
    const bool isEmpty = query.IsEmpty();
    query.Close();
    if (isEmpty) {
        ShowTooltip(*add_btn,
                    QStringLiteral("ابتدا می بایست از منوی اطلاعات پایه قسمت برچسب گذاری اطلاعات مربوط برچسب "
                                   "مورد نظر خود را وارد کرده و سپس در این قسمت از آن استفاده نمایید"),
                    time);
        return;
    }
    DrawItems();
    tags_list_pop->Popup(QCursor::pos());
}

void TTags_search_FRM::TagHelp_BTNClick()
{
    constexpr int time = 5000;
    ShowTooltip(
        *TagHelp_BTN,
        QStringLiteral("شما میتوانید از این قسمت کالاها و اشخاص را که با برچسب های رنگی مختلف از هم تفکیک "
                       "کرده اید را فیلتر کنید و روی آنها عملیات خاص خود را انجام دهید"),
        time);
}

void TTags_search_FRM::ShowTooltip(QWidget& control, const QString& text, int milliseconds) const
{
    IMessages::TTooltip tooltip;
    tooltip.Text = text;
    tooltip.Control = &control;
    tooltip.Milliseconds = milliseconds;
    tooltip.ScreenPosition = control.mapToGlobal(QPoint());
    Host().Messages.ShowTooltipMessage(tooltip);
}

void TTags_search_FRM::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
