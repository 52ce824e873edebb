#include "tags_frame.h"

#include "ADOCommand.h"
#include "AdvListEditorPer.h"
#include "DataSource.h"
#include "HostServices.h"
#include "OpenAnew.h"
#include "SmartLabel_TRV.h"
#include "SmartPanel_TRV.h"
#include "ui_tags_frame.h"

#include <QHeaderView>

namespace {

constexpr quint32 Yellow = 65535;
constexpr quint32 White = 0xFFFFFF;
constexpr int GridFontPixels = 15; // 11 points
constexpr int GridRowPixels = 24;
constexpr int NameWidth = 150;
constexpr int SwatchWidth = 16;

/// The jump from nine rows to ten is intended.
int HeightFor(int rows)
{
    constexpr int MostRows = 10;
    constexpr int RowHeight = 20;
    constexpr int Rest = 100;
    return rows < MostRows ? RowHeight * (rows + 1) + Rest : 200;
}

} // namespace

TTags::TTags(QWidget* owner) : TFrame(owner)
{
    Ui::TTags form;
    form.setupUi(this);
    SmartPanel_TRV1 = form.SmartPanel_TRV1;
    Tags_editor = form.Tags_editor;
    Tags_panel = form.Tags_panel;
    Tags_grid = form.Tags_grid;
    nothingToShow_ = form.Nothing_LBL;
    Tags_editor->SetSeparator(u';');
    setFocusProxy(Tags_editor);
    MakeData();
    BindHandlers();

    QFont font = Tags_grid->font();
    font.setPixelSize(GridFontPixels);
    font.setBold(true);
    Tags_grid->setFont(font);
    Tags_grid->horizontalHeader()->setMinimumSectionSize(SwatchWidth);
    Tags_grid->verticalHeader()->setMinimumSectionSize(GridRowPixels);
    Tags_grid->verticalHeader()->setDefaultSectionSize(GridRowPixels);
    Tags_grid->SetDataSource(DataSource1);
    FormReady();
}

TTags::~TTags()
{
    // The controls outlive this class by a few steps of the destruction, and leaving them raises their
    // events.
    static_cast<TControlEvents&>(*Tags_editor) = {};
    static_cast<TControlEvents&>(*Tags_grid) = {};
    Tags_qry->AfterOpen = nullptr;
}

void TTags::MakeData()
{
    TADOConnection* const connection = Host().DM.ADOConnection1();
    const auto newQuery = [this, connection](const QString& name) {
        auto* const query = new TADOQuery(this);
        query->setObjectName(name);
        query->SetConnection(connection);
        return query;
    };
    Tags_qry = newQuery(QStringLiteral("Tags_qry"));
    ADOQuery2 = newQuery(QStringLiteral("ADOQuery2"));
    tmp_qry = newQuery(QStringLiteral("tmp_qry"));
    Colors_qry = newQuery(QStringLiteral("Colors_qry"));
    Tags_qry->SQL.SetText(TagStatements::TagsOfForm());
    ADOQuery2->SQL.SetText(QStringLiteral("select * from tmp"));
    Colors_qry->SQL.SetText(QStringLiteral("select  * FROM colors"));
    cmd = new TADOCommand(this);
    cmd->setObjectName(QStringLiteral("cmd"));
    cmd->SetConnection(connection);
    DataSource1 = new TDataSource(this);
    DataSource1->setObjectName(QStringLiteral("DataSource1"));
    DataSource1->SetDataSet(Tags_qry);
}

void TTags::BindHandlers()
{
    Tags_editor->OnEnter = [this](QObject*) { Tags_editorEnter(); };
    Tags_editor->OnExit = [this](QObject*) { Tags_editorExit(); };
    Tags_editor->OnKeyUp = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { Tags_editorKeyUp(key); };
    Tags_grid->OnKeyDown = [this](QObject*, quint16& key, Qt::KeyboardModifiers) { Tags_gridKeyDown(key); };
    Tags_qry->AfterOpen = [this](QObject*) { Tags_qryAfterOpen(); };
}

void TTags::frame_load()
{
    Tags_editor->SnapshotCodes.clear();
    Tags_editor->Values().Clear();
    fill_imageList();
    Tags_editor->SetImages(pictures_.Images());
    Tags_panel->show();
    OpenAnew(*Tags_qry, TagStatements::AllTags());
    fill_adveditor(1);
    fill_adveditor(2);
    Tags_editor->Getvalue();
    Tags_editor->clear();
    exec_sql();
    Rearrang();
    Tags_editor->SetRightToLeft(true);
}

void TTags::fill_imageList()
{
    pictures_.Clear();
    pictures_.Add(*Colors_qry, TagStatements::StrongPictures(), QStringLiteral("code"),
                  QStringLiteral("h-img"));
    pictures_.Add(*Colors_qry, TagStatements::LightPictures(), QStringLiteral("code"),
                  QStringLiteral("l-img"));
    colorCount_ = Colors_qry->RecordCount();
}

void TTags::Fill_x(int mode, QString& list)
{
    if (mode == 1) {
        tags_.ReadCommon(*ADOQuery2);
        list = tags_.Common().join(u',');
        return;
    }
    tags_.ReadPartial(*ADOQuery2);
    Tags_editor->SnapshotCodes = tags_.Snapshot();
    list = tags_.Partial().join(u',');
}

void TTags::fill_adveditor(int mode)
{
    QString list;
    Fill_x(mode, list);
    if (list.isEmpty())
        return;
    for (const QString& code : splitter(u',' + list + u',')) {
        OpenAnew(*Colors_qry, TagStatements::TagByCode(code));
        if (Colors_qry->IsEmpty())
            continue;
        const int strong =
            pictures_.IndexOf(Colors_qry->FieldByName(QStringLiteral("Color_code"))->AsString());
        const int light = strong < 0 ? strong : strong + colorCount_;
        Tags_editor->Values().AddPair(Colors_qry->FieldByName(QStringLiteral("Name"))->AsString(), code,
                                      mode == 1 ? strong : light);
    }
}

QStringList TTags::splitter(const QString& text)
{
    return TagCodes::Split(text);
}

bool TTags::finder(const QString& code) const
{
    return Tags_editor->Values().IndexOfValue(code) >= 0;
}

void TTags::exec_sql()
{
    QString common;
    if (!Tags_editor->Values().IsEmpty())
        Fill_x(1, common);
    OpenAnew(*Tags_qry,
             TagStatements::Suggestions(common.split(u',', Qt::SkipEmptyParts), Tags_editor->EditText()));
}

void TTags::Rearrang()
{
    using enum TGridColumn::TKind;
    Tags_grid->SetColumns({
        {QStringLiteral("ID"), QString(), 0, ckCode, false},
        {QStringLiteral("Name"), QStringLiteral("برچسب"), NameWidth, ckText, true},
        {QStringLiteral("code"), QString(), 0, ckCode, false},
        {QStringLiteral("image"), QString(), 0, ckText, false},
        {QStringLiteral("cl_code"), QStringLiteral(" "), SwatchWidth, ckColor, true},
    });
    if (!Tags_qry->IsEmpty())
        setFixedHeight(HeightFor(Tags_qry->RecordCount()));
}

void TTags::Tags_qryAfterOpen()
{
    const bool isEmpty = Tags_qry->IsEmpty();
    // A control that is hidden with the focus would hand it on to whichever stands behind it.
    if (isEmpty && Tags_grid->hasFocus())
        Tags_editor->setFocus();
    Tags_grid->setHidden(isEmpty);
    nothingToShow_->setVisible(isEmpty);
}

void TTags::Tags_editorEnter() const
{
    Tags_editor->SetColor(Yellow);
    Tags_editor->CorrectEditPos();
}

void TTags::Tags_editorExit() const
{
    Tags_editor->SetColor(White);
}

void TTags::Tags_editorKeyUp(quint16 key)
{
    const QPointer<TTags> guard(this);
    Tags_editor->Getvalue();
    exec_sql();
    Rearrang();
    bool written = false;
    if (key == VirtualKey::Enter)
        written = AddTyped();
    if (!guard)
        return;
    if (key == VirtualKey::Up && Tags_grid->isVisible())
        Tags_grid->setFocus();
    if (key == VirtualKey::Down && Tags_qry->Eof())
        Tags_editor->setFocus();
    if (key == VirtualKey::Delete || key == VirtualKey::Back)
        written = RemoveDeleted();
    Tags_grid->setEnabled(Tags_editor->StateFlag());
    Rearrang();
    if (written)
        Q_EMIT tagsChanged();
}

bool TTags::AddTyped()
{
    const QPointer<TTags> guard(this);
    const QString name = Tags_editor->EditText();
    OpenAnew(*tmp_qry, TagStatements::TagByName(name));
    const bool written = tmp_qry->IsEmpty() ? AddNew(name) : AddExisting(name);
    if (!guard)
        return false;
    Tags_editor->clear();
    exec_sql();
    Rearrang();
    Tags_editor->CorrectEditPos();
    frame_load();
    return written;
}

bool TTags::AddExisting(const QString& name)
{
    const TTaggedRecords records = Records();
    if (records.Keys.isEmpty())
        return false;
    // The current suggestion decides, even where it only begins with the typed name: intended.
    const int item = Tags_editor->Values().IndexOfText(CurrentRow(QStringLiteral("Name")));
    if (item >= 0) {
        const QString statement = TagStatements::AddShown(records, CurrentRow(QStringLiteral("ID")));
        TurnStrong(item);
        Tags_editor->clear();
        Write(statement);
        return true;
    }
    // A tag that all of the records carry is not among the suggestions.
    const bool suggested = Tags_qry->Locate(QStringLiteral("NAME"), {name});
    const auto value = [&](const QString& ofSuggestion, const QString& ofTag) {
        return suggested ? CurrentRow(ofSuggestion) : tmp_qry->FieldByName(ofTag)->AsString();
    };
    const QString statement =
        TagStatements::AddUnshown(records, value(QStringLiteral("ID"), QStringLiteral("Code")));
    AddStrong(name, value(QStringLiteral("code"), QStringLiteral("color_code")));
    Write(statement);
    return true;
}

bool TTags::AddNew(const QString& name)
{
    if (name.isEmpty() || Tags_editor->Values().IndexOfText(name) >= 0)
        return false;
    const QPointer<TTags> guard(this);
    const TMessageResult answer =
        Host().Messages.ShowSmartMessage(TConfirmationMessage::cmCreateTag, TMessageButtons::mbYesNo, 0);
    if (answer != TMessageResult::mrYes || !guard)
        return false;
    const int code = Host().Pickers.Call_insert_tags(name, 1);
    if (!guard)
        return false;
    if (code == -1) {
        Host().Messages.ShowSmartMessage(TNotificationMessage::nmLimitReached,
                                         {QStringLiteral("محدودیت در تعداد تگ ها")}, Tags_editor, window());
    }
    if (code <= 0 || !guard)
        return false;
    const TTaggedRecords records = Records();
    if (records.Keys.isEmpty())
        return false;
    const QString number = QString::number(code);
    OpenAnew(*Colors_qry, TagStatements::NewTag(number));
    AddStrong(Colors_qry->FieldByName(QStringLiteral("Name"))->AsString(),
              Colors_qry->FieldByName(QStringLiteral("Code"))->AsString());
    Write(TagStatements::AddUnshown(records, number));
    return true;
}

bool TTags::RemoveDeleted()
{
    if (Tags_editor->Values().Count() >= Tags_editor->SnapshotCount())
        return false;
    const TTaggedRecords records = Records();
    bool written = false;
    for (const QString& code : std::as_const(Tags_editor->SnapshotCodes)) {
        if (finder(code) || records.Keys.isEmpty())
            continue;
        Write(TagStatements::Remove(records, code));
        Write(TagStatements::ClearEmptied(records));
        written = true;
    }
    exec_sql();
    Rearrang();
    frame_load();
    return written;
}

void TTags::Tags_gridKeyDown(quint16 key)
{
    if (key == VirtualKey::Enter && !Tags_qry->IsEmpty() && AddCurrentRow())
        Q_EMIT tagsChanged();
}

void TTags::Tags_GRDKeyDown(QObject* sender, quint16& key, Qt::KeyboardModifiers /*shift*/)
{
    if (key == VirtualKey::Enter)
        Tags_GRDDblClick(sender);
}

void TTags::Tags_GRDDblClick(QObject* /*sender*/)
{
    if (AddCurrentRow())
        Q_EMIT tagsChanged();
}

bool TTags::AddCurrentRow()
{
    const TTaggedRecords records = Records();
    const QString name = CurrentRow(QStringLiteral("Name"));
    const QString code = CurrentRow(QStringLiteral("ID"));
    if (code.isEmpty() || records.Keys.isEmpty())
        return false;
    Tags_editor->SetEditText(name);
    Tags_editor->Getvalue();
    // Lower-cased here and not in the editor's own path: intended.
    const int item = Tags_editor->Values().IndexOfText(name.toLower());
    if (item >= 0) {
        TurnStrong(item);
        Tags_editor->clear();
        Write(TagStatements::AddShown(records, code));
        ResetGrid();
    } else {
        AddStrong(name, CurrentRow(QStringLiteral("code")));
        Tags_editor->clear();
        Write(TagStatements::AddUnshown(records, code));
    }
    Tags_editor->clear();
    exec_sql();
    Rearrang();
    Tags_editor->setFocus();
    Tags_editor->CorrectEditPos();
    return true;
}

QString TTags::CurrentRow(const QString& field) const
{
    return Tags_qry->IsEmpty() ? QString() : Tags_qry->FieldByName(field)->AsString();
}

TTaggedRecords TTags::Records() const
{
    return {Tags_editor->TableName, Tags_editor->KeyField, TTaggedRecords::Unwrapped(Tags_editor->KeyList)};
}

/// The item carries the colour's code until the tags are read anew: intended.
void TTags::AddStrong(const QString& name, const QString& color)
{
    Tags_editor->Values().AddPair(name, color, pictures_.IndexOf(color));
}

void TTags::TurnStrong(int item) const
{
    const int picture = Tags_editor->Values()[item].ImageIndex;
    if (picture >= colorCount_)
        Tags_editor->Values().SetImageIndex(item, picture - colorCount_);
}

void TTags::Write(const QString& statement) const
{
    cmd->CommandText = statement;
    cmd->Execute();
}

void TTags::ResetGrid() const
{
    const TDataSource* const source = FGrid ? FGrid->DataSource() : nullptr;
    if (source != nullptr)
        Host().CommonLibrary.ResetDataset(qobject_cast<TADOQuery*>(source->DataSet()));
}
