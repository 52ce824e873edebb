#include "SmartButtonEdit_TRV.h"

#include "Look.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

namespace {

// An edit of 70 pixels shows six bold digits: the dots take little of it, the place to click reaches under
// the first digit, the text one pixel beyond its usual room.
constexpr int ButtonWidth = 14;
constexpr int DotsWidth = 7;
constexpr int FrameWidth = 1;

/// The part of the edit that opens the list: three dots at its outer end.
class TBrowseButton : public QAbstractButton
{
public:
    explicit TBrowseButton(QWidget* parent) : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::ArrowCursor);
        setAttribute(Qt::WA_Hover);
        setAccessibleName(QStringLiteral("انتخاب از فهرست"));
        setToolTip(QStringLiteral("انتخاب از فهرست (+ یا F4)"));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr qreal Radius = 1.1;
        constexpr qreal Step = 3;
        constexpr qreal Middle = 5.5;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(DotColor());
        const bool atLeft = layoutDirection() == Qt::RightToLeft;
        const QPointF middle(atLeft ? Middle : width() - Middle, height() / 2.0);
        for (const qreal offset : {-Step, 0.0, Step})
            painter.drawEllipse(middle + QPointF(offset, 0), Radius, Radius);
    }

private:
    QColor DotColor() const
    {
        if (!isEnabled())
            return Look::Color(Look::TRole::DisabledText);
        return Look::Color(isDown() || underMouse() ? Look::TRole::Accent : Look::TRole::SecondaryText);
    }
};

} // namespace

TSmartButtonEdit_TRV::TSmartButtonEdit_TRV(QWidget* parent)
    : TSmartEdit_TRV(parent), button_(new TBrowseButton(this))
{
    SetDigitsOnly(true);
    SetShowButton(true);
    connect(button_, &QAbstractButton::clicked, this, [this] { ClickButton(); });
}

TSmartButtonEdit_TRV::~TSmartButtonEdit_TRV() = default;

void TSmartButtonEdit_TRV::SetEditType(TButtonEditType type)
{
    type_ = type;
    SetDigitsOnly(type == betEntity);
}

bool TSmartButtonEdit_TRV::ShowButton() const
{
    return !button_->isHidden();
}

void TSmartButtonEdit_TRV::SetShowButton(bool show)
{
    button_->setVisible(show);
    PlaceButton();
}

bool TSmartButtonEdit_TRV::HandleOwnKey(QKeyEvent* event)
{
    if (!OpensList(*event))
        return false;
    if (!event->isAutoRepeat())
        ClickButton();
    return true;
}

bool TSmartButtonEdit_TRV::OpensList(const QKeyEvent& event) const
{
    if (!ShowButton())
        return false;
    const Qt::KeyboardModifiers held =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (held == Qt::AltModifier)
        return event.key() == Qt::Key_Down;
    const bool isPlus = type_ == betEntity && (event.key() == Qt::Key_Plus || event.text() == u"+");
    return held == Qt::NoModifier && (isPlus || (event.key() == Qt::Key_F4 && event.modifiers() == held));
}

void TSmartButtonEdit_TRV::ClickButton()
{
    if (isReadOnly() || !isEnabled())
        return;
    // A copy, because the handler may replace itself or destroy the edit.
    if (const TNotifyEvent running = OnButtonClick)
        running(this);
}

void TSmartButtonEdit_TRV::PlaceButton()
{
    const int outer = ShowButton() ? DotsWidth : 0;
    const int inner = ShowButton() ? -1 : 0;
    const bool atLeft = layoutDirection() == Qt::RightToLeft;
    setTextMargins(atLeft ? outer : inner, 0, atLeft ? inner : outer, 0);
    button_->setGeometry(atLeft ? FrameWidth : width() - FrameWidth - ButtonWidth, FrameWidth, ButtonWidth,
                         height() - 2 * FrameWidth);
}

void TSmartButtonEdit_TRV::changeEvent(QEvent* event)
{
    TSmartEdit_TRV::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        PlaceButton();
}

void TSmartButtonEdit_TRV::resizeEvent(QResizeEvent* event)
{
    TSmartEdit_TRV::resizeEvent(event);
    PlaceButton();
}
