#pragma once

#include "RowWriter.h"

#include <map>
#include <QVector>
#include <tuple>

class TADOConnection;

/// An account down to its detail account; 0 for levels without a code.
struct TAccount
{
    int Total = 0;
    int Assistant = 0;
    int Detail = 0;

    friend bool operator<(const TAccount& first, const TAccount& second)
    {
        return std::tie(first.Total, first.Assistant, first.Detail) <
               std::tie(second.Total, second.Assistant, second.Detail);
    }
};

/// An amount in foreign currency.
struct TForeignAmount
{
    int Currency = 1;
    qint64 Rate = 1;
    qint64 Amount = 0;
};

/// A voucher being put together; amounts in rials.
class TVoucher
{
public:
    struct TRow
    {
        TAccount Account;
        int ExpenseCenter;
        QString Text;
        qint64 Debit;
        qint64 Credit;
        TForeignAmount Foreign;
    };

    explicit TVoucher(const QString& title, int kind = 1) : Title(title), Kind(kind) {}
    void Debit(const TAccount& account, qint64 amount, const QString& text, int expenseCenter = 0,
               const TForeignAmount& foreign = {});
    void Credit(const TAccount& account, qint64 amount, const QString& text,
                const TForeignAmount& foreign = {});

    QString Title;
    int Kind;
    QVector<TRow> Rows;
};

/// Writes vouchers with their rows and keeps the balances that they leave behind.
class TVoucherBook
{
public:
    explicit TVoucherBook(TADOConnection& connection);

    /// Balances the fiscal year opens with go into the table fiscal; numbers begin at 1 again.
    void OpenYear(int year);
    /// `day` counts from 0 at the beginning of the year. Returns the voucher's Id.
    int Write(const TVoucher& voucher, int day, int user);
    void Flush();
    /// What each account owes (above zero) or is owed, in rials.
    const std::map<TAccount, qint64>& Balances() const { return balances_; }

private:
    void WriteRow(const TVoucher::TRow& row, int rowNumber);

    TRowWriter vouchers_;
    TRowWriter rows_;
    TRowWriter openings_;
    std::map<TAccount, qint64> balances_;
    int year_ = 0;
    int number_ = 0;
    int lastId_ = 0;
};
