#include "Select.h"

#include <algorithm>
#include <QLatin1StringView>

namespace Dialect {

TType TSelectText::ColumnType() const
{
    return IsKnown && Columns.size() == 1 ? Columns.first().Type : TType();
}

TSelectText TSelect::Whole()
{
    const TNesting nesting(cursor_);
    TSelectText whole = Part();
    for (QString combination = Combination(); !combination.isEmpty(); combination = Combination()) {
        if (!isCompound_ && !top_.isEmpty())
            whole.Sql = QLatin1String("SELECT * FROM (") + whole.Sql + QLatin1String(" LIMIT ") + top_ + u')';
        isCompound_ = true;
        TSelect next(cursor_, outer_, targets_);
        TSelectText part = next.Part();
        if (!next.top_.isEmpty())
            part.Sql =
                QLatin1String("SELECT * FROM (") + part.Sql + QLatin1String(" LIMIT ") + next.top_ + u')';
        Combine(whole, combination, part);
    }
    whole.Sql += Order(whole);
    whole.Sql += Limit();
    return whole;
}

QString TSelect::Combination()
{
    if (cursor_.Accept(TKeyword::Union))
        return cursor_.Accept(TKeyword::All) ? QStringLiteral(" UNION ALL ") : QStringLiteral(" UNION ");
    if (cursor_.Accept(TKeyword::Except))
        return QStringLiteral(" EXCEPT ");
    if (cursor_.Accept(TKeyword::Intersect))
        return QStringLiteral(" INTERSECT ");
    return {};
}

void TSelect::Combine(TSelectText& whole, const QString& combination, const TSelectText& part)
{
    whole.IsKnown = whole.IsKnown && part.IsKnown && whole.Columns.size() == part.Columns.size();
    for (qsizetype i = 0; whole.IsKnown && i < whole.Columns.size(); ++i) {
        TType& type = whole.Columns[i].Type;
        const TType& other = part.Columns[i].Type;
        const bool differ = !type.IsOpen() && !other.IsOpen() &&
                            (type.IsText() != other.IsText() || type.IsMoment() != other.IsMoment());
        if (differ)
            cursor_.Refuse(whole.Columns[i].Name, "the parts of a union differ in the type of a column");
        type = CommonType(type, other);
    }
    whole.Sql += combination + part.Sql;
}

TSelectText TSelect::Part()
{
    scope_.Outer = outer_;
    cursor_.Expect(TKeyword::Select);
    const bool isDistinct = cursor_.Accept(TKeyword::Distinct);
    if (!isDistinct)
        cursor_.Accept(TKeyword::All);
    ReadTop();
    // The types of the columns are told by FROM, which stands behind the items: it is read first.
    const std::size_t items = cursor_.Position();
    const std::size_t from = FromPosition();
    QString sources;
    std::size_t behind = 0;
    if (from != 0) {
        cursor_.MoveTo(from + 1);
        sources = QLatin1String(" FROM ") + From();
        behind = cursor_.Position();
        cursor_.MoveTo(items);
    }
    TSelectText part;
    part.Sql = QLatin1String(isDistinct ? "SELECT DISTINCT " : "SELECT ") + Items(part) + sources;
    if (from != 0) {
        if (cursor_.Position() != from)
            cursor_.Refuse("not expected here");
        cursor_.MoveTo(behind);
    }
    part.Sql += Grouping();
    return part;
}

void TSelect::ReadTop()
{
    if (!cursor_.Accept(TKeyword::Top))
        return;
    if (cursor_.Accept(TSymbol::OpenBracket)) {
        top_ = Bracketed(TExpressions(cursor_, scope_).Value());
        cursor_.Expect(TSymbol::CloseBracket);
    } else {
        top_ = QString::number(cursor_.ExpectNumber());
    }
    if (cursor_.Peek().Is(TKeyword::Percent) || cursor_.Peek().Is(TKeyword::With))
        cursor_.Refuse("TOP takes a number of rows only");
}

std::size_t TSelect::FromPosition() const
{
    int depth = 0;
    for (std::size_t ahead = 0;; ++ahead) {
        const TToken& token = cursor_.Peek(ahead);
        if (token.Is(TSymbol::OpenBracket))
            ++depth;
        else if (token.Is(TSymbol::CloseBracket))
            --depth;
        else if (depth == 0 && token.Is(TKeyword::From))
            return cursor_.Position() + ahead;
        const bool isBehind = token.Kind == TTokenKind::End || token.Is(TKeyword::Union) ||
                              token.Is(TKeyword::Except) || token.Is(TKeyword::Intersect) ||
                              token.Is(TKeyword::Where);
        if (depth < 0 || (depth == 0 && isBehind) || token.Kind == TTokenKind::End)
            return 0;
    }
}

QString TSelect::Items(TSelectText& part)
{
    QString items;
    do {
        if (!items.isEmpty())
            items += QLatin1String(", ");
        items += Item(part);
    } while (cursor_.Accept(TSymbol::Comma));
    if (cursor_.Peek().Is(TKeyword::Into))
        cursor_.Refuse("SELECT INTO is not supported");
    return items;
}

QString TSelect::Item(TSelectText& part)
{
    QString star;
    if (StarItem(part, star))
        return star;
    const std::size_t start = cursor_.Position();
    const TPiece piece = TExpressions(cursor_, scope_).Any();
    if (piece.IsCondition)
        cursor_.Refuse(cursor_.WrittenSince(start),
                       "a condition stands where a column belongs (alias = value is "
                       "written as value AS alias)");
    QString name = ItemAlias();
    if (name.isNull())
        name = piece.ColumnName;
    const qsizetype place = part.Columns.size();
    part.Columns.append({name, piece.Type});
    if (targets_ && place < targets_->size())
        return Assigned(cursor_, piece, targets_->at(place));
    // Without a name the server leaves the column's name empty.
    return name.isEmpty() && outer_ ? SelfCollated(piece)
                                    : SelfCollated(piece) + QLatin1String(" AS ") + QuotedName(name);
}

bool TSelect::StarItem(TSelectText& part, QString& sql)
{
    const bool isPlain = cursor_.Peek().Is(TSymbol::Star);
    const bool isQualified =
        cursor_.Peek().IsName() && cursor_.Peek(1).Is(TSymbol::Dot) && cursor_.Peek(2).Is(TSymbol::Star);
    if (!isPlain && !isQualified)
        return false;
    const QString qualifier = isQualified ? cursor_.Take().Name() : QString();
    cursor_.MoveTo(cursor_.Position() + (isQualified ? 2 : 1));
    sql = isQualified ? QuotedName(qualifier) + QLatin1String(".*") : QStringLiteral("*");
    for (const TSource& source : scope_.Sources) {
        if (isQualified && source.Name.compare(qualifier, Qt::CaseInsensitive) != 0)
            continue;
        part.Columns += source.Columns;
        part.IsKnown = part.IsKnown && source.IsKnown;
    }
    return true;
}

QString TSelect::ItemAlias()
{
    if (cursor_.Accept(TKeyword::As)) {
        if (cursor_.Peek().Kind == TTokenKind::Text)
            return cursor_.Take().Text();
        return cursor_.ExpectName();
    }
    if (cursor_.Peek().Kind == TTokenKind::Text)
        return cursor_.Take().Text();
    return cursor_.Peek().IsName() ? cursor_.Take().Name() : QString();
}

QString TSelect::Grouping()
{
    TExpressions expressions(cursor_, scope_);
    QString sql;
    if (cursor_.Accept(TKeyword::Where))
        sql += QLatin1String(" WHERE ") + expressions.Condition().Sql;
    if (cursor_.Accept(TKeyword::Group)) {
        cursor_.Expect(TKeyword::By);
        QStringList keys;
        do {
            keys.append(SelfCollated(expressions.Value()));
        } while (cursor_.Accept(TSymbol::Comma));
        sql += QLatin1String(" GROUP BY ") + keys.join(QLatin1String(", "));
    }
    if (cursor_.Accept(TKeyword::Having))
        sql += QLatin1String(" HAVING ") + expressions.Condition().Sql;
    return sql;
}

QString TSelect::Order(const TSelectText& whole)
{
    if (!cursor_.Accept(TKeyword::Order))
        return {};
    cursor_.Expect(TKeyword::By);
    QStringList items;
    do {
        items.append(OrderItem(whole));
    } while (cursor_.Accept(TSymbol::Comma));
    return QLatin1String(" ORDER BY ") + items.join(QLatin1String(", "));
}

QString TSelect::OrderItem(const TSelectText& whole)
{
    const TToken& token = cursor_.Peek();
    const TToken& next = cursor_.Peek(1);
    const bool standsAlone = next.Kind == TTokenKind::End || next.Is(TSymbol::Comma) ||
                             next.Is(TSymbol::Semicolon) || next.Is(TSymbol::CloseBracket) ||
                             next.Is(TKeyword::Asc) || next.Is(TKeyword::Desc) ||
                             next.IsWord(QLatin1StringView("OFFSET"));
    const bool isName = token.IsName() && standsAlone;
    const bool isAlias =
        isName && std::any_of(whole.Columns.begin(), whole.Columns.end(), [&](const TColumn& column) {
            return column.Name.compare(token.Name(), Qt::CaseInsensitive) == 0;
        });
    QString item;
    if (isAlias || (isCompound_ && isName))
        item = QuotedName(cursor_.Take().Name());
    else if (token.Kind == TTokenKind::Number)
        item = QString::number(cursor_.ExpectNumber());
    else if (isCompound_)
        cursor_.Refuse("a union is ordered by the names or numbers of its columns");
    else
        item = SelfCollated(TExpressions(cursor_, scope_).Value());
    if (cursor_.Accept(TKeyword::Desc))
        return item + QLatin1String(" DESC");
    cursor_.Accept(TKeyword::Asc);
    return item;
}

QString TSelect::Limit()
{
    if (!cursor_.AcceptWord(QLatin1StringView("OFFSET"))) {
        const bool hasTop = !top_.isEmpty() && !isCompound_;
        return hasTop ? QLatin1String(" LIMIT ") + top_ : QString();
    }
    const auto rows = [this] {
        QString count = Bracketed(TExpressions(cursor_, scope_).Value());
        if (!cursor_.AcceptWord(QLatin1StringView("ROWS")))
            cursor_.ExpectWord(QLatin1StringView("ROW"));
        return count;
    };
    const QString skipped = rows();
    QString taken = QStringLiteral("-1");
    if (cursor_.Accept(TKeyword::Fetch)) {
        if (!cursor_.AcceptWord(QLatin1StringView("NEXT")))
            cursor_.ExpectWord(QLatin1StringView("FIRST"));
        taken = rows();
        cursor_.ExpectWord(QLatin1StringView("ONLY"));
    }
    return QLatin1String(" LIMIT ") + taken + QLatin1String(" OFFSET ") + skipped;
}

} // namespace Dialect
