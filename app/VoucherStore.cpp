#include "VoucherStore.h"

#include "AccountBook.h"
#include "QueryOpening.h"

namespace {

constexpr int manualKind = 1;

int IntegerOf(TADOQuery& query, const char16_t* field)
{
    return query.FieldByName(QString::fromUtf16(field))->AsInteger();
}

QString TextOf(TADOQuery& query, const char16_t* field)
{
    return query.FieldByName(QString::fromUtf16(field))->AsString();
}

[[noreturn]] void Refuse(TVoucherField field, const QString& message)
{
    throw EVoucherRefused({field, message});
}

TVoucherLine LineOf(TADOQuery& query, TAccountBook& accounts)
{
    TVoucherLine line;
    line.Account = {IntegerOf(query, u"Kol"), IntegerOf(query, u"Moin"), IntegerOf(query, u"Tafzili"),
                    IntegerOf(query, u"Tafsili2")};
    line.AccountName = accounts.Facts(line.Account).Name;
    line.Description = TextOf(query, u"Sharh");
    line.Debit = TextOf(query, u"Bed");
    line.Credit = TextOf(query, u"Bes");
    line.Currency = {IntegerOf(query, u"CurrCode"), TextOf(query, u"CurrRate"), TextOf(query, u"CurrAmount")};
    return line;
}

} // namespace

EVoucherRefused::~EVoucherRefused() = default;

QVector<TFiscalYear> TVoucherStore::FiscalYears() const
{
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral(
                  "SELECT Code, Title, FromDate, ToDate, Closed FROM dbo.FiscalYears ORDER BY Code DESC"));
    QVector<TFiscalYear> years;
    for (query.First(); !query.Eof(); query.Next())
        years.append({IntegerOf(query, u"Code"), TextOf(query, u"Title"), TextOf(query, u"FromDate"),
                      TextOf(query, u"ToDate"), query.FieldByName(QStringLiteral("Closed"))->AsBoolean()});
    return years;
}

QHash<int, QString> TVoucherStore::CurrencyTitles() const
{
    TADOQuery query;
    OpenQuery(query, *connection_, QStringLiteral("SELECT CurCode, CurTitle FROM dbo.AccCurrency"));
    QHash<int, QString> titles;
    for (query.First(); !query.Eof(); query.Next())
        titles.insert(IntegerOf(query, u"CurCode"), TextOf(query, u"CurTitle"));
    return titles;
}

int TVoucherStore::NextNumber(int fiscalYear) const
{
    TADOQuery query;
    OpenQuery(
        query, *connection_,
        QStringLiteral("SELECT ISNULL(MAX(Number), 0) + 1 AS Number FROM dbo.Sanad WHERE FiscalYear = ?"),
        {fiscalYear});
    return IntegerOf(query, u"Number");
}

bool TVoucherStore::Find(int fiscalYear, int number, TVoucherDraft& draft) const
{
    TVoucherHead head;
    {
        TADOQuery query;
        OpenQuery(
            query, *connection_,
            QStringLiteral("SELECT Id, VoucherDate, Title, Confirmed FROM dbo.Sanad WHERE FiscalYear = ? "
                           "AND Number = ?"),
            {fiscalYear, number});
        if (query.IsEmpty())
            return false;
        head = {IntegerOf(query, u"Id"),
                fiscalYear,
                number,
                TextOf(query, u"VoucherDate"),
                TextOf(query, u"Title"),
                query.FieldByName(QStringLiteral("Confirmed"))->AsBoolean()};
    }
    draft.Load(head, ReadLines(head.Id));
    return true;
}

QVector<TVoucherLine> TVoucherStore::ReadLines(int voucherId) const
{
    TADOQuery query;
    OpenQuery(
        query, *connection_,
        QStringLiteral("SELECT Kol, Moin, Tafzili, Tafsili2, Sharh, Bed, Bes, CurrCode, CurrRate, CurrAmount "
                       "FROM dbo.Sanad_Detail WHERE SanadId = ? ORDER BY RowNo"),
        {voucherId});
    TAccountBook accounts(*connection_);
    QVector<TVoucherLine> lines;
    for (query.First(); !query.Eof(); query.Next())
        lines.append(LineOf(query, accounts));
    return lines;
}

std::optional<TVoucherFault> TVoucherStore::Check(const TVoucherDraft& draft, bool gregorian) const
{
    const QVector<TFiscalYear> years = FiscalYears();
    const auto year = std::find_if(years.begin(), years.end(), [&draft](const TFiscalYear& candidate) {
        return candidate.Code == draft.Head.FiscalYear;
    });
    if (auto fault = TVoucherDraft::CheckHead(draft.Head, year == years.end() ? nullptr : &*year, gregorian))
        return fault;
    TAccountBook accounts(*connection_);
    for (int index = 0; index < draft.Count(); ++index) {
        const TVoucherLine& line = draft.Lines().at(index);
        if (auto fault = TVoucherDraft::CheckLine(line, accounts.Facts(line.Account))) {
            fault->Line = index;
            return fault;
        }
    }
    return draft.CheckBalance();
}

TVoucherHead TVoucherStore::Save(const TVoucherDraft& draft, const TVoucherEntry& entry)
{
    TTransaction transaction(*connection_);
    HoldYear(draft.Head.FiscalYear);
    if (const auto fault = Check(draft, entry.Gregorian))
        throw EVoucherRefused(*fault);
    if (entry.UserCode == 0)
        Refuse(TVoucherField::Voucher,
               QStringLiteral("کاربری وارد نشده است؛ با نام یک کاربر وارد شوید تا سند ذخیره شود."));
    TVoucherHead head = draft.Head;
    head.Date = CompletedDate(head.Date, entry.Gregorian);
    head.Title = head.Title.trimmed();
    if (head.Id == 0)
        Insert(head, entry);
    else
        Update(draft, head, entry);
    InsertLines(head.Id, draft.Lines());
    transaction.Commit();
    return head;
}

// Users who save into one year come one after the other, so that each finds the last number of the one
// before; a year that is being closed is waited for.
void TVoucherStore::HoldYear(int fiscalYear)
{
    connection_->Execute(QStringLiteral("UPDATE dbo.FiscalYears SET Title = Title WHERE Code = ?"),
                         {fiscalYear});
}

void TVoucherStore::Insert(TVoucherHead& head, const TVoucherEntry& entry)
{
    head.Number = NextNumber(head.FiscalYear);
    connection_->Execute(
        QStringLiteral("INSERT INTO dbo.Sanad (FiscalYear, Number, VoucherDate, RegisteredAt, Kind, Title, "
                       "UserCode, Confirmed) VALUES (?, ?, ?, CAST(? AS datetime), ?, ?, ?, 0)"),
        {head.FiscalYear, head.Number, head.Date, entry.Moment, manualKind, head.Title, entry.UserCode});
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT Id FROM dbo.Sanad WHERE FiscalYear = ? AND Number = ?"),
              {head.FiscalYear, head.Number});
    head.Id = IntegerOf(query, u"Id");
}

void TVoucherStore::Update(const TVoucherDraft& draft, const TVoucherHead& head, const TVoucherEntry& entry)
{
    TVoucherDraft saved;
    if (!Find(draft.Head.FiscalYear, draft.Head.Number, saved) || saved.Head.Confirmed ||
        saved.Head != draft.LoadedHead() || saved.Lines() != draft.LoadedLines())
        Refuse(
            TVoucherField::Voucher,
            QStringLiteral("این سند پس از باز شدن به دست کاربر دیگری عوض شده است؛ آن را دوباره باز کنید."));
    connection_->Execute(
        QStringLiteral("UPDATE dbo.Sanad SET VoucherDate = ?, Title = ?, UserCode = ? WHERE Id = ?"),
        {head.Date, head.Title, entry.UserCode, head.Id});
    connection_->Execute(QStringLiteral("DELETE FROM dbo.Sanad_Detail WHERE SanadId = ?"), {draft.Head.Id});
}

void TVoucherStore::InsertLines(int voucherId, const QVector<TVoucherLine>& lines)
{
    const QString statement = QStringLiteral(
        "INSERT INTO dbo.Sanad_Detail (SanadId, RowNo, Kol, Moin, Tafzili, Tafsili2, Sharh, Bed, Bes, CurrCode, "
        "CurrRate, CurrAmount) VALUES (?, ?, ?, ?, ?, ?, ?, CAST(? AS money), CAST(? AS money), ?, "
        "CAST(? AS decimal(19,9)), CAST(? AS money))");
    int number = 0;
    for (const TVoucherLine& line : lines)
        connection_->Execute(statement,
                             {voucherId, ++number, line.Account.Total, line.Account.Assistant,
                              line.Account.Detail, line.Account.ExpenseCenter, line.Description, line.Debit,
                              line.Credit, line.Currency.Code, line.Currency.Rate, line.Currency.Amount});
}
