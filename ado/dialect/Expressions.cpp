#include "Expressions.h"

#include "Select.h"

#include <algorithm>

namespace Dialect {

namespace {

QString ComparisonSign(TSymbol symbol)
{
    switch (symbol) {
    case TSymbol::Equal:
        return QStringLiteral("=");
    case TSymbol::NotEqual:
        return QStringLiteral("<>");
    case TSymbol::Less:
        return QStringLiteral("<");
    case TSymbol::LessEqual:
        return QStringLiteral("<=");
    case TSymbol::Greater:
        return QStringLiteral(">");
    case TSymbol::GreaterEqual:
        return QStringLiteral(">=");
    default:
        return {};
    }
}

bool IsSumSign(const TToken& token)
{
    return token.Is(TSymbol::Plus) || token.Is(TSymbol::Minus) || token.Is(TSymbol::Ampersand) ||
           token.Is(TSymbol::Bar) || token.Is(TSymbol::Caret);
}

bool IsProductSign(const TToken& token)
{
    return token.Is(TSymbol::Star) || token.Is(TSymbol::Slash) || token.Is(TSymbol::Percent);
}

/// A whole number that stands for an int as it is written.
bool IsPlainKey(const TToken& token)
{
    constexpr qsizetype SurelyInt = 9;
    return token.Kind == TTokenKind::Number && token.Raw.size() <= SurelyInt &&
           std::all_of(token.Raw.begin(), token.Raw.end(),
                       [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

bool StartsSelect(const TToken& token)
{
    return token.Is(TKeyword::Select);
}

} // namespace

TPiece TExpressions::Value()
{
    const std::size_t start = cursor_.Position();
    TPiece piece = Any();
    if (piece.IsCondition)
        cursor_.Refuse(cursor_.WrittenSince(start), "a condition stands where a value belongs");
    return piece;
}

TPiece TExpressions::Condition()
{
    const std::size_t start = cursor_.Position();
    TPiece piece = Any();
    if (!piece.IsCondition)
        cursor_.Refuse(cursor_.WrittenSince(start), "a value stands where a condition belongs");
    return piece;
}

TPiece TExpressions::Any()
{
    const TNesting nesting(cursor_);
    TPiece left = Conjunction();
    while (left.IsCondition && cursor_.Accept(TKeyword::Or)) {
        const TPiece right = Conjunction();
        if (!right.IsCondition)
            cursor_.Refuse("a value stands where a condition belongs, before");
        left.Sql += QLatin1String(" OR ") + right.Sql;
    }
    return left;
}

TPiece TExpressions::Conjunction()
{
    TPiece left = Negation();
    while (left.IsCondition && cursor_.Accept(TKeyword::And)) {
        const TPiece right = Negation();
        if (!right.IsCondition)
            cursor_.Refuse("a value stands where a condition belongs, before");
        left.Sql += QLatin1String(" AND ") + right.Sql;
    }
    return left;
}

TPiece TExpressions::Negation()
{
    if (!cursor_.Accept(TKeyword::Not))
        return Predicate();
    const TNesting nesting(cursor_);
    const TPiece negated = Negation();
    if (!negated.IsCondition)
        cursor_.Refuse("NOT takes a condition, before");
    return ConditionPiece(QLatin1String("NOT ") + negated.Sql);
}

TPiece TExpressions::Predicate()
{
    if (cursor_.Peek().Is(TKeyword::Exists))
        return Exists();
    TPiece left = Sum();
    if (left.IsCondition)
        return left;
    if (const QString sign = ComparisonSign(cursor_.Peek().Symbol); !sign.isEmpty()) {
        cursor_.Take();
        return Compared(left, sign);
    }
    if (cursor_.Peek().Is(TKeyword::Is))
        return NullTest(left);
    const bool isNegated = cursor_.Peek().Is(TKeyword::Not);
    const TKeyword word = cursor_.Peek(isNegated ? 1 : 0).Keyword;
    if (word != TKeyword::In && word != TKeyword::Between && word != TKeyword::Like)
        return left;
    cursor_.MoveTo(cursor_.Position() + (isNegated ? 2 : 1));
    if (word == TKeyword::In)
        return InList(left, isNegated);
    return word == TKeyword::Between ? Between(left, isNegated) : Like(left, isNegated);
}

TPiece TExpressions::Compared(const TPiece& left, const QString& operation)
{
    const TToken& next = cursor_.Peek();
    if (next.Is(TKeyword::All) || next.Is(TKeyword::Any) || next.Is(TKeyword::Some))
        cursor_.Refuse("comparison with all or any rows of a subquery is not supported");
    const TPiece right = Sum();
    if (right.IsCondition)
        cursor_.Refuse("a condition stands where a value belongs, before");
    return Comparison(left, operation, right);
}

TPiece TExpressions::NullTest(const TPiece& left)
{
    cursor_.Expect(TKeyword::Is);
    const bool isNegated = cursor_.Accept(TKeyword::Not);
    cursor_.Expect(TKeyword::Null);
    return ConditionPiece(Bracketed(left) + QLatin1String(isNegated ? " IS NOT NULL" : " IS NULL"));
}

TPiece TExpressions::InList(const TPiece& left, bool isNegated)
{
    const QString operation = isNegated ? QStringLiteral(" NOT IN (") : QStringLiteral(" IN (");
    cursor_.Expect(TSymbol::OpenBracket);
    if (StartsSelect(cursor_.Peek()))
        return InSelect(left, operation);
    const bool comparesWhole = left.CarriesCollation && left.Type.IsWhole();
    if (const QString keys = comparesWhole ? KeysInBrackets() : QString(); !keys.isEmpty())
        return ConditionPiece(left.Sql + operation + keys + u')');
    const QVector<TPiece> others = ValuesInBrackets();
    TType common = left.Type;
    for (const TPiece& other : others)
        common = CommonType(common, other.Type);
    QString list;
    for (const TPiece& other : others) {
        if (!list.isEmpty())
            list += QLatin1String(", ");
        list += ComparisonObject(other, left, common);
    }
    return ConditionPiece(ComparisonSubject(left, others, common) + operation + list + u')');
}

TPiece TExpressions::InSelect(const TPiece& left, const QString& operation)
{
    const std::size_t start = cursor_.Position();
    const TSelectText select = TSelect(cursor_, &scope_).Whole();
    cursor_.Expect(TSymbol::CloseBracket);
    const TPiece right = WholePiece(QString(), select.ColumnType());
    const TType common = CommonType(left.Type, right.Type);
    const bool needsConversion = right.Type.IsText() && common.IsNumber();
    if (needsConversion)
        cursor_.Refuse(cursor_.WrittenSince(start), "a number is looked for among texts");
    return ConditionPiece(ComparisonSubject(left, {right}, common) + operation + select.Sql + u')');
}

TPiece TExpressions::Between(const TPiece& left, bool isNegated)
{
    const TPiece from = Sum();
    cursor_.Expect(TKeyword::And);
    const TPiece to = Sum();
    if (from.IsCondition || to.IsCondition)
        cursor_.Refuse("a condition stands where a value belongs, before");
    const TType common = CommonType(CommonType(left.Type, from.Type), to.Type);
    return ConditionPiece(ComparisonSubject(left, {from, to}, common) +
                          QLatin1String(isNegated ? " NOT BETWEEN " : " BETWEEN ") +
                          ComparisonObject(from, left, common) + QLatin1String(" AND ") +
                          ComparisonObject(to, left, common));
}

TPiece TExpressions::Like(const TPiece& left, bool isNegated)
{
    const TPiece pattern = Sum();
    QStringList arguments{AsText(cursor_, pattern), AsText(cursor_, left)};
    if (cursor_.Accept(TKeyword::Escape))
        arguments.append(Sum().Sql);
    const bool isBinary = left.Type.Binary || pattern.Type.Binary;
    const QString call = Call(isBinary ? "ado_like_binary" : "ado_like", arguments);
    return ConditionPiece(isNegated ? QLatin1String("NOT ") + call : call);
}

TPiece TExpressions::Exists()
{
    cursor_.Expect(TKeyword::Exists);
    cursor_.Expect(TSymbol::OpenBracket);
    const TSelectText select = TSelect(cursor_, &scope_).Whole();
    cursor_.Expect(TSymbol::CloseBracket);
    return ConditionPiece(QLatin1String("EXISTS (") + select.Sql + u')');
}

TPiece TExpressions::Sum()
{
    TPiece left = Product();
    while (!left.IsCondition && IsSumSign(cursor_.Peek())) {
        const TToken& operation = cursor_.Take();
        left = Arithmetic(cursor_, left, operation, Product());
    }
    return left;
}

TPiece TExpressions::Product()
{
    TPiece left = Signed();
    while (!left.IsCondition && IsProductSign(cursor_.Peek())) {
        const TToken& operation = cursor_.Take();
        left = Arithmetic(cursor_, left, operation, Signed());
    }
    return left;
}

TPiece TExpressions::Signed()
{
    const TToken& sign = cursor_.Peek();
    if (!sign.Is(TSymbol::Minus) && !sign.Is(TSymbol::Plus) && !sign.Is(TSymbol::Tilde))
        return Collated();
    const TNesting nesting(cursor_);
    cursor_.Take();
    TPiece operand = Signed();
    if (operand.IsCondition || operand.Type.IsText() || operand.Type.IsMoment() ||
        operand.Type.Kind == TKind::Blob)
        cursor_.Refuse(sign, "the sign stands before something that is no number");
    if (sign.Is(TSymbol::Plus))
        return operand;
    if (sign.Is(TSymbol::Tilde))
        return WholePiece(u'~' + Bracketed(operand), operand.Type);
    if (operand.IsNumberLiteral() && !operand.Value.startsWith(u'-'))
        return NumberLiteral(u'-' + operand.Value);
    if (operand.Type.IsExact())
        return WholePiece(Call("ado_subtract", {QStringLiteral("0"), operand.Sql}), operand.Type);
    return WholePiece(QLatin1String("(-") + Bracketed(operand) + u')', operand.Type);
}

TPiece TExpressions::Collated()
{
    TPiece piece = Primary();
    while (cursor_.Accept(TKeyword::Collate)) {
        const TToken& collation = cursor_.Take();
        const bool isBinary = collation.IsWord(QLatin1StringView("Latin1_General_BIN2")) ||
                              collation.IsWord(QLatin1StringView("Persian_100_BIN2")) ||
                              collation.IsWord(QLatin1StringView("Latin1_General_100_BIN2"));
        if (!isBinary && !collation.IsWord(QLatin1StringView("Persian_100_CI_AS")) &&
            !collation.IsWord(QLatin1StringView("database_default")))
            cursor_.Refuse(collation, "unknown collation");
        piece.Sql = AsText(cursor_, piece);
        if (!piece.Type.IsText())
            piece.Type = TextType(piece.Type.Length);
        piece.CarriesCollation = piece.CarriesCollation && piece.Type.Binary == isBinary;
        piece.Type.Binary = isBinary;
    }
    return piece;
}

TPiece TExpressions::Primary()
{
    const TToken& token = cursor_.Peek();
    if (token.Is(TSymbol::OpenBracket))
        return InBrackets();
    if (token.Is(TKeyword::Case))
        return Case();
    if (token.Kind == TTokenKind::Text || token.Kind == TTokenKind::Number ||
        token.Kind == TTokenKind::Binary || token.Kind == TTokenKind::Parameter || token.Is(TKeyword::Null))
        return Literal();
    const bool isFunctionWord = token.Is(TKeyword::Left) || token.Is(TKeyword::Right) ||
                                token.Is(TKeyword::Coalesce) || token.Is(TKeyword::NullIf) ||
                                token.Is(TKeyword::Convert) || token.Is(TKeyword::CurrentTimestamp);
    if (token.IsName() || isFunctionWord)
        return Named();
    if (token.Kind == TTokenKind::Variable && token.Raw.compare(u"@@identity", Qt::CaseInsensitive) == 0) {
        cursor_.Take();
        return WholePiece(QStringLiteral("last_insert_rowid()"), {TKind::BigInt});
    }
    if (token.Kind == TTokenKind::Variable)
        cursor_.Refuse("variables are not supported");
    cursor_.Refuse("not expected here, a value must stand here");
}

TPiece TExpressions::InBrackets()
{
    cursor_.Expect(TSymbol::OpenBracket);
    if (StartsSelect(cursor_.Peek()))
        return SubSelect();
    TPiece inner = Any();
    cursor_.Expect(TSymbol::CloseBracket);
    if (inner.Form != TForm::Whole || inner.IsCondition) {
        inner.Sql = u'(' + inner.Sql + u')';
        inner.Form = TForm::Whole;
    }
    return inner;
}

TPiece TExpressions::SubSelect()
{
    const TNesting nesting(cursor_);
    const std::size_t start = cursor_.Position();
    const TSelectText select = TSelect(cursor_, &scope_).Whole();
    cursor_.Expect(TSymbol::CloseBracket);
    if (select.IsKnown && select.Columns.size() != 1)
        cursor_.Refuse(cursor_.WrittenSince(start), "a subquery used as a value must have one column");
    return WholePiece(u'(' + select.Sql + u')', select.ColumnType());
}

TPiece TExpressions::Literal()
{
    const TToken& token = cursor_.Take();
    switch (token.Kind) {
    case TTokenKind::Text:
        return TextLiteral(token.Text());
    case TTokenKind::Number:
        return NumberLiteral(token.Raw.toString());
    case TTokenKind::Binary: {
        const QString digits = token.Raw.mid(2).toString();
        return WholePiece(QLatin1String("X'") + (digits.size() % 2 == 0 ? digits : u'0' + digits) + u'\'',
                          {TKind::Blob});
    }
    case TTokenKind::Parameter:
        return WholePiece(u'?' + QString::number(token.Parameter), {TKind::Parameter});
    default:
        return WholePiece(QStringLiteral("NULL"), {TKind::Null});
    }
}

TPiece TExpressions::Named()
{
    const TToken& first = cursor_.Take();
    if (cursor_.Peek().Is(TSymbol::OpenBracket) || first.Is(TKeyword::CurrentTimestamp))
        return CallFunction(*this, first);
    if (!first.IsName())
        cursor_.Refuse(first, "not expected here");
    QStringList path{first.Name()};
    while (cursor_.Accept(TSymbol::Dot)) {
        const TToken& name = cursor_.Take();
        if (!name.IsName() && name.Kind != TTokenKind::Word)
            cursor_.Refuse(name, "not expected here, a name must stand here");
        if (cursor_.Peek().Is(TSymbol::OpenBracket)) {
            if (path.last().compare(QLatin1String("dbo"), Qt::CaseInsensitive) != 0)
                cursor_.Refuse(name, "function of a schema other than dbo");
            return CallDatabaseFunction(*this, name);
        }
        path.append(name.Name());
    }
    return ColumnOf(path);
}

TPiece TExpressions::ColumnOf(const QStringList& path)
{
    const QString& column = path.last();
    const QString qualifier = path.size() > 1 ? path[path.size() - 2] : QString();
    TPiece piece = WholePiece(qualifier.isEmpty() ? QuotedName(column)
                                                  : QuotedName(qualifier) + u'.' + QuotedName(column),
                              scope_.TypeOf(qualifier, column));
    piece.CarriesCollation = true;
    piece.ColumnName = column;
    return piece;
}

TPiece TExpressions::Case()
{
    const TNesting nesting(cursor_);
    cursor_.Expect(TKeyword::Case);
    const bool isSimple = !cursor_.Peek().Is(TKeyword::When);
    const TPiece subject = isSimple ? Value() : TPiece();
    QStringList conditions;
    QVector<TPiece> results;
    while (cursor_.Accept(TKeyword::When)) {
        conditions.append(isSimple ? Comparison(subject, QStringLiteral("="), Value()).Sql : Condition().Sql);
        cursor_.Expect(TKeyword::Then);
        results.append(Value());
    }
    if (conditions.isEmpty())
        cursor_.Refuse("WHEN is missing in CASE, before");
    if (cursor_.Accept(TKeyword::Else))
        results.append(Value());
    cursor_.Expect(TKeyword::End);
    TType common = results.first().Type;
    for (const TPiece& result : results)
        common = CommonType(common, result.Type);
    QString sql = QStringLiteral("CASE");
    for (qsizetype i = 0; i < conditions.size(); ++i)
        sql += QLatin1String(" WHEN ") + conditions[i] + QLatin1String(" THEN ") +
               Unified(results[i], common).Sql;
    if (results.size() > conditions.size())
        sql += QLatin1String(" ELSE ") + Unified(results.last(), common).Sql;
    return WholePiece(sql + QLatin1String(" END"), common);
}

/// Keys come by the hundred thousand; a piece for each would take as long as the statement itself.
QString TExpressions::KeysInBrackets()
{
    const std::size_t start = cursor_.Position();
    QString keys;
    do {
        if (!IsPlainKey(cursor_.Peek())) {
            cursor_.MoveTo(start);
            return {};
        }
        if (!keys.isEmpty())
            keys += QLatin1String(", ");
        keys += cursor_.Take().Raw;
    } while (cursor_.Accept(TSymbol::Comma));
    if (cursor_.Accept(TSymbol::CloseBracket))
        return keys;
    cursor_.MoveTo(start);
    return {};
}

QVector<TPiece> TExpressions::ValuesInBrackets()
{
    QVector<TPiece> values;
    if (cursor_.Accept(TSymbol::CloseBracket))
        return values;
    do {
        values.append(Value());
    } while (cursor_.Accept(TSymbol::Comma));
    cursor_.Expect(TSymbol::CloseBracket);
    return values;
}

} // namespace Dialect
