#include "TableDefinition.h"

#include "SqliteTypes.h"

#include <algorithm>
#include <QLatin1StringView>

namespace Dialect {

namespace {

QString DeclaredColumn(const TType& type, const QString& declared)
{
    return Collated(declared, type);
}

} // namespace

QString TTableDefinition::Whole()
{
    cursor_.Expect(TSymbol::OpenBracket);
    do {
        Element();
    } while (cursor_.Accept(TSymbol::Comma));
    cursor_.Expect(TSymbol::CloseBracket);
    FinishKey();
    QStringList elements;
    for (const TColumnText& column : columns_)
        elements.append(QuotedName(column.Name) + u' ' + column.Declared +
                        QLatin1String(column.IsNotNull ? " NOT NULL" : "") + column.Constraints);
    return u'(' + (elements + constraints_).join(QLatin1String(", ")) + u')';
}

QString TTableDefinition::AddedColumn(const QVector<TColumn>& existing)
{
    types_ = existing;
    TColumnText column = Column();
    if (column.IsIdentity || !primaryKey_.isEmpty())
        cursor_.Refuse(column.Name, "a key column cannot be added to a table that exists");
    // A table that has rows can take on a computed column only when it is worked out at every reading.
    column.Constraints.replace(QLatin1String(" STORED"), QLatin1String(" VIRTUAL"));
    return QuotedName(column.Name) + u' ' + column.Declared +
           QLatin1String(column.IsNotNull ? " NOT NULL" : "") + column.Constraints;
}

void TTableDefinition::Element()
{
    const TToken& token = cursor_.Peek();
    const bool isConstraint = token.Is(TKeyword::Constraint) || token.Is(TKeyword::Primary) ||
                              token.Is(TKeyword::Unique) || token.Is(TKeyword::Foreign) ||
                              token.Is(TKeyword::Check);
    if (isConstraint)
        TableConstraint();
    else
        columns_.append(Column());
}

TTableDefinition::TColumnText TTableDefinition::Column()
{
    TColumnText column;
    column.Name = cursor_.ExpectName();
    if (cursor_.Accept(TKeyword::As))
        ComputedColumn(column);
    else
        TypedColumn(column);
    return column;
}

void TTableDefinition::ComputedColumn(TColumnText& column)
{
    const TScope scope = OwnScope();
    const TPiece value = TExpressions(cursor_, scope).Value();
    cursor_.AcceptWord(QLatin1StringView("PERSISTED"));
    if (cursor_.Accept(TKeyword::Not)) {
        cursor_.Expect(TKeyword::Null);
        column.IsNotNull = true;
    }
    types_.append({column.Name, value.Type});
    column.Declared = DeclaredColumn(value.Type, DeclarationOf(value.Type));
    column.Constraints = QLatin1String(" GENERATED ALWAYS AS (") + value.Sql + QLatin1String(") STORED");
}

void TTableDefinition::TypedColumn(TColumnText& column)
{
    auto [type, declared] = TExpressions(cursor_, TScope()).TypeName(1);
    column.Declared = declared;
    types_.append({column.Name, type});
    while (ColumnConstraint(column, type)) {
    }
    if (cursor_.Accept(TKeyword::Collate)) {
        const TToken& collation = cursor_.Take();
        type.Binary = collation.Raw.endsWith(QLatin1String("_BIN2"), Qt::CaseInsensitive);
        if (!type.Binary && !collation.IsWord(QLatin1StringView("Persian_100_CI_AS")))
            cursor_.Refuse(collation, "unknown collation");
        types_.last().Type = type;
    }
    column.Declared = DeclaredColumn(type, column.Declared);
    while (ColumnConstraint(column, type)) {
    }
}

bool TTableDefinition::ColumnConstraint(TColumnText& column, const TType& type)
{
    const QString name = ConstraintName();
    const TToken& token = cursor_.Peek();
    if (cursor_.Accept(TKeyword::Not)) {
        cursor_.Expect(TKeyword::Null);
        column.IsNotNull = true;
    } else if (cursor_.Accept(TKeyword::Null)) {
        column.IsNotNull = false;
    } else if (token.Is(TKeyword::Identity)) {
        Identity(column);
    } else if (cursor_.Accept(TKeyword::Primary)) {
        cursor_.Expect(TKeyword::Key);
        SkipClustering();
        primaryKeyName_ = name;
        PrimaryKey({column.Name}, u'(' + QuotedName(column.Name) + u')');
    } else if (cursor_.Accept(TKeyword::Unique)) {
        SkipClustering();
        column.Constraints += name + QLatin1String(" UNIQUE");
    } else if (cursor_.Accept(TKeyword::Default)) {
        // SQLite would hand the name of a default on to the check behind it.
        column.Constraints += DefaultValue(type);
    } else if (cursor_.Accept(TKeyword::Check)) {
        column.Constraints += name + Check();
    } else if (token.Is(TKeyword::References) || token.Is(TKeyword::Foreign)) {
        if (cursor_.Accept(TKeyword::Foreign))
            cursor_.Expect(TKeyword::Key);
        column.Constraints += name + Reference();
    } else if (!name.isEmpty()) {
        cursor_.Refuse("unknown constraint");
    } else {
        return false;
    }
    return true;
}

void TTableDefinition::Identity(TColumnText& column)
{
    const TToken& word = cursor_.Take();
    if (cursor_.Accept(TSymbol::OpenBracket)) {
        const int seed = cursor_.ExpectNumber();
        cursor_.Expect(TSymbol::Comma);
        const int step = cursor_.ExpectNumber();
        cursor_.Expect(TSymbol::CloseBracket);
        if (seed != 1 || step != 1)
            cursor_.Refuse(word, "only IDENTITY(1,1) is supported");
    }
    column.IsIdentity = true;
}

void TTableDefinition::TableConstraint()
{
    const QString name = ConstraintName().trimmed();
    const QString lead = name.isEmpty() ? QString() : name + u' ';
    QStringList columns;
    if (cursor_.Accept(TKeyword::Primary)) {
        cursor_.Expect(TKeyword::Key);
        SkipClustering();
        primaryKeyName_ = name.isEmpty() ? QString() : u' ' + name;
        const QString written = KeyColumns(columns);
        PrimaryKey(columns, written);
    } else if (cursor_.Accept(TKeyword::Unique)) {
        SkipClustering();
        constraints_.append(lead + QLatin1String("UNIQUE ") + KeyColumns(columns));
    } else if (cursor_.Accept(TKeyword::Check)) {
        constraints_.append(lead + Check().trimmed());
    } else {
        cursor_.Expect(TKeyword::Foreign);
        cursor_.Expect(TKeyword::Key);
        const QString written = KeyColumns(columns);
        constraints_.append(lead + QLatin1String("FOREIGN KEY ") + written + Reference());
    }
}

void TTableDefinition::PrimaryKey(const QStringList& columns, const QString& written)
{
    if (!primaryKey_.isEmpty())
        cursor_.Refuse("a second primary key, before");
    primaryKey_ = columns;
    primaryKeyText_ = written;
}

QString TTableDefinition::KeyColumns(QStringList& names)
{
    cursor_.Expect(TSymbol::OpenBracket);
    QStringList written;
    do {
        names.append(cursor_.ExpectName());
        QString column = QuotedName(names.last());
        if (cursor_.Accept(TKeyword::Desc))
            column += QLatin1String(" DESC");
        else
            cursor_.Accept(TKeyword::Asc);
        written.append(column);
    } while (cursor_.Accept(TSymbol::Comma));
    cursor_.Expect(TSymbol::CloseBracket);
    return u'(' + written.join(QLatin1String(", ")) + u')';
}

QString TTableDefinition::Reference()
{
    cursor_.Expect(TKeyword::References);
    QString sql = QLatin1String(" REFERENCES ") + QuotedName(cursor_.ExpectObjectName());
    QStringList columns;
    if (cursor_.Peek().Is(TSymbol::OpenBracket))
        sql += u' ' + KeyColumns(columns);
    return sql + ReferenceActions();
}

QString TTableDefinition::ReferenceActions()
{
    QString sql;
    while (cursor_.Accept(TKeyword::On)) {
        sql += QLatin1String(cursor_.Peek().Is(TKeyword::Delete) ? " ON DELETE" : " ON UPDATE");
        if (!cursor_.Accept(TKeyword::Delete))
            cursor_.Expect(TKeyword::Update);
        if (cursor_.AcceptWord(QLatin1StringView("CASCADE"))) {
            sql += QLatin1String(" CASCADE");
        } else if (cursor_.AcceptWord(QLatin1StringView("NO"))) {
            cursor_.ExpectWord(QLatin1StringView("ACTION"));
            sql += QLatin1String(" NO ACTION");
        } else {
            cursor_.Expect(TKeyword::Set);
            sql += QLatin1String(cursor_.Peek().Is(TKeyword::Null) ? " SET NULL" : " SET DEFAULT");
            if (!cursor_.Accept(TKeyword::Null))
                cursor_.Expect(TKeyword::Default);
        }
    }
    return sql;
}

QString TTableDefinition::DefaultValue(const TType& type)
{
    const TScope none;
    const TPiece value = TExpressions(cursor_, none).Value();
    return QLatin1String(" DEFAULT (") + Assigned(cursor_, value, type) + u')';
}

QString TTableDefinition::Check()
{
    const TScope scope = OwnScope();
    cursor_.Expect(TSymbol::OpenBracket);
    const TPiece condition = TExpressions(cursor_, scope).Condition();
    cursor_.Expect(TSymbol::CloseBracket);
    return QLatin1String(" CHECK (") + condition.Sql + u')';
}

QString TTableDefinition::ConstraintName()
{
    if (!cursor_.Accept(TKeyword::Constraint))
        return {};
    return QLatin1String(" CONSTRAINT ") + QuotedName(cursor_.ExpectName());
}

void TTableDefinition::SkipClustering()
{
    if (!cursor_.Accept(TKeyword::Clustered))
        cursor_.Accept(TKeyword::NonClustered);
}

void TTableDefinition::FinishKey()
{
    const auto numbered = std::find_if(columns_.begin(), columns_.end(),
                                       [](const TColumnText& column) { return column.IsIdentity; });
    for (TColumnText& column : columns_) {
        const bool isKey = primaryKey_.contains(column.Name, Qt::CaseInsensitive);
        column.IsNotNull = column.IsNotNull || isKey || column.IsIdentity;
        const bool isWhole = column.Declared == QLatin1String("INT");
        if (!isKey || primaryKey_.size() != 1 || !(isWhole || column.IsIdentity) ||
            (numbered != columns_.end() && !column.IsIdentity))
            continue;
        // A lone whole-numbered key is the row's own number: one look-up instead of two.
        column.Declared = QStringLiteral("INTEGER");
        column.Constraints += primaryKeyName_ + QLatin1String(" PRIMARY KEY") +
                              QLatin1String(column.IsIdentity ? " AUTOINCREMENT" : "");
        return;
    }
    if (numbered != columns_.end()) {
        numbered->Declared = QStringLiteral("INTEGER");
        numbered->Constraints += QLatin1String(" PRIMARY KEY AUTOINCREMENT");
    }
    if (!primaryKey_.isEmpty()) {
        const QString word = QLatin1String(numbered != columns_.end() ? " UNIQUE " : " PRIMARY KEY ");
        constraints_.prepend((primaryKeyName_ + word + primaryKeyText_).trimmed());
    }
}

TScope TTableDefinition::OwnScope() const
{
    TScope scope;
    scope.Sources.append({QString(), types_, true});
    return scope;
}

} // namespace Dialect
