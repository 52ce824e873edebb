#pragma once

#include "Decimal.h"
#include "SuiteExport.h"

#include <QString>

/// A pocket calculator's logic: what the display shows after each key. Exact decimal arithmetic; quotients
/// have nine decimals. Operations are carried out in the order in which they are typed.
class SUITE_EXPORT TCalculator
{
public:
    enum TOperation { coNone, coAdd, coSubtract, coMultiply, coDivide };

    /// Longest number that is typed or shown.
    static constexpr int MostDigits = 19;
    static constexpr int Decimals = 9;

    /// Starts with a number, which the first digit typed replaces.
    void Start(const QString& plain);
    /// A digit, point, operation, "=", "%", sign change (±) or Backspace of any script. False where it means
    /// nothing.
    bool Press(QChar key);
    void Clear();
    /// Carries out what is pending, as "=" does.
    void Finish();

    /// The number as it stands, grouped, as far as it is typed.
    QString Display() const;
    /// The pending part of the sum: "1,200 ×"; empty where nothing is pending.
    QString Pending() const;
    /// The number without grouping signs; empty while there is an error.
    QString Result() const;
    /// Persian sentence saying why there is no result; empty where there is one.
    QString Error() const { return error_; }

private:
    void Digit(int digit);
    void Point();
    void Backspace();
    void ChangeSign();
    void Operate(TOperation operation);
    void Percent();
    bool Compute();
    void Show(const TDecimal& number);

    QString typed_ = QStringLiteral("0");
    bool fresh_ = true; // the next digit begins a new number
    TOperation operation_ = coNone;
    TDecimal left_;
    QString error_;
};
