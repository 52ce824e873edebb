#include "NxExpandPanel.h"
#include "ActiveWindow.h"
#include "ExpandHeader.h"
#include "Ink.h"
#include "Look.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A panel with a part that stays and a part that opens.
struct TPanel
{
    TPanel()
    {
        Window.setLayoutDirection(Qt::RightToLeft);
        auto* column = new QVBoxLayout(&Window);
        Panel = new TNxExpandPanel(&Window);
        column->addWidget(Panel);
        column->addStretch(1);
        auto* parts = new QVBoxLayout(Panel);
        parts->setContentsMargins(0, 0, 0, 0);
        Fixed = new QLineEdit(Panel);
        Body = new QLineEdit(Panel);
        parts->addWidget(Fixed);
        parts->addWidget(Body);
        Panel->SetCollapsedText(QStringLiteral("بیشتر"));
        Panel->SetExpandedText(QStringLiteral("کمتر"));
        Panel->SetBody(Body);
        Window.resize(400, 300);
    }
    bool Show()
    {
        Window.show();
        return ActiveWindow::Activate(&Window);
    }

    QWidget Window;
    TNxExpandPanel* Panel = nullptr;
    QLineEdit* Fixed = nullptr;
    QLineEdit* Body = nullptr;
};

} // namespace

class NxExpandPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void theBodyIsShownWhileExpanded();
    void theHeaderTellsWhatItDoes();
    void theHeaderStandsAboveAllParts();
    void clickingTurnsThePanelOver();
    void keysOpenAndClose_data();
    void keysOpenAndClose();
    void arrowsAreMirroredFromLeftToRight();
    void aChangeIsToldOnce();
    void theFocusGoesFromTheBodyToTheHeader();
    void theFocusIsSeen();
    void assistiveToolsSeeTheState();
    void theHandlerMayDestroyThePanel();
    void aPanelWithoutABodyOnlyTellsItsState();
};

void NxExpandPanelTest::theBodyIsShownWhileExpanded()
{
    TPanel panel;
    QVERIFY(panel.Show());
    QVERIFY(!panel.Body->isVisible());
    const int closed = panel.Panel->height();
    panel.Panel->SetExpanded(true);
    QVERIFY(panel.Body->isVisible());
    QTRY_VERIFY(panel.Panel->height() > closed);
    panel.Panel->SetExpanded(false);
    QVERIFY(!panel.Body->isVisible());
    QVERIFY(panel.Fixed->isVisible());
    QTRY_COMPARE(panel.Panel->height(), closed);
}

void NxExpandPanelTest::theHeaderTellsWhatItDoes()
{
    TPanel panel;
    QCOMPARE(panel.Panel->Header()->text(), QStringLiteral("بیشتر"));
    panel.Panel->SetExpanded(true);
    QCOMPARE(panel.Panel->Header()->text(), QStringLiteral("کمتر"));
    panel.Panel->SetExpandedText(QStringLiteral("ببند"));
    QCOMPARE(panel.Panel->Header()->text(), QStringLiteral("ببند"));
}

void NxExpandPanelTest::theHeaderStandsAboveAllParts()
{
    TPanel panel;
    QVERIFY(panel.Show());
    panel.Panel->SetExpanded(true);
    QCoreApplication::processEvents();
    const QRect header = panel.Panel->Header()->geometry();
    QCOMPARE(header.width(), panel.Panel->width());
    QCOMPARE(header.top(), 0);
    QVERIFY(panel.Fixed->y() > header.bottom());
    QVERIFY(panel.Body->y() > panel.Fixed->geometry().bottom());
}

void NxExpandPanelTest::clickingTurnsThePanelOver()
{
    TPanel panel;
    QVERIFY(panel.Show());
    for (const bool expanded : {true, false}) {
        QTest::mouseClick(panel.Panel->Header(), Qt::LeftButton);
        QCOMPARE(panel.Panel->Expanded(), expanded);
    }
    QTest::mouseClick(panel.Panel->Header(), Qt::RightButton);
    QVERIFY(!panel.Panel->Expanded());
}

void NxExpandPanelTest::keysOpenAndClose_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    for (const bool before : {false, true}) {
        const char* state = before ? "open" : "closed";
        QTest::addRow("Space, %s", state) << Qt::Key_Space << before << !before;
        QTest::addRow("Enter, %s", state) << Qt::Key_Return << before << !before;
        QTest::addRow("Enter of the keypad, %s", state) << Qt::Key_Enter << before << !before;
        QTest::addRow("Left, %s", state) << Qt::Key_Left << before << true;
        QTest::addRow("Right, %s", state) << Qt::Key_Right << before << false;
        QTest::addRow("Down, %s", state) << Qt::Key_Down << before << true;
        QTest::addRow("Up, %s", state) << Qt::Key_Up << before << false;
        QTest::addRow("another, %s", state) << Qt::Key_A << before << before;
    }
}

void NxExpandPanelTest::keysOpenAndClose()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    TPanel panel;
    panel.Panel->SetExpanded(before);
    QVERIFY(panel.Show());
    panel.Panel->Header()->setFocus();
    QTest::keyClick(panel.Panel->Header(), key);
    QCOMPARE(panel.Panel->Expanded(), after);
}

void NxExpandPanelTest::arrowsAreMirroredFromLeftToRight()
{
    TPanel panel;
    panel.Window.setLayoutDirection(Qt::LeftToRight);
    QVERIFY(panel.Show());
    QTest::keyClick(panel.Panel->Header(), Qt::Key_Right);
    QVERIFY(panel.Panel->Expanded());
    QTest::keyClick(panel.Panel->Header(), Qt::Key_Left);
    QVERIFY(!panel.Panel->Expanded());
}

void NxExpandPanelTest::aChangeIsToldOnce()
{
    TPanel panel;
    const QSignalSpy changed(panel.Panel, &TNxExpandPanel::expandedChanged);
    int handled = 0;
    panel.Panel->OnExpandedChange = [&](QObject* sender) { handled += sender == panel.Panel ? 1 : 100; };
    panel.Panel->SetExpanded(false);
    QCOMPARE(changed.size(), 0);
    panel.Panel->SetExpanded(true);
    panel.Panel->SetExpanded(true);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(handled, 1);
}

void NxExpandPanelTest::theFocusGoesFromTheBodyToTheHeader()
{
    TPanel panel;
    panel.Panel->SetExpanded(true);
    QVERIFY(panel.Show());
    panel.Body->setFocus();
    panel.Panel->SetExpanded(false);
    QCOMPARE(QApplication::focusWidget(), panel.Panel->Header());
    panel.Panel->SetExpanded(true);
    panel.Fixed->setFocus();
    panel.Panel->SetExpanded(false);
    QCOMPARE(QApplication::focusWidget(), panel.Fixed);
}

void NxExpandPanelTest::theFocusIsSeen()
{
    TPanel panel;
    QVERIFY(panel.Show());
    panel.Fixed->setFocus();
    const QColor ring = Look::RingColor(panel.Panel->Header()->palette());
    const auto edge = [&panel] {
        return panel.Panel->Header()->grab().toImage().pixelColor(panel.Panel->width() / 2, 1);
    };
    QVERIFY(edge() != ring);
    panel.Panel->Header()->setFocus();
    QCOMPARE(edge(), ring);
}

void NxExpandPanelTest::assistiveToolsSeeTheState()
{
    TPanel panel;
    QAccessibleInterface* header = QAccessible::queryAccessibleInterface(panel.Panel->Header());
    QVERIFY(header != nullptr);
    QCOMPARE(header->role(), QAccessible::Button);
    QCOMPARE(header->text(QAccessible::Name), QStringLiteral("بیشتر"));
    QVERIFY(header->state().expandable);
    QVERIFY(header->state().collapsed);
    QAccessibleActionInterface* actions = header->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(panel.Panel->Expanded());
    QVERIFY(header->state().expanded);
    QVERIFY(!header->state().collapsed);
    QCOMPARE(header->text(QAccessible::Name), QStringLiteral("کمتر"));
}

void NxExpandPanelTest::theHandlerMayDestroyThePanel()
{
    TPanel panel;
    panel.Panel->OnExpandedChange = [](QObject* sender) { delete sender; };
    QPointer<TNxExpandPanel> alive(panel.Panel);
    panel.Panel->SetExpanded(true);
    QVERIFY(alive == nullptr);
}

void NxExpandPanelTest::aPanelWithoutABodyOnlyTellsItsState()
{
    TNxExpandPanel panel;
    panel.SetExpanded(true);
    QVERIFY(panel.Expanded());
    QCOMPARE(panel.minimumSizeHint().height(), Look::ControlHeight);
    auto body = std::make_unique<QWidget>(&panel);
    panel.SetBody(body.get());
    body.reset();
    panel.SetExpanded(false);
    QVERIFY(panel.Body() == nullptr);
}

QTEST_MAIN(NxExpandPanelTest)
#include "NxExpandPanelTest.moc"
