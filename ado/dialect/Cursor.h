#pragma once

#include "Dialect.h"
#include "Lexer.h"

namespace Dialect {

/// The tokens of one statement and the place that has been read up to.
class TCursor
{
public:
    TCursor(const QString& statement, const TSchemaView& schema);

    const TSchemaView& Schema() const { return schema_; }

    const TToken& Peek(std::size_t ahead = 0) const;
    const TToken& Take();
    std::size_t Position() const { return position_; }
    void MoveTo(std::size_t position) { position_ = position; }

    template <typename T> bool Accept(T symbolOrKeyword)
    {
        const bool found = Peek().Is(symbolOrKeyword);
        position_ += found ? 1U : 0U;
        return found;
    }
    bool AcceptWord(QLatin1StringView word);
    template <typename T> void Expect(T symbolOrKeyword)
    {
        if (!Accept(symbolOrKeyword))
            Refuse("not expected here");
    }
    void ExpectWord(QLatin1StringView word);
    /// A name, brackets removed.
    QString ExpectName();
    /// `[database.][schema.]name` of a table, view or index: the name alone. A schema other than dbo is
    /// refused.
    QString ExpectObjectName();
    /// A whole number as written.
    int ExpectNumber();

    /// Refuses the token that stands next, or the given one.
    [[noreturn]] void Refuse(const char* reason) const;
    [[noreturn]] void Refuse(const TToken& token, const char* reason) const;
    [[noreturn]] void Refuse(QStringView piece, const char* reason) const;
    /// What was written from a place up to the token read last.
    QStringView WrittenSince(std::size_t position) const;

private:
    friend class TNesting;

    const QString& statement_;
    const TSchemaView& schema_;
    std::vector<TToken> tokens_;
    std::size_t position_ = 0;
    int depth_ = 0;
};

/// Counts nested parts, so that a text of ten thousand brackets is refused and does not exhaust the stack.
class TNesting
{
public:
    explicit TNesting(TCursor& cursor);
    TNesting(const TNesting&) = delete;
    TNesting& operator=(const TNesting&) = delete;
    ~TNesting();

private:
    TCursor& cursor_;
};

/// A name in SQLite's quotes.
QString QuotedName(const QString& name);
/// A text literal.
QString QuotedText(const QString& text);

} // namespace Dialect
