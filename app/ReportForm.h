#pragma once

#include "Page.h"
#include "ReportExport.h"

#include <functional>
#include <memory>

class QMenu;
class TListFooter;
class TPagedDataSet;
class TReferenceHost;
class TReportFilterPanel;
class TReportTotals;
class TSmartDBGrid_TRV;
class TTarvaSearchManager;

/// The report of voucher lines: filters above, the lines in the middle, and below them the condition in
/// words, the number of lines and the totals of the whole result. All of it by keyboard; nothing waits for
/// the database.
class TReportForm : public TPage
{
    Q_OBJECT

public:
    /// The host must outlive the form. Reads filters and order from the host's settings.
    explicit TReportForm(TReferenceHost& host, QWidget* parent = nullptr);
    ~TReportForm() override;

    void Enter() override;
    void SaveState() const override;
    void Reconnect() override { Refresh(); }
    QVector<TKeyHelp> Keys() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    TReportFilterPanel& Filters();
    TTarvaSearchManager& Manager();
    TPagedDataSet& DataSet();
    TSmartDBGrid_TRV& Grid();
    const TListFooter& Footer() const;
    const TReportTotals& Totals() const;
    /// Totals or a file are on their way.
    bool IsBusy() const;

    void Refresh(); ///< F5
    void Clear();   ///< Escape
    void SavePdf(); ///< Ctrl+P
    void SaveCsv(); ///< Ctrl+E
    /// Enter in the grid: asks for the voucher of the current line.
    void OpenVoucher();

    /// Asks the user for a file name, empty where he declines. A file dialog unless it is replaced.
    std::function<QString(const QString& suggested, const QString& filter)> AskFileName;

private:
    void Lay();
    QWidget* NewFooter();
    void ConnectData();
    void ShowDatesOfHost();
    void ConnectSums();
    void ConnectExport();
    void ConnectKeys();
    void RestoreState();
    void ShowCondition();
    void SwitchBetweenFiltersAndGrid();
    void FocusPeriod();
    void SaveAs(TReportExport::TFormat format);
    TReportQuestion Question();
    QString ConditionInWords();
    bool IsGregorian() const;
    void ReportFailure(const QString& message, const QString& details);

    TReferenceHost* host_;
    struct TParts;
    std::unique_ptr<TParts> parts_;
};
