#include "VoucherDraft.h"

#include "DecimalText.h"
#include "PersianText.h"
#include "SmartFaDate.h"

namespace {

/// The largest amount that the money columns of the database hold.
const QString& LargestAmount()
{
    static const QString amount = QStringLiteral("922337203685477.5807");
    return amount;
}

constexpr int MoneyDecimals = 4;

bool IsNegative(const TDecimal& value)
{
    return value.ToString().startsWith(u'-');
}

std::optional<TVoucherFault> Fault(TVoucherField field, const QString& message)
{
    return TVoucherFault{field, message};
}

std::optional<TVoucherFault> CheckAmount(TVoucherField field, const QString& amount)
{
    if (IsNegative(TDecimal(amount)))
        return Fault(field, QStringLiteral("مبلغ منفی پذیرفته نیست؛ آن را در ستون دیگر بنویسید."));
    if (IsNegative(TDecimal(LargestAmount()) - TDecimal(amount)))
        return Fault(field, QStringLiteral("بیشترین مبلغ یک ردیف %1 است؛ مبلغ را در چند ردیف بنویسید.")
                                .arg(PersianText::Isolated(DecimalText::Grouped(LargestAmount()))));
    if (DecimalText::DecimalCount(TDecimal(amount).ToString()) > MoneyDecimals)
        return Fault(field, QStringLiteral("مبلغ بیش از چهار رقم اعشار ندارد؛ آن را گرد کنید."));
    return {};
}

std::optional<TVoucherFault> CheckAmounts(const TVoucherLine& line)
{
    const bool debits = !TDecimal(line.Debit).IsZero();
    const bool credits = !TDecimal(line.Credit).IsZero();
    if (debits && credits)
        return Fault(TVoucherField::Credit,
                     QStringLiteral("یک ردیف یا بدهکار است یا بستانکار؛ یکی از دو مبلغ را پاک کنید."));
    if (!debits && !credits)
        return Fault(TVoucherField::Debit, QStringLiteral("مبلغ بدهکار یا بستانکار ردیف را بنویسید."));
    if (auto fault = CheckAmount(TVoucherField::Debit, line.Debit))
        return fault;
    return CheckAmount(TVoucherField::Credit, line.Credit);
}

/// What the rate's and the amount's columns have no room for would be lost, or refused without a word why.
std::optional<TVoucherFault> CheckCurrency(const TVoucherLine& line)
{
    if (!line.Currency.IsForeign())
        return {};
    static const TDecimal firstWithoutRoom(QStringLiteral("10000000000"));
    const TDecimal rate(line.Currency.Rate);
    if (rate.IsZero() || IsNegative(rate))
        return Fault(TVoucherField::Rate, QStringLiteral("نرخ ارز ردیف را بنویسید؛ نرخ بیشتر از صفر است."));
    if (!IsNegative(rate - firstWithoutRoom))
        return Fault(TVoucherField::Rate,
                     QStringLiteral("نرخ ارز تا ده رقم پیش از اعشار جا دارد؛ آن را کوتاه کنید."));
    return CheckAmount(TDecimal(line.Debit).IsZero() ? TVoucherField::Credit : TVoucherField::Debit,
                       line.Currency.Amount);
}

std::optional<TVoucherFault> CheckDetail(const TAccountCode& account, const TAccountFacts& facts)
{
    if (account.Detail == 0 && facts.NeedsDetail)
        return Fault(
            TVoucherField::Detail,
            QStringLiteral(
                "این حساب بی حساب تفصیلی ثبت نمی‌شود؛ کد تفصیلی را بنویسید."));
    if (account.Detail != 0 && !facts.TakesDetail)
        return Fault(
            TVoucherField::Detail,
            QStringLiteral(
                "این حساب تفصیلی نمی‌پذیرد؛ کد تفصیلی را پاک کنید."));
    if (account.Detail != 0 && !facts.DetailIsKnown)
        return Fault(TVoucherField::Detail,
                     QStringLiteral("حساب تفصیلی با این کد نیست؛ کد را درست کنید یا با کلید + برگزینید."));
    return {};
}

std::optional<TVoucherFault> CheckAccount(const TAccountCode& account, const TAccountFacts& facts)
{
    if (account.Total == 0)
        return Fault(TVoucherField::Total, QStringLiteral("کد حساب کل ردیف را بنویسید."));
    if (!facts.TotalIsKnown)
        return Fault(TVoucherField::Total,
                     QStringLiteral("حساب کل با این کد نیست؛ کد را درست کنید یا با کلید + برگزینید."));
    if (account.Assistant == 0 && facts.HasAssistants)
        return Fault(TVoucherField::Assistant, QStringLiteral("کد حساب معین ردیف را بنویسید."));
    if (account.Assistant != 0 && !facts.AssistantIsKnown)
        return Fault(TVoucherField::Assistant,
                     QStringLiteral("حساب معین با این کد نیست؛ کد را درست کنید یا با کلید + برگزینید."));
    if (auto fault = CheckDetail(account, facts))
        return fault;
    if (account.ExpenseCenter != 0 && !facts.CenterIsKnown)
        return Fault(
            TVoucherField::ExpenseCenter,
            QStringLiteral(
                "مرکز هزینه‌ای با این کد نیست؛ کد را درست کنید یا با کلید + برگزینید."));
    return {};
}

} // namespace

bool operator==(const TVoucherLine& first, const TVoucherLine& second)
{
    const auto amounts = [](const TVoucherLine& line) {
        return QStringList{TDecimal(line.Debit).ToString(), TDecimal(line.Credit).ToString()};
    };
    return first.Account == second.Account && first.Description == second.Description &&
           amounts(first) == amounts(second) && first.Currency == second.Currency;
}

void TVoucherDraft::Remember()
{
    constexpr qsizetype mostSteps = 200;
    before_.append(lines_);
    if (before_.size() > mostSteps)
        before_.removeFirst();
}

void TVoucherDraft::Append(const TVoucherLine& line)
{
    Remember();
    lines_.append(line);
}

void TVoucherDraft::Replace(int index, const TVoucherLine& line)
{
    Remember();
    lines_.replace(index, line);
}

void TVoucherDraft::Remove(int index)
{
    Remember();
    lines_.removeAt(index);
}

bool TVoucherDraft::Move(int index, int step)
{
    const int target = index + step;
    if (index < 0 || index >= Count() || target < 0 || target >= Count() || step == 0)
        return false;
    Remember();
    lines_.move(index, target);
    return true;
}

bool TVoucherDraft::Undo()
{
    if (before_.isEmpty())
        return false;
    lines_ = before_.takeLast();
    return true;
}

TDecimal TVoucherDraft::DebitTotal() const
{
    TDecimal total;
    for (const TVoucherLine& line : lines_)
        total = total + TDecimal(line.Debit);
    return total;
}

TDecimal TVoucherDraft::CreditTotal() const
{
    TDecimal total;
    for (const TVoucherLine& line : lines_)
        total = total + TDecimal(line.Credit);
    return total;
}

TDecimal TVoucherDraft::Balance() const
{
    return DebitTotal() - CreditTotal();
}

void TVoucherDraft::Load(const TVoucherHead& head, const QVector<TVoucherLine>& lines)
{
    Head = head;
    lines_ = lines;
    before_.clear();
    loadedHead_ = head;
    loadedLines_ = lines;
}

bool TVoucherDraft::IsChanged() const
{
    return Head != loadedHead_ || lines_ != loadedLines_;
}

std::optional<TVoucherFault> TVoucherDraft::CheckLine(const TVoucherLine& line, const TAccountFacts& facts)
{
    if (auto fault = CheckAccount(line.Account, facts))
        return fault;
    if (auto fault = CheckCurrency(line))
        return fault;
    if (auto fault = CheckAmounts(line))
        return fault;
    if (line.Description.size() > LongestDescription)
        return Fault(
            TVoucherField::Description,
            QStringLiteral("شرح ردیف تا %1 نویسه جا دارد؛ آن را کوتاه کنید.").arg(LongestDescription));
    return {};
}

std::optional<TVoucherFault> TVoucherDraft::CheckHead(const TVoucherHead& head, const TFiscalYear* year,
                                                      bool gregorian)
{
    if (head.Confirmed)
        return Fault(TVoucherField::Voucher,
                     QStringLiteral("این سند تأیید شده است و اصلاح نمی‌شود."));
    if (year == nullptr)
        return Fault(TVoucherField::FiscalYear, QStringLiteral("سال مالی سند را برگزینید."));
    if (year->Closed)
        return Fault(
            TVoucherField::FiscalYear,
            QStringLiteral("%1 بسته است و سندی در آن ثبت یا اصلاح نمی‌شود.")
                .arg(year->Title));
    const QString date = CompletedDate(head.Date, gregorian);
    if (date.isEmpty())
        return Fault(TVoucherField::Date, QStringLiteral("تاریخ سند را به شکل سال/ماه/روز بنویسید."));
    if (date < year->FromDate || date > year->ToDate)
        return Fault(TVoucherField::Date, QStringLiteral("تاریخ سند در %1 نیست؛ روزی از %2 تا %3 بنویسید.")
                                              .arg(year->Title, PersianText::Isolated(year->FromDate),
                                                   PersianText::Isolated(year->ToDate)));
    if (head.Title.trimmed().isEmpty())
        return Fault(TVoucherField::Title, QStringLiteral("شرح سند را بنویسید."));
    if (head.Title.size() > LongestTitle)
        return Fault(TVoucherField::Title,
                     QStringLiteral("شرح سند تا %1 نویسه جا دارد؛ آن را کوتاه کنید.").arg(LongestTitle));
    return {};
}

std::optional<TVoucherFault> TVoucherDraft::CheckBalance() const
{
    if (lines_.isEmpty())
        return Fault(
            TVoucherField::Total,
            QStringLiteral(
                "سند ردیفی ندارد؛ نخست ردیف‌های آن را بنویسید."));
    const TDecimal balance = Balance();
    if (balance.IsZero())
        return {};
    const bool tooMuchDebit = !IsNegative(balance);
    const QString difference = balance.ToString().remove(u'-');
    return Fault(
        tooMuchDebit ? TVoucherField::Credit : TVoucherField::Debit,
        QStringLiteral(
            "سند تراز نیست: %1 %2 بیشتر است. ردیف دیگری بنویسید یا مبلغ‌ها را درست کنید.")
            .arg(tooMuchDebit ? QStringLiteral("بدهکار") : QStringLiteral("بستانکار"),
                 PersianText::Isolated(DecimalText::Grouped(difference))));
}

QString CompletedDate(const QString& typed, bool gregorian)
{
    return gregorian ? TFaDate::CreateByGregorianDate(typed).GetGregorianDateString()
                     : TFaDate::CreateByPersianDate(typed).ToDateString();
}
