#include "FilterLine.h"

#include "SmartCheckBox_TRV.h"
#include "SmartComboBox_TRV.h"
#include "SmartLabel_TRV.h"
#include "TarvaSearch.h"

#include <QKeySequence>

namespace {

void BindLabel(TSmartLabel_TRV* label, TSmartCheckBox_TRV* box)
{
    if (!label || !box)
        return;
    label->OnClick = [box](QObject*) {
        if (box->isEnabled())
            box->SetChecked(!box->Checked());
    };
    if (box->shortcut() == QKeySequence::mnemonic(label->Caption()))
        box->setShortcut({});
}

void SetEnabled(QWidget* control, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
}

} // namespace

void TFilterLine::BindLabels() const
{
    BindLabel(Caption, Switch);
    BindLabel(ReverseLabel, Reverse);
}

void TFilterLine::FillFields(const TSearchCollection& items) const
{
    Fields->Clear();
    for (int index = 0; index < items.Count(); ++index)
        Fields->AddItem(items.GetItem(index).Title);
    Fields->SetItemIndex(0);
}

void TFilterLine::Enable(bool enabled) const
{
    SetEnabled(Fields, enabled);
    SetEnabled(Reverse, enabled);
    SetEnabled(ReverseLabel, enabled);
}

void TFilterLine::FocusFields() const
{
    if (CanFocus(Fields))
        Fields->setFocus();
}

void TFilterLine::ShowReverse(const TSearchItem* item) const
{
    const bool shown = item && item->FilterType == TSearchFilterType::iftQuery;
    const bool hidden = item && item->FilterType == TSearchFilterType::iftDataset;
    if (!shown && !hidden)
        return;
    Reverse->setVisible(shown);
    ReverseLabel->setVisible(shown);
}
