#pragma once

#include "VoucherDraft.h"

#include <QWidget>

class TADOConnection;
class TCurrency_FRAME;
class TSmartLabel_TRV;

/// The currency of a voucher's line, in the band: the currency and its rate, the day of the rate, and what
/// the typed amount comes to in the base currency.
class TVoucherCurrency : public QWidget
{
    Q_OBJECT

public:
    explicit TVoucherCurrency(QWidget* parent = nullptr);
    ~TVoucherCurrency() override;

    /// The voucher's day, whose rates count.
    void SetDate(const QString& date);
    /// The chosen currency and its rate; the amount is not known here.
    TLineCurrency Chosen() const;
    /// Shows the currency of a line at the rate that the line has.
    void Show(const TLineCurrency& currency);
    void ChooseBase();
    /// Shows what an amount in the chosen currency comes to.
    void ShowAmount(const QString& amount);
    /// Whether there is no rate, which the user has been told then.
    bool IsRefused();

    TCurrency_FRAME& Frame() { return *frame_; }
    QString RateSentence() const;   ///< of which day the rate is
    QString AmountSentence() const; ///< what the amount comes to

private:
    void Lay();
    void Refresh();
    void ReadRate();

    TCurrency_FRAME* frame_;
    TSmartLabel_TRV* rateNote_;
    TSmartLabel_TRV* amountNote_;
    QString date_;
    int readCode_ = 0; ///< the currency and day that the rate in force was read for
    QString readDate_;
    QString rateInForce_;
    QString rateDate_;
    QString amount_ = QStringLiteral("0");
};
