#include "FilterWindow.h"

#include "SmartDBGrid_TRV.h"

#include <QVBoxLayout>

TFilterWindow::TFilterWindow(TDataSource& source)
{
    auto* grid = new TSmartDBGrid_TRV(this);
    grid->SetColumns({
        {QStringLiteral("Code"), QStringLiteral("کد"), 80, TGridColumn::ckCode, true},
        {QStringLiteral("Name"), QStringLiteral("نام کالا"), 360, TGridColumn::ckText, true},
        {QStringLiteral("Barcode"), QStringLiteral("بارکد"), 140, TGridColumn::ckCode, true},
        {QStringLiteral("UnitName"), QStringLiteral("واحد"), 80, TGridColumn::ckText, true},
        {QStringLiteral("Price"), QStringLiteral("قیمت"), 140, TGridColumn::ckMoney, true},
        {QStringLiteral("Stock"), QStringLiteral("موجودی"), 100, TGridColumn::ckNumber, true},
    });
    grid->SetDataSource(&source);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grid);
    resize(1024, 700);
}
