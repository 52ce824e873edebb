#include "SmartCheckBox_TRV.h"

#include "ControlDispatch.h"
#include "SmartLabel_TRV.h"

#include <QShortcutEvent>

namespace {

/// The label beside the box that carries the same mnemonic: the letter is meant for the box, and not
/// ambiguous.
bool IsNamedByLabel(const TSmartCheckBox_TRV& box)
{
    if (box.parentWidget() == nullptr)
        return false;
    const QKeySequence mnemonic = QKeySequence::mnemonic(box.text());
    const auto labels =
        box.parentWidget()->findChildren<TSmartLabel_TRV*>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(labels.cbegin(), labels.cend(), [&mnemonic](const TSmartLabel_TRV* label) {
        return label->FocusControl() == nullptr && QKeySequence::mnemonic(label->text()) == mnemonic;
    });
}

} // namespace

TSmartCheckBox_TRV::TSmartCheckBox_TRV(QWidget* parent) : QCheckBox(parent)
{
    connect(this, &QCheckBox::stateChanged, this, [this] {
        // A copy, because the handler may replace itself or destroy the box.
        if (const TNotifyEvent running = OnClick)
            running(this);
    });
}

TSmartCheckBox_TRV::~TSmartCheckBox_TRV() = default;

bool TSmartCheckBox_TRV::event(QEvent* event)
{
    if (event->type() == QEvent::Shortcut) {
        const bool ambiguous = static_cast<QShortcutEvent*>(event)->isAmbiguous();
        if (!ambiguous || IsNamedByLabel(*this)) {
            click();
            return true;
        }
    }
    return ControlDispatch::Event(this, *this, event) || QCheckBox::event(event);
}

void TSmartCheckBox_TRV::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) { QCheckBox::keyPressEvent(own); });
}

void TSmartCheckBox_TRV::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QCheckBox::keyReleaseEvent(own); });
}

void TSmartCheckBox_TRV::focusInEvent(QFocusEvent* event)
{
    QCheckBox::focusInEvent(event);
    ControlDispatch::FocusIn(this, *this, event);
}

void TSmartCheckBox_TRV::focusOutEvent(QFocusEvent* event)
{
    QCheckBox::focusOutEvent(event);
    ControlDispatch::FocusOut(this, *this, event);
}
