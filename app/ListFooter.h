#pragma once

#include <QTimer>
#include <QWidget>

class TBusySign;
class TPagedDataSet;
class TSmartLabel_TRV;

/// The line below a list: at the right the condition in words, at the left the number of rows, and a busy
/// sign where an answer takes longer than a moment.
class TListFooter : public QWidget
{
    Q_OBJECT

public:
    /// `dataSet` must outlive the footer.
    explicit TListFooter(TPagedDataSet& dataSet, QWidget* parent = nullptr);
    ~TListFooter() override;

    void SetConditionInWords(const QString& words);
    QString ConditionInWords() const;
    /// "12٬345 ردیف", or "در حال شمارش…" until the number is exact.
    QString CountText() const;
    bool ShowsBusy() const;
    /// How many rows are marked, besides the current one; 0 says nothing.
    void SetMarkedCount(qsizetype count);
    QString MarkedText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowCount();
    void FollowBusy(bool busy);

    TPagedDataSet* dataSet_;
    TSmartLabel_TRV* words_;
    TSmartLabel_TRV* patience_;
    TSmartLabel_TRV* marked_;
    TSmartLabel_TRV* count_;
    TBusySign* sign_;
    QTimer signDelay_;
    QTimer patienceDelay_;
};
