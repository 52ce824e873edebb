#include "Lookups.h"
#include "ADOConnection.h"
#include "AdoError.h"
#include "DatabaseFile.h"
#include "EntityTables.h"
#include "ReferenceHost.h"

#include <QTemporaryDir>
#include <QTest>

class LookupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TDatabaseOptions options;
        options.Size = TSampleSize::Small();
        OpenDatabase(connection_, QStringLiteral("sqlite::memory:"), options);
        connection_.OnWillExecute = [this](TADOConnection*, const QString& text) {
            statements_.append(text);
        };
    }

    void init() { statements_.clear(); }

    void everyKindIsFoundInItsTable_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("fields");
        for (const TEntityTable& table : EntityTables::All())
            QTest::addRow("kind %d", table.EntityType) << table.LookupOption << table.Table << table.Fields;
    }

    void everyKindIsFoundInItsTable()
    {
        QFETCH(int, option);
        QFETCH(QString, table);
        QFETCH(QString, fields);
        QStringList columns{QStringLiteral("Code")};
        columns += fields.split(u';');
        const QVariantList last = LastRow(table, columns);
        const QVariant found =
            Find(last.constFirst().toString(), fields, static_cast<LocateDBsOptions>(option));
        QCOMPARE(found, columns.size() > 2 ? QVariant(last.mid(1)) : last.at(1));
        QVERIFY(!Find(QStringLiteral("2000000000"), fields, static_cast<LocateDBsOptions>(option)).isValid());
    }

    void theTextIsTakenAsItWasTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("found");
        QTest::newRow("plain") << "1" << true;
        QTest::newRow("completed") << "001" << true;
        QTest::newRow("many zeros") << QString(50, u'0') + u'1' << true;
        QTest::newRow("blanks around") << "  1 " << true;
        QTest::newRow("Persian digit") << QStringLiteral("۱") << true;
        QTest::newRow("Arabic-Indic digits") << QStringLiteral("٠٠١") << true;
        QTest::newRow("largest code") << "2147483647" << false;
    }

    void theTextIsTakenAsItWasTyped()
    {
        QFETCH(QString, typed);
        QFETCH(bool, found);
        QCOMPARE(Find(typed, QStringLiteral("Name"), LocateDBsOptions::ldGoods).isValid(), found);
        QCOMPARE(statements_.size(), 1);
    }

    void whatIsNoCodeAsksNothing_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed :
             {"", "   ", "0", "000", "-1", "+1", "1.5", "1,000", "1e3", "12a", "0x10", "1 2", "2147483648",
              "99999999999999999999999", "1; DROP TABLE dbo.kala", "1' OR '1'='1", "1--", "%"})
            QTest::newRow(typed) << QString::fromLatin1(typed);
        QTest::newRow("letters") << QStringLiteral("شیر");
        QTest::newRow("null character") << QStringLiteral("1") + QChar::Null;
        QTest::newRow("half a surrogate pair") << QString(QChar(0xD835));
        QTest::newRow("digits of another script") << QStringLiteral("१२");
    }

    void whatIsNoCodeAsksNothing()
    {
        QFETCH(QString, typed);
        for (const TEntityTable& table : EntityTables::All())
            QVERIFY(!Find(typed, table.Fields, static_cast<LocateDBsOptions>(table.LookupOption)).isValid());
        QCOMPARE(statements_, QStringList());
    }

    void aPersonThatIsSwitchedOffIsFoundUnlessActiveOnesAreWanted()
    {
        connection_.Execute(QStringLiteral("UPDATE dbo.Persons SET Active = 0 WHERE Code = 2"));
        const QString code = QStringLiteral("2");
        const QString name = QStringLiteral("FullName");
        QVERIFY(Find(code, name, LocateDBsOptions::ldPersonals).isValid());
        QVERIFY(!Find(code, name, LocateDBsOptions::ldPersonals, PerLocateOptions::plActive).isValid());
        QVERIFY(Find(code, name, LocateDBsOptions::ldAllPersonals, PerLocateOptions::plActive).isValid());
        QVERIFY(Find(QStringLiteral("1"), name, LocateDBsOptions::ldPersonals, PerLocateOptions::plActive)
                    .isValid());
        connection_.Execute(QStringLiteral("UPDATE dbo.Persons SET Active = 1 WHERE Code = 2"));
    }

    void anEmptyColumnOfARecordIsEmptyText()
    {
        connection_.Execute(QStringLiteral("UPDATE dbo.Persons SET City = NULL WHERE Code = 3"));
        const QVariant city =
            Find(QStringLiteral("3"), QStringLiteral("City"), LocateDBsOptions::ldPersonals);
        QVERIFY(city.isValid());
        QCOMPARE(city.toString(), QString());
    }

    void aFieldThatIsNoColumnIsAnError_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::newRow("no field") << "";
        QTest::newRow("trailing separator") << "Name;";
        QTest::newRow("a statement") << "Name FROM dbo.users --";
        QTest::newRow("unknown column") << "Nonsense";
    }

    void aFieldThatIsNoColumnIsAnError()
    {
        QFETCH(QString, fields);
        QVERIFY_THROWS_EXCEPTION(EADOError, Find(QStringLiteral("1"), fields, LocateDBsOptions::ldGoods));
    }

    void anOptionWithoutATableIsNamed()
    {
        try {
            Find(QStringLiteral("1"), QStringLiteral("Name"), LocateDBsOptions::ldReserved10);
            QFAIL("no error");
        } catch (const std::logic_error& error) {
            QVERIFY(QByteArray(error.what()).contains("10"));
        }
    }

    void theHostLooksUpInItsDatabase()
    {
        QTemporaryDir folder;
        THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
        const TReferenceHost host(connection_, settings);
        QVERIFY(Host()
                    .CommonLibrary
                    .LookupDBs(QStringLiteral("1"), QStringLiteral("Name"), LocateDBsOptions::ldGoods,
                               nullptr, PerLocateOptions::plAll)
                    .isValid());
    }

private:
    QVariant Find(const QString& code, const QString& fields, LocateDBsOptions option,
                  PerLocateOptions persons = PerLocateOptions::plAll)
    {
        return Lookups::Find(connection_, code, fields, option, persons);
    }

    QVariantList LastRow(const QString& table, const QStringList& columns)
    {
        const auto row = connection_.Run(QStringLiteral("SELECT TOP 1 %1 FROM %2 ORDER BY Code DESC")
                                             .arg(columns.join(QStringLiteral(", ")), table));
        QVariantList values;
        if (row->Next()) {
            for (int column = 0; column < columns.size(); ++column)
                values.append(row->Value(column));
        }
        return values;
    }

    TADOConnection connection_;
    QStringList statements_;
};

QTEST_MAIN(LookupsTest)
#include "LookupsTest.moc"
