#include "AdvListEditorPrivate.h"
#include "Look.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QStyleOptionFrame>

namespace {

constexpr int WidestBubble = 60 * Look::Unit;
constexpr int FrameWidth = Look::RingWidth;
constexpr int EditorLineHeight = Look::ControlHeight - 2 * FrameWidth;
constexpr int BubbleInset = 1;
constexpr quint32 White = 0xffffff;

/// Up to the frame, where bubbles show on their way out.
QRect WithMargins(const QRect& inner)
{
    return inner.adjusted(-FrameWidth, 0, FrameWidth, 0);
}

} // namespace

void TAdvListEditorPer::TPrivate::Invalidate()
{
    if (arranged && editor->isVisible())
        QCoreApplication::postEvent(editor, new QEvent(QEvent::LayoutRequest));
    arranged = false;
    editor->update();
}

QRect TAdvListEditorPer::TPrivate::Inner() const
{
    return editor->rect().adjusted(2 * FrameWidth, FrameWidth, -2 * FrameWidth, -FrameWidth);
}

int TAdvListEditorPer::TPrivate::LineHeight() const
{
    return maxLines > 1 ? EditorLineHeight : qMin(EditorLineHeight, qMax(1, Inner().height()));
}

int TAdvListEditorPer::TPrivate::HeightOf(int count) const
{
    return qBound(1, count, maxLines) * EditorLineHeight + 2 * FrameWidth;
}

void TAdvListEditorPer::TPrivate::Measure()
{
    const int widest = qBound(1, Inner().width(), WidestBubble);
    if (widest != measuredFor)
        widths.fill(-1);
    measuredFor = widest;
    const QFontMetrics metrics = editor->fontMetrics();
    const bool hasMark = closeMarks && !readOnly;
    for (int index = 0; index < widths.size(); ++index) {
        const TAdvListValueItem& item = values[index];
        const bool hasPicture = item.ImageIndex >= 0 && item.ImageIndex < images.size();
        if (widths.at(index) < 0)
            widths[index] = TAdvListBubble::WidthFor(item.DisplayText, metrics, hasPicture, hasMark, widest);
    }
}

TAdvListLayout::TRow TAdvListEditorPer::TPrivate::Row(int lineWidth) const
{
    constexpr int LeastLastBox = 10 * Look::Unit;
    const bool isLast = caret == values.Count();
    const bool isEmpty = line->text().isEmpty() && !line->IsComposing();
    TAdvListLayout::TRow row;
    row.Widths = widths;
    row.Place = caret;
    row.BoxWidth = isEmpty ? 0 : qMin(line->NeededWidth(), lineWidth);
    if (isLast)
        row.BoxWidth = qMax(row.BoxWidth, qMin(LeastLastBox, lineWidth));
    row.BoxFills = isLast;
    row.LineWidth = lineWidth;
    row.LineHeight = LineHeight();
    row.Spacing = Look::Unit;
    row.Wraps = maxLines > 1;
    return row;
}

void TAdvListEditorPer::TPrivate::Arrange()
{
    if (arranged)
        return;
    arranged = true;
    Measure();
    layout.Arrange(Row(Inner().width()));
    ScrollToBox();
    if (const int count = maxLines > 1 ? layout.LineCount() : 1; count != lines) {
        lines = count;
        editor->updateGeometry();
    }
}

void TAdvListEditorPer::TPrivate::ScrollToBox()
{
    const QRect box = layout.Box();
    const QSize room = Inner().size();
    // The bubbles on both sides of the caret are to be seen too, as far as there is room for them.
    int left = caret > 0 ? layout.Bubble(caret - 1).left() : 0;
    int right = (caret < values.Count() ? layout.Bubble(caret).right() : box.right()) + 1;
    if (maxLines > 1 || right - left > room.width()) {
        left = box.left();
        right = box.left() + qMin(box.width(), room.width());
    }
    scroll.setX(qMin(qMax(scroll.x(), right - room.width()), left));
    scroll.setY(qMin(qMax(scroll.y(), box.bottom() + 1 - room.height()), box.top()));
    ScrollBy({});
}

void TAdvListEditorPer::TPrivate::ScrollBy(const QPoint& distance)
{
    const QSize room = Inner().size();
    const QSize content = layout.Size();
    scroll = {qBound(0, scroll.x() + distance.x(), qMax(0, content.width() - room.width())),
              qBound(0, scroll.y() + distance.y(), qMax(0, content.height() - room.height()))};
    line->setGeometry(OnScreen(layout.Box()));
    editor->update();
}

QRect TAdvListEditorPer::TPrivate::OnScreen(const QRect& reading) const
{
    const QRect inner = Inner();
    const int above = maxLines > 1 ? 0 : (inner.height() - LineHeight()) / 2;
    const QRect shown = reading.translated(inner.topLeft() - scroll + QPoint(0, above));
    return QStyle::visualRect(editor->layoutDirection(), inner, shown);
}

QPoint TAdvListEditorPer::TPrivate::Reading(const QPoint& point) const
{
    const QRect inner = Inner();
    const int above = maxLines > 1 ? 0 : (inner.height() - LineHeight()) / 2;
    return QStyle::visualPos(editor->layoutDirection(), inner, point) - inner.topLeft() + scroll -
           QPoint(0, above);
}

TAdvListColors TAdvListEditorPer::TPrivate::Colors() const
{
    if (color == White || !editor->isEnabled())
        return TAdvListColors::OfPalette(editor->palette());
    return TAdvListColors::OnGround(Look::FromColorValue(color));
}

void TAdvListEditorPer::TPrivate::ShowColors() const
{
    const TAdvListColors colors = Colors();
    QPalette palette = editor->palette();
    palette.setBrush(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, colors.Text);
    palette.setColor(QPalette::PlaceholderText, colors.Placeholder);
    line->setPalette(palette);
    editor->update();
}

void TAdvListEditorPer::TPrivate::ShowPlaceholder() const
{
    line->setPlaceholderText(values.IsEmpty() ? placeholder : QString());
}

QPixmap TAdvListEditorPer::TPrivate::Picture(int imageIndex)
{
    if (imageIndex < 0 || imageIndex >= images.size() || images.at(imageIndex).isNull())
        return {};
    const auto found = pictures.constFind(imageIndex);
    if (found != pictures.constEnd())
        return *found;
    const qreal ratio = editor->devicePixelRatioF();
    const QImage& image = images.at(imageIndex);
    // As large as its pixels are at scale 1, whatever the scale, and no larger than there is room for.
    const QSize most(TAdvListBubble::PictureSide, TAdvListBubble::PictureSide);
    const bool tooLarge = image.width() > most.width() || image.height() > most.height();
    const QSize shown = tooLarge ? image.size().scaled(most, Qt::KeepAspectRatio) : image.size();
    QPixmap picture =
        QPixmap::fromImage(image.scaled(shown * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    picture.setDevicePixelRatio(ratio);
    pictures.insert(imageIndex, picture);
    return picture;
}

TAdvListBubble TAdvListEditorPer::TPrivate::Bubble(int index)
{
    const TAdvListValueItem& item = values[index];
    TAdvListBubble bubble;
    bubble.Rect = OnScreen(layout.Bubble(index)).adjusted(0, BubbleInset, 0, -BubbleInset);
    bubble.Text = item.DisplayText;
    bubble.Picture = Picture(item.ImageIndex);
    bubble.FromRight = editor->layoutDirection() == Qt::RightToLeft;
    bubble.HasMark = closeMarks && !readOnly;
    bubble.IsSelected = index >= SelectionStart() && index < SelectionEnd();
    bubble.IsMarkHot = index == hotMark;
    bubble.IsEnabled = editor->isEnabled();
    return bubble;
}

int TAdvListEditorPer::TPrivate::BubbleAt(const QPoint& point, bool* onMark)
{
    Arrange();
    const int index = Inner().contains(point) ? layout.BubbleAt(Reading(point)) : -1;
    if (onMark)
        *onMark = index >= 0 && Bubble(index).MarkRect().contains(point);
    return index;
}

void TAdvListEditorPer::TPrivate::Paint(QPainter& painter)
{
    const TAdvListColors colors = Colors();
    QStyleOptionFrame frame;
    frame.initFrom(editor);
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    frame.state.setFlag(QStyle::State_HasFocus, line->hasFocus());
    frame.palette.setColor(QPalette::Base, colors.Ground);
    editor->style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, editor);

    painter.save();
    const QRect inner = Inner();
    painter.setClipRect(WithMargins(inner));
    const auto [first, last] = layout.Within({scroll, inner.size()});
    for (int index = first; index < last; ++index)
        Bubble(index).Paint(painter, editor->palette(), colors);
    PaintCaret(painter, colors);
    PaintFades(painter, colors);
    if (press.DropPlace >= 0) {
        const int count = values.Count();
        const QRect next = layout.Bubble(qMin(press.DropPlace, count - 1));
        const int x = press.DropPlace < count ? next.left() - Look::Unit : next.right() + 1;
        AdvListPainter::PaintDropLine(painter, OnScreen({x, next.top(), Look::Unit, next.height()}),
                                      Look::Color(Look::TRole::Accent));
    }
    painter.restore();
}

// The toolkit's line shows none while it is read-only.
void TAdvListEditorPer::TPrivate::PaintCaret(QPainter& painter, const TAdvListColors& colors) const
{
    if (!readOnly || !line->hasFocus() || HasSelection() || values.IsEmpty())
        return;
    const QRect box = layout.Box();
    const int x = caret < values.Count() ? box.center().x() : box.left();
    painter.fillRect(OnScreen({x, box.top() + Look::Unit, 1, box.height() - 2 * Look::Unit}), colors.Text);
}

void TAdvListEditorPer::TPrivate::PaintFades(QPainter& painter, const TAdvListColors& colors) const
{
    if (maxLines > 1)
        return;
    const QRect inner = Inner();
    const bool fromRight = editor->layoutDirection() == Qt::RightToLeft;
    if (scroll.x() > 0)
        AdvListPainter::PaintFade(painter, WithMargins(inner), !fromRight, colors.Ground);
    if (layout.Size().width() - scroll.x() > inner.width())
        AdvListPainter::PaintFade(painter, WithMargins(inner), fromRight, colors.Ground);
}

QString TAdvListEditorPer::TPrivate::ToolTipAt(const QPoint& point)
{
    bool onMark = false;
    const int index = BubbleAt(point, &onMark);
    if (index < 0)
        return {};
    if (onMark)
        return QStringLiteral("حذف");
    const TAdvListBubble bubble = Bubble(index);
    return bubble.IsElided(editor->fontMetrics()) ? bubble.Text : QString();
}
