#include "LikePattern.h"

#include "Collation.h"

#include <algorithm>

namespace Dialect {

namespace {

std::uint64_t MaskBit(char32_t letter)
{
    return std::uint64_t{1} << (letter & 63U);
}

} // namespace

TLikePattern::TLikePattern(std::string_view pattern, char32_t escape, bool isBinary) : isBinary_(isBinary)
{
    Read(pattern, escape);
    for (TElement& element : elements_)
        FindMask(element);
    if (shape_ != TShape::Never)
        FindShape();
}

void TLikePattern::Read(std::string_view pattern, char32_t escape)
{
    auto at = reinterpret_cast<TBytes>(pattern.data());
    const TBytes end = at + pattern.size();
    while (at < end) {
        const char32_t letter = TakeCodePoint(at, end);
        if (escape != 0 && letter == escape) {
            // The escape character at the very end matches nothing.
            if (at == end)
                shape_ = TShape::Never;
            else
                AddLetter(TakeCodePoint(at, end));
        } else if (letter == U'%') {
            if (elements_.empty() || elements_.back().Kind != TElementKind::AnyText)
                elements_.push_back({TElementKind::AnyText});
        } else if (letter == U'_') {
            elements_.push_back({TElementKind::AnyLetter});
        } else if (letter != U'[') {
            AddLetter(letter);
        } else if (!ReadClass(at, end, escape)) {
            shape_ = TShape::Never;
            return;
        }
    }
}

void TLikePattern::AddLetter(char32_t letter)
{
    elements_.push_back({TElementKind::Letter, Key(letter)});
}

bool TLikePattern::ReadClass(TBytes& at, TBytes end, char32_t escape)
{
    TElement element{TElementKind::Class};
    if (at < end && *at == '^') {
        element.IsNegated = true;
        ++at;
    }
    while (at < end) {
        char32_t first = TakeCodePoint(at, end);
        if (first == U']') {
            // A class of one letter is that letter: [%] is a percent sign.
            const bool isLetter = !element.IsNegated && element.Ranges.size() == 1 &&
                                  element.Ranges[0].First == element.Ranges[0].Last;
            if (isLetter)
                AddLetter(element.Ranges[0].First);
            else
                elements_.push_back(element);
            return true;
        }
        if (escape != 0 && first == escape && at < end)
            first = TakeCodePoint(at, end);
        char32_t last = first;
        if (at + 1 < end && at[0] == '-' && at[1] != ']') {
            ++at;
            last = TakeCodePoint(at, end);
            if (escape != 0 && last == escape && at < end)
                last = TakeCodePoint(at, end);
        }
        element.Ranges.push_back({first, last});
    }
    return false;
}

bool TLikePattern::IsExactLetter(char32_t letter) const
{
    return isBinary_ || IsCaseless(letter);
}

char32_t TLikePattern::Key(char32_t letter) const
{
    return isBinary_ ? letter : Folded(letter);
}

void TLikePattern::FindMask(TElement& element) const
{
    if (element.Kind == TElementKind::Letter)
        element.Mask = MaskBit(element.Letter);
    const bool isList = element.Kind == TElementKind::Class && !element.IsNegated &&
                        std::all_of(element.Ranges.begin(), element.Ranges.end(),
                                    [](const TRange& range) { return range.First == range.Last; });
    if (!isList)
        return;
    element.Mask = 0;
    for (const TRange& range : element.Ranges)
        element.Mask |= MaskBit(Key(range.First));
}

TLikePattern::TBytes TLikePattern::NextPossible(TBytes at, TBytes end, const TElement& element) const
{
    while (at < end) {
        const TBytes start = at;
        if ((element.Mask & MaskBit(Key(TakeCodePoint(at, end)))) != 0)
            return start;
    }
    return end;
}

void TLikePattern::FindShape()
{
    const auto isText = [](const TElement& element) { return element.Kind == TElementKind::AnyText; };
    const bool opens = !elements_.empty() && isText(elements_.front());
    const bool closes = elements_.size() > 1 && isText(elements_.back());
    const auto first = elements_.begin() + (opens ? 1 : 0);
    const auto last = elements_.end() - (closes ? 1 : 0);
    const bool isLiteral = std::all_of(first, last, [this](const TElement& element) {
        return element.Kind == TElementKind::Letter && IsExactLetter(element.Letter);
    });
    if (!isLiteral)
        return;
    for (auto element = first; element != last; ++element)
        AppendUtf8(literal_, element->Letter);
    if (opens)
        shape_ = closes || elements_.size() == 1 ? TShape::Contains : TShape::Suffix;
    else
        shape_ = closes ? TShape::Prefix : TShape::Equal;
}

bool TLikePattern::Matches(std::string_view text) const
{
    switch (shape_) {
    case TShape::Equal:
        return text == literal_;
    case TShape::Prefix:
        return text.starts_with(literal_);
    case TShape::Suffix:
        return text.ends_with(literal_);
    case TShape::Contains:
        return FindBytes(text, literal_) != std::string_view::npos;
    case TShape::Never:
        return false;
    case TShape::General:
        break;
    }
    const auto at = reinterpret_cast<TBytes>(text.data());
    return MatchesGeneral(at, at + text.size());
}

bool TLikePattern::MatchesGeneral(TBytes at, TBytes end) const
{
    auto element = elements_.begin();
    // Where to go on when what follows the last % does not match: one letter further.
    auto retryElement = elements_.end();
    TBytes retryAt = nullptr;
    while (true) {
        if (element == elements_.end() && at == end)
            return true;
        if (element != elements_.end() && element->Kind == TElementKind::AnyText) {
            retryElement = ++element;
            if (element == elements_.end())
                return true;
            retryAt = at = NextPossible(at, end, *element);
            continue;
        }
        if (element != elements_.end() && at < end) {
            TBytes next = at;
            if (MatchesOne(*element, TakeCodePoint(next, end))) {
                at = next;
                ++element;
                continue;
            }
        }
        if (!retryAt || retryAt == end)
            return false;
        TakeCodePoint(retryAt, end);
        at = retryAt = NextPossible(retryAt, end, *retryElement);
        element = retryElement;
    }
}

bool TLikePattern::MatchesOne(const TElement& element, char32_t letter) const
{
    switch (element.Kind) {
    case TElementKind::Letter:
        return element.Letter == Key(letter);
    case TElementKind::AnyLetter:
        return true;
    case TElementKind::Class:
        return element.IsNegated !=
               std::any_of(element.Ranges.begin(), element.Ranges.end(),
                           [&](const TRange& range) { return IsInRange(range, letter); });
    case TElementKind::AnyText:
        break;
    }
    return false;
}

bool TLikePattern::IsInRange(const TRange& range, char32_t letter) const
{
    if (isBinary_)
        return range.First <= letter && letter <= range.Last;
    const char32_t folded = Folded(letter);
    if (range.First == range.Last)
        return Folded(range.First) == folded;
    const std::uint32_t weight = Weight(letter);
    return Weight(range.First) <= weight && weight <= Weight(range.Last);
}

} // namespace Dialect
