#pragma once

#include "Frame.h"
#include "NotifyEvent.h"

class TSmartButton_TRV;
class TSmartCheckBox_TRV;
class TSmartLabel_TRV;

/// The switch for the advanced search of a list form: a check box that the owner reads, and a button on
/// Ctrl+F10 that ticks it.
class BASEFRAME_EXPORT TADVSearch_Fram : public TFrame
{
    Q_OBJECT

public:
    explicit TADVSearch_Fram(QWidget* owner = nullptr);
    ~TADVSearch_Fram() override;

    /// Ticks the check box.
    void ADVSearch_BTNClick(QObject* Sender) const;
    /// Does nothing; owners that want to know put a handler of their own in its place.
    void ADVSearch_CHKClick(QObject* Sender);
    /// Keeps the owner's handler, which the frame itself never calls.
    void SetBTN_Click(const TNotifyEvent& handler) { FBTN_Click = handler; }
    const TNotifyEvent& BTN_Click() const { return FBTN_Click; }

    TSmartLabel_TRV* ADVsearch_LBL = nullptr;
    TSmartCheckBox_TRV* ADVSearch_CHK = nullptr;
    TSmartButton_TRV* ADVSearch_BTN = nullptr;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowGlyph() const;

    TNotifyEvent FBTN_Click;
};
