#include "JpegBounds.h"

#include <optional>
#include <QIODevice>

namespace {

constexpr uchar StartOfImage = 0xD8;
constexpr uchar StartOfScan = 0xDA;
constexpr int MostScans = 100;

// What a decoder needs at most, found by measuring it on a machine of ordinary speed; well below the second
// for which a user would notice that nothing moves.
constexpr double MostMilliseconds = 800;
constexpr double PlainPerMegasample = 0.35;
constexpr double PlainPerMegabyte = 12;
constexpr double HeldPerMegasample = 4;
constexpr double HeldPerMegasampleAndScan = 0.5;
constexpr double HeldPerMegabyte = 25;
constexpr double MostHeldMegasamples = 128; // two bytes each

struct TJpegFrame
{
    bool Progressive = false;
    int Components = 0;
    int ComponentsOfFirstScan = 0;
    double Megasamples = 0; ///< of all components

    bool IsHeld() const { return Progressive || ComponentsOfFirstScan < Components; }
};

bool IsStartOfFrame(uchar marker)
{
    constexpr uchar huffmanTables = 0xC4;
    constexpr uchar reserved = 0xC8;
    constexpr uchar arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
           marker != arithmeticTables;
}

/// Coded in the way that no camera and no browser knows, which takes a decoder many times as long.
bool IsArithmetic(uchar frameMarker)
{
    constexpr uchar firstArithmetic = 0xC9;
    return frameMarker >= firstArithmetic;
}

bool IsProgressive(uchar frameMarker)
{
    return frameMarker == 0xC2 || frameMarker == 0xC6;
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

/// The samples of all components of a frame, in millions; none where the frame is cut off. A component has
/// fewer samples than the picture has pixels where its sampling factors are below the largest ones.
std::optional<double> Megasamples(const QByteArray& frame)
{
    constexpr int headBytes = 6; // precision, height, width, number of components
    constexpr int componentBytes = 3;
    const int components = frame.size() < headBytes ? 0 : static_cast<uchar>(frame.at(headBytes - 1));
    if (components == 0 || frame.size() < headBytes + components * componentBytes)
        return {};
    int sum = 0;
    int widest = 1;
    int highest = 1;
    for (int component = 0; component < components; ++component) {
        const auto factors = static_cast<uchar>(frame.at(headBytes + component * componentBytes + 1));
        const int across = factors >> 4;
        const int down = factors & 0x0F;
        sum += across * down;
        widest = qMax(widest, across);
        highest = qMax(highest, down);
    }
    constexpr double million = 1e6;
    return double{1} * BigEndian(frame, 1) * BigEndian(frame, 3) * sum / (widest * highest) / million;
}

/// Reads as far as the first scan.
std::optional<TJpegFrame> ReadFrame(QIODevice& device)
{
    if (NextMarker(device) != StartOfImage)
        return {};
    TJpegFrame frame;
    for (;;) {
        const uchar marker = NextMarker(device);
        const QByteArray content = Segment(device);
        if (marker == 0 || content.isEmpty())
            return {};
        if (IsStartOfFrame(marker)) {
            const std::optional<double> samples = Megasamples(content);
            if (!samples || IsArithmetic(marker))
                return {};
            frame.Progressive = IsProgressive(marker);
            frame.Megasamples = *samples;
            frame.Components = static_cast<uchar>(content.at(5));
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

double Megabytes(const QIODevice& device)
{
    constexpr double million = 1e6;
    return static_cast<double>(device.size()) / million;
}

bool FitsPlain(const TJpegFrame& frame, const QIODevice& device)
{
    return PlainPerMegasample * frame.Megasamples + PlainPerMegabyte * Megabytes(device) <= MostMilliseconds;
}

bool FitsHeld(const TJpegFrame& frame, QIODevice& device)
{
    const double once = HeldPerMegasample * frame.Megasamples + HeldPerMegabyte * Megabytes(device);
    if (frame.Megasamples > MostHeldMegasamples || once > MostMilliseconds)
        return false;
    const int scans = 1 + FurtherScans(device);
    return scans < MostScans &&
           once + HeldPerMegasampleAndScan * scans * frame.Megasamples <= MostMilliseconds;
}

} // namespace

bool JpegBounds::Hold(QIODevice& device)
{
    device.seek(0);
    const std::optional<TJpegFrame> frame = ReadFrame(device);
    const bool holds = frame && (frame->IsHeld() ? FitsHeld(*frame, device) : FitsPlain(*frame, device));
    device.seek(0);
    return holds;
}
