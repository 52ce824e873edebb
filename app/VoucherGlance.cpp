#include "VoucherGlance.h"

#include "DisplayText.h"
#include "GetVoucher_UNT.h"
#include "Look.h"
#include "QueryOpening.h"
#include "ReferenceHost.h"
#include "RelativeFonts.h"
#include "SmartDBGrid_TRV.h"
#include "SmartLabel_TRV.h"

#include <QHeaderView>
#include <QVBoxLayout>

TVoucherGlance::TVoucherGlance(TReferenceHost& host, int fiscalYear, int number, QWidget* parent)
    : QDialog(parent), host_(&host), place_(new TGetVoucher_FRM(this)), head_(new TSmartLabel_TRV(place_)),
      grid_(new TSmartDBGrid_TRV(place_)), totals_(new TSmartLabel_TRV(place_))
{
    setObjectName(QStringLiteral("VoucherGlance"));
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(QStringLiteral("سند"));
    Lay();
    ReadHead(fiscalYear, number);
}

TVoucherGlance::~TVoucherGlance()
{
    // The grid outlives the source.
    grid_->SetDataSource(nullptr);
}

QString TVoucherGlance::Head() const
{
    return head_->Caption();
}

QString TVoucherGlance::Totals() const
{
    return totals_->Caption();
}

void TVoucherGlance::Lay()
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    place_->setMinimumSize(place_->size());
    whole->addWidget(place_);
    auto* column = new QVBoxLayout(place_);
    column->setContentsMargins(Look::Margin, Look::Margin, Look::Margin, Look::Margin);
    head_->setFont(RelativeFonts::Bold());
    head_->SetShowAccelChar(false);
    totals_->SetShowAccelChar(false);
    constexpr int levelDigits = 3;
    grid_->SetColumns({
        {QStringLiteral("Kol"), QStringLiteral("کل"), 55, TGridColumn::ckCode, true, levelDigits},
        {QStringLiteral("Moin"), QStringLiteral("معین"), 55, TGridColumn::ckCode, true, levelDigits},
        {QStringLiteral("Tafzili"), QStringLiteral("تفصیلی"), 75, TGridColumn::ckCode},
        {QStringLiteral("Bed"), QStringLiteral("بدهکار"), 120, TGridColumn::ckMoney},
        {QStringLiteral("Bes"), QStringLiteral("بستانکار"), 120, TGridColumn::ckMoney},
        {QStringLiteral("Sharh"), QStringLiteral("شرح"), 160},
    });
    grid_->horizontalHeader()->setStretchLastSection(true);
    grid_->SetEmptyText(QStringLiteral("این سند ردیفی ندارد."));
    column->addWidget(head_);
    column->addWidget(grid_, 1);
    column->addWidget(totals_);
}

void TVoucherGlance::ReadHead(int fiscalYear, int number)
{
    TADOQuery head;
    OpenQuery(
        head, host_->Connection(),
        QStringLiteral("SELECT Id, VoucherDate, Title FROM dbo.Sanad WHERE FiscalYear = ? AND Number = ?"),
        {fiscalYear, number});
    if (head.IsEmpty()) {
        head_->SetCaption(QStringLiteral("سند %1 سال %2 دیگر وجود ندارد.").arg(number).arg(fiscalYear));
        return;
    }
    head_->SetCaption(
        QStringLiteral("سند %1 — %2 — %3")
            .arg(QString::number(number), head.Field(1)->AsString(), head.Field(2)->AsString()));
    const int id = head.Field(0)->AsInteger();
    head.Close();
    ReadLines(id);
}

void TVoucherGlance::ReadLines(int voucherId)
{
    OpenQuery(
        lines_, host_->Connection(),
        QStringLiteral(
            "SELECT Kol, Moin, Tafzili, Bed, Bes, Sharh FROM dbo.Sanad_Detail WHERE SanadId = ? ORDER BY RowNo"),
        {voucherId});
    source_.SetDataSet(&lines_);
    grid_->SetDataSource(&source_);
    TADOQuery sums;
    OpenQuery(
        sums, host_->Connection(),
        QStringLiteral("SELECT SUM(Bed) AS Bed, SUM(Bes) AS Bes FROM dbo.Sanad_Detail WHERE SanadId = ?"),
        {voucherId});
    const auto amount = [&sums](int field) {
        return DisplayText::FieldValue(sums.FieldValue(field), TGridColumn::ckMoney);
    };
    totals_->SetCaption(QStringLiteral("جمع بدهکار: %1    جمع بستانکار: %2").arg(amount(0), amount(1)));
}
