#include "SmartEditPrivate.h"

#include "Balloon.h"
#include "DecimalText.h"
#include "Look.h"
#include "PersianText.h"

#include <limits>
#include <QPointer>
#include <utility>

TSmartEdit_TRV::TPrivate::TPrivate(TSmartEdit_TRV* owner) : edit(owner)
{
    QObject::connect(edit, &QLineEdit::textEdited, edit, [this] { lineByUser = true; });
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this](const QString& line) { LineChanged(line); });
}

TNumberRules TSmartEdit_TRV::TPrivate::Rules() const
{
    return {maxLength, Decimals(), !IsBounded() || minValue < 0};
}

bool TSmartEdit_TRV::TPrivate::IsNegative() const
{
    return IsNumber() && number.Text().startsWith(u'-');
}

// What the program writes is taken as far as it is a number; "1e+15" and "0042500.0000" are.
QString TSmartEdit_TRV::TPrivate::CodeNumber(const QString& text) const
{
    QString plain = PersianText::NumberFromAnyScript(text);
    if (plain.isEmpty())
        plain = DecimalText::FromValue(DecimalText::ToValue(text.trimmed()), DecimalText::MostDecimals);
    return DecimalText::DecimalCount(plain) > Decimals() ? DecimalText::Rounded(plain, Decimals())
                                                         : DecimalText::Settled(plain);
}

void TSmartEdit_TRV::TPrivate::SetText(const QString& text)
{
    if (!IsNumber()) {
        const QString line = PersianText::SingleLine(text);
        // The limit for the user is kept where he types; texts that the program shows may be longer.
        if (line.size() > edit->QLineEdit::maxLength())
            edit->QLineEdit::setMaxLength(std::numeric_limits<int>::max());
        edit->QLineEdit::setText(line);
        return;
    }
    number.Reset(CodeNumber(text));
    ShowNumber();
    TextMayHaveChanged(false);
}

void TSmartEdit_TRV::TPrivate::ShowNumber()
{
    const QString display = number.Display();
    if (edit->text() != display) {
        writingLine = true;
        edit->QLineEdit::setText(display);
        writingLine = false;
    }
    edit->setCursorPosition(number.Caret());
    ShowSign();
}

// The toolkit paints a line's text in the palette's colour and in no other. An edit may have a ground of its
// own, light in the dark scheme, too.
void TSmartEdit_TRV::TPrivate::ShowSign()
{
    if (!IsNegative()) {
        if (const std::optional<QPalette> plain = std::exchange(plainPalette, std::nullopt))
            edit->setPalette(*plain);
        return;
    }
    const bool darkGround = edit->palette().color(QPalette::Active, QPalette::Base).lightness() < 128;
    const QColor wrong = Look::ColorOf(Look::TRole::Wrong, darkGround);
    if (plainPalette && edit->palette().color(QPalette::Active, QPalette::Text) == wrong)
        return;
    if (!plainPalette)
        plainPalette = edit->palette();
    QPalette palette = edit->palette();
    palette.setColor(QPalette::Active, QPalette::Text, wrong);
    palette.setColor(QPalette::Inactive, QPalette::Text, wrong);
    edit->setPalette(palette);
}

// The line was changed by its own editing, or by somebody who knows it only as the toolkit's line edit.
void TSmartEdit_TRV::TPrivate::LineChanged(const QString& line)
{
    const bool byUser = std::exchange(lineByUser, false);
    if (writingLine)
        return;
    if (IsNumber()) {
        if (!byUser || !PersianText::NumberFromAnyScript(line).isEmpty())
            number.Reset(CodeNumber(line));
        ShowNumber();
    } else if (const QString clean = PersianText::SingleLine(line); clean != line) {
        writingLine = true;
        edit->QLineEdit::setText(clean);
        writingLine = false;
    }
    TextMayHaveChanged(byUser);
}

void TSmartEdit_TRV::TPrivate::TextMayHaveChanged(bool byUser)
{
    if (byUser)
        ClearError();
    const QString text = edit->Text();
    if (text == toldText)
        return;
    toldText = text;
    edit->update();
    if (byUser) {
        typedSinceEnter = true;
        StartDelay();
    }
    // A copy, because the handler may replace or clear itself, or destroy the edit.
    if (const TNotifyEvent handler = edit->OnChange)
        handler(edit);
}

void TSmartEdit_TRV::TPrivate::StartDelay()
{
    if (!delay) {
        delay = std::make_unique<QTimer>();
        delay->setSingleShot(true);
        delay->setTimerType(Qt::PreciseTimer);
        QObject::connect(delay.get(), &QTimer::timeout, edit, [this] { AnnounceValue(); });
    }
    delay->start(delayTime);
}

void TSmartEdit_TRV::TPrivate::StopDelay() const
{
    if (delay)
        delay->stop();
}

void TSmartEdit_TRV::TPrivate::AnnounceValue() const
{
    StopDelay();
    const QPointer<TSmartEdit_TRV> alive = edit;
    if (const TNotifyEvent handler = alive->OnEditValueChange)
        handler(alive);
    if (alive)
        Q_EMIT alive->editValueChanged();
}

void TSmartEdit_TRV::TPrivate::AnnouncePendingValue() const
{
    if (delay && delay->isActive())
        AnnounceValue();
}

void TSmartEdit_TRV::TPrivate::Settle()
{
    if (!IsNumber())
        return;
    number.Settle();
    if (typedSinceEnter)
        KeepBounds();
    ShowNumber();
    typedSinceEnter = false;
    if (edit->Text() != toldText)
        TextMayHaveChanged(true);
}

void TSmartEdit_TRV::TPrivate::KeepBounds()
{
    const long double value = edit->GetValue();
    if (!IsBounded() || (value >= minValue && value <= maxValue))
        return;
    const double bound = value < minValue ? minValue : maxValue;
    const QString text = DecimalText::FromValue(bound, DecimalText::MostDecimals);
    number.Assign(DecimalText::Rounded(text, Decimals()));
    Balloon::Show(edit, (value < minValue
                             ? QStringLiteral("کمترین مقدار این کادر %1 است و به جای عدد شما گذاشته شد.")
                             : QStringLiteral("بیشترین مقدار این کادر %1 است و به جای عدد شما گذاشته شد."))
                            .arg(DecimalText::Grouped(text)));
}

void TSmartEdit_TRV::TPrivate::ClearError()
{
    if (!error)
        return;
    error = false;
    if (Balloon::ShownText() == edit->accessibleDescription())
        Balloon::Hide();
    edit->setAccessibleDescription({});
    edit->update();
}

void TSmartEdit_TRV::TPrivate::RefreshHint() const
{
    if (!multiCurrency)
        return;
    QStringList lines;
    if (!currencyTitle.isEmpty())
        lines << QStringLiteral("نوع ارز: ") + PersianText::Isolated(currencyTitle);
    if (currencyRate != 0)
        lines << QStringLiteral("نرخ ارز: ") +
                     PersianText::Isolated(DecimalText::Grouped(
                         DecimalText::FromValue(currencyRate, DecimalText::MostDecimals)));
    edit->setToolTip(lines.join(u'\n'));
}

void TSmartEdit_TRV::TPrivate::RefreshInputHints() const
{
    const Qt::InputMethodHint ofText = digitsOnly ? Qt::ImhDigitsOnly : Qt::ImhNone;
    edit->setInputMethodHints(IsNumber() ? Qt::ImhFormattedNumbersOnly : ofText);
}
