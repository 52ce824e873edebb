#pragma once

#include "Decimal.h"
#include "HostExport.h"

#include <QString>

class TADOConnection;

/// Goods found missing or left over when the stock was counted.
struct TStockCorrection
{
    int Kala = 0;
    QString Date;     ///< yyyy/mm/dd, in an open fiscal year
    QString Quantity; ///< plain decimal text, below 0 for goods missing; not 0
    QString Text;     ///< why, for the reader
    int UserCode = 0;
    QString Moment; ///< of the entry, yyyy-mm-ddThh:mm:ss
};

/// The stock ledger: what goods cost, and how it is corrected.
class HOST_EXPORT TStockLedger
{
public:
    /// `connection` must outlive the ledger.
    explicit TStockLedger(TADOConnection& connection) : connection_(&connection) {}

    /// What the goods of a sale have cost, in whole units of the base currency: for each row the average of
    /// all purchases up to the sale's date over what the corrections up to then have left of them. Goods that
    /// were never bought are taken at the standard share of their selling amount.
    TDecimal CostOfSale(int tradeId, const QString& date);

    /// Writes a correction, adds it to the stock and marks the automatic vouchers of all later sales of the
    /// goods, in open fiscal years, for being generated again; one transaction. Returns how many sales it has
    /// marked. Throws EServiceRefused where a rule forbids it.
    int Correct(const TStockCorrection& correction);
    /// Puts a correction of the same goods in the place of one that is there, as if that had never been.
    int Change(int id, const TStockCorrection& correction);
    /// Takes a correction back.
    int Remove(int id, int userCode);

private:
    TDecimal CostOfRow(int kala, const QString& date, const TDecimal& quantity, const TDecimal& amount);
    void HoldOpenYears();
    void CheckUser(int userCode);
    void CheckDate(const QString& date);
    void CheckQuantity(const QString& quantity);
    void Write(const TStockCorrection& correction);
    TStockCorrection Undo(int id);
    void AddToStock(int kala, const TDecimal& quantity);
    int MarkSales(int kala, const QString& from);

    TADOConnection* connection_;
};
