#pragma once

#include "CalendarKind.h"
#include "SectionEdit.h"
#include "SuiteExport.h"

#include <functional>

class QAction;

/// One-line edit for a date: year, month and day are typed one after the other in digits of any script, the
/// arrows and + and - step the section of the caret, T is today, PageUp and PageDown change the month (with
/// Ctrl the year), F4 opens a month page. The date is typed in one calendar and handed out in the same or in
/// the other one.
///
/// "0000/00/00" and "9999/99/99" stand for open bounds and are handed out as they are. A day that does not
/// exist stays as typed, is marked as wrong, and has no value.
class SUITE_EXPORT TSmartDateEdit_TRV : public TSectionEdit
{
    Q_OBJECT
    Q_PROPERTY(TCalendarType CalendarType READ CalendarType WRITE SetCalendarType)
    Q_PROPERTY(TCalendarType CalendarResultType READ CalendarResultType WRITE SetCalendarResultType)
    Q_PROPERTY(bool CalendarButton READ CalendarButton WRITE SetCalendarButton)

public:
    /// Solar is the calendar of Iran.
    enum TCalendarType { ctSolar, ctGregorian };
    Q_ENUM(TCalendarType)

    explicit TSmartDateEdit_TRV(QWidget* parent = nullptr);
    ~TSmartDateEdit_TRV() override;

    /// The calendar that is typed and shown. A date that is there already is shown in the new one.
    TCalendarType CalendarType() const;
    void SetCalendarType(TCalendarType type);
    /// The calendar of GetValue.
    TCalendarType CalendarResultType() const { return resultType_; }
    void SetCalendarResultType(TCalendarType type) { resultType_ = type; }
    /// Whether a button at the left end opens the month page, as F4 does.
    bool CalendarButton() const { return button_ != nullptr; }
    void SetCalendarButton(bool on);

    /// year/month/day of the result calendar, two digits for month and day; an open bound as it stands;
    /// empty where no date or none that exists is typed.
    QString GetValue() const { return ValueIn(resultType_); }
    /// The same in a calendar of choice.
    QString ValueIn(TCalendarType type) const;
    /// The day; invalid where there is none or an open bound.
    QDate Date() const { return DateOf(Typed().Settled()); }
    void SetDate(const QDate& date);
    /// A date in the edit's calendar. One that can only be of the other calendar, by its year, is converted.
    /// Empty empties the edit.
    void SetText(const QString& text) override;
    /// Where today comes from; the system's clock at first.
    void SetToday(std::function<QDate()> today) { today_ = std::move(today); }
    /// Opens the month page under the edit.
    void OpenCalendar();

protected:
    QString ValueOf(const QString& text) const override;
    QString ProblemOf(const QString& text) const override;
    QString Pasted(const QString& text) const override;
    QString PasteRefusal() const override;
    bool HandleOwnKey(QKeyEvent* event) override;
    void AddToMenu(QMenu* menu) override;
    void TextChanged(const QString& before) override;
    void changeEvent(QEvent* event) override;

private:
    QDate Today() const { return today_ ? today_() : QDate::currentDate(); }
    QDate DateOf(const QString& text) const;
    QString Converted(const QString& text) const;
    QString CompletedYear(const QString& digits) const;
    void SetYearLimits();
    bool StepByKey(const QKeyEvent* event);
    bool StepMonths(int months);
    bool Step(int steps);
    void Show(const QDate& date);
    void RefreshButtonIcon();

    TCalendarKind calendar_;
    TCalendarType resultType_ = ctSolar;
    std::function<QDate()> today_;
    QAction* button_ = nullptr;
};
