#include "GoodsFile.h"

#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int goodsCount = 2000;
const QString most = QStringLiteral("Code > 300");
constexpr int mostCount = 1700;

} // namespace

/// Lists whose owner counts their rows, and the statements that this saves.
class PagedDataSetGivenCountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        goods_ = std::make_unique<TGoodsFile>(goodsCount);
        dataSet_ = goods_->DataSet();
        dataSet_->SetCountIsGiven(true);
        dataSet_->SetCondition(most);
        sent_.clear();
        goods_->Connection.OnWillExecute = [this](TADOConnection*, const QString& text) {
            sent_.append(text);
        };
    }
    void cleanup()
    {
        dataSet_.reset();
        goods_.reset();
    }

    void nothingIsCountedUntilTheCountIsGiven()
    {
        dataSet_->Open();
        QTRY_VERIFY(!dataSet_->Busy());
        QTRY_COMPARE(sent_.size(), 2);
        QVERIFY(sent_.last().startsWith(QStringLiteral("SELECT TOP 100 ")));
        QVERIFY(!dataSet_->CountIsExact());

        QSignalSpy counted(dataSet_.get(), &TPagedDataSet::countChanged);
        dataSet_->GiveCount(most, mostCount);
        QCOMPARE(counted.size(), 1);
        QCOMPARE(counted.first(), (QVariantList{mostCount, true}));
        QVERIFY(dataSet_->Busy());
        QTRY_VERIFY(!dataSet_->Busy());
        QTRY_COMPARE(sent_.size(), 3);
        QCOMPARE(sent_.last(), QStringLiteral("SELECT Code FROM dbo.kala WHERE Code > 300 ORDER BY Code"));
        QCOMPARE(dataSet_->RecordCount(), mostCount);
    }

    void aCountThatComesBeforeTheFirstPageIsTakenWithIt()
    {
        dataSet_->Open();
        dataSet_->GiveCount(most, mostCount);
        QCOMPARE(dataSet_->RecordCount(), 0);
        QVERIFY(dataSet_->WaitForFirstPage());
        QCOMPARE(dataSet_->RecordCount(), mostCount);
        QVERIFY(dataSet_->CountIsExact());
    }

    void theCountOfAnotherConditionIsIgnored()
    {
        dataSet_->Open();
        dataSet_->GiveCount(QStringLiteral("Code > 1"), goodsCount - 1);
        QTRY_VERIFY(!dataSet_->Busy());
        dataSet_->GiveCount({}, goodsCount);
        QCOMPARE(dataSet_->RecordCount(), 100);
        QVERIFY(!dataSet_->CountIsExact());
    }

    void anotherOrderKeepsTheCountAndRefreshingDoesNot()
    {
        dataSet_->Open();
        dataSet_->GiveCount(most, mostCount);
        QTRY_VERIFY(!dataSet_->Busy());
        dataSet_->SetOrder(QStringLiteral("Price"), Qt::DescendingOrder);
        QVERIFY(dataSet_->WaitForFirstPage());
        QCOMPARE(dataSet_->RecordCount(), mostCount);
        QVERIFY(dataSet_->CountIsExact());
        dataSet_->Refresh();
        QTRY_VERIFY(!dataSet_->Busy());
        QVERIFY(!dataSet_->CountIsExact());
    }

    void rowsBehindTheKnownOnesAreReachedWithoutACount()
    {
        dataSet_->Open();
        QVERIFY(dataSet_->WaitForFirstPage());
        int rows = 0;
        for (; !dataSet_->Eof(); dataSet_->Next())
            ++rows;
        QCOMPARE(rows, mostCount);
        QVERIFY(dataSet_->CountIsExact());
    }

    void theListCountsWhereTheCountCannotBeGiven()
    {
        dataSet_->Open();
        QVERIFY(dataSet_->WaitForFirstPage());
        dataSet_->SetCountIsGiven(false);
        QVERIFY(dataSet_->Busy());
        QTRY_VERIFY(dataSet_->CountIsExact());
        QCOMPARE(dataSet_->RecordCount(), mostCount);
    }

    void aPageThatComesSoonIsLookedForInOneWay()
    {
        dataSet_->SetOrder(QStringLiteral("Price"), Qt::AscendingOrder);
        dataSet_->Open();
        QVERIFY(dataSet_->WaitForFirstPage());
        // Longer than the second way would be put off.
        QTest::qWait(200);
        QCOMPARE(sent_.size(), 2);
    }

private:
    std::unique_ptr<TGoodsFile> goods_;
    std::unique_ptr<TPagedDataSet> dataSet_;
    QStringList sent_;
};

QTEST_GUILESS_MAIN(PagedDataSetGivenCountTest)
#include "PagedDataSetGivenCountTest.moc"
