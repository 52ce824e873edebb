#pragma once

#include "PaintedWindow.h"
#include "ReportForm.h"

#include <QElapsedTimer>
#include <QVector>

class TSmartCheckBox_TRV;

/// A filter as it is typed. Nothing is typed where there is no box to switch on: Escape takes all filters
/// off.
struct TTypedFilter
{
    struct TInput
    {
        QWidget* Edit = nullptr;
        QString Text;
    };

    const char* Name = nullptr;
    TSmartCheckBox_TRV* Switch = nullptr;
    QVector<TInput> Inputs;
    /// The value is in force when Tab leaves the edit; otherwise shortly after its last character.
    bool EndsWithTab = false;
};

/// Moments after the last key, in milliseconds.
struct TReportMoments
{
    double Asked = 0;
    double Answered = 0;  ///< the first page has come
    double Painted = 0;   ///< and is seen
    double Totals = 0;    ///< are seen
    double Processor = 0; ///< not a moment: what all threads have used from the question until both are seen
};

struct TTypingResult
{
    int Questions = 0;
    int Answers = 0;       ///< totals that were shown
    double LongestGap = 0; ///< between two turns of the event loop, milliseconds
    double Totals = 0;     ///< from the last question until its totals are seen, milliseconds
};

/// The report in a window, worked by its keyboard.
class TReportTyping
{
public:
    explicit TReportTyping(TReferenceHost& host);

    TReportForm& Form() { return *form_; }
    /// Types the filter on a report without one and waits until rows and totals are seen.
    TReportMoments Apply(const TTypedFilter& filter);
    void Clear();
    /// Types each of the keys when the one before has just become a question.
    TTypingResult TypeOn(const TTypedFilter& filter, const QVector<Qt::Key>& keys);
    /// The longest gap while nothing happens for as long as so many keys take.
    double GapAtRest(int keys);

private:
    void Prepare(const TTypedFilter& filter);
    void WaitUntilIdle();
    bool TotalsAreShown() const;

    TPaintedWindow window_;
    TReportForm* form_;
};
