#pragma once

#include "PackageExport.h"

#include <QString>

class QWidget;

/// The window in which the user chooses a picture file.
struct BASEFRAME_EXPORT TOpenPictureDialog
{
    /// Descriptions and patterns in turn, "|" between them; a description names its pattern in parentheses.
    QString Filter = QStringLiteral("JPEG Files (*.jpg)|*.jpg");
    QString FileName; ///< full path of the file chosen last

    /// Asks the user; false where he cancels, upon which FileName stays as it was. `owner` may be destroyed
    /// meanwhile, which cancels.
    bool Execute(QWidget* owner);
};
