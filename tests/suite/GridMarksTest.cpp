#include "ActiveWindow.h"
#include "GoodsTable.h"
#include "Look.h"
#include "SmartDBGrid_TRV.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int Rows = 3000;

} // namespace

/// The choice of several rows by keys and mouse, and the coloured marks in a cell.
class GridMarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Look::Install(*qApp, Look::TScheme::Light);
        goods_ = std::make_unique<TGoodsTable>(Rows);
    }
    void init()
    {
        window_ = std::make_unique<QWidget>();
        window_->resize(420, 360);
        grid_ = new TSmartDBGrid_TRV(window_.get());
        grid_->setGeometry(10, 10, 400, 300);
        grid_->SetColumns({{QStringLiteral("Code"), QStringLiteral("کد"), 60, TGridColumn::ckCode},
                           {QStringLiteral("Name"), QStringLiteral("نام"), 200, TGridColumn::ckText}});
        source_ = std::make_unique<TDataSource>();
        grid_->SetDataSource(source_.get());
        list_ = goods_->Paged();
        grid_->SetMultiSelect(true);
        grid_->SetReadKeys([this](int first, int count) {
            ++readings_;
            QStringList keys;
            for (int row = first; row < std::min(first + count, Rows); ++row)
                keys.append(QString::number(row + 1));
            return keys;
        });
        readings_ = 0;
        source_->SetDataSet(list_.get());
        window_->show();
        QVERIFY(ActiveWindow::Activate(window_.get()));
        grid_->setFocus();
        list_->First();
    }
    void cleanup()
    {
        window_.reset();
        source_.reset();
        list_.reset();
    }

    void spaceTurnsTheMarkOfTheCurrentRow()
    {
        QSignalSpy changes(grid_, &TSmartDBGrid_TRV::marksChanged);
        QTest::keyClick(grid_, Qt::Key_Space);
        QTest::keyClick(grid_, Qt::Key_Down);
        QTest::keyClick(grid_, Qt::Key_Down);
        QTest::keyClick(grid_, Qt::Key_Space);
        QCOMPARE(Marked(), QStringLiteral("1,3"));
        QVERIFY(grid_->IsMarked(0) && !grid_->IsMarked(1));
        QTest::keyClick(grid_, Qt::Key_Space);
        QCOMPARE(Marked(), QStringLiteral("1"));
        QCOMPARE(changes.size(), 3);
        QCOMPARE(list_->RecNo(), 3);
    }

    void withoutMultiSelectNothingIsMarked()
    {
        grid_->SetMultiSelect(false);
        QTest::keyClick(grid_, Qt::Key_Space);
        QTest::keyClick(grid_, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        Click(2, Qt::ControlModifier);
        QCOMPARE(Marked(), QString());
    }

    void shiftWithArrowsMarksARangeThatFollowsTheCurrentRow()
    {
        QTest::keyClick(grid_, Qt::Key_Down);
        for (int presses = 0; presses < 3; ++presses)
            QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("2,3,4,5"));
        for (int presses = 0; presses < 4; ++presses)
            QTest::keyClick(grid_, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("1,2"));
        QCOMPARE(readings_, 0);
    }

    void aRangeLeavesWhatWasMarkedBefore()
    {
        QTest::keyClick(grid_, Qt::Key_Down);
        QTest::keyClick(grid_, Qt::Key_Down);
        QTest::keyClick(grid_, Qt::Key_Space);
        QTest::keyClick(grid_, Qt::Key_Home);
        QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("1,2,3"));
        QTest::keyClick(grid_, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(grid_, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("1,3"));
    }

    void aRangeToFarRowsReadsTheirKeysAtOnce()
    {
        QTest::keyClick(grid_, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(grid_->MarkedKeys().size(), Rows);
        QCOMPARE(readings_, 1);
        QCOMPARE(list_->RecNo(), Rows);
        QTest::keyClick(grid_, Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("1"));
    }

    void clicksMarkAsInOtherLists()
    {
        Click(1, Qt::ControlModifier);
        Click(3, Qt::ControlModifier);
        QCOMPARE(Marked(), QStringLiteral("2,4"));
        Click(1, Qt::ControlModifier);
        QCOMPARE(Marked(), QStringLiteral("4"));
        Click(3, Qt::NoModifier);
        QCOMPARE(Marked(), QString());
        Click(5, Qt::ShiftModifier);
        QCOMPARE(Marked(), QStringLiteral("4,5,6"));
        QCOMPARE(list_->RecNo(), 6);
    }

    void controlAMarksTheWholeListUpToTheLimit()
    {
        QSignalSpy limited(grid_, &TSmartDBGrid_TRV::marksLimited);
        QTest::keyClick(grid_, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid_->MarkedKeys().size(), Rows);
        QCOMPARE(limited.size(), 0);
        grid_->ClearMarks();
        grid_->SetMarkLimit(500);
        QTest::keyClick(grid_, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid_->MarkedKeys().size(), 500);
        QCOMPARE(limited.size(), 1);
        QTest::keyClick(grid_, Qt::Key_End);
        QTRY_COMPARE(list_->RecNo(), Rows);
        QVERIFY(list_->WaitForCurrentRow());
        QTest::keyClick(grid_, Qt::Key_Space);
        QCOMPARE(grid_->MarkedKeys().size(), 500);
        QCOMPARE(limited.size(), 2);
    }

    void marksStayWithTheirKeysWhenTheListIsOrderedAnew()
    {
        QTest::keyClick(grid_, Qt::Key_Space);
        QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        list_->SetOrder(QStringLiteral("Code"), Qt::DescendingOrder);
        QVERIFY(list_->WaitForFirstPage());
        QTRY_VERIFY(!grid_->IsMarked(0));
        QCOMPARE(Marked(), QStringLiteral("1,2"));
        QTest::keyClick(grid_, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(grid_->MarkedKeys().size(), 4);
    }

    void aCellShowsColoursAndCopiesTheirNames()
    {
        QVector<TGridColumn> columns = grid_->Columns();
        columns[0].Dots = [](const QVariant& value) {
            return QVector<TGridDot>{{Qt::red, QStringLiteral("سرخ")},
                                     {Qt::blue, value.toString() + QStringLiteral("آبی")}};
        };
        grid_->SetColumns(columns);
        grid_->resizeColumnToContents(0);
        grid_->setColumnWidth(0, 60);
        QTest::keyClick(grid_, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("سرخ، 1آبی\t")));
        const QModelIndex cell = grid_->model()->index(1, 0);
        const QImage picture = grid_->viewport()->grab(grid_->visualRect(cell)).toImage();
        QVERIFY(Holds(picture, Qt::red));
        QVERIFY(Holds(picture, Qt::blue));
        QVERIFY(
            !Holds(grid_->viewport()->grab(grid_->visualRect(cell.siblingAtColumn(1))).toImage(), Qt::red));
    }

    void theCurrentRowIsOutlinedWhereOthersAreMarked()
    {
        QTest::keyClick(grid_, Qt::Key_Space);
        QTest::keyClick(grid_, Qt::Key_Down);
        const QRect marked = grid_->visualRect(grid_->model()->index(0, 1));
        const QRect current = grid_->visualRect(grid_->model()->index(1, 1));
        const QImage picture = grid_->viewport()->grab().toImage();
        QCOMPARE(picture.pixelColor(marked.left() + 2, marked.center().y()),
                 Look::Color(Look::TRole::Selection));
        QCOMPARE(picture.pixelColor(current.left() + 2, current.center().y()),
                 Look::Color(Look::TRole::AlternateBase));
        QCOMPARE(picture.pixelColor(current.left() + 2, current.top()), Look::Color(Look::TRole::Accent));
    }

private:
    QString Marked() const
    {
        QStringList keys = grid_->MarkedKeys();
        std::sort(keys.begin(), keys.end());
        return keys.join(u',');
    }
    void Click(int row, Qt::KeyboardModifiers modifiers) const
    {
        QTest::mouseClick(grid_->viewport(), Qt::LeftButton, modifiers,
                          grid_->visualRect(grid_->model()->index(row, 1)).center());
    }
    static bool Holds(const QImage& picture, const QColor& color)
    {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    }

    std::unique_ptr<TGoodsTable> goods_;
    std::unique_ptr<QWidget> window_;
    std::unique_ptr<TDataSource> source_;
    std::unique_ptr<TPagedDataSet> list_;
    TSmartDBGrid_TRV* grid_ = nullptr;
    int readings_ = 0;
};

QTEST_MAIN(GridMarksTest)
#include "GridMarksTest.moc"
