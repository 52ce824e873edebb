#pragma once

#include "ADOQuery.h"
#include "DataSource.h"
#include "StockLedger.h"

#include <functional>
#include <QDialog>

class TDetial_Grid_Frame;
class TReferenceHost;
class TSmartDBGrid_TRV;
class TSmartLabel_TRV;
class TStockCorrectionEntry;

/// The corrections of the stock of some goods: a grid of them, the buttons for its rows under it, and below
/// these the row being typed. Insert, F2 and Delete do what the buttons do.
class TStockCorrectionForm : public QDialog
{
    Q_OBJECT

public:
    /// The host must outlive the form. Throws EADOError where the corrections cannot be read.
    TStockCorrectionForm(TReferenceHost& host, int kala, const QString& name, QWidget* parent);
    ~TStockCorrectionForm() override;

    TDetial_Grid_Frame& Buttons() { return *buttons_; }
    TStockCorrectionEntry& Entry() { return *entry_; }
    TADOQuery& Rows() { return rows_; }
    /// Leaves the row being typed; closes where there is none.
    void reject() override;

    /// Asks before a row is deleted; a message box unless it is replaced.
    std::function<bool()> AskDelete;

Q_SIGNALS:
    /// Stock and vouchers may have changed; `marked` sales await their voucher being generated again.
    void corrected(int marked);

private:
    void Lay(const QString& name);
    void ConnectButtons();
    void Read();
    void Type(int id);
    void StopTyping();
    void AcceptRow();
    void Delete();
    int CurrentId(); ///< 0 where there is no row
    /// What is refused is told at the control.
    void Write(const std::function<int(TStockLedger& ledger)>& work, QWidget* control);

    TReferenceHost* host_;
    int kala_;
    int typedId_ = 0; ///< of the row being changed; 0 for a new one
    TADOQuery rows_;
    TDataSource source_;
    TSmartLabel_TRV* stock_;
    TSmartDBGrid_TRV* grid_;
    TDetial_Grid_Frame* buttons_;
    TStockCorrectionEntry* entry_;
};
