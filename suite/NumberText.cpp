#include "NumberText.h"

#include "DecimalText.h"
#include "PersianText.h"

namespace {

constexpr qsizetype MostUndoSteps = 200;

bool Fits(const QString& typed, const TNumberRules& rules)
{
    return (rules.maxDigits <= 0 || DecimalText::DigitCount(typed) <= rules.maxDigits) &&
           DecimalText::DecimalCount(typed) <= rules.decimals;
}

} // namespace

QString TNumberText::Display() const
{
    return grouped_ ? DecimalText::Grouped(now_.typed) : now_.typed;
}

QString TNumberText::Text() const
{
    return DecimalText::Settled(now_.typed);
}

int TNumberText::Caret() const
{
    const QString display = Display();
    int left = now_.caret;
    int position = 0;
    while (left > 0) {
        if (display.at(position) != u',')
            --left;
        ++position;
    }
    return position;
}

int TNumberText::TypedPosition(int displayPosition) const
{
    return displayPosition - static_cast<int>(Display().left(displayPosition).count(u','));
}

void TNumberText::Select(int anchor, int caret)
{
    anchor_ = TypedPosition(anchor);
    now_.caret = TypedPosition(caret);
}

QString TNumberText::SelectedText() const
{
    return now_.typed.mid(SelectionStart(), SelectionEnd() - SelectionStart());
}

// The text with a piece replaced, in the form in which it is shown: a digit before the point, no zero that
// the typing has made idle. Zeros behind the caret stay, because the user may be about to write a digit
// before them.
TNumberText::TState TNumberText::WithReplaced(int from, int to, const QString& text) const
{
    TState next;
    next.typed = now_.typed;
    next.typed.replace(from, to - from, text);
    next.caret = from + static_cast<int>(text.size());
    const int sign = next.typed.startsWith(u'-') ? 1 : 0;
    const auto isDigit = [&next](int place) {
        return place < next.typed.size() && next.typed.at(place) != u'.';
    };
    while (next.caret > sign && next.typed.at(sign) == u'0' && isDigit(sign + 1)) {
        next.typed.remove(sign, 1);
        --next.caret;
    }
    if (!isDigit(sign)) {
        next.typed.insert(sign, u'0');
        next.caret = qMax(next.caret, sign) + 1;
    }
    return next;
}

void TNumberText::MoveTo(const TState& state)
{
    now_ = state;
    anchor_ = state.caret;
}

bool TNumberText::Take(const TState& next)
{
    const bool changed = next.typed != now_.typed;
    const bool moved = next.caret != now_.caret || HasSelection();
    if (changed) {
        undo_ << now_;
        if (undo_.size() > MostUndoSteps)
            undo_.removeFirst();
        redo_.clear();
    }
    MoveTo(next);
    return changed || moved;
}

bool TNumberText::Type(QChar character, const TNumberRules& rules)
{
    if (const int digit = PersianText::DigitValue(character); digit >= 0)
        return TypeDigit(digit, rules);
    switch (character.unicode()) {
    case u'.':
    case u'\u066B':
        return TypePoint(rules);
    case u'-':
    case u'\u2212':
        return TypeSign(true, rules);
    case u'+':
        return TypeSign(false, rules);
    default:
        return false;
    }
}

bool TNumberText::TypeDigit(int digit, const TNumberRules& rules)
{
    const QString text(QChar(u'0' + digit));
    // A lone zero stands for an empty edit: the digit takes its place wherever the caret is.
    const bool overZero = IsBareZero() && !HasSelection();
    const int from = overZero || !HasSelection() ? qMax(SelectionStart(), SignLength()) : SelectionStart();
    const TState next = overZero ? WithReplaced(SignLength(), static_cast<int>(now_.typed.size()), text)
                                 : WithReplaced(from, qMax(from, SelectionEnd()), text);
    return Fits(next.typed, rules) && Take(next);
}

bool TNumberText::TypePoint(const TNumberRules& rules)
{
    if (rules.decimals <= 0)
        return false;
    const int from = HasSelection() ? SelectionStart() : qMax(SelectionStart(), SignLength());
    const int to = qMax(from, SelectionEnd());
    if (now_.typed.at(qMin<qsizetype>(from, now_.typed.size() - 1)) == u'.' && !HasSelection() &&
        from < now_.typed.size())
        return Take({now_.typed, from + 1});
    const TState next = WithReplaced(from, to, QStringLiteral("."));
    return next.typed.count(u'.') == 1 && Fits(next.typed, rules) && Take(next);
}

// A sign concerns the whole number, so it can be typed anywhere; a second minus takes the first away.
bool TNumberText::TypeSign(bool minus, const TNumberRules& rules)
{
    if (minus && !rules.negative)
        return false;
    if (minus && HasSelection() && IsWhollySelected())
        return Take({QStringLiteral("-0"), 2});
    if (SignLength() == 1)
        return Take({now_.typed.mid(1), qMax(0, now_.caret - 1)});
    return minus && Take({u'-' + now_.typed, now_.caret + 1});
}

bool TNumberText::Remove(int from, int to)
{
    return from < to && Take(WithReplaced(from, to, QString()));
}

bool TNumberText::DeleteSelection()
{
    return Remove(SelectionStart(), SelectionEnd());
}

bool TNumberText::DeleteBackward()
{
    if (HasSelection())
        return DeleteSelection();
    if (IsBareZero())
        return SignLength() == 1 && Take({QStringLiteral("0"), 1});
    return Remove(now_.caret - 1 < 0 ? 0 : now_.caret - 1, now_.caret);
}

bool TNumberText::DeleteForward()
{
    if (HasSelection())
        return DeleteSelection();
    return Remove(now_.caret, qMin(now_.caret + 1, static_cast<int>(now_.typed.size())));
}

bool TNumberText::DeleteToStart()
{
    return HasSelection() ? DeleteSelection() : Remove(0, now_.caret);
}

bool TNumberText::DeleteToEnd()
{
    return HasSelection() ? DeleteSelection() : Remove(now_.caret, static_cast<int>(now_.typed.size()));
}

TNumberText::TTaken TNumberText::Paste(const QString& number, const TNumberRules& rules)
{
    const QString plain = DecimalText::DecimalCount(number) > rules.decimals
                              ? DecimalText::WithoutTrailingZeros(number)
                              : number;
    const bool whole = IsWhollySelected() || IsBareZero();
    const int from =
        whole || HasSelection() ? (whole ? 0 : SelectionStart()) : qMax(now_.caret, SignLength());
    const int to = whole ? static_cast<int>(now_.typed.size()) : qMax(from, SelectionEnd());
    const TState next = WithReplaced(from, to, plain);
    if (next.typed.lastIndexOf(u'-') > 0 || next.typed.count(u'.') > 1 ||
        (next.typed.startsWith(u'-') && !rules.negative))
        return TTaken::DoesNotFit;
    if (DecimalText::DecimalCount(next.typed) > rules.decimals)
        return TTaken::TooManyDecimals;
    if (!Fits(next.typed, rules))
        return TTaken::TooManyDigits;
    Take(next);
    return TTaken::Yes;
}

void TNumberText::Reset(const QString& number)
{
    undo_.clear();
    redo_.clear();
    MoveTo({number, static_cast<int>(number.size())});
}

void TNumberText::Assign(const QString& number)
{
    Take({number, static_cast<int>(number.size())});
}

void TNumberText::Settle()
{
    const QString text = Text();
    if (text != now_.typed)
        MoveTo({text, static_cast<int>(text.size())});
}

bool TNumberText::Undo()
{
    if (undo_.isEmpty())
        return false;
    redo_ << now_;
    MoveTo(undo_.takeLast());
    return true;
}

bool TNumberText::Redo()
{
    if (redo_.isEmpty())
        return false;
    undo_ << now_;
    MoveTo(redo_.takeLast());
    return true;
}
