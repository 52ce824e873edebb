#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace Dialect {

enum class TTokenKind : quint8 { End, Word, QuotedName, Text, Number, Binary, Parameter, Variable, Symbol };

/// Reserved words, in the alphabetical order of the table in Lexer.cpp. A word that is none is
/// TKeyword::None.
enum class TKeyword : quint8 {
    None,
    Add,
    All,
    Alter,
    And,
    Any,
    As,
    Asc,
    Begin,
    Between,
    By,
    Case,
    Check,
    Clustered,
    Coalesce,
    Collate,
    Column,
    Commit,
    Constraint,
    Convert,
    Create,
    Cross,
    CurrentTimestamp,
    Declare,
    Default,
    Delete,
    Desc,
    Distinct,
    Drop,
    Else,
    End,
    Escape,
    Except,
    Exec,
    Execute,
    Exists,
    Fetch,
    For,
    Foreign,
    From,
    Full,
    Grant,
    Group,
    Having,
    Identity,
    IdentityInsert,
    If,
    In,
    Index,
    Inner,
    Insert,
    Intersect,
    Into,
    Is,
    Join,
    Key,
    Left,
    Like,
    Merge,
    NonClustered,
    Not,
    Null,
    NullIf,
    On,
    Option,
    Or,
    Order,
    Outer,
    Over,
    Percent,
    Pivot,
    Primary,
    References,
    Right,
    Rollback,
    Select,
    Set,
    Some,
    Table,
    Then,
    Top,
    Transaction,
    Truncate,
    Union,
    Unique,
    Unpivot,
    Update,
    Use,
    Values,
    View,
    When,
    Where,
    While,
    With,
};

enum class TSymbol : quint8 {
    None,
    OpenBracket,
    CloseBracket,
    Comma,
    Dot,
    Semicolon,
    Star,
    Slash,
    Percent,
    Plus,
    Minus,
    Ampersand,
    Bar,
    Caret,
    Tilde,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    PlusEqual,
    MinusEqual,
    StarEqual,
    SlashEqual,
};

struct TToken
{
    TTokenKind Kind = TTokenKind::End;
    TKeyword Keyword = TKeyword::None;
    TSymbol Symbol = TSymbol::None;
    int Parameter = 0; ///< 1-based number of a `?` mark
    QStringView Raw;   ///< as written, quotes and brackets included

    bool IsName() const
    {
        return Kind == TTokenKind::QuotedName || (Kind == TTokenKind::Word && Keyword == TKeyword::None);
    }
    bool Is(TSymbol symbol) const { return Symbol == symbol; }
    bool Is(TKeyword keyword) const { return Keyword == keyword; }
    /// A word that is reserved nowhere but has a meaning at some places (OFFSET, ROWS, INCLUDE, ...).
    bool IsWord(QLatin1StringView word) const
    {
        return Kind == TTokenKind::Word && Raw.compare(word, Qt::CaseInsensitive) == 0;
    }
    /// The name without its brackets or quotes.
    QString Name() const;
    /// The content of a text literal.
    QString Text() const;
};

/// The tokens of a statement, an End token last. Comments and white space are gone. Throws EADOError.
std::vector<TToken> Tokenize(const QString& statement);

} // namespace Dialect
