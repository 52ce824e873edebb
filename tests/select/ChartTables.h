#pragma once

#include "ADOQuery.h"

/// A few accounts in a database in memory, and every statement that is sent to it.
struct TChartTables
{
    TADOConnection Connection;
    TADOQuery Query;
    QStringList Statements;

    TChartTables()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.RegisterFunction(
            QStringLiteral("GetExpCenterName"), 1, [](IFunctionContext&, const QVariantList& arguments) {
                const qint64 code = arguments.first().toLongLong();
                return code == 42 || code == 1234 ? QVariant(QStringLiteral("کارگاه")) : QVariant();
            });
        Connection.Open();
        for (
            const char* const statement : {
                "CREATE TABLE dbo.AccGroups (Code int NOT NULL, [Type] int NOT NULL)",
                "CREATE TABLE dbo.AccTotals (Code int NOT NULL, GroupCode int NOT NULL, DetailType int NOT "
                "NULL, Nature int NOT NULL, Properties int NOT NULL)",
                "CREATE TABLE dbo.AccDetails ([Type] int NOT NULL, Code int NOT NULL, CurrCode int NULL)",
                "INSERT INTO dbo.AccGroups (Code, [Type]) VALUES (3, 4)",
                "INSERT INTO dbo.AccTotals (Code, GroupCode, DetailType, Nature, Properties) VALUES (7, 3, 1, 2, "
                "21)",
                "INSERT INTO dbo.AccTotals (Code, GroupCode, DetailType, Nature, Properties) VALUES (50, 3, 5, 0, "
                "0)",
                "INSERT INTO dbo.AccTotals (Code, GroupCode, DetailType, Nature, Properties) VALUES (90, 3, 10, "
                "0, 0)",
                "INSERT INTO dbo.AccTotals (Code, GroupCode, DetailType, Nature, Properties) VALUES (129, 3, "
                "129, 1, 0)",
                "INSERT INTO dbo.AccDetails ([Type], Code, CurrCode) VALUES (1, 11, 5)",
                "INSERT INTO dbo.AccDetails ([Type], Code, CurrCode) VALUES (1, 12, NULL)",
                "INSERT INTO dbo.AccDetails ([Type], Code, CurrCode) VALUES (3, 11, 6)",
                "INSERT INTO dbo.AccDetails ([Type], Code, CurrCode) VALUES (4, 11, 7)",
            })
            Connection.Execute(QLatin1String(statement));
        Query.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }
};
