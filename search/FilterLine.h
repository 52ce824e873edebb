#pragma once

#include "PackageExport.h"

class TSearchCollection;
class TSmartCheckBox_TRV;
class TSmartComboBox_TRV;
class TSmartLabel_TRV;
struct TSearchItem;

/// What one-line search frames have beside their value edits: the box that switches the condition on and its
/// caption, the combo box of the fields to search by, the "not" box and its label. The controls are the
/// frame's own, who sets them; those that a frame does not have stay null.
struct BASEFRAME_EXPORT TFilterLine
{
    TSmartCheckBox_TRV* Switch = nullptr;
    TSmartLabel_TRV* Caption = nullptr;
    TSmartComboBox_TRV* Fields = nullptr;
    TSmartCheckBox_TRV* Reverse = nullptr;
    TSmartLabel_TRV* ReverseLabel = nullptr;

    /// Lets a click on the caption or on the "not" label toggle its box, which then raises its OnClick. A
    /// mnemonic that a box and its label share is the label's: with two holders the key would click neither.
    void BindLabels() const;
    /// The items' titles in place of what the combo box offers, the first one chosen.
    void FillFields(const TSearchCollection& items) const;
    /// Enables or disables all but the switch and its caption.
    void Enable(bool enabled) const;
    /// Gives the combo box the focus where it can take it.
    void FocusFields() const;
    /// Shows the "not" controls for an item whose condition goes into the statement, hides them for one that
    /// narrows rows; another kind or null leaves them as they are.
    void ShowReverse(const TSearchItem* item) const;
};
