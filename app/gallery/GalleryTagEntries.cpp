#include "ADOCommand.h"
#include "ADOConnection.h"
#include "ADOQuery.h"
#include "AdvListEditorPer.h"
#include "Category_Search_UNT.h"
#include "Category_SearchWithManager_UNT.h"
#include "GalleryEntry.h"
#include "ReferenceHost.h"
#include "SmartButton_TRV.h"
#include "tags_frame.h"
#include "Tags_search_UNT.h"

namespace {

QString ItemsOf(const TAdvListEditorPer& editor)
{
    QStringList items;
    for (int index = 0; index < editor.Values().Count(); ++index)
        items.append(editor.Values()[index].DisplayText + u'=' + editor.Values()[index].Value);
    return items.join(QStringLiteral("; "));
}

constexpr int CopiedRecords = 3;

/// A database of its own with three records that carry the tags of three persons: who tries the frame here
/// changes nothing of the open database. Belongs to the frame.
TADOConnection& CopyOfPersons(TTags& frame, TADOConnection& open)
{
    QVariantList tags;
    TADOQuery persons;
    persons.SetConnection(&open);
    persons.SQL.SetText(
        QStringLiteral("SELECT TOP %1 tags FROM dbo.Persons ORDER BY Code").arg(CopiedRecords));
    for (persons.Open(); !persons.Eof(); persons.Next())
        tags.append(persons.FieldByName(QStringLiteral("tags"))->Value());
    auto* copy = new TADOConnection(&frame);
    copy->SetConnectionString(QStringLiteral("sqlite::memory:"));
    copy->Open();
    copy->Execute(
        QStringLiteral("CREATE TABLE dbo.Persons (Code int NOT NULL PRIMARY KEY, tags nvarchar(max) NULL)"));
    for (int code = 1; code <= CopiedRecords; ++code)
        copy->Execute(QStringLiteral("INSERT INTO dbo.Persons (Code, tags) VALUES (?, ?)"),
                      {code, tags.value(code - 1)});
    return *copy;
}

/// The tags of three records, as if a list had them selected.
void SetUp(TTags& frame, const TGalleryStage& stage)
{
    TADOConnection& copy = CopyOfPersons(frame, stage.Host.Connection());
    QObject::connect(&copy, &TADOConnection::willExecute, &frame, stage.TellStatement);
    frame.ADOQuery2->SetConnection(&copy);
    frame.cmd->SetConnection(&copy);
    frame.Tags_editor->TableName = QStringLiteral("dbo.Persons");
    frame.Tags_editor->KeyField = QStringLiteral("Code");
    frame.Tags_editor->KeyList = QStringLiteral("(1,2,3)");
    frame.ADOQuery2->SQL.SetText(QStringLiteral("SELECT tags FROM dbo.Persons WHERE Code IN (1,2,3)"));
    QObject::connect(&frame, &TTags::tagsChanged,
                     [tell = stage.Tell] { tell(QStringLiteral("tagsChanged")); });
    frame.frame_load();
}

TGalleryValues ValuesOf(const TTags& frame)
{
    return {{QStringLiteral("Tags_editor.KeyList"), frame.Tags_editor->KeyList},
            {QStringLiteral("Tags_editor.Values"), ItemsOf(*frame.Tags_editor)}};
}

void AddCodeList(TTarvaSearch& criterion, const QString& title, const QString& field)
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = field;
    item.DataType = TSearchDataType::idtCodeList;
    item.FilterType = TSearchFilterType::iftQuery;
    criterion.SearchItems.Clear();
    criterion.SearchItems.Add(item);
    criterion.SetItemIndex(0);
}

void SetUp(TTags_search_FRM& frame, const TGalleryStage& /*stage*/)
{
    AddCodeList(*frame.TarvaSearch_tags, QStringLiteral("برچسب"), QStringLiteral("tags"));
    frame.SetSearchble(true);
    frame.frame_load();
}

TGalleryValues ValuesOf(const TTags_search_FRM& frame)
{
    return {{QStringLiteral("searchble"), frame.searchble()},
            {QStringLiteral("ChosenCodes"), frame.ChosenCodes().join(u',')}};
}

void SetUp(TCategory_frame& frame, const TGalleryStage& stage)
{
    frame.Select_btn->OnClick = stage.Event(QStringLiteral("Select_btn.OnClick"));
    frame.open(true);
}

TGalleryValues ValuesOf(const TCategory_frame& frame)
{
    return {{QStringLiteral("Editor.Values"), ItemsOf(*frame.Editor)}};
}

void SetUp(TCategorysearchframe& frame, const TGalleryStage& /*stage*/)
{
    AddCodeList(*frame.TarvaSearch1, QStringLiteral("دسته"), QStringLiteral("CategoryPath"));
    frame.open(TCategorysearchframe::GoodsLists);
}

TGalleryValues ValuesOf(const TCategorysearchframe& frame)
{
    return {{QStringLiteral("Editor.Values"), ItemsOf(*frame.Editor)}};
}

} // namespace

QVector<TGalleryEntry> GalleryEntries::Tags()
{
    return {
        GalleryEntry<TTags>(QStringLiteral("tags_frame"),
                            QStringLiteral("برچسب‌های رکوردها"), SetUp, ValuesOf),
        GalleryEntry<TTags_search_FRM>(QStringLiteral("Tags_search_UNT"), QStringLiteral("فیلتر با برچسب"),
                                       SetUp, ValuesOf),
        GalleryEntry<TCategory_frame>(QStringLiteral("Category_Search_UNT"), QStringLiteral("انتخاب دسته"),
                                      SetUp, ValuesOf),
        GalleryEntry<TCategorysearchframe>(QStringLiteral("Category_SearchWithManager_UNT"),
                                           QStringLiteral("فیلتر با دسته"), SetUp, ValuesOf),
    };
}
