#include "GridPanel.h"

#include <QTest>

namespace {

/// A panel of four cells, 60 and 40 percent wide.
struct TFourCells
{
    TFourCells()
    {
        Panel.SetColumns(QStringLiteral("60;40"));
        Panel.SetRows(QStringLiteral("50;50"));
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 2; ++column) {
                auto* cell = new QWidget(&Panel);
                cell->setMinimumSize(30, 20);
                Panel.Place(cell, column, row);
            }
        }
        Panel.setLayoutDirection(Qt::RightToLeft);
        // Resizing tells a hidden widget nothing.
        Panel.setAttribute(Qt::WA_DontShowOnScreen);
        Panel.show();
    }
    QRect Geometry(int column, int row) const { return Panel.ControlAt(column, row)->geometry(); }

    TGridPanel Panel;
};

} // namespace

class GridPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellsShareTheSizeByPercent();
    void cellsFillThePanelToThePixel_data();
    void cellsFillThePanelToThePixel();
    void theFirstColumnStandsAtTheRight();
    void gapsStandBetweenCellsOnly();
    void sharesNeedNotMakeAHundred();
    void theHintHoldsEveryCell();
    void hiddenChildrenWantNoRoom();
    void aFormNamesTheCellsByProperties();
    void childrenWithoutACellKeepTheirPlace();
    void whatIsNoListOfPercentsIsRefused_data();
    void whatIsNoListOfPercentsIsRefused();
};

void GridPanelTest::cellsShareTheSizeByPercent()
{
    TFourCells cells;
    cells.Panel.setLayoutDirection(Qt::LeftToRight);
    cells.Panel.resize(500, 100);
    QCOMPARE(cells.Geometry(0, 0), QRect(0, 0, 300, 50));
    QCOMPARE(cells.Geometry(1, 0), QRect(300, 0, 200, 50));
    QCOMPARE(cells.Geometry(0, 1), QRect(0, 50, 300, 50));
    QCOMPARE(cells.Geometry(1, 1), QRect(300, 50, 200, 50));
}

void GridPanelTest::cellsFillThePanelToThePixel_data()
{
    QTest::addColumn<QSize>("size");
    for (int width = 101; width < 111; ++width)
        QTest::addRow("%d", width) << QSize(width, width - 50);
}

void GridPanelTest::cellsFillThePanelToThePixel()
{
    QFETCH(const QSize, size);
    TFourCells cells;
    cells.Panel.resize(size);
    QRegion covered;
    int area = 0;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            covered += cells.Geometry(column, row);
            area += cells.Geometry(column, row).width() * cells.Geometry(column, row).height();
        }
    }
    QCOMPARE(covered, QRegion(cells.Panel.rect()));
    QCOMPARE(area, size.width() * size.height());
}

void GridPanelTest::theFirstColumnStandsAtTheRight()
{
    TFourCells cells;
    cells.Panel.resize(500, 100);
    QCOMPARE(cells.Geometry(0, 0), QRect(200, 0, 300, 50));
    QCOMPARE(cells.Geometry(1, 0), QRect(0, 0, 200, 50));
    cells.Panel.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(cells.Geometry(0, 0), QRect(0, 0, 300, 50));
}

void GridPanelTest::gapsStandBetweenCellsOnly()
{
    TFourCells cells;
    cells.Panel.SetGap(10);
    cells.Panel.resize(510, 110);
    QCOMPARE(cells.Geometry(0, 0), QRect(210, 0, 300, 50));
    QCOMPARE(cells.Geometry(1, 1), QRect(0, 60, 200, 50));
}

void GridPanelTest::sharesNeedNotMakeAHundred()
{
    TGridPanel panel;
    panel.SetColumns(QStringLiteral(" 1 ; 1;2"));
    QCOMPARE(panel.Columns(), QStringLiteral("1;1;2"));
    panel.resize(400, 10);
    QCOMPARE(panel.CellRect(2, 0).width(), 200);
}

void GridPanelTest::theHintHoldsEveryCell()
{
    TFourCells cells;
    cells.Panel.ControlAt(1, 0)->setMinimumSize(100, 40);
    const QSize hint = cells.Panel.sizeHint();
    QCOMPARE(hint, QSize(250, 80));
    cells.Panel.resize(hint);
    QVERIFY(cells.Geometry(1, 0).width() >= 100);
    QVERIFY(cells.Geometry(1, 0).height() >= 40);
}

void GridPanelTest::hiddenChildrenWantNoRoom()
{
    TFourCells cells;
    cells.Panel.ControlAt(1, 0)->setMinimumSize(100, 40);
    cells.Panel.ControlAt(1, 0)->hide();
    QCOMPARE(cells.Panel.sizeHint(), QSize(75, 40));
}

void GridPanelTest::aFormNamesTheCellsByProperties()
{
    TGridPanel panel;
    panel.SetColumns(QStringLiteral("60;40"));
    auto* cell = new QWidget(&panel);
    cell->setProperty("GridColumn", 1);
    cell->setProperty("GridRow", 0);
    panel.resize(500, 100);
    panel.grab();
    QCOMPARE(panel.ControlAt(1, 0), cell);
    QCOMPARE(cell->width(), 200);
    QVERIFY(panel.ControlAt(0, 0) == nullptr);
}

void GridPanelTest::childrenWithoutACellKeepTheirPlace()
{
    TFourCells cells;
    auto* other = new QWidget(&cells.Panel);
    other->setGeometry(1, 2, 3, 4);
    auto* outside = new QWidget(&cells.Panel);
    outside->setGeometry(5, 6, 7, 8);
    cells.Panel.Place(outside, 2, 0);
    cells.Panel.resize(500, 100);
    QCOMPARE(other->geometry(), QRect(1, 2, 3, 4));
    QCOMPARE(outside->geometry(), QRect(5, 6, 7, 8));
}

void GridPanelTest::whatIsNoListOfPercentsIsRefused_data()
{
    QTest::addColumn<QString>("percents");
    for (const char* percents : {"", "60;", "60;x", "0;100", "-1;2", "60,40"})
        QTest::newRow(percents) << QString::fromLatin1(percents);
}

void GridPanelTest::whatIsNoListOfPercentsIsRefused()
{
    QFETCH(const QString, percents);
    TGridPanel panel;
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, panel.SetColumns(percents));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, panel.SetRows(percents));
    QCOMPARE(panel.Columns(), QStringLiteral("100"));
}

QTEST_MAIN(GridPanelTest)
#include "GridPanelTest.moc"
