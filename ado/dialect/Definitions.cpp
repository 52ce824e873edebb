#include "SqliteSchema.h"
#include "TableDefinition.h"

#include <QLatin1StringView>

namespace Dialect {

namespace {

void SkipOrRefuseStorage(TCursor& cursor)
{
    // ON [PRIMARY] names the place of a file, which the embedded database has not.
    if (cursor.Accept(TKeyword::On)) {
        if (cursor.Peek().Kind != TTokenKind::QuotedName ||
            cursor.Peek().Name().compare(QLatin1String("PRIMARY"), Qt::CaseInsensitive) != 0)
            cursor.Refuse("storage options are not supported");
        cursor.Take();
    }
}

QString CreateTable(TCursor& cursor)
{
    const QString table = cursor.ExpectObjectName();
    const QString definition = TTableDefinition(cursor).Whole();
    SkipOrRefuseStorage(cursor);
    return QLatin1String("CREATE TABLE ") + QuotedName(table) + u' ' + definition;
}

/// SQLite keeps the types of a view's plain columns only: all of them are noted in its text.
QString TypesComment(const TSelectText& select)
{
    if (!select.IsKnown)
        return {};
    QStringList types;
    for (const TColumn& column : select.Columns) {
        const QString collation = column.Type.Binary ? u' ' + QLatin1String(BinaryCollation) : QString();
        types.append(DeclarationOf(column.Type) + collation);
    }
    return u' ' + QLatin1String(ViewTypesOpening) + types.join(u';') + QLatin1String(ViewTypesClosing);
}

QString CreateView(TCursor& cursor)
{
    QString sql = QLatin1String("CREATE VIEW ") + QuotedName(cursor.ExpectObjectName());
    const bool namesColumns = cursor.Peek().Is(TSymbol::OpenBracket);
    if (namesColumns) {
        QStringList names;
        for (const QString& name : NamesInBrackets(cursor))
            names.append(QuotedName(name));
        sql += QLatin1String(" (") + names.join(QLatin1String(", ")) + u')';
    }
    cursor.Expect(TKeyword::As);
    const std::size_t start = cursor.Position();
    const TSelectText select = TSelect(cursor, nullptr).Whole();
    for (const TColumn& column : select.Columns) {
        if (column.Name.isEmpty() && !namesColumns)
            cursor.Refuse(cursor.WrittenSince(start), "every column of a view needs a name");
    }
    return sql + TypesComment(select) + QLatin1String(" AS ") + select.Sql;
}

QString CreateIndex(TCursor& cursor, bool isUnique)
{
    QString sql = QLatin1String(isUnique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ");
    sql += QuotedName(cursor.ExpectName());
    cursor.Expect(TKeyword::On);
    const QString table = cursor.ExpectObjectName();
    cursor.Expect(TSymbol::OpenBracket);
    QStringList columns;
    do {
        const QString column = QuotedName(cursor.ExpectName());
        const bool isDescending = cursor.Accept(TKeyword::Desc);
        if (!isDescending)
            cursor.Accept(TKeyword::Asc);
        columns.append(isDescending ? column + QLatin1String(" DESC") : column);
    } while (cursor.Accept(TSymbol::Comma));
    cursor.Expect(TSymbol::CloseBracket);
    sql += QLatin1String(" ON ") + QuotedName(table) + QLatin1String(" (") +
           columns.join(QLatin1String(", ")) + u')';
    // Columns that only ride along in the server's index are read from the table here.
    if (cursor.AcceptWord(QLatin1StringView("INCLUDE")))
        NamesInBrackets(cursor);
    if (cursor.Accept(TKeyword::Where)) {
        const TScope scope = TableScope(cursor, table);
        sql += QLatin1String(" WHERE ") + TExpressions(cursor, scope).Condition().Sql;
    }
    SkipOrRefuseStorage(cursor);
    return sql;
}

} // namespace

QString CreateStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Create);
    if (cursor.Accept(TKeyword::Table))
        return CreateTable(cursor);
    if (cursor.Accept(TKeyword::View))
        return CreateView(cursor);
    const bool isUnique = cursor.Accept(TKeyword::Unique);
    if (!cursor.Accept(TKeyword::Clustered))
        cursor.Accept(TKeyword::NonClustered);
    if (!cursor.Accept(TKeyword::Index))
        cursor.Refuse("only tables, views and indexes can be created");
    return CreateIndex(cursor, isUnique);
}

QString AlterStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Alter);
    cursor.Expect(TKeyword::Table);
    const QString table = cursor.ExpectObjectName();
    if (!cursor.Accept(TKeyword::Add))
        cursor.Refuse("only ADD is supported in ALTER TABLE");
    if (cursor.Peek().Is(TKeyword::Constraint))
        cursor.Refuse("constraints are given when the table is created");
    const TScope scope = TableScope(cursor, table);
    return QLatin1String("ALTER TABLE ") + QuotedName(table) + QLatin1String(" ADD COLUMN ") +
           TTableDefinition(cursor).AddedColumn(scope.Sources.first().Columns);
}

QString DropStatement(TCursor& cursor)
{
    cursor.Expect(TKeyword::Drop);
    QString sql;
    const bool isIndex = cursor.Accept(TKeyword::Index);
    if (isIndex) {
        sql = QStringLiteral("DROP INDEX ");
    } else if (cursor.Accept(TKeyword::View)) {
        sql = QStringLiteral("DROP VIEW ");
    } else {
        if (!cursor.Accept(TKeyword::Table))
            cursor.Refuse("only tables, views and indexes can be dropped");
        sql = QStringLiteral("DROP TABLE ");
    }
    if (cursor.Accept(TKeyword::If)) {
        cursor.Expect(TKeyword::Exists);
        sql += QLatin1String("IF EXISTS ");
    }
    sql += QuotedName(cursor.ExpectObjectName());
    if (isIndex && cursor.Accept(TKeyword::On))
        cursor.ExpectObjectName();
    return sql;
}

} // namespace Dialect
