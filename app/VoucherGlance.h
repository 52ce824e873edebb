#pragma once

#include "ADOQuery.h"
#include "DataSource.h"

#include <QDialog>

class TGetVoucher_FRM;
class TReferenceHost;
class TSmartDBGrid_TRV;
class TSmartLabel_TRV;

/// A voucher to read, in the place that an empty frame keeps for it: head, lines, totals.
class TVoucherGlance : public QDialog
{
    Q_OBJECT

public:
    /// The host must outlive the window. Throws EADOError where the voucher cannot be read.
    TVoucherGlance(TReferenceHost& host, int fiscalYear, int number, QWidget* parent);
    ~TVoucherGlance() override;

    TGetVoucher_FRM& Place() { return *place_; }
    TADOQuery& Lines() { return lines_; }
    QString Head() const;
    QString Totals() const;

private:
    void Lay();
    void ReadHead(int fiscalYear, int number);
    void ReadLines(int voucherId);

    TReferenceHost* host_;
    TADOQuery lines_;
    TDataSource source_;
    TGetVoucher_FRM* place_;
    TSmartLabel_TRV* head_;
    TSmartDBGrid_TRV* grid_;
    TSmartLabel_TRV* totals_;
};
