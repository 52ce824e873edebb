#include "PngPicture.h"

#include "SampleRandom.h"

#include <array>
#include <cmath>
#include <QtEndian>

namespace {

using PngPicture::TPixel;

constexpr quint64 PictureStream = 90;
constexpr int SamplesPerSide = 3;

std::array<quint32, 256> MakeCrcTable()
{
    std::array<quint32, 256> table{};
    for (quint32 index = 0; index < table.size(); ++index) {
        quint32 value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1U) != 0 ? 0xEDB88320U ^ (value >> 1) : value >> 1;
        table.at(index) = value;
    }
    return table;
}

quint32 Crc(const QByteArray& bytes)
{
    static const std::array<quint32, 256> table = MakeCrcTable();
    quint32 crc = 0xFFFFFFFFU;
    for (const char byte : bytes)
        crc = table.at((crc ^ static_cast<quint8>(byte)) & 0xFFU) ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFU;
}

QByteArray BigEndian(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& name, const QByteArray& content)
{
    return BigEndian(static_cast<quint32>(content.size())) + name + content + BigEndian(Crc(name + content));
}

/// The mean of the samples of one pixel, weighted by their opacity.
TPixel Mean(int size, int column, int row, const PngPicture::TPainter& painter)
{
    TPixel sum;
    for (int sample = 0; sample < SamplesPerSide * SamplesPerSide; ++sample) {
        const int line = sample / SamplesPerSide;
        const double x = (column + (sample % SamplesPerSide + 0.5) / SamplesPerSide) / size;
        const double y = (row + (line + 0.5) / SamplesPerSide) / size;
        const TPixel pixel = painter(x, y);
        sum.Red += pixel.Red * pixel.Alpha;
        sum.Green += pixel.Green * pixel.Alpha;
        sum.Blue += pixel.Blue * pixel.Alpha;
        sum.Alpha += pixel.Alpha;
    }
    if (sum.Alpha == 0)
        return {};
    return {sum.Red / sum.Alpha, sum.Green / sum.Alpha, sum.Blue / sum.Alpha,
            sum.Alpha / (SamplesPerSide * SamplesPerSide)};
}

TPixel Blend(const TPixel& first, const TPixel& second, double share)
{
    const auto mix = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {mix(first.Red, second.Red), mix(first.Green, second.Green), mix(first.Blue, second.Blue), 255};
}

TPixel Ground(TSampleRandom& random)
{
    return {static_cast<int>(random.Between(60, 220)), static_cast<int>(random.Between(60, 220)),
            static_cast<int>(random.Between(60, 220)), 255};
}

constexpr TPixel White{255, 255, 255, 255};
constexpr TPixel Black{0, 0, 0, 255};

bool InCircle(double x, double y, double centerX, double centerY, double radius)
{
    return std::hypot(x - centerX, y - centerY) <= radius;
}

} // namespace

QByteArray PngPicture::Draw(int size, const TPainter& painter)
{
    QByteArray rows;
    rows.reserve(static_cast<qsizetype>(size) * (size * 4 + 1));
    for (int row = 0; row < size; ++row) {
        rows.append('\0'); // no row filter
        for (int column = 0; column < size; ++column) {
            const TPixel pixel = Mean(size, column, row, painter);
            for (const int part : {pixel.Red, pixel.Green, pixel.Blue, pixel.Alpha})
                rows.append(static_cast<char>(part));
        }
    }
    const quint32 side = static_cast<quint32>(size);
    const QByteArray header = BigEndian(side) + BigEndian(side) + QByteArray("\x08\x06\x00\x00\x00", 5);
    // qCompress puts the length before the zlib stream.
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + Chunk("IHDR", header) +
           Chunk("IDAT", qCompress(rows).mid(4)) + Chunk("IEND", {});
}

QByteArray PngPicture::Tag(const TPixel& color)
{
    const TPixel edge = Blend(color, Black, 0.25);
    return Draw(16, [&color, &edge](double x, double y) {
        if (InCircle(x, y, 0.5, 0.5, 0.36))
            return color;
        return InCircle(x, y, 0.5, 0.5, 0.45) ? edge : TPixel();
    });
}

TPixel PngPicture::Lighter(const TPixel& color)
{
    return Blend(color, White, 0.6);
}

QByteArray PngPicture::Goods(quint64 number)
{
    TSampleRandom random(PictureStream, number);
    const TPixel ground = Ground(random);
    const TPixel box = Ground(random);
    return Draw(128, [&ground, &box](double x, double y) {
        const bool inBox = std::abs(x - 0.5) < 0.28 && y > 0.38 && y < 0.82;
        const bool inLid = std::abs(x - 0.5) < 0.32 && y > 0.26 && y <= 0.38;
        const bool inBand = std::abs(x - 0.5) < 0.05 && (inBox || inLid);
        if (inBand)
            return Blend(box, White, 0.7);
        if (inLid)
            return Blend(box, Black, 0.25);
        return inBox ? box : Blend(ground, White, 0.85 - 0.5 * y);
    });
}

QByteArray PngPicture::Person(quint64 number)
{
    TSampleRandom random(PictureStream, number);
    const TPixel ground = Ground(random);
    const TPixel clothes = Blend(Ground(random), Black, 0.3);
    return Draw(128, [&ground, &clothes](double x, double y) {
        if (InCircle(x, y, 0.5, 0.37, 0.17))
            return Blend(clothes, White, 0.6);
        return InCircle(x, y, 0.5, 0.98, 0.4) ? clothes : Blend(ground, White, 0.85 - 0.5 * y);
    });
}
