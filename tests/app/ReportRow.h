#pragma once

#include "AccountTypes.h"
#include "ReportFixture.h"

#include <array>

/// The kinds of entity, in the order in which the filters offer them.
enum TReportEntity { Person, BankAccount, CashDesk, PettyCash, Income, Cost, ExpenseCenter, EntityCount };

/// A line as numbers, for loops over many of them.
struct TReportRow
{
    static constexpr qint64 PartsOfUnit = 10000; ///< money has four decimals
    static constexpr int NoEntity = -1;

    qint64 Debit = 0;  ///< in ten-thousandths
    qint64 Credit = 0; ///< in ten-thousandths
    qint64 Minute = 0; ///< of registration, as yyyyMMddHHmm of the Gregorian calendar
    int Date = 0;      ///< as yyyyMMdd of the solar calendar
    int Id = 0;
    int FiscalYear = 0;
    int Number = 0;
    int RowNo = 0;
    int Total = 0;
    int Assistant = 0;
    int Detail = 0;
    int Center = 0;
    int NameRank = 0; ///< place of the total's name among the names
    bool Confirmed = false;
    std::array<int, EntityCount> Entities{};

    TReportRow() = default;
    TReportRow(const TPlainLine& line, int nameRank)
        : Debit(Amount(line.Debit)), Credit(Amount(line.Credit)), Minute(Digits(line.RegisteredAt.left(16))),
          Date(static_cast<int>(Digits(line.Date))), Id(line.Id), FiscalYear(line.FiscalYear),
          Number(line.Number), RowNo(line.RowNo), Total(line.Kol), Assistant(line.Moin), Detail(line.Tafzili),
          Center(line.Tafsili2), NameRank(nameRank), Confirmed(line.Confirmed)
    {
        Entities.fill(NoEntity);
        Entities[ExpenseCenter] = Center;
        const int kind = KindOf(static_cast<TFloatingAccountsType>(line.DetailType));
        if (kind != NoEntity)
            Entities.at(static_cast<size_t>(kind)) = Detail;
    }

    /// The digits of a text as one number.
    static qint64 Digits(const QString& text)
    {
        qint64 number = 0;
        for (const QChar character : text) {
            if (character.isDigit())
                number = number * 10 + character.digitValue();
        }
        return number;
    }

private:
    static qint64 Amount(const QString& text)
    {
        constexpr int Decimals = 4;
        const QString fraction = text.section(u'.', 1).leftJustified(Decimals, u'0');
        return text.section(u'.', 0, 0).toLongLong() * PartsOfUnit + fraction.toLongLong();
    }
    int KindOf(TFloatingAccountsType type) const
    {
        switch (type) {
        case TFloatingAccountsType::fatPersonals:
            return Person;
        case TFloatingAccountsType::fatBankAccounts:
            return BankAccount;
        case TFloatingAccountsType::fatCashDesks:
            return CashDesk;
        case TFloatingAccountsType::fatPettyCash:
            return PettyCash;
        case TFloatingAccountsType::fatIncomes:
            return Income;
        case TFloatingAccountsType::fatCosts:
            return Cost;
        case TFloatingAccountsType::fatIncomesAndCosts:
            return Assistant == 1 ? Income : Cost;
        default:
            return NoEntity;
        }
    }
};
