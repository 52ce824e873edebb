#include "SmartLabel_TRV.h"

#include "ControlEvents.h"
#include "Look.h"
#include "MnemonicText.h"
#include "PersianText.h"
#include "SmartCheckBox_TRV.h"

#include <QHelpEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QToolTip>

namespace {

/// A caption that was written from the left, so that its colon stands beside the control.
constexpr QLatin1StringView ColonInFront(": ");

/// The check box beside the label that carries the same mnemonic: the label is its caption.
TSmartCheckBox_TRV* NamedCheckBox(const TSmartLabel_TRV& label)
{
    if (label.parentWidget() == nullptr)
        return nullptr;
    const QKeySequence mnemonic = QKeySequence::mnemonic(label.text());
    const auto boxes =
        label.parentWidget()->findChildren<TSmartCheckBox_TRV*>(QString(), Qt::FindDirectChildrenOnly);
    for (TSmartCheckBox_TRV* box : boxes) {
        if (box->isVisible() && box->isEnabled() && QKeySequence::mnemonic(box->text()) == mnemonic)
            return box;
    }
    return nullptr;
}

} // namespace

TSmartLabel_TRV::TSmartLabel_TRV(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

TSmartLabel_TRV::~TSmartLabel_TRV()
{
    setBuddy(nullptr);
}

QWidget* TSmartLabel_TRV::FocusControl() const
{
    return buddy() == this ? nullptr : buddy();
}

void TSmartLabel_TRV::SetFocusControl(QWidget* control)
{
    setBuddy(control != nullptr ? control : MnemonicHolder());
}

void TSmartLabel_TRV::SetOnBand(bool on)
{
    onBand_ = on;
    update();
}

void TSmartLabel_TRV::SetShowAccelChar(bool show)
{
    showAccelChar_ = show;
    if (FocusControl() == nullptr)
        setBuddy(MnemonicHolder());
    updateGeometry();
    update();
}

QString TSmartLabel_TRV::TextInSight() const
{
    constexpr int Far = 100;
    const QString seen = text().left(text().indexOf(QString(Far, u' ')));
    return seen.startsWith(ColonInFront) ? seen.mid(ColonInFront.size()) + QStringLiteral(" :") : seen;
}

QString TSmartLabel_TRV::ShownText() const
{
    return showAccelChar_ ? TMnemonicText::Parse(TextInSight()).Text
                          : PersianText::WithIsolatedNumbers(TextInSight());
}

QSize TSmartLabel_TRV::sizeHint() const
{
    if (text().isEmpty() || wordWrap())
        return QLabel::sizeHint();
    const int space = 2 * (frameWidth() + margin());
    const QSize textSize = fontMetrics().size(0, ShownText());
    return textSize + QSize(space + qMax(indent(), 0), space);
}

QSize TSmartLabel_TRV::minimumSizeHint() const
{
    return wordWrap() ? QLabel::minimumSizeHint() : sizeHint();
}

bool TSmartLabel_TRV::event(QEvent* event)
{
    // The toolkit claims the mnemonic of labels with a buddy only; one without FocusControl is its own.
    if (event->type() == QEvent::Polish && buddy() == nullptr)
        setBuddy(MnemonicHolder());
    if (event->type() == QEvent::Shortcut) {
        ActivateByMnemonic();
        return true;
    }
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && IsElided()) {

        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), ShownText(), this);
        return true;
    }
    return QLabel::event(event);
}

void TSmartLabel_TRV::mousePressEvent(QMouseEvent* event)
{
    QLabel::mousePressEvent(event);
    if (OnClick && event->button() == Qt::LeftButton)
        event->accept();
}

void TSmartLabel_TRV::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        RaiseClick();
}

void TSmartLabel_TRV::paintEvent(QPaintEvent* event)
{
    if (text().isEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QRect area = TextRect();
    int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    flags |= MnemonicFlag() | Qt::TextForceRightToLeft | (wordWrap() ? Qt::TextWordWrap : 0);
    const QString whole = showAccelChar_ ? TextInSight() : ShownText();
    const QString shown =
        IsElided() ? fontMetrics().elidedText(whole, Qt::ElideRight, area.width(), MnemonicFlag()) : whole;
    style()->drawItemText(&painter, area, flags, TextPalette(), isEnabled(), shown, QPalette::WindowText);
}

bool TSmartLabel_TRV::IsElided() const
{
    return !wordWrap() && !text().contains(u'\n') &&
           fontMetrics().horizontalAdvance(ShownText()) > TextRect().width();
}

QRect TSmartLabel_TRV::TextRect() const
{
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const int leading = qMax(indent(), 0);
    return isRightToLeft() ? area.adjusted(0, 0, -leading, 0) : area.adjusted(leading, 0, 0, 0);
}

QPalette TSmartLabel_TRV::TextPalette() const
{
    QPalette result = palette();
    if (onBand_) {
        result.setColor(QPalette::WindowText, Look::Color(Look::TRole::BandText));
        // The band is dark in both schemes.
        result.setColor(QPalette::Disabled, QPalette::WindowText,
                        Look::ColorOf(Look::TRole::SecondaryText, true));
    }
    return result;
}

void TSmartLabel_TRV::ActivateByMnemonic()
{
    if (QWidget* control = FocusControl()) {
        if (CanFocus(control))
            control->setFocus(Qt::ShortcutFocusReason);
    } else if (TSmartCheckBox_TRV* box = NamedCheckBox(*this)) {
        box->click();
    } else {
        RaiseClick();
    }
}

void TSmartLabel_TRV::RaiseClick()
{
    // A copy, because the handler may replace itself or destroy the label.
    if (const TNotifyEvent running = OnClick)
        running(this);
}
