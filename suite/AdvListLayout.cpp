#include "AdvListLayout.h"

#include <algorithm>

TAdvListLayout::TPiece TAdvListLayout::Put(int width, const TRow& row)
{
    int start = end_ == 0 ? 0 : end_ + row.Spacing;
    if (row.Wraps && end_ > 0 && start + width > row.LineWidth) {
        ++lines_;
        start = 0;
    }
    end_ = start + width;
    width_ = std::max(width_, end_);
    return {lines_ - 1, start, width};
}

void TAdvListLayout::PutBox(const TRow& row)
{
    if (row.BoxWidth == 0) {
        const int middle = end_ == 0 ? 0 : end_ + row.Spacing / 2;
        box_ = QRect(middle - CaretRoom / 2, (lines_ - 1) * height_, CaretRoom, height_);
        return;
    }
    const TPiece box = Put(row.BoxWidth, row);
    if (row.BoxFills)
        end_ = std::max(end_, row.LineWidth);
    width_ = std::max(width_, end_);
    box_ = QRect(box.Start, box.Line * height_, end_ - box.Start, height_);
}

void TAdvListLayout::Arrange(const TRow& row)
{
    const int count = static_cast<int>(row.Widths.size());
    bubbles_.clear();
    bubbles_.reserve(count);
    lines_ = 1;
    width_ = 0;
    end_ = 0;
    height_ = row.LineHeight;
    for (int index = 0; index <= count; ++index) {
        if (index == row.Place)
            PutBox(row);
        if (index < count)
            bubbles_ << Put(row.Widths.at(index), row);
    }
}

QRect TAdvListLayout::Bubble(int index) const
{
    const TPiece& piece = bubbles_.at(index);
    return {piece.Start, piece.Line * height_, piece.Width, height_};
}

std::pair<int, int> TAdvListLayout::Within(const QRect& rect) const
{
    const auto before = [&](const TPiece& piece, const QRect& limit) {
        const int bottom = (piece.Line + 1) * height_ - 1;
        return bottom < limit.top() || (lines_ == 1 && piece.Start + piece.Width <= limit.left());
    };
    const auto behind = [&](const QRect& limit, const TPiece& piece) {
        return piece.Line * height_ > limit.bottom() || (lines_ == 1 && piece.Start > limit.right());
    };
    const auto first = std::lower_bound(bubbles_.cbegin(), bubbles_.cend(), rect, before);
    const auto last = std::upper_bound(first, bubbles_.cend(), rect, behind);
    return {static_cast<int>(first - bubbles_.cbegin()), static_cast<int>(last - bubbles_.cbegin())};
}

int TAdvListLayout::BubbleAt(const QPoint& point) const
{
    const auto [first, last] = Within({point, QSize(1, 1)});
    for (int index = first; index < last; ++index) {
        if (Bubble(index).contains(point))
            return index;
    }
    return -1;
}

int TAdvListLayout::PlaceAt(const QPoint& point) const
{
    const int line = height_ > 0 ? std::clamp(point.y() / height_, 0, lines_ - 1) : 0;
    const auto before = [&](const TPiece& piece, const QPoint& target) {
        return piece.Line < line || (piece.Line == line && piece.Start + piece.Width / 2 < target.x());
    };
    const auto found = std::lower_bound(bubbles_.cbegin(), bubbles_.cend(), point, before);
    return static_cast<int>(found - bubbles_.cbegin());
}
