#include "Calculator.h"

#include "DecimalText.h"
#include "PersianText.h"

namespace {

QChar SignOf(TCalculator::TOperation operation)
{
    switch (operation) {
    case TCalculator::coAdd:
        return u'+';
    case TCalculator::coSubtract:
        return u'−';
    case TCalculator::coMultiply:
        return u'×';
    case TCalculator::coDivide:
        return u'÷';
    default:
        return {};
    }
}

TCalculator::TOperation OperationOf(QChar key)
{
    switch (key.unicode()) {
    case u'+':
        return TCalculator::coAdd;
    case u'-':
    case u'−':
        return TCalculator::coSubtract;
    case u'*':
    case u'×':
        return TCalculator::coMultiply;
    case u'/':
    case u'÷':
        return TCalculator::coDivide;
    default:
        return TCalculator::coNone;
    }
}

} // namespace

void TCalculator::Start(const QString& plain)
{
    Clear();
    typed_ = DecimalText::Settled(plain);
}

void TCalculator::Clear()
{
    *this = TCalculator();
}

bool TCalculator::Press(QChar key)
{
    if (!error_.isEmpty())
        Clear();
    if (const int digit = PersianText::DigitValue(key); digit >= 0) {
        Digit(digit);
        return true;
    }
    if (const TOperation operation = OperationOf(key); operation != coNone) {
        Operate(operation);
        return true;
    }
    switch (key.unicode()) {
    case u'.':
    case u'\u066B':
        Point();
        return true;
    case u'=':
        Finish();
        return true;
    case u'%':
    case u'\u066A':
        Percent();
        return true;
    case u'±':
        ChangeSign();
        return true;
    case u'\b':
        Backspace();
        return true;
    default:
        return false;
    }
}

void TCalculator::Digit(int digit)
{
    if (fresh_)
        typed_ = QStringLiteral("0");
    fresh_ = false;
    if (DecimalText::DigitCount(typed_) >= MostDigits || DecimalText::DecimalCount(typed_) >= Decimals)
        return;
    const QChar character(u'0' + digit);
    if (typed_ == QStringLiteral("0") || typed_ == QStringLiteral("-0"))
        typed_.back() = character;
    else
        typed_ += character;
}

void TCalculator::Point()
{
    if (fresh_)
        typed_ = QStringLiteral("0");
    fresh_ = false;
    if (!typed_.contains(u'.') && DecimalText::DigitCount(typed_) < MostDigits)
        typed_ += u'.';
}

void TCalculator::Backspace()
{
    // A result is taken back as a whole: none of its digits was typed.
    if (fresh_) {
        typed_ = QStringLiteral("0");
        return;
    }
    typed_.chop(1);
    if (typed_.isEmpty() || typed_ == QStringLiteral("-"))
        typed_ = QStringLiteral("0");
}

void TCalculator::ChangeSign()
{
    if (typed_.startsWith(u'-'))
        typed_.remove(0, 1);
    else
        typed_.prepend(u'-');
}

void TCalculator::Operate(TOperation operation)
{
    // Two operations in a row: the second was meant.
    const bool changesMind = operation_ != coNone && fresh_;
    if (!changesMind && !Compute())
        return;
    left_ = TDecimal(DecimalText::Settled(typed_));
    operation_ = operation;
    fresh_ = true;
}

void TCalculator::Finish()
{
    Compute();
    operation_ = coNone;
    fresh_ = true;
}

// 200 + 10 % is 220, 200 × 10 % is 20: the percentage of an addition is one of its first number.
void TCalculator::Percent()
{
    const TDecimal hundredth(QStringLiteral("0.01"));
    TDecimal part = TDecimal(DecimalText::Settled(typed_)) * hundredth;
    if (operation_ == coAdd || operation_ == coSubtract)
        part = left_ * part;
    Show(part);
    // It counts as typed, so that the operation after it carries out the pending one.
    fresh_ = operation_ == coNone;
}

bool TCalculator::Compute()
{
    const TDecimal right(DecimalText::Settled(typed_));
    switch (operation_) {
    case coNone:
        Show(right);
        break;
    case coAdd:
        Show(left_ + right);
        break;
    case coSubtract:
        Show(left_ - right);
        break;
    case coMultiply:
        Show(left_ * right);
        break;
    case coDivide:
        if (const std::optional<TDecimal> quotient = TDecimal::Quotient(left_, right, Decimals))
            Show(*quotient);
        else
            error_ = QStringLiteral("تقسیم بر صفر ممکن نیست؛ عدد دیگری بنویسید.");
        break;
    }
    return error_.isEmpty();
}

void TCalculator::Show(const TDecimal& number)
{
    const QString exact = DecimalText::Rounded(number.ToString(), Decimals);
    const int whole = DecimalText::DigitCount(exact) - DecimalText::DecimalCount(exact);
    if (whole > MostDigits) {
        error_ = QStringLiteral(
            "حاصل بیش از ۱۹ رقم دارد؛ با عددهای کوچک‌تر حساب "
            "کنید.");
        return;
    }
    typed_ = DecimalText::Rounded(exact, qMin<int>(Decimals, MostDigits - whole));
}

QString TCalculator::Display() const
{
    return DecimalText::Grouped(typed_);
}

QString TCalculator::Pending() const
{
    return operation_ == coNone ? QString()
                                : DecimalText::Grouped(left_.ToString()) + u' ' + SignOf(operation_);
}

QString TCalculator::Result() const
{
    return error_.isEmpty() ? DecimalText::Settled(typed_) : QString();
}
