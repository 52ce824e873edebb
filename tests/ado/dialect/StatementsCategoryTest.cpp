#include "StatementFixture.h"

#include <QtTest>

namespace {

const QString Base =
    QStringLiteral("SELECT *,(SELECT parent_code FROM category WHERE id=ID1) AS parent_id FROM( SELECT "
                   "NAME, MIN(ID) AS ID1 FROM category group BY NAME) AS t1");

} // namespace

/// The texts that the category frames send.
class StatementsCategoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextDeliversItsRows_data();
    void aTextDeliversItsRows();
    void theListByNameHasTheNamesThatTheFrameReads();
    void theTextThatIsNoSqlFails();

private:
    TStatementDatabase database_;
};

void StatementsCategoryTest::aTextDeliversItsRows_data()
{
    StatementColumns();
    StatementRow("one row for each name", Base + QLatin1String(" ORDER BY ID1"),
                 {"کالا|1|0", "ابزار|2|1", "Paint|3|1", "استاد'کار|8|2"});
    StatementRow("menu of the children", Base + QLatin1String(" where ID1 in (2,3) ORDER BY ID1"),
                 {"ابزار|2|1", "Paint|3|1"});
    StatementRow("empty menu", Base + QLatin1String(" where ID1 in (-1) ORDER BY ID1"), {});
    StatementRow("by name", Base + QStringLiteral(" where name=N'ابزار' ORDER BY ID1"), {"ابزار|2|1"});
    StatementRow("by name in other case", Base + QLatin1String(" where name=N'PAINT' ORDER BY ID1"),
                 {"Paint|3|1"});
    StatementRow("by name with a quote", Base + QStringLiteral(" where name=N'استاد''کار' ORDER BY ID1"),
                 {"استاد'کار|8|2"});
    StatementRow("children as text", QStringLiteral("select dbo.Category_SubNodes(2,0,1) as value"),
                 {"(7,8)"});
    StatementRow("no children as text", QStringLiteral("select dbo.Category_SubNodes(7,0,1) as value"),
                 {"()"});
    StatementRow("all names", QStringLiteral("SELECT * from category"),
                 {"1|کالا|0", "2|ابزار|1", "3|Paint|1", "7|paint|2", "8|استاد'کار|2"});
    StatementRow("one category", QStringLiteral("select * from category where id = 7"), {"7|paint|2"});
    StatementRow("no category", QStringLiteral("select * from category where id = 0"), {});
    StatementRow("removed category", QStringLiteral("select * from category where id=2"), {"2|ابزار|1"});
    const QString defaults =
        QStringLiteral("select Code_category from category left join DefaultUserCategory on category.id = "
                       "DefaultUserCategory.Code_category where user_code=%1 and %2=1");
    StatementRow("default for persons", defaults.arg(4).arg(QLatin1String("Person")), {"2"});
    StatementRow("default for goods", defaults.arg(4).arg(QLatin1String("Good")), {"3"});
    StatementRow("no default", defaults.arg(9).arg(QLatin1String("Good")), {});
    StatementRow("category of a good", QStringLiteral("select * from kala_category where kala_code=25"),
                 {"25|7"});
    StatementRow("category of a person", QStringLiteral("select * from Person_category where person_code=12"),
                 {"12|2"});
}

void StatementsCategoryTest::aTextDeliversItsRows()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);
    if (!statement.contains(QLatin1String("ORDER BY")))
        rows.sort();
    QCOMPARE(database_.ComparableRows(statement), rows);
}

void StatementsCategoryTest::theListByNameHasTheNamesThatTheFrameReads()
{
    QCOMPARE(database_.ColumnNames(Base), QStringList({"NAME", "ID1", "parent_id"}));
    QCOMPARE(database_.ColumnTypes(Base), QStringList({"NVARCHAR(100)", "INT", "INT"}));
}

void StatementsCategoryTest::theTextThatIsNoSqlFails()
{
    const QString text =
        Base + QLatin1String(" where id1= ORDER BY ID1 where id1 in category_Subnodes(2,0,1)");
    QCOMPARE(database_.Rows(text),
             QStringList({"refused: not expected here, a value must stand here: ORDER"}));
}

QTEST_APPLESS_MAIN(StatementsCategoryTest)
#include "StatementsCategoryTest.moc"
