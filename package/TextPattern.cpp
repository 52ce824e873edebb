#include "TextPattern.h"

#include "PersianText.h"

#include <QHash>
#include <vector>

namespace {

constexpr char32_t UnitCount = 0x10000;

/// What single UTF-16 units fold to, and which units fold to the same one. PersianText::Fold is asked once
/// for each.
struct TFolding
{
    std::vector<char16_t> FoldedUnits = std::vector<char16_t>(UnitCount); ///< null for units that are dropped
    QHash<char16_t, QString> Alike; ///< units that fold to the key and are not the key

    TFolding()
    {
        for (char32_t code = 1; code < UnitCount; ++code) {
            const auto unit = static_cast<char16_t>(code);
            const char16_t folded = Fold(unit);
            FoldedUnits[code] = folded;
            if (folded != unit && folded != 0)
                Alike[folded].append(QChar(unit));
        }
    }

private:
    static char16_t Fold(char16_t unit)
    {
        if (QChar::isSurrogate(unit))
            return unit;
        const QString folded = PersianText::Fold(QString(QChar(unit)));
        if (folded.isEmpty())
            return 0;
        return folded.size() == 1 ? folded.at(0).unicode() : unit;
    }
};

const TFolding& Folding()
{
    static const TFolding folding;
    return folding;
}

QString FoldUnits(const QString& text)
{
    const std::vector<char16_t>& foldedUnits = Folding().FoldedUnits;
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        const char16_t folded = foldedUnits[unit];
        if (folded != 0 || unit == 0)
            result += QChar(folded);
    }
    return result;
}

QString LikeLiteral(QChar unit)
{
    switch (unit.unicode()) {
    case u'%':
    case u'_':
    case u'[':
        return QLatin1Char('[') + unit + QLatin1Char(']');
    case u'\'':
        return QStringLiteral("''");
    default:
        return unit;
    }
}

} // namespace

TTextPattern::TTextPattern(const QString& typed) : folded_(FoldUnits(typed))
{
}

bool TTextPattern::IsPossible() const
{
    return folded_.size() <= MaxLength && folded_.isValidUtf16() && !folded_.contains(QChar::Null);
}

QString TTextPattern::FoldedLike() const
{
    QString pattern;
    for (const QChar unit : folded_)
        pattern += LikeLiteral(unit);
    return pattern;
}

QString TTextPattern::PlainLike() const
{
    QString pattern;
    for (const QChar unit : folded_) {
        const QString alike = Folding().Alike.value(unit.unicode());
        pattern += alike.isEmpty() ? LikeLiteral(unit) : QLatin1Char('[') + unit + alike + QLatin1Char(']');
    }
    return pattern;
}

bool TTextPattern::FoundIn(const QString& text) const
{
    return FoldUnits(text).contains(folded_);
}
