#include "Collation.h"
#include "LikePattern.h"
#include "SqlValue.h"

#include <algorithm>
#include <QChar>
#include <vector>

namespace Dialect {

namespace {

using TBytes = const unsigned char*;

/// A UTF-8 text and how to walk it.
struct TWalk
{
    TBytes At;
    TBytes End;

    explicit TWalk(std::string_view text) : At(reinterpret_cast<TBytes>(text.data())), End(At + text.size())
    {
    }
    bool AtEnd() const { return At >= End; }
    char32_t Take() { return TakeCodePoint(At, End); }
};

/// Length as the server counts: letters outside the first plane count twice.
int UnitCount(std::string_view text)
{
    int units = 0;
    for (const char byte : text) {
        const auto unit = static_cast<unsigned char>(byte);
        units += ((unit & 0xC0U) != 0x80U ? 1 : 0) + (unit >= 0xF0U ? 1 : 0);
    }
    return units;
}

std::string_view WithoutTrailingBlanks(std::string_view text)
{
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

template <bool isBinary> void Like(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const TLikePattern& pattern = KeptWith<TLikePattern>(context, 0, [&] {
        TWalk escape(count > 2 ? TextOf(values[2]) : std::string_view());
        return TLikePattern(TextOf(values[0]), escape.AtEnd() ? 0 : escape.Take(), isBinary);
    });
    sqlite3_result_int(context, pattern.Matches(TextOf(values[1])) ? 1 : 0);
}

void Len(sqlite3_context* context, int, sqlite3_value** values)
{
    if (!IsNull(values[0]))
        sqlite3_result_int(context, UnitCount(WithoutTrailingBlanks(TextOf(values[0]))));
}

template <char32_t (*map)(char32_t)> void Mapped(sqlite3_context* context, int, sqlite3_value** values)
{
    if (IsNull(values[0]))
        return;
    std::string text;
    for (TWalk walk(TextOf(values[0])); !walk.AtEnd();)
        AppendUtf8(text, map(walk.Take()));
    ResultText(context, text);
}

char32_t Upper(char32_t codePoint)
{
    return QChar::toUpper(codePoint);
}

char32_t Lower(char32_t codePoint)
{
    return QChar::toLower(codePoint);
}

/// The letters from `start` (0-based) on, `length` of them.
std::string_view Cut(std::string_view text, std::int64_t start, std::int64_t length)
{
    TWalk walk(text);
    for (; start > 0 && !walk.AtEnd(); --start)
        walk.Take();
    const TBytes from = walk.At;
    for (; length > 0 && !walk.AtEnd(); --length)
        walk.Take();
    return {reinterpret_cast<const char*>(from), static_cast<std::size_t>(walk.At - from)};
}

void Substring(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    std::int64_t start = sqlite3_value_int64(values[1]) - 1;
    std::int64_t length = sqlite3_value_int64(values[2]);
    if (length < 0) {
        sqlite3_result_error(context, "Invalid length parameter passed to the LEFT or SUBSTRING function.",
                             -1);
        return;
    }
    // What lies before the first letter counts towards the length.
    if (start < 0) {
        length = std::max<std::int64_t>(length + start, 0);
        start = 0;
    }
    ResultText(context, Cut(TextOf(values[0]), start, length));
}

void Right(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::int64_t wanted = sqlite3_value_int64(values[1]);
    if (wanted < 0) {
        sqlite3_result_error(context, "Invalid length parameter passed to the right function.", -1);
        return;
    }
    const std::string_view text = TextOf(values[0]);
    std::int64_t letters = 0;
    for (TWalk walk(text); !walk.AtEnd(); ++letters)
        walk.Take();
    ResultText(context, Cut(text, letters - wanted, wanted));
}

/// Behind the letters of `wanted`, which stand at the walk's place in either case; null when they do not.
TBytes Behind(TWalk walk, std::string_view wanted)
{
    for (TWalk letters(wanted); !letters.AtEnd();) {
        if (walk.AtEnd() || Folded(walk.Take()) != Folded(letters.Take()))
            return nullptr;
    }
    return walk.At;
}

void Replace(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::string_view wanted = TextOf(values[1]);
    const std::string_view substitute = TextOf(values[2]);
    if (wanted.empty()) {
        sqlite3_result_value(context, values[0]);
        return;
    }
    std::string text;
    for (TWalk walk(TextOf(values[0])); !walk.AtEnd();) {
        if (const TBytes behind = Behind(walk, wanted)) {
            text += substitute;
            walk.At = behind;
        } else {
            AppendUtf8(text, walk.Take());
        }
    }
    ResultText(context, text);
}

/// Most texts do not hold what is looked for: they go through untouched.
void ReplaceBytes(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::string_view text = TextOf(values[0]);
    const std::string_view wanted = TextOf(values[1]);
    std::size_t found = wanted.empty() ? std::string_view::npos : FindBytes(text, wanted);
    if (found == std::string_view::npos) {
        sqlite3_result_value(context, values[0]);
        return;
    }
    const std::string_view substitute = TextOf(values[2]);
    std::string replaced;
    std::size_t start = 0;
    for (; found != std::string_view::npos; found = text.find(wanted, start)) {
        replaced += text.substr(start, found - start);
        replaced += substitute;
        start = found + wanted.size();
    }
    replaced += text.substr(start);
    ResultText(context, replaced);
}

template <bool isBinary> void CharIndex(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const std::string_view wanted = TextOf(values[0]);
    const int start = count > 2 ? std::max(sqlite3_value_int(values[2]), 1) : 1;
    int found = 0;
    int place = 1;
    for (TWalk walk(TextOf(values[1])); !wanted.empty() && !walk.AtEnd() && found == 0;) {
        const std::string_view rest(reinterpret_cast<const char*>(walk.At),
                                    static_cast<std::size_t>(walk.End - walk.At));
        const bool stands = isBinary ? rest.starts_with(wanted) : Behind(walk, wanted) != nullptr;
        if (place >= start && stands)
            found = place;
        place += walk.Take() > 0xFFFF ? 2 : 1;
    }
    sqlite3_result_int(context, found);
}

/// What TRANSLATE puts for each letter.
class TLetterMap
{
public:
    TLetterMap(std::string_view from, std::string_view to, bool isBinary) : isBinary_(isBinary)
    {
        TWalk source(from);
        TWalk target(to);
        while (!source.AtEnd() && !target.AtEnd()) {
            const char32_t letter = Key(source.Take());
            // Of a letter given twice the first counts.
            if (!Find(letter))
                pairs_.emplace_back(letter, target.Take());
            else
                target.Take();
            mask_ |= Bit(letter);
        }
        fits_ = source.AtEnd() && target.AtEnd();
    }

    bool Fits() const { return fits_; }

    /// False when no letter changes.
    bool Translate(std::string_view text, std::string& translated) const
    {
        bool changes = false;
        for (TWalk walk(text); !walk.AtEnd();) {
            const TBytes start = walk.At;
            const char32_t letter = Key(walk.Take());
            const char32_t* substitute = (mask_ & Bit(letter)) != 0 ? Find(letter) : nullptr;
            if (substitute && !changes) {
                changes = true;
                translated.assign(text.substr(0, static_cast<std::size_t>(start - TWalk(text).At)));
            }
            if (substitute)
                AppendUtf8(translated, *substitute);
            else if (changes)
                translated.append(reinterpret_cast<const char*>(start),
                                  static_cast<std::size_t>(walk.At - start));
        }
        return changes;
    }

private:
    static std::uint64_t Bit(char32_t letter) { return std::uint64_t{1} << (letter & 63U); }
    char32_t Key(char32_t letter) const { return isBinary_ ? letter : Folded(letter); }

    const char32_t* Find(char32_t letter) const
    {
        for (const auto& pair : pairs_) {
            if (pair.first == letter)
                return &pair.second;
        }
        return nullptr;
    }

    bool isBinary_;
    bool fits_ = false;
    std::uint64_t mask_ = 0;
    std::vector<std::pair<char32_t, char32_t>> pairs_;
};

template <bool isBinary> void Translate(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values))
        return;
    const TLetterMap& map = KeptWith<TLetterMap>(
        context, 1, [&] { return TLetterMap(TextOf(values[1]), TextOf(values[2]), isBinary); });
    if (!map.Fits()) {
        sqlite3_result_error(
            context,
            "The second and third arguments of the TRANSLATE built-in function must contain an "
            "equal number of characters.",
            -1);
        return;
    }
    std::string translated;
    if (map.Translate(TextOf(values[0]), translated))
        ResultText(context, translated);
    else
        sqlite3_result_value(context, values[0]);
}

void Replicate(sqlite3_context* context, int count, sqlite3_value** values)
{
    if (IsAnyNull(count, values) || sqlite3_value_int64(values[1]) < 0)
        return;
    const std::string_view text = TextOf(values[0]);
    // The server cuts at 8000 bytes of an nvarchar that is not nvarchar(max).
    constexpr std::int64_t mostUnits = 4000;
    const std::int64_t units = std::max(UnitCount(text), 1);
    const std::int64_t copies = std::min<std::int64_t>(sqlite3_value_int64(values[1]), mostUnits / units);
    std::string repeated;
    for (std::int64_t i = 0; i < copies; ++i)
        repeated += text;
    ResultText(context, repeated);
}

void Fit(sqlite3_context* context, int, sqlite3_value** values)
{
    const int most = sqlite3_value_int(values[1]);
    const std::string_view text = TextOf(values[0]);
    if (static_cast<int>(text.size()) <= most || UnitCount(text) <= most) {
        sqlite3_result_value(context, values[0]);
        return;
    }
    // Blanks at the end are cut without a word, as the server does.
    if (UnitCount(WithoutTrailingBlanks(text)) <= most) {
        ResultText(context, Cut(text, 0, most));
        return;
    }
    sqlite3_result_error(context, "String or binary data would be truncated.", -1);
    sqlite3_result_error_code(context, SQLITE_CONSTRAINT);
}

} // namespace

void RegisterTextFunctions(sqlite3* connection)
{
    constexpr TFunctionEntry entries[] = {
        {"ado_like", 2, Like<false>},
        {"ado_like", 3, Like<false>},
        {"ado_like_binary", 2, Like<true>},
        {"ado_like_binary", 3, Like<true>},
        {"ado_len", 1, Len},
        {"ado_upper", 1, Mapped<Upper>},
        {"ado_lower", 1, Mapped<Lower>},
        {"ado_substring", 3, Substring},
        {"ado_right", 2, Right},
        {"ado_replace", 3, Replace},
        {"ado_replace_bytes", 3, ReplaceBytes},
        {"ado_charindex", 2, CharIndex<false>},
        {"ado_charindex", 3, CharIndex<false>},
        {"ado_charindex_binary", 2, CharIndex<true>},
        {"ado_charindex_binary", 3, CharIndex<true>},
        {"ado_translate", 3, Translate<false>},
        {"ado_translate_binary", 3, Translate<true>},
        {"ado_replicate", 2, Replicate},
        {"ado_fit", 2, Fit},
    };
    for (const TFunctionEntry& entry : entries)
        RegisterEntry(connection, entry);
}

} // namespace Dialect
