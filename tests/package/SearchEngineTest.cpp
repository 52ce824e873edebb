#include "ADOQuery.h"
#include "Criteria.h"
#include "RandomTexts.h"
#include "SearchCondition.h"
#include "TestCase.h"

using Criteria::Item;

namespace {

using enum TSearchDataType;

const char* const Table =
    "CREATE TABLE dbo.things (Id int NOT NULL PRIMARY KEY, Name nvarchar(200) NULL, SearchName AS "
    "CAST(LOWER(REPLACE(REPLACE(TRANSLATE(Name COLLATE Latin1_General_BIN2, N'يىك۰۱۲۳۴۵۶۷۸۹٠١٢٣٤٥٦٧٨٩', "
    "N'ییک01234567890123456789'), NCHAR(8204), N''), NCHAR(1600), N'')) AS nvarchar(200)) PERSISTED, "
    "Price money NULL, Stock int NULL, Code nvarchar(20) NULL, tags nvarchar(max) NULL, At datetime NULL)";

class TThings
{
public:
    explicit TThings(quint32 seed) : Texts(seed)
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Connection.Execute(QString::fromUtf8(Table));
        All.SetConnection(&Connection);
        All.SQL.SetText(
            QStringLiteral("SELECT Id, Name, Price, Stock, Code, tags, At FROM dbo.things ORDER BY Id"));
    }

    void Insert(const QVariant& name)
    {
        const auto maybe = [this](const QVariant& value) {
            return Texts.Number(8) == 0 ? QVariant() : value;
        };
        Connection.Execute(QStringLiteral("INSERT INTO dbo.things (Id, Name, Price, Stock, Code, tags, At) "
                                          "VALUES (?, ?, ?, ?, ?, ?, ?)"),
                           {++lastId_, name, maybe(Amount()), maybe(Texts.Number(20) - 5), maybe(Code()),
                            maybe(Codes()),
                            maybe(Moment(QLatin1Char('-'), QLatin1Char('T')) + QStringLiteral(":30"))});
    }

    QString Amount() { return QStringLiteral("%1.%2").arg(Texts.Number(30) - 10).arg(Texts.Number(4) * 25); }
    QString Code() { return QString::number(Texts.Number(30)).rightJustified(5, u'0'); }
    QString Codes() { return QStringLiteral(",%1,%2,").arg(Texts.Number(12)).arg(Texts.Number(12)); }
    QString Moment(QLatin1Char day, QLatin1Char time)
    {
        return QStringLiteral("2024%1%2%1%3%4%5:%6")
            .arg(day)
            .arg(1 + Texts.Number(3), 2, 10, QLatin1Char('0'))
            .arg(1 + Texts.Number(28), 2, 10, QLatin1Char('0'))
            .arg(time)
            .arg(Texts.Number(24), 2, 10, QLatin1Char('0'))
            .arg(Texts.Number(60), 2, 10, QLatin1Char('0'));
    }

    QList<int> BySql(const TSearchCondition& condition)
    {
        TADOQuery query;
        query.SetConnection(&Connection);
        query.SQL.SetText(QLatin1String("SELECT Id FROM dbo.things WHERE ") + condition.Sql() +
                          QLatin1String(" ORDER BY Id"));
        query.Open();
        QList<int> ids;
        for (int row = 0; row < query.RecordCount(); ++row)
            ids.append(query.ValueAt(row, 0).toInt());
        return ids;
    }

    QList<int> ByPredicate(const TSearchCondition& condition)
    {
        All.Open();
        const int column = All.FieldByName(condition.Column())->Index();
        QList<int> ids;
        for (int row = 0; row < All.RecordCount(); ++row) {
            if (condition.Matches(All.ValueAt(row, column)))
                ids.append(All.ValueAt(row, 0).toInt());
        }
        return ids;
    }

    TRandomTexts Texts;
    TADOConnection Connection;
    TADOQuery All;

private:
    int lastId_ = 0;
};

/// A random criterion of a kind, 0 to 7.
void FillAtRandom(TTarvaSearch& criterion, TThings& things, int kind)
{
    using enum TSearchType;
    const QString folded = kind == 1 ? QStringLiteral("SearchName") : QString();
    switch (kind) {
    case 0:
    case 1:
        Criteria::Fill(criterion, Item({}, QStringLiteral("Name"), idtString, folded), things.Texts.Mixed(3));
        break;
    case 2:
        Criteria::Fill(criterion, Item({}, QStringLiteral("Price"), idtMoney), things.Amount());
        break;
    case 3:
        Criteria::Fill(criterion, Item({}, QStringLiteral("Stock"), idtDigit), things.Texts.Number(15) - 5);
        break;
    case 4:
        Criteria::Fill(criterion, Item({}, QStringLiteral("Price"), idtMoney), things.Amount(),
                       things.Amount(), stRangeCost);
        break;
    case 5:
        Criteria::Fill(criterion, Item({}, QStringLiteral("Code")), things.Code(), things.Code(),
                       stRangeString);
        break;
    case 6:
        Criteria::Fill(criterion, Item({}, QStringLiteral("At"), idtDateTime),
                       things.Moment(QLatin1Char('/'), QLatin1Char('-')),
                       things.Moment(QLatin1Char('/'), QLatin1Char('-')), stRangeDate);
        break;
    default:
        Criteria::Fill(criterion, Item({}, QStringLiteral("tags"), idtCodeList), things.Texts.Number(12));
    }
    criterion.SetReverst(things.Texts.Number(3) == 0);
    criterion.SetZeroValueIgnore(things.Texts.Number(2) == 0);
}

} // namespace

class SearchEngineTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theStatementAndTheRowFilterFindTheSameRows()
    {
        TThings things(1);
        for (int row = 0; row < 300; ++row)
            things.Insert(things.Texts.Number(10) == 0 ? QVariant() : QVariant(things.Texts.Mixed(8)));
        TTarvaSearch criterion;
        int rowsFound = 0;
        for (int round = 0; round < 800; ++round) {
            FillAtRandom(criterion, things, round % 8);
            const auto condition = TSearchCondition::Of(criterion);
            if (!condition)
                continue;
            const QList<int> bySql = things.BySql(*condition);
            QVERIFY2(bySql == things.ByPredicate(*condition), qPrintable(condition->Sql()));
            rowsFound += static_cast<int>(bySql.size());
        }
        QVERIFY(rowsFound > 1000);
    }

    void theFoldedColumnAndTheColumnItselfFindTheSameRows()
    {
        TThings things(2);
        for (int row = 0; row < 300; ++row)
            things.Insert(things.Texts.Mixed(8));
        TTarvaSearch plain;
        TTarvaSearch folded;
        for (int round = 0; round < 300; ++round) {
            const QString typed = things.Texts.Mixed(3);
            Criteria::Fill(plain, Item({}, QStringLiteral("Name")), typed);
            Criteria::Fill(folded, Item({}, QStringLiteral("Name"), idtString, QStringLiteral("SearchName")),
                           typed);
            const auto condition = TSearchCondition::Of(plain);
            if (condition)
                QCOMPARE(things.BySql(*condition), things.BySql(TSearchCondition::Of(folded).value()));
        }
    }

    void everyTextFindsItself_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"'; drop table things; --",
                                 "%",
                                 "_",
                                 "[",
                                 "]",
                                 "[a-z]",
                                 "[^a]",
                                 "'",
                                 "''",
                                 "\"",
                                 "`",
                                 "\\",
                                 "/*",
                                 "*/",
                                 "--",
                                 "N'x'",
                                 "?",
                                 "@p",
                                 "a\r\nGO\r\n",
                                 "{fn now()}",
                                 "&#39;"})
            QTest::newRow(text) << QString::fromLatin1(text);
        QTest::newRow("quotes") << QStringLiteral("‘’“”«»´ʼ＇");
        QTest::newRow("emoji") << QStringLiteral("👨‍👩‍👧");
        QTest::newRow("combining") << QStringLiteral("e\u0301");
    }
    void everyTextFindsItself()
    {
        QFETCH(QString, text);
        TThings things(3);
        things.Insert(QStringLiteral("الف"));
        things.Insert(QStringLiteral("x") + text + QStringLiteral("y"));
        for (const QString& folded : {QString(), QStringLiteral("SearchName")}) {
            TTarvaSearch criterion;
            Criteria::Fill(criterion, Item({}, QStringLiteral("Name"), idtString, folded), text);
            const TSearchCondition condition = TSearchCondition::Of(criterion).value();
            QCOMPARE(things.BySql(condition), QList<int>{2});
            QCOMPARE(things.ByPredicate(condition), QList<int>{2});
        }
    }

    void anyUnicodeTextFindsItself()
    {
        TThings things(4);
        TTarvaSearch criterion;
        for (int round = 0; round < 2000; ++round) {
            const QString text = things.Texts.Unicode(6);
            Criteria::Fill(criterion, Item({}, QStringLiteral("Name")), text);
            const auto condition = TSearchCondition::Of(criterion);
            if (!condition)
                continue;
            things.Connection.Execute(QStringLiteral("DELETE FROM dbo.things"));
            things.Insert(text);
            QVERIFY2(things.BySql(*condition).size() == 1, qPrintable(condition->Sql()));
        }
    }
};

QTEST_MAIN(SearchEngineTest)
#include "SearchEngineTest.moc"
