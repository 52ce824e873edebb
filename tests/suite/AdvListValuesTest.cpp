#include "AdvListValues.h"
#include "AdvListMatches.h"

#include <memory>
#include <QTest>
#include <stdexcept>

namespace {

QString RowOf(const TAdvListValues& values)
{
    QString row;
    for (int index = 0; index < values.Count(); ++index)
        row += values[index].DisplayText;
    return row;
}

TAdvListValues Letters(const QString& letters)
{
    TAdvListValues values;
    for (const QChar letter : letters)
        values.AddPair(letter, QString::number(letter.unicode()));
    return values;
}

} // namespace

class AdvListValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsKeepTheirOrderAndFields();
    void theLastOfNoItemsIsEmpty();
    void indexesBeyondTheItemsThrow();
    void itemsAreFoundLetterForLetter();
    void aMovedItemStandsAtItsNewIndex_data();
    void aMovedItemStandsAtItsNewIndex();
    void everyChangeIsTold();
    void copiesHaveTheItemsAndNotTheObserver();
    void anObserverMayReplaceItself();
    void matchesFollowThePersianReader_data();
    void matchesFollowThePersianReader();
    void theSameLettersComeBeforeLettersThatReadAlike();
};

void AdvListValuesTest::itemsKeepTheirOrderAndFields()
{
    TAdvListValues values;
    QVERIFY(values.IsEmpty());
    values.AddPair(QStringLiteral("نان"), QStringLiteral("7"), 3);
    values.AddPair(QStringLiteral("آب"), QStringLiteral("8"));
    values.Insert(1, {QStringLiteral("نمک"), QStringLiteral("9"), 5});
    QCOMPARE(values.Count(), 3);
    QCOMPARE(values[0], (TAdvListValueItem{QStringLiteral("نان"), QStringLiteral("7"), 3}));
    QCOMPARE(values.GetItem(1), (TAdvListValueItem{QStringLiteral("نمک"), QStringLiteral("9"), 5}));
    QCOMPARE(values.Last(), (TAdvListValueItem{QStringLiteral("آب"), QStringLiteral("8"), -1}));
    values.SetImageIndex(0, 4);
    values.SetDisplayText(0, QStringLiteral("نان تازه"));
    values.SetValue(0, QStringLiteral("70"));
    QCOMPARE(values[0], (TAdvListValueItem{QStringLiteral("نان تازه"), QStringLiteral("70"), 4}));
}

void AdvListValuesTest::theLastOfNoItemsIsEmpty()
{
    QCOMPARE(TAdvListValues().Last(), TAdvListValueItem());
}

void AdvListValuesTest::indexesBeyondTheItemsThrow()
{
    TAdvListValues values = Letters(QStringLiteral("ab"));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.GetItem(-1));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values[2]);
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.Delete(2));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.DeleteRange(1, 3));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.Insert(3, TAdvListValueItem()));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.Move(0, 2));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, values.SetImageIndex(5, 0));
    QCOMPARE(RowOf(values), QStringLiteral("ab"));
}

void AdvListValuesTest::itemsAreFoundLetterForLetter()
{
    TAdvListValues values;
    values.AddPair(QStringLiteral("کالا"), QStringLiteral("5"));
    values.AddPair(QStringLiteral("كالا"), QStringLiteral("15"));
    values.AddPair(QStringLiteral("كالا"), QStringLiteral("5"));
    QCOMPARE(values.IndexOfText(QStringLiteral("كالا")), 1);
    QCOMPARE(values.IndexOfText(QStringLiteral("کال")), -1);
    QCOMPARE(values.IndexOfValue(QStringLiteral("15")), 1);
    QCOMPARE(values.IndexOfValue(QStringLiteral("1")), -1);
}

void AdvListValuesTest::aMovedItemStandsAtItsNewIndex_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("row");
    QTest::newRow("forward") << 0 << 2 << QStringLiteral("bcad");
    QTest::newRow("back") << 3 << 1 << QStringLiteral("adbc");
    QTest::newRow("nowhere") << 1 << 1 << QStringLiteral("abcd");
}

void AdvListValuesTest::aMovedItemStandsAtItsNewIndex()
{
    QFETCH(int, from);
    QFETCH(int, to);
    TAdvListValues values = Letters(QStringLiteral("abcd"));
    values.Move(from, to);
    QTEST(RowOf(values), "row");
}

void AdvListValuesTest::everyChangeIsTold()
{
    TAdvListValues values;
    QStringList told;
    values.SetObserver([&](TAdvListValues::TChange change, int index, int count) {
        told << QStringLiteral("%1 %2 %3").arg(static_cast<int>(change)).arg(index).arg(count);
    });
    values.AddPair(QStringLiteral("a"), {});
    values.Insert(0, {QStringLiteral("b"), {}, -1});
    values.SetValue(1, QStringLiteral("1"));
    values.Move(0, 1);
    values.Delete(0);
    values = Letters(QStringLiteral("xyz"));
    values.Clear();
    values.Clear();
    QCOMPARE(told, QStringList({QStringLiteral("0 0 1"), QStringLiteral("0 0 1"), QStringLiteral("2 1 1"),
                                QStringLiteral("2 0 2"), QStringLiteral("1 0 1"), QStringLiteral("1 0 1"),
                                QStringLiteral("0 0 3"), QStringLiteral("1 0 3")}));
}

void AdvListValuesTest::copiesHaveTheItemsAndNotTheObserver()
{
    TAdvListValues values = Letters(QStringLiteral("ab"));
    int told = 0;
    values.SetObserver([&](TAdvListValues::TChange, int, int) { ++told; });
    TAdvListValues copy = values;
    copy.Clear();
    QCOMPARE(told, 0);
    QCOMPARE(RowOf(values), QStringLiteral("ab"));
}

void AdvListValuesTest::anObserverMayReplaceItself()
{
    TAdvListValues values;
    auto token = std::make_shared<int>(1);
    values.SetObserver([&values, token](TAdvListValues::TChange, int, int) {
        values.SetObserver({});
        QCOMPARE(*token, 1);
    });
    token.reset();
    values.AddPair(QStringLiteral("a"), {});
    values.AddPair(QStringLiteral("b"), {});
    QCOMPARE(values.Count(), 2);
}

void AdvListValuesTest::matchesFollowThePersianReader_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("begins");
    QTest::addColumn<bool>("reads");
    QTest::newRow("same") << QStringLiteral("كيك ۱۲‌تایی") << true << true;
    QTest::newRow("Persian letters") << QStringLiteral("کیک ۱۲تایی") << true << true;
    QTest::newRow("ASCII digits") << QStringLiteral("کیک 12تایی") << true << true;
    QTest::newRow("kashida and marks") << QStringLiteral("\u200Fکیـــک") << true << false;
    QTest::newRow("outer blanks") << QStringLiteral("  کیک ") << true << false;
    QTest::newRow("inside") << QStringLiteral("یک") << false << false;
    QTest::newRow("longer") << QStringLiteral("کیک ۱۲تایی بزرگ") << false << false;
    QTest::newRow("nothing") << QString() << true << false;
}

void AdvListValuesTest::matchesFollowThePersianReader()
{
    QFETCH(QString, typed);
    TAdvListValues values;
    values.AddPair(QStringLiteral("كيك ۱۲‌تایی"), {});
    const TAdvListMatches matches(values);
    QTEST(!matches.BeginningWith(typed).isEmpty(), "begins");
    QTEST(matches.Reading(typed) == 0, "reads");
}

void AdvListValuesTest::theSameLettersComeBeforeLettersThatReadAlike()
{
    TAdvListValues values;
    values.AddPair(QStringLiteral("كيك"), {});
    values.AddPair(QStringLiteral("کیک"), {});
    TAdvListMatches matches(values);
    QCOMPARE(matches.Reading(QStringLiteral("کیک")), 1);
    QCOMPARE(matches.Reading(QStringLiteral("کيک")), 0);
    values.Clear();
    values.AddPair(QStringLiteral("نان"), {});
    values.AddPair(QStringLiteral("آب"), {});
    matches.Forget();
    QCOMPARE(matches.Reading(QStringLiteral("آب")), 1);
    QCOMPARE(matches.BeginningWith(QStringLiteral("ن")), QVector<int>({0}));
}

QTEST_GUILESS_MAIN(AdvListValuesTest)
#include "AdvListValuesTest.moc"
