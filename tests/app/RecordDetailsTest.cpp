#include "RecordDetails.h"
#include "Balloon.h"
#include "Detail_Button_UNT.h"
#include "ListDetail_FRAME_UNT.h"
#include "ListFormFixture.h"
#include "NxExpandPanel.h"
#include "PageExtras.h"
#include "SmartButton_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartDetailView_TRV.h"
#include "StockCorrectionEntry.h"
#include "StockCorrectionForm.h"

#include <QPushButton>

namespace {

struct TDetailedList : TListFormFixture
{
    TDetailedList() { Settings.SetUserInfo({1, QStringLiteral("مدیر")}); }

    TRecordDetails& Open(const TListDescription& description)
    {
        OpenList(description);
        PageExtras::AddTo(*List, Host);
        Activate(List.get());
        auto* details = List->findChild<TRecordDetails*>();
        List->DataSet().First();
        return *details;
    }
    QString Sql(const QString& statement)
    {
        const std::unique_ptr<IEngineRows> rows = Connection.Run(statement);
        return rows->Next() ? rows->Text(0) : QString();
    }
    static void Settle(TRecordDetails& details) { QTRY_VERIFY(!details.IsBusy()); }
    /// Goods that were sold and bought.
    int TradedGoods()
    {
        return Sql(QStringLiteral(
                       "SELECT TOP 1 r.KalaCode FROM dbo.TradeRows AS r INNER JOIN dbo.Trades AS t ON t.Id "
                       "= r.TradeId WHERE t.Kind = 2 ORDER BY r.KalaCode"))
            .toInt();
    }
    QString OpenDate()
    {
        return Sql(QStringLiteral("SELECT MAX(FromDate) FROM dbo.FiscalYears WHERE Closed = 0"));
    }
    QString StockOf(int code)
    {
        return Sql(QStringLiteral("SELECT Stock FROM dbo.kala WHERE Code = %1").arg(code));
    }
};

} // namespace

class RecordDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { shop_ = std::make_unique<TDetailedList>(); }
    void cleanup() { shop_.reset(); }
    void altOneOpensAndCloses();
    void theFixedValueIsThatOfTheRow();
    void valuesOfTheRecordAreRead();
    void purchasePricesMayBeHidden();
    void theStateIsKept();
    void personsHaveTheirOwnFacts();
    void theStockIsCorrected();
    void aCorrectionIsChangedAndDeleted();
    void aRefusedCorrectionIsTold();
    void escapeLeavesTheRowFirst();

private:
    TStockCorrectionForm* OpenCorrections();
    static void Enter(TStockCorrectionForm& form, const QString& date, const QString& quantity);

    std::unique_ptr<TDetailedList> shop_;
};

void RecordDetailsTest::altOneOpensAndCloses()
{
    TRecordDetails& details = shop_->Open(GoodsList());
    QVERIFY(!details.Frame().MoreDetail_XPNL->Expanded());
    TDetailedList::Press(Qt::Key_1, Qt::AltModifier);
    QVERIFY(details.Frame().MoreDetail_XPNL->Expanded());
    QVERIFY(details.Frame().DetailView_Large_Top_SDV->isVisible());
    TDetailedList::Press(Qt::Key_1, Qt::AltModifier);
    QVERIFY(!details.Frame().MoreDetail_XPNL->Expanded());
}

void RecordDetailsTest::theFixedValueIsThatOfTheRow()
{
    TRecordDetails& details = shop_->Open(GoodsList());
    const TSmartDetailView_TRV& fixed = *details.Frame().DetailView_Fixed_SDV;
    QCOMPARE(fixed.ShownCaption(), QStringLiteral("نام کالا"));
    QCOMPARE(fixed.ShownValue(), shop_->Text(0, QStringLiteral("Name")));
    shop_->List->DataSet().Next();
    QCOMPARE(fixed.ShownValue(), shop_->Text(1, QStringLiteral("Name")));
}

void RecordDetailsTest::valuesOfTheRecordAreRead()
{
    TRecordDetails& details = shop_->Open(GoodsList());
    details.Frame().CollapseOrExpand();
    const int code = shop_->TradedGoods();
    shop_->List->DataSet().SetRecNo(code);
    TDetailedList::Settle(details);
    const QString price = shop_->Sql(
        QStringLiteral(
            "SELECT TOP 1 r.Price FROM dbo.TradeRows AS r INNER JOIN dbo.Trades AS t ON t.Id = r.TradeId "
            "WHERE t.Kind = 2 AND r.KalaCode = %1 ORDER BY t.TradeDate DESC, t.Id DESC")
            .arg(code));
    const TSmartDetailView_TRV& view = *details.Frame().DetailView_Small_Bottom_SDV;
    QCOMPARE(view.ShownCaption(), QStringLiteral("قیمت آخرین خرید"));
    QCOMPARE(view.ShownValue().remove(u','), price);
    QVERIFY(!details.Frame().DetailView_Large_Bottom_SDV->ShownValue().isEmpty());
}

void RecordDetailsTest::purchasePricesMayBeHidden()
{
    shop_->Connection.Execute(QStringLiteral(
        "INSERT INTO dbo.Settings (UserCode, Name, Value) VALUES (1, N'HidePurchasePrices', N'1')"));
    TRecordDetails& details = shop_->Open(GoodsList());
    details.Frame().CollapseOrExpand();
    TDetailedList::Settle(details);
    QCOMPARE(details.Frame().DetailView_Small_Bottom_SDV->ShownValue(), QStringLiteral("دسترسی غیرمجاز"));
    QVERIFY(details.Frame().DetailView_Small_Top_SDV->ShownValue() != QStringLiteral("دسترسی غیرمجاز"));
}

void RecordDetailsTest::theStateIsKept()
{
    {
        TRecordDetails& details = shop_->Open(GoodsList());
        details.Frame().CollapseOrExpand();
        details.Frame().DetailView_Fixed_SDV->setFocus();
        TDetailedList::Press(Qt::Key_Down);
    }
    TRecordDetails& again = shop_->Open(GoodsList());
    QVERIFY(again.Frame().MoreDetail_XPNL->Expanded());
    QCOMPARE(again.Frame().DetailView_Fixed_SDV->ShownCaption(), QStringLiteral("بارکد"));
}

void RecordDetailsTest::personsHaveTheirOwnFacts()
{
    TRecordDetails& details = shop_->Open(PersonsList());
    details.Frame().CollapseOrExpand();
    TDetailedList::Settle(details);
    QCOMPARE(details.Frame().DetailView_Fixed_SDV->ShownValue(), shop_->Text(0, QStringLiteral("FullName")));
    QCOMPARE(details.Frame().DetailView_Large_Top_SDV->ShownCaption(), QStringLiteral("نشانی"));
    details.Frame().DetailView_Large_Bottom_SDV->SetItemIndex(1);
    QCOMPARE(details.Frame().DetailView_Large_Bottom_SDV->ShownValue(),
             shop_->Sql(QStringLiteral("SELECT COUNT(*) FROM dbo.Trades WHERE PersonCode = 1")));
}

TStockCorrectionForm* RecordDetailsTest::OpenCorrections()
{
    shop_->Open(GoodsList());
    shop_->List->Grid().setFocus();
    TDetailedList::Press(Qt::Key_M, Qt::ControlModifier);
    auto* form = shop_->List->findChild<TStockCorrectionForm*>();
    if (form != nullptr)
        TDetailedList::Activate(form);
    return form;
}

void RecordDetailsTest::Enter(TStockCorrectionForm& form, const QString& date, const QString& quantity)
{
    form.Entry().Date().SetText(date);
    form.Entry().Quantity().SetText(quantity);
    form.Entry().Reason().setFocus();
    TDetailedList::Press(Qt::Key_Return);
}

void RecordDetailsTest::theStockIsCorrected()
{
    TStockCorrectionForm* form = OpenCorrections();
    QVERIFY(form != nullptr);
    QVERIFY(!form->Buttons().EditRecord_BTN->isEnabled());
    QVERIFY(!form->Buttons().DeleteRecord_BTN->isEnabled());
    QVERIFY(!form->Entry().isVisible());
    const double before = shop_->StockOf(1).toDouble();
    QTest::mouseClick(form->Buttons().NewRecord_BTN, Qt::LeftButton);
    QVERIFY(form->Entry().isVisible());
    Enter(*form, shop_->OpenDate(), QStringLiteral("2.5"));
    QCOMPARE(shop_->StockOf(1).toDouble(), before - 2.5);
    QCOMPARE(form->Rows().RecordCount(), 1);
    QVERIFY(form->Buttons().EditRecord_BTN->isEnabled());
    QVERIFY(form->Buttons().DeleteRecord_BTN->isEnabled());
    QVERIFY(!form->Entry().isVisible());
    form->reject();
}

void RecordDetailsTest::aCorrectionIsChangedAndDeleted()
{
    TStockCorrectionForm* form = OpenCorrections();
    const QString before = shop_->StockOf(1);
    form->Buttons().NewRecord_BTN->Click();
    Enter(*form, shop_->OpenDate(), QStringLiteral("4"));
    form->Buttons().EditRecord_BTN->Click();
    QCOMPARE(form->Entry().Typed().Quantity, QStringLiteral("-4"));
    Enter(*form, shop_->OpenDate(), QStringLiteral("1"));
    QCOMPARE(shop_->StockOf(1).toDouble(), before.toDouble() - 1);
    QCOMPARE(form->Rows().RecordCount(), 1);
    bool answer = false;
    form->AskDelete = [&answer] { return answer; };
    form->Buttons().DeleteRecord_BTN->Click();
    QCOMPARE(form->Rows().RecordCount(), 1);
    answer = true;
    form->Buttons().DeleteRecord_BTN->Click();
    QCOMPARE(form->Rows().RecordCount(), 0);
    QCOMPARE(shop_->StockOf(1), before);
    QVERIFY(!form->Buttons().DeleteRecord_BTN->isEnabled());
    form->reject();
}

void RecordDetailsTest::aRefusedCorrectionIsTold()
{
    TStockCorrectionForm* form = OpenCorrections();
    const QString before = shop_->StockOf(1);
    form->Buttons().NewRecord_BTN->Click();
    Enter(*form, QStringLiteral("1390/01/01"), QStringLiteral("1"));
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("سال مالی")));
    Enter(*form, shop_->OpenDate(), QString());
    QVERIFY(Balloon::ShownText().contains(QStringLiteral("صفر")));
    QVERIFY(form->Entry().isVisible());
    QCOMPARE(shop_->StockOf(1), before);
    form->reject();
    form->reject();
}

void RecordDetailsTest::escapeLeavesTheRowFirst()
{
    QPointer<TStockCorrectionForm> form = OpenCorrections();
    form->Buttons().NewRecord_BTN->Click();
    TDetailedList::Press(Qt::Key_Escape);
    QVERIFY(form != nullptr && form->isVisible());
    QVERIFY(!form->Entry().isVisible());
    TDetailedList::Press(Qt::Key_Escape);
    QTRY_VERIFY(form == nullptr);
}

int main(int argc, char** argv)
{
    return RunFormTest<RecordDetailsTest>(argc, argv);
}
#include "RecordDetailsTest.moc"
