#include "LookStyle.h"

#include "Look.h"

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

} // namespace

TLookStyle::TLookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void TLookStyle::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                              bool enabled, const QString& text, QPalette::ColorRole textRole) const
{
    QProxyStyle::drawItemText(painter, rect, ParagraphFlags(*painter, flags), palette, enabled, text,
                              textRole);
}

void TLookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) {
        Look::PaintRing(*painter, option->rect, Look::RingColor(option->palette));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit && HasFocus(*option))
        Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
}

void TLookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isScrollArea = qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
    if (element == CE_ShapedFrame && isScrollArea && HasFocus(*option))
        Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
}

void TLookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool hasOwnRing = control == CC_ComboBox || control == CC_SpinBox;
    if (hasOwnRing && HasFocus(*option))
        Look::PaintRing(*painter, option->rect, Look::Color(Look::TRole::Accent));
}

QRect TLookStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    switch (element) {
    case SE_PushButtonFocusRect:
        return option->rect;
    case SE_CheckBoxFocusRect:
        return option->rect &
               (subElementRect(SE_CheckBoxIndicator, option, widget) |
                QProxyStyle::subElementRect(element, option, widget))
                   .adjusted(-Look::RingWidth, -Look::RingWidth, Look::RingWidth, Look::RingWidth);
    case SE_RadioButtonFocusRect:
        return option->rect &
               (subElementRect(SE_RadioButtonIndicator, option, widget) |
                QProxyStyle::subElementRect(element, option, widget))
                   .adjusted(-Look::RingWidth, -Look::RingWidth, Look::RingWidth, Look::RingWidth);
    default:
        return QProxyStyle::subElementRect(element, option, widget);
    }
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

int TLookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_UnderlineShortcut:
    case SH_ItemView_ShowDecorationSelected:
        return 1;
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
