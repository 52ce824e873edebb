#include "VoucherLines.h"

namespace {

enum TColumn { Number, Account, AccountName, Description, Debit, Credit, CurrencyTitle, CurrencyAmount };

QString Code(int code, int length)
{
    return QString::number(code).rightJustified(length, u'0');
}

/// "102-001-000003/0011": the levels that the line has.
QString AccountText(const TAccountCode& account)
{
    constexpr int accountDigits = 3;
    constexpr int detailDigits = 6;
    constexpr int centerDigits = 4;
    QString text = Code(account.Total, accountDigits);
    if (account.Assistant != 0)
        text += u'-' + Code(account.Assistant, accountDigits);
    if (account.Detail != 0)
        text += u'-' + Code(account.Detail, detailDigits);
    if (account.ExpenseCenter != 0)
        text += u'/' + Code(account.ExpenseCenter, centerDigits);
    return text;
}

QVariant Amount(const QString& amount)
{
    return TDecimal(amount).IsZero() ? QVariant() : QVariant(amount);
}

} // namespace

TVoucherLines::TVoucherLines(const TVoucherDraft& draft, QObject* parent) : TDataSet(parent), draft_(&draft)
{
    const std::pair<const char16_t*, TFieldType> columns[] = {{u"RowNo", TFieldType::ftInteger},
                                                              {u"Account", TFieldType::ftWideString},
                                                              {u"AccountName", TFieldType::ftWideString},
                                                              {u"Sharh", TFieldType::ftWideString},
                                                              {u"Bed", TFieldType::ftBCD},
                                                              {u"Bes", TFieldType::ftBCD},
                                                              {u"CurrTitle", TFieldType::ftWideString},
                                                              {u"CurrAmount", TFieldType::ftBCD}};
    int index = 0;
    for (const auto& [name, type] : columns)
        fields_.push_back(
            std::make_unique<TField>(this, index++, TColumnInfo{QString::fromUtf16(name), type}));
}

TVoucherLines::~TVoucherLines() = default;

void TVoucherLines::Announce(int row)
{
    current_ = qBound(qMin(0, draft_->Count() - 1), row, draft_->Count() - 1);
    beforeFirst_ = false;
    behindLast_ = false;
    AnnounceData();
}

TField* TVoucherLines::FindField(const QString& name)
{
    for (const std::unique_ptr<TField>& field : fields_) {
        if (field->FieldName().compare(name, Qt::CaseInsensitive) == 0)
            return field.get();
    }
    return nullptr;
}

QVariant TVoucherLines::ValueAt(int row, int index) const
{
    if (row < 0 || row >= draft_->Count())
        return {};
    const TVoucherLine& line = draft_->Lines().at(row);
    switch (index) {
    case Number:
        return row + 1;
    case Account:
        return AccountText(line.Account);
    case AccountName:
        return line.AccountName;
    case Description:
        return line.Description;
    case Debit:
        return Amount(line.Debit);
    case Credit:
        return Amount(line.Credit);
    case CurrencyTitle:
        return line.Currency.IsForeign() ? currencyTitles_.value(line.Currency.Code) : QString();
    case CurrencyAmount:
        return line.Currency.IsForeign() ? Amount(line.Currency.Amount) : QVariant();
    default:
        return {};
    }
}

void TVoucherLines::MoveTo(int row)
{
    const int target = qBound(qMin(0, draft_->Count() - 1), row, draft_->Count() - 1);
    beforeFirst_ = row < 0;
    behindLast_ = row >= draft_->Count();
    if (target == current_)
        return;
    current_ = target;
    AnnounceScroll();
}
