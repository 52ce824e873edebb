#include "CodeLocks.h"

#include "AccountTypes.h"
#include "HostSettings.h"
#include "SharedDatabase.h"

#include <QSysInfo>
#include <QTest>

namespace {

constexpr TSoftwarePart part = CodeLockPart(TFloatingAccountsType::fatPersonals);
constexpr TSoftwarePart otherPart = CodeLockPart(TFloatingAccountsType::fatGoods);
const QString code = QStringLiteral("1000012");

class TSettings : public ISettings
{
public:
    explicit TSettings(int user, const QString& name) { user_ = {user, name}; }
    const TSettingRecord& SettingRecord() const override { return record_; }
    const TIniOptions& IniOptions() const override { return options_; }
    const TUserInfo& UserInfo() const override { return user_; }

private:
    TSettingRecord record_;
    TIniOptions options_;
    TUserInfo user_;
};

/// One run of the program.
struct TRun
{
    QStringList Statements;
    std::unique_ptr<TADOConnection> Connection;
    TSettings Settings;
    TCodeLocks Locks{*Connection, Settings};

    explicit TRun(const TSharedDatabase& database, int user = 1,
                  const QString& name = QStringLiteral("سارا رضایی"))
        : Connection(database.Connect()), Settings(user, name)
    {
        Connection->OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }

    void LetPass(int seconds) const { TSharedDatabase::LetPass(*Connection, seconds); }
    int Rows() const
    {
        return TSharedDatabase::Value(*Connection, QStringLiteral("SELECT COUNT(*) FROM dbo.CodeLocks"))
            .toInt();
    }
    void Run(const char* statement) const { Connection->Execute(QString::fromUtf8(statement)); }
};

} // namespace

class CodeLocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { database_.Connect()->Execute(QStringLiteral("DELETE FROM dbo.CodeLocks")); }

    void aCodeIsHeldByOneRunUntilItIsReleased()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(!first.Locks.OtherHolder(code, part));
        QVERIFY(second.Locks.OtherHolder(code, part));
        QVERIFY(!second.Locks.Take(code, part));
        QVERIFY(!second.Locks.Release(code, part));
        QVERIFY(first.Locks.Release(code, part));
        QVERIFY(!second.Locks.OtherHolder(code, part));
        QVERIFY(second.Locks.Take(code, part));
        QVERIFY(!first.Locks.Take(code, part));
    }

    void theSameUserInAnotherRunIsAnother()
    {
        TRun first(database_);
        TRun second(database_);
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(!second.Locks.Take(code, part));
    }

    void theHolderIsKnown()
    {
        TRun first(database_, 7, QStringLiteral("O'Neil «علی»"));
        TRun second(database_, 2);
        const QDateTime before = QDateTime::currentDateTimeUtc();
        QVERIFY(first.Locks.Take(code, part));
        const std::optional<TCodeHolder> holder = second.Locks.OtherHolder(code, part);
        QVERIFY(holder);
        QCOMPARE(holder->UserCode, 7);
        QCOMPARE(holder->UserName, QStringLiteral("O'Neil «علی»"));
        QCOMPARE(holder->Machine, QSysInfo::machineHostName());
        QVERIFY(qAbs(before.secsTo(holder->TakenAt)) < 5);
        QCOMPARE(
            TSharedDatabase::Value(*first.Connection, QStringLiteral("SELECT ProcessId FROM dbo.CodeLocks"))
                .toLongLong(),
            QCoreApplication::applicationPid());
    }

    void theLastRefusalIsRememberedOnce()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(!second.Locks.TakeLastRefusal());
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(!second.Locks.Take(code, part));
        QCOMPARE(second.Locks.TakeLastRefusal()->UserCode, 1);
        QVERIFY(!second.Locks.TakeLastRefusal());
        QVERIFY(!second.Locks.Take(code, part));
        QVERIFY(second.Locks.Take(QStringLiteral("5"), part));
        QVERIFY(!second.Locks.TakeLastRefusal());
    }

    void zerosInFrontMakeNoDifference()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(QStringLiteral("۰۰۰۱۲"), part));
        QVERIFY(!second.Locks.Take(QStringLiteral("12"), part));
        QVERIFY(second.Locks.Take(QStringLiteral("120"), part));
        QVERIFY(first.Locks.Release(QStringLiteral("12"), part));
        QVERIFY(second.Locks.Take(QStringLiteral(" 00000012"), part));
    }

    void partsAreApart()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(second.Locks.Take(code, otherPart));
        QVERIFY(!second.Locks.Take(code, part));
    }

    void anEmptyCodeAndZeroAreNobodys()
    {
        TRun first(database_);
        TRun second(database_, 2);
        for (const QString& nothing : {QString(), QStringLiteral("0"), QStringLiteral("00000000")}) {
            QVERIFY(first.Locks.Take(nothing, part));
            QVERIFY(second.Locks.Take(nothing, part));
            QVERIFY(!second.Locks.OtherHolder(nothing, part));
            QVERIFY(!first.Locks.Release(nothing, part));
        }
        QCOMPARE(first.Rows(), 0);
    }

    void aCodeTakenTwiceIsFreeAfterTwoReleases()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(first.Locks.Release(code, part));
        QVERIFY(!second.Locks.Take(code, part));
        QVERIFY(first.Locks.Release(code, part));
        QVERIFY(!first.Locks.Release(code, part));
        QVERIFY(second.Locks.Take(code, part));
    }

    void everythingIsReleasedWithTheRun()
    {
        TRun second(database_, 2);
        {
            TRun first(database_);
            QVERIFY(first.Locks.Take(code, part));
            QVERIFY(first.Locks.Take(code, otherPart));
            QVERIFY(second.Locks.Take(QStringLiteral("5"), part));
            QCOMPARE(second.Rows(), 3);
        }
        QCOMPARE(second.Rows(), 1);
        QVERIFY(second.Locks.Take(code, part));
    }

    void aHoldLapsesAfterItsLifetimeAndNotBefore()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(code, part));
        second.LetPass(TCodeLocks::DefaultLifetime - 5);
        QVERIFY(second.Locks.OtherHolder(code, part));
        QVERIFY(!second.Locks.Take(code, part));
        second.LetPass(6);
        QVERIFY(!second.Locks.OtherHolder(code, part));
        QVERIFY(second.Locks.Take(code, part));
        // The one who slept does not get it back, nor does his release harm the new holder.
        QVERIFY(!first.Locks.Renew(code, part));
        QVERIFY(!first.Locks.Take(code, part));
        QVERIFY(first.Locks.Release(code, part));
        QVERIFY(first.Locks.OtherHolder(code, part));
    }

    void aRenewalBeginsTheLifetimeAnew()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(!first.Locks.Renew(code, part));
        QVERIFY(first.Locks.Take(code, part));
        const QDateTime taken = second.Locks.OtherHolder(code, part)->TakenAt;
        second.LetPass(100);
        QVERIFY(first.Locks.Renew(code, part));
        second.LetPass(100);
        const std::optional<TCodeHolder> holder = second.Locks.OtherHolder(code, part);
        QVERIFY(holder);
        QCOMPARE(holder->TakenAt.secsTo(taken), 200);
    }

    void holdsAreRenewedByThemselves()
    {
        TRun first(database_);
        TRun second(database_, 2);
        first.Locks.SetLifetime(1);
        QVERIFY(first.Locks.Take(code, part));
        QTest::qWait(1600);
        QVERIFY(second.Locks.OtherHolder(code, part));
    }

    void aHoldThatLapsedUnnoticedIsTakenAgainWhereItIsFree()
    {
        TRun first(database_);
        TRun second(database_, 2);
        first.Locks.SetLifetime(1);
        QVERIFY(first.Locks.Take(code, part));
        second.Run("DELETE FROM dbo.CodeLocks");
        QTRY_VERIFY(second.Locks.OtherHolder(code, part));
    }

    void aRenewalThatFailsIsSilentAndTriedAgain()
    {
        TRun first(database_);
        first.Locks.SetLifetime(1);
        QVERIFY(first.Locks.Take(code, part));
        first.Connection->Close();
        QTest::qWait(500);
        first.Connection->Open();
        QTest::qWait(1000);
        TRun second(database_, 2);
        QVERIFY(second.Locks.OtherHolder(code, part));
    }

    void aReleaseThatFailsLetsTheHoldLapse()
    {
        TRun first(database_);
        TRun second(database_, 2);
        QVERIFY(first.Locks.Take(code, part));
        first.Connection->Close();
        QVERIFY_THROWS_EXCEPTION(EADOError, first.Locks.Release(code, part));
        first.Connection->Open();
        QVERIFY(!first.Locks.Renew(code, part));
        second.LetPass(TCodeLocks::DefaultLifetime + 1);
        QVERIFY(!second.Locks.OtherHolder(code, part));
        // The row it left is no obstacle to the same run either.
        QVERIFY(first.Locks.Take(code, part));
    }

    void aRowThatItsOwnRunForgotIsTakenOver()
    {
        TRun first(database_);
        QVERIFY(first.Locks.Take(code, part));
        first.Connection->Close();
        QVERIFY_THROWS_EXCEPTION(EADOError, first.Locks.Release(code, part));
        first.Connection->Open();
        QVERIFY(first.Locks.Take(code, part));
        QCOMPARE(first.Rows(), 1);
    }

    void theLifetimeHasBounds_data()
    {
        QTest::addColumn<int>("asked");
        QTest::addColumn<int>("given");
        QTest::newRow("none") << 0 << TCodeLocks::DefaultLifetime;
        QTest::newRow("negative") << -5 << TCodeLocks::DefaultLifetime;
        QTest::newRow("a minute") << 60 << 60;
        QTest::newRow("too long") << 2000000000 << TCodeLocks::LongestLifetime;
    }

    void theLifetimeHasBounds()
    {
        QFETCH(int, asked);
        QFETCH(int, given);
        TRun run(database_);
        run.Locks.SetLifetime(asked);
        QVERIFY(run.Locks.Take(code, part));
        const int seconds =
            TSharedDatabase::Value(
                *run.Connection,
                QStringLiteral("SELECT DATEDIFF(second, TakenAt, ExpiresAt) AS s FROM dbo.CodeLocks"))
                .toInt();
        // The two moments may stand on two sides of a second's border.
        QVERIFY2(qAbs(seconds - given) <= 1, qPrintable(QString::number(seconds)));
    }

    void aDatabaseWithoutTheTableIsAnError()
    {
        TADOConnection connection;
        connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        connection.Open();
        const TSettings settings(1, {});
        TCodeLocks locks(connection, settings);
        QVERIFY_THROWS_EXCEPTION(EADOError, locks.Take(code, part));
        QVERIFY_THROWS_EXCEPTION(EADOError, locks.OtherHolder(code, part));
    }

    void theStatementsAreTheseAndNoOthers()
    {
        TRun first(database_);
        TRun second(database_, 2);
        const QString insert = QStringLiteral(
            "INSERT INTO dbo.CodeLocks (SoftwarePart, Code, UserCode, UserName, Machine, ProcessId, OwnerId, "
            "TakenAt, ExpiresAt) VALUES (?, ?, ?, ?, ?, ?, ?, GETUTCDATE(), DATEADD(second, 120, GETUTCDATE()))");
        const QString select = QStringLiteral(
            "SELECT UserCode, UserName, Machine, TakenAt FROM dbo.CodeLocks WHERE SoftwarePart = ? AND Code = ? AND "
            "OwnerId <> ? AND ExpiresAt > GETUTCDATE()");
        const QString clear =
            QStringLiteral("DELETE FROM dbo.CodeLocks WHERE SoftwarePart = ? AND Code = ? AND (ExpiresAt <= "
                           "GETUTCDATE() OR OwnerId = ?)");
        const QString renew =
            QStringLiteral("UPDATE dbo.CodeLocks SET ExpiresAt = DATEADD(second, 120, "
                           "GETUTCDATE()) WHERE SoftwarePart = ? AND Code = ? AND OwnerId = ?");
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(first.Locks.Take(code, part));
        QVERIFY(first.Locks.Renew(code, part));
        QCOMPARE(first.Statements, (QStringList{insert, renew, renew}));
        QVERIFY(!second.Locks.Take(code, part));
        QCOMPARE(second.Statements, (QStringList{insert, select}));
        second.LetPass(200);
        second.Statements.clear();
        QVERIFY(second.Locks.Take(code, part));
        QCOMPARE(second.Statements, (QStringList{insert, select, clear, insert}));
        second.Statements.clear();
        QVERIFY(second.Locks.Release(code, part));
        second.Locks.ReleaseAll();
        QVERIFY(second.Locks.Take(code, part));
        second.Locks.ReleaseAll();
        QCOMPARE(
            second.Statements,
            (QStringList{QStringLiteral("DELETE FROM dbo.CodeLocks WHERE SoftwarePart = ? AND Code = ? AND "
                                        "OwnerId = ?"),
                         insert, QStringLiteral("DELETE FROM dbo.CodeLocks WHERE OwnerId = ?")}));
    }

private:
    TSharedDatabase database_;
};

QTEST_GUILESS_MAIN(CodeLocksTest)
#include "CodeLocksTest.moc"
