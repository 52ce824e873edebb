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

void TDateRange_Display_FRAM::init()
{
    const QPointer<TTarvaSearch> criterion(Tarva_DisplayRange);
    RangeDate_CMB->setEnabled(true);
    RangeDate_CMBChange(RangeDate_CMB);
    if (criterion)
        criterion->SetActive(true);
}

void TDateRange_Display_FRAM::RangeDate_CMBChange(QObject* /*Sender*/)
{
    SetRangeValue();
}

void TDateRange_Display_FRAM::SetRangeValue()
{
    switch (RangeDate_CMB->ItemIndex()) {
    case Last30Days:
        SetBounds(decDay(30), getToday());
        break;
    case Last7Days:
        SetBounds(decDay(7), getToday());
        break;
    case CurrentMonth:
        SetBounds(GetCurrentTime(Crmonth), GetEndmonth());
        break;
    case CurrentWeek:
        SetBounds(GetCurrentTime(crweek), GetEndWeek());
        break;
    case Everything:
        SetBounds(QStringLiteral("0000/00/00"), QStringLiteral("9999/99/99"));
        break;
    default:
        Tarva_DisplayRange->SetValue2(getToday());
        break;
    }
}

void TDateRange_Display_FRAM::SetBounds(const QString& from, const QString& to) const
{
    const QPointer<TTarvaSearch> criterion(Tarva_DisplayRange);
    criterion->SetValue2(to);
    if (criterion)
        criterion->SetValue1(from);
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
