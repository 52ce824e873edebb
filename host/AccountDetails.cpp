#include "AccountDetails.h"

#include "AccountLevels.h"
#include "PersianText.h"
#include "SearchCondition.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 highestCode = std::numeric_limits<int>::max();

QString NameCondition(const QString& typed)
{
    TSearchItem name;
    name.FiledName = QStringLiteral("Name");
    TTarvaSearch criterion;
    criterion.SearchItems.Add(name);
    criterion.SetItemIndex(0);
    criterion.SetValue1(typed);
    criterion.SetActive(true);
    const auto condition = TSearchCondition::Of(criterion);
    return condition ? condition->Sql() : QString();
}

/// ASCII digits; empty where the text is something else or longer than a code can be.
QString TypedCode(const QString& typed)
{
    const QString digits = PersianText::AsciiDigits(typed).trimmed();
    const auto isDigit = [](QChar character) { return character >= u'0' && character <= u'9'; };
    constexpr int mostDigits = std::numeric_limits<int>::digits10 + 1;
    const bool isCode = digits.size() <= mostDigits && std::all_of(digits.begin(), digits.end(), isDigit);
    return isCode ? digits : QString();
}

QString Between(const QString& field, qint64 first, qint64 last)
{
    if (first == last)
        return QStringLiteral("%1 = %2").arg(field).arg(first);
    return QStringLiteral("%1 BETWEEN %2 AND %3").arg(field).arg(first).arg(std::min(last, highestCode));
}

/// The codes that begin with the digits are some ranges of numbers.
QStringList CodeRanges(const QString& field, const QString& digits, int length)
{
    const qint64 value = digits.toLongLong();
    const bool hasZeros = digits.startsWith(u'0');
    QStringList ranges;
    qint64 size = 1;
    for (qsizetype written = digits.size(); value * size <= highestCode; ++written, size *= 10) {
        // A code that is shown with leading zeros has exactly the length of the box.
        if (!hasZeros || written == length)
            ranges.append(Between(field, value * size, (value + 1) * size - 1));
        if (hasZeros && written >= length)
            break;
    }
    return ranges;
}

QString CountStatement(TFloatingAccountsType kind, const QString& comparison, int code)
{
    return QStringLiteral("SELECT COUNT(*) AS Number FROM dbo.AccDetails WHERE %1 AND %2 %3 %4")
        .arg(AccountDetails::Condition(kind, {}), AccountDetails::CodeField(kind), comparison)
        .arg(code);
}

} // namespace

TPagedSource AccountDetails::Source(TFloatingAccountsType kind)
{
    const QString code = CodeField(kind);
    return {{code, QStringLiteral("Name")}, QStringLiteral("dbo.AccDetails"), code};
}

QString AccountDetails::CodeField(TFloatingAccountsType kind)
{
    return kind == TFloatingAccountsType::fatUnique ? QStringLiteral("UniqueCode") : QStringLiteral("Code");
}

int AccountDetails::CodeDigits(TFloatingAccountsType kind)
{
    return kind == TFloatingAccountsType::fatUnique ? AccountLevels::UniqueDigits
                                                    : AccountLevels::DetailDigits;
}

QString AccountDetails::Condition(TFloatingAccountsType kind, const QString& typed)
{
    // An account that has not got its unique code yet has the code 0.
    QString list = kind == TFloatingAccountsType::fatUnique
                       ? QStringLiteral("UniqueCode > 0 AND Active = 1")
                       : QStringLiteral("[Type] = %1 AND Active = 1").arg(static_cast<int>(kind));
    const QString name = NameCondition(typed.trimmed());
    if (name.isEmpty())
        return list;
    QStringList either;
    if (const QString digits = TypedCode(typed); !digits.isEmpty())
        either = CodeRanges(CodeField(kind), digits, CodeDigits(kind));
    either.append(name);
    return list + QStringLiteral(" AND (") + either.join(QStringLiteral(" OR ")) + u')';
}

QString AccountDetails::PresenceStatement(TFloatingAccountsType kind, int code)
{
    return CountStatement(kind, QStringLiteral("="), code);
}

QString AccountDetails::PlaceStatement(TFloatingAccountsType kind, int code)
{
    return CountStatement(kind, QStringLiteral("<"), code);
}
