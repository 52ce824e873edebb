#include "ReferenceHost.h"

#include <QTemporaryDir>
#include <QTest>

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

private:
    QTemporaryDir folder_;
};

QTEST_MAIN(ReferenceHostTest)
#include "ReferenceHostTest.moc"
