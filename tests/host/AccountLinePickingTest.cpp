#include "AccountPickerUser.h"
#include "ChartFixture.h"
#include "HostTestMain.h"
#include "Select_AccountCode_UNT.h"
#include "SmartLabel_TRV.h"

namespace {

using TUser = TAccountPickerUser;
using TAct = std::function<void(TAccountPickerDialog&)>;

} // namespace

/// The input line for account codes over the real pickers and names.
class AccountLinePickingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { chart_ = std::make_unique<TChartFixture>(); }

    void init()
    {
        line_ = std::make_unique<TSelect_AccountCode>();
        line_->SetCodeItem({TCodeItem::ctTotal, TCodeItem::ctAssistant, TCodeItem::ctDetail});
        line_->init();
        line_->show();
        QVERIFY(QTest::qWaitForWindowExposed(line_.get()));
        line_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(line_.get()));
        QTest::qWait(50);
    }

    void cleanup() { line_.reset(); }

    void thePlusKeyPicksFromTheTotalBox()
    {
        PlusIn(line_->TotalCode_EDT, [](TAccountPickerDialog& dialog) {
            TUser::Type(QStringLiteral("104-2"));
            TUser::WaitForDetails(dialog);
            TUser::Press(Qt::Key_Left);
            TUser::Type(QStringLiteral("12"));
            TUser::Press(Qt::Key_Return);
        });
        QCOMPARE(Codes(), QStringLiteral("104-002-000012"));
        QVERIFY(line_->IsValid());
        QVERIFY(line_->Name_LBL->Caption().startsWith(
            QStringLiteral("حساب‌های دریافتنی تجاری - مشتریان خارجی - ")));
    }

    void thePickerOpensAtTheLevelOfTheBox()
    {
        line_->SetTotalCode(604);
        line_->SetAssistantCode(2);
        line_->SetDetailCode(3);
        PlusIn(line_->DetailCode_EDT, [](TAccountPickerDialog& dialog) {
            TUser::WaitForDetails(dialog);
            QCOMPARE(QApplication::focusWidget(), &dialog.Details().Grid());
            TUser::Press(Qt::Key_Down);
            TUser::Press(Qt::Key_Return);
        });
        QCOMPARE(Codes(), QStringLiteral("604-002-000004"));
        QVERIFY(line_->IsValid());
    }

    void cancellingLeavesTheLineAsItIs()
    {
        line_->SetTotalCode(104);
        line_->SetAssistantCode(1);
        line_->SetDetailCode(12);
        PlusIn(line_->TotalCode_EDT, [](TAccountPickerDialog&) { TUser::Press(Qt::Key_Escape); });
        QCOMPARE(Codes(), QStringLiteral("104-001-000012"));
    }

    void aUniqueCodeFillsItsEightDigits()
    {
        line_->SetTotalCode(108);
        PlusIn(line_->AssistantCode_EDT, [](TAccountPickerDialog& dialog) {
            TUser::WaitForDetails(dialog);
            TUser::Press(Qt::Key_Left);
            TUser::Type(QStringLiteral("1000012"));
            TUser::Press(Qt::Key_Return);
        });
        QCOMPARE(Codes(), QStringLiteral("108-001-01000012"));
        QVERIFY(line_->IsValid());
    }

    void eachLevelHasItsOwnPicker()
    {
        line_->SetSingleForm(true);
        line_->SetCodeItem({TCodeItem::ctTotal});
        line_->init();
        PlusIn(line_->TotalCode_EDT, [](TAccountPickerDialog&) {
            TUser::Type(QStringLiteral("سرمايه"));
            TUser::Press(Qt::Key_Return);
        });
        QCOMPARE(line_->GetTotalCode(), 501);
        QCOMPARE(line_->Name_LBL->Caption(), QStringLiteral("سرمایه"));
    }

private:
    void PlusIn(TSmartEdit_TRV* box, const TAct& act)
    {
        box->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), box);
        const TUser user(act);
        QTest::keyClicks(box, QStringLiteral("+"));
    }

    QString Codes() const
    {
        return QStringList{line_->TotalCode_EDT->Text(), line_->AssistantCode_EDT->Text(),
                           line_->DetailCode_EDT->Text()}
            .join(u'-');
    }

    std::unique_ptr<TChartFixture> chart_;
    std::unique_ptr<TSelect_AccountCode> line_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<AccountLinePickingTest>(argc, argv);
}
#include "AccountLinePickingTest.moc"
