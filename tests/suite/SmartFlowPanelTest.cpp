#include "ActiveWindow.h"
#include "FlowLines.h"
#include "SmartFlowPanel_TRV.h"

#include <memory>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

namespace {

QWidget* Block(QWidget* parent, int width, int height = 28)
{
    auto* block = new QLabel(parent);
    block->setFixedSize(width, height);
    return block;
}

} // namespace

class SmartFlowPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesBreakWhereTheWidthEnds();
    void whatIsWiderThanTheLineStandsAlone();
    void whatBelongsTogetherStaysTogether();
    void childrenStandFromTheRightInTheirOrder();
    void theFlowStyleTurnsTheLinesRound();
    void hiddenChildrenTakeNoRoom();
    void theHeightFollowsTheWidth();
    void aChildThatGrowsPushesTheOthers();
    void childrenMayBeAddedAndDestroyed();
    void theFormDescriptionSetsTheStyle();
};

void SmartFlowPanelTest::linesBreakWhereTheWidthEnds()
{
    const TFlowLines lines{100, 10, 6, false};
    const QList<QRect> places = lines.Place({{{40, 20}}, {{50, 30}}, {{40, 20}}, {{50, 10}}});
    QCOMPARE(places, (QList<QRect>{{0, 5, 40, 20}, {50, 0, 50, 30}, {0, 36, 40, 20}, {50, 41, 50, 10}}));
    QCOMPARE(lines.HeightFor({{{40, 20}}, {{50, 30}}, {{40, 20}}, {{50, 10}}}), 56);
    QCOMPARE(lines.HeightFor({}), 0);
}

void SmartFlowPanelTest::whatIsWiderThanTheLineStandsAlone()
{
    const TFlowLines lines{100, 10, 6, true};
    const QList<QRect> places = lines.Place({{{120, 20}}, {{30, 20}}});
    QCOMPARE(places, (QList<QRect>{{-20, 0, 120, 20}, {70, 26, 30, 20}}));
}

void SmartFlowPanelTest::whatBelongsTogetherStaysTogether()
{
    const TFlowLines lines{100, 10, 6, false};
    const QList<QRect> places = lines.Place({{{60, 20}}, {{20, 20}, true}, {{30, 20}}});
    QCOMPARE(places, (QList<QRect>{{0, 0, 60, 20}, {0, 26, 20, 20}, {30, 26, 30, 20}}));
    const QList<QRect> tooWide = lines.Place({{{60, 20}, true}, {{60, 20}}});
    QCOMPARE(tooWide, (QList<QRect>{{0, 0, 60, 20}, {0, 26, 60, 20}}));

    TSmartFlowPanel_TRV panel;
    Block(&panel, 200);
    QWidget* box = Block(&panel, 15);
    QWidget* label = Block(&panel, 100);
    box->setProperty("KeepWithNext", true);
    panel.resize(270, 80);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QVERIFY(box->y() > 30);
    QCOMPARE(box->y(), label->y());
}

void SmartFlowPanelTest::childrenStandFromTheRightInTheirOrder()
{
    TSmartFlowPanel_TRV panel;
    const QList<QWidget*> blocks{Block(&panel, 100), Block(&panel, 50, 20), Block(&panel, 200)};
    panel.resize(400, 34);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(blocks.at(0)->geometry().right(), 400 - panel.contentsMargins().right() - 1);
    for (qsizetype index = 1; index < blocks.size(); ++index) {
        QCOMPARE(blocks.at(index)->geometry().right() + 1 + panel.Spacing(), blocks.at(index - 1)->x());
        QCOMPARE(blocks.at(index)->geometry().center().y(), blocks.at(0)->geometry().center().y());
    }
}

void SmartFlowPanelTest::theFlowStyleTurnsTheLinesRound()
{
    TSmartFlowPanel_TRV panel;
    QWidget* first = Block(&panel, 100);
    panel.SetFlowStyle(TSmartFlowPanel_TRV::fsLeftRightTopBottom);
    panel.resize(400, 34);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(first->x(), panel.contentsMargins().left());
}

void SmartFlowPanelTest::hiddenChildrenTakeNoRoom()
{
    TSmartFlowPanel_TRV panel;
    QWidget* first = Block(&panel, 100);
    QWidget* second = Block(&panel, 60);
    QWidget* third = Block(&panel, 60);
    second->hide();
    panel.resize(400, 34);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QCOMPARE(third->geometry().right() + 1 + panel.Spacing(), first->x());
    second->show();
    QCOMPARE(second->geometry().right() + 1 + panel.Spacing(), first->x());
    QCOMPARE(third->geometry().right() + 1 + panel.Spacing(), second->x());
    second->hide();
    QCOMPARE(third->geometry().right() + 1 + panel.Spacing(), first->x());
}

void SmartFlowPanelTest::theHeightFollowsTheWidth()
{
    QWidget window;
    auto* lines = new QVBoxLayout(&window);
    lines->setContentsMargins(0, 0, 0, 0);
    auto* panel = new TSmartFlowPanel_TRV(&window);
    lines->addWidget(panel);
    lines->addStretch();
    const QList<QWidget*> blocks{Block(panel, 100), Block(panel, 100), Block(panel, 100)};
    window.resize(400, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int oneLine = panel->height();
    QVERIFY(oneLine >= 28);
    window.resize(250, 200);
    QTRY_VERIFY(panel->height() > oneLine);
    QVERIFY(blocks.at(2)->y() > blocks.at(0)->geometry().bottom());
    QVERIFY(panel->rect().contains(blocks.at(2)->geometry()));
}

void SmartFlowPanelTest::aChildThatGrowsPushesTheOthers()
{
    TSmartFlowPanel_TRV panel;
    auto* label = new QLabel(QStringLiteral("a"), &panel);
    QWidget* second = Block(&panel, 60);
    panel.resize(400, 34);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    label->setText(QStringLiteral("a much longer caption"));
    QTRY_COMPARE(label->width(), label->sizeHint().width());
    QCOMPARE(second->geometry().right() + 1 + panel.Spacing(), label->x());
}

void SmartFlowPanelTest::childrenMayBeAddedAndDestroyed()
{
    TSmartFlowPanel_TRV panel;
    panel.resize(400, 34);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const std::unique_ptr<QWidget> first(Block(&panel, 100));
    first->show();
    QWidget* second = Block(&panel, 60);
    second->show();
    QTRY_COMPARE(second->geometry().right() + 1 + panel.Spacing(), first->x());
    first->setParent(nullptr);
    QTRY_COMPARE(second->geometry().right(), 400 - panel.contentsMargins().right() - 1);
}

void SmartFlowPanelTest::theFormDescriptionSetsTheStyle()
{
    TSmartFlowPanel_TRV panel;
    QCOMPARE(panel.FlowStyle(), TSmartFlowPanel_TRV::fsRightLeftTopBottom);
    QVERIFY(panel.setProperty("FlowStyle", QStringLiteral("fsLeftRightTopBottom")));
    QCOMPARE(panel.FlowStyle(), TSmartFlowPanel_TRV::fsLeftRightTopBottom);
    QCOMPARE(panel.Bevel(), TSmartPanel_TRV::bvNone);
}

QTEST_MAIN(SmartFlowPanelTest)
#include "SmartFlowPanelTest.moc"
