#include "SmartButton_TRV.h"

#include "ButtonGlyph.h"
#include "ControlDispatch.h"
#include "Look.h"
#include "MnemonicText.h"

#include <algorithm>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QShortcut>
#include <QStyleOptionButton>

namespace {

constexpr int ArrowWidth = 20;
constexpr int IconGap = 6;
constexpr int SidePadding = 12;

constexpr int ShiftCode = 8192;
constexpr int CtrlCode = 16384;
constexpr int AltCode = 32768;
constexpr int KeyMask = 0xff;

struct TKeyCode
{
    int Virtual;
    Qt::Key Key;
};

int KeyOfVirtual(int code)
{
    constexpr TKeyCode Named[] = {
        {VirtualKey::Back, Qt::Key_Backspace},
        {VirtualKey::Tab, Qt::Key_Tab},
        {VirtualKey::Enter, Qt::Key_Return},
        {VirtualKey::Escape, Qt::Key_Escape},
        {VirtualKey::Space, Qt::Key_Space},
        {VirtualKey::PageUp, Qt::Key_PageUp},
        {VirtualKey::PageDown, Qt::Key_PageDown},
        {VirtualKey::End, Qt::Key_End},
        {VirtualKey::Home, Qt::Key_Home},
        {VirtualKey::Left, Qt::Key_Left},
        {VirtualKey::Up, Qt::Key_Up},
        {VirtualKey::Right, Qt::Key_Right},
        {VirtualKey::Down, Qt::Key_Down},
        {VirtualKey::Insert, Qt::Key_Insert},
        {VirtualKey::Delete, Qt::Key_Delete},
    };
    constexpr int F24 = VirtualKey::F1 + 23;
    constexpr int KeyZ = 90;
    for (const TKeyCode& named : Named) {
        if (named.Virtual == code)
            return named.Key;
    }
    if (code >= VirtualKey::F1 && code <= F24)
        return Qt::Key_F1 + (code - VirtualKey::F1);
    const bool isLetterOrDigit = (code >= VirtualKey::Digit0 && code <= VirtualKey::Digit9) ||
                                 (code >= VirtualKey::KeyA && code <= KeyZ);
    return isLetterOrDigit ? code : 0; // these codes are the characters themselves
}

/// Empty where the code names no key.
QKeySequence SequenceOf(int code)
{
    const int key = KeyOfVirtual(code & KeyMask);
    if (key == 0)
        return {};
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (code & ShiftCode) != 0);
    modifiers.setFlag(Qt::ControlModifier, (code & CtrlCode) != 0);
    modifiers.setFlag(Qt::AltModifier, (code & AltCode) != 0);
    return {QKeyCombination(modifiers, static_cast<Qt::Key>(key))};
}

struct TUsual
{
    QString Caption;
    ButtonGlyph::TShape Shape;
};

TUsual UsualOf(TSmartButton_TRV::TButtonType type)
{
    switch (type) {
    case TSmartButton_TRV::btNone:
        break;
    case TSmartButton_TRV::btOk:
        return {QStringLiteral("تأیید"), ButtonGlyph::TShape::Tick};
    case TSmartButton_TRV::btCancel:
        return {QStringLiteral("انصراف"), ButtonGlyph::TShape::Cross};
    case TSmartButton_TRV::btNew:
        return {QStringLiteral("جدید"), ButtonGlyph::TShape::Plus};
    case TSmartButton_TRV::btEdit:
        return {QStringLiteral("ویرایش"), ButtonGlyph::TShape::Pencil};
    case TSmartButton_TRV::btDelete:
        return {QStringLiteral("حذف"), ButtonGlyph::TShape::Bin};
    }
    return {};
}

} // namespace

struct TSmartButton_TRV::TPrivate
{
    TButtonKind kind = bkStandard;
    TButtonType type = btNone;
    bool autoWidth = false;
    bool down = false;
    int margin = -1;
    int shortCutCode = 0;
    std::unique_ptr<QShortcut> shortCut;
    QPointer<QMenu> menu;
};

TSmartButton_TRV::TSmartButton_TRV(QWidget* parent) : QPushButton(parent), d(std::make_unique<TPrivate>())
{
    setAutoDefault(false); // Enter in an edit of a dialog belongs to the edit
    connect(this, &QPushButton::clicked, this, [this] {
        // A copy, because the handler may replace itself or destroy the button.
        if (const TNotifyEvent running = OnClick)
            running(this);
    });
}

TSmartButton_TRV::~TSmartButton_TRV() = default;

TSmartButton_TRV::TButtonKind TSmartButton_TRV::ButtonKind() const
{
    return d->kind;
}

void TSmartButton_TRV::SetButtonKind(TButtonKind kind)
{
    d->kind = kind;
    AdaptWidth();
}

TSmartButton_TRV::TButtonType TSmartButton_TRV::ButtonType() const
{
    return d->type;
}

void TSmartButton_TRV::SetButtonType(TButtonType type)
{
    const bool hasOwnCaption = !text().isEmpty() && text() != UsualOf(d->type).Caption;
    d->type = type;
    if (!hasOwnCaption)
        setText(UsualOf(type).Caption);
    AdaptWidth();
}

bool TSmartButton_TRV::AutoWidth() const
{
    return d->autoWidth;
}

void TSmartButton_TRV::SetAutoWidth(bool on)
{
    d->autoWidth = on;
    setSizePolicy(on ? QSizePolicy::Fixed : QSizePolicy::Minimum, sizePolicy().verticalPolicy());
    AdaptWidth();
}

void TSmartButton_TRV::setText(const QString& text)
{
    QPushButton::setText(text);
    AdaptWidth();
}

bool TSmartButton_TRV::Down() const
{
    return d->down;
}

void TSmartButton_TRV::SetDown(bool down)
{
    d->down = down;
    update();
}

int TSmartButton_TRV::Margin() const
{
    return d->margin;
}

void TSmartButton_TRV::SetMargin(int pixels)
{
    d->margin = pixels;
    AdaptWidth();
}

int TSmartButton_TRV::ShortCut() const
{
    return d->shortCutCode;
}

void TSmartButton_TRV::SetShortCut(int code)
{
    d->shortCutCode = code;
    const QKeySequence sequence = SequenceOf(code);
    d->shortCut.reset();
    if (sequence.isEmpty())
        return;
    d->shortCut = std::make_unique<QShortcut>(sequence, this);
    d->shortCut->setAutoRepeat(false);
    connect(d->shortCut.get(), &QShortcut::activated, this, &TSmartButton_TRV::Click);
}

QMenu* TSmartButton_TRV::DropDownMenu() const
{
    return d->menu;
}

void TSmartButton_TRV::SetDropDownMenu(QMenu* menu)
{
    d->menu = menu;
}

void TSmartButton_TRV::Click()
{
    click();
}

QSize TSmartButton_TRV::sizeHint() const
{
    ensurePolished();
    const QIcon shown = ShownIcon();
    const int iconWidth = shown.isNull() ? 0 : iconSize().width();
    const int textWidth = fontMetrics().size(0, TMnemonicText::Parse(text()).Text).width();
    const int gap = iconWidth > 0 && !text().isEmpty() ? IconGap : 0;
    const int padding = d->margin < 0 ? 2 * SidePadding : d->margin + qMax(d->margin, SidePadding / 2);
    const int arrow = d->kind == bkDropDown ? ArrowWidth : 0;
    const int height = std::max(
        {Look::ControlHeight, fontMetrics().height() + Look::Margin, iconSize().height() + Look::Margin});
    return {iconWidth + gap + textWidth + padding + arrow, height};
}

QSize TSmartButton_TRV::minimumSizeHint() const
{
    return sizeHint();
}

bool TSmartButton_TRV::event(QEvent* event)
{
    if (event->type() == QEvent::Polish)
        AdaptWidth();
    return ControlDispatch::Event(this, *this, event) || QPushButton::event(event);
}

void TSmartButton_TRV::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        AdaptWidth();
}

void TSmartButton_TRV::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        const bool isEnter = own->key() == Qt::Key_Return || own->key() == Qt::Key_Enter;
        const bool opensMenu = own->key() == Qt::Key_F4 ||
                               (own->key() == Qt::Key_Down && own->modifiers().testFlag(Qt::AltModifier));
        if (opensMenu && d->kind == bkDropDown)
            OpenMenu();
        else if (isEnter && !own->isAutoRepeat())
            click();
        else
            QPushButton::keyPressEvent(own);
    });
}

void TSmartButton_TRV::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QPushButton::keyReleaseEvent(own); });
}

void TSmartButton_TRV::focusInEvent(QFocusEvent* event)
{
    QPushButton::focusInEvent(event);
    ControlDispatch::FocusIn(this, *this, event);
}

void TSmartButton_TRV::focusOutEvent(QFocusEvent* event)
{
    QPushButton::focusOutEvent(event);
    ControlDispatch::FocusOut(this, *this, event);
}

void TSmartButton_TRV::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && ArrowRect().contains(event->position().toPoint()))
        OpenMenu();
    else
        QPushButton::mousePressEvent(event);
}

void TSmartButton_TRV::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.features.setFlag(QStyleOptionButton::AutoDefaultButton, false);
    if (d->down) {
        option.state.setFlag(QStyle::State_On);
        option.state.setFlag(QStyle::State_Raised, false);
    }
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    PaintLabel(painter, option);
    if (d->kind == bkDropDown)
        PaintArrow(painter, option);
    if (hasFocus()) {
        QStyleOptionFocusRect ring;
        ring.QStyleOption::operator=(option);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
    }
}

QRect TSmartButton_TRV::ArrowRect() const
{
    const QRect atTheRight(width() - ArrowWidth, 0, ArrowWidth, height());
    return d->kind == bkDropDown ? QStyle::visualRect(layoutDirection(), rect(), atTheRight) : QRect();
}

void TSmartButton_TRV::PaintLabel(QPainter& painter, const QStyleOptionButton& option) const
{
    const QIcon shown = ShownIcon();
    const int iconWidth = shown.isNull() ? 0 : iconSize().width();
    const int gap = iconWidth > 0 && !text().isEmpty() ? IconGap : 0;
    const int room = width() - (d->kind == bkDropDown ? ArrowWidth : 0);
    const int wanted = fontMetrics().size(0, TMnemonicText::Parse(text()).Text).width();
    const int textWidth = qMin(wanted, room - iconWidth - gap - 2 * Look::RingWidth);
    const int start = d->margin >= 0 ? d->margin : (room - iconWidth - gap - textWidth) / 2;
    // Measured from the leading edge, mirrored when painted.
    const auto placed = [this](int x, int w) {
        return QStyle::visualRect(layoutDirection(), rect(), QRect(x, 0, w, height()));
    };
    if (iconWidth > 0)
        shown.paint(&painter, placed(start, iconWidth), Qt::AlignCenter,
                    isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QString caption =
        textWidth < wanted ? fontMetrics().elidedText(text(), Qt::ElideRight, textWidth, Qt::TextShowMnemonic)
                           : text();
    style()->drawItemText(&painter, placed(start + iconWidth + gap, textWidth),
                          Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextForceRightToLeft, option.palette,
                          isEnabled(), caption, QPalette::ButtonText);
}

void TSmartButton_TRV::PaintArrow(QPainter& painter, const QStyleOptionButton& option) const
{
    constexpr int Inset = 5;
    const QRect part = ArrowRect();
    const int divider = isRightToLeft() ? part.right() : part.left();
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawLine(divider, Inset, divider, height() - 1 - Inset);
    QStyleOption arrow(option);
    arrow.rect = part.adjusted(Inset, Inset, -Inset, -Inset);
    // The style takes the colour of plain text, which is white on the band, where the button is not.
    arrow.palette.setColor(QPalette::WindowText, option.palette.color(QPalette::ButtonText));
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
}

QIcon TSmartButton_TRV::ShownIcon() const
{
    if (!icon().isNull() || d->type == btNone)
        return icon();
    return ButtonGlyph::Icon(UsualOf(d->type).Shape, palette().color(QPalette::Active, QPalette::ButtonText),
                             palette().color(QPalette::Disabled, QPalette::ButtonText), devicePixelRatioF());
}

void TSmartButton_TRV::OpenMenu()
{
    if (!d->menu || d->menu->isEmpty())
        return;
    QMenu* menu = d->menu;
    const int x = isRightToLeft() ? width() - menu->sizeHint().width() : 0;
    menu->popup(mapToGlobal(QPoint(x, height())));
}

void TSmartButton_TRV::AdaptWidth()
{
    updateGeometry();
    update();
    // While a form is being set up its layout is to come, and gives the button its place.
    const bool isBeingLaidOut = !testAttribute(Qt::WA_WState_Polished) && parentWidget() != nullptr &&
                                parentWidget()->layout() != nullptr;
    if (d->autoWidth && !isBeingLaidOut)
        resize(sizeHint().width(), height());
}
