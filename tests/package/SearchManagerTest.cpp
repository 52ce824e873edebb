#include "AdoError.h"
#include "ADOQuery.h"
#include "Criteria.h"
#include "PagedDataSet.h"
#include "TarvaSearchManager.h"
#include "TestCase.h"

#include <QSignalSpy>

using Criteria::Item;

namespace {

using enum TSearchDataType;

/// Two criteria over a small client cursor.
struct TList
{
    TADOConnection Connection;
    TADOQuery Rows;
    TTarvaSearch Name;
    TTarvaSearch Code;
    TTarvaSearchManager Manager;

    TList()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        Rows.SetConnection(&Connection);
        Rows.SQL.SetText(
            QStringLiteral("SELECT 1 AS Code, N'شیر' AS Name UNION ALL SELECT 2, N'پنیر' UNION ALL "
                           "SELECT 3, NULL"));
        Criteria::Fill(Name, Item(QStringLiteral("نام"), QStringLiteral("k.Name")), {});
        Criteria::Fill(Code, Item(QStringLiteral("کد"), QStringLiteral("k.Code"), idtDigit), {});
        Manager.Add(&Name);
        Manager.Add(&Code);
        Manager.Flush();
    }
};

} // namespace

class SearchManagerTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void conditionsOfAllCriteriaAreJoined()
    {
        TList list;
        QCOMPARE(list.Manager.Condition(), QString());
        QCOMPARE(list.Manager.ConditionInWords(), QString());
        list.Name.SearchItems.GetItem(0).FoldedName = QStringLiteral("SearchName");
        list.Name.SetValue1(QStringLiteral("شیر"));
        list.Code.SetValue1(12.0);
        list.Code.SetReverst(true);
        QCOMPARE(
            list.Manager.Condition(),
            QStringLiteral("[SearchName] LIKE N'%شیر%' AND ([k].[Code] IS NULL OR NOT ([k].[Code] = 12))"));
        QCOMPARE(list.Manager.ConditionInWords(), QStringLiteral("نام شامل «شیر» باشد و کد برابر ۱۲ نباشد"));
    }

    void aBurstOfChangesRebuildsOnce()
    {
        TList list;
        QSignalSpy rebuilt(&list.Manager, &TTarvaSearchManager::rebuilt);
        QSignalSpy changed(&list.Manager, &TTarvaSearchManager::conditionChanged);
        for (int value = 1; value <= 10; ++value) {
            list.Code.SetValue1(value);
            list.Code.SetReverst(value % 2 == 0);
        }
        QCOMPARE(rebuilt.count(), 0);
        QTRY_COMPARE(rebuilt.count(), 1);
        QCOMPARE(changed.count(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(rebuilt.count(), 1);
    }

    void readingBringsItUpToDateAtOnce()
    {
        TList list;
        list.Rows.Open();
        list.Manager.SetDataSet(&list.Rows);
        list.Code.SetValue1(2);
        QCOMPARE(list.Manager.DataSet()->RecordCount(), 1);
        list.Code.SetValue1(3);
        QCOMPARE(list.Manager.Condition(), QStringLiteral("[k].[Code] = 3"));
    }

    void theSameConditionIsAnnouncedOnce()
    {
        TList list;
        list.Code.SetValue1(2);
        list.Manager.Flush();
        QSignalSpy changed(&list.Manager, &TTarvaSearchManager::conditionChanged);
        list.Code.SetValue1(2.0);
        list.Manager.Flush();
        QCOMPARE(changed.count(), 0);
    }

    void aClientCursorIsFilteredByItsRowsAndTheStatementByItsText()
    {
        TList list;
        list.Rows.Open();
        list.Manager.SetDataSet(&list.Rows);
        list.Code.SearchItems.GetItem(0).FilterType = TSearchFilterType::iftQuery;
        QSignalSpy changed(&list.Manager, &TTarvaSearchManager::conditionChanged);
        list.Name.SetValue1(QStringLiteral("يـر"));
        list.Manager.Flush();
        QCOMPARE(list.Rows.RecordCount(), 2);
        QCOMPARE(changed.count(), 0);
        list.Code.SetValue1(1);
        list.Manager.Flush();
        QCOMPARE(list.Rows.RecordCount(), 2);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("[k].[Code] = 1"));
        QCOMPARE(list.Manager.Condition(TSearchFilterType::iftQuery), QStringLiteral("[k].[Code] = 1"));
        QVERIFY(list.Manager.Condition(TSearchFilterType::iftDataset).startsWith(QStringLiteral("REPLACE")));
        list.Name.SetActive(false);
        list.Manager.Flush();
        QCOMPARE(list.Rows.RecordCount(), 3);
    }

    void aReversedRowFilterKeepsNull()
    {
        TList list;
        list.Rows.Open();
        list.Manager.SetDataSet(&list.Rows);
        list.Name.SetValue1(QStringLiteral("شیر"));
        list.Name.SetReverst(true);
        list.Manager.Flush();
        QCOMPARE(list.Rows.RecordCount(), 2);
    }

    void aPagedListGetsTheWholeCondition()
    {
        TList list;
        TPagedDataSet paged;
        list.Manager.SetDataSet(&paged);
        list.Code.SearchItems.GetItem(0).FilterType = TSearchFilterType::iftQuery;
        list.Name.SearchItems.GetItem(0).FoldedName = QStringLiteral("S");
        list.Name.SetValue1(QStringLiteral("x"));
        list.Code.SetValue1(1);
        list.Manager.Flush();
        QCOMPARE(paged.Condition(), QStringLiteral("[S] LIKE N'%x%' AND [k].[Code] = 1"));
        QCOMPARE(list.Manager.DataSet(), &paged);
    }

    void aProcedureItemIsTheOwners()
    {
        TList list;
        list.Code.SearchItems.GetItem(0).ItemResult = TSearchItemResult::irProc;
        QList<TTarvaSearch*> called;
        list.Manager.SetSearchProc([&called](TTarvaSearch* criterion) { called.append(criterion); });
        list.Manager.Flush();
        called.clear();
        list.Code.SetValue1(5);
        QCOMPARE(list.Manager.Condition(), QString());
        QCOMPARE(called, QList<TTarvaSearch*>{&list.Code});
        QCOMPARE(list.Manager.ConditionInWords(), QStringLiteral("کد برابر ۵ باشد"));
        list.Code.SetActive(false);
        list.Manager.Flush();
        QCOMPARE(called.size(), 1);
    }

    void aDestroyedOrRemovedCriterionLeaves()
    {
        TList list;
        auto criterion = std::make_unique<TTarvaSearch>();
        Criteria::Fill(*criterion, Item({}, QStringLiteral("City")), QStringLiteral("قم"));
        list.Manager.Add(criterion.get());
        list.Code.SetValue1(1);
        QVERIFY(list.Manager.Condition().contains(QStringLiteral("[City]")));
        criterion.reset();
        QCOMPARE(list.Manager.Condition(), QStringLiteral("[k].[Code] = 1"));
        list.Manager.Remove(&list.Code);
        QCOMPARE(list.Manager.Condition(), QString());
    }

    void aCriterionAddedTwiceCountsOnce()
    {
        TList list;
        list.Manager.Add(&list.Code);
        list.Code.SetValue1(1);
        QCOMPARE(list.Manager.Condition(), QStringLiteral("[k].[Code] = 1"));
    }

    void aHandlerMayChangeCriteriaAndReadTheCondition()
    {
        TList list;
        QStringList seen;
        connect(&list.Manager, &TTarvaSearchManager::conditionChanged, &list.Manager,
                [&](const QString& condition) {
                    seen.append(condition);
                    list.Manager.Condition();
                    list.Code.SetValue1(7);
                });
        list.Code.SetValue1(1);
        QTRY_COMPARE(seen.size(), 2);
        QCOMPARE(seen, (QStringList{QStringLiteral("[k].[Code] = 1"), QStringLiteral("[k].[Code] = 7")}));
    }

    void theManagerMayBeDestroyedByItsHandlers()
    {
        TTarvaSearch criterion;
        Criteria::Fill(criterion, Item({}, QStringLiteral("Code"), idtDigit), 1);
        auto manager = std::make_unique<TTarvaSearchManager>();
        manager->Add(&criterion);
        connect(manager.get(), &TTarvaSearchManager::conditionChanged, &criterion, [&] { manager.reset(); });
        QTRY_VERIFY(!manager);
    }

    void aWrongFieldNameIsToldAndTheConditionStays()
    {
        TList list;
        list.Code.SetValue1(1);
        list.Manager.Flush();
        list.Name.SearchItems.GetItem(0).FiledName = QStringLiteral("Name; drop table kala");
        list.Name.SetValue1(QStringLiteral("x"));
        QVERIFY_THROWS_EXCEPTION(EADOError, list.Manager.Flush());
        QCOMPARE(list.Manager.Condition(), QStringLiteral("[k].[Code] = 1"));
    }
};

QTEST_MAIN(SearchManagerTest)
#include "SearchManagerTest.moc"
