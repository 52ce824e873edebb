#include "ActiveWindow.h"
#include "GoodsTable.h"
#include "Ink.h"
#include "Look.h"
#include "SmartDBGrid_TRV.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

using Look::TRole;

/// What the grid looks like.
class SmartDBGridPaintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void textCellIsARightToLeftParagraph();
    void headerIsBoldAndARightToLeftParagraph();
    void numbersAlignToTheDigitAtTheRight();
    void minusStandsAtTheLeftInTheWrongColour();
    void rowsAlternate();
    void selectedRowStaysVisibleWithoutFocus();
    void textsContrastInEveryRow_data();
    void textsContrastInEveryRow();
    void textThatDoesNotFitEndsInAnEllipsisAtTheLeft();
    void emptyTextIsPaintedWhenThereIsNoRow();
    void focusShowsTheRing();
    void switchOfTheDigitsReachesCellsAndHeader();
    void columnsBeyondTheWidthScrollIntoViewFromTheLeft();

private:
    QImage CellImage(int row, int column) const;

    std::unique_ptr<TGoodsTable> goods_;
    std::unique_ptr<TADOQuery> query_;
    std::unique_ptr<TDataSource> source_;
    std::unique_ptr<QWidget> window_;
    TSmartDBGrid_TRV* grid_ = nullptr;
    QLineEdit* edit_ = nullptr;
};

void SmartDBGridPaintingTest::initTestCase()
{
    Look::Install(*qApp, Look::TScheme::Light);
    goods_ = std::make_unique<TGoodsTable>(30);
}

void SmartDBGridPaintingTest::init()
{
    Look::SetScheme(Look::TScheme::Light);
    query_ = goods_->Query();
    source_ = std::make_unique<TDataSource>();
    source_->SetDataSet(query_.get());
    window_ = std::make_unique<QWidget>();
    window_->resize(520, 360);
    grid_ = new TSmartDBGrid_TRV(window_.get());
    grid_->setGeometry(10, 10, 500, 300);
    grid_->SetColumns({{QStringLiteral("Name"), QStringLiteral("F نام :"), 200, TGridColumn::ckText},
                       {QStringLiteral("Price"), QStringLiteral("قیمت"), 120, TGridColumn::ckMoney},
                       {QStringLiteral("Code"), QStringLiteral("کد"), 60, TGridColumn::ckCode}});
    grid_->SetDataSource(source_.get());
    edit_ = new QLineEdit(window_.get());
    edit_->setGeometry(10, 320, 100, 28);
    window_->show();
    QVERIFY(ActiveWindow::Activate(window_.get()));
    edit_->setFocus();
    query_->SetRecNo(6);
}

void SmartDBGridPaintingTest::cleanup()
{
    window_.reset();
    source_.reset();
    query_.reset();
}

QImage SmartDBGridPaintingTest::CellImage(int row, int column) const
{
    const QRect cell = grid_->visualRect(grid_->model()->index(row, column));
    return grid_->viewport()->grab(cell).toImage().convertToFormat(QImage::Format_RGB32);
}

void SmartDBGridPaintingTest::textCellIsARightToLeftParagraph()
{
    const QImage image = CellImage(0, 0);
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY2(runs.first().Width() <= 3, "the colon stands at the left end");
    QVERIFY2(runs.last().Last > image.width() - 12, "the text stands at the right end");
}

void SmartDBGridPaintingTest::headerIsBoldAndARightToLeftParagraph()
{
    QHeaderView* header = grid_->horizontalHeader();
    QVERIFY(header->font().bold());
    QCOMPARE(header->font().pixelSize(), 13);
    QCOMPARE(header->font().family(), Look::BodyFont().family());
    QCOMPARE(header->height(), Look::GridRowHeight);
    const QRect title(grid_->viewport()->width() - 190, 6, 186, 18);
    const QImage image = header->viewport()->grab(title).toImage();
    QVERIFY(Ink::Runs(image, Ink::Ground(image)).first().Width() <= 4);
}

void SmartDBGridPaintingTest::numbersAlignToTheDigitAtTheRight()
{
    // 1,234,500 and -3,703,500 end in the same digits, so their right ends are alike.
    const QImage first = CellImage(0, 1);
    const QImage second = CellImage(2, 1);
    const auto firstRuns = Ink::Runs(first, Ink::Ground(first));
    const auto secondRuns = Ink::Runs(second, Ink::Ground(second));
    QVERIFY(firstRuns.size() >= 7 && secondRuns.size() > firstRuns.size());
    for (int digit = 1; digit <= 3; ++digit) {
        QCOMPARE(firstRuns[firstRuns.size() - digit].First, secondRuns[secondRuns.size() - digit].First);
        QCOMPARE(firstRuns[firstRuns.size() - digit].Last, secondRuns[secondRuns.size() - digit].Last);
    }
    QVERIFY(firstRuns.last().Last > first.width() - 12);
}

void SmartDBGridPaintingTest::minusStandsAtTheLeftInTheWrongColour()
{
    const QImage image = CellImage(2, 1);
    QCOMPARE(Ink::Foreground(image), Look::Color(TRole::Wrong));
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    // The sign is a flat line: all its ink lies in few rows.
    const QImage sign = image.copy(runs.first().First, 0, runs.first().Width(), image.height());
    const auto heights = Ink::Runs(sign.transformed(QTransform().rotate(90)), Ink::Ground(image));
    QCOMPARE(heights.size(), 1);
    QVERIFY(heights.first().Width() <= 3);
    QCOMPARE(Ink::Foreground(CellImage(0, 1)), Look::Color(TRole::Text));
}

void SmartDBGridPaintingTest::rowsAlternate()
{
    QCOMPARE(Ink::Ground(CellImage(0, 0)), Look::Color(TRole::Base));
    QCOMPARE(Ink::Ground(CellImage(1, 0)), Look::Color(TRole::AlternateBase));
}

void SmartDBGridPaintingTest::selectedRowStaysVisibleWithoutFocus()
{
    QVERIFY(edit_->hasFocus());
    for (int column = 0; column < 3; ++column)
        QCOMPARE(Ink::Ground(CellImage(5, column)), Look::Color(TRole::Selection));
}

void SmartDBGridPaintingTest::textsContrastInEveryRow_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void SmartDBGridPaintingTest::textsContrastInEveryRow()
{
    QFETCH(bool, dark);
    Look::SetScheme(dark ? Look::TScheme::Dark : Look::TScheme::Light);
    query_->SetRecNo(3); // a negative amount, selected
    for (const int row : {0, 1, 2, 4}) {
        for (int column = 0; column < 3; ++column) {
            const QImage image = CellImage(row, column);
            const double contrast = Look::Contrast(Ink::Foreground(image), Ink::Ground(image));
            QVERIFY2(contrast >= 4.5,
                     qPrintable(QStringLiteral("%1/%2: %3").arg(row).arg(column).arg(contrast)));
        }
    }
    QCOMPARE(Ink::Ground(CellImage(0, 0)), Look::ColorOf(TRole::Base, dark));
}

void SmartDBGridPaintingTest::textThatDoesNotFitEndsInAnEllipsisAtTheLeft()
{
    grid_->setColumnWidth(0, 70);
    const QImage image = CellImage(0, 0);
    const auto runs = Ink::Runs(image, Ink::Ground(image));
    QVERIFY(runs.size() >= 4);
    for (int dot = 0; dot < 3; ++dot)
        QVERIFY(runs[dot].Width() <= 3);
}

void SmartDBGridPaintingTest::emptyTextIsPaintedWhenThereIsNoRow()
{
    grid_->SetEmptyText(QStringLiteral("کالایی نیست؛ Ins را بزنید."));
    query_->SetRowFilter([](const TADOQuery&, int) { return false; });
    QCOMPARE(grid_->model()->rowCount(), 0);
    const QImage image = grid_->viewport()->grab().toImage();
    QCOMPARE(Ink::Foreground(image), Look::Color(TRole::SecondaryText));
    query_->SetRowFilter(nullptr);
    QCOMPARE(Ink::Foreground(CellImage(1, 0)), Look::Color(TRole::Text));
}

void SmartDBGridPaintingTest::focusShowsTheRing()
{
    const auto edge = [this] { return grid_->grab().toImage().pixelColor(250, 299); };
    QVERIFY(edge() != Look::Color(TRole::Accent));
    grid_->setFocus();
    QCOMPARE(edge(), Look::Color(TRole::Accent));
    edit_->setFocus();
    QVERIFY(edge() != Look::Color(TRole::Accent));
}

void SmartDBGridPaintingTest::switchOfTheDigitsReachesCellsAndHeader()
{
    const QImage persian = CellImage(0, 2);
    Look::SetDigits(Look::TDigits::Latin);
    QTRY_COMPARE(grid_->font().family(), QStringLiteral("Vazirmatn UI"));
    QCOMPARE(grid_->font().pixelSize(), 13);
    QTRY_COMPARE(grid_->horizontalHeader()->font().family(), QStringLiteral("Vazirmatn UI"));
    QVERIFY(grid_->horizontalHeader()->font().bold());
    QVERIFY(CellImage(0, 2) != persian);
    Look::SetDigits(Look::TDigits::Persian);
    QTRY_COMPARE(CellImage(0, 2), persian);
}

void SmartDBGridPaintingTest::columnsBeyondTheWidthScrollIntoViewFromTheLeft()
{
    grid_->setColumnWidth(0, 600);
    QScrollBar* bar = grid_->horizontalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), 0);
    const QModelIndex name = grid_->model()->index(0, 0);
    const QModelIndex code = grid_->model()->index(0, 2);
    QVERIFY(grid_->visualRect(name).right() >= grid_->viewport()->rect().right() - 1);
    QVERIFY(grid_->visualRect(code).left() < 0);
    bar->setValue(bar->maximum());
    QCOMPARE(grid_->visualRect(code).left(), 0);
}

QTEST_MAIN(SmartDBGridPaintingTest)
#include "SmartDBGridPaintingTest.moc"
