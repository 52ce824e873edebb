#include "Moment.h"

#include <array>
#include <QDate>
#include <QLatin1StringView>

namespace Dialect {

namespace {

constexpr qint64 MillisecondsPerSecond = 1000;
constexpr qint64 MillisecondsPerMinute = 60 * MillisecondsPerSecond;
constexpr qint64 MillisecondsPerHour = 60 * MillisecondsPerMinute;
constexpr qint64 MillisecondsPerDay = 24 * MillisecondsPerHour;
constexpr qint64 JulianDayOfYearOne = 1721426;

/// Reads digits and separators from the front of a text.
class TReader
{
public:
    explicit TReader(QStringView text) : text_(text) {}

    bool AtEnd() const { return position_ >= text_.size(); }

    int Digits(int fewest, int most)
    {
        const qsizetype start = position_;
        int value = 0;
        while (!AtEnd() && position_ - start < most && text_[position_] >= u'0' && text_[position_] <= u'9')
            value = value * 10 + (text_[position_++].unicode() - u'0');
        ok_ = ok_ && position_ - start >= fewest;
        return value;
    }

    bool Accept(QChar character)
    {
        const bool found = !AtEnd() && text_[position_] == character;
        position_ += found ? 1 : 0;
        return found;
    }

    int Fraction()
    {
        const qsizetype start = position_;
        int value = Digits(1, 3);
        for (qsizetype read = position_ - start; read < 3; ++read)
            value *= 10;
        Digits(0, 9);
        return value;
    }

    void Fail() { ok_ = false; }
    bool Ok() const { return ok_; }

private:
    QStringView text_;
    qsizetype position_ = 0;
    bool ok_ = true;
};

QDate ReadDate(TReader& reader)
{
    const int year = reader.Digits(4, 4);
    const bool dashes = reader.Accept(u'-');
    const bool slashes = !dashes && reader.Accept(u'/');
    const int fewest = dashes || slashes ? 1 : 2;
    const int month = reader.Digits(fewest, 2);
    if ((dashes && !reader.Accept(u'-')) || (slashes && !reader.Accept(u'/')))
        reader.Fail();
    const int day = reader.Digits(fewest, 2);
    return {year, month, day};
}

qint64 ReadTime(TReader& reader)
{
    const int hour = reader.Digits(1, 2);
    if (!reader.Accept(u':'))
        reader.Fail();
    const int minute = reader.Digits(2, 2);
    int second = 0;
    int fraction = 0;
    if (reader.Accept(u':'))
        second = reader.Digits(2, 2);
    if (reader.Accept(u'.'))
        fraction = reader.Fraction();
    if (hour > 23 || minute > 59 || second > 59)
        reader.Fail();
    return hour * MillisecondsPerHour + minute * MillisecondsPerMinute + second * MillisecondsPerSecond +
           fraction;
}

qint64 DayOf(qint64 moment)
{
    return moment >= 0 ? moment / MillisecondsPerDay : (moment - MillisecondsPerDay + 1) / MillisecondsPerDay;
}

QDate DateOf(qint64 moment)
{
    return QDate::fromJulianDay(DayOf(moment) + JulianDayOfYearOne);
}

qint64 StartOf(QDate date)
{
    return (date.toJulianDay() - JulianDayOfYearOne) * MillisecondsPerDay;
}

qint64 Length(TMomentPart part)
{
    switch (part) {
    case TMomentPart::Millisecond:
        return 1;
    case TMomentPart::Second:
        return MillisecondsPerSecond;
    case TMomentPart::Minute:
        return MillisecondsPerMinute;
    case TMomentPart::Hour:
        return MillisecondsPerHour;
    case TMomentPart::Day:
    case TMomentPart::Month:
    case TMomentPart::Quarter:
    case TMomentPart::Year:
        break;
    }
    return MillisecondsPerDay;
}

qint64 MonthsOf(TMomentPart part)
{
    switch (part) {
    case TMomentPart::Year:
        return 12;
    case TMomentPart::Quarter:
        return 3;
    case TMomentPart::Month:
        return 1;
    default:
        return 0;
    }
}

qint64 MonthNumber(QDate date)
{
    return static_cast<qint64>(date.year()) * 12 + date.month() - 1;
}

void AppendNumber(QString& text, int number, int width)
{
    text += QString::number(number).rightJustified(width, u'0');
}

QString DateTextOf(qint64 moment)
{
    const QDate date = DateOf(moment);
    QString text;
    AppendNumber(text, date.year(), 4);
    text += u'-';
    AppendNumber(text, date.month(), 2);
    text += u'-';
    AppendNumber(text, date.day(), 2);
    return text;
}

} // namespace

std::optional<qint64> MomentOf(QStringView text)
{
    text = text.trimmed();
    // A text without anything is the server's day zero.
    if (text.isEmpty())
        return StartOf(QDate(1900, 1, 1));
    TReader reader(text);
    const QDate date = ReadDate(reader);
    qint64 time = 0;
    if (!reader.AtEnd()) {
        if (!reader.Accept(u'T') && !reader.Accept(u' '))
            reader.Fail();
        time = ReadTime(reader);
    }
    if (!reader.Ok() || !reader.AtEnd() || !date.isValid())
        return std::nullopt;
    return StartOf(date) + time;
}

QString DateText(QStringView text)
{
    const std::optional<qint64> moment = MomentOf(text);
    return moment ? DateTextOf(*moment) : QString();
}

QString DateTimeText(QStringView text)
{
    const std::optional<qint64> moment = MomentOf(text);
    return moment ? DateTimeText(*moment) : QString();
}

QString DateTimeText(qint64 moment)
{
    const qint64 time = moment - DayOf(moment) * MillisecondsPerDay;
    QString text = DateTextOf(moment) + u'T';
    AppendNumber(text, static_cast<int>(time / MillisecondsPerHour), 2);
    text += u':';
    AppendNumber(text, static_cast<int>(time / MillisecondsPerMinute % 60), 2);
    text += u':';
    AppendNumber(text, static_cast<int>(time / MillisecondsPerSecond % 60), 2);
    if (const auto fraction = static_cast<int>(time % MillisecondsPerSecond); fraction != 0) {
        text += u'.';
        AppendNumber(text, fraction, 3);
    }
    return text;
}

std::optional<TMomentPart> MomentPartOf(QStringView name)
{
    struct TName
    {
        const char* Name;
        TMomentPart Part;
    };
    constexpr std::array names{
        TName{"year", TMomentPart::Year},      TName{"yy", TMomentPart::Year},
        TName{"yyyy", TMomentPart::Year},      TName{"quarter", TMomentPart::Quarter},
        TName{"qq", TMomentPart::Quarter},     TName{"month", TMomentPart::Month},
        TName{"mm", TMomentPart::Month},       TName{"m", TMomentPart::Month},
        TName{"day", TMomentPart::Day},        TName{"dd", TMomentPart::Day},
        TName{"d", TMomentPart::Day},          TName{"hour", TMomentPart::Hour},
        TName{"hh", TMomentPart::Hour},        TName{"minute", TMomentPart::Minute},
        TName{"mi", TMomentPart::Minute},      TName{"n", TMomentPart::Minute},
        TName{"second", TMomentPart::Second},  TName{"ss", TMomentPart::Second},
        TName{"s", TMomentPart::Second},       TName{"millisecond", TMomentPart::Millisecond},
        TName{"ms", TMomentPart::Millisecond},
    };
    for (const TName& candidate : names) {
        if (name.compare(QLatin1StringView(candidate.Name), Qt::CaseInsensitive) == 0)
            return candidate.Part;
    }
    return std::nullopt;
}

qint64 MomentPlus(qint64 moment, TMomentPart part, qint64 count)
{
    const qint64 months = MonthsOf(part);
    if (months == 0)
        return moment + count * Length(part);
    const QDate date = DateOf(moment);
    return StartOf(date.addMonths(static_cast<int>(months * count))) + (moment - StartOf(date));
}

qint64 BordersBetween(qint64 first, qint64 second, TMomentPart part)
{
    const qint64 months = MonthsOf(part);
    if (months != 0)
        return MonthNumber(DateOf(second)) / months - MonthNumber(DateOf(first)) / months;
    return second / Length(part) - first / Length(part);
}

qint64 PartOf(qint64 moment, TMomentPart part)
{
    const QDate date = DateOf(moment);
    const qint64 time = moment - StartOf(date);
    switch (part) {
    case TMomentPart::Year:
        return date.year();
    case TMomentPart::Quarter:
        return (date.month() - 1) / 3 + 1;
    case TMomentPart::Month:
        return date.month();
    case TMomentPart::Day:
        return date.day();
    case TMomentPart::Hour:
        return time / MillisecondsPerHour;
    case TMomentPart::Minute:
        return time / MillisecondsPerMinute % 60;
    case TMomentPart::Second:
        return time / MillisecondsPerSecond % 60;
    case TMomentPart::Millisecond:
        return time % MillisecondsPerSecond;
    }
    return 0;
}

} // namespace Dialect
