#include "GoodsFile.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int rowCount = 2000;
/// Finds nothing, in as many milliseconds as there are rows.
const QString slowCondition = QStringLiteral("dbo.Tick(Code) < 0");

} // namespace

class PagedDataSetChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void onlyTheNewestOfManyConditionsArrives();
    void aNewConditionAbandonsTheQueryUnderWay();
    void theOldRowsStayUntilTheNewOnesAreHere();
    void aNewConditionStartsAtTheFirstRow();
    void aNewOrderStartsAtTheFirstRow();
    void theSameConditionAsksForNothing();
    void closingAbandonsTheQueryUnderWay();
    void destructionAbandonsTheQueryUnderWay();
    void aHandlerMayCloseTheList();
    void aHandlerMayDestroyTheList();
    void aHandlerMayAskAnew();
    void refreshFollowsTheCurrentKey_data();
    void refreshFollowsTheCurrentKey();
    void refreshStandsOnTheRowAfterADeletedOne();
    void refreshStandsOnTheLastRowWhenTheOnesBehindAreGone();
    void refreshFindsAnEmptiedTable();
    void refreshReadsChangedValues();
    void aFailingConditionLeavesTheListAsItIs();
    void aFailedConditionCanBeTriedAgain();
    void aFailingPageIsToldOnce();
    void rowsDeletedBehindItsBackShortenTheList();
    void nothingIsAnnouncedWhileControlsAreDisabled();
    void statementsAreAnnouncedByTheConnection();

private:
    void OpenCounted();

    std::unique_ptr<TGoodsFile> goods_;
    std::unique_ptr<TPagedDataSet> dataSet_;
};

void PagedDataSetChangesTest::init()
{
    goods_ = std::make_unique<TGoodsFile>(rowCount);
    goods_->RegisterTick();
    dataSet_ = goods_->DataSet();
}

void PagedDataSetChangesTest::cleanup()
{
    dataSet_.reset();
    goods_.reset();
}

void PagedDataSetChangesTest::OpenCounted()
{
    dataSet_->Open();
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
}

void PagedDataSetChangesTest::onlyTheNewestOfManyConditionsArrives()
{
    OpenCounted();
    QSignalSpy changed(dataSet_.get(), &TDataSet::dataChanged);
    QSignalSpy failed(dataSet_.get(), &TPagedDataSet::failed);
    for (int key = 1; key <= 100; ++key)
        dataSet_->SetCondition(slowCondition + QStringLiteral(" OR Code = %1").arg(key));
    dataSet_->SetCondition(QStringLiteral("Code = 77"));
    QVERIFY(dataSet_->WaitForFirstPage());
    QTRY_VERIFY(!dataSet_->Busy());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(failed.size(), 0);
    QCOMPARE(dataSet_->RecordCount(), 1);
    QCOMPARE(dataSet_->CurrentKey(), QVariant(77));
    QVERIFY(goods_->Ticks < rowCount);
}

void PagedDataSetChangesTest::aNewConditionAbandonsTheQueryUnderWay()
{
    OpenCounted();
    dataSet_->SetCondition(slowCondition);
    QTRY_VERIFY(goods_->Ticks > 0);
    dataSet_->SetCondition(QStringLiteral("Code = 77"));
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->CurrentKey(), QVariant(77));
    QVERIFY(goods_->Ticks < rowCount);
}

void PagedDataSetChangesTest::theOldRowsStayUntilTheNewOnesAreHere()
{
    OpenCounted();
    dataSet_->SetCondition(slowCondition);
    QTRY_VERIFY(goods_->Ticks > 0);
    QVERIFY(dataSet_->Busy());
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    QCOMPARE(dataSet_->ValueAt(0, 0), QVariant(1));
    QCOMPARE(dataSet_->Condition(), slowCondition);
    QVERIFY(dataSet_->IsEmpty());
    QCOMPARE(goods_->Ticks, rowCount);
}

void PagedDataSetChangesTest::aNewConditionStartsAtTheFirstRow()
{
    OpenCounted();
    dataSet_->SetRecNo(1500);
    QVERIFY(dataSet_->WaitForCurrentRow());
    dataSet_->SetCondition(QStringLiteral("Code > 300"));
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecNo(), 1);
    QCOMPARE(dataSet_->CurrentKey(), QVariant(301));
}

void PagedDataSetChangesTest::aNewOrderStartsAtTheFirstRow()
{
    OpenCounted();
    dataSet_->SetRecNo(1500);
    dataSet_->SetOrder(QStringLiteral("code"), Qt::DescendingOrder);
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecNo(), 1);
    QCOMPARE(dataSet_->CurrentKey(), QVariant(rowCount));
}

void PagedDataSetChangesTest::theSameConditionAsksForNothing()
{
    dataSet_->SetCondition(QStringLiteral("Code > 300"));
    dataSet_->Open();
    QTRY_VERIFY(!dataSet_->Busy());
    dataSet_->SetCondition(QStringLiteral("Code > 300"));
    dataSet_->SetOrder(QStringLiteral("Code"), Qt::AscendingOrder);
    QVERIFY(!dataSet_->Busy());
}

void PagedDataSetChangesTest::closingAbandonsTheQueryUnderWay()
{
    OpenCounted();
    dataSet_->SetCondition(slowCondition);
    QTRY_VERIFY(goods_->Ticks > 0);
    dataSet_->Close();
    QVERIFY(!dataSet_->Busy());
    QVERIFY(goods_->Ticks < rowCount);
}

void PagedDataSetChangesTest::destructionAbandonsTheQueryUnderWay()
{
    OpenCounted();
    dataSet_->SetCondition(slowCondition);
    QTRY_VERIFY(goods_->Ticks > 0);
    dataSet_.reset();
    QVERIFY(goods_->Ticks < rowCount);
}

void PagedDataSetChangesTest::aHandlerMayCloseTheList()
{
    dataSet_->Open();
    connect(dataSet_.get(), &TDataSet::dataChanged, dataSet_.get(), [this] {
        if (dataSet_->RecordCount() > 0)
            dataSet_->Close();
    });
    QVERIFY(dataSet_->IsEmpty());
    QVERIFY(!dataSet_->Active());
}

void PagedDataSetChangesTest::aHandlerMayDestroyTheList()
{
    dataSet_->Open();
    connect(dataSet_.get(), &TPagedDataSet::rowsArrived, this, [this] { dataSet_.reset(); });
    QTRY_VERIFY(!dataSet_->Busy());
    dataSet_->ValueAt(1000, 0);
    QTRY_VERIFY(!dataSet_);
}

void PagedDataSetChangesTest::aHandlerMayAskAnew()
{
    dataSet_->Open();
    connect(dataSet_.get(), &TDataSet::dataChanged, this,
            [this] { dataSet_->SetCondition(QStringLiteral("Code = 77")); });
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecordCount(), 1);
}

void PagedDataSetChangesTest::refreshFollowsTheCurrentKey_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("on the first page") << 50;
    QTest::newRow("at the end of a page") << 97;
    QTest::newRow("in the middle") << 1234;
    QTest::newRow("at the end") << rowCount - 1;
}

void PagedDataSetChangesTest::refreshFollowsTheCurrentKey()
{
    QFETCH(const int, row);
    dataSet_->SetOrder(QStringLiteral("Price"), Qt::AscendingOrder);
    OpenCounted();
    dataSet_->SetRecNo(row + 1);
    QVERIFY(dataSet_->WaitForCurrentRow());
    const QVariant key = dataSet_->CurrentKey();
    for (int added = 1; added <= 3; ++added)
        goods_->Insert(rowCount + added, QStringLiteral("ارزان"), QStringLiteral("-5000"));
    dataSet_->Refresh();
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecNo(), row + 1 + 3);
    QVERIFY(dataSet_->WaitForCurrentRow());
    QCOMPARE(dataSet_->CurrentKey(), key);
    QTRY_COMPARE(dataSet_->RecordCount(), rowCount + 3);
    const QVariantList expected = goods_->Codes({}, QStringLiteral("Price, Code"));
    for (int other = row; other < row + 4; ++other) {
        dataSet_->SetRecNo(other + 1);
        QVERIFY(dataSet_->WaitForCurrentRow());
        QCOMPARE(dataSet_->CurrentKey(), expected[other]);
    }
}

void PagedDataSetChangesTest::refreshStandsOnTheRowAfterADeletedOne()
{
    OpenCounted();
    dataSet_->SetRecNo(1000);
    QVERIFY(dataSet_->WaitForCurrentRow());
    goods_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala WHERE Code = 1000"));
    dataSet_->Refresh();
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecNo(), 1000);
    QVERIFY(dataSet_->WaitForCurrentRow());
    QCOMPARE(dataSet_->CurrentKey(), QVariant(1001));
}

void PagedDataSetChangesTest::refreshStandsOnTheLastRowWhenTheOnesBehindAreGone()
{
    OpenCounted();
    dataSet_->Last();
    QVERIFY(dataSet_->WaitForCurrentRow());
    goods_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala WHERE Code > 1500"));
    dataSet_->Refresh();
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->RecNo(), 1500);
    QVERIFY(dataSet_->WaitForCurrentRow());
    QCOMPARE(dataSet_->CurrentKey(), QVariant(1500));
}

void PagedDataSetChangesTest::refreshFindsAnEmptiedTable()
{
    OpenCounted();
    dataSet_->SetRecNo(1000);
    goods_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala"));
    dataSet_->Refresh();
    QVERIFY(dataSet_->IsEmpty());
    QCOMPARE(dataSet_->RecNo(), 0);
    QVERIFY(dataSet_->CountIsExact());
}

void PagedDataSetChangesTest::refreshReadsChangedValues()
{
    OpenCounted();
    goods_->Connection.Execute(QStringLiteral("UPDATE dbo.kala SET Name = N'تازه' WHERE Code = 1"));
    QVERIFY(dataSet_->ValueAt(0, 1) != QVariant(QStringLiteral("تازه")));
    dataSet_->Refresh();
    QVERIFY(dataSet_->WaitForFirstPage());
    QCOMPARE(dataSet_->ValueAt(0, 1), QVariant(QStringLiteral("تازه")));
}

void PagedDataSetChangesTest::aFailingConditionLeavesTheListAsItIs()
{
    OpenCounted();
    QSignalSpy failed(dataSet_.get(), &TPagedDataSet::failed);
    QSignalSpy changed(dataSet_.get(), &TDataSet::dataChanged);
    dataSet_->SetCondition(QStringLiteral("NoSuchColumn = 1"));
    QVERIFY(!dataSet_->WaitForFirstPage());
    QCOMPARE(failed.size(), 1);
    QVERIFY(!failed.first().at(0).toString().isEmpty());
    QVERIFY(failed.first().at(1).toString().contains(QStringLiteral("NoSuchColumn")));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(dataSet_->RecordCount(), rowCount);
    dataSet_->SetRecNo(1000);
    QVERIFY(!dataSet_->IsEmpty());
    QTRY_COMPARE(dataSet_->CurrentKey(), QVariant(1000));
    QVERIFY(!dataSet_->Busy());
}

void PagedDataSetChangesTest::aFailedConditionCanBeTriedAgain()
{
    OpenCounted();
    const QString condition = QStringLiteral("Stock > 0");
    dataSet_->SetCondition(condition);
    QVERIFY(!dataSet_->WaitForFirstPage());
    goods_->Connection.Execute(QStringLiteral("ALTER TABLE dbo.kala ADD Stock int NULL"));
    dataSet_->SetCondition(condition);
    QVERIFY(dataSet_->WaitForFirstPage());
    QVERIFY(dataSet_->IsEmpty());
}

void PagedDataSetChangesTest::aFailingPageIsToldOnce()
{
    OpenCounted();
    goods_->Connection.Execute(QStringLiteral("DROP TABLE dbo.kala"));
    QSignalSpy failed(dataSet_.get(), &TPagedDataSet::failed);
    dataSet_->ValueAt(1000, 0);
    QVERIFY(failed.wait());
    // As a grid that is painted again behind the message does.
    dataSet_->ValueAt(1000, 0);
    QTRY_VERIFY(!dataSet_->Busy());
    QCoreApplication::processEvents();
    QVERIFY(!dataSet_->Busy());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(dataSet_->ValueAt(0, 0), QVariant(1));
}

void PagedDataSetChangesTest::rowsDeletedBehindItsBackShortenTheList()
{
    OpenCounted();
    goods_->Connection.Execute(QStringLiteral("DELETE FROM dbo.kala WHERE Code > 1450"));
    dataSet_->SetRecNo(1430);
    QVERIFY(dataSet_->WaitForCurrentRow());
    QCOMPARE(dataSet_->CurrentKey(), QVariant(1430));
    QCOMPARE(dataSet_->RecordCount(), 1450);
    QVERIFY(dataSet_->CountIsExact());
}

void PagedDataSetChangesTest::nothingIsAnnouncedWhileControlsAreDisabled()
{
    OpenCounted();
    QSignalSpy changed(dataSet_.get(), &TDataSet::dataChanged);
    QSignalSpy arrived(dataSet_.get(), &TPagedDataSet::rowsArrived);
    QSignalSpy counted(dataSet_.get(), &TPagedDataSet::countChanged);
    dataSet_->DisableControls();
    dataSet_->SetCondition(QStringLiteral("Code > 300"));
    QTRY_VERIFY(!dataSet_->Busy());
    dataSet_->SetRecNo(1000);
    QVERIFY(dataSet_->WaitForCurrentRow());
    QCOMPARE(changed.size() + arrived.size() + counted.size(), 0);
    dataSet_->EnableControls();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(dataSet_->RecordCount(), rowCount - 300);
}

void PagedDataSetChangesTest::statementsAreAnnouncedByTheConnection()
{
    QStringList texts;
    goods_->Connection.OnWillExecute = [&texts](TADOConnection*, const QString& text) { texts.append(text); };
    dataSet_->SetCondition(QStringLiteral("Code > 300"));
    dataSet_->Open();
    QTRY_VERIFY(!dataSet_->Busy());
    QTRY_COMPARE(texts.size(), 3);
    QCOMPARE(texts[0], QStringLiteral("SELECT TOP 0 Code, Name, Price, Active FROM dbo.kala"));
    QCOMPARE(texts[1],
             QStringLiteral(
                 "SELECT TOP 100 Code, Name, Price, Active FROM dbo.kala WHERE Code > 300 ORDER BY Code"));
    QCOMPARE(texts[2], QStringLiteral("SELECT Code FROM dbo.kala WHERE Code > 300 ORDER BY Code"));
    goods_->Connection.OnWillExecute = {};
}

QTEST_GUILESS_MAIN(PagedDataSetChangesTest)
#include "PagedDataSetChangesTest.moc"
