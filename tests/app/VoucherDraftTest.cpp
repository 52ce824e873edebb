#include "VoucherDraft.h"

#include <QTest>

namespace {

TVoucherLine Line(const QString& debit, const QString& credit)
{
    TVoucherLine line;
    line.Account = {102, 1, 3, 0};
    line.Debit = debit;
    line.Credit = credit;
    return line;
}

TAccountFacts Known()
{
    TAccountFacts facts;
    facts.TotalIsKnown = facts.HasAssistants = facts.AssistantIsKnown = true;
    facts.TakesDetail = facts.NeedsDetail = facts.DetailIsKnown = true;
    return facts;
}

TVoucherHead GoodHead()
{
    TVoucherHead head;
    head.FiscalYear = 1403;
    head.Date = QStringLiteral("1403/12/30");
    head.Title = QStringLiteral("سند");
    return head;
}

TFiscalYear Year(bool closed = false)
{
    return {1403, QStringLiteral("سال مالی 1403"), QStringLiteral("1403/01/01"), QStringLiteral("1403/12/30"),
            closed};
}

} // namespace

Q_DECLARE_METATYPE(TAccountCode)
Q_DECLARE_METATYPE(TAccountFacts)
Q_DECLARE_METATYPE(TVoucherHead)

class VoucherDraftTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void totalsAreExactToTheLastDigit()
    {
        TVoucherDraft draft;
        for (int i = 0; i < 1000; ++i)
            draft.Append(Line(QStringLiteral("922337203685477.58"), QStringLiteral("0")));
        draft.Append(Line(QStringLiteral("0.1"), QStringLiteral("0")));
        draft.Append(Line(QStringLiteral("0.2"), QStringLiteral("0")));
        draft.Append(Line(QStringLiteral("0"), QStringLiteral("0.3")));
        QCOMPARE(draft.DebitTotal().ToString(), QStringLiteral("922337203685477580.3"));
        QCOMPARE(draft.CreditTotal().ToString(), QStringLiteral("0.3"));
        QCOMPARE(draft.Balance().ToString(), QStringLiteral("922337203685477580"));
    }

    void aDifferenceOfTheLastDigitIsNoBalance()
    {
        TVoucherDraft draft;
        draft.Append(Line(QStringLiteral("123456789012345.67"), QStringLiteral("0")));
        draft.Append(Line(QStringLiteral("0"), QStringLiteral("123456789012345.66")));
        const auto fault = draft.CheckBalance();
        QVERIFY(fault.has_value());
        QCOMPARE(fault->Field, TVoucherField::Credit);
        QVERIFY2(fault->Message.contains(QStringLiteral("0.01")), qPrintable(fault->Message));
        draft.Replace(1, Line(QStringLiteral("0"), QStringLiteral("123456789012345.67")));
        QVERIFY(!draft.CheckBalance().has_value());
    }

    void aVoucherWithoutLinesIsRefused()
    {
        const auto fault = TVoucherDraft().CheckBalance();
        QVERIFY(fault.has_value());
        QCOMPARE(fault->Field, TVoucherField::Total);
    }

    void linesAreMovedAndChangesTakenBack()
    {
        TVoucherDraft draft;
        draft.Append(Line(QStringLiteral("1"), QStringLiteral("0")));
        draft.Append(Line(QStringLiteral("2"), QStringLiteral("0")));
        QVERIFY(!draft.Move(0, -1));
        QVERIFY(!draft.Move(1, 1));
        QVERIFY(draft.Move(0, 1));
        QCOMPARE(draft.Lines().constFirst().Debit, QStringLiteral("2"));
        draft.Remove(0);
        QCOMPARE(draft.Count(), 1);
        QVERIFY(draft.Undo());
        QCOMPARE(draft.Count(), 2);
        QVERIFY(draft.Undo());
        QCOMPARE(draft.Lines().constFirst().Debit, QStringLiteral("1"));
        QVERIFY(draft.Undo());
        QVERIFY(draft.Undo());
        QVERIFY(!draft.Undo());
        QCOMPARE(draft.Count(), 0);
    }

    void itIsChangedAsLongAsItDiffersFromWhatWasLoaded()
    {
        TVoucherDraft draft;
        TVoucherLine line = Line(QStringLiteral("5"), QStringLiteral("0"));
        draft.Load(GoodHead(), {line});
        QVERIFY(!draft.IsChanged());
        line.Debit = QStringLiteral("5.00");
        line.AccountName = QStringLiteral("نام");
        draft.Replace(0, line);
        QVERIFY(!draft.IsChanged());
        draft.Head.Title += u'.';
        QVERIFY(draft.IsChanged());
        draft.Head = draft.LoadedHead();
        draft.Remove(0);
        QVERIFY(draft.IsChanged());
        draft.Undo();
        QVERIFY(!draft.IsChanged());
    }

    void aLineIsCheckedLevelByLevel_data()
    {
        QTest::addColumn<TAccountCode>("account");
        QTest::addColumn<TAccountFacts>("facts");
        QTest::addColumn<int>("field");
        const auto row = [](const char* name, const TAccountCode& account, void (*change)(TAccountFacts&),
                            TVoucherField field) {
            TAccountFacts facts = Known();
            change(facts);
            QTest::newRow(name) << account << facts << static_cast<int>(field);
        };
        row(
            "no total", {}, [](TAccountFacts&) {}, TVoucherField::Total);
        row(
            "unknown total", {7, 1, 1, 0}, [](TAccountFacts& f) { f.TotalIsKnown = false; },
            TVoucherField::Total);
        row(
            "no assistant", {7, 0, 0, 0}, [](TAccountFacts&) {}, TVoucherField::Assistant);
        row(
            "unknown assistant", {7, 9, 1, 0}, [](TAccountFacts& f) { f.AssistantIsKnown = false; },
            TVoucherField::Assistant);
        row(
            "missing detail", {7, 1, 0, 0}, [](TAccountFacts&) {}, TVoucherField::Detail);
        row(
            "detail not taken", {7, 1, 4, 0}, [](TAccountFacts& f) { f.TakesDetail = f.NeedsDetail = false; },
            TVoucherField::Detail);
        row(
            "unknown detail", {7, 1, 4, 0}, [](TAccountFacts& f) { f.DetailIsKnown = false; },
            TVoucherField::Detail);
        row(
            "unknown center", {7, 1, 4, 5}, [](TAccountFacts&) {}, TVoucherField::ExpenseCenter);
    }

    void aLineIsCheckedLevelByLevel()
    {
        QFETCH(TAccountCode, account);
        QFETCH(TAccountFacts, facts);
        QFETCH(int, field);
        TVoucherLine line = Line(QStringLiteral("1"), QStringLiteral("0"));
        line.Account = account;
        const auto fault = TVoucherDraft::CheckLine(line, facts);
        QVERIFY(fault.has_value());
        QCOMPARE(static_cast<int>(fault->Field), field);
        QVERIFY(!fault->Message.isEmpty());
    }

    void amountsAreChecked_data()
    {
        QTest::addColumn<QString>("debit");
        QTest::addColumn<QString>("credit");
        QTest::addColumn<bool>("taken");
        const auto row = [](const char* name, const QString& debit, const QString& credit, bool taken) {
            QTest::newRow(name) << debit << credit << taken;
        };
        row("debit", QStringLiteral("1"), QStringLiteral("0"), true);
        row("smallest credit", QStringLiteral("0"), QStringLiteral("0.0001"), true);
        row("largest", QStringLiteral("922337203685477.5807"), QStringLiteral("0"), true);
        row("too large", QStringLiteral("922337203685477.5808"), QStringLiteral("0"), false);
        row("none", QStringLiteral("0"), QStringLiteral("0.00"), false);
        row("both", QStringLiteral("1"), QStringLiteral("1"), false);
        row("negative", QStringLiteral("-1"), QStringLiteral("0"), false);
        row("five decimals", QStringLiteral("0"), QStringLiteral("1.00001"), false);
    }

    void amountsAreChecked()
    {
        QFETCH(QString, debit);
        QFETCH(QString, credit);
        QFETCH(bool, taken);
        QCOMPARE(!TVoucherDraft::CheckLine(Line(debit, credit), Known()).has_value(), taken);
    }

    void theCurrencyIsChecked_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<int>("field");
        const auto row = [](const char* name, const char* rate, const char* amount, int field) {
            QTest::newRow(name) << QString::fromLatin1(rate) << QString::fromLatin1(amount) << field;
        };
        constexpr int taken = -1;
        row("taken", "480000.123456789", "12.5", taken);
        row("the largest rate", "9999999999.999999999", "1", taken);
        row("no rate", "0", "12.5", static_cast<int>(TVoucherField::Rate));
        row("a negative rate", "-1", "12.5", static_cast<int>(TVoucherField::Rate));
        row("a rate without room", "10000000000", "1", static_cast<int>(TVoucherField::Rate));
        row("an amount without room", "0.001", "922337203685477.5808",
            static_cast<int>(TVoucherField::Debit));
        row("an amount of five decimals", "1", "0.00001", static_cast<int>(TVoucherField::Debit));
    }

    void theCurrencyIsChecked()
    {
        QFETCH(const QString, rate);
        QFETCH(const QString, amount);
        QFETCH(const int, field);
        TVoucherLine line = Line(QStringLiteral("100"), QStringLiteral("0"));
        line.Currency = {2, rate, amount};
        const auto fault = TVoucherDraft::CheckLine(line, Known());
        QCOMPARE(fault ? static_cast<int>(fault->Field) : -1, field);
        line.Currency.Code = TLineCurrency::BaseCode;
        QVERIFY(!TVoucherDraft::CheckLine(line, Known()).has_value());
    }

    void theHeadIsChecked_data()
    {
        QTest::addColumn<TVoucherHead>("head");
        QTest::addColumn<int>("field");
        const auto row = [](const char* name, void (*change)(TVoucherHead&), TVoucherField field) {
            TVoucherHead head = GoodHead();
            change(head);
            QTest::newRow(name) << head << static_cast<int>(field);
        };
        row(
            "confirmed", [](TVoucherHead& h) { h.Confirmed = true; }, TVoucherField::Voucher);
        row(
            "no day", [](TVoucherHead& h) { h.Date = QStringLiteral("1403/13/01"); }, TVoucherField::Date);
        row(
            "empty date", [](TVoucherHead& h) { h.Date.clear(); }, TVoucherField::Date);
        row(
            "before the year", [](TVoucherHead& h) { h.Date = QStringLiteral("1402/12/29"); },
            TVoucherField::Date);
        row(
            "after the year", [](TVoucherHead& h) { h.Date = QStringLiteral("1404/01/01"); },
            TVoucherField::Date);
        row(
            "no title", [](TVoucherHead& h) { h.Title = QStringLiteral("  "); }, TVoucherField::Title);
        row(
            "long title", [](TVoucherHead& h) { h.Title.fill(u'x', 201); }, TVoucherField::Title);
    }

    void theHeadIsChecked()
    {
        QFETCH(TVoucherHead, head);
        QFETCH(int, field);
        const TFiscalYear year = Year();
        const auto fault = TVoucherDraft::CheckHead(head, &year, false);
        QVERIFY(fault.has_value());
        QCOMPARE(static_cast<int>(fault->Field), field);
    }

    void theYearMustBeThereAndOpen()
    {
        const TFiscalYear closed = Year(true);
        const TFiscalYear open = Year();
        QCOMPARE(TVoucherDraft::CheckHead(GoodHead(), nullptr, false)->Field, TVoucherField::FiscalYear);
        QCOMPARE(TVoucherDraft::CheckHead(GoodHead(), &closed, false)->Field, TVoucherField::FiscalYear);
        QVERIFY(!TVoucherDraft::CheckHead(GoodHead(), &open, false).has_value());
    }

    void datesAreCompleted_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("gregorian");
        QTest::addColumn<QString>("completed");
        const auto row = [](const QString& typed, bool gregorian, const QString& completed) {
            QTest::newRow(qPrintable(typed + (gregorian ? u'g' : u's'))) << typed << gregorian << completed;
        };
        row(QStringLiteral("1403/1/9"), false, QStringLiteral("1403/01/09"));
        row(QStringLiteral("14030109"), false, QStringLiteral("1403/01/09"));
        row(QStringLiteral("۱۴۰۳/۱۲/۳۰"), false, QStringLiteral("1403/12/30"));
        row(QStringLiteral("1404/12/30"), false, QString());
        row(QStringLiteral("1403/07/31"), false, QString());
        row(QStringLiteral("2024-02-29"), true, QStringLiteral("2024/02/29"));
        row(QStringLiteral("2023/02/29"), true, QString());
        row(QStringLiteral("1403/01"), false, QString());
        row(QStringLiteral("'; DROP TABLE Sanad; --"), false, QString());
        row(QString(), false, QString());
    }

    void datesAreCompleted()
    {
        QFETCH(QString, typed);
        QFETCH(bool, gregorian);
        QFETCH(QString, completed);
        QCOMPARE(CompletedDate(typed, gregorian), completed);
    }
};

QTEST_GUILESS_MAIN(VoucherDraftTest)
#include "VoucherDraftTest.moc"
