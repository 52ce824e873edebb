#pragma once

#include "Decimal.h"

#include <optional>
#include <QString>
#include <QVector>

/// An account of the chart and the expense center it is charged to; 0 for a level without a code.
struct TAccountCode
{
    int Total = 0;
    int Assistant = 0;
    int Detail = 0;
    int ExpenseCenter = 0;
    friend bool operator==(const TAccountCode&, const TAccountCode&) = default;
};

/// What a voucher has to know of an account.
struct TAccountFacts
{
    bool TotalIsKnown = false;
    bool HasAssistants = false;
    bool AssistantIsKnown = false;
    bool TakesDetail = false;
    bool NeedsDetail = false;
    bool DetailIsKnown = false;
    bool DetailIsActive = true;
    bool CenterIsKnown = false;
    QString Name; ///< the names of all given levels, joined
};

/// An amount in foreign currency beside the amount in the base currency. Decimal texts.
struct TLineCurrency
{
    static constexpr int BaseCode = 1;
    int Code = BaseCode;
    QString Rate = QStringLiteral("1");
    QString Amount = QStringLiteral("0");
    bool IsForeign() const { return Code != BaseCode; }
    friend bool operator==(const TLineCurrency&, const TLineCurrency&) = default;
};

/// A line of a voucher: it debits or credits. Amounts are exact decimal texts.
struct TVoucherLine
{
    TAccountCode Account;
    QString AccountName; ///< for the reader; not saved
    QString Description;
    QString Debit = QStringLiteral("0");
    QString Credit = QStringLiteral("0");
    TLineCurrency Currency;
};
/// Whether both would be saved alike.
bool operator==(const TVoucherLine& first, const TVoucherLine& second);

/// The head of a voucher. `Id` is 0 until the voucher has been saved.
struct TVoucherHead
{
    int Id = 0;
    int FiscalYear = 0;
    int Number = 0;
    QString Date; ///< yyyy/mm/dd in the calendar of the host
    QString Title;
    bool Confirmed = false;
    friend bool operator==(const TVoucherHead&, const TVoucherHead&) = default;
};

struct TFiscalYear
{
    int Code = 0;
    QString Title;
    QString FromDate;
    QString ToDate;
    bool Closed = false;
};

/// What of a voucher is wrong.
enum class TVoucherField {
    Voucher,
    FiscalYear,
    Date,
    Title,
    Total,
    Assistant,
    Detail,
    ExpenseCenter,
    Rate,
    Debit,
    Credit,
    Description
};

/// Why a line or a voucher is not taken: where, and a Persian sentence that says what to do.
struct TVoucherFault
{
    TVoucherField Field = TVoucherField::Voucher;
    QString Message;
    int Line = -1; ///< counted from 0; -1 where it is not a line of the voucher
};

/// The voucher on which a user works: its head, its lines, their totals, and what must hold before it is
/// saved.
class TVoucherDraft
{
public:
    static constexpr int LongestTitle = 200;
    static constexpr int LongestDescription = 300;

    TVoucherHead Head;

    const QVector<TVoucherLine>& Lines() const { return lines_; }
    int Count() const { return static_cast<int>(lines_.size()); }
    void Append(const TVoucherLine& line);
    void Replace(int index, const TVoucherLine& line);
    void Remove(int index);
    /// Exchanges a line with a neighbour; false at the ends of the voucher.
    bool Move(int index, int step);
    /// Takes the last change of the lines back; false where there is none.
    bool Undo();

    TDecimal DebitTotal() const;
    TDecimal CreditTotal() const;
    /// Debit less credit.
    TDecimal Balance() const;

    /// Begins with another voucher; it counts as unchanged.
    void Load(const TVoucherHead& head, const QVector<TVoucherLine>& lines);
    /// Head or lines differ from those of Load.
    bool IsChanged() const;
    const TVoucherHead& LoadedHead() const { return loadedHead_; }
    const QVector<TVoucherLine>& LoadedLines() const { return loadedLines_; }

    /// What is wrong with a line; nothing where it may stand in the voucher.
    static std::optional<TVoucherFault> CheckLine(const TVoucherLine& line, const TAccountFacts& facts);
    /// What is wrong with the head, `year` being the fiscal year of its code; null where there is none.
    static std::optional<TVoucherFault> CheckHead(const TVoucherHead& head, const TFiscalYear* year,
                                                  bool gregorian);
    /// What is wrong with the lines together: there are none, or they do not balance.
    std::optional<TVoucherFault> CheckBalance() const;

private:
    void Remember();

    QVector<TVoucherLine> lines_;
    QVector<QVector<TVoucherLine>> before_;
    TVoucherHead loadedHead_;
    QVector<TVoucherLine> loadedLines_;
};

/// A date as typed ("1404/1/9", "14040109", in any digits) as yyyy/mm/dd; empty where it is no day of the
/// calendar.
QString CompletedDate(const QString& typed, bool gregorian);
