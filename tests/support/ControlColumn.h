#pragma once

#include <QVBoxLayout>

/// Makes controls in a window, one below the other; the focus goes from one to the next in that order.
template <typename... TControls> void MakeColumn(QWidget& window, TControls*&... controls)
{
    auto* const column = new QVBoxLayout(&window);
    (column->addWidget(controls = new TControls(&window)), ...);
}
