#include "AccountBook.h"

#include "AccountTypes.h"
#include "QueryOpening.h"

namespace {

/// Added to a total's detail type where a detail account must be given.
constexpr int detailIsNeeded = 128;

int KindOf(int detailType, int assistant)
{
    const int kind = detailType % detailIsNeeded;
    if (kind != static_cast<int>(TFloatingAccountsType::fatIncomesAndCosts))
        return kind;
    return static_cast<int>(assistant < 2 ? TFloatingAccountsType::fatIncomes
                                          : TFloatingAccountsType::fatCosts);
}

} // namespace

TAccountFacts TAccountBook::Facts(const TAccountCode& account)
{
    TAccountFacts facts;
    QStringList names;
    const TTotal& total = Total(account.Total);
    facts.TotalIsKnown = total.IsKnown;
    facts.HasAssistants = total.HasAssistants;
    facts.TakesDetail = total.DetailType % detailIsNeeded != 0;
    facts.NeedsDetail = total.DetailType >= detailIsNeeded;
    names.append(total.Name);
    if (account.Assistant != 0)
        names.append(AssistantName(account.Total, account.Assistant));
    facts.AssistantIsKnown = account.Assistant != 0 && !names.constLast().isEmpty();
    if (account.Detail != 0 && facts.TakesDetail) {
        const TDetail& detail = Detail(KindOf(total.DetailType, account.Assistant), account.Detail);
        facts.DetailIsKnown = detail.IsKnown;
        facts.DetailIsActive = detail.IsActive;
        names.append(detail.Name);
    }
    if (account.ExpenseCenter != 0) {
        names.append(CenterTitle(account.ExpenseCenter));
        facts.CenterIsKnown = !names.constLast().isEmpty();
    }
    names.removeAll(QString());
    facts.Name = names.join(QStringLiteral(" - "));
    return facts;
}

const TAccountBook::TTotal& TAccountBook::Total(int code)
{
    const auto [entry, isNew] = totals_.try_emplace(code);
    if (!isNew)
        return entry->second;
    TADOQuery query;
    OpenQuery(
        query, *connection_,
        QStringLiteral(
            "SELECT t.Name, t.DetailType, (SELECT COUNT(*) FROM dbo.AccAssistants AS a WHERE a.TotalCode = t.Code) "
            "AS Assistants FROM dbo.AccTotals AS t WHERE t.Code = ?"),
        {code});
    if (!query.IsEmpty())
        entry->second = {true, query.FieldByName(QStringLiteral("Name"))->AsString(),
                         query.FieldByName(QStringLiteral("DetailType"))->AsInteger(),
                         query.FieldByName(QStringLiteral("Assistants"))->AsInteger() > 0};
    return entry->second;
}

QString TAccountBook::AssistantName(int total, int code)
{
    const auto [entry, isNew] = assistants_.try_emplace({total, code});
    if (isNew)
        entry->second =
            OneText(QStringLiteral("SELECT Name FROM dbo.AccAssistants WHERE TotalCode = ? AND Code = ?"),
                    {total, code});
    return entry->second;
}

const TAccountBook::TDetail& TAccountBook::Detail(int kind, int code)
{
    const auto [entry, isNew] = details_.try_emplace({kind, code});
    if (!isNew)
        return entry->second;
    const bool unique = kind == static_cast<int>(TFloatingAccountsType::fatUnique);
    TADOQuery query;
    if (unique)
        OpenQuery(query, *connection_,
                  QStringLiteral("SELECT Name, Active FROM dbo.AccDetails WHERE UniqueCode = ?"), {code});
    else
        OpenQuery(query, *connection_,
                  QStringLiteral("SELECT Name, Active FROM dbo.AccDetails WHERE [Type] = ? AND Code = ?"),
                  {kind, code});
    if (!query.IsEmpty())
        entry->second = {true, query.FieldByName(QStringLiteral("Name"))->AsString(),
                         query.FieldByName(QStringLiteral("Active"))->AsBoolean()};
    return entry->second;
}

QString TAccountBook::CenterTitle(int code)
{
    const auto [entry, isNew] = centers_.try_emplace(code);
    if (isNew)
        entry->second =
            OneText(QStringLiteral("SELECT Title FROM dbo.ExpenseCenters WHERE Code = ?"), {code});
    return entry->second;
}

QString TAccountBook::OneText(const QString& statement, const QVariantList& parameters)
{
    TADOQuery query;
    OpenQuery(query, *connection_, statement, parameters);
    return query.IsEmpty() ? QString() : query.Field(0)->AsString();
}
