#include "Statements.h"

#include <algorithm>
#include <QLatin1StringView>

namespace Dialect {

namespace {

void RefuseOutput(const TCursor& cursor)
{
    if (cursor.Peek().IsWord(QLatin1StringView("OUTPUT")))
        cursor.Refuse("OUTPUT is not supported");
    if (cursor.Peek().Is(TKeyword::Top))
        cursor.Refuse("TOP is supported in SELECT only");
}

/// What an INSERT writes into: the columns that it names, or all that take a value.
struct TDestination
{
    QString Table;
    QStringList Names;
    QVector<TType> Types;
};

TDestination Destination(TCursor& cursor)
{
    TDestination destination;
    destination.Table = cursor.ExpectObjectName();
    const bool namesColumns = cursor.Peek().Is(TSymbol::OpenBracket) && !cursor.Peek(1).Is(TKeyword::Select);
    if (namesColumns)
        destination.Names = NamesInBrackets(cursor);
    const QVector<TSchemaColumn> columns = cursor.Schema().Columns(destination.Table);
    if (!namesColumns) {
        for (const TSchemaColumn& column : columns) {
            if (!column.Identity && !column.Computed)
                destination.Names.append(column.Name);
        }
    }
    for (const QString& name : destination.Names) {
        const auto found = std::find_if(columns.begin(), columns.end(), [&](const TSchemaColumn& column) {
            return column.Name.compare(name, Qt::CaseInsensitive) == 0;
        });
        destination.Types.append(found == columns.end() ? TType() : TypeOfDeclaration(found->DeclaredType));
    }
    return destination;
}

QString Row(TCursor& cursor, const TDestination& destination)
{
    cursor.Expect(TSymbol::OpenBracket);
    const TScope none;
    TExpressions expressions(cursor, none);
    QStringList values;
    do {
        const auto place = values.size();
        if (cursor.Peek().Is(TKeyword::Default))
            cursor.Refuse("DEFAULT among values is not supported, leave the column out");
        const TPiece value = expressions.Value();
        values.append(place < destination.Types.size() ? Assigned(cursor, value, destination.Types[place])
                                                       : value.Sql);
    } while (cursor.Accept(TSymbol::Comma));
    cursor.Expect(TSymbol::CloseBracket);
    if (!destination.Names.isEmpty() && values.size() != destination.Names.size())
        cursor.Refuse(destination.Table, "the number of values is not the number of columns");
    return u'(' + values.join(QLatin1String(", ")) + u')';
}

QString Rows(TCursor& cursor, const TDestination& destination)
{
    QStringList rows;
    do {
        rows.append(Row(cursor, destination));
    } while (cursor.Accept(TSymbol::Comma));
    return QLatin1String("VALUES ") + rows.join(QLatin1String(", "));
}

QString Setting(TCursor& cursor, TExpressions& expressions, const QString& table)
{
    QString column = cursor.ExpectName();
    if (cursor.Accept(TSymbol::Dot)) {
        if (column.compare(table, Qt::CaseInsensitive) != 0)
            cursor.Refuse(column, "not the table that is updated");
        column = cursor.ExpectName();
    }
    const TToken& sign = cursor.Take();
    TPiece target = WholePiece(QuotedName(column), expressions.Scope().TypeOf({}, column));
    target.CarriesCollation = true;
    TPiece value = expressions.Value();
    TToken operation = sign;
    operation.Raw = sign.Raw.left(1);
    if (sign.Is(TSymbol::PlusEqual))
        operation.Symbol = TSymbol::Plus;
    else if (sign.Is(TSymbol::MinusEqual))
        operation.Symbol = TSymbol::Minus;
    else if (sign.Is(TSymbol::StarEqual))
        operation.Symbol = TSymbol::Star;
    else if (!sign.Is(TSymbol::Equal))
        cursor.Refuse(sign, "not expected here");
    if (!sign.Is(TSymbol::Equal))
        value = Arithmetic(cursor, target, operation, value);
    return target.Sql + QLatin1String(" = ") + Assigned(cursor, value, target.Type);
}

QString Where(TCursor& cursor, const TScope& scope)
{
    if (!cursor.Accept(TKeyword::Where))
        return {};
    return QLatin1String(" WHERE ") + TExpressions(cursor, scope).Condition().Sql;
}

} // namespace

TScope TableScope(const TCursor& cursor, const QString& table)
{
    TSource source;
    source.Name = table;
    for (const TSchemaColumn& column : cursor.Schema().Columns(table)) {
        TType type = TypeOfDeclaration(column.DeclaredType);
        type.Binary = column.Binary;
        source.Columns.append({column.Name, type});
    }
    source.IsKnown = !source.Columns.isEmpty();
    TScope scope;
    scope.Sources.append(source);
    return scope;
}

QStringList NamesInBrackets(TCursor& cursor)
{
    cursor.Expect(TSymbol::OpenBracket);
    QStringList names;
    do {
        names.append(cursor.ExpectName());
    } while (cursor.Accept(TSymbol::Comma));
    cursor.Expect(TSymbol::CloseBracket);
    return names;
}

QString InsertStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Insert);
    RefuseOutput(cursor);
    cursor.Accept(TKeyword::Into);
    const TDestination destination = Destination(cursor);
    RefuseOutput(cursor);
    QString sql = QLatin1String("INSERT INTO ") + QuotedName(destination.Table);
    if (cursor.Accept(TKeyword::Default)) {
        cursor.Expect(TKeyword::Values);
        return sql + QLatin1String(" DEFAULT VALUES");
    }
    QStringList names;
    for (const QString& name : destination.Names)
        names.append(QuotedName(name));
    if (!names.isEmpty())
        sql += QLatin1String(" (") + names.join(QLatin1String(", ")) + u')';
    if (cursor.Accept(TKeyword::Values))
        return sql + u' ' + Rows(cursor, destination);
    if (!cursor.Peek().Is(TKeyword::Select))
        cursor.Refuse("only VALUES or SELECT may be inserted");
    return sql + u' ' + TSelect(cursor, nullptr, &destination.Types).Whole().Sql;
}

QString UpdateStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Update);
    RefuseOutput(cursor);
    const QString table = cursor.ExpectObjectName();
    const TScope scope = TableScope(cursor, table);
    TExpressions expressions(cursor, scope);
    cursor.Expect(TKeyword::Set);
    QStringList settings;
    do {
        settings.append(Setting(cursor, expressions, table));
    } while (cursor.Accept(TSymbol::Comma));
    RefuseOutput(cursor);
    if (cursor.Peek().Is(TKeyword::From))
        cursor.Refuse("UPDATE ... FROM is not supported");
    return QLatin1String("UPDATE ") + QuotedName(table) + QLatin1String(" SET ") +
           settings.join(QLatin1String(", ")) + Where(cursor, scope);
}

QString DeleteStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Delete);
    RefuseOutput(cursor);
    cursor.Accept(TKeyword::From);
    const QString table = cursor.ExpectObjectName();
    RefuseOutput(cursor);
    if (cursor.Peek().Is(TKeyword::From))
        cursor.Refuse("a second FROM is not supported");
    return QLatin1String("DELETE FROM ") + QuotedName(table) + Where(cursor, TableScope(cursor, table));
}

QString SetStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Set);
    if (!cursor.Accept(TKeyword::IdentityInsert))
        cursor.Refuse("only SET IDENTITY_INSERT is supported");
    cursor.ExpectObjectName();
    if (!cursor.Accept(TKeyword::On))
        cursor.ExpectWord(QLatin1StringView("OFF"));
    // The embedded database takes a given number of an identity column at any time.
    return QStringLiteral("SELECT 1 WHERE 0");
}

} // namespace Dialect
