#include "CodeKeys.h"

#include <algorithm>
#include <iterator>

namespace {

struct TRange
{
    char16_t first;
    char16_t last;
};

constexpr TRange Symbols[] = {{33, 38}, {40, 45}, {47, 47}, {58, 64}, {91, 96}, {124, 124}, {126, 126}};

} // namespace

bool CodeKeys::IsCharacter(QChar key)
{
    return key > u'A';
}

bool CodeKeys::IsSymbol(QChar key)
{
    return std::any_of(std::begin(Symbols), std::end(Symbols),
                       [key](TRange range) { return key >= range.first && key <= range.last; });
}

bool CodeKeys::IsPoint(QChar key)
{
    return key == u'.';
}

bool CodeKeys::ValidateKey(QChar key)
{
    return !IsCharacter(key) && !IsSymbol(key) && !IsPoint(key) && key != u' ';
}
