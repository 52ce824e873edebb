#include "HostMessageBoxes.h"

#include "Balloon.h"
#include "ControlEvents.h"
#include "PersianText.h"

#include <QApplication>
#include <QPointer>
#include <stdexcept>

namespace {

using TKind = TMessageDialog::TKind;

/// A numbered text; `%1` to `%9` stand for the arguments.
struct TNumberedText
{
    int Number;
    const char16_t* Text;
};

constexpr TNumberedText confirmations[] = {
    {static_cast<int>(TConfirmationMessage::cmCreateTag), u"برچسبی با این نام تعریف نشده است. آیا برچسب "
                                                          u"تازه‌ای ساخته شود؟"},
};

constexpr TNumberedText notifications[] = {
    {static_cast<int>(TNotificationMessage::nmLimitReached), u"%1: بیش از این تعداد مجاز نیست."},
};

template <size_t count> QString TextOf(const TNumberedText (&table)[count], int number)
{
    for (const TNumberedText& entry : table) {
        if (entry.Number == number)
            return QString::fromUtf16(entry.Text);
    }
    throw std::logic_error("This host has no text for the message " + std::to_string(number) + ".");
}

QString Filled(QString text, const TMessageArguments& arguments)
{
    for (size_t i = 0; i < arguments.size(); ++i)
        text.replace(QStringLiteral("%%1").arg(i + 1), PersianText::Isolated(arguments.at(i)));
    return text;
}

QString Sentence(const char16_t* text, const QString& subject)
{
    return QString::fromUtf16(text).arg(PersianText::Isolated(subject));
}

QWidget* WindowFor(QWidget* control, QWidget* form)
{
    if (form != nullptr)
        return form->window();
    return control != nullptr ? control->window() : QApplication::activeWindow();
}

QVector<TDialogButton> ButtonsOf(TMessageButtons buttons)
{
    switch (buttons) {
    case TMessageButtons::mbOkCancel:
        return {TMessageDialog::OkButton(), TMessageDialog::CancelButton()};
    case TMessageButtons::mbYesNo:
        return {TMessageDialog::YesButton(), TMessageDialog::NoButton()};
    case TMessageButtons::mbYesNoCancel:
        return {TMessageDialog::YesButton(), TMessageDialog::NoButton(), TMessageDialog::CancelButton()};
    case TMessageButtons::mbOk:
        break;
    }
    return {TMessageDialog::OkButton()};
}

} // namespace

void THostMessages::MsgCodeNotAvailable(const QString& subject, QWidget* control, QWidget* form)
{
    Tell(TKind::Warning,
         Sentence(u"%1 با این کد وجود ندارد. کد را اصلاح کنید یا آن را از فهرست برگزینید.", subject), control,
         form);
}

void THostMessages::MsgNotSelected(const QString& subject, QWidget* control, QWidget* form)
{
    Tell(TKind::Warning, Sentence(u"%1 انتخاب نشده است.", subject), control, form);
}

void THostMessages::MsgRepeatedCode(const QString& subject, QWidget* control, QWidget* form)
{
    Tell(TKind::Warning, Sentence(u"کد %1 تکراری است. کد دیگری وارد کنید.", subject), control, form);
}

void THostMessages::MsgRequiredField(const QString& subject, QWidget* control, QWidget* form)
{
    Tell(TKind::Warning,
         Sentence(u"%1 را وارد کنید؛ این مقدار نمی‌تواند خالی یا صفر "
                  u"باشد.",
                  subject),
         control, form);
}

void THostMessages::MsgHasSubRecords(const QString& subject)
{
    Tell(TKind::Warning,
         Sentence(
             u"%1 در ثبت‌های دیگری به کار رفته است و نمی‌توان آن را "
             u"تغییر "
             u"داد.",
             subject));
}

void THostMessages::MSGInUse(const QString& subject)
{
    QString holder = holderSource_ ? holderSource_() : QString();
    if (holder.isEmpty())
        holder = QStringLiteral("هم‌اکنون در دست کاربر دیگری");
    Tell(TKind::Warning,
         QStringLiteral("%1 %2 است. کمی بعد دوباره بکوشید.").arg(PersianText::Isolated(subject), holder));
}

TMessageResult THostMessages::ShowSmartMessage(TConfirmationMessage message, TMessageButtons buttons,
                                               int defaultButton)
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    TMessageDialog box(TKind::Question, TextOf(confirmations, static_cast<int>(message)), ButtonsOf(buttons),
                       QApplication::activeWindow());
    box.SetDefaultButton(defaultButton);
    const int answer = box.Ask();
    if (focus != nullptr)
        focus->setFocus(Qt::OtherFocusReason);
    return static_cast<TMessageResult>(answer);
}

void THostMessages::ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments,
                                     QWidget* control, QWidget* form)
{
    Tell(TKind::Information, Filled(TextOf(notifications, static_cast<int>(message)), arguments), control,
         form);
}

void THostMessages::ShowTooltipMessage(const TTooltip& tooltip)
{
    if (tooltip.Control != nullptr)
        Balloon::Show(tooltip.Control, tooltip.Text, tooltip.Milliseconds, tooltip.Title);
}

void THostMessages::ShowMessage(const QString& text)
{
    Tell(TKind::Information, text, QApplication::focusWidget());
}

void THostMessages::Tell(TKind kind, const QString& text, QWidget* control, QWidget* form)
{
    const QPointer<QWidget> receiver = control != nullptr ? control : QApplication::focusWidget();
    TMessageDialog box(kind, text, {TMessageDialog::OkButton()}, WindowFor(control, form));
    box.Ask();
    if (receiver != nullptr && CanFocus(receiver))
        receiver->setFocus(Qt::OtherFocusReason);
}
