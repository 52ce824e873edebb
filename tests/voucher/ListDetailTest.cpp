#include "ExpandHeader.h"
#include "GridPanel.h"
#include "ListDetail_FRAME_UNT.h"
#include "Look.h"
#include "NxExpandPanel.h"
#include "RecordingHost.h"
#include "SmartDetailView_TRV.h"
#include "TestCase.h"
#include "Typing.h"

#include <QApplication>
#include <QMenu>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

QVector<TSmartDetailView_TRV*> ViewsOf(const TListDetail_FRAME& frame)
{
    return {frame.DetailView_Fixed_SDV, frame.DetailView_Large_Top_SDV, frame.DetailView_Small_Top_SDV,
            frame.DetailView_Large_Bottom_SDV, frame.DetailView_Small_Bottom_SDV};
}

/// Notes the views whose menus get entries, in order.
class TMenuWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ActionAdded && !Views.contains(watched->parent()))
            Views.append(watched->parent());
        return false;
    }
    QObjectList Views;
};

} // namespace

class ListDetailTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theFormIsAsDesigned();
    void everyViewShowsItemZeroAndDeniesInItsWords();
    void theViewsStandInTheirCells();
    void twoCallsRestoreTheFirstState();
    void theHeaderTellsTheState();
    void theFixedViewIsAlwaysShown();
    void theHeightFollowsWithoutALayout();
    void theHeightFollowsInALayout();
    void reassginRebuildsTheMenusOfAllViews();
    void theOwnerBindsAltOne();
};

void ListDetailTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TListDetail_FRAME frame;
    QCOMPARE(frame.width(), 774);
    QCOMPARE(frame.MoreDetail_XPNL->CollapsedText(), QStringLiteral("اطلاعات بیشتر (Alt + 1)"));
    QCOMPARE(frame.MoreDetail_XPNL->ExpandedText(), QStringLiteral("اطلاعات کمتر (Alt + 1)"));
    QVERIFY(!frame.MoreDetail_XPNL->Expanded());
    QCOMPARE(frame.MoreDetail_GPNL->Columns(), QStringLiteral("60;40"));
    QCOMPARE(frame.MoreDetail_GPNL->Rows(), QStringLiteral("50;50"));
    QCOMPARE(frame.DetailView_Fixed_SDV->Tag(), 100);
    QCOMPARE(frame.DetailView_Fixed_SDV->parentWidget(), frame.MoreDetail_XPNL);
}

void ListDetailTest::everyViewShowsItemZeroAndDeniesInItsWords()
{
    const TRecordingHost host;
    const TListDetail_FRAME frame;
    for (TSmartDetailView_TRV* view : ViewsOf(frame)) {
        QCOMPARE(view->ItemIndex(), 0);
        QCOMPARE(view->AccessDeniedText(), QStringLiteral("دسترسی غیرمجاز"));
        view->AddItem({QStringLiteral("نخست"), 1});
        view->AddItem({QStringLiteral("دوم"), 2});
        QCOMPARE(view->ShownCaption(), QStringLiteral("نخست"));
        view->SetDenied(0, true);
        QCOMPARE(view->ShownValue(), QStringLiteral("دسترسی غیرمجاز"));
    }
}

void ListDetailTest::theViewsStandInTheirCells()
{
    const TRecordingHost host;
    TListDetail_FRAME frame;
    frame.CollapseOrExpand();
    frame.grab();
    const TGridPanel& grid = *frame.MoreDetail_GPNL;
    QCOMPARE(grid.ControlAt(0, 0), frame.DetailView_Large_Top_SDV);
    QCOMPARE(grid.ControlAt(1, 0), frame.DetailView_Small_Top_SDV);
    QCOMPARE(grid.ControlAt(0, 1), frame.DetailView_Large_Bottom_SDV);
    QCOMPARE(grid.ControlAt(1, 1), frame.DetailView_Small_Bottom_SDV);
    QCOMPARE(grid.width(), 774);
    QCOMPARE(frame.DetailView_Large_Top_SDV->width(), 464);
    QCOMPARE(frame.DetailView_Small_Top_SDV->width(), 310);
    QCOMPARE(frame.DetailView_Large_Top_SDV->geometry().right(), grid.rect().right());
    QCOMPARE(frame.DetailView_Large_Top_SDV->height(), frame.DetailView_Large_Bottom_SDV->height());
}

void ListDetailTest::twoCallsRestoreTheFirstState()
{
    const TRecordingHost host;
    TListDetail_FRAME frame;
    for (const bool first : {false, true}) {
        frame.MoreDetail_XPNL->SetExpanded(first);
        const QSize size = frame.sizeHint();
        frame.CollapseOrExpand();
        QCOMPARE(frame.MoreDetail_XPNL->Expanded(), !first);
        frame.CollapseOrExpand();
        QCOMPARE(frame.MoreDetail_XPNL->Expanded(), first);
        QCOMPARE(frame.sizeHint(), size);
        QCOMPARE(frame.MoreDetail_GPNL->isHidden(), !first);
    }
}

void ListDetailTest::theHeaderTellsTheState()
{
    const TRecordingHost host;
    const TListDetail_FRAME frame;
    QCOMPARE(frame.MoreDetail_XPNL->Header()->text(), frame.MoreDetail_XPNL->CollapsedText());
    frame.CollapseOrExpand();
    QCOMPARE(frame.MoreDetail_XPNL->Header()->text(), frame.MoreDetail_XPNL->ExpandedText());
}

void ListDetailTest::theFixedViewIsAlwaysShown()
{
    const TRecordingHost host;
    TListDetail_FRAME frame;
    QVERIFY(Typing::ShowActive(&frame));
    QVERIFY(frame.DetailView_Fixed_SDV->isVisible());
    QVERIFY(!frame.DetailView_Large_Top_SDV->isVisible());
    frame.CollapseOrExpand();
    QVERIFY(frame.DetailView_Fixed_SDV->isVisible());
    QVERIFY(frame.DetailView_Small_Bottom_SDV->isVisible());
    QVERIFY(frame.DetailView_Fixed_SDV->mapTo(&frame, QPoint()).y() <
            frame.DetailView_Large_Top_SDV->mapTo(&frame, QPoint()).y());
}

void ListDetailTest::theHeightFollowsWithoutALayout()
{
    const TRecordingHost host;
    QWidget owner;
    owner.resize(900, 400);
    auto* frame = new TListDetail_FRAME(&owner);
    const int closed = frame->height();
    QCOMPARE(closed, 2 * Look::ControlHeight);
    frame->CollapseOrExpand();
    QVERIFY(frame->height() > closed + 2 * Look::ControlHeight);
    frame->CollapseOrExpand();
    QCOMPARE(frame->height(), closed);
    QCOMPARE(frame->width(), 774);
}

void ListDetailTest::theHeightFollowsInALayout()
{
    const TRecordingHost host;
    QWidget owner;
    auto* column = new QVBoxLayout(&owner);
    auto* list = new QWidget(&owner);
    auto* frame = new TListDetail_FRAME(&owner);
    column->addWidget(list, 1);
    column->addWidget(frame);
    owner.resize(900, 400);
    QVERIFY(Typing::ShowActive(&owner));
    const int closed = frame->height();
    frame->CollapseOrExpand();
    QTRY_VERIFY(frame->height() > closed);
    QCOMPARE(frame->height(), frame->sizeHint().height());
    frame->CollapseOrExpand();
    QTRY_COMPARE(frame->height(), closed);
}

void ListDetailTest::reassginRebuildsTheMenusOfAllViews()
{
    const TRecordingHost host;
    const TListDetail_FRAME frame;
    TMenuWatch watch;
    QObjectList views;
    for (TSmartDetailView_TRV* view : ViewsOf(frame)) {
        view->AddItem({QStringLiteral("نام"), 1});
        QVERIFY(view->PopupMenu()->isEmpty());
        view->PopupMenu()->installEventFilter(&watch);
        views.append(view);
    }
    frame.Reassgin();
    QCOMPARE(watch.Views, views);
    for (TSmartDetailView_TRV* view : ViewsOf(frame))
        QCOMPARE(view->PopupMenu()->actions().first()->text(), QStringLiteral("نام"));
}

void ListDetailTest::theOwnerBindsAltOne()
{
    const TRecordingHost host;
    QWidget owner;
    auto* column = new QVBoxLayout(&owner);
    auto* frame = new TListDetail_FRAME(&owner);
    column->addWidget(frame);
    auto* shortcut = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_1), &owner);
    connect(shortcut, &QShortcut::activated, frame, &TListDetail_FRAME::CollapseOrExpand);
    QVERIFY(Typing::ShowActive(&owner));
    Typing::Press(&owner, Qt::Key_1, Qt::AltModifier);
    QVERIFY(frame->MoreDetail_XPNL->Expanded());
}

QTEST_MAIN(ListDetailTest)
#include "ListDetailTest.moc"
