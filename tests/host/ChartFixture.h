#pragma once

#include "SampleShop.h"

/// A sample database with a chart of accounts, a host over it, and every statement that is run, those of
/// lists read in the background too.
class TChartFixture : public THostedShop
{
public:
    explicit TChartFixture(const TSampleSize& size = TSampleSize::Small()) : THostedShop(size)
    {
        QObject::connect(&Connection, &TADOConnection::willExecute, &Connection,
                         [this](const QString& text) { Statements.append(text); });
    }

    void AddDetail(int kind, int code, const QString& name, int uniqueCode, bool active = true)
    {
        Connection.Execute(
            QStringLiteral("INSERT INTO dbo.AccDetails ([Type], Code, Name, UniqueCode, Active) "
                           "VALUES (?, ?, ?, ?, ?)"),
            {kind, code, name, uniqueCode, active});
        Statements.clear();
    }

    QStringList Statements;
};
