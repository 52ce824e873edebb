#include "DetailUniqueCode.h"

#include "HostServices.h"

#include <utility>

namespace {

QString Text(TFloatingAccountsType kind)
{
    return QString::number(static_cast<int>(kind));
}

int LockOption()
{
    return Host().Settings.IniOptions().CodeLockOption;
}

/// A table that holds unique codes: its columns of the total and of the detail account.
struct TUse
{
    const char16_t* Table;
    const char16_t* Total;
    const char16_t* Detail;
};

constexpr TUse uses[] = {
    {u"Sanad_Detail", u"Kol", u"Tafzili"},
    {u"FinancialReport", u"Kol", u"Tafsili"},
    {u"FinancialReportDetail", u"Kol", u"Tafsili"},
    {u"AutoVoucherSetting", u"Total", u"Detail"},
    {u"Recruitment", u"Per_Kol", u"Per_Tafsili"},
    {u"Deduction", u"Kol", u"Tafzili"},
    {u"fiscal", u"Kol", u"Tafzili"},
};

/// Only totals of this kind of details hold unique codes, whatever the kind of the account itself.
constexpr auto unique = TFloatingAccountsType::fatUnique;

} // namespace

QString DetailUniqueCode::NextFree(TFloatingAccountsType kind)
{
    return QStringLiteral("SELECT dbo.GetUinqueCode_FNC(") + Text(kind) + u')';
}

QString DetailUniqueCode::Stored(TFloatingAccountsType kind, int detailCode)
{
    return QStringLiteral("SELECT UniqueCode FROM AccDetails WHERE Code= ") + QString::number(detailCode) +
           QStringLiteral(" AND [Type] = ") + Text(kind);
}

QString DetailUniqueCode::AccountsOf(int uniqueCode)
{
    return QStringLiteral("SELECT Code FROM AccDetails WHERE UniqueCode = ") + QString::number(uniqueCode);
}

QString DetailUniqueCode::Save(TFloatingAccountsType kind, int detailCode, int uniqueCode)
{
    return QStringLiteral("UPDATE AccDetails SET UniqueCode = ") + QString::number(uniqueCode) +
           QStringLiteral(" WHERE [Type] = ") + Text(kind) + QStringLiteral(" AND Code= ") +
           QString::number(detailCode);
}

QString DetailUniqueCode::Uses(TFloatingAccountsType kind, int detailCode)
{
    QStringList selects;
    for (const TUse& use : uses) {
        const QString total = QString::fromUtf16(use.Total);
        selects.append(QStringLiteral("SELECT ") + total + QStringLiteral(" FROM ") +
                       QString::fromUtf16(use.Table) + QStringLiteral(" WHERE ") + total +
                       QStringLiteral(" IN(SELECT Code FROM AccTotals WHERE DetailType = ") + Text(unique) +
                       QStringLiteral(") AND ") + QString::fromUtf16(use.Detail) +
                       QStringLiteral(" = (SELECT UniqueCode FROM AccDetails WHERE [Type] = ") + Text(kind) +
                       QStringLiteral(" AND Code = ") + QString::number(detailCode) + u')');
    }
    // The line feed stands before the carriage return on purpose.
    return selects.join(QStringLiteral("\n\r UNION ALL "));
}

bool TUniqueCodeHold::IsHeldByAnother(TFloatingAccountsType kind, const QString& code)
{
    return Host().CommonLibrary.LocateLockCode_SoftwarePart(code, CodeLockPart(kind), LockOption(), false);
}

bool TUniqueCodeHold::Take(TFloatingAccountsType kind, const QString& code)
{
    Remember(kind, code.toInt());
    taken_ = Host().CommonLibrary.OperationOnLockCode_SoftwarePart(code, CodeLockPart(kind), LockOption(),
                                                                   TOperationType::otLock, false);
    return taken_;
}

void TUniqueCodeHold::Adopt(TFloatingAccountsType kind, int code)
{
    Remember(kind, code);
}

void TUniqueCodeHold::Release()
{
    taken_ = false;
    if (std::exchange(releasable_, false))
        Host().CommonLibrary.OperationOnLockCode_SoftwarePart(QString::number(code_), CodeLockPart(kind_),
                                                              LockOption(), TOperationType::otUnlock, false);
}

void TUniqueCodeHold::Remember(TFloatingAccountsType kind, int code)
{
    kind_ = kind;
    code_ = code;
    releasable_ = true;
    taken_ = false;
}
