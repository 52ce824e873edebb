#pragma once

#include "DatePeriods.h"
#include "Frame.h"
#include "TarvaSearch.h"

class TSmartComboBox_TRV;
class TSmartDateEdit_TRV;
class TSmartLabel_TRV;

/// Limits a list to a period relative to today: the last 30 or 7 days, the current month or week, or
/// everything. Date texts are in the calendar of the host's settings, which is asked each time.
///
/// The owner gives the item of Tarva_DisplayRange its field name and calls init().
class BASEFRAME_EXPORT TDateRange_Display_FRAM : public TFrame
{
    Q_OBJECT

public:
    explicit TDateRange_Display_FRAM(QWidget* owner = nullptr);
    ~TDateRange_Display_FRAM() override;

    /// Hands the chosen period to the criterion and switches it on.
    void init() const;
    /// The choice of a period.
    void RangeDate_CMBChange(QObject* Sender) const;
    /// Writes the bounds of the chosen period into the criterion.
    void SetRangeValue() const;
    QString getToday() const; ///< as text in the calendar of the host, as all days here
    /// Today less `days`.
    QString decDay(int days) const;
    /// The start of the current month or week.
    QString GetCurrentTime(currentTime kind) const;
    QString GetEndmonth() const; ///< the last day of the current month
    QString GetEndWeek() const;  ///< the last day of the current week
    /// The condition without a part of it.
    QString DeleteSubCondition(const QString& condition, const QString& subCondition) const;

    TSmartLabel_TRV* RangeDate_LBL = nullptr;
    TSmartComboBox_TRV* RangeDate_CMB = nullptr;
    TSmartDateEdit_TRV* RangeDate_From_EDT = nullptr; ///< hidden; for owners that show a date of their own
    TTarvaSearch* Tarva_DisplayRange = nullptr;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static TDatePeriods Periods();
};
