#include "PictureReader.h"

#include "JpegBounds.h"

#include <algorithm>
#include <cmath>
#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace {

using PictureReader::TFormat;

qint64 PixelsOf(const QSize& size)
{
    return qint64{size.width()} * size.height();
}

QSize ReducedSize(const QSize& size)
{
    const double factor =
        std::sqrt(static_cast<double>(PictureReader::MostPixels) / static_cast<double>(PixelsOf(size)));
    return {qMax(1, static_cast<int>(size.width() * factor)),
            qMax(1, static_cast<int>(size.height() * factor))};
}

QImage ReadBounded(QImageReader& reader, TFormat format)
{
    QIODevice& device = *reader.device();
    if (format == TFormat::None || (!device.isOpen() && !device.open(QIODevice::ReadOnly)))
        return {};
    if (device.size() > PictureReader::MostBytes || (format == TFormat::Jpeg && !JpegBounds::Hold(device)))
        return {};
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(format == TFormat::Jpeg ? QByteArrayLiteral("jpeg") : QByteArrayLiteral("png"));
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const qint64 most =
        format == TFormat::Jpeg ? PictureReader::MostJpegPixels : PictureReader::MostPngPixels;
    if (size.isEmpty() || PixelsOf(size) > most)
        return {};
    if (PixelsOf(size) <= PictureReader::MostPixels)
        return reader.read();
    if (format == TFormat::Jpeg) {
        reader.setScaledSize(ReducedSize(size));
        return reader.read();
    }
    // The decoder of PNG is much slower where it makes a picture smaller itself.
    const QImage whole = reader.read();
    return whole.isNull() ? whole
                          : whole.scaled(ReducedSize(size), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

PictureReader::TFormat PictureReader::FormatOfExtension(const QString& extension)
{
    if (extension == u".jpg" || extension == u".jpeg")
        return TFormat::Jpeg;
    return extension == u".png" ? TFormat::Png : TFormat::None;
}

PictureReader::TFormat PictureReader::FormatOfContent(const QByteArray& bytes)
{
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return TFormat::Jpeg;
    return bytes.startsWith("\x89PNG\r\n\x1A\n") ? TFormat::Png : TFormat::None;
}

QString PictureReader::ExtensionOf(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const qsizetype separator = std::max(fileName.lastIndexOf(u'/'), fileName.lastIndexOf(u'\\'));
    return dot > separator ? fileName.mid(dot) : QString();
}

bool PictureReader::FileExists(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}

QImage PictureReader::FromFile(const QString& path, TFormat format)
{
    // A pipe would be waited for.
    if (!FileExists(path))
        return {};
    QImageReader reader(path);
    return ReadBounded(reader, format);
}

QImage PictureReader::FromBytes(const QByteArray& bytes, TFormat format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    return ReadBounded(reader, format);
}
