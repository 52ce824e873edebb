#include "Criteria.h"
#include "SearchCondition.h"
#include "TestCase.h"

using Criteria::Item;

namespace {

using enum TSearchDataType;

bool Matches(TSearchDataType type, const QVariant& sought, const QVariant& value, bool reversed = false)
{
    TTarvaSearch criterion;
    Criteria::Fill(criterion, Item({}, QStringLiteral("F"), type), sought);
    criterion.SetReverst(reversed);
    return TSearchCondition::Of(criterion).value().Matches(value);
}

bool InRange(TSearchType shape, const QVariant& from, const QVariant& to, const QVariant& value,
             TSearchDataType type = idtString)
{
    TTarvaSearch criterion;
    Criteria::Fill(criterion, Item({}, QStringLiteral("F"), type), from, to, shape);
    return TSearchCondition::Of(criterion).value().Matches(value);
}

} // namespace

class SearchConditionMatchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsFoundAsAReaderFindsIt()
    {
        QVERIFY(Matches(idtString, QStringLiteral("کتابي"), QStringLiteral("دفتر كتــاب‌ی ۲")));
        QVERIFY(Matches(idtString, QStringLiteral("abc2"), QStringLiteral("xABC۲")));
        QVERIFY(!Matches(idtString, QStringLiteral("%"), QStringLiteral("abc")));
        QVERIFY(Matches(idtString, QStringLiteral("5"), QVariant(1503)));
    }

    void numbersMatchByValueInEveryType_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("int") << QVariant(12);
        QTest::newRow("64 bits") << QVariant(qint64(12));
        QTest::newRow("double") << QVariant(12.0);
        QTest::newRow("exact") << QVariant(QStringLiteral("12.0000"));
    }
    void numbersMatchByValueInEveryType()
    {
        QFETCH(QVariant, value);
        QVERIFY(Matches(idtMoney, QStringLiteral("12"), value));
        QVERIFY(!Matches(idtMoney, QStringLiteral("12"), value, true));
        QVERIFY(!Matches(idtMoney, QStringLiteral("13"), value));
        QVERIFY(InRange(TSearchType::stRangeCost, 9, 100, value));
        QVERIFY(!InRange(TSearchType::stRangeCost, 13, 100, value));
        QVERIFY(!InRange(TSearchType::stRangeCost, 9, 11.5, value));
    }

    void exactNumbersAreComparedToTheLastDigit()
    {
        QVERIFY(InRange(TSearchType::stRangeCost, QStringLiteral("9007199254740993"), {},
                        QStringLiteral("9007199254740993"), idtMoney));
        QVERIFY(!InRange(TSearchType::stRangeCost, QStringLiteral("9007199254740993"), {},
                         QStringLiteral("9007199254740992"), idtMoney));
    }

    void nullMatchesOnlyReversed()
    {
        for (const TSearchDataType type : {idtString, idtMoney, idtDigit, idtCodeList}) {
            QVERIFY(!Matches(type, 5, QVariant()));
            QVERIFY(Matches(type, 5, QVariant(), true));
        }
        QVERIFY(!Matches(idtDateTime, QStringLiteral("2024/01/02"), QVariant()));
        QVERIFY(Matches(idtDateTime, QStringLiteral("2024/01/02"), QVariant(), true));
    }

    void anEmptyTextIsNoNull()
    {
        QVERIFY(!Matches(idtString, QStringLiteral("x"), QStringLiteral("")));
        QVERIFY(Matches(idtString, QStringLiteral("x"), QStringLiteral(""), true));
    }

    void aCodeIsNotFoundInsideAnother()
    {
        QVERIFY(Matches(idtCodeList, 5, QStringLiteral(",3,5,12,")));
        QVERIFY(!Matches(idtCodeList, 5, QStringLiteral(",3,15,51,")));
        QVERIFY(Matches(idtCodeList, QStringLiteral(",3,9,"), QStringLiteral(",9,")));
    }

    void momentsKnowTheirMinuteAndTheirDay()
    {
        const QString minute = QStringLiteral("2024/01/02-10:30");
        QVERIFY(Matches(idtDateTime, minute, QStringLiteral("2024-01-02T10:30:00")));
        QVERIFY(Matches(idtDateTime, minute, QStringLiteral("2024-01-02T10:30:59.997")));
        QVERIFY(!Matches(idtDateTime, minute, QStringLiteral("2024-01-02T10:31:00")));
        QVERIFY(Matches(idtDateTime, QStringLiteral("2024/01/02"), QStringLiteral("2024-01-02")));
        QVERIFY(InRange(TSearchType::stRangeDate, QStringLiteral("2024/01/01-00:00"),
                        QStringLiteral("2024/01/31-23:59"), QStringLiteral("2024-01-31T23:59:30"),
                        idtDateTime));
        QVERIFY(!InRange(TSearchType::stRangeDate, QStringLiteral("2024/01/01-00:00"),
                         QStringLiteral("2024/01/31-23:59"), QStringLiteral("2024-02-01T00:00:00"),
                         idtDateTime));
    }

    void textsAreBoundedByTheirOrder()
    {
        QVERIFY(InRange(TSearchType::stRangeString, QStringLiteral("00010"), QStringLiteral("00020"),
                        QStringLiteral("00020")));
        QVERIFY(!InRange(TSearchType::stRangeString, QStringLiteral("00010"), QStringLiteral("00020"),
                         QStringLiteral("00021")));
        QVERIFY(InRange(TSearchType::stRangeDate, QStringLiteral("1403/01/01"), QStringLiteral("9999/99/99"),
                        QStringLiteral("1403/01/01")));
        QVERIFY(!InRange(TSearchType::stRangeDate, QStringLiteral("1403/01/01"), {},
                         QStringLiteral("1402/12/29")));
    }

    void whatIsRefusedMatchesNothing()
    {
        QVERIFY(!Matches(idtDigit, QStringLiteral("abc"), QVariant(1)));
        QVERIFY(!Matches(idtDigit, QStringLiteral("abc"), QVariant(1), true));
        QVERIFY(!Matches(idtDigit, QStringLiteral("abc"), QVariant(), true));
    }

    void aTextInANumberColumnIsNoNumber()
    {
        QVERIFY(!Matches(idtDigit, 12, QStringLiteral("twelve")));
        QVERIFY(!InRange(TSearchType::stRangeDigit, {}, 12, QStringLiteral("twelve")));
    }
};

QTEST_MAIN(SearchConditionMatchTest)
#include "SearchConditionMatchTest.moc"
