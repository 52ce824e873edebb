#pragma once

#include "PackageExport.h"

#include <QByteArray>
#include <QImage>
#include <QString>

/// Reads pictures of unknown origin in bounded memory, and fast enough for the user not to wait for a second:
/// corrupt, cut off, disguised and enormous ones give a null image, or a smaller one where that can be had.
namespace PictureReader {

/// None stands for everything else.
enum class TFormat { None, Jpeg, Png };

/// Larger pictures are made smaller while they are read, to a half, a fourth or an eighth in each direction.
constexpr qint64 MostPixels = 16 << 20;
/// Larger pictures are not read at all, because the user would wait for them; of JPEG pictures, those whose
/// decoding costs too much.
constexpr qint64 MostPngPixels = 32 << 20;
/// Longer files are not read at all.
constexpr qint64 MostBytes = 256LL << 20;

/// The format that an extension stands for, letter case as it is: ".jpg" and ".jpeg", ".png".
BASEFRAME_EXPORT TFormat FormatOfExtension(const QString& extension);
/// By the first bytes of a picture.
BASEFRAME_EXPORT TFormat FormatOfContent(const QByteArray& bytes);
/// The extension of a file's name with its dot, letter case as it is; empty where there is none.
BASEFRAME_EXPORT QString ExtensionOf(const QString& fileName);
/// Whether there is an ordinary file of the path: no folder, no pipe, no device.
BASEFRAME_EXPORT bool FileExists(const QString& path);

/// A picture of a format; another one gives a null image, whatever the file is called.
BASEFRAME_EXPORT QImage FromFile(const QString& path, TFormat format);
BASEFRAME_EXPORT QImage FromBytes(const QByteArray& bytes, TFormat format);

} // namespace PictureReader
