#include "HostMessageBoxes.h"

#include "Balloon.h"
#include "ControlEvents.h"
#include "PersianText.h"

#include <QApplication>
#include <QPointer>

namespace {

using TKind = TMessageDialog::TKind;

QString Sentence(const char16_t* text, const QString& subject)
{
    return QString::fromUtf16(text).arg(PersianText::Isolated(subject));
}

void GiveFocus(QWidget* control)
{
    if (control != nullptr && CanFocus(control))
        control->setFocus(Qt::OtherFocusReason);
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
    const int number = static_cast<int>(message);
    if (!numbered_.Has(number))
        return RefuseUnknown(number, buttons);
    const QPointer<QWidget> focus = QApplication::focusWidget();
    const TNumberedMessage shown = numbered_.Find(number);
    TMessageDialog box(shown.Kind, TNumberedMessages::Filled(shown.Text, {}),
                       shown.Buttons.isEmpty() ? ButtonsOf(buttons) : shown.Buttons,
                       QApplication::activeWindow());
    box.SetDefaultButton(defaultButton);
    const int answer = box.Ask();
    GiveFocus(focus);
    return static_cast<TMessageResult>(answer);
}

/// Nobody can agree to a question that has no text.
TMessageResult THostMessages::RefuseUnknown(int number, TMessageButtons buttons)
{
    Tell(TKind::Warning, numbered_.Find(number).Text);
    return static_cast<TMessageResult>(ButtonsOf(buttons).constLast().Result);
}

void THostMessages::ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments,
                                     QWidget* control, QWidget* form)
{
    const TNumberedMessage shown = numbered_.Find(static_cast<int>(message));
    Tell(shown.Kind, TNumberedMessages::Filled(shown.Text, arguments), control, form, shown.Buttons);
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

void THostMessages::Tell(TKind kind, const QString& text, QWidget* control, QWidget* form,
                         const QVector<TDialogButton>& buttons)
{
    const QPointer<QWidget> receiver = control != nullptr ? control : QApplication::focusWidget();
    TMessageDialog box(kind, text,
                       buttons.isEmpty() ? QVector<TDialogButton>{TMessageDialog::OkButton()} : buttons,
                       WindowFor(control, form));
    box.Ask();
    GiveFocus(receiver);
}
