#include "AdoError.h"
#include "GoodsFile.h"

#include <map>
#include <mutex>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

namespace {

constexpr int rowCount = 10000;

QVariantList WalkForwards(TPagedDataSet& dataSet)
{
    QVariantList codes;
    for (dataSet.First(); !dataSet.Eof(); dataSet.Next()) {
        if (!dataSet.WaitForCurrentRow())
            return {};
        codes.append(dataSet.CurrentKey());
    }
    return codes;
}

QVariantList WalkBackwards(TPagedDataSet& dataSet)
{
    QVariantList codes;
    for (dataSet.Last(); !dataSet.Bof(); dataSet.Prior()) {
        if (!dataSet.WaitForCurrentRow())
            return {};
        codes.prepend(dataSet.CurrentKey());
    }
    return codes;
}

/// Makes dbo.Held(code) known, which returns its argument, but in the threads that do not begin with the
/// first code returns only when it is let go.
class TWalkHolder
{
public:
    explicit TWalkHolder(TADOConnection& connection)
    {
        connection.RegisterFunction(QStringLiteral("Held"), 1,
                                    [this](IFunctionContext&, const QVariantList& arguments) {
                                        if (Walks(arguments.first().toInt()))
                                            letGo_.acquire();
                                        return arguments.first();
                                    });
    }
    void LetGo() { letGo_.release(1000 * rowCount); }
    int Walkers() const { return walkers_; }

private:
    bool Walks(int code)
    {
        const std::lock_guard lock(mutex_);
        const auto [known, isNew] = walks_.emplace(QThread::currentThread(), code != 1);
        if (isNew && known->second)
            ++walkers_;
        return known->second;
    }

    std::mutex mutex_;
    std::map<QThread*, bool> walks_;
    std::atomic<int> walkers_ = 0;
    QSemaphore letGo_;
};

} // namespace

class PagedDataSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkingMeetsEveryRowInOrder_data();
    void walkingMeetsEveryRowInOrder();
    void everyRowIsReachedByAJump_data();
    void everyRowIsReachedByAJump();
    void rowsThatStandLateInTheOrderAreGathered();
    void openingShowsTheFirstPageBeforeTheCount();
    void theCountBecomesExact();
    void fieldsAreKnownAtOnce();
    void knownRowsGrowWhileTheLastOnesAreLookedAt();
    void theLastRowIsReachedOnceTheCountIsThere();
    void aListWithoutRowsIsEmpty();
    void isEmptyWaitsForTheNewCondition_data();
    void isEmptyWaitsForTheNewCondition();
    void aClosedListIsEmpty();
    void openingRefusesATableThatIsNotThere();
    void openingStandsOnTheWantedRow_data();
    void openingStandsOnTheWantedRow();
    void orderingRefusesAFieldThatIsNotRead();
    void scrollingFastReadsOnlyWhatIsInSight();
    void memoryStaysBoundedWhileWalking();

private:
    TGoodsFile goods_{rowCount};
};

void PagedDataSetTest::walkingMeetsEveryRowInOrder_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("rawOrder");

    const auto up = Qt::AscendingOrder;
    const auto down = Qt::DescendingOrder;
    const QString none;
    QTest::newRow("key") << "Code" << up << none << "Code";
    QTest::newRow("key, descending") << "Code" << down << none << "Code DESC";
    QTest::newRow("text with duplicates and without values") << "Name" << up << none << "Name, Code";
    QTest::newRow("text, descending") << "Name" << down << none << "Name DESC, Code DESC";
    QTest::newRow("money") << "Price" << up << none << "Price, Code";
    QTest::newRow("money, descending") << "Price" << down << none << "Price DESC, Code DESC";
    QTest::newRow("one value in all rows") << "Active" << up << none << "Active, Code";
    QTest::newRow("with a condition") << "Name" << down << "Price > 50 OR Name IS NULL"
                                      << "Name DESC, Code DESC";
    QTest::newRow("only rows without a value") << "Name" << up << "Name IS NULL"
                                               << "Name, Code";
    QTest::newRow("fewer rows than a page") << "Name" << up << "Code <= 5"
                                            << "Name, Code";
    QTest::newRow("few rows of another order") << "Name" << up << "Price = 50.5 OR Price = 51.5"
                                               << "Name, Code";
    QTest::newRow("exactly two pages") << "Code" << up << "Code <= 194"
                                       << "Code";
}

void PagedDataSetTest::walkingMeetsEveryRowInOrder()
{
    QFETCH(const QString, field);
    QFETCH(const Qt::SortOrder, order);
    QFETCH(const QString, condition);
    QFETCH(const QString, rawOrder);
    const QVariantList expected = goods_.Codes(condition, rawOrder);
    QVERIFY(!expected.isEmpty());

    const auto dataSet = goods_.DataSet(97);
    dataSet->SetCondition(condition);
    dataSet->SetOrder(field, order);
    dataSet->Open();
    QVERIFY(dataSet->WaitForFirstPage());
    QCOMPARE(WalkForwards(*dataSet), expected);
    QTRY_VERIFY(!dataSet->Busy());
    QVERIFY(dataSet->CountIsExact());
    QCOMPARE(dataSet->RecordCount(), static_cast<int>(expected.size()));
    QCOMPARE(WalkBackwards(*dataSet), expected);
}

void PagedDataSetTest::everyRowIsReachedByAJump_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QString>("rawOrder");
    QTest::newRow("key") << "Code" << Qt::AscendingOrder << "Code";
    QTest::newRow("text") << "Name" << Qt::AscendingOrder << "Name, Code";
    QTest::newRow("text, descending") << "Name" << Qt::DescendingOrder << "Name DESC, Code DESC";
}

void PagedDataSetTest::everyRowIsReachedByAJump()
{
    QFETCH(const QString, field);
    QFETCH(const Qt::SortOrder, order);
    QFETCH(const QString, rawOrder);
    const QVariantList expected = goods_.Codes({}, rawOrder);
    const auto dataSet = goods_.DataSet();
    dataSet->SetOrder(field, order);
    dataSet->Open();
    QTRY_VERIFY(dataSet->CountIsExact());
    for (int jump = 0; jump < 300; ++jump) {
        const int row = jump * 6151 % rowCount;
        dataSet->SetRecNo(row + 1);
        QVERIFY(dataSet->WaitForCurrentRow());
        QCOMPARE(dataSet->CurrentKey(), expected[row]);
        QCOMPARE(dataSet->RecNo(), row + 1);
    }
}

void PagedDataSetTest::rowsThatStandLateInTheOrderAreGathered()
{
    goods_.Connection.Execute(QStringLiteral("CREATE INDEX IX_Name ON dbo.kala (Name, Code)"));
    const QVariantList expected = goods_.Codes(QStringLiteral("Code > 100"), QStringLiteral("Name, Code"));
    TWalkHolder holder(goods_.Connection);
    const auto dataSet = goods_.DataSet();
    const QScopeGuard letGo([&holder] { holder.LetGo(); });
    dataSet->SetOrder(QStringLiteral("Name"), Qt::AscendingOrder);
    // The price keeps the index from answering the scan.
    dataSet->SetCondition(QStringLiteral("dbo.Held(Code) > 100 AND Price > -1000"));
    dataSet->Open();
    QVERIFY(dataSet->WaitForFirstPage());
    QCOMPARE(holder.Walkers(), 1);
    for (int row = 0; row < 100; ++row)
        QCOMPARE(dataSet->ValueAt(row, 0), expected[row]);
    holder.LetGo();
    QTRY_VERIFY(!dataSet->Busy());
    QCOMPARE(dataSet->RecordCount(), static_cast<int>(expected.size()));
    QCOMPARE(WalkForwards(*dataSet), expected);
    goods_.Connection.Execute(QStringLiteral("DROP INDEX IX_Name ON dbo.kala"));
}

void PagedDataSetTest::openingShowsTheFirstPageBeforeTheCount()
{
    const auto dataSet = goods_.DataSet();
    dataSet->Open();
    QVERIFY(dataSet->Active());
    QVERIFY(dataSet->Busy());
    QVERIFY(dataSet->WaitForFirstPage());
    QCOMPARE(dataSet->RecordCount(), 100);
    QVERIFY(!dataSet->CountIsExact());
    QCOMPARE(dataSet->RecNo(), 1);
    QCOMPARE(dataSet->CurrentKey(), QVariant(1));
    QCOMPARE(dataSet->ValueAt(99, 0), QVariant(100));
}

void PagedDataSetTest::theCountBecomesExact()
{
    const auto dataSet = goods_.DataSet();
    QSignalSpy counted(dataSet.get(), &TPagedDataSet::countChanged);
    QSignalSpy busy(dataSet.get(), &TPagedDataSet::busyChanged);
    dataSet->Open();
    QTRY_VERIFY(!dataSet->Busy());
    QCOMPARE(dataSet->RecordCount(), rowCount);
    QVERIFY(dataSet->CountIsExact());
    QCOMPARE(counted.last(), (QVariantList{rowCount, true}));
    QCOMPARE(busy.size(), 2);
}

void PagedDataSetTest::fieldsAreKnownAtOnce()
{
    const auto dataSet = goods_.DataSet();
    dataSet->Open();
    QCOMPARE(dataSet->FieldCount(), 4);
    QCOMPARE(dataSet->FieldByName(QStringLiteral("price"))->DataType(), TFieldType::ftBCD);
    QCOMPARE(dataSet->Field(1)->FieldName(), QStringLiteral("Name"));
    QVERIFY(!dataSet->FindField(QStringLiteral("Stock")));
    QVERIFY(!dataSet->Field(4));
}

void PagedDataSetTest::knownRowsGrowWhileTheLastOnesAreLookedAt()
{
    goods_.RegisterTick();
    const auto dataSet = goods_.DataSet();
    // Counting these takes ten seconds, a page a tenth of one.
    dataSet->SetCondition(QStringLiteral("dbo.Tick(Code) > 0"));
    dataSet->Open();
    QVERIFY(dataSet->WaitForFirstPage());
    QCOMPARE(dataSet->RecordCount(), 100);
    QSignalSpy arrived(dataSet.get(), &TPagedDataSet::rowsArrived);
    dataSet->ValueAt(99, 0);
    QVERIFY(arrived.wait());
    QCOMPARE(arrived.first(), (QVariantList{100, 199}));
    QCOMPARE(dataSet->RecordCount(), 200);
    QVERIFY(!dataSet->CountIsExact());
}

void PagedDataSetTest::theLastRowIsReachedOnceTheCountIsThere()
{
    const auto dataSet = goods_.DataSet();
    dataSet->Open();
    QVERIFY(dataSet->WaitForFirstPage());
    dataSet->Last();
    QCOMPARE(dataSet->RecNo(), 100);
    QTRY_COMPARE(dataSet->RecNo(), rowCount);
    QVERIFY(dataSet->WaitForCurrentRow());
    QCOMPARE(dataSet->CurrentKey(), QVariant(rowCount));
}

void PagedDataSetTest::aListWithoutRowsIsEmpty()
{
    const auto dataSet = goods_.DataSet();
    dataSet->SetCondition(QStringLiteral("Code < 0"));
    dataSet->Open();
    QVERIFY(dataSet->IsEmpty());
    QVERIFY(dataSet->CountIsExact());
    QVERIFY(dataSet->Bof() && dataSet->Eof());
    QCOMPARE(dataSet->RecNo(), 0);
    QVERIFY(!dataSet->CurrentKey().isValid());
    dataSet->First();
    dataSet->Next();
    dataSet->Prior();
    dataSet->Last();
    dataSet->SetRecNo(5);
    QCOMPARE(dataSet->RecNo(), 0);
    QVERIFY(!dataSet->Busy());
}

void PagedDataSetTest::isEmptyWaitsForTheNewCondition_data()
{
    QTest::addColumn<QString>("orderField");
    QTest::newRow("by key") << "Code";
    QTest::newRow("by another field") << "Name";
}

void PagedDataSetTest::isEmptyWaitsForTheNewCondition()
{
    QFETCH(const QString, orderField);
    const auto dataSet = goods_.DataSet();
    dataSet->Open();
    dataSet->SetOrder(orderField, Qt::AscendingOrder);
    QVERIFY(!dataSet->IsEmpty());
    dataSet->SetCondition(QStringLiteral("Code < 0"));
    QVERIFY(dataSet->IsEmpty());
    QVERIFY(dataSet->CountIsExact());
    dataSet->SetCondition(QStringLiteral("Code = 77"));
    QVERIFY(!dataSet->IsEmpty());
    QCOMPARE(dataSet->RecordCount(), 1);
    QCOMPARE(dataSet->CurrentKey(), QVariant(77));
}

void PagedDataSetTest::aClosedListIsEmpty()
{
    const auto dataSet = goods_.DataSet();
    QVERIFY(dataSet->IsEmpty());
    dataSet->Open();
    QVERIFY(!dataSet->IsEmpty());
    QSignalSpy changed(dataSet.get(), &TDataSet::dataChanged);
    dataSet->Close();
    QCOMPARE(changed.size(), 1);
    QVERIFY(!dataSet->Active());
    QVERIFY(dataSet->IsEmpty());
    QVERIFY(!dataSet->ValueAt(0, 0).isValid());
    dataSet->Open();
    QVERIFY(!dataSet->IsEmpty());
}

void PagedDataSetTest::openingRefusesATableThatIsNotThere()
{
    const auto dataSet = goods_.DataSet();
    TPagedSource source = TGoodsFile::Source();
    source.From = QStringLiteral("dbo.nothing");
    dataSet->SetSource(source);
    QVERIFY_THROWS_EXCEPTION(EADOError, dataSet->Open());
    QVERIFY(!dataSet->Active());
}

void PagedDataSetTest::openingStandsOnTheWantedRow_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("rawOrder");
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<bool>("isThere");
    for (const char* field : {"Code", "Name"}) {
        const QString order =
            field == QLatin1String("Code") ? QStringLiteral("Code") : QStringLiteral("Name, Code");
        QTest::addRow("%s, on the first page", field) << field << order << QVariant(7) << true;
        QTest::addRow("%s, far behind", field) << field << order << QVariant(rowCount - 3) << true;
        QTest::addRow("%s, not there", field) << field << order << QVariant(rowCount + 5) << false;
        QTest::addRow("%s, none wanted", field) << field << order << QVariant() << false;
    }
}

void PagedDataSetTest::openingStandsOnTheWantedRow()
{
    QFETCH(QString, field);
    QFETCH(QString, rawOrder);
    QFETCH(QVariant, key);
    QFETCH(bool, isThere);
    const auto dataSet = goods_.DataSet();
    dataSet->SetOrder(field, Qt::AscendingOrder);
    dataSet->OpenAt(key);
    QVERIFY(dataSet->WaitForFirstPage());
    QVERIFY(dataSet->WaitForCurrentRow());
    const QVariantList codes = goods_.Codes({}, rawOrder);
    QCOMPARE(dataSet->RecNo(), isThere ? int(codes.indexOf(key)) + 1 : 1);
    QCOMPARE(dataSet->CurrentKey(), isThere ? key : codes.constFirst());
}

void PagedDataSetTest::orderingRefusesAFieldThatIsNotRead()
{
    const auto dataSet = goods_.DataSet();
    QVERIFY_THROWS_EXCEPTION(EADOError, dataSet->SetOrder(QStringLiteral("Stock"), Qt::AscendingOrder));
    dataSet->SetOrder(QStringLiteral("[price]"), Qt::DescendingOrder);
    QCOMPARE(dataSet->OrderField(), QStringLiteral("Price"));
    dataSet->SetOrder({}, Qt::AscendingOrder);
    QCOMPARE(dataSet->OrderField(), QStringLiteral("Code"));
}

void PagedDataSetTest::scrollingFastReadsOnlyWhatIsInSight()
{
    const auto dataSet = goods_.DataSet();
    dataSet->Open();
    QTRY_VERIFY(!dataSet->Busy());
    QSignalSpy arrived(dataSet.get(), &TPagedDataSet::rowsArrived);
    for (int row = 100; row < rowCount; ++row)
        dataSet->ValueAt(row, 0);
    QTRY_VERIFY(dataSet->ValueAt(rowCount - 1, 0).isValid());
    QTRY_VERIFY(!dataSet->Busy());
    QVERIFY(arrived.size() <= 3);
    QCOMPARE(arrived.first(), (QVariantList{rowCount - 100, rowCount - 1}));
    QVERIFY(!dataSet->ValueAt(5000, 0).isValid());
}

void PagedDataSetTest::memoryStaysBoundedWhileWalking()
{
    const auto dataSet = goods_.DataSet(10);
    dataSet->Open();
    QVERIFY(dataSet->WaitForFirstPage());
    QCOMPARE(WalkForwards(*dataSet).size(), rowCount);
    // Of a thousand pages the last ones are here.
    QVERIFY(dataSet->ValueAt(rowCount - 630, 0).isValid());
    QVERIFY(!dataSet->ValueAt(rowCount - 660, 0).isValid());
}

QTEST_GUILESS_MAIN(PagedDataSetTest)
#include "PagedDataSetTest.moc"
