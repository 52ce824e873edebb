#pragma once

#include "NotifyEvent.h"
#include "SuiteExport.h"

#include <QAction>

/// An item of a popup menu whose handler an owner can replace.
class SUITE_EXPORT TMenuItem : public QAction
{
    Q_OBJECT

public:
    /// Whether '&' in a caption marks the letter behind it as the hot key, or is a sign like any other.
    enum class THotKeys { Automatic, Manual };

    /// Belongs to `parent`.
    explicit TMenuItem(const QString& caption, QObject* parent = nullptr,
                       THotKeys hotKeys = THotKeys::Automatic);

    QString Caption() const { return caption_; } ///< as it was given
    void Click(); ///< as if the user had chosen it; a disabled item does nothing

    TNotifyEvent OnClick; ///< the user has chosen the item
    int Tag = 0;          ///< the owner's number
    int ImageIndex = -1;  ///< index into the menu's pictures, or the owner's number where it has none

private:
    QString caption_;
};
