#include "DateRange_Display_UNT.h"

#include "HostServices.h"
#include "Look.h"
#include "SmartComboBox_TRV.h"
#include "SmartDateEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_DateRange_Display_UNT.h"

#include <QPainter>
#include <QPointer>

namespace {

enum TChoice { Last30Days, Last7Days, CurrentMonth, CurrentWeek, Everything };

} // namespace

TDateRange_Display_FRAM::TDateRange_Display_FRAM(QWidget* owner)
    : TFrame(owner), Tarva_DisplayRange(new TTarvaSearch(this))
{
    Ui::TDateRange_Display_FRAM form;
    form.setupUi(this);
    RangeDate_LBL = form.RangeDate_LBL;
    RangeDate_CMB = form.RangeDate_CMB;
    RangeDate_From_EDT = form.RangeDate_From_EDT;
    // The longest entry fits into the box in this size.
    RangeDate_CMB->setFont(Look::SmallFont());
    RangeDate_From_EDT->SetToday([] { return Host().Clock.Today(); });

    TSearchItem item;
    item.Title = QStringLiteral(" تاریخ");
    Tarva_DisplayRange->setObjectName(QStringLiteral("Tarva_DisplayRange"));
    Tarva_DisplayRange->SetSearchTypes(TSearchType::stRangeDate);
    Tarva_DisplayRange->SearchItems.Add(item);
    Tarva_DisplayRange->SetItemIndex(0);
    RangeDate_CMB->OnChange = [this](QObject* sender) { RangeDate_CMBChange(sender); };
    FormReady();
}

TDateRange_Display_FRAM::~TDateRange_Display_FRAM() = default;

TDatePeriods TDateRange_Display_FRAM::Periods()
{
    return TDatePeriods(Host().Clock.Today(), Host().Settings.SettingRecord().IsGregorian());
}

void TDateRange_Display_FRAM::init() const
{
    const QPointer<TTarvaSearch> criterion(Tarva_DisplayRange);
    RangeDate_CMB->setEnabled(true);
    RangeDate_CMBChange(RangeDate_CMB);
    if (criterion)
        criterion->SetActive(true);
}

void TDateRange_Display_FRAM::RangeDate_CMBChange(QObject* /*Sender*/) const
{
    SetRangeValue();
}

void TDateRange_Display_FRAM::SetRangeValue() const
{
    const QPointer<TTarvaSearch> criterion(Tarva_DisplayRange);
    const auto setFrom = [&criterion](const QString& date) {
        if (criterion)
            criterion->SetValue1(date);
    };
    const auto setTo = [&criterion](const QString& date) {
        if (criterion)
            criterion->SetValue2(date);
    };
    const TDatePeriods periods = Periods();
    const int choice = RangeDate_CMB->ItemIndex();
    // Owners see each of these writings, in this order.
    setTo(periods.Today());
    switch (choice) {
    case Last30Days:
        setFrom(periods.DaysBefore(30));
        break;
    case Last7Days:
        setFrom(periods.DaysBefore(7));
        break;
    case CurrentMonth:
        setFrom(periods.StartOf(Crmonth));
        setTo(periods.EndOfMonth());
        break;
    case CurrentWeek:
        setFrom(periods.StartOf(crweek));
        setTo(periods.EndOfWeek());
        break;
    case Everything:
        setTo(QStringLiteral("9999/99/99"));
        setFrom(QStringLiteral("0000/00/00"));
        break;
    default:
        break;
    }
}

QString TDateRange_Display_FRAM::getToday() const
{
    return Periods().Today();
}

QString TDateRange_Display_FRAM::decDay(int days) const
{
    return Periods().DaysBefore(days);
}

QString TDateRange_Display_FRAM::GetCurrentTime(currentTime kind) const
{
    return Periods().StartOf(kind);
}

QString TDateRange_Display_FRAM::GetEndmonth() const
{
    return Periods().EndOfMonth();
}

QString TDateRange_Display_FRAM::GetEndWeek() const
{
    return Periods().EndOfWeek();
}

QString TDateRange_Display_FRAM::DeleteSubCondition(const QString& condition,
                                                    const QString& subCondition) const
{
    return ConditionText::WithoutPart(condition, subCondition);
}

void TDateRange_Display_FRAM::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
