#include "ActiveWindow.h"
#include "GoodsTable.h"
#include "Ink.h"
#include "Look.h"
#include "SmartDetailView_TRV.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

namespace {

struct TView : TSmartDetailView_TRV
{
    TView()
    {
        setLayoutDirection(Qt::RightToLeft);
        SetAccessDeniedText(QStringLiteral("دسترسی غیرمجاز"));
        resize(300, 48);
    }
    void AddThree()
    {
        AddItem({QStringLiteral("مانده"), QStringLiteral("-1234567.5"), TGridColumn::ckMoney});
        AddItem({QStringLiteral("شهر"), QStringLiteral("تهران")});
        AddItem({QStringLiteral("فعال"), true});
        Fill_PopMenu();
    }
    /// The captions that can be chosen, the checked one in brackets.
    QStringList Choices()
    {
        QStringList choices;
        for (const QAction* action : PopupMenu()->actions()) {
            if (action->isCheckable())
                choices << (action->isChecked() ? QStringLiteral("[%1]").arg(action->text())
                                                : action->text());
        }
        return choices;
    }
    QAction* Choice(int index) { return PopupMenu()->actions().at(index); }
};

} // namespace

class SmartDetailViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Look::Install(*qApp, Look::TScheme::Light); }
    void init() { QApplication::clipboard()->setText(QStringLiteral("پیش")); }
    void itemZeroIsShownFirst();
    void valuesReadAsInAGrid_data();
    void valuesReadAsInAGrid();
    void theMenuIsRebuiltOnlyByFillPopMenu();
    void theMenuOffersWhatCanBeSelected();
    void anItemThatIsGoneGivesWayToItemZero();
    void choosingFromTheMenuShowsTheItem();
    void writingTheIndexRaisesNothing();
    void upAndDownStepThroughTheMenusItems();
    void keysOpenTheMenu_data();
    void keysOpenTheMenu();
    void theMouseOpensTheMenu();
    void aViewWithoutItemsIsEmptyAndQuiet();
    void aDeniedValueIsNeitherShownNorCopied();
    void theValueIsCopiedWithoutGroups();
    void theCurrentRowGivesTheValue();
    void aSourceThatGoesAwayLeavesNoValue();
    void itemsThatDoNotExistAreRefused();
    void negativeAmountsAndDenialAreSeen();
    void theFocusIsSeen();
    void assistiveToolsReadCaptionAndValue();
    void theHandlerMayDestroyTheView();
};

void SmartDetailViewTest::itemZeroIsShownFirst()
{
    TView view;
    view.AddThree();
    QCOMPARE(view.ItemIndex(), 0);
    QCOMPARE(view.ShownCaption(), QStringLiteral("مانده"));
    QCOMPARE(view.ShownValue(), QStringLiteral("-1,234,567.5"));
}

void SmartDetailViewTest::valuesReadAsInAGrid_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<TGridColumn::TKind>("kind");
    QTest::addColumn<QString>("shown");
    QTest::newRow("money") << QVariant(1234567) << TGridColumn::ckMoney << "1,234,567";
    QTest::newRow("code") << QVariant(1234567) << TGridColumn::ckCode << "1234567";
    QTest::newRow("date") << QVariant("2024-03-20") << TGridColumn::ckDate << "1403/01/01";
    QTest::newRow("yes") << QVariant(true) << TGridColumn::ckText << "بله";
    QTest::newRow("nothing") << QVariant() << TGridColumn::ckText << "";
    QTest::newRow("two lines") << QVariant("یک\nدو") << TGridColumn::ckText << "یک دو";
}

void SmartDetailViewTest::valuesReadAsInAGrid()
{
    QFETCH(const QVariant, value);
    QFETCH(const TGridColumn::TKind, kind);
    TView view;
    view.AddItem({QStringLiteral("مقدار"), value, kind});
    QTEST(view.ShownValue(), "shown");
}

void SmartDetailViewTest::theMenuIsRebuiltOnlyByFillPopMenu()
{
    TView view;
    view.AddThree();
    view.AddItem({QStringLiteral("تازه"), 1});
    QCOMPARE(view.Choices(), (QStringList{"[مانده]", "شهر", "فعال"}));
    view.Fill_PopMenu();
    QCOMPARE(view.Choices(), (QStringList{"[مانده]", "شهر", "فعال", "تازه"}));
    view.ClearItems();
    view.AddItem({QStringLiteral("تنها"), 1});
    view.Fill_PopMenu();
    QCOMPARE(view.Choices(), QStringList{"[تنها]"});
}

void SmartDetailViewTest::theMenuOffersWhatCanBeSelected()
{
    TView view;
    TDetailItem fixed{QStringLiteral("ثابت"), 1};
    fixed.Selectable = false;
    view.AddItem({QStringLiteral("یک"), 1});
    view.AddItem(fixed);
    view.AddItem({QStringLiteral("دو"), 2});
    view.Fill_PopMenu();
    QCOMPARE(view.Choices(), (QStringList{"[یک]", "دو"}));
    view.SetItemIndex(2);
    QCOMPARE(view.Choices(), (QStringList{"یک", "[دو]"}));
}

void SmartDetailViewTest::anItemThatIsGoneGivesWayToItemZero()
{
    TView view;
    view.AddThree();
    view.SetItemIndex(2);
    view.ClearItems();
    view.AddItem({QStringLiteral("تنها"), 1});
    QCOMPARE(view.ShownCaption(), QString());
    view.Fill_PopMenu();
    QCOMPARE(view.ItemIndex(), 0);
    QCOMPARE(view.ShownCaption(), QStringLiteral("تنها"));
}

void SmartDetailViewTest::choosingFromTheMenuShowsTheItem()
{
    TView view;
    view.AddThree();
    const QSignalSpy chosen(&view, &TSmartDetailView_TRV::itemChosen);
    int handled = 0;
    view.OnChange = [&](QObject*) { ++handled; };
    view.Choice(1)->trigger();
    QCOMPARE(view.ItemIndex(), 1);
    QCOMPARE(view.ShownValue(), QStringLiteral("تهران"));
    QCOMPARE(view.Choices(), (QStringList{"مانده", "[شهر]", "فعال"}));
    view.Choice(1)->trigger();
    QCOMPARE(handled, 1);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toInt(), 1);
}

void SmartDetailViewTest::writingTheIndexRaisesNothing()
{
    TView view;
    view.AddThree();
    view.OnChange = [](QObject*) { QFAIL("raised by code"); };
    view.SetItemIndex(2);
    QCOMPARE(view.ShownValue(), QStringLiteral("بله"));
    view.SetItemIndex(-5);
    QCOMPARE(view.ItemIndex(), 0);
    view.SetItemIndex(99);
    QCOMPARE(view.ShownCaption(), QString());
    view.Fill_PopMenu();
    QCOMPARE(view.ItemIndex(), 0);
}

void SmartDetailViewTest::upAndDownStepThroughTheMenusItems()
{
    TView view;
    view.AddThree();
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    view.setFocus();
    const auto after = [&view](Qt::Key key) {
        QTest::keyClick(&view, key);
        return view.ItemIndex();
    };
    QCOMPARE(after(Qt::Key_Down), 1);
    QCOMPARE(after(Qt::Key_Down), 2);
    QCOMPARE(after(Qt::Key_Down), 2);
    QCOMPARE(after(Qt::Key_Up), 1);
    QCOMPARE(after(Qt::Key_Up), 0);
    QCOMPARE(after(Qt::Key_Up), 0);
}

void SmartDetailViewTest::keysOpenTheMenu_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers none;
    QTest::newRow("Enter") << Qt::Key_Return << none;
    QTest::newRow("Space") << Qt::Key_Space << none;
    QTest::newRow("Alt+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::AltModifier);
}

void SmartDetailViewTest::keysOpenTheMenu()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    TView view;
    view.AddThree();
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    view.setFocus();
    QTest::keyClick(&view, key, modifiers);
    QVERIFY(view.PopupMenu()->isVisible());
    QCOMPARE(view.ItemIndex(), 0);
    view.PopupMenu()->close();
}

void SmartDetailViewTest::theMouseOpensTheMenu()
{
    TView view;
    view.AddThree();
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(14, 24));
    QVERIFY(view.PopupMenu()->isVisible());
    view.PopupMenu()->close();
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(200, 24));
    QVERIFY(!view.PopupMenu()->isVisible());
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(200, 24), view.mapToGlobal(QPoint(200, 24)));
    QApplication::sendEvent(&view, &event);
    QVERIFY(view.PopupMenu()->isVisible());
    view.PopupMenu()->close();
}

void SmartDetailViewTest::aViewWithoutItemsIsEmptyAndQuiet()
{
    TView view;
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return})
        QTest::keyClick(&view, key);
    QVERIFY(!view.PopupMenu()->isVisible());
    QCOMPARE(view.ShownCaption(), QString());
    QCOMPARE(view.ShownValue(), QString());
    view.CopyValue();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("پیش"));
}

void SmartDetailViewTest::aDeniedValueIsNeitherShownNorCopied()
{
    TView view;
    view.AddThree();
    view.SetDenied(0, true);
    QCOMPARE(view.ShownValue(), QStringLiteral("دسترسی غیرمجاز"));
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("پیش"));
    view.SetDenied(0, false);
    QCOMPARE(view.ShownValue(), QStringLiteral("-1,234,567.5"));
}

void SmartDetailViewTest::theValueIsCopiedWithoutGroups()
{
    TView view;
    view.AddThree();
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("-1234567.5"));
    view.SetItemIndex(1);
    view.PopupMenu()->actions().last()->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("تهران"));
}

void SmartDetailViewTest::theCurrentRowGivesTheValue()
{
    TGoodsTable goods(5);
    const auto query = goods.Query();
    TDataSource source;
    source.SetDataSet(query.get());
    TView view;
    view.AddItem({QStringLiteral("نام"), {}, TGridColumn::ckText, QStringLiteral("Name")});
    view.AddItem({QStringLiteral("فعال"), {}, TGridColumn::ckText, QStringLiteral("Active")});
    view.AddItem({QStringLiteral("هیچ"), {}, TGridColumn::ckText, QStringLiteral("NoSuchField")});
    view.SetDataSource(&source);
    QCOMPARE(view.ShownValue(), TGoodsTable::NameOf(1));
    query->Next();
    QCOMPARE(view.ShownValue(), TGoodsTable::NameOf(2));
    view.SetItemIndex(1);
    QCOMPARE(view.ShownValue(), QStringLiteral("خیر"));
    view.SetItemIndex(2);
    QCOMPARE(view.ShownValue(), QString());
    query->Close();
    view.SetItemIndex(0);
    QCOMPARE(view.ShownValue(), QString());
}

void SmartDetailViewTest::aSourceThatGoesAwayLeavesNoValue()
{
    TGoodsTable goods(2);
    const auto query = goods.Query();
    TView view;
    view.AddItem({QStringLiteral("نام"), {}, TGridColumn::ckText, QStringLiteral("Name")});
    {
        TDataSource source;
        source.SetDataSet(query.get());
        view.SetDataSource(&source);
        QVERIFY(!view.ShownValue().isEmpty());
    }
    QCOMPARE(view.ShownValue(), QString());
}

void SmartDetailViewTest::itemsThatDoNotExistAreRefused()
{
    TView view;
    view.AddThree();
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, view.Item(3));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, view.SetValue(-1, 1));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, view.SetDenied(7, true));
}

void SmartDetailViewTest::negativeAmountsAndDenialAreSeen()
{
    TView view;
    view.AddThree();
    const auto isWrong = [&view] {
        return Ink::Has(view.grab().toImage(), Look::Color(Look::TRole::Wrong), 20);
    };
    QVERIFY(isWrong());
    view.SetValue(0, 12);
    QVERIFY(!isWrong());
    view.SetDenied(0, true);
    QVERIFY(isWrong());
}

void SmartDetailViewTest::theFocusIsSeen()
{
    TView view;
    view.AddThree();
    view.show();
    QVERIFY(ActiveWindow::Activate(&view));
    const auto edge = [&view] { return view.grab().toImage().pixelColor(150, 1); };
    const QColor ring = Look::RingColor(view.palette());
    view.clearFocus();
    QVERIFY(edge() != ring);
    view.setFocus();
    QCOMPARE(edge(), ring);
}

void SmartDetailViewTest::assistiveToolsReadCaptionAndValue()
{
    TView view;
    view.AddThree();
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&view);
    QVERIFY(interface != nullptr);
    QCOMPARE(interface->role(), QAccessible::ButtonMenu);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("مانده"));
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("-1,234,567.5"));
}

void SmartDetailViewTest::theHandlerMayDestroyTheView()
{
    auto* view = new TView;
    const QPointer<TSmartDetailView_TRV> alive(view);
    view->AddThree();
    view->OnChange = [](QObject* sender) { sender->deleteLater(); };
    view->Choice(1)->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alive == nullptr);
}

QTEST_MAIN(SmartDetailViewTest)
#include "SmartDetailViewTest.moc"
