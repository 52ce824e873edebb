#include "DetailAccountStore.h"

#include "AccountTypes.h"
#include "QueryOpening.h"

namespace {

void Check(const TDetailAccount& account)
{
    if (account.Code < 1 || account.Code > TDetailAccountStore::LargestCode)
        throw EDetailRefused(
            TDetailField::Code,
            QStringLiteral("کد حساب را از 1 تا %1 بنویسید.").arg(TDetailAccountStore::LargestCode));
    if (account.Name.trimmed().isEmpty())
        throw EDetailRefused(TDetailField::Name, QStringLiteral("نام حساب را بنویسید."));
    if (account.Name.size() > TDetailAccountStore::LongestName)
        throw EDetailRefused(TDetailField::Name,
                             QStringLiteral("نام حساب تا %1 نویسه جا دارد؛ آن را کوتاه کنید.")
                                 .arg(TDetailAccountStore::LongestName));
}

[[noreturn]] void RefuseRepeatedCode()
{
    throw EDetailRefused(TDetailField::Code,
                         QStringLiteral("حسابی از این نوع با این کد هست؛ کد دیگری بنویسید."));
}

QVariant CurrencyOf(const TDetailAccount& account)
{
    return account.Currency == 0 ? QVariant() : QVariant(account.Currency);
}

} // namespace

EDetailRefused::~EDetailRefused() = default;

QVector<TNamedCode> TDetailAccountStore::Kinds() const
{
    // Kind 5 only says of a total account that its details are of kind 3 or 4.
    return NamedCodes(QStringLiteral(
        "SELECT Code, Name FROM dbo.AccDetailTypes WHERE Code BETWEEN 1 AND 9 AND Code <> 5 ORDER BY Code"));
}

QVector<TNamedCode> TDetailAccountStore::Currencies() const
{
    return NamedCodes(
        QStringLiteral("SELECT CurCode AS Code, CurTitle AS Name FROM dbo.AccCurrency ORDER BY CurCode"));
}

int TDetailAccountStore::NextCode(int kind) const
{
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT ISNULL(MAX(Code), 0) + 1 AS Code FROM dbo.AccDetails WHERE [Type] = ?"),
              {kind});
    const int next = query.FieldByName(QStringLiteral("Code"))->AsInteger();
    if (next <= LargestCode)
        return next;
    query.Close();
    OpenQuery(query, *connection_,
              QStringLiteral(
                  "SELECT MIN(d.Code) + 1 AS Code FROM dbo.AccDetails AS d WHERE d.[Type] = ? AND d.Code < ? "
                  "AND NOT EXISTS (SELECT 1 FROM dbo.AccDetails AS n WHERE n.[Type] = d.[Type] AND "
                  "n.Code = d.Code + 1)"),
              {kind, LargestCode});
    return query.FieldByName(QStringLiteral("Code"))->AsInteger();
}

std::optional<TDetailAccount> TDetailAccountStore::Find(int kind, int code) const
{
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT Name, ISNULL(CurrCode, 0) AS Currency, Active FROM dbo.AccDetails WHERE "
                             "[Type] = ? AND Code = ?"),
              {kind, code});
    if (query.IsEmpty())
        return {};
    return TDetailAccount{kind, code, query.FieldByName(QStringLiteral("Name"))->AsString(),
                          query.FieldByName(QStringLiteral("Currency"))->AsInteger(),
                          query.FieldByName(QStringLiteral("Active"))->AsBoolean()};
}

void TDetailAccountStore::Insert(const TDetailAccount& account, const std::function<void()>& saveNumber)
{
    Save(account, true, [&] {
        if (Find(account.Kind, account.Code))
            RefuseRepeatedCode();
        connection_->Execute(
            QStringLiteral(
                "INSERT INTO dbo.AccDetails ([Type], Code, Name, CurrCode, UniqueCode, Active) VALUES "
                "(?, ?, ?, ?, 0, ?)"),
            {account.Kind, account.Code, account.Name.trimmed(), CurrencyOf(account), account.Active});
        saveNumber();
    });
}

void TDetailAccountStore::Update(const TDetailAccount& account, const TDetailAccount& loaded,
                                 const std::function<void()>& saveNumber)
{
    Save(account, false, [&] {
        // The row is held first, so that nobody writes between the comparison and the change.
        connection_->Execute(
            QStringLiteral("UPDATE dbo.AccDetails SET Name = Name WHERE [Type] = ? AND Code = ?"),
            {account.Kind, account.Code});
        if (Find(account.Kind, account.Code) != loaded)
            throw EDetailRefused(
                TDetailField::Account,
                QStringLiteral(
                    "این حساب پس از باز شدن به دست کاربر دیگری عوض شده است؛ آن را دوباره باز کنید."));
        connection_->Execute(
            QStringLiteral(
                "UPDATE dbo.AccDetails SET Name = ?, CurrCode = ?, Active = ? WHERE [Type] = ? AND "
                "Code = ?"),
            {account.Name.trimmed(), CurrencyOf(account), account.Active, account.Kind, account.Code});
        saveNumber();
    });
}

void TDetailAccountStore::Save(const TDetailAccount& account, bool isNew, const std::function<void()>& write)
{
    Check(account);
    try {
        TTransaction transaction(*connection_);
        write();
        transaction.Commit();
    } catch (const EADOError& error) {
        if (error.Kind() != TAdoErrorKind::Constraint)
            throw;
        // Another user was faster: with the code of a new account, or else with the unique code.
        if (isNew && Find(account.Kind, account.Code))
            RefuseRepeatedCode();
        throw EDetailRefused(TDetailField::UniqueCode,
                             QStringLiteral("کد یکتای این حساب را حساب دیگری گرفته است؛ کد دیگری بنویسید."));
    }
}

QVector<TNamedCode> TDetailAccountStore::NamedCodes(const QString& statement) const
{
    TADOQuery query;
    OpenQuery(query, *connection_, statement);
    QVector<TNamedCode> codes;
    for (query.First(); !query.Eof(); query.Next())
        codes.append({query.FieldByName(QStringLiteral("Code"))->AsInteger(),
                      query.FieldByName(QStringLiteral("Name"))->AsString()});
    return codes;
}
