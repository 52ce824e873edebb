#include "SearchCondition.h"
#include "AdoError.h"
#include "Criteria.h"
#include "TestCase.h"

using Criteria::Item;

namespace {

using enum TSearchDataType;

QString Sql(const TTarvaSearch& criterion)
{
    const auto condition = TSearchCondition::Of(criterion);
    return condition ? condition->Sql() : QString();
}

QString SingleSql(TSearchDataType type, const QVariant& value, const QString& foldedName = {})
{
    TTarvaSearch criterion;
    Criteria::Fill(criterion, Item(QStringLiteral("ستون"), QStringLiteral("F"), type, foldedName), value);
    return Sql(criterion);
}

QString RangeSql(TSearchType shape, const QVariant& from, const QVariant& to,
                 TSearchDataType type = idtString)
{
    TTarvaSearch criterion;
    Criteria::Fill(criterion, Item(QStringLiteral("ستون"), QStringLiteral("F"), type), from, to, shape);
    return Sql(criterion);
}

} // namespace

class SearchConditionTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsOffOrEmptyFiltersNothing_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("null") << QVariant();
        QTest::newRow("empty text") << QVariant(QString());
        QTest::newRow("blanks") << QVariant(QStringLiteral("   "));
        QTest::newRow("ZWNJ and kashida") << QVariant(QStringLiteral("\u200Cـ"));
    }
    void whatIsOffOrEmptyFiltersNothing()
    {
        QFETCH(QVariant, value);
        QCOMPARE(SingleSql(idtString, value), QString());
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("F")), value);
        criterion.SetReverst(true);
        QCOMPARE(Sql(criterion), QString());
    }

    void anInactiveCriterionFiltersNothing()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("F")), QStringLiteral("x"));
        criterion.SetActive(false);
        QCOMPARE(Sql(criterion), QString());
        criterion.SetActive(true);
        criterion.SetItemIndex(1);
        QCOMPARE(Sql(criterion), QString());
        criterion.SetItemIndex(-1);
        QCOMPARE(Sql(criterion), QString());
    }

    void anItemWithoutFieldNameFiltersNothing()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item(QStringLiteral(" تاریخ"), {}), QStringLiteral("x"));
        QCOMPARE(Sql(criterion), QString());
    }

    void aFieldNameThatIsNoneIsRefused()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("F]; drop table kala; --")), QStringLiteral("x"));
        QVERIFY_THROWS_EXCEPTION(EADOError, TSearchCondition::Of(criterion));
        Criteria::Fill(criterion, Item({}, QStringLiteral("F"), idtString, QStringLiteral("a b")),
                       QStringLiteral("x"));
        QVERIFY_THROWS_EXCEPTION(EADOError, TSearchCondition::Of(criterion));
    }

    void aTextIsSoughtAsAPersianReaderFindsIt()
    {
        QCOMPARE(SingleSql(idtString, QStringLiteral("شیر۲")),
                 QStringLiteral(
                     "REPLACE(REPLACE([F] COLLATE Latin1_General_BIN2, NCHAR(8204), N''), NCHAR(1600), N'') "
                     "LIKE N'%ش[یىي]ر[2٢۲]%'"));
    }

    void aFoldedColumnIsSoughtInItsOwnSpelling()
    {
        QCOMPARE(SingleSql(idtString, QStringLiteral("Kي‌ك ۲%"), QStringLiteral("k.SearchName")),
                 QStringLiteral("[k].[SearchName] LIKE N'%kیک 2[%]%'"));
    }

    void aTextNeverLeavesItsLiteral_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("like");
        QTest::newRow("statement") << "'; DROP--"
                                   << "N'%''; drop--%'";
        QTest::newRow("percent") << "%"
                                 << "N'%[%]%'";
        QTest::newRow("underscore") << "_"
                                    << "N'%[_]%'";
        QTest::newRow("bracket") << "["
                                 << "N'%[[]%'";
        QTest::newRow("closing bracket") << "]^-"
                                         << "N'%]^-%'";
        QTest::newRow("quotes") << QStringLiteral("'\"`´‘’“”«»ʼ") << QStringLiteral("N'%''\"`´‘’“”«»ʼ%'");
        QTest::newRow("comment") << "/*--*/"
                                 << "N'%/*--*/%'";
        QTest::newRow("line end") << "a\r\nb"
                                  << "N'%a\r\nb%'";
        QTest::newRow("surrogates") << QStringLiteral("😀") << QStringLiteral("N'%😀%'");
        QTest::newRow("blanks") << " a b "
                                << "N'% a b %'";
    }
    void aTextNeverLeavesItsLiteral()
    {
        QFETCH(QString, typed);
        QFETCH(QString, like);
        QCOMPARE(SingleSql(idtString, typed, QStringLiteral("S")), QStringLiteral("[S] LIKE ") + like);
    }

    void aTextThatNoColumnCanHoldMatchesNothing()
    {
        const QString nothing = QStringLiteral("1 = 0");
        QCOMPARE(SingleSql(idtString, QString(QChar(0xD800))), nothing);
        QCOMPARE(SingleSql(idtString, QStringLiteral("a") + QChar(u'\0')), nothing);
        QCOMPARE(SingleSql(idtString, QString(800, u'a')), nothing);
    }

    void aNumberStandsBare_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("sql");
        QTest::newRow("floating point") << QVariant(12.0) << "[F] = 12";
        QTest::newRow("fraction") << QVariant(12.5) << "[F] = 12.5";
        QTest::newRow("text") << QVariant(QStringLiteral("007")) << "[F] = 7";
        QTest::newRow("Persian text") << QVariant(QStringLiteral("۱٬۲۰۰")) << "[F] = 1200";
        QTest::newRow("negative") << QVariant(-3) << "[F] = -3";
        QTest::newRow("zero is ignored") << QVariant(0) << "";
        QTest::newRow("zero text is ignored") << QVariant(QStringLiteral("0")) << "";
        QTest::newRow("no number") << QVariant(QStringLiteral("1 or 1=1")) << "1 = 0";
        QTest::newRow("statement") << QVariant(QStringLiteral("'; drop table kala; --")) << "1 = 0";
    }
    void aNumberStandsBare()
    {
        QFETCH(QVariant, value);
        QTEST(SingleSql(idtDigit, value), "sql");
        QTEST(SingleSql(idtMoney, value), "sql");
    }

    void zeroFiltersWhereItIsNotIgnored()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("Active"), idtDigit), 0);
        criterion.SetZeroValueIgnore(false);
        QCOMPARE(Sql(criterion), QStringLiteral("[Active] = 0"));
    }

    void codesAreSoughtBetweenCommas_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("sql");
        QTest::newRow("bare") << QVariant(QStringLiteral("12")) << "[F] LIKE '%,12,%'";
        QTest::newRow("between commas") << QVariant(QStringLiteral(",12,")) << "[F] LIKE '%,12,%'";
        QTest::newRow("number") << QVariant(12) << "[F] LIKE '%,12,%'";
        QTest::newRow("Persian digits") << QVariant(QStringLiteral(",۱۲,")) << "[F] LIKE '%,12,%'";
        QTest::newRow("several") << QVariant(QStringLiteral(",3,12,"))
                                 << "([F] LIKE '%,3,%' OR [F] LIKE '%,12,%')";
        QTest::newRow("zero") << QVariant(QStringLiteral(",0,")) << "";
        QTest::newRow("commas only") << QVariant(QStringLiteral(",,")) << "";
        QTest::newRow("no code") << QVariant(QStringLiteral(",12',")) << "1 = 0";
        QTest::newRow("wildcard") << QVariant(QStringLiteral("%")) << "1 = 0";
    }
    void codesAreSoughtBetweenCommas()
    {
        QFETCH(QVariant, value);
        QTEST(SingleSql(idtCodeList, value), "sql");
    }

    void aMomentMeansItsWholeMinuteAndADayItsWholeDay()
    {
        QCOMPARE(SingleSql(idtDateTime, QStringLiteral("2024/01/02-10:30")),
                 QStringLiteral("[F] >= N'2024-01-02T10:30:00' AND [F] < N'2024-01-02T10:31:00'"));
        QCOMPARE(SingleSql(idtDateTime, QStringLiteral("2024/01/02")),
                 QStringLiteral("[F] >= N'2024-01-02T00:00:00' AND [F] < N'2024-01-03T00:00:00'"));
        QCOMPARE(SingleSql(idtDateTime, QStringLiteral("'; drop table kala; --")), QStringLiteral("1 = 0"));
        QCOMPARE(SingleSql(idtDateTime, QStringLiteral("9999/99/99")), QString());
    }

    void numbersBoundARange_data()
    {
        QTest::addColumn<QVariant>("from");
        QTest::addColumn<QVariant>("to");
        QTest::addColumn<QString>("sql");
        const QVariant none;
        QTest::newRow("both") << QVariant(QStringLiteral("100")) << QVariant(QStringLiteral("0250"))
                              << "[F] >= 100 AND [F] <= 250";
        QTest::newRow("open above") << QVariant(QStringLiteral("100")) << QVariant(2147483647)
                                    << "[F] >= 100";
        QTest::newRow("open below") << QVariant(0) << QVariant(250.0) << "[F] <= 250";
        QTest::newRow("zero above") << QVariant(5.5) << QVariant(0.0) << "[F] >= 5.5";
        QTest::newRow("open") << QVariant(QStringLiteral("0")) << QVariant(2147483647) << "";
        QTest::newRow("empty") << QVariant(QString()) << none << "";
        QTest::newRow("equal") << QVariant(7) << QVariant(7) << "[F] >= 7 AND [F] <= 7";
        QTest::newRow("turned") << QVariant(9) << QVariant(7) << "[F] >= 9 AND [F] <= 7";
        QTest::newRow("no number below") << QVariant(QStringLiteral("x")) << QVariant(7) << "1 = 0";
        QTest::newRow("no number above") << QVariant(7) << QVariant(QStringLiteral("7'")) << "1 = 0";
    }
    void numbersBoundARange()
    {
        QFETCH(QVariant, from);
        QFETCH(QVariant, to);
        QTEST(RangeSql(TSearchType::stRangeDigit, from, to), "sql");
        QTEST(RangeSql(TSearchType::stRangeCost, from, to, idtMoney), "sql");
    }

    void zeroBoundsARangeWhereItIsNotIgnored()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("F"), idtMoney), -5, 0, TSearchType::stRangeCost);
        criterion.SetZeroValueIgnore(false);
        QCOMPARE(Sql(criterion), QStringLiteral("[F] >= -5 AND [F] <= 0"));
    }

    void datesBoundARange_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("sql");
        QTest::newRow("both") << "1403/01/01"
                              << "1403/12/29"
                              << "[F] >= N'1403/01/01' AND [F] <= N'1403/12/29'";
        QTest::newRow("all bounds open") << "0000/00/00"
                                         << "9999/99/99"
                                         << "";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
        QTest::newRow("open below") << "0000/00/00"
                                    << "2024/01/31"
                                    << "[F] <= N'2024/01/31'";
        QTest::newRow("open above") << "2024/01/31"
                                    << "9999/99/99"
                                    << "[F] >= N'2024/01/31'";
        QTest::newRow("Persian digits") << QStringLiteral("۱۴۰۳/۰۱/۰۱") << ""
                                        << "[F] >= N'1403/01/01'";
        QTest::newRow("quote") << "2024'--"
                               << ""
                               << "[F] >= N'2024''--'";
    }
    void datesBoundARange()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QTEST(RangeSql(TSearchType::stRangeDate, from, to), "sql");
    }

    void momentsBoundARange_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("sql");
        QTest::newRow("both") << "2024/01/02-00:00"
                              << "2024/01/31-23:59"
                              << "[F] >= N'2024-01-02T00:00:00' AND [F] < N'2024-02-01T00:00:00'";
        QTest::newRow("open below") << "0000/00/00-00:00"
                                    << "2024/01/31-12:00"
                                    << "[F] < N'2024-01-31T12:01:00'";
        QTest::newRow("open above") << "2024/01/31-12:00"
                                    << "9999/99/99-23:59"
                                    << "[F] >= N'2024-01-31T12:00:00'";
        QTest::newRow("times only") << "-00:00"
                                    << "-23:59"
                                    << "";
        QTest::newRow("days") << "2024/01/02"
                              << "2024/01/03"
                              << "[F] >= N'2024-01-02T00:00:00' AND [F] < N'2024-01-04T00:00:00'";
        QTest::newRow("no date") << "2024/01/02-00:00"
                                 << "2024/02/30-00:00"
                                 << "1 = 0";
    }
    void momentsBoundARange()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QTEST(RangeSql(TSearchType::stRangeDate, from, to, idtDateTime), "sql");
    }

    void textsBoundARange_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("sql");
        QTest::newRow("both") << "00012"
                              << "00120"
                              << "[F] >= N'00012' AND [F] <= N'00120'";
        QTest::newRow("open below") << ""
                                    << "00120"
                                    << "[F] <= N'00120'";
        QTest::newRow("open above") << "00012"
                                    << " "
                                    << "[F] >= N'00012'";
        QTest::newRow("open") << ""
                              << ""
                              << "";
        QTest::newRow("zeros are a code") << "00000"
                                          << ""
                                          << "[F] >= N'00000'";
        QTest::newRow("quotes") << "a'b"
                                << "'; drop table kala; --"
                                << "[F] >= N'a''b' AND [F] <= N'''; drop table kala; --'";
    }
    void textsBoundARange()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QTEST(RangeSql(TSearchType::stRangeString, from, to), "sql");
    }

    void aReversedConditionKeepsNull()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("k.Code"), idtDigit), 12);
        criterion.SetReverst(true);
        QCOMPARE(Sql(criterion), QStringLiteral("([k].[Code] IS NULL OR NOT ([k].[Code] = 12))"));
        Criteria::Fill(criterion, Item({}, QStringLiteral("F"), idtDigit), 1, 5, TSearchType::stRangeDigit);
        QCOMPARE(Sql(criterion), QStringLiteral("([F] IS NULL OR NOT ([F] >= 1 AND [F] <= 5))"));
        Criteria::Fill(criterion, Item({}, QStringLiteral("F"), idtString, QStringLiteral("S")),
                       QStringLiteral("x"));
        QCOMPARE(Sql(criterion), QStringLiteral("([F] IS NULL OR NOT ([S] LIKE N'%x%'))"));
        Criteria::Fill(criterion, Item({}, QStringLiteral("tags"), idtCodeList), 5);
        QCOMPARE(Sql(criterion), QStringLiteral("([tags] IS NULL OR NOT ([tags] LIKE '%,5,%'))"));
    }

    void whatMatchesNothingMatchesNothingReversedToo()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("F"), idtDigit), QStringLiteral("abc"));
        criterion.SetReverst(true);
        QCOMPARE(Sql(criterion), QStringLiteral("1 = 0"));
    }
};

QTEST_MAIN(SearchConditionTest)
#include "SearchConditionTest.moc"
