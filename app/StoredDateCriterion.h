#pragma once

#include "TarvaSearch.h"

/// A frame's criterion over a column that keeps solar dates as texts. Frames hand dates out in the calendar
/// that they are told, some without leading zeros; this one says the same as the frame's in the column's own
/// form. It follows the frame's criterion by itself, and takes its place at the search manager.
class TStoredDateCriterion : public TTarvaSearch
{
    Q_OBJECT

public:
    /// Takes the items over; the frame's criterion must outlive this one.
    explicit TStoredDateCriterion(const TTarvaSearch& frame, QObject* parent = nullptr);
    ~TStoredDateCriterion() override;

    /// "1403/01/09" for a date of either calendar; open bounds, and what is no date, as they stand.
    static QString StoredForm(const QString& date);

private:
    void Follow();

    const TTarvaSearch* frame_;
};
