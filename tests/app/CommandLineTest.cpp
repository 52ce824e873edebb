#include "CommandLine.h"

#include <QTest>

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noArgumentsMeanTheSampleDatabase()
    {
        const TCommandLine line = ParseCommandLine({});
        QVERIFY(line.Database.isEmpty());
        QVERIFY(line.TourFolder.isEmpty());
        QVERIFY(!line.Help);
    }

    void optionsAreReadWithASpaceOrAnEqualsSign()
    {
        const TCommandLine line = ParseCommandLine(
            {QStringLiteral("--database"), QStringLiteral("odbc:DSN=shop;PWD=a=b"),
             QStringLiteral("--tour=/tmp/تصویرها"), QStringLiteral("--scheme"), QStringLiteral("dark"),
             QStringLiteral("--log-sql=log.sql"), QStringLiteral("--user"), QStringLiteral("علی")});
        QCOMPARE(line.Database, QStringLiteral("odbc:DSN=shop;PWD=a=b"));
        QCOMPARE(line.TourFolder, QStringLiteral("/tmp/تصویرها"));
        QCOMPARE(line.Scheme, QStringLiteral("dark"));
        QCOMPARE(line.LogFile, QStringLiteral("log.sql"));
        QCOMPARE(line.User, QStringLiteral("علی"));
    }

    void whatCannotBeUnderstoodIsNamedInPersian_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        QTest::newRow("unknown option") << QStringList{"--datbase", "sqlite:x"} << "--datbase";
        QTest::newRow("stray word") << QStringList{"shop.db"} << "shop.db";
        QTest::newRow("no value") << QStringList{"--tour"} << "--tour";
        QTest::newRow("empty value") << QStringList{"--tour="} << "--tour";
        QTest::newRow("no such engine") << QStringList{"--database", "oracle:x"} << "oracle:x";
        QTest::newRow("no file") << QStringList{"--database", "sqlite:"} << "sqlite:";
        QTest::newRow("no such scheme") << QStringList{"--scheme", "blue"} << "blue";
    }

    void whatCannotBeUnderstoodIsNamedInPersian()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        try {
            ParseCommandLine(arguments);
            QFAIL("accepted");
        } catch (const EUsageError& error) {
            QVERIFY2(error.Message().contains(named), qPrintable(error.Message()));
            QVERIFY(error.Message().endsWith(u'.'));
        }
    }

    void theHelpNamesEveryOption()
    {
        for (const char* option : {"--database", "--tour", "--scheme", "--log-sql", "--user", "--help"})
            QVERIFY2(CommandLineHelp().contains(QLatin1String(option)), option);
        QVERIFY(ParseCommandLine({QStringLiteral("-h")}).Help);
    }
};

QTEST_APPLESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
