#include "Lexer.h"

#include "DialectError.h"

#include <algorithm>
#include <array>
#include <QLatin1StringView>

namespace Dialect {

namespace {

// In the order of TKeyword, None left out; sorted, so that it can be searched by halving.
constexpr std::array Keywords{
    "ADD",
    "ALL",
    "ALTER",
    "AND",
    "ANY",
    "AS",
    "ASC",
    "BEGIN",
    "BETWEEN",
    "BY",
    "CASE",
    "CHECK",
    "CLUSTERED",
    "COALESCE",
    "COLLATE",
    "COLUMN",
    "COMMIT",
    "CONSTRAINT",
    "CONVERT",
    "CREATE",
    "CROSS",
    "CURRENT_TIMESTAMP",
    "DECLARE",
    "DEFAULT",
    "DELETE",
    "DESC",
    "DISTINCT",
    "DROP",
    "ELSE",
    "END",
    "ESCAPE",
    "EXCEPT",
    "EXEC",
    "EXECUTE",
    "EXISTS",
    "FETCH",
    "FOR",
    "FOREIGN",
    "FROM",
    "FULL",
    "GRANT",
    "GROUP",
    "HAVING",
    "IDENTITY",
    "IDENTITY_INSERT",
    "IF",
    "IN",
    "INDEX",
    "INNER",
    "INSERT",
    "INTERSECT",
    "INTO",
    "IS",
    "JOIN",
    "KEY",
    "LEFT",
    "LIKE",
    "MERGE",
    "NONCLUSTERED",
    "NOT",
    "NULL",
    "NULLIF",
    "ON",
    "OPTION",
    "OR",
    "ORDER",
    "OUTER",
    "OVER",
    "PERCENT",
    "PIVOT",
    "PRIMARY",
    "REFERENCES",
    "RIGHT",
    "ROLLBACK",
    "SELECT",
    "SET",
    "SOME",
    "TABLE",
    "THEN",
    "TOP",
    "TRANSACTION",
    "TRUNCATE",
    "UNION",
    "UNIQUE",
    "UNPIVOT",
    "UPDATE",
    "USE",
    "VALUES",
    "VIEW",
    "WHEN",
    "WHERE",
    "WHILE",
    "WITH",
};
static_assert(Keywords.size() == static_cast<std::size_t>(TKeyword::With));

TKeyword KeywordOf(QStringView word)
{
    const auto found =
        std::lower_bound(Keywords.begin(), Keywords.end(), word, [](const char* keyword, QStringView wanted) {
            return wanted.compare(QLatin1StringView(keyword), Qt::CaseInsensitive) > 0;
        });
    if (found == Keywords.end() || word.compare(QLatin1StringView(*found), Qt::CaseInsensitive) != 0)
        return TKeyword::None;
    return static_cast<TKeyword>(found - Keywords.begin() + 1);
}

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool IsHexDigit(QChar character)
{
    const QChar lower = QChar(character.unicode() | 0x20U);
    return IsDigit(character) || (lower >= u'a' && lower <= u'f');
}

bool StartsWord(QChar character)
{
    return character.isLetter() || character == u'_' || character == u'@' || character == u'#';
}

bool ContinuesWord(QChar character)
{
    return StartsWord(character) || character.isDigit() || character == u'$';
}

bool IsBlank(QChar character)
{
    constexpr char16_t byteOrderMark = 0xFEFF;
    return character.isSpace() || character == byteOrderMark;
}

QString Undoubled(QStringView inside, QChar quote)
{
    QString text = inside.toString();
    return text.replace(QString(2, quote), QString(quote));
}

class TScanner
{
public:
    explicit TScanner(QStringView statement) : text_(statement) {}

    std::vector<TToken> All()
    {
        std::vector<TToken> tokens;
        tokens.reserve(static_cast<std::size_t>(text_.size()) / 4 + 8);
        do {
            tokens.push_back(Next());
        } while (tokens.back().Kind != TTokenKind::End);
        return tokens;
    }

private:
    QChar At(qsizetype ahead = 0) const
    {
        return position_ + ahead < text_.size() ? text_[position_ + ahead] : QChar();
    }

    bool AtEnd() const { return position_ >= text_.size(); }

    TToken Token(TTokenKind kind, qsizetype start) const
    {
        TToken token;
        token.Kind = kind;
        token.Raw = text_.mid(start, position_ - start);
        return token;
    }

    void SkipBlanks()
    {
        while (!AtEnd()) {
            if (IsBlank(At()))
                ++position_;
            else if (At() == u'-' && At(1) == u'-')
                SkipLine();
            else if (At() == u'/' && At(1) == u'*')
                SkipComment();
            else
                return;
        }
    }

    void SkipLine()
    {
        while (!AtEnd() && At() != u'\n')
            ++position_;
    }

    void SkipComment()
    {
        const qsizetype start = position_;
        int depth = 0;
        do {
            if (AtEnd())
                RefuseMalformed(text_, text_.mid(start, 20), "comment is not closed");
            if (At() == u'/' && At(1) == u'*') {
                ++depth;
                position_ += 2;
            } else if (At() == u'*' && At(1) == u'/') {
                --depth;
                position_ += 2;
            } else {
                ++position_;
            }
        } while (depth > 0);
    }

    TToken Next()
    {
        SkipBlanks();
        const qsizetype start = position_;
        if (AtEnd())
            return Token(TTokenKind::End, start);
        const QChar first = At();
        if (first == u'\'')
            return Quoted(TTokenKind::Text, start, u'\'');
        if ((first == u'N' || first == u'n') && At(1) == u'\'') {
            ++position_;
            return Quoted(TTokenKind::Text, start, u'\'');
        }
        if (first == u'[')
            return Quoted(TTokenKind::QuotedName, start, u']');
        if (first == u'"')
            return Quoted(TTokenKind::QuotedName, start, u'"');
        if (IsDigit(first) || (first == u'.' && IsDigit(At(1))))
            return Number(start);
        if (StartsWord(first))
            return Word(start);
        if (first == u'?')
            return Parameter(start);
        return Symbol(start);
    }

    TToken Quoted(TTokenKind kind, qsizetype start, QChar close)
    {
        for (++position_; !AtEnd(); ++position_) {
            if (At() != close)
                continue;
            ++position_;
            if (At() != close || AtEnd())
                return Token(kind, start);
        }
        RefuseMalformed(text_, text_.mid(start, 40), "literal or name is not closed");
    }

    TToken Word(qsizetype start)
    {
        while (!AtEnd() && ContinuesWord(At()))
            ++position_;
        TToken token = Token(TTokenKind::Word, start);
        if (token.Raw.startsWith(u'@'))
            token.Kind = TTokenKind::Variable;
        else
            token.Keyword = KeywordOf(token.Raw);
        return token;
    }

    TToken Number(qsizetype start)
    {
        TTokenKind kind = TTokenKind::Number;
        if (At() == u'0' && (At(1) == u'x' || At(1) == u'X')) {
            kind = TTokenKind::Binary;
            for (position_ += 2; IsHexDigit(At());)
                ++position_;
        } else {
            SkipDigits();
            if (At() == u'.') {
                ++position_;
                SkipDigits();
            }
            SkipExponent();
        }
        if (!AtEnd() && ContinuesWord(At()))
            RefuseMalformed(text_, text_.mid(start, position_ - start + 1), "a letter follows a number");
        return Token(kind, start);
    }

    void SkipDigits()
    {
        while (IsDigit(At()))
            ++position_;
    }

    void SkipExponent()
    {
        if (At() != u'e' && At() != u'E')
            return;
        const qsizetype sign = At(1) == u'+' || At(1) == u'-' ? 1 : 0;
        if (!IsDigit(At(1 + sign)))
            return;
        position_ += 1 + sign;
        SkipDigits();
    }

    TToken Parameter(qsizetype start)
    {
        ++position_;
        TToken token = Token(TTokenKind::Parameter, start);
        token.Parameter = ++parameters_;
        return token;
    }

    TToken Symbol(qsizetype start)
    {
        TSymbol symbol = PairSymbol(At(), At(1));
        position_ += symbol == TSymbol::None ? 1 : 2;
        if (symbol == TSymbol::None)
            symbol = SingleSymbol(text_[start]);
        TToken token = Token(TTokenKind::Symbol, start);
        if (symbol == TSymbol::None)
            Refuse(text_, token.Raw, "unknown character");
        token.Symbol = symbol;
        return token;
    }

    static TSymbol PairSymbol(QChar first, QChar second)
    {
        const bool equal = second == u'=';
        switch (first.unicode()) {
        case u'<':
            return equal ? TSymbol::LessEqual : second == u'>' ? TSymbol::NotEqual : TSymbol::None;
        case u'>':
            return equal ? TSymbol::GreaterEqual : TSymbol::None;
        case u'!':
            return equal            ? TSymbol::NotEqual
                   : second == u'<' ? TSymbol::GreaterEqual
                   : second == u'>' ? TSymbol::LessEqual
                                    : TSymbol::None;
        case u'+':
            return equal ? TSymbol::PlusEqual : TSymbol::None;
        case u'-':
            return equal ? TSymbol::MinusEqual : TSymbol::None;
        case u'*':
            return equal ? TSymbol::StarEqual : TSymbol::None;
        case u'/':
            return equal ? TSymbol::SlashEqual : TSymbol::None;
        default:
            return TSymbol::None;
        }
    }

    static TSymbol SingleSymbol(QChar character)
    {
        constexpr std::u16string_view characters = u"(),.;*/%+-&|^~=";
        constexpr std::u16string_view comparisons = u"<>";
        const auto place = characters.find(character.unicode());
        if (place != std::u16string_view::npos)
            return static_cast<TSymbol>(place + 1);
        if (comparisons.find(character.unicode()) == std::u16string_view::npos)
            return TSymbol::None;
        return character == u'<' ? TSymbol::Less : TSymbol::Greater;
    }

    QStringView text_;
    qsizetype position_ = 0;
    int parameters_ = 0;
};

} // namespace

QString TToken::Name() const
{
    if (Kind != TTokenKind::QuotedName)
        return Raw.toString();
    const QChar close = Raw.back();
    return Undoubled(Raw.mid(1, Raw.size() - 2), close);
}

QString TToken::Text() const
{
    const qsizetype open = Raw.front() == u'\'' ? 1 : 2;
    return Undoubled(Raw.mid(open, Raw.size() - open - 1), u'\'');
}

std::vector<TToken> Tokenize(const QString& statement)
{
    return TScanner(statement).All();
}

} // namespace Dialect
