#pragma once

#include "SuiteExport.h"

#include <optional>
#include <QByteArray>
#include <QString>

/// Exact decimal number of any length: a whole number and how many of its digits stand behind the point.
class SUITE_EXPORT TDecimal
{
public:
    TDecimal() = default;
    /// From plain text as DecimalText has it: an optional minus, ASCII digits, an optional point.
    explicit TDecimal(const QString& plain);

    /// Plain text without trailing zeros behind the point.
    QString ToString() const;
    bool IsZero() const;

    friend SUITE_EXPORT TDecimal operator+(const TDecimal& left, const TDecimal& right);
    friend SUITE_EXPORT TDecimal operator-(const TDecimal& left, const TDecimal& right);
    friend SUITE_EXPORT TDecimal operator*(const TDecimal& left, const TDecimal& right);
    /// Rounded half away from zero to `decimals` digits behind the point; nothing where the divisor is zero.
    SUITE_EXPORT static std::optional<TDecimal> Quotient(const TDecimal& left, const TDecimal& right,
                                                         int decimals);

private:
    void Scale(int decimals);

    bool negative_ = false;
    QByteArray digits_ = QByteArrayLiteral("0"); // the most significant first
    int decimals_ = 0;
};
