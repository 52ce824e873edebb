#include "AccountTree.h"

#include "AccountLevels.h"
#include "AccountMatch.h"
#include "QueryOpening.h"

#include <algorithm>
#include <limits>
#include <QHash>
#include <QRegularExpression>
#include <utility>

namespace {

/// The condition that keeps to the scope, on the tables `g` and `t`; empty where all is wanted.
QString ScopeCondition(const TAccountScope& scope)
{
    static const QRegularExpression numbers(QStringLiteral("\\A[0-9]+(,[0-9]+)*\\z"));
    QStringList parts;
    if (!scope.Groups.isEmpty()) {
        if (!numbers.match(scope.Groups).hasMatch())
            throw EADOError(
                TAdoErrorKind::WrongState,
                QStringLiteral("گروه‌های حساب «%1» عدد نیستند.").arg(scope.Groups));
        parts.append(QStringLiteral("g.[Type] IN (%1)").arg(scope.Groups));
    }
    if (scope.OnlyTotal)
        parts.append(QStringLiteral("t.Code = %1").arg(*scope.OnlyTotal));
    return parts.isEmpty() ? QString() : QLatin1String("WHERE ") + parts.join(QLatin1String(" AND ")) + u' ';
}

} // namespace

void TAccountTree::Read(TADOConnection& connection, const TAccountScope& scope)
{
    nodes_.clear();
    ReadTotals(connection, scope);
    if (scope.Assistants)
        AddAssistants(connection, scope);
    Filter({});
}

void TAccountTree::Clear()
{
    nodes_.clear();
    Filter({});
}

void TAccountTree::ReadTotals(TADOConnection& connection, const TAccountScope& scope)
{
    TADOQuery query;
    OpenQuery(
        query, connection,
        QStringLiteral("SELECT g.Code AS GroupCode, g.Name AS GroupName, t.Code, t.Name, t.DetailType "
                       "FROM dbo.AccGroups AS g INNER JOIN dbo.AccTotals AS t ON t.GroupCode = g.Code ") +
            ScopeCondition(scope) + QLatin1String("ORDER BY g.Code, t.Code"));
    int group = -1;
    for (int row = 0; row < query.RecordCount(); ++row) {
        const int groupCode = query.ValueAt(row, 0).toInt();
        if (group < 0 || At(group).Code != groupCode) {
            group = Count();
            nodes_.append({TAccountNode::Group, groupCode, query.ValueAt(row, 1).toString(), 0, -1});
        }
        nodes_.append({TAccountNode::Total, query.ValueAt(row, 2).toInt(), query.ValueAt(row, 3).toString(),
                       query.ValueAt(row, 4).toInt(), group});
    }
}

void TAccountTree::AddAssistants(TADOConnection& connection, const TAccountScope& scope)
{
    TADOQuery query;
    OpenQuery(query, connection,
              QStringLiteral("SELECT a.TotalCode, a.Code, a.Name FROM dbo.AccAssistants AS a "
                             "INNER JOIN dbo.AccTotals AS t ON t.Code = a.TotalCode "
                             "INNER JOIN dbo.AccGroups AS g ON g.Code = t.GroupCode ") +
                  ScopeCondition(scope) + QLatin1String("ORDER BY a.TotalCode, a.Code"));
    QHash<int, QVector<int>> rowsOfTotal;
    for (int row = 0; row < query.RecordCount(); ++row)
        rowsOfTotal[query.ValueAt(row, 0).toInt()].append(row);
    const QVector<TAccountNode> upper = std::exchange(nodes_, {});
    int group = -1;
    for (TAccountNode node : upper) {
        const int place = Count();
        if (node.Level == TAccountNode::Group)
            group = place;
        else
            node.Parent = group;
        nodes_.append(node);
        if (node.Level == TAccountNode::Group)
            continue;
        for (const int row : rowsOfTotal.value(node.Code))
            nodes_.append({TAccountNode::Assistant, query.ValueAt(row, 1).toInt(),
                           query.ValueAt(row, 2).toString(), node.DetailType, place});
    }
}

bool TAccountTree::Has(TAccountNode::TLevel level) const
{
    return std::any_of(nodes_.begin(), nodes_.end(),
                       [level](const TAccountNode& node) { return node.Level == level; });
}

int TAccountTree::Find(int total, int assistant) const
{
    for (int place = 0; place < Count(); ++place) {
        const TAccountNode& node = At(place);
        if (assistant == 0 && node.Level == TAccountNode::Total && node.Code == total)
            return place;
        if (assistant != 0 && node.Level == TAccountNode::Assistant && node.Code == assistant &&
            At(node.Parent).Code == total)
            return place;
    }
    return -1;
}

QString TAccountTree::CodeText(int place) const
{
    const TAccountNode& node = At(place);
    switch (node.Level) {
    case TAccountNode::Total:
        return QString::number(node.Code).rightJustified(AccountLevels::TotalDigits, u'0');
    case TAccountNode::Assistant:
        return CodeText(node.Parent) + u'-' +
               QString::number(node.Code).rightJustified(AccountLevels::AssistantDigits, u'0');
    case TAccountNode::Group:
        break;
    }
    return QString::number(node.Code);
}

void TAccountTree::Filter(const QString& typed)
{
    const TAccountMatch wanted(typed);
    shown_.fill(wanted.IsEmpty(), Count());
    matching_.fill(false, Count());
    best_ = -1;
    if (wanted.IsEmpty())
        return;
    int bestRank = std::numeric_limits<int>::max();
    for (int place = 0; place < Count(); ++place) {
        const TAccountMatch::TRank rank = wanted.Of(*this, place);
        if (rank == TAccountMatch::None)
            continue;
        matching_[place] = true;
        ShowAround(place);
        const bool isGroup = At(place).Level == TAccountNode::Group;
        const int order = isGroup ? TAccountMatch::None : rank;
        if (order < bestRank) {
            bestRank = order;
            best_ = place;
        }
    }
}

void TAccountTree::ShowAround(int place)
{
    for (int above = place; above >= 0; above = At(above).Parent)
        shown_[above] = true;
    // What stands under an account follows it without a gap.
    for (int under = place + 1; under < Count() && At(under).Level > At(place).Level; ++under)
        shown_[under] = true;
}
