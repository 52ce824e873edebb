#pragma once

#include "ADOConnection.h"
#include "ADOQuery.h"
#include "ControlColumn.h"
#include "CurrencyFrame_UNT.h"
#include "RecordingHost.h"
#include "SmartComboBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "Typing.h"

#include <memory>
#include <QPushButton>
#include <utility>

/// A small database in memory: the base currency, dollars with rates of three days (the last one entered
/// twice), dirhams without a rate.
struct TCurrencyDatabase
{
    TADOConnection Connection;
    TADOQuery Query;
    QStringList Statements; ///< what has been sent

    TCurrencyDatabase()
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        for (const QString& statement :
             {QStringLiteral("CREATE TABLE AccCurrency (CurCode int NOT NULL PRIMARY KEY, CurTitle "
                             "nvarchar(50) NOT NULL, CurCountry nvarchar(50) NOT NULL)"),
              QStringLiteral("CREATE TABLE AccCrConvRate (CrRateCode int NOT NULL PRIMARY KEY, AccCurrencyID "
                             "int NOT NULL, CrRateDate nvarchar(10) NOT NULL, CrRateConvRate decimal(19,9))"),
              QStringLiteral("INSERT INTO AccCurrency (CurCode, CurTitle, CurCountry) VALUES (1, N'ریال', "
                             "N'ایران'), (2, N'دلار', N'آمریکا'), (4, N'درهم', N'امارات')"),
              QStringLiteral("INSERT INTO AccCrConvRate (CrRateCode, AccCurrencyID, CrRateDate, "
                             "CrRateConvRate) VALUES (1, 2, N'1404/01/05', 480000), (2, 2, N'1404/01/20', "
                             "481000.5), (4, 2, N'1404/02/01', 0.123456789), (3, 2, N'1404/02/01', 490000), "
                             "(5, 3, N'1404/01/01', 525000)")})
            Connection.Execute(statement);
        Query.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }
    void Execute(const QString& statement)
    {
        Connection.Execute(statement);
        Statements.clear();
    }
    QStringList Sent() { return std::exchange(Statements, {}); }
};

/// The statement that asks for a rate.
inline QString RateStatement(int currency, const QString& date)
{
    return QStringLiteral("SELECT TOP 1 * FROM AccCrConvRate WHERE AccCurrencyID = %1 AND CrRateDate <= '%2' "
                          "ORDER BY CrRateDate DESC, CrRateCode DESC")
        .arg(currency)
        .arg(date);
}

/// A form with the frame and a button behind it, before a host that notes its calls.
struct TCurrencyForm
{
    TRecordingHost Host;
    TCurrencyDatabase Database;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TCurrency_FRAME* Frame = nullptr;
    QPushButton* Other = nullptr;

    TCurrencyForm()
    {
        Host.DM.Connection = &Database.Connection;
        Host.DM.Query = &Database.Query;
        MakeColumn(*Form, Frame, Other);
        Other->setText(QStringLiteral("ذخیره"));
    }

    TSmartComboBox_TRV* List() const { return Frame->CurrencyType_CMB; }
    TSmartEdit_TRV* Rate() const { return Frame->CurrencyRate_EDT; }
    QString RateText() const { return Rate()->Text(); }
    bool Show() const
    {
        const bool isActive = Typing::ShowActive(Form.get());
        List()->setFocus();
        return isActive && List()->hasFocus();
    }
    /// Types a rate in place of the one shown.
    void TypeRate(const QString& rate) const
    {
        Rate()->setFocus();
        Rate()->selectAll();
        Typing::Type(Rate(), rate);
    }
};
