#include "StatementFixture.h"

#include <QtTest>

namespace {

const QString joined = QStringLiteral("FROM TagS inner join colors on TagS.color_code = colors.code");

void AddListsAndSuggestions()
{
    StatementRow("all tags with their colour",
                 QLatin1String("SELECT TagS.Code AS ID,TagS.Name,cl_code,Colors.code,[h-img] as image ") +
                     joined,
                 {"1|فوری|$0000FF|1|aa01", "2|O'Neil|$00FF00|2|aa02", "3|Urgent|$0000FF|1|aa01",
                  "4|فروش ویژه|$00FF00|2|aa02", "5|مهم|$00FF00|2|aa02"});
    StatementRow(
        "all tags as the form has it",
        QLatin1String("SELECT TagS.Code AS ID,TagS.Name,Colors.code,[h-img] as image ") + joined,
        {"1|فوری|1|aa01", "2|O'Neil|2|aa02", "3|Urgent|1|aa01", "4|فروش ویژه|2|aa02", "5|مهم|2|aa02"});
    const QString suggestions = QLatin1String("SELECT TagS.Code AS ID,TagS.Name,[h-img] as image,Colors.code,"
                                              "colors.cl_code ") +
                                joined + QLatin1String(" where tags.code not in (%1) and TagS.name like ");
    StatementRow("suggestions for a letter", suggestions.arg(QLatin1String("-1")) + Q(QStringLiteral("ف%")),
                 {"1|فوری|aa01|1|$0000FF", "4|فروش ویژه|aa02|2|$00FF00"});
    StatementRow("suggestions without those on all records",
                 suggestions.arg(QLatin1String("1,3")) + Q(QStringLiteral("ف%")),
                 {"4|فروش ویژه|aa02|2|$00FF00"});
    StatementRow("suggestions for nothing typed",
                 suggestions.arg(QLatin1String("1,2,4,5")) + Q(QStringLiteral("%")),
                 {"3|Urgent|aa01|1|$0000FF"});
    StatementRow("suggestions do not mind the case",
                 suggestions.arg(QLatin1String("-1")) + Q(QStringLiteral("uRG%")),
                 {"3|Urgent|aa01|1|$0000FF"});
    StatementRow("suggestions for a quote", suggestions.arg(QLatin1String("-1")) + Q(QStringLiteral("o'%")),
                 {"2|O'Neil|aa02|2|$00FF00"});
}

void AddSingleTags()
{
    StatementRow("exact look-up", QLatin1String("select * from tags where name=") + Q(QStringLiteral("فوری")),
                 {"1|فوری|1"});
    StatementRow("exact look-up in other case",
                 QLatin1String("select * from tags where name=") + Q(QStringLiteral("URGENT")),
                 {"3|Urgent|1"});
    StatementRow("exact look-up with a quote",
                 QLatin1String("select * from tags where name=") + Q(QStringLiteral("O'Neil")),
                 {"2|O'Neil|2"});
    StatementRow(
        "exact look-up of no tag",
        QLatin1String("select * from tags where name=") + Q(QStringLiteral("'; drop table tags; --")), {});
    StatementRow(
        "one tag for the editor",
        QStringLiteral("select tags.code,colors.code as Color_code,TagS.Name  from TagS inner join colors on "
                       "tags.color_code = colors.code where tags.code=4"),
        {"4|2|فروش ویژه"});
    StatementRow("a tag just created",
                 QLatin1String("SELECT TagS.Code AS ID,TagS.Name,Colors.code ") + joined +
                     QLatin1String(" where tags.code=5"),
                 {"5|مهم|2"});
}

void AddPictures()
{
    StatementRow("strong pictures", QStringLiteral("select code,[h-img] from colors"), {"1|aa01", "2|aa02"});
    StatementRow("light pictures", QStringLiteral("select code,[l-img] from colors"), {"1|bb01", "2|NULL"});
    StatementRow("colours as the form has it", QStringLiteral("select  * FROM colors"),
                 {"1|$0000FF|aa01|bb01", "2|$00FF00|aa02|NULL"});
    StatementRow("tags of the selected records", QStringLiteral("select * from tmp"), {",3,5,", "NULL"});
    const QStringList pictured{"1|1|فوری|aa01", "2|2|O'Neil|aa02", "3|1|Urgent|aa01", "4|2|فروش ویژه|aa02",
                               "5|2|مهم|aa02"};
    StatementRow(
        "tags with pictures, of the button",
        QStringLiteral(" select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner  join colors on "
                       "TagS.color_code = colors.code "),
        pictured);
    StatementRow(
        "tags with pictures, of the menu",
        QStringLiteral("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                       "TagS.color_code = colors.code "),
        pictured);
    StatementRow("pictures of the list",
                 QStringLiteral("select TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                                "TagS.color_code = colors.code "),
                 {"1|Urgent|aa01", "1|فوری|aa01", "2|O'Neil|aa02", "2|فروش ویژه|aa02", "2|مهم|aa02"});
    StatementRow(
        "a tag with its picture by name",
        QLatin1String("select tags.code,TagS.color_code,TagS.Name,[H-img] from TagS inner join colors on "
                      "TagS.color_code = colors.code where tags.name =") +
            Q(QStringLiteral("فروش ویژه")),
        {"4|2|فروش ویژه|aa02"});
    StatementRow("number of tags", QStringLiteral("select count(code) from tags"), {"5"});
}

} // namespace

/// The texts that the tags frame and the tags search frame send.
class StatementsTagsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aListDeliversItsRows_data();
    void aListDeliversItsRows();
    void addingATagReachesTheRecordsWithoutIt_data();
    void addingATagReachesTheRecordsWithoutIt();
    void removingATagLeavesTheOthersAndNoLoneComma();
    void theTagListHasTheNamesThatTheFrameReads();

private:
    static QString AddFirst(int tag, const QString& keys);
    static QString AddSecond(int tag, const QString& keys);
};

void StatementsTagsTest::aListDeliversItsRows_data()
{
    StatementColumns();
    AddListsAndSuggestions();
    AddSingleTags();
    AddPictures();
}

void StatementsTagsTest::aListDeliversItsRows()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    rows.sort();
    TStatementDatabase database;
    QCOMPARE(database.ComparableRows(statement), rows);
}

QString StatementsTagsTest::AddFirst(int tag, const QString& keys)
{
    const QString c = QString::number(tag);
    return QLatin1String("update kala set tags =(case when tags is null then ") + Q(u',' + c + u',') +
           QLatin1String(" else tags+") + Q(c + u',') + QLatin1String(" end) where Code in(") + keys +
           QLatin1String(") and (tags not like ") + Q(QLatin1String("%,") + c + QLatin1String(",%")) +
           QLatin1String(" OR TAGS IS NULL)");
}

QString StatementsTagsTest::AddSecond(int tag, const QString& keys)
{
    const QString c = QString::number(tag);
    return QLatin1String("update kala set Tags =(case when tags is null then ") + Q(u',' + c + u',') +
           QLatin1String(" else tags+") + Q(c + u',') + QLatin1String(" end) where (TagS not like ") +
           Q(QLatin1String("%,") + c + QLatin1String(",%")) +
           QLatin1String(" or tags is null) and (Code in (") + keys + QLatin1String("))");
}

void StatementsTagsTest::addingATagReachesTheRecordsWithoutIt_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("tags");
    const QString all = QStringLiteral("1,2,3,4");
    QTest::newRow("first form") << AddFirst(5, all) << ",5, ,3,5, ,5, ,15,51,5,";
    QTest::newRow("second form") << AddSecond(5, all) << ",5, ,3,5, ,5, ,15,51,5,";
    QTest::newRow("some records only") << AddSecond(5, QStringLiteral("2")) << "NULL ,3,5, ,5, ,15,51,";
}

void StatementsTagsTest::addingATagReachesTheRecordsWithoutIt()
{
    QFETCH(QString, statement);
    QFETCH(QString, tags);
    TStatementDatabase database;
    QCOMPARE(database.Rows(statement), QStringList());
    QCOMPARE(database.Tags(), tags);
    // Once more changes nothing.
    QCOMPARE(database.Rows(statement), QStringList());
    QCOMPARE(database.Tags(), tags);
}

void StatementsTagsTest::removingATagLeavesTheOthersAndNoLoneComma()
{
    TStatementDatabase database;
    database.Prepare({QStringLiteral("update kala set tags=',3,5,7,' where code=4")});
    QCOMPARE(database.Rows(
                 QStringLiteral("update kala set tags = REPLACE(tags,',5,',',') where Code in(1,2,3,4) ")),
             QStringList());
    QCOMPARE(database.Tags(), QStringLiteral("NULL ,3, , ,3,7,"));
    QCOMPARE(database.Rows(QStringLiteral("update kala set tags = NULL where Code in(1,2,3,4) and tags=','")),
             QStringList());
    QCOMPARE(database.Tags(), QStringLiteral("NULL ,3, NULL ,3,7,"));
}

void StatementsTagsTest::theTagListHasTheNamesThatTheFrameReads()
{
    TStatementDatabase database;
    const QString list =
        QStringLiteral("SELECT TagS.Code AS ID,TagS.Name,cl_code,Colors.code,[h-img] as image FROM TagS "
                       "inner join colors on TagS.color_code = colors.code");
    QCOMPARE(database.ColumnNames(list), QStringList({"ID", "Name", "cl_code", "code", "image"}));
    QCOMPARE(database.ColumnTypes(list), QStringList({"INT", "NVARCHAR(50)", "NVARCHAR(50)", "INT", "BLOB"}));
}

QTEST_APPLESS_MAIN(StatementsTagsTest)
#include "StatementsTagsTest.moc"
