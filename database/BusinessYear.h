#pragma once

#include "GoodsMaker.h"
#include "SampleRandom.h"
#include "VoucherBook.h"

struct TSampleContext;

/// The life of a shop over a year: each operation makes its voucher, sales and purchases also their trade.
class TBusinessYear
{
public:
    TBusinessYear(TSampleContext& context, TVoucherBook& book);

    /// The last year ends with its seventh month, and its last trades still lack their vouchers.
    void Run(int year, bool last);
    /// After the book's own.
    void Flush();

private:
    struct TDay
    {
        int Year;
        int Day;
        bool TradesLackVouchers;
    };

    void Capital();
    void Operation(const TDay& day, TSampleRandom& random);
    void Trade(bool sale, const TDay& day, TSampleRandom& random);
    TVoucher SaleVoucher(int number, int person, qint64 amount) const;
    TVoucher PurchaseVoucher(int number, int person, qint64 amount) const;
    TVoucher ForeignPurchase(TSampleRandom& random) const;
    TVoucher Receipt(TSampleRandom& random) const;
    TVoucher Payment(TSampleRandom& random) const;
    TVoucher Expense(TSampleRandom& random) const;
    TVoucher Salaries(TSampleRandom& random) const;
    TVoucher Sundry(TSampleRandom& random) const;
    int AnyPerson(TSampleRandom& random) const;

    TSampleContext& context_;
    TVoucherBook& book_;
    TGoodsMaker goods_;
    TRowWriter trades_;
    TRowWriter tradeRows_;
    int saleNumber_ = 0;
    int purchaseNumber_ = 0;
    int lastTradeId_ = 0;
};
