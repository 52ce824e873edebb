#include "EntityLists.h"
#include "ADOConnection.h"
#include "DatabaseFile.h"
#include "EntityTables.h"

#include <QTest>
#include <stdexcept>

class EntityListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TDatabaseOptions options;
        options.Size = TSampleSize::Small();
        OpenDatabase(connection_, QStringLiteral("sqlite::memory:"), options);
    }

    void everyKindHasItsList()
    {
        QSet<int> parts;
        for (const TEntityTable& table : EntityTables::All()) {
            const TEntityList& list = EntityLists::Of(static_cast<TSoftwarePart>(table.SoftwarePart));
            QCOMPARE(list.Table, table.Table);
            parts.insert(table.SoftwarePart);
        }
        QCOMPARE(EntityLists::All().size(), parts.size());
    }

    void aPartWithoutAListIsNamed()
    {
        try {
            EntityLists::Of(static_cast<TSoftwarePart>(4711));
            QFAIL("no error");
        } catch (const std::logic_error& error) {
            QVERIFY(QByteArray(error.what()).contains("4711"));
        }
    }

    void everyListShowsTheRowsOfItsTable_data() { AddLists(); }

    void everyListShowsTheRowsOfItsTable()
    {
        QFETCH(int, part);
        const TEntityList& list = EntityLists::Of(static_cast<TSoftwarePart>(part));
        TPagedDataSet rows;
        rows.SetConnection(&connection_);
        rows.SetSource(list.Source({}, true));
        rows.Open();
        QVERIFY(rows.WaitForFirstPage());
        QTRY_VERIFY(rows.CountIsExact());
        QVERIFY(rows.RecordCount() > 0);
        QCOMPARE(rows.RecordCount(), Count(list.Table));
        for (const TGridColumn& column : list.GridColumns())
            QVERIFY2(rows.FindField(column.FieldName) != nullptr, qPrintable(column.FieldName));
        QVERIFY(!rows.FieldByName(list.Columns.at(1).Field)->AsString().isEmpty());
    }

    void everySearchFieldAndOrderIsUnderstood_data() { AddLists(); }

    void everySearchFieldAndOrderIsUnderstood()
    {
        QFETCH(int, part);
        const TEntityList& list = EntityLists::Of(static_cast<TSoftwarePart>(part));
        const TPagedSource source = list.Source({}, false);
        for (const TSearchItem& item : list.SearchItems())
            connection_.Run(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE [%2] LIKE N'%x%'")
                                .arg(source.From, item.FiledName));
        for (const QString& field : source.Fields)
            connection_.Run(QStringLiteral("SELECT TOP 1 Code FROM %1 ORDER BY %2").arg(source.From, field));
    }

    void rowsThatAreSwitchedOffAreLeftOut_data()
    {
        QTest::addColumn<int>("part");
        for (const TEntityList& list : EntityLists::All()) {
            if (list.HasActive())
                QTest::addRow("part %d", static_cast<int>(list.Part)) << static_cast<int>(list.Part);
        }
    }

    void rowsThatAreSwitchedOffAreLeftOut()
    {
        QFETCH(int, part);
        const TEntityList& list = EntityLists::Of(static_cast<TSoftwarePart>(part));
        connection_.Execute(QStringLiteral("UPDATE %1 SET Active = 0 WHERE Code = (SELECT MIN(Code) FROM %1)")
                                .arg(list.Table));
        const int all = Count(list.Table);
        const int off = Count(list.Table + QStringLiteral(" WHERE Active = 0"));
        QVERIFY(off > 0);
        QCOMPARE(Rows(list, QString(), false), all - off);
        QCOMPARE(Rows(list, QString(), true), all);
        QCOMPARE(Rows(list, QStringLiteral("Active=0"), false), off);
        QCOMPARE(Rows(list, QStringLiteral("active=0,1"), false), all);
    }

    void parametersRestrictByWholeNumberColumns()
    {
        const TEntityList& goods = EntityLists::Of(TSoftwarePart::spGoods);
        const int third = Count(QStringLiteral("dbo.kala WHERE GroupCode = 3"));
        QVERIFY(third > 0);
        QCOMPARE(Rows(goods, QStringLiteral("GroupCode=3"), true), third);
        QCOMPARE(Rows(goods, QStringLiteral("groupcode = 3"), true), third);
        QCOMPARE(Rows(goods, QStringLiteral("GroupCode=3,4"), true),
                 third + Count(QStringLiteral("dbo.kala WHERE GroupCode = 4")));
        QCOMPARE(Rows(goods, QStringLiteral("GroupCode=3;GroupCode=4"), true), 0);
        QCOMPARE(Rows(goods, QStringLiteral("Code=5,6"), true), 2);
        QVERIFY(Rows(EntityLists::Of(TSoftwarePart::spExpenseCenters), QStringLiteral("Level1Code=1"), true) >
                0);
        QVERIFY(Rows(EntityLists::Of(TSoftwarePart::spBankAccounts), QStringLiteral("CurrCode=1"), true) > 0);
    }

    void aColumnThatTheListDoesNotKnowIsNamed_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<QString>("parameter");
        QTest::newRow("no such column") << 105 << "Grp=3";
        QTest::newRow("not a whole number") << 105 << "Price=3";
        QTest::newRow("of another kind") << 122 << "GroupCode=3";
        QTest::newRow("a kind that cannot be switched off") << 128 << "Active=1";
    }

    void aColumnThatTheListDoesNotKnowIsNamed()
    {
        QFETCH(int, part);
        QFETCH(QString, parameter);
        try {
            Rows(EntityLists::Of(static_cast<TSoftwarePart>(part)), parameter, false);
            QFAIL("no error");
        } catch (const std::invalid_argument& error) {
            QVERIFY(QByteArray(error.what()).contains(parameter.section(u'=', 0, 0).toLatin1()));
        }
    }

    void theStatementIsWhatTheServerTakes()
    {
        const TEntityList& stores = EntityLists::Of(TSoftwarePart::spStores);
        const TEntityArgument argument = TEntityArgument::Of(QStringLiteral("GroupCode=1,2"));
        QCOMPARE(
            stores.Source(argument.Restrictions, false).From,
            QStringLiteral("(SELECT e.Code AS Code, e.Name AS Name, t2.Name AS GroupName, "
                           "RIGHT(N'0000000000' + CAST(e.Code AS nvarchar(10)), 10) + N' ' + e.Name AS "
                           "SearchText FROM dbo.Stores AS e LEFT JOIN dbo.StoreGroups AS t2 ON t2.Code = "
                           "e.GroupCode WHERE e.Active = 1 AND e.GroupCode IN (1, 2)) AS entities"));
    }

private:
    static void AddLists()
    {
        QTest::addColumn<int>("part");
        for (const TEntityList& list : EntityLists::All())
            QTest::addRow("part %d", static_cast<int>(list.Part)) << static_cast<int>(list.Part);
    }

    int Count(const QString& from)
    {
        const auto row = connection_.Run(QStringLiteral("SELECT COUNT(*) FROM ") + from);
        return row->Next() ? static_cast<int>(row->Int64(0)) : -1;
    }

    int Rows(const TEntityList& list, const QString& parameters, bool all)
    {
        return Count(list.Source(TEntityArgument::Of(parameters).Restrictions, all).From);
    }

    TADOConnection connection_;
};

QTEST_GUILESS_MAIN(EntityListsTest)
#include "EntityListsTest.moc"
