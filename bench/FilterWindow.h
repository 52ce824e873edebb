#pragma once

#include "DataSource.h"

#include <functional>
#include <QWidget>

/// A window with nothing but the grid of a data source; tells when its contents have reached the screen.
class TFilterWindow : public QWidget
{
    Q_OBJECT

public:
    explicit TFilterWindow(TDataSource& source);
    std::function<void()> OnPainted;

protected:
    bool event(QEvent* event) override;
};
