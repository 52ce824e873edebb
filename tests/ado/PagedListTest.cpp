#include "PagedList.h"
#include "PagedLoader.h"

#include <QTest>

namespace {

TPageStatements Statements()
{
    return {
        {{QStringLiteral("Code")}, QStringLiteral("t"), QStringLiteral("Code")}, {}, 0, Qt::AscendingOrder};
}

// Rows whose only field, the key, counts up from `first`.
TPageRows Rows(int first, int count)
{
    TPageRows rows{1, {}};
    for (int key = first; key < first + count; ++key)
        rows.Values.append(key);
    return rows;
}

// A list of pages of 10 rows, whose first pages have been read one after the other.
TPagedList ListWith(int pages)
{
    TPagedList list;
    list.Reset(10);
    for (int page = 0; page < pages; ++page)
        list.PutPage(page, list.Plan(page), Rows(page * 10, 10), Statements());
    return list;
}

} // namespace

class PagedListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCacheDropsThePageUnusedForTheLongestTime();
    void theCacheTakesANewVersionOfAPage();
    void boundariesThinOutInsteadOfGrowing();
    void knownRowsGrowWithThePages();
    void aShortPageEndsTheList();
    void anEmptyPageEndsTheListBeforeIt();
    void aPageIsReachedFromTheNearestPlaceBeforeIt();
    void aPageIsReachedBackwardsWhereThatIsNearer();
    void theLastPageIsReadFromTheEnd();
    void rowsOutsideTheListHaveNoValue();
    void theQueueServesTheNewestPageFirst();
    void theQueueForgetsPagesOutOfSight();
};

void PagedListTest::theCacheDropsThePageUnusedForTheLongestTime()
{
    TPageCache cache(3);
    for (int page = 0; page < 3; ++page)
        cache.Put(page, Rows(page, 1));
    QVERIFY(cache.Get(0));
    cache.Put(3, Rows(3, 1));
    QCOMPARE(cache.Size(), 3);
    QVERIFY(!cache.Contains(1));
    QVERIFY(cache.Contains(0) && cache.Contains(2) && cache.Contains(3));
}

void PagedListTest::theCacheTakesANewVersionOfAPage()
{
    TPageCache cache(2);
    cache.Put(5, Rows(1, 1));
    cache.Put(5, Rows(2, 1));
    QCOMPARE(cache.Size(), 1);
    QCOMPARE(cache.Get(5)->At(0, 0), QVariant(2));
    cache.Clear();
    QVERIFY(!cache.Get(5));
}

void PagedListTest::boundariesThinOutInsteadOfGrowing()
{
    TPageBoundaries boundaries(100);
    for (int page = 1; page <= 1000; ++page)
        boundaries.Put(page, {page, page});
    QVERIFY(boundaries.Places().size() <= 100);
    QVERIFY(boundaries.Places().size() >= 50);
    int previous = 0;
    for (const auto& [page, place] : boundaries.Places()) {
        QCOMPARE(place.Key, QVariant(page));
        QVERIFY(page - previous <= 16);
        previous = page;
    }
}

void PagedListTest::knownRowsGrowWithThePages()
{
    const TPagedList list = ListWith(3);
    QCOMPARE(list.Count(), 30);
    QVERIFY(!list.CountIsExact());
    QVERIFY(list.HasRow(29));
    QVERIFY(!list.HasRow(30));
}

void PagedListTest::aShortPageEndsTheList()
{
    TPagedList list = ListWith(2);
    list.PutPage(2, list.Plan(2), Rows(20, 4), Statements());
    QCOMPARE(list.Count(), 24);
    QVERIFY(list.CountIsExact());
    QCOMPARE(*list.Value(23, 0), QVariant(23));
}

void PagedListTest::anEmptyPageEndsTheListBeforeIt()
{
    TPagedList list = ListWith(2);
    list.PutPage(2, list.Plan(2), Rows(20, 0), Statements());
    QCOMPARE(list.Count(), 20);
    QVERIFY(list.CountIsExact());
}

void PagedListTest::aPageIsReachedFromTheNearestPlaceBeforeIt()
{
    TPagedList list = ListWith(3);
    list.SetCount(1000, true);
    const TPagePlan next = list.Plan(3);
    QCOMPARE(next.Start.From->Key, QVariant(29));
    QVERIFY(!next.Start.Backward && !next.Start.Inclusive);
    QCOMPARE(next.Skip, 0);
    QCOMPARE(next.Count, 10);
    QCOMPARE(list.Plan(5).Skip, 20);
    QVERIFY(!list.Plan(0).Start.From);
}

void PagedListTest::aPageIsReachedBackwardsWhereThatIsNearer()
{
    TPagedList list;
    list.Reset(10);
    list.SetCount(1000, true);
    TPageBoundaries boundaries;
    boundaries.Put(40, {399, 399});
    list.SetBoundaries(boundaries);
    const TPagePlan plan = list.Plan(38);
    QVERIFY(plan.Start.Backward && plan.Start.Inclusive);
    QCOMPARE(plan.Start.From->Key, QVariant(399));
    QCOMPARE(plan.Skip, 10);
    QCOMPARE(plan.Count, 10);
}

void PagedListTest::theLastPageIsReadFromTheEnd()
{
    TPagedList list = ListWith(1);
    list.SetCount(997, true);
    const TPagePlan last = list.Plan(99);
    QVERIFY(last.Start.Backward && !last.Start.From);
    QCOMPARE(last.Skip, 0);
    QCOMPARE(last.Count, 7);
    const TPagePlan before = list.Plan(98);
    QCOMPARE(before.Skip, 7);
    QCOMPARE(before.Count, 10);
}

void PagedListTest::rowsOutsideTheListHaveNoValue()
{
    TPagedList list = ListWith(1);
    QVERIFY(!list.Value(-1, 0));
    QVERIFY(!list.Value(10, 0));
    QVERIFY(!list.Value(0, 1));
    QVERIFY(list.Value(0, 0));
}

void PagedListTest::theQueueServesTheNewestPageFirst()
{
    TPageQueue queue(2);
    queue.Add(4);
    queue.Add(5);
    queue.Add(4);
    QCOMPARE(queue.TakeNewest(), 4);
    QCOMPARE(queue.TakeNewest(), 5);
    QVERIFY(queue.IsEmpty());
}

void PagedListTest::theQueueForgetsPagesOutOfSight()
{
    TPageQueue queue(2);
    for (int page = 0; page < 100; ++page)
        queue.Add(page);
    QCOMPARE(queue.TakeNewest(), 99);
    QCOMPARE(queue.TakeNewest(), 98);
    QCOMPARE(queue.TakeNewest(), 97);
    QVERIFY(queue.IsEmpty());
}

QTEST_GUILESS_MAIN(PagedListTest)
#include "PagedListTest.moc"
