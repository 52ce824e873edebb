#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Dialect {

/// Reads the code point at the front of a UTF-8 text and moves behind it. Broken bytes are read as they
/// stand.
inline char32_t TakeCodePoint(const unsigned char*& at, const unsigned char* end)
{
    const unsigned char lead = *at++;
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    char32_t codePoint = following == 0 ? lead : lead & (0x3FU >> following);
    for (int i = 0; i < following && at < end && (*at & 0xC0U) == 0x80; ++i)
        codePoint = (codePoint << 6U) | (*at++ & 0x3FU);
    return codePoint;
}

void AppendUtf8(std::string& text, char32_t codePoint);

/// Where the bytes stand first; npos when nowhere.
std::size_t FindBytes(std::string_view text, std::string_view wanted);

/// The code point with its case folded.
char32_t Folded(char32_t codePoint);
/// Whether no other code point folds to the same.
bool IsCaseless(char32_t codePoint);
/// The place of a letter in the alphabet, the same for ی and ي, ک and ك; 0 for marks that do not count in the
/// order (ZWNJ, kashida, vowel signs).
std::uint32_t Weight(char32_t codePoint);

/// Case-insensitive over Unicode, Persian alphabetical order, trailing blanks ignored.
int ComparePersian(std::string_view first, std::string_view second);

} // namespace Dialect
