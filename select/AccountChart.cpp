#include "AccountChart.h"

#include "ADOQuery.h"
#include "HostAccounting.h"
#include "HostData.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int BaseCurrency = 1;
constexpr int UsualDetailLength = 6;
constexpr int UniqueDetailLength = 8;
/// Set in a total's DetailType where a detail account must be given.
constexpr int KindMask = 127;

QString Digits(int code)
{
    if (code < 0)
        throw std::invalid_argument("an account code is not negative");
    return QString::number(code);
}

bool IsDigits(const QString& text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

QString CodeOfKind(const THCSelectedCode& code, THesabType kind)
{
    switch (kind) {
    case THesabType::htTotal:
        return TAccountChart::CodeText(code.Total);
    case THesabType::htAssistant:
        return TAccountChart::CodeText(code.Assistant);
    default:
        return TAccountChart::CodeText(code.Detail);
    }
}

} // namespace

TAccountChart::TAccountChart(IDataModule& dataModule, IAccounting& accounting)
    : dataModule_(dataModule), accounting_(accounting)
{
}

int TAccountChart::GetTotalDetailType(int total) const
{
    return AskNumber(QStringLiteral("SELECT DetailType FROM AccTotals WHERE Code=") + Digits(total));
}

int TAccountChart::GetTotalNatureType(int total) const
{
    return AskNumber(QStringLiteral("SELECT Nature FROM AccTotals WHERE Code=") + Digits(total));
}

int TAccountChart::GetTotalGroupType(int total) const
{
    return AskNumber(QStringLiteral("SELECT [Type] FROM dbo.AccGroups WHERE  Code = (SELECT GroupCode FROM "
                                    "dbo.AccTotals WHERE Code = ") +
                     Digits(total) + QStringLiteral(")"));
}

THCSelectGroups TAccountChart::GetGroupType(int total, THCSelectGroups fallback) const
{
    if (total == 0)
        return fallback;
    return static_cast<THCSelectGroups>(
        AskNumber(QStringLiteral("SELECT Type FROM AccGroups WHERE Code IN (SELECT GroupCode FROM AccTotals "
                                 "WHERE Code = ") +
                  Digits(total) + QStringLiteral(")")));
}

TPropertiesItems TAccountChart::GetSelectCodeProperties(int total) const
{
    return TPropertiesItems::fromInt(static_cast<TPropertiesItems::Int>(
        AskNumber(QStringLiteral("Select Properties From AccTotals Where Code = ") + Digits(total))));
}

int TAccountChart::GetCurrCode(const THCSelectedCode& code) const
{
    if (code.Detail == 0)
        return BaseCurrency;
    const int kind = DetailKind(GetTotalDetailType(code.Total), code.Assistant);
    const int currency = AskNumber(QStringLiteral("SELECT ISNULL(CurrCode, 0) FROM AccDetails WHERE Code=") +
                                   Digits(code.Detail) + QStringLiteral(" AND [Type] = ") + Digits(kind));
    return currency == 0 ? BaseCurrency : currency;
}

QString TAccountChart::GetExpCenterTitle(const QString& code) const
{
    if (!IsDigits(code))
        return {};
    const TField* title =
        Ask(QStringLiteral("SELECT dbo.GetExpCenterName(") + code + QStringLiteral(") AS Title"));
    return title->AsString();
}

QString TAccountChart::HesabName(TCodeItems levels, const THCSelectedCode& code, bool& found) const
{
    found = true;
    const THesabType kind = NameKind(levels);
    if (kind != THesabType::htFull && CodeOfKind(code, kind).isEmpty())
        return {};
    return accounting_.GetHesabName(CodeText(code.Total), CodeText(code.Assistant), CodeText(code.Detail),
                                    kind, found);
}

THesabType TAccountChart::NameKind(TCodeItems levels)
{
    const bool total = levels.Contains(TCodeItem::ctTotal);
    const bool assistant = levels.Contains(TCodeItem::ctAssistant);
    const bool detail = levels.Contains(TCodeItem::ctDetail);
    if (total && !(assistant && detail))
        return THesabType::htTotal;
    if (assistant && !(total && detail))
        return THesabType::htAssistant;
    if (detail && !(total && assistant))
        return THesabType::htDetail;
    return THesabType::htFull;
}

int TAccountChart::DetailKind(int detailType, int assistant)
{
    if (detailType != static_cast<int>(TFloatingAccountsType::fatIncomesAndCosts))
        return detailType & KindMask;
    return static_cast<int>(assistant < 2 ? TFloatingAccountsType::fatIncomes
                                          : TFloatingAccountsType::fatCosts);
}

int TAccountChart::DetailLength(int detailType)
{
    return detailType == static_cast<int>(TFloatingAccountsType::fatUnique) ? UniqueDetailLength
                                                                            : UsualDetailLength;
}

QString TAccountChart::CodeText(int code)
{
    return code == 0 ? QString() : QString::number(code);
}

int TAccountChart::AskNumber(const QString& statement) const
{
    return Ask(statement)->AsInteger();
}

TField* TAccountChart::Ask(const QString& statement) const
{
    TADOQuery* const query = dataModule_.SharedQuery();
    query->Close();
    query->SQL.SetText(statement);
    query->Open();
    return query->Field(0);
}
