#pragma once

#include "ADOQuery.h"
#include "ControlColumn.h"
#include "MenuItem.h"
#include "RecordingHost.h"
#include "Select_AccountCode_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "TarvaSearch.h"
#include "TestCase.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QLineEdit>

/// Compares what owners know the criteria of the four levels by.
inline void CheckAccountCriteria(const QList<TTarvaSearch*>& criteria, TSearchType type,
                                 const QStringList& names, const QStringList& fields)
{
    const QStringList titles = {"کل", "معین", "تفصیلی", "مرکز هزینه"};
    QCOMPARE(criteria.size(), titles.size());
    for (int level = 0; level < criteria.size(); ++level) {
        const TTarvaSearch& criterion = *criteria.at(level);
        QCOMPARE(criterion.objectName(), names.at(level));
        QCOMPARE(criterion.SearchTypes(), type);
        QCOMPARE(criterion.SearchItems.Count(), 1);
        QCOMPARE(criterion.ItemIndex(), 0);
        QCOMPARE(criterion.CurrentItem()->Title, titles.at(level));
        QCOMPARE(criterion.CurrentItem()->FiledName, fields.at(level));
        QCOMPARE(criterion.CurrentItem()->DataType, TSearchDataType::idtDigit);
        QCOMPARE(criterion.CurrentItem()->FilterType, TSearchFilterType::iftDataset);
        QCOMPARE(criterion.CurrentItem()->ItemResult, TSearchItemResult::irSQL);
        QCOMPARE(criterion.CurrentItem()->MaxLength, 0);
        QVERIFY(!criterion.Active());
        QVERIFY(!criterion.Reverst());
    }
}

/// One row for each set of levels.
inline void AddLevelSets()
{
    QTest::addColumn<int>("levels");
    for (int levels = 0; levels < 16; ++levels)
        QTest::addRow("%d", levels) << levels;
}

/// The not box turns all criteria round and back.
inline void CheckReversal(TSmartCheckBox_TRV* box, const QList<TTarvaSearch*>& criteria)
{
    for (const bool reversed : {true, false}) {
        box->SetChecked(reversed);
        for (const TTarvaSearch* const criterion : criteria)
            QCOMPARE(criterion->Reverst(), reversed);
    }
}

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
        MakeColumn(*Form, Frame, Other);
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
