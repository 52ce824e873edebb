#pragma once

#include "ADOQuery.h"
#include "AutoVouchers.h"
#include "DatabaseCheck.h"
#include "SharedDatabase.h"
#include "StockLedger.h"

#include <QFile>

/// Goods on a document: which, how many, at what price.
struct TSoldGoods
{
    int Kala;
    int Quantity;
    qint64 Price;
};

/// A shop without operations that lack their voucher, to which a test adds its own.
class TTradeFixture
{
public:
    static constexpr int Sale = TTradeFacts::tkSale;
    static constexpr int Purchase = TTradeFacts::tkPurchase;
    static constexpr int User = 2;

    TTradeFixture()
    {
        // What has not been bought yet costs what the test pays for it.
        Run(QStringLiteral("UPDATE dbo.Trades SET NeedsRefresh = 0"));
        Run(QStringLiteral(
            "INSERT INTO dbo.kala (Code, Name, UnitName, Stock) VALUES (90001, N'کالای آزمون', "
            "N'عدد', 100)"));
        Generator().SaveMissing();
        OpenYear = Number(QStringLiteral("SELECT MAX(Code) FROM dbo.FiscalYears WHERE Closed = 0"));
    }

    TAutoVouchers Generator() { return {*Connection, {User, QStringLiteral("2026-01-02T03:04:05")}}; }
    TAutoVoucherResult SaveMissing() { return Generator().SaveMissing(); }
    TAutoVoucherResult SaveAgain(const TAutoVoucherScope& scope = {}) { return Generator().SaveAgain(scope); }

    QString Date(const QString& day, int year = 0) const
    {
        return QStringLiteral("%1/%2").arg(year == 0 ? OpenYear : year).arg(day);
    }

    /// Adds an operation without a voucher and returns its id.
    int Add(int kind, const QString& date, const QVector<TSoldGoods>& goods, int person = 1)
    {
        ++lastNumber_;
        qint64 amount = 0;
        for (const TSoldGoods& row : goods)
            amount += row.Quantity * row.Price;
        Connection->Execute(
            QStringLiteral(
                "INSERT INTO dbo.Trades (Kind, FiscalYear, Number, TradeDate, PersonCode, StoreCode, Amount) "
                "VALUES (?, ?, ?, ?, ?, 1, ?)"),
            {kind, date.left(4).toInt(), lastNumber_, date, person, amount});
        const int id = Number(QStringLiteral("SELECT Id FROM dbo.Trades WHERE Number = %1").arg(lastNumber_));
        int rowNumber = 0;
        for (const TSoldGoods& row : goods)
            Connection->Execute(
                QStringLiteral("INSERT INTO dbo.TradeRows (TradeId, RowNo, KalaCode, Quantity, Price, "
                               "Amount) VALUES (?, ?, ?, ?, ?, ?)"),
                {id, ++rowNumber, row.Kala, row.Quantity, row.Price, row.Quantity * row.Price});
        return id;
    }

    int Correct(const QString& date, const QString& quantity, int kala = 90001)
    {
        return TStockLedger(*Connection)
            .Correct(
                {kala, date, quantity, QStringLiteral("شمارش"), User, QStringLiteral("2026-01-02T03:04:05")});
    }

    void Run(const QString& statement) { Connection->Execute(statement); }
    QString Text(const QString& statement)
    {
        return TSharedDatabase::Value(*Connection, statement).toString();
    }
    int Number(const QString& statement) { return Text(statement).toInt(); }
    int VoucherOf(int trade)
    {
        return Number(QStringLiteral("SELECT ISNULL(SanadId, 0) FROM dbo.Trades WHERE Id = %1").arg(trade));
    }
    /// The lines of an operation's voucher: "104/1/1 110 0".
    QStringList Lines(int trade)
    {
        TADOQuery query;
        query.SetConnection(Connection.get());
        query.SQL.SetText(
            QStringLiteral(
                "SELECT Kol, Moin, Tafzili, Bed, Bes FROM dbo.Sanad_Detail WHERE SanadId = %1 ORDER BY RowNo")
                .arg(VoucherOf(trade)));
        query.Open();
        QStringList lines;
        for (query.First(); !query.Eof(); query.Next())
            lines << QStringLiteral("%1/%2/%3 %4 %5")
                         .arg(query.Field(0)->AsString(), query.Field(1)->AsString(),
                              query.Field(2)->AsString(), query.Field(3)->AsString(),
                              query.Field(4)->AsString());
        return lines;
    }
    /// Number, date, title and user of an operation's voucher.
    QString Head(int trade)
    {
        return Text(
            QStringLiteral("SELECT CAST(Number AS nvarchar(20)) + N'|' + VoucherDate + N'|' + Title + N'|' + "
                           "CAST(Kind AS nvarchar(20)) FROM dbo.Sanad WHERE Id = %1")
                .arg(VoucherOf(trade)));
    }
    QStringList Damage() { return DatabaseCheck::FindDamage(*Connection); }

    /// One more user of the shop.
    std::unique_ptr<TADOConnection> Connect() const
    {
        auto connection = std::make_unique<TADOConnection>();
        OpenDatabase(*connection, ConnectionString());
        return connection;
    }
    QString ConnectionString() const
    {
        return QStringLiteral("sqlite:") + folder_.filePath(QStringLiteral("shop.db"));
    }

private:
    /// The sample is made once and copied for each shop.
    std::unique_ptr<TADOConnection> ConnectToCopy() const
    {
        static const TSharedDatabase sample;
        if (!QFile::copy(sample.File(QStringLiteral("shared.db")),
                         folder_.filePath(QStringLiteral("shop.db"))))
            qFatal("The sample is not copied");
        return Connect();
    }

    QTemporaryDir folder_;

public:
    std::unique_ptr<TADOConnection> Connection = ConnectToCopy();
    int OpenYear = 0;

private:
    int lastNumber_ = 900000;
};
