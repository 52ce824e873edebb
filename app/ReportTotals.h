#pragma once

#include "ReportSums.h"

#include <QWidget>

class TSmartLabel_TRV;

/// The line of totals below a report: debit, credit and balance of the whole result.
class TReportTotals : public QWidget
{
    Q_OBJECT

public:
    explicit TReportTotals(QWidget* parent = nullptr);
    ~TReportTotals() override;

    void Show(const TReportSum& sum);
    /// The totals are on their way; those of before would not belong to the rows any more.
    void ShowPending();
    void ShowFailure();
    QString DebitText() const;
    QString CreditText() const;
    QString BalanceText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowTexts(const QString& debit, const QString& credit, const QString& balance);

    TSmartLabel_TRV* debit_ = nullptr;
    TSmartLabel_TRV* credit_ = nullptr;
    TSmartLabel_TRV* balance_ = nullptr;
    TReportSum sum_;
    bool known_ = false;
};
