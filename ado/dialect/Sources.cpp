#include "Select.h"

namespace Dialect {

QString TSelect::From()
{
    QString sql = Source();
    while (true) {
        if (cursor_.Accept(TSymbol::Comma)) {
            sql += QLatin1String(", ") + Source();
            continue;
        }
        const QString joins = Joins();
        if (joins.isEmpty())
            return sql;
        sql += joins;
    }
}

QString TSelect::Joins()
{
    const QString word = JoinWord();
    if (word.isEmpty())
        return {};
    QString sql = word + Source();
    if (word == QLatin1String(" CROSS JOIN "))
        return sql;
    cursor_.Expect(TKeyword::On);
    return sql + QLatin1String(" ON ") + TExpressions(cursor_, scope_).Condition().Sql;
}

QString TSelect::JoinWord()
{
    const TToken& token = cursor_.Peek();
    if (cursor_.Accept(TKeyword::Join))
        return QStringLiteral(" JOIN ");
    QString word;
    if (token.Is(TKeyword::Inner))
        word = QStringLiteral(" JOIN ");
    else if (token.Is(TKeyword::Cross))
        word = QStringLiteral(" CROSS JOIN ");
    else if (token.Is(TKeyword::Left))
        word = QStringLiteral(" LEFT JOIN ");
    else if (token.Is(TKeyword::Right))
        word = QStringLiteral(" RIGHT JOIN ");
    else if (token.Is(TKeyword::Full))
        word = QStringLiteral(" FULL JOIN ");
    if (word.isEmpty())
        return {};
    cursor_.Take();
    if (!token.Is(TKeyword::Inner) && !token.Is(TKeyword::Cross))
        cursor_.Accept(TKeyword::Outer);
    cursor_.Expect(TKeyword::Join);
    return word;
}

QString TSelect::Source()
{
    if (cursor_.Peek().Is(TSymbol::OpenBracket))
        return DerivedSource();
    const QString table = cursor_.ExpectObjectName();
    if (cursor_.Peek().Is(TSymbol::OpenBracket))
        cursor_.Refuse(table, "functions that deliver tables are not supported");
    const QString alias = SourceAlias();
    TSource source;
    source.Name = alias.isEmpty() ? table : alias;
    for (const TSchemaColumn& column : cursor_.Schema().Columns(table)) {
        TType type = TypeOfDeclaration(column.DeclaredType);
        type.Binary = column.Binary;
        source.Columns.append({column.Name, type});
    }
    source.IsKnown = !source.Columns.isEmpty();
    scope_.Sources.append(source);
    RefuseAfterSource();
    return alias.isEmpty() ? QuotedName(table)
                           : QuotedName(table) + QLatin1String(" AS ") + QuotedName(alias);
}

QString TSelect::DerivedSource()
{
    cursor_.Expect(TSymbol::OpenBracket);
    if (!cursor_.Peek().Is(TKeyword::Select))
        cursor_.Refuse("only a SELECT may stand in brackets in FROM");
    const TSelectText select = TSelect(cursor_, outer_).Whole();
    cursor_.Expect(TSymbol::CloseBracket);
    TSource source{SourceAlias(), select.Columns, select.IsKnown};
    if (source.Name.isEmpty())
        cursor_.Refuse("a subquery in FROM needs a name, before");
    scope_.Sources.append(source);
    RefuseAfterSource();
    return u'(' + select.Sql + QLatin1String(") AS ") + QuotedName(source.Name);
}

QString TSelect::SourceAlias()
{
    if (cursor_.Accept(TKeyword::As))
        return cursor_.ExpectName();
    const bool isWord = cursor_.Peek().IsWord(QLatin1StringView("OFFSET"));
    return cursor_.Peek().IsName() && !isWord ? cursor_.Take().Name() : QString();
}

void TSelect::RefuseAfterSource()
{
    if (cursor_.Peek().Is(TKeyword::With))
        cursor_.Refuse("table hints are not supported");
    if (cursor_.Peek().Is(TKeyword::Pivot) || cursor_.Peek().Is(TKeyword::Unpivot))
        cursor_.Refuse("not supported");
    if (cursor_.Peek().Is(TSymbol::OpenBracket))
        cursor_.Refuse("a list of column names or hints behind a table is not supported");
}

} // namespace Dialect
