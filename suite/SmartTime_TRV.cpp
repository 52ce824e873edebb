#include "SmartTime_TRV.h"

#include "PersianText.h"

#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QTime>

namespace {

constexpr QChar TimeSeparator = u':';
constexpr int HoursOfDay = 24;
constexpr int MinutesOfHour = 60;
constexpr int MinutesOfDay = HoursOfDay * MinutesOfHour;
/// The pattern that looks for a time takes the square of a text's length.
constexpr qsizetype LongestPaste = 100;

QList<TSectionText::TSection> TimeSections()
{
    return {{2, 0, HoursOfDay - 1, QStringLiteral("ساعت از 0 تا 23 است؛ ساعت را درست بنویسید.")},
            {2, 0, MinutesOfHour - 1, QStringLiteral("دقیقه از 0 تا 59 است؛ دقیقه را درست بنویسید.")}};
}

QTime TimeOf(const QString& text)
{
    return QTime::fromString(text, QStringLiteral("HH:mm"));
}

QString TextOf(const QTime& time)
{
    return time.toString(QStringLiteral("HH:mm"));
}

} // namespace

TSmartTime_TRV::TSmartTime_TRV(QWidget* parent) : TSectionEdit(TimeSections(), TimeSeparator, parent)
{
}

TSmartTime_TRV::~TSmartTime_TRV() = default;

QString TSmartTime_TRV::ValueOf(const QString& text) const
{
    return TextOf(TimeOf(text));
}

QString TSmartTime_TRV::ProblemOf(const QString& text) const
{
    return TimeOf(text).isValid() ? QString() : QStringLiteral("ساعت کامل نیست؛ ساعت و دقیقه را بنویسید.");
}

QString TSmartTime_TRV::Pasted(const QString& text) const
{
    if (text.size() > LongestPaste)
        return {};
    static const QRegularExpression pattern(
        QStringLiteral("^\\D*(\\d{1,2})(?:\\s*\\D\\s*(\\d{1,2})(?:\\D\\d{1,2})?|(\\d{2}))\\D*$"));
    const QRegularExpressionMatch found = pattern.match(PersianText::AsciiDigits(text));
    const QString minutes = found.captured(2).isEmpty() ? found.captured(3) : found.captured(2);
    return TextOf(QTime(found.hasMatch() ? found.captured(1).toInt() : -1, minutes.toInt()));
}

QString TSmartTime_TRV::PasteRefusal() const
{
    return QStringLiteral(
        "در متن چسبانده‌شده ساعت درستی نیست؛ ساعتی مانند 14:30 رونوشت کنید و دوباره بچسبانید.");
}

bool TSmartTime_TRV::HandleOwnKey(QKeyEvent* event)
{
    const bool up = event->key() == Qt::Key_Up || event->key() == Qt::Key_Plus;
    const bool down = event->key() == Qt::Key_Down || event->key() == Qt::Key_Minus;
    if ((!up && !down) || !CanChange())
        return false;
    Step(up ? 1 : -1);
    return true;
}

void TSmartTime_TRV::Step(int steps)
{
    const QTime time = TimeOf(Typed().Settled());
    if (!time.isValid())
        return;
    const qsizetype section = Typed().CurrentSection();
    const int minutes =
        time.hour() * MinutesOfHour + time.minute() + steps * (section == 0 ? MinutesOfHour : 1);
    const int within = (minutes + MinutesOfDay) % MinutesOfDay;
    const QPointer<TSmartTime_TRV> alive = this;
    Assign(TextOf(QTime(within / MinutesOfHour, within % MinutesOfHour)));
    if (alive)
        setSelection(static_cast<int>(Typed().SectionStart(section)),
                     static_cast<int>(Typed().SectionLength(section)));
}
