#pragma once

#include "NotifyEvent.h"
#include "PackageExport.h"

#include <QAction>

/// An item of a popup menu whose handler an owner can replace.
class BASEFRAME_EXPORT TMenuItem : public QAction
{
    Q_OBJECT

public:
    explicit TMenuItem(const QString& caption, QObject* parent = nullptr);

    void Click(); ///< as if the user had chosen it; a disabled item does nothing

    TNotifyEvent OnClick;
};
