#pragma once

#include "AutoVoucherLines.h"

#include <functional>
#include <QStringList>

class TADOConnection;

/// Who generates vouchers, and when.
struct TAutoVoucherEntry
{
    int UserCode = 0;
    QString Moment; ///< yyyy-mm-ddThh:mm:ss
};

/// Which automatic vouchers are meant. Empty texts and 0 mean no restriction.
struct TAutoVoucherScope
{
    QString From;   ///< date of the operation, yyyy/mm/dd, inclusive
    QString To;     ///< as From
    QString Kinds;  ///< ordinals of the operations between commas: "1,2"
    int Number = 0; ///< of the voucher
};

/// What has come of a generation.
struct TAutoVoucherResult
{
    int Written = 0;
    int InClosedYears = 0; ///< operations that were left alone because their fiscal year is closed
    QStringList Faults;    ///< a Persian sentence for each operation that has got no voucher
    bool Stopped = false;  ///< by the user; what is written stays
};

/// Generates the vouchers of trades, one transaction for each, so that an operation has either its whole
/// voucher or none. Several users may generate at once: the first to hold an operation writes its voucher,
/// the others go on to the next one. Operations of closed fiscal years are left alone.
class HOST_EXPORT TAutoVouchers
{
public:
    /// Told before each operation; false stops.
    using TProgress = std::function<bool(int done, int count)>;

    /// `connection` must outlive the generator.
    TAutoVouchers(TADOConnection& connection, const TAutoVoucherEntry& entry);

    /// Whether there are operations without a voucher in open fiscal years.
    static bool AnyMissing(TADOConnection& connection);
    /// Whether there are vouchers in open fiscal years that await being generated again.
    static bool AnyAwaiting(TADOConnection& connection);

    /// Generates what is missing. Throws EServiceRefused where nobody is signed in or the accounts are not
    /// all set, EADOError where the database fails; vouchers written before stay.
    TAutoVoucherResult SaveMissing(const TProgress& progress = {});
    /// Replaces the lines of the vouchers that await it; number and date stay. Throws as SaveMissing, and
    /// std::invalid_argument where the scope's kinds are no ordinals.
    TAutoVoucherResult SaveAgain(const TAutoVoucherScope& scope = {}, const TProgress& progress = {});

private:
    struct TOperation
    {
        int Id = 0;
        int FiscalYear = 0;
        int SanadId = 0;
        QString Date;
        TTradeFacts Trade;
    };
    using TWrite = bool (TAutoVouchers::*)(int tradeId, int fiscalYear);

    void Prepare();
    TAutoVoucherResult WriteAll(const QString& condition, const QVariantList& parameters, TWrite write,
                                const TProgress& progress);
    bool WriteNew(int tradeId, int fiscalYear);
    bool WriteAgain(int tradeId, int fiscalYear);
    bool HoldYear(int fiscalYear);
    TOperation ReadOperation(int tradeId);
    QVector<TAutoLine> LinesOf(const TOperation& operation);
    int InsertVoucher(const TOperation& operation);
    void InsertLines(int voucherId, const QVector<TAutoLine>& lines);
    void FinishTrade(int tradeId, int voucherId);

    TADOConnection* connection_;
    TAutoVoucherEntry entry_;
    TAutoAccounts accounts_;
};
