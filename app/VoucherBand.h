#pragma once

#include "SmartPanel_TRV.h"
#include "VoucherDraft.h"

#include <optional>
#include <QVector>

class TEnterChain;
class TSelect_AccountCode;
class TSmartButton_TRV;
class TSmartEdit_TRV;
class TVoucherCurrency;

/// The band in which a line of a voucher is typed: account, currency, debit, credit, description. Amounts are
/// typed in the chosen currency. Enter goes through it, past the currency, and at its end hands the line
/// over.
class TVoucherBand : public TSmartPanel_TRV
{
    Q_OBJECT

public:
    explicit TVoucherBand(QWidget* parent = nullptr);
    ~TVoucherBand() override;

    /// The line as it is typed, its amounts in the base currency. One that was shown and not changed comes
    /// back with the amounts that it had.
    TVoucherLine Line() const;
    void Show(const TVoucherLine& line);
    /// The currency stays, for the next line.
    void Clear();
    /// Nothing is typed but perhaps a currency chosen.
    bool IsEmpty() const;
    /// Whether the line is one of the voucher that is being corrected: the button says so.
    void SetCorrecting(bool correcting);
    void SetEnabled(bool enabled);
    void FocusTotal();
    void FocusCurrency();
    /// Points at the control at fault.
    void ShowFault(const TVoucherFault& fault);

    TSelect_AccountCode& Selector() { return *selector_; }
    TSmartEdit_TRV& Debit() { return *debit_; }
    TSmartEdit_TRV& Credit() { return *credit_; }
    TSmartEdit_TRV& Description() { return *description_; }
    TSmartButton_TRV& Button() { return *put_; }
    TVoucherCurrency& Currency() { return *currency_; }

Q_SIGNALS:
    void lineEntered();

private:
    TVoucherLine Typed() const;
    void ShowAmount();
    void Lay();
    TSmartEdit_TRV* NewAmount(const QString& name, const QString& caption);
    TSmartEdit_TRV* ControlOf(TVoucherField field) const;

    TSelect_AccountCode* selector_;
    TSmartEdit_TRV* debit_;
    TSmartEdit_TRV* credit_;
    TSmartEdit_TRV* description_;
    TSmartButton_TRV* put_;
    TVoucherCurrency* currency_;
    TEnterChain* chain_ = nullptr;
    std::optional<TVoucherLine> shown_; ///< the line that is being corrected
    TVoucherLine typedOfShown_;         ///< what the controls held when it had been shown
};
