#pragma once

#include <optional>
#include <QString>
#include <QStringView>

namespace Dialect {

/// Milliseconds since 0001-01-01T00:00:00 of a date, or date and time, as the server reads it: YYYYMMDD,
/// YYYY-MM-DD or YYYY/MM/DD, and optionally hh:mm[:ss[.fraction]] behind a blank or T. Digits past the third
/// of the fraction are cut. An empty text is 1900-01-01. Nothing when the text is none of these.
std::optional<qint64> MomentOf(QStringView text);
/// YYYY-MM-DD; empty when the text is no date.
QString DateText(QStringView text);
/// YYYY-MM-DDTHH:MM:SS[.fff]; empty when the text is no date.
QString DateTimeText(QStringView text);
QString DateTimeText(qint64 moment);

enum class TMomentPart { Year, Quarter, Month, Day, Hour, Minute, Second, Millisecond };
/// The part of a date that DATEADD and DATEDIFF name, by its name or one of its short forms; nothing when
/// unknown.
std::optional<TMomentPart> MomentPartOf(QStringView name);
/// DATEADD. Months are clamped to their last day.
qint64 MomentPlus(qint64 moment, TMomentPart part, qint64 count);
/// DATEDIFF: how many borders of the part are crossed from first to second.
qint64 BordersBetween(qint64 first, qint64 second, TMomentPart part);
/// DATEPART.
qint64 PartOf(qint64 moment, TMomentPart part);

} // namespace Dialect
