#include "Ink.h"

#include "Look.h"

#include <algorithm>
#include <QHash>

namespace {

bool Near(QRgb first, QRgb second, int tolerance)
{
    return std::abs(qRed(first) - qRed(second)) <= tolerance &&
           std::abs(qGreen(first) - qGreen(second)) <= tolerance &&
           std::abs(qBlue(first) - qBlue(second)) <= tolerance;
}

bool ColumnHasInk(const QImage& image, int x, QRgb ground)
{
    constexpr int Antialiasing = 60;
    for (int y = 0; y < image.height(); ++y) {
        if (!Near(image.pixel(x, y), ground, Antialiasing))
            return true;
    }
    return false;
}

} // namespace

QVector<Ink::TRun> Ink::Runs(const QImage& image, const QColor& ground)
{
    QVector<TRun> runs;
    bool inside = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool ink = ColumnHasInk(image, x, ground.rgb());
        if (ink && !inside)
            runs.append({x, x});
        else if (ink)
            runs.last().Last = x;
        inside = ink;
    }
    return runs;
}

QColor Ink::Ground(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return QColor::fromRgb(most.key());
}

QColor Ink::Foreground(const QImage& image)
{
    const QColor ground = Ground(image);
    QColor farthest = ground;
    double contrast = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = QColor::fromRgb(image.pixel(x, y));
            if (const double here = Look::Contrast(color, ground); here > contrast) {
                contrast = here;
                farthest = color;
            }
        }
    }
    return farthest;
}

bool Ink::Has(const QImage& image, const QColor& color, int tolerance)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (Near(image.pixel(x, y), color.rgb(), tolerance))
                return true;
        }
    }
    return false;
}
