#pragma once

#include <array>
#include <QBuffer>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QtEndian>

/// Pictures as bytes, sound and otherwise.
namespace PictureBytes {

inline QByteArray Saved(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

inline QImage Plain(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline QByteArray Jpeg(const QColor& color = Qt::red, const QSize& size = {40, 30})
{
    return Saved(Plain(size, color), "JPG");
}

inline QByteArray Png(const QColor& color = Qt::red, const QSize& size = {40, 30})
{
    return Saved(Plain(size, color), "PNG");
}

/// A segment of a JPEG picture: its marker, its length, its content.
inline QByteArray JpegSegment(uchar marker, const QByteArray& content)
{
    QByteArray segment("\xFF");
    segment.append(static_cast<char>(marker));
    const auto length = static_cast<int>(content.size()) + 2;
    segment.append(static_cast<char>(length >> 8)).append(static_cast<char>(length & 0xFF));
    return segment + content;
}

/// The code of one bit for the symbol 0, as a table of a class (0x00: DC, 0x10: AC).
inline QByteArray OneBitTable(char tableClass)
{
    return QByteArray(1, tableClass) + QByteArray("\x01") + QByteArray(15, '\0') + QByteArray(1, '\0');
}

/// A picture of one colour and of any size whose every block takes two bits, or one in each scan of a
/// progressive one: huge to decode, small to keep. One component is grey, three are colours.
inline QByteArray FlatJpeg(int width, int height, bool progressive, int scans = 1, char components = 1)
{
    constexpr uchar baselineFrame = 0xC0;
    constexpr uchar progressiveFrame = 0xC2;
    QByteArray frame("\x08");
    for (const int side : {height, width})
        frame.append(static_cast<char>(side >> 8)).append(static_cast<char>(side & 0xFF));
    frame.append(components);
    QByteArray scan(1, components);
    for (char component = 1; component <= components; ++component) {
        frame.append(component).append('\x11').append('\0');
        scan.append(component).append('\0');
    }
    scan.append('\0').append(progressive ? '\x00' : '\x3F').append('\0');
    QByteArray bytes("\xFF\xD8");
    bytes += JpegSegment(0xDB, QByteArray(1, '\0') + QByteArray(64, '\x01'));
    bytes += JpegSegment(progressive ? progressiveFrame : baselineFrame, frame);
    bytes += JpegSegment(0xC4, OneBitTable('\x00'));
    bytes += JpegSegment(0xC4, OneBitTable('\x10'));
    const qint64 blocks = qint64{(width + 7) / 8} * ((height + 7) / 8) * components;
    const auto scanBytes = static_cast<qsizetype>(blocks * (progressive ? 1 : 2) / 8 + 1);
    for (int index = 0; index < scans; ++index)
        bytes += JpegSegment(0xDA, scan) + QByteArray(scanBytes, '\0');
    return bytes + "\xFF\xD9";
}

inline quint32 PngChecksum(const QByteArray& bytes)
{
    constexpr quint32 polynomial = 0xEDB88320;
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? sum >> 1 ^ polynomial : sum >> 1;
    }
    return ~sum;
}

inline QByteArray BigEndian(quint32 number)
{
    std::array<char, 4> bytes{};
    qToBigEndian(number, bytes.data());
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

inline QByteArray PngChunk(const QByteArray& kind, const QByteArray& content)
{
    return BigEndian(static_cast<quint32>(content.size())) + kind + content +
           BigEndian(PngChecksum(kind + content));
}

/// Zeros as a compressed stream, as many as wanted: one literal and then copies of 258 bytes each.
inline QByteArray CompressedZeros(quint64 count)
{
    QByteArray bytes("\x78\x01");
    quint32 bits = 0;
    int filled = 0;
    const auto put = [&](quint32 value, int length) {
        bits |= value << filled;
        for (filled += length; filled >= 8; filled -= 8, bits >>= 8)
            bytes.append(static_cast<char>(bits & 0xFF));
    };
    constexpr quint64 copied = 258;
    put(3, 3);    // the last block, codes of fixed lengths
    put(0x0C, 8); // the literal 0
    for (quint64 rest = count - 1; rest >= copied; rest -= copied)
        put(0xA3, 13); // length 258, distance 1
    for (quint64 rest = (count - 1) % copied; rest > 0; --rest)
        put(0x0C, 8);
    put(0, 7); // the end
    put(0, 7);
    constexpr quint64 modulus = 65521;
    return bytes + BigEndian(static_cast<quint32>(count % modulus) << 16 | 1);
}

/// A black picture in three samples per point, of 8 or 16 bits, line by line or in passes.
inline QByteArray FlatPng(int side, char depth = 8, bool inPasses = false)
{
    const auto length = static_cast<quint32>(side);
    const auto rowBytes = static_cast<quint64>(side) * 3 * static_cast<quint64>(depth / 8) + 1;
    // The lines of the passes are shorter and more, each with a byte in front.
    const quint64 moreLines = inPasses ? 2 : 1;
    QByteArray header = BigEndian(length) + BigEndian(length);
    header.append(depth).append('\2').append('\0').append('\0').append(inPasses ? '\1' : '\0');
    return QByteArray("\x89PNG\r\n\x1A\n") + PngChunk("IHDR", header) +
           PngChunk("IDAT", CompressedZeros(rowBytes * length * moreLines)) + PngChunk("IEND", {});
}

inline bool Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Whether a picture is all of one colour, as far as JPEG keeps colours.
inline bool IsPlain(const QImage& image, const QColor& color)
{
    constexpr int tolerance = 8;
    const QColor found = image.pixelColor(image.rect().center());
    return qAbs(found.red() - color.red()) <= tolerance && qAbs(found.green() - color.green()) <= tolerance &&
           qAbs(found.blue() - color.blue()) <= tolerance;
}

} // namespace PictureBytes
