#include "PictureReader.h"

#include "JpegBounds.h"

#include <algorithm>
#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace {

using PictureReader::TFormat;

qint64 PixelsOf(const QSize& size)
{
    return qint64{size.width()} * size.height();
}

/// The size by which a picture that is too large is read instead. The decoder of JPEG makes a half, a fourth
/// and an eighth without reading the whole, and quickest.
QSize ReducedSize(const QSize& size)
{
    constexpr int least = 8;
    int divisor = 2;
    while (divisor < least && PixelsOf(size / divisor) > PictureReader::MostPixels)
        divisor *= 2;
    return (size / divisor).expandedTo(QSize(1, 1));
}

/// How much a pixel of a PNG picture counts: one whose samples have two bytes twice, and so one that comes in
/// passes.
int PngEffort(QIODevice& device)
{
    constexpr int headerBytes = 29;
    constexpr int depthPlace = 24;
    constexpr int interlacePlace = 28;
    constexpr char wideSamples = 16;
    const QByteArray header = device.peek(headerBytes);
    const bool isWide = header.size() == headerBytes && header.at(depthPlace) == wideSamples;
    const bool comesInPasses = header.size() == headerBytes && header.at(interlacePlace) != 0;
    return (isWide ? 2 : 1) * (comesInPasses ? 2 : 1);
}

bool IsBounded(QIODevice& device, TFormat format)
{
    return device.size() <= PictureReader::MostBytes && (format != TFormat::Jpeg || JpegBounds::Hold(device));
}

QImage ReadBounded(QImageReader& reader, TFormat format)
{
    QIODevice& device = *reader.device();
    if (format == TFormat::None || (!device.isOpen() && !device.open(QIODevice::ReadOnly)))
        return {};
    if (!IsBounded(device, format))
        return {};
    const int effort = format == TFormat::Png ? PngEffort(device) : 0;
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(format == TFormat::Jpeg ? QByteArrayLiteral("jpeg") : QByteArrayLiteral("png"));
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || PixelsOf(size) * effort > PictureReader::MostPngPixels)
        return {};
    if (PixelsOf(size) <= PictureReader::MostPixels)
        return reader.read();
    const QSize reduced = ReducedSize(size);
    if (PixelsOf(reduced) > PictureReader::MostPixels)
        return {};
    if (format == TFormat::Jpeg) {
        reader.setScaledSize(reduced);
        return reader.read();
    }
    // The decoder of PNG is much slower where it makes a picture smaller itself.
    const QImage whole = reader.read();
    return whole.isNull() ? whole : whole.scaled(reduced, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
