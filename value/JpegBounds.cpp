#include "JpegBounds.h"

#include <optional>
#include <QIODevice>

namespace {

constexpr uchar StartOfImage = 0xD8;
constexpr uchar StartOfScan = 0xDA;
constexpr qint64 MostHeldBytes = 256LL << 20;
constexpr int MostScans = 100;

struct TJpegFrame
{
    bool Progressive = false;
    int Components = 0;
    int ComponentsOfFirstScan = 0;
    qint64 Pixels = 0;

    bool IsHeld() const { return Progressive || ComponentsOfFirstScan < Components; }
    qint64 HeldBytes() const { return Pixels * Components * qint64{sizeof(qint16)}; }
};

bool IsStartOfFrame(uchar marker)
{
    constexpr uchar huffmanTables = 0xC4;
    constexpr uchar reserved = 0xC8;
    constexpr uchar arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
           marker != arithmeticTables;
}

bool IsProgressive(uchar marker)
{
    return marker == 0xC2 || marker == 0xC6 || marker == 0xCA || marker == 0xCE;
}

int BigEndian(const QByteArray& bytes, int index)
{
    return static_cast<uchar>(bytes.at(index)) << 8 | static_cast<uchar>(bytes.at(index + 1));
}

/// The marker of the next segment, 0 at the end; fill bytes in front of it are skipped.
uchar NextMarker(QIODevice& device)
{
    char byte = 0;
    if (!device.getChar(&byte) || static_cast<uchar>(byte) != 0xFF)
        return 0;
    while (static_cast<uchar>(byte) == 0xFF) {
        if (!device.getChar(&byte))
            return 0;
    }
    return static_cast<uchar>(byte);
}

/// What stands in a segment behind its length; empty where it is cut off.
QByteArray Segment(QIODevice& device)
{
    constexpr int lengthBytes = 2;
    const QByteArray length = device.read(lengthBytes);
    if (length.size() < lengthBytes)
        return {};
    const int size = BigEndian(length, 0) - lengthBytes;
    const QByteArray content = device.read(qMax(size, 0));
    return content.size() == size ? content : QByteArray();
}

/// Reads as far as the first scan.
std::optional<TJpegFrame> ReadFrame(QIODevice& device)
{
    constexpr int frameBytes = 6; // precision, height, width, number of components
    if (NextMarker(device) != StartOfImage)
        return {};
    TJpegFrame frame;
    for (;;) {
        const uchar marker = NextMarker(device);
        const QByteArray content = Segment(device);
        if (marker == 0 || content.isEmpty())
            return {};
        if (IsStartOfFrame(marker)) {
            if (content.size() < frameBytes)
                return {};
            frame.Progressive = IsProgressive(marker);
            frame.Pixels = qint64{BigEndian(content, 1)} * BigEndian(content, 3);
            frame.Components = static_cast<uchar>(content.at(frameBytes - 1));
        } else if (marker == StartOfScan) {
            frame.ComponentsOfFirstScan = static_cast<uchar>(content.at(0));
            return frame;
        }
    }
}

/// The scans behind the first one, as far as they matter. Inside a scan the mark of another cannot occur.
int FurtherScans(QIODevice& device)
{
    constexpr qint64 chunkBytes = 1 << 16;
    int scans = 0;
    uchar before = 0;
    while (scans < MostScans) {
        const QByteArray chunk = device.read(chunkBytes);
        if (chunk.isEmpty())
            break;
        for (const char byte : chunk) {
            const auto value = static_cast<uchar>(byte);
            if (before == 0xFF && value == StartOfScan)
                ++scans;
            before = value;
        }
    }
    return scans;
}

} // namespace

bool JpegBounds::Hold(QIODevice& device)
{
    device.seek(0);
    const std::optional<TJpegFrame> frame = ReadFrame(device);
    const bool holds = frame && (!frame->IsHeld() ||
                                 (frame->HeldBytes() <= MostHeldBytes && FurtherScans(device) < MostScans));
    device.seek(0);
    return holds;
}
