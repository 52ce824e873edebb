#include "AccountNames.h"

#include "AccountLevels.h"
#include "QueryOpening.h"

namespace {

const QLatin1String joiner(" - ");

QString TotalStatement(const TAccountCodes& codes)
{
    return QStringLiteral("SELECT t.Name AS TotalName, t.DetailType, a.Name AS AssistantName "
                          "FROM dbo.AccTotals AS t "
                          "LEFT JOIN dbo.AccAssistants AS a ON a.TotalCode = t.Code AND a.Code = %1 "
                          "WHERE t.Code = %2")
        .arg(codes.Assistant)
        .arg(codes.Total);
}

QString DetailStatement(TFloatingAccountsType kind, int code)
{
    if (kind == TFloatingAccountsType::fatUnique)
        return QStringLiteral("SELECT Name FROM dbo.AccDetails WHERE UniqueCode = %1").arg(code);
    return QStringLiteral("SELECT Name FROM dbo.AccDetails WHERE [Type] = %1 AND Code = %2")
        .arg(static_cast<int>(kind))
        .arg(code);
}

} // namespace

QString TAccountNames::Of(THesabType kind) const
{
    switch (kind) {
    case THesabType::htTotal:
        return Total;
    case THesabType::htAssistant:
        return Assistant;
    case THesabType::htDetail:
        return Detail;
    case THesabType::htFull: {
        QStringList names{Total, Assistant, Detail};
        names.removeAll(QString());
        return names.join(joiner);
    }
    case THesabType::htNone:
    case THesabType::htExpenseCenter:
        break;
    }
    return {};
}

std::optional<TAccountNames> ReadAccountNames(TADOConnection& connection, const TAccountCodes& codes)
{
    TADOQuery chart;
    OpenQuery(chart, connection, TotalStatement(codes));
    if (chart.IsEmpty())
        return std::nullopt;
    if (codes.Assistant != 0 && chart.FieldByName(QStringLiteral("AssistantName"))->IsNull())
        return std::nullopt;
    TAccountNames names{chart.FieldByName(QStringLiteral("TotalName"))->AsString(),
                        chart.FieldByName(QStringLiteral("AssistantName"))->AsString(), QString()};
    if (codes.Detail == 0)
        return names;
    const int detailType = chart.FieldByName(QStringLiteral("DetailType"))->AsInteger();
    const TFloatingAccountsType kind = AccountLevels::DetailKind(detailType, codes.Assistant);
    if (kind == TFloatingAccountsType::fatNone)
        return std::nullopt;
    TADOQuery details;
    OpenQuery(details, connection, DetailStatement(kind, codes.Detail));
    if (details.IsEmpty())
        return std::nullopt;
    names.Detail = details.Field(0)->AsString();
    return names;
}
