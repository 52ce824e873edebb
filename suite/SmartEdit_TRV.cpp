#include "SmartEdit_TRV.h"

#include "Balloon.h"
#include "ControlDispatch.h"
#include "DecimalText.h"
#include "Look.h"
#include "PersianText.h"
#include "SmartEditPrivate.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPointer>

TSmartEdit_TRV::TSmartEdit_TRV(QWidget* parent) : QLineEdit(parent), d(std::make_unique<TPrivate>(this))
{
    // A line edit follows its content: without this, digits and an empty edit's caret jump to the left.
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
}

TSmartEdit_TRV::~TSmartEdit_TRV() = default;

TSmartEdit_TRV::TEditType TSmartEdit_TRV::EditType() const
{
    return d->editType;
}

void TSmartEdit_TRV::SetEditType(TEditType type)
{
    if (type == d->editType)
        return;
    const QString text = Text();
    d->editType = type;
    d->number.SetGrouped(type == etCurrency);
    d->RefreshInputHints();
    d->RefreshCalculatorButton();
    d->SetText(text);
    d->ShowSign();
}

TSmartEdit_TRV::TValueType TSmartEdit_TRV::ValueType() const
{
    return d->valueType;
}

void TSmartEdit_TRV::SetValueType(TValueType type)
{
    d->valueType = type;
    if (d->IsNumber())
        d->SetText(Text());
}

int TSmartEdit_TRV::MaxLength() const
{
    return d->maxLength;
}

void TSmartEdit_TRV::SetMaxLength(int length)
{
    d->maxLength = qMax(0, length);
}

bool TSmartEdit_TRV::DigitsOnly() const
{
    return d->digitsOnly;
}

void TSmartEdit_TRV::SetDigitsOnly(bool only)
{
    d->digitsOnly = only;
    d->RefreshInputHints();
}

int TSmartEdit_TRV::DelayTimeCount() const
{
    return d->delayTime;
}

void TSmartEdit_TRV::SetDelayTimeCount(int milliseconds)
{
    d->delayTime = qMax(0, milliseconds);
}

int TSmartEdit_TRV::Precision() const
{
    return d->precision;
}

void TSmartEdit_TRV::SetPrecision(int digits)
{
    d->precision = qBound(0, digits, DecimalText::MostDecimals);
    if (d->IsNumber())
        d->SetText(Text());
}

bool TSmartEdit_TRV::Calculator() const
{
    return d->calculator;
}

void TSmartEdit_TRV::SetCalculator(bool on)
{
    d->calculator = on;
    d->RefreshCalculatorButton();
}

bool TSmartEdit_TRV::MultiCurrency() const
{
    return d->multiCurrency;
}

void TSmartEdit_TRV::SetMultiCurrency(bool on)
{
    if (d->multiCurrency && !on)
        setToolTip({});
    d->multiCurrency = on;
    d->RefreshHint();
}

bool TSmartEdit_TRV::ReverseCurrency() const
{
    return d->reverseCurrency;
}

void TSmartEdit_TRV::SetReverseCurrency(bool on)
{
    d->reverseCurrency = on;
}

double TSmartEdit_TRV::MinValue() const
{
    return d->minValue;
}

void TSmartEdit_TRV::SetMinValue(double value)
{
    d->minValue = value;
}

double TSmartEdit_TRV::MaxValue() const
{
    return d->maxValue;
}

void TSmartEdit_TRV::SetMaxValue(double value)
{
    d->maxValue = value;
}

bool TSmartEdit_TRV::CanTakeFocus() const
{
    return d->canTakeFocus;
}

void TSmartEdit_TRV::SetCanTakeFocus(bool can)
{
    d->canTakeFocus = can;
}

QString TSmartEdit_TRV::Text() const
{
    return d->IsNumber() ? d->number.Text() : text();
}

void TSmartEdit_TRV::SetText(const QString& text)
{
    d->SetText(text);
}

void TSmartEdit_TRV::Clear()
{
    d->StopDelay();
    d->SetText(d->IsNumber() ? QStringLiteral("0") : QString());
}

long double TSmartEdit_TRV::GetValue() const
{
    return DecimalText::ToValue(DecimalText::Settled(PersianText::NumberFromAnyScript(Text())));
}

void TSmartEdit_TRV::SetValue(long double value)
{
    d->SetText(DecimalText::FromValue(value, d->IsNumber() ? d->Decimals() : DecimalText::MostDecimals));
}

void TSmartEdit_TRV::SetEnabled(bool enabled)
{
    setEnabled(enabled);
}

void TSmartEdit_TRV::SetCurrencyRate(long double rate)
{
    d->currencyRate = rate;
    d->RefreshHint();
}

void TSmartEdit_TRV::SetCurrencyTypeTitle(const QString& title)
{
    d->currencyTitle = title;
    d->RefreshHint();
}

void TSmartEdit_TRV::AnnouncePendingValue()
{
    d->AnnouncePendingValue();
}

int TSmartEdit_TRV::CaretPos() const
{
    return cursorPosition();
}

void TSmartEdit_TRV::SetCaretPos(int position)
{
    setCursorPosition(qBound(0, position, static_cast<int>(text().size())));
}

void TSmartEdit_TRV::ShowError(const QString& sentence)
{
    d->error = true;
    setAccessibleDescription(sentence);
    Balloon::Show(this, sentence);
    update();
}

bool TSmartEdit_TRV::HasError() const
{
    return d->error;
}

bool TSmartEdit_TRV::event(QEvent* event)
{
    return ControlDispatch::Event(this, *this, event) || QLineEdit::event(event);
}

bool TSmartEdit_TRV::HandleOwnKey(QKeyEvent* /*event*/)
{
    return false;
}

void TSmartEdit_TRV::keyPressEvent(QKeyEvent* event)
{
    ControlDispatch::KeyPress(this, *this, event, [this](QKeyEvent* own) {
        if (!HandleOwnKey(own) && !d->HandleKey(own))
            QLineEdit::keyPressEvent(own);
    });
}

void TSmartEdit_TRV::keyReleaseEvent(QKeyEvent* event)
{
    ControlDispatch::KeyRelease(this, *this, event,
                                [this](QKeyEvent* own) { QLineEdit::keyReleaseEvent(own); });
}

void TSmartEdit_TRV::inputMethodEvent(QInputMethodEvent* event)
{
    const QPointer<TSmartEdit_TRV> alive = this;
    const QString text = ControlDispatch::Characters(this, *this, event->commitString());
    if (!alive)
        return;
    if (d->IsNumber()) {
        event->accept();
        d->Type(text);
        return;
    }
    QInputMethodEvent clean(event->preeditString(), event->attributes());
    clean.setCommitString(d->TypedText(text), event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&clean);
}

void TSmartEdit_TRV::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    ControlDispatch::FocusIn(this, *this, event);
}

void TSmartEdit_TRV::focusOutEvent(QFocusEvent* event)
{
    const QPointer<TSmartEdit_TRV> alive = this;
    QLineEdit::focusOutEvent(event);
    if (alive && ControlDispatch::MovesBetweenControls(event)) {
        d->Settle();
        if (alive)
            d->AnnouncePendingValue();
    }
    if (alive)
        ControlDispatch::FocusOut(this, *this, event);
}

void TSmartEdit_TRV::contextMenuEvent(QContextMenuEvent* event)
{
    d->ContextMenu()->popup(event->globalPos());
}

void TSmartEdit_TRV::mouseReleaseEvent(QMouseEvent* event)
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    d->Paste(clipboard->text(QClipboard::Selection));
}

void TSmartEdit_TRV::dropEvent(QDropEvent* event)
{
    QDragLeaveEvent leave;
    QLineEdit::dragLeaveEvent(&leave);
    setCursorPosition(cursorPositionAt(event->position().toPoint()));
    // Always a copy: where the text is refused it must not vanish from where it came.
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(d->Paste(event->mimeData()->text()));
}

void TSmartEdit_TRV::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        d->ShowSign();
        d->RefreshCalculatorButton();
    }
}

void TSmartEdit_TRV::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (d->error) {
        QPainter painter(this);
        Look::PaintRing(painter, rect(), Look::Color(Look::TRole::Wrong));
    }
}
