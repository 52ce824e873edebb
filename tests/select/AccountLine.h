#pragma once

#include "ChartTables.h"
#include "ControlColumn.h"
#include "MenuItem.h"
#include "RecordingHost.h"
#include "Select_AccountCode_UNT.h"
#include "SmartButton_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QLineEdit>

/// A form with an account code between two other controls. Known are the accounts 7, 7/2 and 7/2/11, the
/// total 90 of detail type 10 with 90/1 and 90/1/12345678, and the expense centers 42 and 1234.
struct TAccountLine
{
    static constexpr TCodeItem T = TCodeItem::ctTotal;
    static constexpr TCodeItem A = TCodeItem::ctAssistant;
    static constexpr TCodeItem D = TCodeItem::ctDetail;
    static constexpr TCodeItem E = TCodeItem::ctExpenseCenter;

    TRecordingHost Host;
    TChartTables Tables;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    QLineEdit* Before = nullptr;
    TSelect_AccountCode* Frame = nullptr;
    QLineEdit* After = nullptr;
    QStringList Events; ///< the frame's events, in order

    explicit TAccountLine(TCodeItems levels = {T, A, D, E})
    {
        Host.DM.Connection = &Tables.Connection;
        Host.DM.Query = &Tables.Query;
        Host.Accounting.Names = {
            {QStringLiteral("//"), QString()},
            {QStringLiteral("7//"), QStringLiteral("بانک‌ها")},
            {QStringLiteral("7/2/"), QStringLiteral("بانک‌ها - جاری")},
            {QStringLiteral("7/2/11"), QStringLiteral("بانک‌ها - جاری - ملت")},
            {QStringLiteral("90//"), QStringLiteral("تنخواه")},
            {QStringLiteral("90/1/"), QStringLiteral("تنخواه - شعبه")},
            {QStringLiteral("90/1/12345678"), QStringLiteral("تنخواه - شعبه - احمدی")},
        };
        MakeColumn(*Form, Before, Frame, After);
        Frame->SetCodeItem(levels);
        Frame->init();
        Frame->OnChange = [this](QObject*) { Events.append(QStringLiteral("change")); };
        Frame->OnTotalCodeChanged = [this](QObject*) { Events.append(QStringLiteral("total")); };
        Frame->OnAssistantCodeChanged = [this](QObject*) { Events.append(QStringLiteral("assistant")); };
        Frame->OnDetailCodeChanged = [this](QObject*) { Events.append(QStringLiteral("detail")); };
    }

    /// Shown, the focus in a box; nothing recorded yet.
    bool Start(TCodeItem level = T)
    {
        const bool isActive = Typing::ShowActive(Form.get());
        Box(level)->setFocus();
        Forget();
        return isActive && Box(level)->hasFocus();
    }

    void Forget()
    {
        Events.clear();
        Host.Log.Clear();
        Tables.Statements.clear();
    }

    TSmartEdit_TRV* Box(TCodeItem level) const
    {
        switch (level) {
        case T:
            return Frame->TotalCode_EDT;
        case A:
            return Frame->AssistantCode_EDT;
        case D:
            return Frame->DetailCode_EDT;
        case E:
            break;
        }
        return Frame->ExpenseCenterCode_EDT;
    }

    QStringList Texts() const { return {Box(T)->Text(), Box(A)->Text(), Box(D)->Text(), Box(E)->Text()}; }
    QString Name() const { return Frame->Name_LBL->Caption(); }

    /// Types into a box as a user does who comes from elsewhere and goes away with Tab.
    void Enter(TCodeItem level, const QString& text) const
    {
        Box(level)->setFocus();
        Box(level)->selectAll();
        Typing::Type(Box(level), text);
        Leave();
    }
    /// Tab in the control that has the focus; a box that was filled has moved on by itself.
    void Leave() const
    {
        QWidget* const before = QApplication::focusWidget();
        QCoreApplication::processEvents();
        if (QApplication::focusWidget() == before)
            Typing::Press(before, Qt::Key_Tab);
        QCoreApplication::processEvents();
    }

    /// Messages that the user got.
    QStringList Messages() const { return Host.Log.Lines().filter(QStringLiteral("Msg")); }
};

Q_DECLARE_METATYPE(TCodeItem)
