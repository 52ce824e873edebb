#pragma once

#include "Decimal.h"
#include "HostExport.h"

#include <QHash>
#include <QString>
#include <QVector>

/// An operation that gives rise to a voucher. Amounts are exact, in the base currency, without tax.
struct TTradeFacts
{
    enum TKind { tkSale = 1, tkPurchase = 2 }; ///< as dbo.Trades has them
    int Kind = tkSale;
    int Number = 0;
    int Person = 0;
    TDecimal Amount;
    TDecimal Cost; ///< of the goods sold; unused for a purchase
};

/// An account that automatic vouchers post to.
struct TAutoAccount
{
    int Total = 0;
    int Assistant = 0;
    int Detail = 0;
};

/// The accounts by operation, as dbo.AutoVoucherSetting has them.
using TAutoAccounts = QHash<QString, TAutoAccount>;

/// A line of an automatic voucher; either amount is zero.
struct TAutoLine
{
    TAutoAccount Account;
    QString Text;
    TDecimal Debit;
    TDecimal Credit;
};

/// What the voucher of an operation says.
namespace AutoVoucherLines {

constexpr int ValueAddedTaxPercent = 10;

/// The operations of the settings that a voucher of the kind posts to.
HOST_EXPORT QStringList Operations(int kind);
HOST_EXPORT QString Title(const TTradeFacts& trade);
/// The lines, balanced, without empty ones. The accounts must hold all operations of the trade's kind; the
/// account of the person takes him as its detail where the settings name none.
HOST_EXPORT QVector<TAutoLine> Of(const TTradeFacts& trade, const TAutoAccounts& accounts);

} // namespace AutoVoucherLines
