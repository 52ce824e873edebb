#include "TabControl.h"
#include "ActiveWindow.h"
#include "TypedKeys.h"

#include <memory>

class TabControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheUsersChoiceIsRaised();
    void theFirstTabStandsAtTheRight();
    void arrowsFollowTheReadingDirection();
    void tabsAreReplaced();
    void theHandlerMayDestroyTheTabs();
    void tabsHaveTheGivenHeight();
};

namespace {

std::unique_ptr<TTabControl> ThreeTabs()
{
    auto tabs = std::make_unique<TTabControl>();
    tabs->setLayoutDirection(Qt::RightToLeft);
    for (const char* caption : {"همه", "پیش‌نویس", "قطعی"})
        tabs->AddTab(QString::fromUtf8(caption));
    tabs->resize(400, 30);
    tabs->show();
    return tabs;
}

} // namespace

void TabControlTest::onlyTheUsersChoiceIsRaised()
{
    const auto tabs = ThreeTabs();
    QVERIFY(ActiveWindow::Activate(tabs.get()));
    QList<int> raised;
    tabs->OnChange = [&](QObject* sender) {
        QCOMPARE(sender, tabs.get());
        raised << tabs->TabIndex();
    };
    tabs->SetTabIndex(2);
    QCOMPARE(tabs->TabIndex(), 2);
    QVERIFY(raised.isEmpty());
    QTest::mouseClick(tabs.get(), Qt::LeftButton, {}, tabs->tabRect(1).center());
    QTest::mouseClick(tabs.get(), Qt::LeftButton, {}, tabs->tabRect(1).center());
    QCOMPARE(raised, QList<int>{1});
}

void TabControlTest::theFirstTabStandsAtTheRight()
{
    const auto tabs = ThreeTabs();
    QVERIFY(tabs->tabRect(0).left() > tabs->tabRect(1).left());
    QVERIFY(tabs->tabRect(1).left() > tabs->tabRect(2).left());
    QVERIFY(tabs->tabRect(0).right() > tabs->width() - 20);
}

void TabControlTest::arrowsFollowTheReadingDirection()
{
    const auto tabs = ThreeTabs();
    QVERIFY(ActiveWindow::Activate(tabs.get()));
    tabs->setFocus();
    QList<int> raised;
    tabs->OnChange = [&](QObject*) { raised << tabs->TabIndex(); };
    TypedKeys::Stroke(tabs.get(), Qt::Key_Left);
    TypedKeys::Stroke(tabs.get(), Qt::Key_Left);
    TypedKeys::Stroke(tabs.get(), Qt::Key_Right);
    QCOMPARE(raised, (QList<int>{1, 2, 1}));
}

void TabControlTest::tabsAreReplaced()
{
    const auto tabs = ThreeTabs();
    int raised = 0;
    tabs->OnChange = [&](QObject*) { ++raised; };
    tabs->SetTabIndex(1);
    tabs->Clear();
    QCOMPARE(tabs->TabCount(), 0);
    QCOMPARE(tabs->TabIndex(), -1);
    tabs->AddTab(QStringLiteral("یک"));
    QCOMPARE(tabs->TabText(0), QStringLiteral("یک"));
    QCOMPARE(tabs->TabIndex(), 0);
    QCOMPARE(raised, 0);
}

void TabControlTest::theHandlerMayDestroyTheTabs()
{
    auto tabs = ThreeTabs();
    QVERIFY(ActiveWindow::Activate(tabs.get()));
    tabs->OnChange = [&](QObject* sender) {
        tabs.release();
        sender->deleteLater();
    };
    QTest::mouseClick(tabs.get(), Qt::LeftButton, {}, tabs->tabRect(2).center());
    QVERIFY(!tabs);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TabControlTest::tabsHaveTheGivenHeight()
{
    const auto tabs = ThreeTabs();
    tabs->SetTabHeight(24);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(tabs->tabRect(0).height(), 24);
    QCOMPARE(tabs->TabHeight(), 24);
}

QTEST_MAIN(TabControlTest)
#include "TabControlTest.moc"
