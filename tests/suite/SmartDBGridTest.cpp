#include "ActiveWindow.h"
#include "GoodsTable.h"
#include "Look.h"
#include "SmartDBGrid_TRV.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

namespace {

constexpr int RowsOfQuery = 200;
constexpr int RowsOfList = 3000;

QVector<TGridColumn> Columns()
{
    return {{QStringLiteral("Name"), QStringLiteral("F نام :"), 160, TGridColumn::ckText},
            {QStringLiteral("Code"), QStringLiteral("کد"), 60, TGridColumn::ckCode},
            {QStringLiteral("Price"), QStringLiteral("قیمت"), 120, TGridColumn::ckMoney},
            {QStringLiteral("Active"), QStringLiteral("فعال"), 60, TGridColumn::ckText, false},
            {QStringLiteral("SoldAt"), QStringLiteral("فروش"), 140, TGridColumn::ckDate}};
}

} // namespace

/// Rows, keys, mouse and data set: what the user does with the grid.
class SmartDBGridTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void firstColumnStandsAtTheRight();
    void columnsFollowTheirDefinitions();
    void withoutDefinitionsEveryFieldIsAColumn();
    void codesAreCompletedWithZeros();
    void fieldThatIsMissingLeavesItsColumnEmpty();
    void currentRowFollowsTheDataSet();
    void dataSetFollowsTheCurrentRow();
    void disabledControlsKeepTheRowUntilTheyAreEnabled();
    void keysMoveThroughTheRows_data();
    void keysMoveThroughTheRows();
    void enterReachesTheOwner();
    void tabLeavesTheGrid();
    void letterKeysReachTheOwnerAndMoveNothing();
    void doubleClickOnARowRaisesItsEvent();
    void copyPutsTheRowOnTheClipboard();
    void widthsAreSavedAndRestored();
    void layoutThatMakesNoSenseIsIgnored();
    void requeryKeepsWidthsRowAndScroll();
    void headerClickOnAQueryChangesNothing();
    void headerClickOrdersAPagedList();
    void endKeyReachesTheLastRowOfAPagedList();
    void newConditionShowsItsRows();
    void exchangedAndDestroyedDataSetsAreLeft();

private:
    void Show(TDataSet* dataSet);
    int CurrentRow() const { return grid_->currentIndex().row(); }
    QString Cell(int row, int column) const;

    std::unique_ptr<TGoodsTable> goods_;
    std::unique_ptr<TGoodsTable> manyGoods_;
    std::unique_ptr<QWidget> window_;
    std::unique_ptr<TDataSource> source_;
    TSmartDBGrid_TRV* grid_ = nullptr;
    QLineEdit* edit_ = nullptr;
};

void SmartDBGridTest::initTestCase()
{
    Look::Install(*qApp, Look::TScheme::Light);
    goods_ = std::make_unique<TGoodsTable>(RowsOfQuery);
    manyGoods_ = std::make_unique<TGoodsTable>(RowsOfList);
}

void SmartDBGridTest::init()
{
    window_ = std::make_unique<QWidget>();
    window_->resize(420, 360);
    grid_ = new TSmartDBGrid_TRV(window_.get());
    grid_->setGeometry(10, 10, 400, 300);
    grid_->SetColumns(Columns());
    edit_ = new QLineEdit(window_.get());
    edit_->setGeometry(10, 320, 100, 28);
    source_ = std::make_unique<TDataSource>();
    grid_->SetDataSource(source_.get());
}

void SmartDBGridTest::cleanup()
{
    window_.reset();
    source_.reset();
}

void SmartDBGridTest::Show(TDataSet* dataSet)
{
    source_->SetDataSet(dataSet);
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    grid_->setFocus();
}

QString SmartDBGridTest::Cell(int row, int column) const
{
    return grid_->model()->index(row, column).data().toString();
}

void SmartDBGridTest::firstColumnStandsAtTheRight()
{
    const auto query = goods_->Query();
    Show(query.get());
    const QModelIndex name = grid_->model()->index(0, 0);
    const QModelIndex code = grid_->model()->index(0, 1);
    QVERIFY(grid_->visualRect(name).right() >= grid_->viewport()->rect().right() - 1);
    QVERIFY(grid_->visualRect(code).right() < grid_->visualRect(name).left());
    QVERIFY2(grid_->viewport()->x() > grid_->verticalScrollBar()->x(), "the scroll bar stands at the left");
    QCOMPARE(grid_->rowHeight(0), Look::GridRowHeight);
}

void SmartDBGridTest::columnsFollowTheirDefinitions()
{
    const auto query = goods_->Query();
    Show(query.get());
    QCOMPARE(grid_->model()->columnCount(), 5);
    QCOMPARE(Cell(0, 0), TGoodsTable::NameOf(1));
    QCOMPARE(Cell(0, 1), QStringLiteral("1"));
    QCOMPARE(Cell(0, 2), QStringLiteral("1,234,500"));
    QCOMPARE(Cell(2, 2), QStringLiteral("-3,703,500"));
    QCOMPARE(Cell(3, 0), QString());
    QCOMPARE(Cell(3, 2), QString());
    QCOMPARE(Cell(0, 3), QStringLiteral("بله"));
    QCOMPARE(Cell(1, 3), QStringLiteral("خیر"));
    QCOMPARE(Cell(0, 4), QStringLiteral("1403/01/01 14:30"));
    QVERIFY(grid_->isColumnHidden(3));
    QCOMPARE(grid_->columnWidth(2), 120);
    QCOMPARE(grid_->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("قیمت"));
}

void SmartDBGridTest::withoutDefinitionsEveryFieldIsAColumn()
{
    const auto query = goods_->Query();
    grid_->SetColumns({});
    Show(query.get());
    QCOMPARE(grid_->model()->columnCount(), 5);
    QCOMPARE(grid_->model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QCOMPARE(Cell(0, 0), QStringLiteral("1"));
    QVERIFY(grid_->Columns().isEmpty());
}

void SmartDBGridTest::codesAreCompletedWithZeros()
{
    const auto query = goods_->Query();
    TGridColumn column{QStringLiteral("Code"), QStringLiteral("کد"), 60, TGridColumn::ckCode};
    column.Digits = 2;
    grid_->SetColumns({column});
    Show(query.get());
    QCOMPARE(Cell(0, 0), QStringLiteral("01"));
    QCOMPARE(Cell(98, 0), QStringLiteral("99"));
    QCOMPARE(Cell(99, 0), QStringLiteral("100"));
}

void SmartDBGridTest::fieldThatIsMissingLeavesItsColumnEmpty()
{
    const auto query = goods_->Query();
    grid_->SetColumns(
        {{QStringLiteral("Nothing"), QStringLiteral("هیچ")}, {QStringLiteral("CODE"), QStringLiteral("کد")}});
    Show(query.get());
    QCOMPARE(Cell(0, 0), QString());
    QCOMPARE(Cell(0, 1), QStringLiteral("1"));
    grid_->grab();
}

void SmartDBGridTest::currentRowFollowsTheDataSet()
{
    const auto query = goods_->Query();
    Show(query.get());
    QCOMPARE(CurrentRow(), 0);
    query->Next();
    QCOMPARE(CurrentRow(), 1);
    query->Last();
    QCOMPARE(CurrentRow(), RowsOfQuery - 1);
    QVERIFY(grid_->viewport()->rect().contains(grid_->visualRect(grid_->currentIndex()).center()));
    QVERIFY(grid_->selectionModel()->isRowSelected(RowsOfQuery - 1));
    QCOMPARE(grid_->selectionModel()->selectedRows().size(), 1);
}

void SmartDBGridTest::dataSetFollowsTheCurrentRow()
{
    const auto query = goods_->Query();
    Show(query.get());
    QTest::keyClick(grid_, Qt::Key_Down);
    QCOMPARE(query->RecNo(), 2);
    const QRect third = grid_->visualRect(grid_->model()->index(2, 1));
    QTest::mouseClick(grid_->viewport(), Qt::LeftButton, {}, third.center());
    QCOMPARE(query->RecNo(), 3);
    QCOMPARE(query->FieldByName(QStringLiteral("Code"))->AsInteger(), 3);
}

void SmartDBGridTest::disabledControlsKeepTheRowUntilTheyAreEnabled()
{
    const auto query = goods_->Query();
    Show(query.get());
    query->DisableControls();
    for (int step = 0; step < 5; ++step)
        query->Next();
    QCOMPARE(CurrentRow(), 0);
    query->EnableControls();
    QCOMPARE(CurrentRow(), 5);
    QCOMPARE(query->RecNo(), 6);
}

void SmartDBGridTest::keysMoveThroughTheRows_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("recNo");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("Up") << int(Qt::Key_Up) << none << 99;
    QTest::newRow("Down") << int(Qt::Key_Down) << none << 101;
    QTest::newRow("Home") << int(Qt::Key_Home) << none << 1;
    QTest::newRow("End") << int(Qt::Key_End) << none << RowsOfQuery;
    QTest::newRow("Ctrl+Home") << int(Qt::Key_Home) << control << 1;
    QTest::newRow("Ctrl+End") << int(Qt::Key_End) << control << RowsOfQuery;
    QTest::newRow("PgUp") << int(Qt::Key_PageUp) << none << -1;
    QTest::newRow("PgDn") << int(Qt::Key_PageDown) << none << -2;
}

void SmartDBGridTest::keysMoveThroughTheRows()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, recNo);
    const auto query = goods_->Query();
    Show(query.get());
    query->SetRecNo(100);
    QTest::keyClick(grid_, static_cast<Qt::Key>(key), modifiers);
    const int page = grid_->viewport()->height() / Look::GridRowHeight;
    if (recNo == -1)
        QVERIFY(query->RecNo() <= 100 - page + 1 && query->RecNo() >= 100 - page - 1);
    else if (recNo == -2)
        QVERIFY(query->RecNo() >= 100 + page - 1 && query->RecNo() <= 100 + page + 1);
    else
        QCOMPARE(query->RecNo(), recNo);
    QCOMPARE(CurrentRow(), query->RecNo() - 1);
    QVERIFY(grid_->viewport()->rect().contains(grid_->visualRect(grid_->currentIndex()).center()));
}

void SmartDBGridTest::enterReachesTheOwner()
{
    const auto query = goods_->Query();
    Show(query.get());
    QList<quint16> keys;
    grid_->OnKeyDown = [&keys](QObject*, quint16& key, Qt::KeyboardModifiers) { keys += key; };
    QTest::keyClick(grid_, Qt::Key_Return);
    QTest::keyClick(grid_, Qt::Key_Enter);
    QCOMPARE(keys, QList<quint16>({13, 13}));
    QCOMPARE(query->RecNo(), 1);
}

void SmartDBGridTest::tabLeavesTheGrid()
{
    const auto query = goods_->Query();
    Show(query.get());
    QStringList log;
    grid_->OnExit = [&log](QObject*) { log += QStringLiteral("exit"); };
    QTest::keyClick(grid_, Qt::Key_Tab);
    QVERIFY(edit_->hasFocus());
    QCOMPARE(log, QStringList({QStringLiteral("exit")}));
    QVERIFY2(grid_->selectionModel()->isRowSelected(0), "the row stays selected");
    grid_->OnExit = nullptr;
}

void SmartDBGridTest::letterKeysReachTheOwnerAndMoveNothing()
{
    const auto query = goods_->Query();
    Show(query.get());
    QString typed;
    grid_->OnKeyPress = [&typed](QObject*, QChar& character) { typed += character; };
    QTest::keyClick(grid_, Qt::Key_F);
    QTest::keyClick(grid_, Qt::Key_5);
    QCOMPARE(typed, QStringLiteral("f5"));
    QCOMPARE(query->RecNo(), 1);
}

void SmartDBGridTest::doubleClickOnARowRaisesItsEvent()
{
    const auto query = goods_->Query();
    Show(query.get());
    int count = 0;
    grid_->OnDblClick = [&count](QObject*) { ++count; };
    const QPoint second = grid_->visualRect(grid_->model()->index(1, 0)).center();
    QTest::mouseDClick(grid_->viewport(), Qt::LeftButton, {}, second);
    QCOMPARE(count, 1);
    QCOMPARE(query->RecNo(), 2);
    query->SQL.SetText(QStringLiteral("SELECT Code, Name FROM dbo.kala WHERE Code = 1"));
    query->Close();
    query->Open();
    QTest::mouseDClick(grid_->viewport(), Qt::LeftButton, {}, QPoint(300, 200));
    QCOMPARE(count, 1);
}

void SmartDBGridTest::copyPutsTheRowOnTheClipboard()
{
    const auto query = goods_->Query();
    Show(query.get());
    query->SetRecNo(3);
    QTest::keyClick(grid_, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             TGoodsTable::NameOf(3) + QStringLiteral("\t3\t-3703500\t1403/01/01 14:30"));
}

void SmartDBGridTest::widthsAreSavedAndRestored()
{
    const auto query = goods_->Query();
    Show(query.get());
    // The handle of the first column is its left edge.
    QWidget* header = grid_->horizontalHeader()->viewport();
    const int edge = grid_->viewport()->width() - 160;
    QTest::mousePress(header, Qt::LeftButton, {}, QPoint(edge, 10));
    QTest::mouseMove(header, QPoint(edge - 40, 10));
    QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(edge - 40, 10));
    QCOMPARE(grid_->columnWidth(0), 200);
    QCOMPARE(grid_->Columns().at(0).Width, 200);

    TSmartDBGrid_TRV other;
    other.SetColumns(Columns());
    other.RestoreLayout(grid_->SaveLayout());
    QCOMPARE(other.columnWidth(0), 200);
    QCOMPARE(other.columnWidth(1), 60);
    QVERIFY(other.isColumnHidden(3));
}

void SmartDBGridTest::layoutThatMakesNoSenseIsIgnored()
{
    for (const char* layout :
         {"", "nonsense", "[1,2]", "{\"Name\":-5,\"Code\":100000,\"Other\":70}", "{\"Name\":\"wide\"}"}) {
        grid_->RestoreLayout(QByteArray(layout));
        QCOMPARE(grid_->columnWidth(0), 160);
        QCOMPARE(grid_->columnWidth(1), 60);
    }
}

void SmartDBGridTest::requeryKeepsWidthsRowAndScroll()
{
    const auto query = goods_->Query();
    Show(query.get());
    grid_->setColumnWidth(0, 333);
    query->SetRecNo(100);
    const int scrolled = grid_->verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    query->Requery();
    QCOMPARE(grid_->columnWidth(0), 333);
    QCOMPARE(CurrentRow(), 99);
    QCOMPARE(grid_->verticalScrollBar()->value(), scrolled);
    QVERIFY(grid_->isColumnHidden(3));
}

void SmartDBGridTest::headerClickOnAQueryChangesNothing()
{
    const auto query = goods_->Query();
    Show(query.get());
    const QPoint title(grid_->viewport()->width() - 20, 10);
    QTest::mouseClick(grid_->horizontalHeader()->viewport(), Qt::LeftButton, {}, title);
    QVERIFY(!grid_->horizontalHeader()->isSortIndicatorShown());
    QCOMPARE(Cell(0, 1), QStringLiteral("1"));
}

void SmartDBGridTest::headerClickOrdersAPagedList()
{
    const auto paged = manyGoods_->Paged();
    Show(paged.get());
    QHeaderView* header = grid_->horizontalHeader();
    const QPoint code(grid_->viewport()->width() - 160 - 20, 10);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, code);
    QCOMPARE(paged->OrderField(), QStringLiteral("Code"));
    QVERIFY(header->isSortIndicatorShown());
    QCOMPARE(header->sortIndicatorSection(), 1);
    const Qt::SortOrder first = paged->Order();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, code);
    QVERIFY(paged->Order() != first);
    const bool descending = paged->Order() == Qt::DescendingOrder;
    QTRY_COMPARE(Cell(0, 1), QString::number(descending ? RowsOfList : 1));
    QCOMPARE(header->sortIndicatorOrder(), paged->Order());
}

void SmartDBGridTest::endKeyReachesTheLastRowOfAPagedList()
{
    const auto paged = manyGoods_->Paged();
    Show(paged.get());
    QTest::keyClick(grid_, Qt::Key_End, Qt::ControlModifier);
    QTRY_COMPARE(CurrentRow(), RowsOfList - 1);
    QTRY_COMPARE(Cell(RowsOfList - 1, 1), QString::number(RowsOfList));
    QCOMPARE(paged->CurrentKey().toInt(), RowsOfList);
    QTest::keyClick(grid_, Qt::Key_Home);
    QTRY_COMPARE(CurrentRow(), 0);
}

void SmartDBGridTest::newConditionShowsItsRows()
{
    const auto paged = manyGoods_->Paged();
    Show(paged.get());
    paged->SetRecNo(500);
    paged->SetCondition(QStringLiteral("Code > 2990"));
    QTRY_COMPARE(grid_->model()->rowCount(), 10);
    QCOMPARE(CurrentRow(), 0);
    QCOMPARE(Cell(0, 1), QStringLiteral("2991"));
    paged->SetCondition(QStringLiteral("Code < 0"));
    QTRY_COMPARE(grid_->model()->rowCount(), 0);
    paged->SetCondition({});
    QTRY_COMPARE(grid_->model()->rowCount(), RowsOfList);
    QCOMPARE(CurrentRow(), 0);
}

void SmartDBGridTest::exchangedAndDestroyedDataSetsAreLeft()
{
    auto query = goods_->Query();
    const auto paged = manyGoods_->Paged();
    Show(query.get());
    source_->SetDataSet(paged.get());
    QCOMPARE(grid_->model()->rowCount(), RowsOfList);
    query->Next();
    QCOMPARE(CurrentRow(), 0);
    source_->SetDataSet(query.get());
    QCOMPARE(CurrentRow(), 1);
    query.reset();
    QCOMPARE(grid_->model()->rowCount(), 0);
    QTest::keyClick(grid_, Qt::Key_Down);
    source_.reset();
    QCOMPARE(grid_->DataSource(), nullptr);
    grid_->grab();
}

QTEST_MAIN(SmartDBGridTest)
#include "SmartDBGridTest.moc"
