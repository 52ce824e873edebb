#pragma once

#include "ControlEvents.h"
#include "SuiteExport.h"

#include <QCheckBox>

/// Check box whose OnClick comes on every change of the checked state, by the user or by code.
class SUITE_EXPORT TSmartCheckBox_TRV : public QCheckBox, public TControlEvents
{
    Q_OBJECT

public:
    explicit TSmartCheckBox_TRV(QWidget* parent = nullptr);
    ~TSmartCheckBox_TRV() override;

    bool Checked() const { return isChecked(); }           ///< ticked
    void SetChecked(bool checked) { setChecked(checked); } ///< raises OnClick where that is a change

    TNotifyEvent OnClick; ///< after every change of Checked()

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
