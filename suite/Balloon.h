#pragma once

#include "SuiteExport.h"

#include <QString>

class QWidget;

/// Silver balloon that points at a control. At most one is shown; it goes when the user types into the
/// control, when the control hides, when the window moves, and after its time.
namespace Balloon {

SUITE_EXPORT void Show(QWidget* control, const QString& text, int milliseconds = 5000,
                       const QString& title = {});
SUITE_EXPORT void Hide();
/// The text now shown; empty when none is.
SUITE_EXPORT QString ShownText();

} // namespace Balloon
