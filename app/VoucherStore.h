#pragma once

#include "VoucherDraft.h"

#include <QHash>
#include <QVariantList>
#include <stdexcept>

class TADOConnection;

/// A voucher is not saved because a rule forbids it.
class EVoucherRefused : public std::runtime_error
{
public:
    explicit EVoucherRefused(const TVoucherFault& fault)
        : std::runtime_error(fault.Message.toStdString()), fault_(fault)
    {
    }
    ~EVoucherRefused() override;
    const TVoucherFault& Fault() const { return fault_; }

private:
    TVoucherFault fault_;
};

/// Who saves, and when.
struct TVoucherEntry
{
    int UserCode = 0;
    QString Moment; ///< yyyy-mm-ddThh:mm:ss
    bool Gregorian = false;
};

/// Vouchers in the database.
class TVoucherStore
{
public:
    /// `connection` must outlive the store.
    explicit TVoucherStore(TADOConnection& connection) : connection_(&connection) {}

    /// The newest first.
    QVector<TFiscalYear> FiscalYears() const;
    /// By code.
    QHash<int, QString> CurrencyTitles() const;
    /// The number that a voucher saved now would get.
    int NextNumber(int fiscalYear) const;
    /// Reads a voucher as it was saved; false where there is none of the number.
    bool Find(int fiscalYear, int number, TVoucherDraft& draft) const;

    /// What is wrong with the voucher, in the order of the form; nothing where it may be saved.
    std::optional<TVoucherFault> Check(const TVoucherDraft& draft, bool gregorian) const;
    /// Saves a voucher in one transaction and returns its head as saved; a new one gets the next number of
    /// its year, whoever else saves at the same time. Throws EVoucherRefused where a rule forbids it or
    /// another user has changed the voucher meanwhile, EADOError where the database fails; nothing is written
    /// then and the draft is as it was.
    TVoucherHead Save(const TVoucherDraft& draft, const TVoucherEntry& entry);

private:
    void HoldYear(int fiscalYear);
    void Insert(TVoucherHead& head, const TVoucherEntry& entry);
    void Update(const TVoucherDraft& draft, const TVoucherHead& head, const TVoucherEntry& entry);
    void InsertLines(int voucherId, const QVector<TVoucherLine>& lines);
    QVector<TVoucherLine> ReadLines(int voucherId) const;

    TADOConnection* connection_;
};
