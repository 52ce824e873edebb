#include "AccountPickerUser.h"
#include "ChartFixture.h"
#include "HostTestMain.h"

namespace {

using TUser = TAccountPickerUser;
constexpr int PersonCount = 100'000;

TSampleSize ManyPersons()
{
    TSampleSize size = TSampleSize::Small();
    size.Persons = PersonCount;
    return size;
}

} // namespace

/// The pickers over a hundred thousand detail accounts.
class LargeChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chart_ = std::make_unique<TChartFixture>(ManyPersons()); }

    void theListIsWholeAndReadByPages()
    {
        chart_->Statements.clear();
        const int active = ActivePersons();
        QVERIFY(active > PersonCount / 2);
        int picked = 0;
        {
            const TUser user([&](TAccountPickerDialog& dialog) {
                TUser::WaitForDetails(dialog);
                QCOMPARE(dialog.Details().DataSet().RecordCount(), active);
                TUser::Press(Qt::Key_End, Qt::ControlModifier);
                QTRY_COMPARE(dialog.Details().DataSet().RecNo(), active);
                TUser::Press(Qt::Key_Return);
            });
            picked = Host()
                         .Pickers.Select_AccountCodes({}, QStringLiteral("104"), QStringLiteral("1"), {}, 2)
                         .Detail;
        }
        QCOMPARE(picked, LastPerson());
        QCoreApplication::processEvents();
        int pages = 0;
        for (const QString& statement : qAsConst(chart_->Statements)) {
            pages += statement.startsWith(QLatin1String("SELECT TOP")) ? 1 : 0;
            const bool readsNames = statement.contains(QLatin1String("Name")) &&
                                    statement.contains(QLatin1String("dbo.AccDetails "));
            QVERIFY2(!readsNames || statement.startsWith(QLatin1String("SELECT TOP")) ||
                         statement.contains(QLatin1String("1 = 0")),
                     qPrintable(statement));
        }
        QVERIFY(pages > 1);
    }

    void itOpensOnACodeFarDown()
    {
        const int code = LastPerson();
        int picked = 0;
        {
            const TUser user([&](TAccountPickerDialog& dialog) {
                QTRY_COMPARE(dialog.Details().CurrentCode(), code);
                QVERIFY(!dialog.Details().CurrentName().isEmpty());
                TUser::Press(Qt::Key_Return);
            });
            picked = Host().Pickers.Select_AccDetails1(104, 1, QString::number(code));
        }
        QCOMPARE(picked, code);
    }

    void enterBeforeTheRowsAreHerePicksTheCodeItOpenedOn()
    {
        const int code = LastPerson();
        const TUser user([](TAccountPickerDialog&) { TUser::Press(Qt::Key_Return); });
        QCOMPARE(Host().Pickers.Select_AccDetails1(104, 1, QString::number(code)), code);
    }

    void aCodeTypedInOneGoIsPicked()
    {
        const int code = LastPerson();
        const TUser user([&](TAccountPickerDialog&) {
            TUser::Type(QString::number(code));
            TUser::Press(Qt::Key_Return);
        });
        QCOMPARE(Host().Pickers.Select_AccDetails1(104, 1, {}), code);
    }

    void anArrowRightBehindTheTypingMovesInWhatWasTyped()
    {
        const QString digits = QString::number(LastPerson()).left(3);
        int second = 0;
        const TUser user([&](TAccountPickerDialog& dialog) {
            TUser::Type(digits);
            TUser::WaitForDetails(dialog);
            TUser::Press(Qt::Key_Home, Qt::ControlModifier);
            TUser::Press(Qt::Key_Down);
            QVERIFY(dialog.Details().DataSet().WaitForCurrentRow());
            second = dialog.Details().CurrentCode();
            QCOMPARE(dialog.Details().DataSet().RecNo(), 2);
            QVERIFY(QString::number(second).startsWith(digits));
            TUser::Press(Qt::Key_Return);
        });
        const int picked = Host().Pickers.Select_AccDetails1(104, 1, {});
        QCOMPARE(picked, second);
    }

private:
    int Number(const QString& statement) const { return chart_->Number(statement); }

    int ActivePersons() const
    {
        return Number(
            QStringLiteral("SELECT COUNT(*) AS n FROM dbo.AccDetails WHERE [Type] = 1 AND Active = 1"));
    }

    int LastPerson() const
    {
        return Number(
            QStringLiteral("SELECT MAX(Code) AS n FROM dbo.AccDetails WHERE [Type] = 1 AND Active = 1"));
    }

    std::unique_ptr<TChartFixture> chart_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<LargeChartTest>(argc, argv);
}
#include "LargeChartTest.moc"
