#pragma once

#include <QWidget>

class TSmartLabel_TRV;
class TVoucherDraft;

/// The line below a voucher: totals of debit and credit and what is missing to the balance, exact to the last
/// digit, and what the voucher's state is.
class TVoucherTotals : public QWidget
{
    Q_OBJECT

public:
    explicit TVoucherTotals(QWidget* parent = nullptr);
    ~TVoucherTotals() override;

    void Show(const TVoucherDraft& draft);
    /// A sentence about the voucher: new, saved, confirmed.
    void Tell(const QString& sentence);
    QString Told() const;
    QString DebitText() const;
    QString CreditText() const;
    QString BalanceText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Repaint();

    TSmartLabel_TRV* state_ = nullptr;
    TSmartLabel_TRV* debit_ = nullptr;
    TSmartLabel_TRV* credit_ = nullptr;
    TSmartLabel_TRV* balance_ = nullptr;
    bool balanced_ = true;
};
