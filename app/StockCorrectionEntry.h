#pragma once

#include "StockLedger.h"

#include <QDate>
#include <QWidget>

class TSmartComboBox_TRV;
class TSmartDateEdit_TRV;
class TSmartEdit_TRV;

/// One correction of the stock being typed: date, missing or left over, how much, why.
class TStockCorrectionEntry : public QWidget
{
    Q_OBJECT

public:
    /// Dates are typed and read in the calendar of the host.
    TStockCorrectionEntry(bool gregorian, const QDate& today, QWidget* parent);
    ~TStockCorrectionEntry() override;

    void Clear(); ///< for a new correction, of today
    void Show(const TStockCorrection& correction);
    /// What is typed; date and quantity are empty where they are none.
    TStockCorrection Typed() const;
    void FocusFirst();
    TSmartDateEdit_TRV& Date() { return *date_; }
    TSmartEdit_TRV& Quantity() { return *quantity_; }
    TSmartEdit_TRV& Reason() { return *reason_; }

Q_SIGNALS:
    void accepted();
    void rejected();

private:
    void Lay();

    QDate today_;
    TSmartDateEdit_TRV* date_;
    TSmartComboBox_TRV* direction_;
    TSmartEdit_TRV* quantity_;
    TSmartEdit_TRV* reason_;
};
