#include "AccountTypes.h"
#include "CodeLocks.h"
#include "HostSettingsFile.h"
#include "UniqueCodeWorkers.h"

#include <QElapsedTimer>
#include <QSet>
#include <QTest>

namespace {

constexpr TSoftwarePart part = CodeLockPart(TFloatingAccountsType::fatCosts);

} // namespace

class UniqueCodeContentionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void manyUsersAtOnceGetDifferentNumbers()
    {
        constexpr int users = 20;
        constexpr int accounts = 50;
        const QSet<int> before = Numbers();
        std::vector<std::unique_ptr<TUniqueCodeWorker>> workers;
        for (int user = 1; user <= users; ++user)
            workers.push_back(
                std::make_unique<TUniqueCodeWorker>(QStringLiteral("create"), database_, user, accounts));
        QSet<int> shown;
        for (const auto& worker : workers) {
            const QVector<int> numbers = worker->FinishedNumbers();
            QCOMPARE(numbers.size(), accounts);
            for (const int number : numbers)
                shown.insert(number);
        }
        QCOMPARE(shown.size(), users * accounts);
        QVERIFY(!shown.contains(0));
        QCOMPARE(Numbers() - before, shown);
        QCOMPARE(Count(QStringLiteral("dbo.AccDetails WHERE Code >= 900000 AND [Type] = 4")),
                 users * accounts);
        QCOMPARE(Count(QStringLiteral("dbo.CodeLocks")), 0);
    }

    void theDatabaseRefusesASecondAccountOfANumber()
    {
        const auto insert = [this](int account, int number) {
            connection_->Execute(
                QStringLiteral(
                    "INSERT INTO dbo.AccDetails ([Type], Code, Name, UniqueCode) VALUES (4, ?, N'-', ?)"),
                {account, number});
        };
        insert(800001, 4800001);
        QVERIFY_THROWS_EXCEPTION(EADOError, insert(800002, 4800001));
        // Accounts without a number are many.
        insert(800003, 0);
        insert(800004, 0);
    }

    void theNumberOfAKilledProgramIsFreeAfterTheLifetimeAndNotBefore()
    {
        constexpr int lifetime = 2;
        TUniqueCodeWorker worker(QStringLiteral("hold"), database_, 1, lifetime);
        const int number = worker.HeldNumber();
        QVERIFY(number > 0);
        const QString code = QString::number(number);
        QVERIFY(!locks_.Take(code, part));
        // While it lives it is renewed.
        QTest::qWait(lifetime * 1000 + 300);
        QVERIFY(!locks_.Take(code, part));
        worker.Kill();
        const QDateTime end = LapseMoment(code);
        QVERIFY(!locks_.Take(code, part));
        QVERIFY(Proposal() != number);
        QTRY_VERIFY_WITH_TIMEOUT(!locks_.OtherHolder(code, part), 10000);
        QVERIFY(QDateTime::currentDateTimeUtc() >= end);
        QVERIFY(locks_.Take(code, part));
        QVERIFY(locks_.Release(code, part));
        QCOMPARE(Proposal(), number);
    }

    void theNumberOfAKilledProgramIsHeldToTheLastSecond()
    {
        TUniqueCodeWorker worker(QStringLiteral("hold"), database_, 1, 0);
        const QString code = QString::number(worker.HeldNumber());
        worker.Kill();
        TSharedDatabase::LetPass(*connection_, TCodeLocks::DefaultLifetime - 10);
        QVERIFY(!locks_.Take(code, part));
        QVERIFY(Proposal() != code.toInt());
        TSharedDatabase::LetPass(*connection_, 10);
        QVERIFY(locks_.Take(code, part));
        QVERIFY(locks_.Release(code, part));
    }

private:
    int Count(const QString& rows) const
    {
        return TSharedDatabase::Value(*connection_, QStringLiteral("SELECT COUNT(*) FROM ") + rows).toInt();
    }
    int Proposal() const
    {
        return TSharedDatabase::Value(*connection_, QStringLiteral("SELECT dbo.GetUinqueCode_FNC(4)"))
            .toInt();
    }
    QDateTime LapseMoment(const QString& code) const
    {
        const QString text =
            TSharedDatabase::Value(
                *connection_,
                QStringLiteral("SELECT ExpiresAt FROM dbo.CodeLocks WHERE Code = N'%1'").arg(code))
                .toString();
        return QDateTime::fromString(text + u'Z', Qt::ISODateWithMs);
    }
    QSet<int> Numbers() const
    {
        QSet<int> result;
        const auto rows =
            connection_->Run(QStringLiteral("SELECT UniqueCode FROM dbo.AccDetails WHERE UniqueCode <> 0"));
        while (rows->Next())
            result.insert(static_cast<int>(rows->Int64(0)));
        return result;
    }

    TSharedDatabase database_;
    std::unique_ptr<TADOConnection> connection_ = database_.Connect();
    THostSettings settings_{database_.File(QStringLiteral("settings.ini"))};
    TCodeLocks locks_{*connection_, settings_};
};

QTEST_GUILESS_MAIN(UniqueCodeContentionTest)
#include "UniqueCodeContentionTest.moc"
