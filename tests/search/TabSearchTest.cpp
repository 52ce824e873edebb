#include "FilterForm.h"
#include "Tab_Search_UNT.h"
#include "TabControl.h"

namespace {

struct TTabFilter : TFilterForm<TTab_Search_Frame>
{
    TTabFilter()
    {
        Add(QStringLiteral("همه"), {});
        Add(QStringLiteral("پیش‌نویس"), 0);
        Add(QStringLiteral("قطعی"), QStringLiteral("2"));
    }

    void Add(const QString& title, const QVariant& value) const
    {
        TSearchItem item = Item(title, TSearchDataType::idtDigit);
        item.ItemValue = value;
        Criterion().SearchItems.Add(item);
    }

    TTarvaSearch& Criterion() const { return *Frame->TarvaSearch_Tab; }
    QStringList Tabs() const
    {
        QStringList tabs;
        for (int index = 0; index < Frame->Search_TBC->TabCount(); ++index)
            tabs << Frame->Search_TBC->TabText(index);
        return tabs;
    }
    void ClickTab(int index) const
    {
        QTest::mouseClick(Frame->Search_TBC, Qt::LeftButton, Qt::NoModifier,
                          Frame->Search_TBC->tabRect(index).center());
    }
};

} // namespace

class TabSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFormIsAsDesigned();
    void initShowsTheItemsAsTabs();
    void initKeepsTheItemOfTheHost();
    void withoutItemsThereAreNoTabs();
    void theTabsAreLaidOutFromTheRight();
    void choosingATabWritesItsValue();
    void aValueOfZeroFilters();
    void theKeyboardChoosesTabs();
    void initWritesNoValue();
    void aHandlerOfTheOwnerMayDestroyTheFrame();
};

void TabSearchTest::theFormIsAsDesigned()
{
    const TRecordingHost host;
    const TTab_Search_Frame frame;
    QCOMPARE(frame.size(), QSize(800, 33));
    QCOMPARE(frame.Search_TBC->TabCount(), 1);
    QCOMPARE(frame.Search_TBC->TabText(0), QStringLiteral("تست"));
    QCOMPARE(frame.Search_TBC->TabIndex(), 0);
    QCOMPARE(frame.Search_TBC->TabHeight(), 24);
    const TTarvaSearch& criterion = *frame.TarvaSearch_Tab;
    QCOMPARE(criterion.SearchTypes(), TSearchType::stGeneral);
    QCOMPARE(criterion.SearchItems.Count(), 0);
    QCOMPARE(criterion.ItemIndex(), 0);
    QVERIFY(!criterion.ZeroValueIgnore());
    QVERIFY(!criterion.Active());
}

void TabSearchTest::initShowsTheItemsAsTabs()
{
    const TTabFilter filter;
    filter.Frame->init();
    QCOMPARE(filter.Tabs(), (QStringList{"همه", "پیش‌نویس", "قطعی"}));
    QVERIFY(filter.Criterion().Active());
    QCOMPARE(filter.Frame->Search_TBC->TabIndex(), 0);
    filter.Frame->init();
    QCOMPARE(filter.Tabs().size(), 3);
}

void TabSearchTest::initKeepsTheItemOfTheHost()
{
    const TTabFilter filter;
    filter.Criterion().SetItemIndex(2);
    filter.Frame->init();
    QCOMPARE(filter.Frame->Search_TBC->TabIndex(), 2);
    QCOMPARE(filter.Criterion().ItemIndex(), 2);
}

void TabSearchTest::withoutItemsThereAreNoTabs()
{
    const TTabFilter filter;
    filter.Criterion().SearchItems.Clear();
    filter.Frame->init();
    QCOMPARE(filter.Tabs(), QStringList());
    QVERIFY(!filter.Criterion().Active());
}

void TabSearchTest::theTabsAreLaidOutFromTheRight()
{
    TTabFilter filter;
    QVERIFY(filter.Show());
    const QString aligned = QStringLiteral("SetWinControlRightAlign");
    QCOMPARE(filter.Host.Log.CountOf(aligned), 1);
    filter.Frame->init();
    QCOMPARE(filter.Host.Log.CountOf(aligned), 2);
    QCoreApplication::processEvents();
    const TTabControl& tabs = *filter.Frame->Search_TBC;
    QVERIFY(tabs.tabRect(0).left() > tabs.tabRect(1).left());
    QCOMPARE(tabs.geometry().bottom(), filter.Frame->rect().bottom());
    QVERIFY(filter.Frame->rect().contains(tabs.geometry()));
}

void TabSearchTest::choosingATabWritesItsValue()
{
    const TTabFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    filter.ClickTab(2);
    QCOMPARE(filter.Criterion().ItemIndex(), 2);
    QCOMPARE(filter.Criterion().Value1(), QVariant(QStringLiteral("2")));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::QString);
    filter.ClickTab(0);
    QVERIFY(!filter.Criterion().Value1().isValid());
    QVERIFY(filter.Criterion().Active());
}

void TabSearchTest::aValueOfZeroFilters()
{
    const TTabFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    filter.ClickTab(1);
    QCOMPARE(filter.Criterion().Value1(), QVariant(0));
    QCOMPARE(filter.Criterion().Value1().typeId(), QMetaType::Int);
    QVERIFY(!filter.Criterion().ZeroValueIgnore());
    QVERIFY(filter.Criterion().Active());
}

void TabSearchTest::theKeyboardChoosesTabs()
{
    const TTabFilter filter;
    filter.Frame->init();
    QVERIFY(filter.Show());
    filter.Frame->Search_TBC->setFocus();
    Typing::Press(filter.Frame->Search_TBC, Qt::Key_Left);
    QCOMPARE(filter.Criterion().ItemIndex(), 1);
    Typing::Press(filter.Frame->Search_TBC, Qt::Key_Right);
    QCOMPARE(filter.Criterion().ItemIndex(), 0);
}

void TabSearchTest::initWritesNoValue()
{
    const TTabFilter filter;
    filter.Criterion().SetItemIndex(1);
    filter.Frame->init();
    QVERIFY(!filter.Criterion().Value1().isValid());
}

void TabSearchTest::aHandlerOfTheOwnerMayDestroyTheFrame()
{
    TTabFilter filter;
    QObject::connect(&filter.Criterion(), &TTarvaSearch::activeChanged, filter.Form.get(),
                     [&] { delete std::exchange(filter.Frame, nullptr); });
    filter.Frame->init();
    QVERIFY(filter.Frame == nullptr);
}

QTEST_MAIN(TabSearchTest)
#include "TabSearchTest.moc"
