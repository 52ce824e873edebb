#include "TarvaSearch.h"
#include "TestCase.h"

#include <QLineEdit>
#include <QSignalSpy>

class TarvaSearchTest : public TTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewCriterionIsOffNotReversedAndHasNoItem()
    {
        const TTarvaSearch criterion;
        QVERIFY(!criterion.Active());
        QVERIFY(!criterion.Reverst());
        QCOMPARE(criterion.ItemIndex(), -1);
        QCOMPARE(criterion.SearchTypes(), TSearchType::stGeneral);
        QVERIFY(criterion.ZeroValueIgnore());
        QVERIFY(!criterion.Value1().isValid());
        QVERIFY(!criterion.Value2().isValid());
        QVERIFY(!criterion.CurrentItem());
    }

    void theKindsThatFramesTestByPositionHaveTheirOrdinals()
    {
        QCOMPARE(static_cast<int>(TSearchDataType::idtString), 0);
        QCOMPARE(static_cast<int>(TSearchDataType::idtMoney), 1);
        QCOMPARE(static_cast<int>(TSearchDataType::idtDigit), 2);
        QCOMPARE(static_cast<int>(TSearchDataType::idtDateTime), 3);
        QCOMPARE(static_cast<int>(TSearchFilterType::iftDataset), 0);
        QCOMPARE(static_cast<int>(TSearchFilterType::iftQuery), 1);
    }

    void aNewItemIsATextWithoutLimit()
    {
        const TSearchItem item;
        QCOMPARE(item.DataType, TSearchDataType::idtString);
        QCOMPARE(item.FilterType, TSearchFilterType::iftDataset);
        QCOMPARE(item.MaxLength, 0);
        QVERIFY(!item.ItemValue.isValid());
    }

    void onChangeComesInsideTheSetters()
    {
        TTarvaSearch criterion;
        QObjectList senders;
        QVariantList values;
        criterion.OnChange = [&](QObject* sender) {
            senders.append(sender);
            values.append(criterion.Value1());
        };
        criterion.SetValue1(QStringLiteral("الف"));
        QCOMPARE(values, QVariantList{QStringLiteral("الف")});
        criterion.SetValue2(7);
        QCOMPARE(senders, (QObjectList{&criterion, &criterion}));
    }

    void onChangeItemIndexComesInsideTheSetter()
    {
        TTarvaSearch criterion;
        int seen = -2;
        criterion.OnChangeItemIndex = [&](QObject*) { seen = criterion.ItemIndex(); };
        criterion.SetItemIndex(3);
        QCOMPARE(seen, 3);
    }

    void theSameValueRaisesNothing()
    {
        TTarvaSearch criterion;
        int raised = 0;
        criterion.SetValue1(QStringLiteral("5"));
        criterion.SetItemIndex(1);
        criterion.OnChange = criterion.OnChangeItemIndex = [&](QObject*) { ++raised; };
        QSignalSpy changed(&criterion, &TTarvaSearch::changed);
        criterion.SetValue1(QStringLiteral("5"));
        criterion.SetItemIndex(1);
        QCOMPARE(raised, 0);
        QCOMPARE(changed.count(), 0);
    }

    void aValueOfAnotherTypeIsAnotherValue()
    {
        TTarvaSearch criterion;
        criterion.SetValue1(QStringLiteral("5"));
        QSignalSpy changed(&criterion, &TTarvaSearch::changed);
        criterion.SetValue1(5);
        criterion.SetValue1(5.0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(criterion.Value1().typeId(), static_cast<int>(QMetaType::Double));
    }

    void signalsComeWhateverHandlersAreSet()
    {
        TTarvaSearch criterion;
        QSignalSpy changed(&criterion, &TTarvaSearch::changed);
        QSignalSpy index(&criterion, &TTarvaSearch::itemIndexChanged);
        QSignalSpy active(&criterion, &TTarvaSearch::activeChanged);
        QSignalSpy reverst(&criterion, &TTarvaSearch::reverstChanged);
        criterion.SetValue1(1);
        criterion.SetItemIndex(0);
        criterion.SetActive(true);
        criterion.SetReverst(true);
        QCOMPARE(changed.count() + index.count() + active.count() + reverst.count(), 4);
    }

    void aHandlerMayWriteTheSameValueBack()
    {
        TTarvaSearch criterion;
        int raised = 0;
        criterion.OnChange = [&](QObject*) {
            ++raised;
            criterion.SetValue1(criterion.Value1());
        };
        criterion.SetValue1(QStringLiteral("x"));
        QCOMPARE(raised, 1);
    }

    void boundsReadAsIntegers_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << QVariant() << 0;
        QTest::newRow("empty text") << QVariant(QString()) << 0;
        QTest::newRow("text") << QVariant(QStringLiteral("00120")) << 120;
        QTest::newRow("no number") << QVariant(QStringLiteral("12a")) << 0;
        QTest::newRow("floating point") << QVariant(12.0) << 12;
        QTest::newRow("largest") << QVariant(2147483647) << 2147483647;
        QTest::newRow("too large") << QVariant(qint64(2147483648)) << 0;
        QTest::newRow("negative") << QVariant(QStringLiteral("-3")) << -3;
    }
    void boundsReadAsIntegers()
    {
        QFETCH(QVariant, value);
        QFETCH(int, expected);
        TTarvaSearch criterion;
        criterion.SetValue1(value);
        criterion.SetValue2(value);
        QCOMPARE(criterion.GetValue1AsInt(), expected);
        QCOMPARE(criterion.GetValue2AsInt(), expected);
    }

    void anIndexOutsideTheItemsIsKeptAndMeansNone()
    {
        TTarvaSearch criterion;
        criterion.SetItemIndex(1);
        QVERIFY(!criterion.CurrentItem());
        criterion.SearchItems.Add();
        QVERIFY(!criterion.CurrentItem());
        TSearchItem& second = criterion.SearchItems.Add();
        QCOMPARE(criterion.CurrentItem(), &second);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, criterion.SearchItems.GetItem(2));
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, criterion.SearchItems.GetItem(-1));
    }

    void itemsStayWhereTheyAreWhenMoreAreAdded()
    {
        TSearchCollection items;
        TSearchItem& first = items.Add();
        for (int count = 0; count < 100; ++count)
            items.Add();
        QCOMPARE(&items.GetItem(0), &first);
        items.Clear();
        QCOMPARE(items.Count(), 0);
    }

    void aDestroyedControlIsForgotten()
    {
        TTarvaSearch criterion;
        auto control = std::make_unique<QLineEdit>();
        criterion.SetFocusControl(control.get());
        criterion.SetFollowControl(control.get());
        QCOMPARE(criterion.FocusControl(), control.get());
        control.reset();
        QVERIFY(!criterion.FocusControl());
        QVERIFY(!criterion.FollowControl());
    }
};

QTEST_MAIN(TarvaSearchTest)
#include "TarvaSearchTest.moc"
