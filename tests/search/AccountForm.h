#pragma once

#include "ADOQuery.h"
#include "MenuItem.h"
#include "RecordingHost.h"
#include "Select_AccountCode_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TarvaSearch.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QLineEdit>
#include <QVBoxLayout>

/// A report form with one of the account code filters; every account and every expense center is known to the
/// host.
template <typename TSearchFrame> struct TAccountForm
{
    static constexpr TCodeItem T = TCodeItem::ctTotal;
    static constexpr TCodeItem A = TCodeItem::ctAssistant;
    static constexpr TCodeItem D = TCodeItem::ctDetail;
    static constexpr TCodeItem E = TCodeItem::ctExpenseCenter;

    TRecordingHost Host;
    TADOConnection Connection;
    TADOQuery Query;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TSearchFrame* Frame = nullptr;
    QLineEdit* Other = nullptr;

    explicit TAccountForm(TCodeItems levels = {T, A, D, E})
    {
        Connection.SetConnectionString(QStringLiteral("sqlite::memory:"));
        Connection.RegisterFunction(
            QStringLiteral("GetExpCenterName"), 1,
            [](IFunctionContext&, const QVariantList&) { return QVariant(QStringLiteral("کارگاه")); });
        Connection.Open();
        Connection.Execute(
            QStringLiteral("CREATE TABLE dbo.AccTotals (Code int NOT NULL, DetailType int NOT NULL)"));
        Query.SetConnection(&Connection);
        Host.DM.Connection = &Connection;
        Host.DM.Query = &Query;
        Host.Accounting.KnowsAll = true;
        auto* const layout = new QVBoxLayout(Form.get());
        Frame = new TSearchFrame(Form.get());
        Other = new QLineEdit(Form.get());
        layout->addWidget(Frame);
        layout->addWidget(Other);
        Frame->SetCodeItems(levels);
        Frame->init();
    }

    /// Shown and switched on.
    bool Start()
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Frame->AccCodes_CHK->SetChecked(true);
        Other->setFocus();
        Host.Log.Clear();
        return isActive;
    }

    /// Types into a box and goes elsewhere.
    void Enter(TSmartEdit_TRV* box, const QString& text) const
    {
        box->setFocus();
        box->selectAll();
        Typing::Type(box, text);
        QCoreApplication::removePostedEvents(box); // the step on to the next box
        Other->setFocus();
    }
};
