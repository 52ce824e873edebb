#include "PageStatements.h"

#include "AdoError.h"

namespace {

QString BareName(const QString& name)
{
    return name.startsWith(u'[') && name.endsWith(u']') ? name.mid(1, name.size() - 2) : name;
}

QString Bracketed(const QString& text)
{
    return u'(' + text + u')';
}

} // namespace

TPageStatements::TPageStatements(const TPagedSource& source, const QString& condition, int orderIndex,
                                 Qt::SortOrder order)
    : source_(source), condition_(condition), orderIndex_(orderIndex),
      keyIndex_(IndexOf(source, source.KeyField)), descending_(order == Qt::DescendingOrder)
{
    if (keyIndex_ < 0 || orderIndex_ < 0 || orderIndex_ >= FieldCount() || source_.From.isEmpty())
        throw EADOError(TAdoErrorKind::WrongState,
                        QStringLiteral("جدول، کلید یا فیلد ترتیب فهرست درست تعیین نشده است."));
}

int TPageStatements::IndexOf(const TPagedSource& source, const QString& field)
{
    const QString wanted = BareName(field);
    for (int index = 0; index < source.Fields.size(); ++index) {
        if (BareName(source.Fields[index]).compare(wanted, Qt::CaseInsensitive) == 0)
            return index;
    }
    return -1;
}

TSortKey TPageStatements::SortKey(const std::function<QVariant(int)>& value) const
{
    return {value(orderIndex_), value(keyIndex_)};
}

QVector<TPageSegment> TPageStatements::Segments(const TPageStart& start) const
{
    const bool descending = descending_ != start.Backward;
    if (!start.From)
        return {{{}, {}, OrderBy(descending)}};
    if (OrderedByKey() || !start.From->Order.isNull()) {
        QVector<TPageSegment> segments{Beyond(*start.From, start.Inclusive, descending)};
        if (descending && !OrderedByKey())
            segments.append(Empties(nullptr, false, descending));
        return segments;
    }
    QVector<TPageSegment> segments{Empties(&*start.From, start.Inclusive, descending)};
    if (!descending)
        segments.append(Valued());
    return segments;
}

// `f >= x AND (f > x OR ...)` instead of `f > x OR (f = x AND ...)`: both engines turn the first into one
// index range.
TPageSegment TPageStatements::Beyond(const TSortKey& from, bool inclusive, bool descending) const
{
    const QString& order = source_.Fields[orderIndex_];
    const QString& key = source_.Fields[keyIndex_];
    const QString beyond = descending ? QStringLiteral(" < ?") : QStringLiteral(" > ?");
    const QString from_ = descending ? QStringLiteral(" <= ?") : QStringLiteral(" >= ?");
    const QString keyTest = key + (inclusive ? from_ : beyond);
    if (OrderedByKey())
        return {keyTest, {from.Key}, OrderBy(descending)};
    return {order + from_ + QStringLiteral(" AND (") + order + beyond + QStringLiteral(" OR ") + keyTest +
                u')',
            {from.Order, from.Order, from.Key},
            OrderBy(descending)};
}

TPageSegment TPageStatements::Empties(const TSortKey* from, bool inclusive, bool descending) const
{
    const QString& key = source_.Fields[keyIndex_];
    TPageSegment segment{source_.Fields[orderIndex_] + QStringLiteral(" IS NULL"),
                         {},
                         descending ? key + QStringLiteral(" DESC") : key};
    if (from) {
        segment.Where += QStringLiteral(" AND ") + key +
                         (descending ? QStringLiteral(" <") : QStringLiteral(" >")) +
                         (inclusive ? QStringLiteral("= ?") : QStringLiteral(" ?"));
        segment.Parameters.append(from->Key);
    }
    return segment;
}

TPageSegment TPageStatements::Valued() const
{
    return {source_.Fields[orderIndex_] + QStringLiteral(" IS NOT NULL"), {}, OrderBy(false)};
}

QString TPageStatements::OrderBy(bool descending) const
{
    const QString direction = descending ? QStringLiteral(" DESC") : QString();
    const QString key = source_.Fields[keyIndex_] + direction;
    // The same column twice in ORDER BY is refused by SQL Server.
    return OrderedByKey() ? key : source_.Fields[orderIndex_] + direction + QStringLiteral(", ") + key;
}

QString TPageStatements::Where(const QString& more) const
{
    QStringList parts;
    if (!condition_.isEmpty())
        parts.append(more.isEmpty() ? condition_ : Bracketed(condition_));
    if (!more.isEmpty())
        parts.append(more);
    return parts.isEmpty() ? QString() : QStringLiteral(" WHERE ") + parts.join(QStringLiteral(" AND "));
}

TStatement TPageStatements::Select(const TPageSegment& segment, int count) const
{
    return {QStringLiteral("SELECT TOP ") + QString::number(count) + u' ' +
                source_.Fields.join(QStringLiteral(", ")) + QStringLiteral(" FROM ") + source_.From +
                Where(segment.Where) + QStringLiteral(" ORDER BY ") + segment.OrderBy,
            conditionParameters_ + segment.Parameters};
}

TStatement TPageStatements::Count(const TPageSegment& segment) const
{
    return {QStringLiteral("SELECT COUNT(*) FROM ") + source_.From + Where(segment.Where),
            conditionParameters_ + segment.Parameters};
}

TStatement TPageStatements::Find(const QVariant& key) const
{
    return {QStringLiteral("SELECT ") + source_.Fields[orderIndex_] + QStringLiteral(", ") +
                source_.Fields[keyIndex_] + QStringLiteral(" FROM ") + source_.From +
                Where(source_.Fields[keyIndex_] + QStringLiteral(" = ?")),
            conditionParameters_ + QVariantList{key}};
}

TStatement TPageStatements::Places() const
{
    const QString fields =
        OrderedByKey() ? source_.Fields[keyIndex_]
                       : source_.Fields[orderIndex_] + QStringLiteral(", ") + source_.Fields[keyIndex_];
    return {QStringLiteral("SELECT ") + fields + QStringLiteral(" FROM ") + source_.From +
                Gathered().Where({}) + QStringLiteral(" ORDER BY ") + OrderBy(descending_),
            conditionParameters_};
}

TPageStatements TPageStatements::Gathered() const
{
    if (condition_.isEmpty() || OrderedByKey() || !conditionParameters_.isEmpty())
        return *this;
    const QString& key = source_.Fields[keyIndex_];
    TPageStatements gathered = *this;
    gathered.condition_ = key + QStringLiteral(" IN (SELECT ") + key + QStringLiteral(" FROM ") +
                          source_.From + Where({}) + u')';
    return gathered;
}

TStatement TPageStatements::SomeKeys(int count) const
{
    return {QStringLiteral("SELECT TOP ") + QString::number(count) + u' ' + source_.Fields[keyIndex_] +
                QStringLiteral(" FROM ") + source_.From + Where({}),
            conditionParameters_};
}

TPageStatements TPageStatements::Narrowed(const QVariantList& keys) const
{
    TPageStatements narrowed = *this;
    const QStringList marks(keys.size(), QStringLiteral("?"));
    narrowed.condition_ = Bracketed(condition_) + QStringLiteral(" AND ") + source_.Fields[keyIndex_] +
                          QStringLiteral(" IN (") + marks.join(QStringLiteral(", ")) + u')';
    narrowed.conditionParameters_ += keys;
    return narrowed;
}

TStatement TPageStatements::Columns() const
{
    return {QStringLiteral("SELECT TOP 0 ") + source_.Fields.join(QStringLiteral(", ")) +
                QStringLiteral(" FROM ") + source_.From,
            {}};
}
