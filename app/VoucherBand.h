#pragma once

#include "SmartPanel_TRV.h"
#include "VoucherDraft.h"

#include <QVector>

class TEnterChain;
class TSelect_AccountCode;
class TSmartButton_TRV;
class TSmartEdit_TRV;

/// The band in which a line of a voucher is typed: account, debit, credit, description. Enter goes through it
/// and, at its end, hands the line over.
class TVoucherBand : public TSmartPanel_TRV
{
    Q_OBJECT

public:
    explicit TVoucherBand(QWidget* parent = nullptr);
    ~TVoucherBand() override;

    /// The line as it is typed.
    TVoucherLine Line() const;
    void Show(const TVoucherLine& line);
    void Clear();
    /// Nothing is typed.
    bool IsEmpty() const;
    /// Whether the line is one of the voucher that is being corrected: the button says so.
    void SetCorrecting(bool correcting);
    void SetEnabled(bool enabled);
    void FocusTotal();
    /// Points at the control at fault.
    void ShowFault(const TVoucherFault& fault);

    TSelect_AccountCode& Selector() { return *selector_; }
    TSmartEdit_TRV& Debit() { return *debit_; }
    TSmartEdit_TRV& Credit() { return *credit_; }
    TSmartEdit_TRV& Description() { return *description_; }
    TSmartButton_TRV& Button() { return *put_; }

Q_SIGNALS:
    void lineEntered();

private:
    void Lay();
    TSmartEdit_TRV* NewAmount(const QString& name, const QString& caption);
    TSmartEdit_TRV* ControlOf(TVoucherField field) const;

    TSelect_AccountCode* selector_;
    TSmartEdit_TRV* debit_;
    TSmartEdit_TRV* credit_;
    TSmartEdit_TRV* description_;
    TSmartButton_TRV* put_;
    TEnterChain* chain_ = nullptr;
};
