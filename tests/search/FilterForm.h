#pragma once

#include "ControlColumn.h"
#include "RecordingHost.h"
#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "TarvaSearch.h"
#include "TestCase.h"
#include "Typing.h"

#include <memory>
#include <QApplication>
#include <QLineEdit>

/// A report form with a filter frame and a control for the focus to go to. Every value that reaches the
/// criterion is noted.
template <typename TFilterFrame> struct TFilterForm
{
    TRecordingHost Host;
    std::unique_ptr<QWidget> Form = std::make_unique<QWidget>();
    TFilterFrame* Frame = nullptr;
    QLineEdit* Other = nullptr;

    TFilterForm() { MakeColumn(*Form, Frame, Other); }

    static TSearchItem Item(const QString& title, TSearchDataType type = TSearchDataType::idtString,
                            int maxLength = 0, TSearchFilterType filter = TSearchFilterType::iftQuery)
    {
        TSearchItem item;
        item.Title = title;
        item.FiledName = QStringLiteral("F");
        item.DataType = type;
        item.MaxLength = maxLength;
        item.FilterType = filter;
        return item;
    }

    bool Show() const { return Typing::ShowActive(Form.get()); }

    /// Ticks or clears a box as a user does.
    static void Click(QWidget* control)
    {
        QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
    }

    /// Types over what is in an edit.
    static void Enter(QLineEdit* edit, const QString& text)
    {
        edit->setFocus();
        edit->selectAll();
        Typing::Type(edit, text);
    }

    void Leave() const { Other->setFocus(); }

    /// Chooses the next entry as a user does.
    static void ChooseNext(TSmartComboBox_TRV* combo)
    {
        combo->setFocus();
        Typing::Press(combo, Qt::Key_Down);
    }
};
