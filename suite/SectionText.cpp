#include "SectionText.h"

#include "PersianText.h"

TSectionText::TSectionText(const QList<TSection>& sections, QChar separator)
    : sections_(sections), separator_(separator), now_(Empty())
{
}

void TSectionText::SetLimits(qsizetype section, int least, int most, const QString& refusal)
{
    TSection& changed = sections_[section];
    changed.Least = least;
    changed.Most = most;
    changed.Refusal = refusal;
}

QString TSectionText::Text() const
{
    return now_.foreign.isEmpty() ? Join(now_) : now_.foreign;
}

QString TSectionText::Settled() const
{
    TSectionText settled = *this;
    settled.Settle();
    return settled.Text();
}

qsizetype TSectionText::MaxLength() const
{
    qsizetype length = sections_.size() - 1;
    for (const TSection& section : sections_)
        length += section.Digits;
    return length;
}

bool TSectionText::IsComplete() const
{
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        if (now_.digits.at(section).size() != sections_.at(section).Digits)
            return false;
    }
    return now_.foreign.isEmpty();
}

void TSectionText::Select(qsizetype anchor, qsizetype caret)
{
    anchor_ = anchor;
    Place(now_, caret);
}

qsizetype TSectionText::CurrentSection() const
{
    const qsizetype start = qMin(anchor_, Caret());
    const qsizetype end = qMax(anchor_, Caret());
    if (start == 0 && end == Text().size())
        return sections_.size() - 1;
    TState at = now_;
    Place(at, start);
    return at.section;
}

bool TSectionText::TypeDigit(int digit)
{
    refusal_.clear();
    TState next = WithoutSelection();
    return InsertDigit(next, QChar(u'0' + digit)) && Take(next);
}

bool TSectionText::InsertDigit(TState& state, QChar digit)
{
    const qsizetype last = sections_.size() - 1;
    const bool isFull = state.digits.at(state.section).size() == sections_.at(state.section).Digits;
    if (isFull && state.offset == state.digits.at(state.section).size()) {
        if (state.section == last)
            return false;
        OpenNext(state);
    }
    const QString before = state.digits.at(state.section);
    const qsizetype offset = state.offset;
    const bool overwrites = before.size() == sections_.at(state.section).Digits;
    QString after = before;
    after.replace(offset, overwrites ? 1 : 0, digit);
    // What stands behind may make no sense with the new digit ("3" over the "1" of 15): it goes then.
    if (!IsWithinLimits(state.section, after) && overwrites)
        after = before.left(offset) + digit;
    return TakeSection(state, after, offset + 1);
}

bool TSectionText::TakeSection(TState& state, const QString& digits, qsizetype offset)
{
    const TSection& section = sections_.at(state.section);
    if (!IsWithinLimits(state.section, digits)) {
        refusal_ = section.Refusal;
        return false;
    }
    state.digits[state.section] = digits;
    state.offset = offset;
    const bool noSecondDigit =
        section.Digits == 2 && digits.size() == 1 && digits.toInt() * 10 > section.Most;
    if (noSecondDigit) {
        state.digits[state.section] = u'0' + digits;
        state.offset = section.Digits;
    }
    if (state.offset == section.Digits && state.section + 1 < sections_.size())
        OpenNext(state);
    return true;
}

bool TSectionText::IsWithinLimits(qsizetype section, const QString& digits) const
{
    const TSection& limits = sections_.at(section);
    if (digits.size() < limits.Digits)
        return true;
    const bool isExtreme = digits.count(u'0') == digits.size() || digits.count(u'9') == digits.size();
    if (limits.TakesExtremes && isExtreme)
        return true;
    const int value = digits.toInt();
    return value >= limits.Least && value <= limits.Most;
}

void TSectionText::OpenNext(TState& state) const
{
    ++state.section;
    state.offset = 0;
    state.opened = qMax(state.opened, state.section);
}

/// After something was deleted: no separators behind the last digit and the caret.
void TSectionText::CloseEmpty(TState& state) const
{
    state.opened = state.section;
    for (qsizetype section = state.section; section < sections_.size(); ++section) {
        if (!state.digits.at(section).isEmpty())
            state.opened = section;
    }
}

bool TSectionText::TypeSeparator()
{
    refusal_.clear();
    TState next = now_;
    // The caret has moved on by itself already.
    if (!next.foreign.isEmpty() || next.offset == 0 || HasSelection())
        return false;
    if (!Complete(next))
        return false;
    if (next.section + 1 == sections_.size())
        return Take(next);
    OpenNext(next);
    return Take(next);
}

bool TSectionText::Complete(TState& state)
{
    const TSection& section = sections_.at(state.section);
    const QString digits = state.digits.at(state.section);
    if (digits.isEmpty() || digits.size() == section.Digits)
        return true;
    const QString completed =
        completion_ ? completion_(state.section, digits) : digits.rightJustified(section.Digits, u'0');
    if (!IsWithinLimits(state.section, completed)) {
        refusal_ = section.Refusal;
        return false;
    }
    state.digits[state.section] = completed;
    state.offset = completed.size();
    return true;
}

bool TSectionText::Settle()
{
    refusal_.clear();
    TState next = now_;
    for (next.section = 0; next.section < sections_.size(); ++next.section)
        Complete(next);
    refusal_.clear();
    Place(next, Join(next).size());
    return Join(next) != Join(now_) && Take(next);
}

bool TSectionText::DeleteBackward()
{
    if (HasSelection() || !now_.foreign.isEmpty())
        return Take(WithoutSelection());
    TState next = now_;
    if (next.offset == 0) {
        if (next.section == 0)
            return false;
        --next.section;
        next.offset = next.digits.at(next.section).size();
    }
    if (next.offset > 0)
        next.digits[next.section].remove(--next.offset, 1);
    CloseEmpty(next);
    return Take(next);
}

bool TSectionText::DeleteForward()
{
    if (HasSelection() || !now_.foreign.isEmpty())
        return Take(WithoutSelection());
    TState next = now_;
    if (next.offset == next.digits.at(next.section).size()) {
        if (next.section + 1 == sections_.size())
            return false;
        OpenNext(next);
    }
    next.digits[next.section].remove(next.offset, 1);
    CloseEmpty(next);
    return Take(next);
}

bool TSectionText::DeleteSelection()
{
    return HasSelection() && Take(WithoutSelection());
}

TSectionText::TState TSectionText::WithoutSelection() const
{
    if (!now_.foreign.isEmpty())
        return Empty();
    TState next = now_;
    const qsizetype from = qMin(anchor_, Caret());
    const qsizetype to = qMax(anchor_, Caret());
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        const qsizetype start = PositionOf(section, 0);
        const qsizetype first = qBound<qsizetype>(0, from - start, now_.digits.at(section).size());
        const qsizetype behind = qBound<qsizetype>(0, to - start, now_.digits.at(section).size());
        next.digits[section].remove(first, behind - first);
    }
    if (from != to) {
        TState at = now_;
        Place(at, from);
        next.section = at.section;
        next.offset = qMin(at.offset, next.digits.at(at.section).size());
        CloseEmpty(next);
    }
    return next;
}

bool TSectionText::Undo()
{
    if (undo_.isEmpty())
        return false;
    redo_.append(now_);
    MoveTo(undo_.takeLast());
    return true;
}

bool TSectionText::Redo()
{
    if (redo_.isEmpty())
        return false;
    undo_.append(now_);
    MoveTo(redo_.takeLast());
    return true;
}

bool TSectionText::Assign(const QString& text)
{
    refusal_.clear();
    return Take(Parsed(text));
}

void TSectionText::Reset(const QString& text)
{
    undo_.clear();
    redo_.clear();
    refusal_.clear();
    MoveTo(Parsed(text));
}

bool TSectionText::Take(const TState& next)
{
    undo_.append(now_);
    redo_.clear();
    MoveTo(next);
    return true;
}

void TSectionText::MoveTo(const TState& state)
{
    now_ = state;
    anchor_ = Caret();
}

TSectionText::TState TSectionText::Empty() const
{
    TState state;
    state.digits = QStringList(sections_.size(), QString());
    return state;
}

TSectionText::TState TSectionText::Parsed(const QString& text) const
{
    TState state = Empty();
    const QString ascii = PersianText::AsciiDigits(text).trimmed();
    const QStringList parts = ascii.split(separator_);
    bool fits = parts.size() <= sections_.size();
    for (qsizetype section = 0; fits && section < parts.size(); ++section) {
        const QString digits = parts.at(section).trimmed();
        fits = digits.size() <= sections_.at(section).Digits &&
               std::all_of(digits.begin(), digits.end(), [](QChar sign) { return sign.isDigit(); });
        state.digits[section] = digits;
    }
    if (!fits) {
        state = Empty();
        state.foreign = ascii;
        return state;
    }
    state.opened = parts.size() - 1;
    Place(state, Join(state).size());
    return state;
}

QString TSectionText::Join(const TState& state) const
{
    qsizetype last = state.opened;
    bool nothing = true;
    for (qsizetype section = 0; section < sections_.size(); ++section) {
        if (state.digits.at(section).isEmpty())
            continue;
        nothing = false;
        last = qMax(last, section);
    }
    return nothing ? QString() : state.digits.mid(0, last + 1).join(separator_);
}

qsizetype TSectionText::PositionOf(qsizetype section, qsizetype offset) const
{
    if (!now_.foreign.isEmpty())
        return now_.foreign.size();
    qsizetype position = offset;
    for (qsizetype before = 0; before < section; ++before)
        position += now_.digits.at(before).size() + 1;
    return qMin(position, Text().size());
}

void TSectionText::Place(TState& state, qsizetype position) const
{
    state.section = 0;
    while (state.section + 1 < sections_.size() && position > state.digits.at(state.section).size()) {
        position -= state.digits.at(state.section).size() + 1;
        ++state.section;
    }
    state.offset = qBound<qsizetype>(0, position, state.digits.at(state.section).size());
}
