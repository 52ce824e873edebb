#pragma once

#include "ADOCommand.h"
#include "ADOConnection.h"
#include "ADOQuery.h"
#include "ControlColumn.h"
#include "DetailUniqueCode_UNT.h"
#include "RecordingHost.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "Typing.h"

#include <memory>
#include <QLineEdit>
#include <QPushButton>

/// A small database in memory with three detail accounts (of kind 1: 5 with the number 1000005, 6 with
/// 1000006; of kind 2: 7 with 2000007; of kind 1: 8 without a number), whose proposals come from a list.
struct TUniqueCodeDatabase
{
    TADOConnection Connection;
    TADOQuery Query;
    TADOCommand Command;
    QStringList Statements; ///< what the frame has sent
    QVariantList Proposals; ///< what dbo.GetUinqueCode_FNC answers, one by one, the last one again and again

    TUniqueCodeDatabase()
    {
        Connection.RegisterFunction(
            QStringLiteral("GetUinqueCode_FNC"), 1, [this](IFunctionContext&, const QVariantList&) {
                return Proposals.size() > 1 ? Proposals.takeFirst() : Proposals.value(0, qint64(0));
            });
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.Open();
        MakeTables();
        Query.SetConnection(&Connection);
        Command.SetConnection(&Connection);
        Connection.OnWillExecute = [this](TADOConnection*, const QString& text) { Statements.append(text); };
    }

    int StoredCode(int kind, int account)
    {
        const auto rows =
            Connection.Run(QStringLiteral("SELECT UniqueCode FROM AccDetails WHERE [Type] = ? AND Code = ?"),
                           {kind, account});
        return rows->Next() ? static_cast<int>(rows->Int64(0)) : -1;
    }

private:
    void MakeTables()
    {
        for (const QString& statement :
             {QStringLiteral(
                  "CREATE TABLE AccDetails ([Type] int NOT NULL, Code int NOT NULL, UniqueCode int NOT "
                  "NULL, PRIMARY KEY ([Type], Code))"),
              QStringLiteral(
                  "CREATE TABLE AccTotals (Code int NOT NULL PRIMARY KEY, DetailType int NOT NULL)"),
              QStringLiteral("CREATE TABLE Sanad_Detail (Kol int NOT NULL, Tafzili int NOT NULL)"),
              QStringLiteral("CREATE TABLE FinancialReport (Kol int NOT NULL, Tafsili int NOT NULL)"),
              QStringLiteral("CREATE TABLE FinancialReportDetail (Kol int NOT NULL, Tafsili int NOT NULL)"),
              QStringLiteral("CREATE TABLE AutoVoucherSetting (Total int NOT NULL, Detail int NOT NULL)"),
              QStringLiteral("CREATE TABLE Recruitment (Per_Kol int NOT NULL, Per_Tafsili int NOT NULL)"),
              QStringLiteral("CREATE TABLE Deduction (Kol int NOT NULL, Tafzili int NOT NULL)"),
              QStringLiteral("CREATE TABLE fiscal (Kol int NOT NULL, Tafzili int NOT NULL)"),
              QStringLiteral("INSERT INTO AccTotals (Code, DetailType) VALUES (101, 10), (102, 1)"),
              QStringLiteral(
                  "INSERT INTO AccDetails ([Type], Code, UniqueCode) VALUES (1, 5, 1000005), (1, 6, "
                  "1000006), (2, 7, 2000007), (1, 8, 0)")})
            Connection.Execute(statement);
    }
};

/// A form with the frame, a button behind it, and a host that notes its calls.
struct TUniqueCodeForm
{
    static constexpr auto Kind = TFloatingAccountsType::fatPersonals;

    TRecordingHost Host;
    TUniqueCodeDatabase Database;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TDetailUniqueCode_FRME* Frame = nullptr;
    QPushButton* Other = nullptr;

    TUniqueCodeForm()
    {
        Host.DM.Connection = &Database.Connection;
        Host.DM.Query = &Database.Query;
        Host.DM.Command = &Database.Command;
        Host.Settings.Options.CodeLockOption = 45;
        Database.Proposals = {qint64(1000007)};
        MakeColumn(*Form, Frame, Other);
        Other->setText(QStringLiteral("ذخیره"));
        Frame->DetailType = Kind;
    }

    TSmartEdit_TRV* Edit() const { return Frame->UniqueCode_EDT; }
    QString Text() const { return Edit()->Text(); }

    /// Shows the form with the focus in the edit.
    bool Show() const
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Edit()->setFocus();
        return isActive && Edit()->hasFocus();
    }
    /// Types a number in place of what the edit shows.
    void Retype(const QString& digits) const
    {
        for (qsizetype left = Edit()->Text().size(); left > 0; --left)
            Typing::Press(Edit(), Qt::Key_Backspace);
        Typing::Type(Edit(), digits);
    }
    void Leave() const { Typing::Press(Edit(), Qt::Key_Tab); }

    /// The calls of the code lock and of messages since the last time, in order.
    QStringList Calls()
    {
        QStringList result;
        for (const QString& line : Host.Log.Lines()) {
            if (!line.startsWith(u"CompleteCode"))
                result.append(line);
        }
        Host.Log.Clear();
        return result;
    }
    QStringList Statements() { return std::exchange(Database.Statements, {}); }

    /// The lines that Calls() shows.
    static QString Asked(const QString& code)
    {
        return QStringLiteral("LocateLockCode_SoftwarePart(%1, 1270001, 45, 0)").arg(code);
    }
    static QString Taken(const QString& code)
    {
        return QStringLiteral("OperationOnLockCode_SoftwarePart(%1, 1270001, 45, 0, 0)").arg(code);
    }
    static QString Released(const QString& code)
    {
        return QStringLiteral("OperationOnLockCode_SoftwarePart(%1, 1270001, 45, 2, 0)").arg(code);
    }
    void HoldByAnother(const QString& code)
    {
        Host.CommonLibrary.HeldByOthers.append(QStringLiteral("1270001:") + code);
    }
};
