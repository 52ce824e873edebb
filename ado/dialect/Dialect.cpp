#include "Dialect.h"

#include "Statements.h"

namespace Dialect {

namespace {

void AppendTypes(TTranslation& translation, const TSelectText& select)
{
    if (!select.IsKnown)
        return;
    for (const TColumn& column : select.Columns)
        translation.ColumnTypes.append(DeclarationOf(column.Type));
}

TTranslation Statement(TCursor& cursor)
{
    TTranslation translation;
    switch (cursor.Peek().Keyword) {
    case TKeyword::Select: {
        const TSelectText select = TSelect(cursor, nullptr).Whole();
        translation.Text = select.Sql;
        AppendTypes(translation, select);
        break;
    }
    case TKeyword::Insert:
        translation.Text = InsertStatement(cursor);
        break;
    case TKeyword::Update:
        translation.Text = UpdateStatement(cursor);
        break;
    case TKeyword::Delete:
        translation.Text = DeleteStatement(cursor);
        break;
    case TKeyword::Set:
        translation.Text = SetStatement(cursor);
        break;
    case TKeyword::Create:
        translation.Text = CreateStatement(cursor);
        translation.ChangesSchema = true;
        break;
    case TKeyword::Alter:
        translation.Text = AlterStatement(cursor);
        translation.ChangesSchema = true;
        break;
    case TKeyword::Drop:
        translation.Text = DropStatement(cursor);
        translation.ChangesSchema = true;
        break;
    default:
        cursor.Refuse("unknown statement");
    }
    return translation;
}

} // namespace

TSchemaView::~TSchemaView() = default;

QString TSchemaView::DeclaredType(const QString& table, const QString& column) const
{
    for (const TSchemaColumn& candidate : Columns(table)) {
        if (candidate.Name.compare(column, Qt::CaseInsensitive) == 0)
            return candidate.DeclaredType;
    }
    return {};
}

TTranslation TranslateStatement(const QString& tsql, const TSchemaView& schema)
{
    TCursor cursor(tsql, schema);
    TTranslation translation = Statement(cursor);
    while (cursor.Accept(TSymbol::Semicolon)) {
    }
    if (cursor.Peek().Kind != TTokenKind::End)
        cursor.Refuse("not expected here; a text holds one statement");
    return translation;
}

QString Translate(const QString& tsql, const TSchemaView& schema)
{
    return TranslateStatement(tsql, schema).Text;
}

} // namespace Dialect
