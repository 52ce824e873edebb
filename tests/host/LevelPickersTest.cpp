#include "AccountPickerUser.h"
#include "ChartFixture.h"
#include "HostTestMain.h"

namespace {

using TUser = TAccountPickerUser;
using TAct = std::function<void(TAccountPickerDialog&)>;

void Choose(TAccountPickerDialog& dialog)
{
    if (dialog.Details().HasList())
        TUser::WaitForDetails(dialog);
    TUser::Press(Qt::Key_Return);
}

int PickTotal(const QString& groups, const QString& code, const TAct& act)
{
    const TUser user(act);
    return Host().Pickers.Select_AccTotals1(groups, code);
}

int PickAssistant(int total, const QString& code, const TAct& act)
{
    const TUser user(act);
    return Host().Pickers.Select_AccAssistants1(total, code);
}

int PickDetail(int total, int assistant, const QString& code, const TAct& act)
{
    const TUser user(act);
    return Host().Pickers.Select_AccDetails1(total, assistant, code);
}

const TAct escape = [](TAccountPickerDialog&) { TUser::Press(Qt::Key_Escape); };

} // namespace

/// The pickers of one level.
class LevelPickersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chart_ = std::make_unique<TChartFixture>(); }
    void init() { chart_->Statements.clear(); }

    void aTotalIsPicked()
    {
        QCOMPARE(PickTotal({}, {}, Choose), 101);
        QCOMPARE(PickTotal({}, QStringLiteral("602"), Choose), 602);
        QCOMPARE(PickTotal({}, QStringLiteral("0602"), Choose), 602);
        QCOMPARE(PickTotal(QStringLiteral("4"), QStringLiteral("101"), Choose), 601);
        QCOMPARE(PickTotal({}, QStringLiteral("602"), escape), 0);
        QCOMPARE(PickTotal({}, {},
                           [](TAccountPickerDialog& dialog) {
                               QVERIFY(!dialog.Details().isVisible());
                               TUser::Type(QStringLiteral("سرمايه"));
                               TUser::Press(Qt::Key_Left);
                               TUser::Press(Qt::Key_Return);
                           }),
                 501);
    }

    void totalsAskForNothingElse()
    {
        PickTotal(QStringLiteral("1,4"), {}, escape);
        QCOMPARE(chart_->Statements.size(), 2);
        QCOMPARE(
            chart_->Statements[0],
            QStringLiteral("SELECT g.Code AS GroupCode, g.Name AS GroupName, t.Code, t.Name, t.DetailType "
                           "FROM dbo.AccGroups AS g INNER JOIN dbo.AccTotals AS t ON t.GroupCode = g.Code "
                           "WHERE g.[Type] IN (1,4) ORDER BY g.Code, t.Code"));
        QCOMPARE(chart_->Statements[1], QStringLiteral("SELECT Code, Name FROM dbo.AccDetailTypes"));
    }

    void groupsThatAreNoNumbersAreRefusedBeforeAnyStatement()
    {
        for (const char* groups : {"1)", "1 OR 1=1", "x", "1,", "1;DROP TABLE dbo.AccTotals"}) {
            QVERIFY_THROWS_EXCEPTION(
                EADOError, Host().Pickers.Select_AccTotals1(QString::fromLatin1(groups), QString()));
        }
        QCOMPARE(chart_->Statements, QStringList());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void codesThatAreNoneBeginAtTheTop_data()
    {
        QTest::addColumn<QString>("code");
        for (const char* code : {"x", "1 OR 1=1", "' --", "-5", "0", "99999999999", "999"})
            QTest::newRow(code) << QString::fromLatin1(code);
    }

    void codesThatAreNoneBeginAtTheTop()
    {
        QFETCH(QString, code);
        QCOMPARE(PickTotal({}, code, Choose), 101);
        QCOMPARE(PickAssistant(105, code, Choose), 1);
        QCOMPARE(PickDetail(104, 1, code, Choose), 1);
        QVERIFY(!chart_->Statements.join(u'\n').contains(QLatin1String("1=1")));
    }

    void anAssistantIsPicked()
    {
        QCOMPARE(PickAssistant(105, {}, Choose), 1);
        QCOMPARE(PickAssistant(105, QStringLiteral("3"), Choose), 3);
        QCOMPARE(PickAssistant(105, QStringLiteral("3"), escape), 0);
        QCOMPARE(PickAssistant(105, {},
                               [](TAccountPickerDialog& dialog) {
                                   QAbstractItemModel& model = *dialog.Chart().View().model();
                                   QCOMPARE(model.rowCount(), 1);
                                   QCOMPARE(model.rowCount(model.index(0, 0)), 1);
                                   TUser::Type(QStringLiteral("واخواستی"));
                                   TUser::Press(Qt::Key_Return);
                               }),
                 3);
    }

    void theTotalAboveTheAssistantsIsNotPicked()
    {
        QCOMPARE(PickAssistant(105, {},
                               [](TAccountPickerDialog& dialog) {
                                   TUser::Press(Qt::Key_Right);
                                   TUser::Press(Qt::Key_Return);
                                   QVERIFY(dialog.isVisible());
                                   TUser::Press(Qt::Key_Escape);
                               }),
                 0);
    }

    void whatIsNotThereSaysWhy()
    {
        QString text;
        const auto keep = [&](TAccountPickerDialog& dialog) {
            QCOMPARE(dialog.Chart().View().model()->rowCount(), 0);
            text = dialog.Chart().View().EmptyText();
            TUser::Press(Qt::Key_Return);
            QVERIFY(dialog.isVisible());
        };
        QCOMPARE(PickAssistant(999, {}, keep), 0);
        QCOMPARE(text, QStringLiteral("حساب کل 999 معینی ندارد."));
        QCOMPARE(PickAssistant(0, {}, keep), 0);
        QCOMPARE(text, QStringLiteral("نخست حساب کل را برگزینید."));
        QCOMPARE(PickAssistant(-5, {}, keep), 0);
        QCOMPARE(PickTotal(QStringLiteral("77"), {}, keep), 0);
        QVERIFY(text.contains(QStringLiteral("گروه‌هایی")));
        const auto details = [&](TAccountPickerDialog& dialog) {
            QVERIFY(!dialog.Details().HasList());
            text = dialog.Details().Grid().EmptyText();
            TUser::Press(Qt::Key_Return);
            TUser::Press(Qt::Key_Right);
            QVERIFY(dialog.isVisible());
        };
        QCOMPARE(PickDetail(999, 1, {}, details), 0);
        QCOMPARE(text, QStringLiteral("حساب کل 999 وجود ندارد."));
        QCOMPARE(PickDetail(106, 1, {}, details), 0);
        QCOMPARE(text, QStringLiteral("این حساب تفصیلی ندارد."));
    }

    void aDetailIsPicked_data()
    {
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("assistant");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("condition");
        QTest::addColumn<int>("picked");
        QTest::newRow("first") << 104 << 1 << QString() << QStringLiteral("[Type] = 1 ") << 1;
        QTest::newRow("current") << 104 << 1 << QStringLiteral("000012") << QStringLiteral("[Type] = 1 ")
                                 << 12;
        QTest::newRow("without an assistant") << 104 << 0 << QString() << QStringLiteral("[Type] = 1 ") << 1;
        QTest::newRow("incomes") << 604 << 1 << QString() << QStringLiteral("[Type] = 3 ") << 1;
        QTest::newRow("incomes, no assistant") << 604 << 0 << QString() << QStringLiteral("[Type] = 3 ") << 1;
        QTest::newRow("costs") << 604 << 2 << QString() << QStringLiteral("[Type] = 4 ") << 1;
        QTest::newRow("unique") << 108 << 1 << QString() << QStringLiteral("UniqueCode > 0 ") << 1000001;
        QTest::newRow("unique, current")
            << 108 << 1 << QStringLiteral("01000012") << QStringLiteral("UniqueCode > 0 ") << 1000012;
    }

    void aDetailIsPicked()
    {
        QFETCH(int, total);
        QFETCH(int, assistant);
        QFETCH(QString, code);
        QFETCH(QString, condition);
        QTEST(PickDetail(total, assistant, code,
                         [&](TAccountPickerDialog& dialog) {
                             QVERIFY(!dialog.Chart().isVisible());
                             QVERIFY(dialog.Details().DataSet().Condition().startsWith(condition));
                             Choose(dialog);
                         }),
              "picked");
        QCOMPARE(PickDetail(total, assistant, code, escape), 0);
    }

    void theDetailPickerNamesTheAccountsAbove()
    {
        PickDetail(104, 2, {}, [](TAccountPickerDialog& dialog) {
            TUser::WaitForDetails(dialog);
            QVERIFY(dialog.PathText().contains(QStringLiteral("104-002-000001")));
            QVERIFY(dialog.PathText().contains(QStringLiteral("مشتریان خارجی")));
        });
    }

private:
    std::unique_ptr<TChartFixture> chart_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<LevelPickersTest>(argc, argv);
}
#include "LevelPickersTest.moc"
