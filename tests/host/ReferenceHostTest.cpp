#include "ReferenceHost.h"

#include "NotOffered.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

// The name of the service that the call reports as missing; empty where it did its work.
QByteArray MissingService(const std::function<void()>& call)
{
    try {
        call();
    } catch (const EServiceNotOffered& error) {
        return error.what();
    }
    return {};
}

} // namespace

class ReferenceHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostIsInstalledWhileItLives()
    {
        TADOConnection connection;
        THostSettings settings(folder_.filePath(QStringLiteral("settings.ini")));
        {
            TReferenceHost host(connection, settings);
            QVERIFY(HasHost());
            QCOMPARE(Host().DM.ADOConnection1(), &connection);
            QCOMPARE(Host().DM.SharedQuery()->Connection(), &connection);
            QCOMPARE(Host().DM.SharedCommand()->Connection(), &connection);
            QCOMPARE(&Host().Settings, static_cast<ISettings*>(&settings));
        }
        QVERIFY(!HasHost());
    }

    void bothUnitsCompleteCodesAlike()
    {
        TADOConnection connection;
        THostSettings settings(folder_.filePath(QStringLiteral("settings.ini")));
        const TReferenceHost host(connection, settings);
        QCOMPARE(Host().CommonLibrary.CompleteCode(QStringLiteral("۷"), 3), QStringLiteral("007"));
        QCOMPARE(Host().Accounting.CompleteCode(QStringLiteral("۷"), 3), QStringLiteral("007"));
        QCOMPARE(Host().CommonLibrary.FloatToStr_TRV(12.5L), QStringLiteral("12.5"));
    }

    void resettingADataSetKeepsTheRow()
    {
        TADOConnection connection;
        connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        connection.Open();
        connection.Execute(QStringLiteral("CREATE TABLE numbers (n int NOT NULL PRIMARY KEY)"));
        for (int i = 1; i <= 5; ++i)
            connection.Execute(QStringLiteral("INSERT INTO numbers (n) VALUES (?)"), {i});
        THostSettings settings(folder_.filePath(QStringLiteral("settings.ini")));
        TCodeLocks locks(connection, settings);
        THostCommonLibrary library(locks);
        TADOQuery query;
        query.SetConnection(&connection);
        query.SQL.SetText(QStringLiteral("SELECT n FROM numbers ORDER BY n"));
        library.ResetDataset(nullptr);
        library.ResetDataset(&query);
        QVERIFY(!query.Active());
        query.Open();
        query.SetRecNo(3);
        connection.Execute(QStringLiteral("INSERT INTO numbers (n) VALUES (6)"));
        library.ResetDataset(&query);
        QCOMPARE(query.RecordCount(), 6);
        QCOMPARE(query.RecNo(), 3);
    }

    void aServiceThatIsNotOfferedSaysItsName()
    {
        TADOConnection connection;
        THostSettings settings(folder_.filePath(QStringLiteral("settings.ini")));
        const TReferenceHost host(connection, settings);
        QVERIFY(MissingService([] { Host().Pickers.Call_insert_tags({}, 1); }).contains("Call_insert_tags"));
    }

private:
    QTemporaryDir folder_;
};

QTEST_MAIN(ReferenceHostTest)
#include "ReferenceHostTest.moc"
