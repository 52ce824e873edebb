#include "LookStyle.h"

#include "Look.h"
#include "MnemonicText.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace {

/// The toolkit lays a label out by its first letter; here the widget's direction decides, so that
/// "F10  جستجو :" keeps its colon at the left end.
int ParagraphFlags(const QPainter& painter, int flags)
{
    // The painter knows the application's direction only, its widget may have another.
    const auto* widget = dynamic_cast<const QWidget*>(painter.device());
    if ((widget != nullptr ? widget->layoutDirection() : painter.layoutDirection()) != Qt::RightToLeft)
        return flags;
    flags = (flags & ~Qt::TextForceLeftToRight) | Qt::TextForceRightToLeft;
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const int horizontal = Qt::AlignHorizontal_Mask | Qt::AlignAbsolute;
        const Qt::Alignment alignment = QStyle::visualAlignment(Qt::RightToLeft, label->alignment());
        flags = (flags & ~horizontal) | (static_cast<int>(alignment) & horizontal);
    }
    return flags;
}

bool HasFocus(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Enabled);
}

/// A line around editors and indicators that is seen on every ground of both schemes.
QColor LineColor(const QStyleOption& option)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor faint = Look::Color(Look::TRole::DisabledText);
    const QColor strong = Look::Color(Look::TRole::SecondaryText);
    if (!enabled)
        return faint;
    return {(faint.red() + strong.red()) / 2, (faint.green() + strong.green()) / 2,
            (faint.blue() + strong.blue()) / 2};
}

QColor MarkColor(const QStyleOption& option)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    return enabled ? Look::Color(Look::TRole::SelectionText) : option.palette.color(QPalette::Base);
}

/// The ground of a check mark: filled where there is one.
void PrepareIndicator(QPainter& painter, const QStyleOption& option, bool marked)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor filled = Look::Color(enabled ? Look::TRole::Selection : Look::TRole::DisabledText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(marked && enabled ? Look::RingColor(option.palette) : LineColor(option));
    painter.setBrush(marked ? QBrush(filled) : option.palette.brush(QPalette::Base));
}

QRectF Square(const QRect& rect)
{
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return QRectF(square).adjusted(0.5, 0.5, -0.5, -0.5);
}

void PaintCheckIndicator(QPainter& painter, const QStyleOption& option)
{
    constexpr qreal Radius = 2.5;
    constexpr qreal Stroke = 1.8;
    const bool on = option.state.testFlag(QStyle::State_On);
    const bool partial = option.state.testFlag(QStyle::State_NoChange);
    const QRectF box = Square(option.rect);
    painter.save();
    PrepareIndicator(painter, option, on || partial);
    painter.drawRoundedRect(box, Radius, Radius);
    painter.setPen(QPen(MarkColor(option), Stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (on) {
        const QPointF tick[] = {at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.30)};
        painter.drawPolyline(tick, 3);
    } else if (partial) {
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
    painter.restore();
}

void PaintRadioIndicator(QPainter& painter, const QStyleOption& option)
{
    const bool on = option.state.testFlag(QStyle::State_On);
    const QRectF circle = Square(option.rect);
    painter.save();
    PrepareIndicator(painter, option, on);
    painter.drawEllipse(circle);
    if (on) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(MarkColor(option));
        painter.drawEllipse(circle.center(), circle.width() / 5, circle.height() / 5);
    }
    painter.restore();
}

/// What can be read and not changed is no white box that waits for a text; a ground of its own stays.
QStyleOptionFrame WithReadOnlyGround(const QStyleOptionFrame& edit)
{
    QStyleOptionFrame shown(edit);
    const QPalette::ColorGroup group = edit.palette.currentColorGroup();
    if (edit.palette.color(group, QPalette::Base) == Look::Color(Look::TRole::Base))
        shown.palette.setColor(group, QPalette::Base, Look::Color(Look::TRole::Window));
    return shown;
}

void PaintEditFrame(QPainter& painter, const QStyleOption& option)
{
    constexpr qreal Radius = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(LineColor(option));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    painter.restore();
}

/// The toolkit gives a gradient of more rows than this to other threads and waits for them, for many
/// milliseconds where the processor is busy with a statement. It paints each strip by itself.
constexpr int RowsOfStrip = 64;

template <typename TPaint> void PaintInStrips(QPainter& painter, const QRect& area, const TPaint& paint)
{
    for (int top = area.top(); top <= area.bottom(); top += RowsOfStrip) {
        painter.save();
        painter.setClipRect(QRect(area.left(), top, area.width(), RowsOfStrip), Qt::IntersectClip);
        paint();
        painter.restore();
    }
}

} // namespace

TLookStyle::TLookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void TLookStyle::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                              bool enabled, const QString& text, QPalette::ColorRole textRole) const
{
    const int paragraph = ParagraphFlags(*painter, flags);
    const bool isOneLine = (flags & Qt::TextWordWrap) == 0 && !text.contains(u'\n');
    const bool showsMnemonic = (flags & Qt::TextShowMnemonic) != 0 && isOneLine && text.contains(u'&');
    const TMnemonicText mnemonic = showsMnemonic ? TMnemonicText::Parse(text) : TMnemonicText();
    if (!mnemonic.BreaksJoining()) {
        QProxyStyle::drawItemText(painter, rect, paragraph, palette, enabled, text, textRole);
        return;
    }
    const int unmarked = paragraph & ~Qt::TextShowMnemonic;
    QProxyStyle::drawItemText(painter, rect, unmarked, palette, enabled, mnemonic.Text, textRole);
    const QPen pen = painter->pen();
    if (textRole != QPalette::NoRole)
        painter->setPen(palette.color(textRole));
    mnemonic.PaintLine(*painter, rect, unmarked);
    painter->setPen(pen);
}

QRect TLookStyle::itemTextRect(const QFontMetrics& metrics, const QRect& rect, int flags, bool enabled,
                               const QString& text) const
{
    const bool showsMnemonic = (flags & Qt::TextShowMnemonic) != 0 && text.contains(u'&');
    if (!showsMnemonic)
        return QProxyStyle::itemTextRect(metrics, rect, flags, enabled, text);
    return QProxyStyle::itemTextRect(metrics, rect, flags & ~Qt::TextShowMnemonic, enabled,
                                     TMnemonicText::Parse(text).Text);
}

void TLookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    const auto* edit = qstyleoption_cast<const QStyleOptionFrame*>(option);
    switch (element) {
    case PE_PanelLineEdit:
        if (edit != nullptr && edit->state.testFlag(State_ReadOnly)) {
            const QStyleOptionFrame shown = WithReadOnlyGround(*edit);
            QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
        break;
    case PE_FrameFocusRect:
        Look::PaintRing(*painter, option->rect, Look::RingColor(option->palette));
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        PaintCheckIndicator(*painter, *option);
        break;
    case PE_IndicatorRadioButton:
        PaintRadioIndicator(*painter, *option);
        break;
    case PE_FrameLineEdit:
        if (HasFocus(*option))
            Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
        else
            PaintEditFrame(*painter, *option);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void TLookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button != nullptr && (element == CE_CheckBox || element == CE_RadioButton)) {
        DrawMarkedButton(element, *button, painter, widget);
        return;
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (item != nullptr && element == CE_MenuItem && item->menuItemType != QStyleOptionMenuItem::Separator) {
        DrawMenuItem(*item, painter, widget);
        return;
    }
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (header != nullptr && element == CE_HeaderLabel) {
        // Titles keep the distance from the edge that the cells under them have.
        QStyleOptionHeader title(*header);
        title.rect.adjust(Look::Unit, 0, -Look::Unit, 0);
        QProxyStyle::drawControl(element, &title, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isScrollArea = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (element == CE_ShapedFrame && isScrollArea && HasFocus(*option))
        Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
}

/// The base style paints the captions of menus past drawItemText, and so breaks words at their mnemonic.
void TLookStyle::DrawMenuItem(const QStyleOptionMenuItem& item, QPainter* painter,
                              const QWidget* widget) const
{
    constexpr int LeastMarkColumn = 31;
    constexpr int ArrowColumn = 16;
    const qsizetype tab = item.text.indexOf(u'\t');
    QStyleOptionMenuItem rest(item);
    rest.text = tab < 0 ? QString() : item.text.mid(tab);
    QProxyStyle::drawControl(CE_MenuItem, &rest, painter, widget);

    const int markColumn = qMax(LeastMarkColumn, item.maxIconWidth + Look::Margin);
    const QRect unturned = item.rect.adjusted(markColumn, 0, -ArrowColumn - item.reservedShortcutWidth, 0);
    const bool chosen = item.state.testFlag(State_Selected) && item.state.testFlag(State_Enabled);
    painter->save();
    QFont font = item.font;
    font.setBold(font.bold() || item.menuItemType == QStyleOptionMenuItem::DefaultItem);
    painter->setFont(font);
    const int flags = static_cast<int>(visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter)) |
                      Qt::TextShowMnemonic | Qt::TextSingleLine | Qt::TextDontClip;
    drawItemText(painter, visualRect(item.direction, item.rect, unturned), flags, item.palette,
                 item.state.testFlag(State_Enabled), tab < 0 ? item.text : item.text.left(tab),
                 chosen ? QPalette::HighlightedText : QPalette::Text);
    painter->restore();
}

/// The base style rings the caption only; here the ring goes around the indicator too.
void TLookStyle::DrawMarkedButton(ControlElement element, QStyleOptionButton option, QPainter* painter,
                                  const QWidget* widget) const
{
    constexpr int Gap = Look::RingWidth + 1;
    const bool hasFocus = HasFocus(option);
    option.state.setFlag(State_HasFocus, false);
    QProxyStyle::drawControl(element, &option, painter, widget);
    if (!hasFocus)
        return;
    const bool isCheck = element == CE_CheckBox;
    const QRect indicator =
        subElementRect(isCheck ? SE_CheckBoxIndicator : SE_RadioButtonIndicator, &option, widget);
    const QRect caption =
        subElementRect(isCheck ? SE_CheckBoxFocusRect : SE_RadioButtonFocusRect, &option, widget);
    const QRect ring = (indicator | caption).adjusted(-Gap, -Gap, Gap, Gap) & option.rect;
    Look::PaintRing(*painter, ring, Look::RingColor(option.palette));
}

void TLookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    const auto paint = [&] { QProxyStyle::drawComplexControl(control, option, painter, widget); };
    if (control == CC_ScrollBar)
        PaintInStrips(*painter, option->rect, paint);
    else
        paint();
    const bool hasOwnRing = control == CC_ComboBox || control == CC_SpinBox;
    if (control == CC_SpinBox)
        PaintEditFrame(*painter, *option);
    if (hasOwnRing && HasFocus(*option))
        Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
}

QRect TLookStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_PushButtonFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize TLookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
    case CT_ComboBox:
    case CT_LineEdit:
    case CT_SpinBox:
        result.setHeight(qMax(result.height(), Look::ControlHeight));
        break;
    default:
        break;
    }
    return result;
}

int TLookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    // Lists need room for the ring around what scrolls.
    if (metric == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)
        return Look::RingWidth;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int TLookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_UnderlineShortcut:
    case SH_ItemView_ShowDecorationSelected:
    case SH_Menu_Scrollable: // a menu of a thousand entries scrolls and does not spread over columns
        return 1;
    case SH_Table_GridLineColor:
        return static_cast<int>(Look::Color(Look::TRole::Grid).rgb());
    case SH_ComboBox_Popup: // a list under the box, not a menu over it
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    // Message texts that can be selected are laid out by their first letter.
    case SH_MessageBox_TextInteractionFlags:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPalette TLookStyle::standardPalette() const
{
    return Look::Palette(Look::IsDark());
}
