#pragma once

#include "DataSource.h"
#include "PaintedWindow.h"

/// A window with nothing but the grid of a data source.
class TFilterWindow : public TPaintedWindow
{
    Q_OBJECT

public:
    explicit TFilterWindow(TDataSource& source);
};
