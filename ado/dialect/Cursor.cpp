#include "Cursor.h"

#include "DialectError.h"

#include <QLatin1StringView>

namespace Dialect {

TCursor::TCursor(const QString& statement, const TSchemaView& schema)
    : statement_(statement), schema_(schema), tokens_(Tokenize(statement))
{
}

const TToken& TCursor::Peek(std::size_t ahead) const
{
    return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
}

const TToken& TCursor::Take()
{
    const TToken& token = Peek();
    if (token.Kind != TTokenKind::End)
        ++position_;
    return token;
}

bool TCursor::AcceptWord(QLatin1StringView word)
{
    const bool found = Peek().IsWord(word);
    position_ += found ? 1U : 0U;
    return found;
}

void TCursor::ExpectWord(QLatin1StringView word)
{
    if (!AcceptWord(word))
        Refuse("not expected here");
}

QString TCursor::ExpectName()
{
    if (!Peek().IsName())
        Refuse("not expected here, a name must stand here");
    return Take().Name();
}

QString TCursor::ExpectObjectName()
{
    const std::size_t start = position_;
    if (Peek().Kind == TTokenKind::Variable || Peek().Raw.startsWith(u'#'))
        Refuse("temporary tables and table variables are not supported");
    QString schema;
    QString name = ExpectName();
    while (Accept(TSymbol::Dot)) {
        schema = Peek().Is(TSymbol::Dot) ? QString() : name;
        if (!Peek().Is(TSymbol::Dot))
            name = ExpectName();
    }
    // `database..name` leaves the schema out.
    const bool isOwn = position_ == start + 1 || tokens_[position_ - 3].Is(TSymbol::Dot) ||
                       schema.compare(QLatin1String("dbo"), Qt::CaseInsensitive) == 0;
    if (!isOwn)
        Refuse(WrittenSince(start), "schema is not dbo");
    return name;
}

int TCursor::ExpectNumber()
{
    bool isWhole = false;
    const int number = Peek().Kind == TTokenKind::Number ? Peek().Raw.toInt(&isWhole) : 0;
    if (!isWhole)
        Refuse("not expected here, a whole number must stand here");
    Take();
    return number;
}

void TCursor::Refuse(const char* reason) const
{
    Refuse(Peek(), reason);
}

void TCursor::Refuse(const TToken& token, const char* reason) const
{
    if (token.Kind == TTokenKind::End)
        RefuseMalformed(statement_, QStringView(statement_).right(20), "statement ends too early");
    Refuse(token.Raw, reason);
}

void TCursor::Refuse(QStringView piece, const char* reason) const
{
    Dialect::Refuse(statement_, piece, reason);
}

QStringView TCursor::WrittenSince(std::size_t position) const
{
    const char16_t* start = tokens_[position].Raw.utf16();
    const QStringView last = tokens_[position_ > position ? position_ - 1 : position].Raw;
    return {start, last.utf16() + last.size()};
}

TNesting::TNesting(TCursor& cursor) : cursor_(cursor)
{
    constexpr int deepest = 100;
    if (++cursor_.depth_ > deepest) {
        --cursor_.depth_;
        cursor_.Refuse("nested too deeply");
    }
}

TNesting::~TNesting()
{
    --cursor_.depth_;
}

QString QuotedName(const QString& name)
{
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QLatin1String("\"\"")) + u'"';
}

QString QuotedText(const QString& text)
{
    // SQLite reads a statement up to its first NUL.
    if (text.contains(QChar::Null))
        return QStringLiteral("CAST(X'%1' AS TEXT)").arg(QString::fromLatin1(text.toUtf8().toHex()));
    QString quoted = text;
    return u'\'' + quoted.replace(u'\'', QLatin1String("''")) + u'\'';
}

} // namespace Dialect
