#include "DataSetModel.h"
#include "ADOQuery.h"
#include "GoodsFile.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class DataSetModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEmptySourceHasNoRows();
    void aClientCursorIsShownWhole();
    void valuesHaveTextAndType();
    void rowsOfAPagedListArriveWithPreciseSignals();
    void readingAllRowsFillsTheModel();
    void aNewConditionResetsTheModel();
    void deletedRowsLeaveTheModel();
    void sortingOrdersThePagedList();
    void sortingLeavesAClientCursorAlone();
    void theModelOutlivesItsDataSet();

private:
    TGoodsFile goods_{1000};
    std::unique_ptr<TPagedDataSet> list_;
    std::unique_ptr<TDataSource> source_;
    std::unique_ptr<TDataSetModel> model_;
    std::unique_ptr<QAbstractItemModelTester> tester_;
};

void DataSetModelTest::init()
{
    list_ = goods_.DataSet();
    source_ = std::make_unique<TDataSource>();
    model_ = std::make_unique<TDataSetModel>();
    tester_ = std::make_unique<QAbstractItemModelTester>(model_.get());
    model_->SetDataSource(source_.get());
}

void DataSetModelTest::cleanup()
{
    tester_.reset();
    model_.reset();
    source_.reset();
    list_.reset();
}

void DataSetModelTest::anEmptySourceHasNoRows()
{
    QCOMPARE(model_->rowCount(), 0);
    QCOMPARE(model_->columnCount(), 0);
    source_->SetDataSet(list_.get());
    QCOMPARE(model_->rowCount(), 0);
    list_->Open();
    QCOMPARE(model_->columnCount(), 4);
    QCOMPARE(model_->rowCount(), 0);
    QCOMPARE(model_->headerData(1, Qt::Horizontal), QVariant(QStringLiteral("Name")));
}

void DataSetModelTest::aClientCursorIsShownWhole()
{
    TADOQuery query;
    query.SetConnection(&goods_.Connection);
    query.SQL.SetText(QStringLiteral("SELECT Code, Name FROM dbo.kala WHERE Code <= 30 ORDER BY Code"));
    source_->SetDataSet(&query);
    query.Open();
    QCOMPARE(model_->rowCount(), 30);
    QCOMPARE(model_->columnCount(), 2);
    QCOMPARE(model_->index(29, 0).data(Qt::EditRole), QVariant(30));
    query.Close();
    QCOMPARE(model_->rowCount(), 0);
}

void DataSetModelTest::valuesHaveTextAndType()
{
    source_->SetDataSet(list_.get());
    list_->Open();
    QVERIFY(list_->WaitForFirstPage());
    const QModelIndex code = model_->index(4, 0);
    QCOMPARE(code.data(Qt::DisplayRole), QVariant(QStringLiteral("5")));
    QCOMPARE(code.data(Qt::EditRole), QVariant(5));
    QCOMPARE(code.data(TDataSetModel::FieldTypeRole), QVariant(static_cast<int>(TFieldType::ftInteger)));
    QCOMPARE(code.data(TDataSetModel::FieldNameRole), QVariant(QStringLiteral("Code")));
    const QModelIndex active = model_->index(4, 3);
    QCOMPARE(active.data(Qt::EditRole), QVariant(true));
    QCOMPARE(active.data(Qt::DisplayRole), QVariant(QStringLiteral("1")));
}

void DataSetModelTest::rowsOfAPagedListArriveWithPreciseSignals()
{
    source_->SetDataSet(list_.get());
    list_->Open();
    QSignalSpy reset(model_.get(), &QAbstractItemModel::modelReset);
    QSignalSpy inserted(model_.get(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(model_.get(), &QAbstractItemModel::dataChanged);
    QVERIFY(list_->WaitForFirstPage());
    QCOMPARE(model_->rowCount(), 100);
    QTRY_COMPARE(model_->rowCount(), 1000);
    QTRY_VERIFY(!list_->Busy());
    QCOMPARE(reset.size(), 1);
    int next = 100;
    for (const QVariantList& insertion : inserted) {
        QCOMPARE(insertion.at(1).toInt(), next);
        next = insertion.at(2).toInt() + 1;
    }
    QCOMPARE(next, 1000);
    changed.clear();
    QVERIFY(!model_->index(500, 0).data().isValid() || model_->index(500, 0).data().toString().isEmpty());
    QVERIFY(changed.wait());
    QCOMPARE(changed.first().at(0).toModelIndex(), model_->index(500, 0));
    QCOMPARE(changed.first().at(1).toModelIndex(), model_->index(599, 3));
    QCOMPARE(model_->index(500, 0).data(), QVariant(QStringLiteral("501")));
}

void DataSetModelTest::readingAllRowsFillsTheModel()
{
    source_->SetDataSet(list_.get());
    list_->SetOrder(QStringLiteral("Name"), Qt::DescendingOrder);
    list_->Open();
    QTRY_COMPARE(model_->rowCount(), 1000);
    const QVariantList expected = goods_.Codes({}, QStringLiteral("Name DESC, Code DESC"));
    for (int row = 0; row < 1000; ++row)
        QTRY_COMPARE(model_->index(row, 0).data(Qt::EditRole), expected[row]);
}

void DataSetModelTest::aNewConditionResetsTheModel()
{
    source_->SetDataSet(list_.get());
    list_->Open();
    QTRY_COMPARE(model_->rowCount(), 1000);
    QSignalSpy reset(model_.get(), &QAbstractItemModel::modelReset);
    for (int key = 1; key < 20; ++key)
        list_->SetCondition(QStringLiteral("Code < %1").arg(key));
    QTRY_COMPARE(model_->rowCount(), 18);
    QCOMPARE(reset.size(), 1);
    list_->SetCondition(QStringLiteral("Code < 0"));
    QTRY_COMPARE(model_->rowCount(), 0);
}

void DataSetModelTest::deletedRowsLeaveTheModel()
{
    TGoodsFile goods(500);
    const auto list = goods.DataSet();
    source_->SetDataSet(list.get());
    list->Open();
    QTRY_COMPARE(model_->rowCount(), 500);
    QTRY_VERIFY(!list->Busy());
    QSignalSpy removed(model_.get(), &QAbstractItemModel::rowsRemoved);
    goods.Connection.Execute(QStringLiteral("DELETE FROM dbo.kala WHERE Code > 430"));
    list->ValueAt(410, 0);
    QTRY_COMPARE(model_->rowCount(), 430);
    QCOMPARE(removed.size(), 1);
}

void DataSetModelTest::sortingOrdersThePagedList()
{
    source_->SetDataSet(list_.get());
    list_->Open();
    model_->sort(2, Qt::DescendingOrder);
    QCOMPARE(list_->OrderField(), QStringLiteral("Price"));
    QCOMPARE(list_->Order(), Qt::DescendingOrder);
    QVERIFY(list_->WaitForFirstPage());
    const QVariantList expected = goods_.Codes({}, QStringLiteral("Price DESC, Code DESC"));
    QCOMPARE(model_->index(0, 0).data(Qt::EditRole), expected.first());
    model_->sort(-1, Qt::AscendingOrder);
    QCOMPARE(list_->OrderField(), QStringLiteral("Code"));
}

void DataSetModelTest::sortingLeavesAClientCursorAlone()
{
    TADOQuery query;
    query.SetConnection(&goods_.Connection);
    query.SQL.SetText(QStringLiteral("SELECT Code FROM dbo.kala WHERE Code <= 3 ORDER BY Code"));
    source_->SetDataSet(&query);
    query.Open();
    model_->sort(0, Qt::DescendingOrder);
    QCOMPARE(model_->index(0, 0).data(Qt::EditRole), QVariant(1));
}

void DataSetModelTest::theModelOutlivesItsDataSet()
{
    source_->SetDataSet(list_.get());
    list_->Open();
    QVERIFY(list_->WaitForFirstPage());
    QCOMPARE(model_->rowCount(), 100);
    list_.reset();
    QCOMPARE(model_->rowCount(), 0);
    source_.reset();
    QCOMPARE(model_->columnCount(), 0);
    QVERIFY(!model_->DataSource());
}

QTEST_GUILESS_MAIN(DataSetModelTest)
#include "DataSetModelTest.moc"
