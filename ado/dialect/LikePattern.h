#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Dialect {

/// A LIKE pattern of the server, read once and matched against many texts.
class TLikePattern
{
public:
    /// `escape` is the character of ESCAPE, 0 for none. With `isBinary` letters match themselves only;
    /// otherwise case does not count, and the ranges of a class follow the alphabetical order.
    TLikePattern(std::string_view pattern, char32_t escape, bool isBinary);

    bool Matches(std::string_view text) const;

private:
    enum class TElementKind { Letter, AnyLetter, AnyText, Class };
    enum class TShape {
        General,
        Equal,    ///< literal
        Prefix,   ///< literal%
        Suffix,   ///< %literal
        Contains, ///< %literal%
        Never,    ///< a class that is not closed
    };

    struct TRange
    {
        char32_t First;
        char32_t Last;
    };

    struct TElement
    {
        TElementKind Kind;
        char32_t Letter = 0;
        bool IsNegated = false;
        std::vector<TRange> Ranges = {};
        /// Which values of a letter's last six bits can match at all: most letters are passed over by one
        /// test.
        std::uint64_t Mask = ~std::uint64_t{0};
    };

    using TBytes = const unsigned char*;

    void Read(std::string_view pattern, char32_t escape);
    bool ReadClass(TBytes& at, TBytes end, char32_t escape);
    void AddLetter(char32_t letter);
    void FindShape();
    void FindMask(TElement& element) const;
    TBytes NextPossible(TBytes at, TBytes end, const TElement& element) const;
    bool MatchesGeneral(TBytes at, TBytes end) const;
    bool MatchesOne(const TElement& element, char32_t letter) const;
    bool IsInRange(const TRange& range, char32_t letter) const;
    bool IsExactLetter(char32_t letter) const;
    char32_t Key(char32_t letter) const;

    bool isBinary_;
    TShape shape_ = TShape::General;
    std::vector<TElement> elements_;
    std::string literal_; ///< of the shapes that are compared byte by byte
};

} // namespace Dialect
