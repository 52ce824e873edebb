#pragma once

#include "ControlColumn.h"
#include "RecordingHost.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "TarvaSearch.h"
#include "Typing.h"

#include <memory>
#include <QLineEdit>

/// A report form with an entity search frame and a control for the focus to go to.
template <typename TSearchFrame> struct TEntitySearchForm
{
    TRecordingHost Host;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TSearchFrame* Frame = nullptr;
    QLineEdit* Other = nullptr;

    TEntitySearchForm()
    {
        MakeColumn(*Form, Frame, Other);
        Know(LocateDBsOptions::ldPersonals, QStringLiteral("5"), QStringLiteral("رضایی"));
        Know(LocateDBsOptions::ldPersonals, QStringLiteral("9"), QStringLiteral("کریمی"));
        Know(LocateDBsOptions::ldExpenseLevel1, QStringLiteral("7"), QStringLiteral("اداری"));
    }

    void Know(LocateDBsOptions table, const QString& code, const QVariant& found)
    {
        Host.CommonLibrary.Lookups[{table, code}] = found;
    }

    /// Persons, whose condition goes into the statement, and the first expense level, which narrows rows.
    static void AddKinds(TTarvaSearch& criterion)
    {
        Add(criterion, QStringLiteral("اشخاص"), TEntityType::etPersonals, TSearchFilterType::iftQuery);
        Add(criterion, QStringLiteral("سطح یک"), TEntityType::etExpenseLevel1, TSearchFilterType::iftDataset);
    }

    static void Add(TTarvaSearch& criterion, const QString& title, TEntityType kind, TSearchFilterType filter)
    {
        TSearchItem item;
        item.Title = title;
        item.FiledName = QStringLiteral("Code");
        item.FilterType = filter;
        item.ItemValue = static_cast<int>(kind);
        criterion.SearchItems.Add(item);
    }

    static void Enter(const TSelect_Entity_Frame* selector, const QString& code)
    {
        selector->Code_EDT->setFocus();
        selector->Code_EDT->selectAll();
        Typing::Press(selector->Code_EDT, Qt::Key_Delete);
        Typing::Type(selector->Code_EDT, code);
        Typing::Press(selector->Code_EDT, Qt::Key_Tab);
    }

    /// Chooses the next kind as a user does.
    void ChooseNextKind() const
    {
        Frame->SelectEntity_CMB->setFocus();
        Typing::Press(Frame->SelectEntity_CMB, Qt::Key_Down);
    }
};
