#include "ListFormFixture.h"

#include "PersianText.h"

class LargeListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHundredThousandGoodsScrollAndFilter()
    {
        TSampleSize size = TSampleSize::Small();
        size.Goods = 100'000;
        TListFormFixture shop(size);
        TListForm& list = shop.OpenList(GoodsList());
        QCOMPARE(list.DataSet().RecordCount(), size.Goods);

        shop.Press(Qt::Key_Down);
        shop.Press(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(list.DataSet().RecNo(), size.Goods);
        QVERIFY(list.DataSet().WaitForCurrentRow());
        const QString lastName = list.DataSet().FieldByName(QStringLiteral("Name"))->AsString();
        QVERIFY(!lastName.isEmpty());

        shop.Type(lastName);
        shop.Press(Qt::Key_Return);
        const TRecordCard* card = shop.WaitForCard();
        QVERIFY(card != nullptr);
        QCOMPARE(PersianText::Fold(card->FieldText(QStringLiteral("Name"))), PersianText::Fold(lastName));
        list.Card()->close();
    }
};

int main(int argc, char** argv)
{
    return RunFormTest<LargeListTest>(argc, argv);
}
#include "LargeListTest.moc"
