#include "DetailUniqueCode_UNT.h"
#include "HostTestMain.h"
#include "ModalBox.h"
#include "PersianText.h"
#include "ReferenceHost.h"
#include "SmartEdit_TRV.h"
#include "UniqueCodeWorkers.h"

#include <QLineEdit>
#include <QSysInfo>
#include <QVBoxLayout>

namespace {

/// A user with the form of a detail account.
struct TUser
{
    std::unique_ptr<TADOConnection> Connection;
    THostSettings Settings;
    TReferenceHost Host{*Connection, Settings};
    QWidget Form;
    TDetailUniqueCode_FRME* Frame = nullptr;
    QLineEdit* Name = nullptr;

    explicit TUser(const TSharedDatabase& database)
        : Connection(database.Connect()), Settings(database.File(QStringLiteral("settings.ini")))
    {
        Settings.SetUserInfo({99, QStringLiteral("حسابدار")});
        auto* const layout = new QVBoxLayout(&Form);
        Frame = new TDetailUniqueCode_FRME(&Form);
        Frame->DetailType = TFloatingAccountsType::fatCosts;
        Name = new QLineEdit(&Form);
        layout->addWidget(Frame);
        layout->addWidget(Name);
        Form.show();
        Form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Form));
        Edit()->setFocus();
    }
    TSmartEdit_TRV* Edit() const { return Frame->UniqueCode_EDT; }
    void Retype(int number) const
    {
        for (qsizetype left = Edit()->Text().size(); left > 0; --left)
            QTest::keyClick(Edit(), Qt::Key_Backspace);
        QTest::keyClicks(Edit(), QString::number(number));
    }
};

} // namespace

class UniqueCodeInUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { database_.Connect()->Execute(QStringLiteral("DELETE FROM dbo.CodeLocks")); }

    void aNumberThatAnotherUserHoldsIsToldOnceAndReverts_data()
    {
        QTest::addColumn<bool>("leaves");
        QTest::newRow("by leaving the edit") << true;
        QTest::newRow("by a pause in typing") << false;
    }

    void aNumberThatAnotherUserHoldsIsToldOnceAndReverts()
    {
        QFETCH(bool, leaves);
        TUniqueCodeWorker other(QStringLiteral("hold"), database_, 5, 0);
        const int theirs = other.HeldNumber();
        TUser user(database_);
        user.Frame->InitUniqueCode();
        const int own = user.Frame->GetUniqueCodeValue();
        QCOMPARE(own, theirs + 1);
        ModalBox::TAnswer answer(ModalBox::Key(Qt::Key_Return));
        user.Retype(theirs);
        if (leaves)
            QTest::keyClick(user.Edit(), Qt::Key_Tab);
        QTRY_COMPARE(answer.Boxes(), 1);
        QTRY_COMPARE(user.Frame->GetUniqueCodeValue(), own);
        QCOMPARE(user.Edit()->Text().size(), 8);
        QTest::qWait(400);
        QCOMPARE(answer.Boxes(), 1);
        const QString told = answer.Texts.constFirst();
        for (const QString& part : {QStringLiteral("کد تفصیلی یکتا"), QStringLiteral("کاربر 5"),
                                    QSysInfo::machineHostName(), QStringLiteral("از ساعت ")})
            QVERIFY2(told.contains(part), qPrintable(told));
        QVERIFY(user.Frame->IsValidated());
    }

    void theOtherUsersNumberCanBeTypedOnceItIsReleased()
    {
        TUser user(database_);
        user.Frame->InitUniqueCode();
        const int first = user.Frame->GetUniqueCodeValue();
        TUniqueCodeWorker other(QStringLiteral("hold"), database_, 5, 0);
        QCOMPARE(other.HeldNumber(), first + 1);
        other.Kill();
        TSharedDatabase::LetPass(*user.Connection, TCodeLocks::DefaultLifetime + 1);
        user.Retype(first + 1);
        QTest::keyClick(user.Edit(), Qt::Key_Tab);
        QCOMPARE(user.Frame->GetUniqueCodeValue(), first + 1);
        // What the user gave up is free for the next one.
        TUniqueCodeWorker third(QStringLiteral("hold"), database_, 6, 0);
        QCOMPARE(third.HeldNumber(), first);
    }

    void twoFormsOfOneUserGetDifferentNumbersAndMayShareATypedOne()
    {
        TUser user(database_);
        TDetailUniqueCode_FRME second;
        second.DetailType = TFloatingAccountsType::fatCosts;
        user.Frame->InitUniqueCode();
        second.InitUniqueCode();
        const int number = second.GetUniqueCodeValue();
        QVERIFY(number != user.Frame->GetUniqueCodeValue());
        user.Retype(number);
        QTest::keyClick(user.Edit(), Qt::Key_Tab);
        QCOMPARE(user.Frame->GetUniqueCodeValue(), number);
        second.RemoveFromCodeLock();
        TUniqueCodeWorker other(QStringLiteral("hold"), database_, 5, 0);
        QVERIFY(other.HeldNumber() != number);
    }

private:
    TSharedDatabase database_;
};

int main(int argumentCount, char** arguments)
{
    return RunUnderHostApplication<UniqueCodeInUseTest>(argumentCount, arguments);
}

#include "UniqueCodeInUseTest.moc"
