#include "SmartDateEdit_TRV.h"

#include "CalendarPopup.h"
#include "DrawnIcon.h"
#include "Look.h"
#include "SharedIcon.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

namespace {

constexpr QChar DateSeparator = u'/';
constexpr int MonthsOfYear = 12;

enum TSectionIndex { YearSection, MonthSection, DaySection };

const QString& LowestBound()
{
    static const QString text = QStringLiteral("0000/00/00");
    return text;
}

const QString& HighestBound()
{
    static const QString text = QStringLiteral("9999/99/99");
    return text;
}

bool IsBound(const QString& text)
{
    return text == LowestBound() || text == HighestBound();
}

QList<TSectionText::TSection> DateSections()
{
    return {{4, 0, 9999, {}, true},
            {2, 1, MonthsOfYear, QStringLiteral("ماه از 1 تا 12 است؛ ماه را درست بنویسید.")},
            {2, 1, 31, QStringLiteral("روز از 1 تا 31 است؛ روز را درست بنویسید.")}};
}

TCalendarKind::TKind KindOf(TSmartDateEdit_TRV::TCalendarType type)
{
    return type == TSmartDateEdit_TRV::ctSolar ? TCalendarKind::TKind::Solar
                                               : TCalendarKind::TKind::Gregorian;
}

/// The T key of Latin and of Persian layouts.
bool IsTodayKey(const QKeyEvent* event)
{
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    return plain && (event->key() == Qt::Key_T || event->text() == QStringLiteral("ف"));
}

bool OpensCalendar(const QKeyEvent* event)
{
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    return altDown || (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier);
}

QPixmap CalendarPicture(const QColor& color)
{
    return DrawnIcon(QPen(color, 4), [&color](QPainter& painter) {
        painter.drawRoundedRect(QRect(6, 9, 36, 34), 4, 4);
        painter.fillRect(QRect(6, 14, 36, 4), color);
        for (const int x : {15, 32})
            painter.drawLine(x, 4, x, 11);
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 3; ++column)
                painter.fillRect(QRect(13 + 9 * column, 24 + 9 * row, 5, 5), color);
        }
    });
}

} // namespace

TSmartDateEdit_TRV::TSmartDateEdit_TRV(QWidget* parent) : TSectionEdit(DateSections(), DateSeparator, parent)
{
    Typed().SetCompletion([this](qsizetype section, const QString& digits) {
        return section == YearSection ? CompletedYear(digits) : digits.rightJustified(2, u'0');
    });
    SetYearLimits();
}

TSmartDateEdit_TRV::~TSmartDateEdit_TRV() = default;

TSmartDateEdit_TRV::TCalendarType TSmartDateEdit_TRV::CalendarType() const
{
    return calendar_.Kind() == TCalendarKind::TKind::Solar ? ctSolar : ctGregorian;
}

void TSmartDateEdit_TRV::SetCalendarType(TCalendarType type)
{
    if (type == CalendarType())
        return;
    const QDate date = Date();
    calendar_ = TCalendarKind(KindOf(type));
    SetYearLimits();
    if (date.isValid())
        SetDate(date);
}

void TSmartDateEdit_TRV::SetYearLimits()
{
    const bool solar = CalendarType() == ctSolar;
    const QString refusal = (solar ? QStringLiteral("سال شمسی از %1 تا %2 است؛ سال را چهار رقمی بنویسید.")
                                   : QStringLiteral("سال میلادی از %1 تا %2 است؛ سال را چهار رقمی بنویسید."))
                                .arg(calendar_.FirstYear())
                                .arg(calendar_.LastYear());
    Typed().SetLimits(YearSection, calendar_.FirstYear(), calendar_.LastYear(), refusal);
}

void TSmartDateEdit_TRV::SetCalendarButton(bool on)
{
    if (on == CalendarButton())
        return;
    if (!on) {
        delete std::exchange(button_, nullptr);
        return;
    }
    button_ = new QAction(QStringLiteral("&تقویم"), this);
    button_->setToolTip(QStringLiteral("تقویم (F4)"));
    connect(button_, &QAction::triggered, this, &TSmartDateEdit_TRV::OpenCalendar);
    addAction(button_, QLineEdit::LeadingPosition);
    RefreshButtonIcon();
}

void TSmartDateEdit_TRV::RefreshButtonIcon()
{
    if (button_)
        button_->setIcon(SharedIcon::Of(QStringLiteral("calendar"), Look::Color(Look::TRole::SecondaryText),
                                        CalendarPicture));
}

QString TSmartDateEdit_TRV::ValueIn(TCalendarType type) const
{
    const QString text = Typed().Settled();
    return IsBound(text) ? text : TCalendarKind(KindOf(type)).TextOf(DateOf(text));
}

QDate TSmartDateEdit_TRV::DateOf(const QString& text) const
{
    const std::optional<TDateNumbers> date = DateText::Read(text);
    return date ? calendar_.DateOf(*date) : QDate();
}

void TSmartDateEdit_TRV::SetDate(const QDate& date)
{
    TSectionEdit::SetText(calendar_.TextOf(date));
}

void TSmartDateEdit_TRV::SetText(const QString& text)
{
    const QString converted = Converted(text);
    TSectionEdit::SetText(converted.isEmpty() ? text : converted);
}

/// The text as this edit writes a date; empty where it is no date at all.
QString TSmartDateEdit_TRV::Converted(const QString& text) const
{
    const std::optional<TDateNumbers> date = DateText::Read(text);
    if (!date)
        return {};
    const TCalendarKind other = calendar_.Other();
    if (!calendar_.IsUsualYear(date->Year) && other.IsUsualYear(date->Year)) {
        if (const QDate day = other.DateOf(*date); day.isValid())
            return calendar_.TextOf(day);
    }
    return DateText::Write(*date);
}

QString TSmartDateEdit_TRV::ValueOf(const QString& text) const
{
    return IsBound(text) ? text : calendar_.TextOf(DateOf(text));
}

QString TSmartDateEdit_TRV::ProblemOf(const QString& text) const
{
    if (!ValueOf(text).isEmpty())
        return {};
    const std::optional<TDateNumbers> date = DateText::Read(text);
    if (!date)
        return QStringLiteral("تاریخ کامل نیست؛ سال و ماه و روز را بنویسید.");
    const int days =
        date->Month >= 1 && date->Month <= MonthsOfYear ? calendar_.DaysInMonth(date->Year, date->Month) : 0;
    if (days == 0)
        return QStringLiteral("چنین روزی در تقویم نیست؛ تاریخ را درست کنید.");
    return QStringLiteral("ماه %1 سال %2 تا روز %3 دارد؛ روز را درست کنید.")
        .arg(calendar_.MonthName(date->Month))
        .arg(date->Year)
        .arg(days);
}

QString TSmartDateEdit_TRV::Pasted(const QString& text) const
{
    QString converted = Converted(text);
    if (IsBound(converted))
        return converted;
    const std::optional<TDateNumbers> date = DateText::Read(converted);
    const bool isDate = date && calendar_.IsUsualYear(date->Year) && calendar_.DateOf(*date).isValid();
    return isDate ? converted : QString();
}

QString TSmartDateEdit_TRV::PasteRefusal() const
{
    return QStringLiteral(
        "در متن چسبانده‌شده تاریخ درستی نیست؛ یک تاریخ رونوشت کنید و دوباره بچسبانید.");
}

/// The year nearest to today's that ends in these digits.
QString TSmartDateEdit_TRV::CompletedYear(const QString& digits) const
{
    const int thisYear = calendar_.Of(Today()).Year;
    int century = 1;
    for (qsizetype digit = 0; digit < digits.size(); ++digit)
        century *= 10;
    int year = thisYear - thisYear % century + digits.toInt();
    if (year > thisYear + century / 2)
        year -= century;
    else if (year < thisYear - century / 2)
        year += century;
    return QString::number(year).rightJustified(4, u'0');
}

void TSmartDateEdit_TRV::TextChanged(const QString& before)
{
    // The years 0000 and 9999 are no years but the beginnings of open bounds.
    const bool yearJustTyped = before.size() < 4 && Text().size() == 5 && hasFocus();
    for (const QString& bound : {LowestBound(), HighestBound()}) {
        if (yearJustTyped && bound.startsWith(Text())) {
            Assign(bound);
            return;
        }
    }
    const QDate date = Date();
    setToolTip(date.isValid()
                   ? calendar_.InWords(date) + QStringLiteral(" – ") + calendar_.Other().InWords(date)
                   : QString());
}

bool TSmartDateEdit_TRV::HandleOwnKey(QKeyEvent* event)
{
    if (OpensCalendar(event)) {
        OpenCalendar();
        return true;
    }
    if (!CanChange())
        return false;
    if (IsTodayKey(event)) {
        Show(Today());
        return true;
    }
    return StepByKey(event);
}

bool TSmartDateEdit_TRV::StepByKey(const QKeyEvent* event)
{
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    const int months = withControl ? MonthsOfYear : 1;
    switch (event->key()) {
    case Qt::Key_Up:
        return Step(1);
    case Qt::Key_Down:
        return Step(-1);
    case Qt::Key_PageUp:
        return StepMonths(-months);
    case Qt::Key_PageDown:
        return StepMonths(months);
    case Qt::Key_Plus:
        return Step(1);
    case Qt::Key_Minus:
        // In a date that is not complete it separates, as many people write dates.
        return (Date().isValid() || Text().isEmpty()) && Step(-1);
    default:
        return false;
    }
}

bool TSmartDateEdit_TRV::StepMonths(int months)
{
    const QDate date = Date();
    Show(date.isValid() ? calendar_.AddMonths(date, months) : Today());
    return true;
}

/// The section of the caret steps and stays selected. An empty edit begins with today.
bool TSmartDateEdit_TRV::Step(int steps)
{
    const QPointer<TSmartDateEdit_TRV> alive = this;
    const QDate date = Date();
    const qsizetype section = date.isValid() ? Typed().CurrentSection() : qsizetype{DaySection};
    if (!date.isValid()) {
        if (!Text().isEmpty())
            return true;
        Show(Today());
    } else if (section == DaySection) {
        Show(date.addDays(steps));
    } else {
        Show(calendar_.AddMonths(date, section == MonthSection ? steps : steps * MonthsOfYear));
    }
    if (alive)
        setSelection(static_cast<int>(Typed().SectionStart(section)),
                     static_cast<int>(Typed().SectionLength(section)));
    return true;
}

/// A day that the user has chosen, unless it lies outside the years of the edit.
void TSmartDateEdit_TRV::Show(const QDate& date)
{
    if (date.isValid() && calendar_.IsUsualYear(calendar_.Of(date).Year))
        Assign(calendar_.TextOf(date));
}

void TSmartDateEdit_TRV::OpenCalendar()
{
    if (!CanChange() || findChild<TCalendarPopup*>())
        return;
    const QDate date = Date();
    auto* popup = new TCalendarPopup(this, calendar_, date.isValid() ? date : Today(), Today(),
                                     [this](const QDate& chosen) { Show(chosen); });
    popup->Open();
}

void TSmartDateEdit_TRV::AddToMenu(QMenu* menu)
{
    menu->addSeparator();
    menu->addAction(QStringLiteral("ا&مروز (T)"), this, [this] { Show(Today()); })->setEnabled(CanChange());
    menu->addAction(QStringLiteral("&تقویم (F4)"), this, &TSmartDateEdit_TRV::OpenCalendar)
        ->setEnabled(CanChange());
}

void TSmartDateEdit_TRV::changeEvent(QEvent* event)
{
    TSectionEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        RefreshButtonIcon();
}
