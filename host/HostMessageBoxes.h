#pragma once

#include "HostExport.h"
#include "HostMessages.h"
#include "MessageDialog.h"
#include "NumberedMessages.h"

#include <functional>
#include <utility>

/// Persian message boxes and balloons. A box gives the focus back to its control when it is closed.
class HOST_EXPORT THostMessages : public IMessages
{
public:
    void MsgCodeNotAvailable(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgNotSelected(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgRepeatedCode(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgRequiredField(const QString& subject, QWidget* control, QWidget* form) override;
    void MsgHasSubRecords(const QString& subject) override;
    /// Says who has it and since when, where the holder's source knows.
    void MSGInUse(const QString& subject) override;
    /// A number without a text is told to the user and answers the last of the buttons: No, or Cancel where
    /// there is one.
    TMessageResult ShowSmartMessage(TConfirmationMessage message, TMessageButtons buttons,
                                    int defaultButton) override;
    void ShowSmartMessage(TNotificationMessage message, const TMessageArguments& arguments, QWidget* control,
                          QWidget* form) override;
    void ShowTooltipMessage(const TTooltip& tooltip) override;
    void ShowMessage(const QString& text) override;

    /// The texts behind the numbers; an application adds its own.
    TNumberedMessages& Numbered() { return numbered_; }

    /// Answers, when MSGInUse asks, in whose hands the thing is: "... در دست ..."; an empty text where it
    /// does not know.
    using THolderSource = std::function<QString()>;
    void SetHolderSource(THolderSource source) { holderSource_ = std::move(source); }

private:
    static void Tell(TMessageDialog::TKind kind, const QString& text, QWidget* control = nullptr,
                     QWidget* form = nullptr, const QVector<TDialogButton>& buttons = {});
    TMessageResult RefuseUnknown(int number, TMessageButtons buttons);

    TNumberedMessages numbered_;
    THolderSource holderSource_;
};
