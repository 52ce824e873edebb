#include "AdvListLayout.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

TAdvListLayout::TRow Row(const QVector<int>& widths, int place)
{
    TAdvListLayout::TRow row;
    row.Widths = widths;
    row.Place = place;
    row.LineWidth = 100;
    row.LineHeight = 20;
    row.Spacing = 4;
    return row;
}

} // namespace

class AdvListLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bubblesStandOneBehindTheOther();
    void aLastBoxTakesTheRestOfItsLine();
    void aBoxWithTextStandsAmongTheBubbles();
    void anEmptyBoxStandsOverTheGapAndMovesNothing();
    void linesBreakWhereTheWidthEnds();
    void aBubbleWiderThanTheLineHasItForItself();
    void placesAndBubblesAreFoundByPoint();
    void whatIsInsideARectangleIsFoundInAnyRow();
};

void AdvListLayoutTest::bubblesStandOneBehindTheOther()
{
    TAdvListLayout layout;
    layout.Arrange(Row({30, 40, 50}, 3));
    QCOMPARE(layout.Bubble(0), QRect(0, 0, 30, 20));
    QCOMPARE(layout.Bubble(1), QRect(34, 0, 40, 20));
    QCOMPARE(layout.Bubble(2), QRect(78, 0, 50, 20));
    QCOMPARE(layout.LineCount(), 1);
    QCOMPARE(layout.Size(), QSize(128, 20));
}

void AdvListLayoutTest::aLastBoxTakesTheRestOfItsLine()
{
    TAdvListLayout::TRow row = Row({30}, 1);
    row.BoxWidth = 20;
    row.BoxFills = true;
    TAdvListLayout layout;
    layout.Arrange(row);
    QCOMPARE(layout.Box(), QRect(34, 0, 66, 20));
    row.BoxWidth = 80;
    layout.Arrange(row);
    QCOMPARE(layout.Box(), QRect(34, 0, 80, 20));
    row.Widths.clear();
    row.Place = 0;
    layout.Arrange(row);
    QCOMPARE(layout.Box(), QRect(0, 0, 100, 20));
}

void AdvListLayoutTest::aBoxWithTextStandsAmongTheBubbles()
{
    TAdvListLayout::TRow row = Row({30, 40}, 1);
    row.BoxWidth = 25;
    TAdvListLayout layout;
    layout.Arrange(row);
    QCOMPARE(layout.Box(), QRect(34, 0, 25, 20));
    QCOMPARE(layout.Bubble(1), QRect(63, 0, 40, 20));
}

void AdvListLayoutTest::anEmptyBoxStandsOverTheGapAndMovesNothing()
{
    TAdvListLayout layout;
    layout.Arrange(Row({30, 40}, 1));
    QCOMPARE(layout.Bubble(1), QRect(34, 0, 40, 20));
    QCOMPARE(layout.Box(), QRect(28, 0, TAdvListLayout::CaretRoom, 20));
}

void AdvListLayoutTest::linesBreakWhereTheWidthEnds()
{
    TAdvListLayout::TRow row = Row({30, 40, 22, 50}, 4);
    row.Wraps = true;
    row.BoxWidth = 50;
    row.BoxFills = true;
    TAdvListLayout layout;
    layout.Arrange(row);
    QCOMPARE(layout.Bubble(2), QRect(78, 0, 22, 20));
    QCOMPARE(layout.Bubble(3), QRect(0, 20, 50, 20));
    QCOMPARE(layout.Box(), QRect(0, 40, 100, 20));
    QCOMPARE(layout.LineCount(), 3);
}

void AdvListLayoutTest::aBubbleWiderThanTheLineHasItForItself()
{
    TAdvListLayout::TRow row = Row({30, 400, 30}, 3);
    row.Wraps = true;
    TAdvListLayout layout;
    layout.Arrange(row);
    QCOMPARE(layout.Bubble(1), QRect(0, 20, 400, 20));
    QCOMPARE(layout.Bubble(2), QRect(0, 40, 30, 20));
}

void AdvListLayoutTest::placesAndBubblesAreFoundByPoint()
{
    TAdvListLayout::TRow row = Row({30, 40, 22, 50}, 4);
    row.Wraps = true;
    TAdvListLayout layout;
    layout.Arrange(row);
    QCOMPARE(layout.BubbleAt({10, 5}), 0);
    QCOMPARE(layout.BubbleAt({31, 5}), -1);
    QCOMPARE(layout.BubbleAt({34, 25}), 3);
    QCOMPARE(layout.BubbleAt({70, 25}), -1);
    QCOMPARE(layout.PlaceAt({-50, 5}), 0);
    QCOMPARE(layout.PlaceAt({20, 5}), 1);
    QCOMPARE(layout.PlaceAt({99, 5}), 3);
    QCOMPARE(layout.PlaceAt({5, 25}), 3);
    QCOMPARE(layout.PlaceAt({60, 500}), 4);
    TAdvListLayout empty;
    empty.Arrange(Row({}, 0));
    QCOMPARE(empty.BubbleAt({0, 0}), -1);
    QCOMPARE(empty.PlaceAt({9, 9}), 0);
}

// The searches by halves agree with looking at every bubble.
void AdvListLayoutTest::whatIsInsideARectangleIsFoundInAnyRow()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 400; ++round) {
        TAdvListLayout::TRow row;
        for (int bubble = random.bounded(40); bubble > 0; --bubble)
            row.Widths << 1 + random.bounded(60);
        const int count = static_cast<int>(row.Widths.size());
        row.Place = random.bounded(count + 1);
        row.BoxWidth = random.bounded(3) * 20;
        row.LineWidth = 100;
        row.LineHeight = 20;
        row.Spacing = 4;
        row.Wraps = round % 2 == 0;
        TAdvListLayout layout;
        layout.Arrange(row);
        const QRect view(random.bounded(300), random.bounded(100), 1 + random.bounded(100),
                         1 + random.bounded(60));
        const auto [first, last] = layout.Within(view);
        QVERIFY(first >= 0 && first <= last && last <= count);
        for (int bubble = 0; bubble < count; ++bubble) {
            if (layout.Bubble(bubble).intersects(view))
                QVERIFY(bubble >= first && bubble < last);
            else if (!row.Wraps)
                QVERIFY(bubble < first || bubble >= last);
            QCOMPARE(layout.BubbleAt(layout.Bubble(bubble).center()), bubble);
        }
    }
}

QTEST_GUILESS_MAIN(AdvListLayoutTest)
#include "AdvListLayoutTest.moc"
