#pragma once

#include "PackageExport.h"

#include <optional>
#include <QImage>
#include <QStringList>

class TADOQuery;

/// The pictures of one record in the host's gallery.
namespace PictureSet {

/// The lines of the statement that reads a record's pictures. A group below 1 means all groups.
BASEFRAME_EXPORT QStringList Statement(int group, int item);

/// A picture with what stands above it.
struct TShown
{
    QImage Image;                ///< null where there is nothing to show
    std::optional<QString> Name; ///< none where a stored copy leaves what stands there
};
/// The picture of the current row: from its file where there is one, from the stored copy otherwise. A
/// database error is not caught; a picture that cannot be read is none.
BASEFRAME_EXPORT TShown Current(TADOQuery& gallery);

} // namespace PictureSet
