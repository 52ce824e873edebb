#pragma once

#include <QStringList>
#include <QVariant>

class QWidget;

/// The calls that a recording service got, in order, each as one readable line: `MsgNotSelected(نرخ ارز,
/// Rate_EDT, -)`. Controls stand by their object names, null by "-".
class TCallLog
{
public:
    template <typename... TArguments> void Note(const QString& service, const TArguments&... arguments)
    {
        lines_.append(QStringLiteral("%1(%2)").arg(
            service, QStringList{Text(arguments)...}.join(QStringLiteral(", "))));
    }
    QStringList Lines() const { return lines_; }
    /// How many calls of one service there were.
    int CountOf(const QString& service) const;
    void Clear() { lines_.clear(); }

private:
    static QString Text(const QString& text) { return text; }
    static QString Text(const QWidget* control);
    template <typename TNumber>
    requires std::is_arithmetic_v<TNumber> || std::is_enum_v<TNumber>
    static QString Text(TNumber number)
    {
        if constexpr (std::is_enum_v<TNumber>)
            return QString::number(static_cast<int>(number));
        else if constexpr (std::is_same_v<TNumber, long double>)
            return QString::number(static_cast<double>(number));
        else
            return QString::number(number);
    }

    QStringList lines_;
};
