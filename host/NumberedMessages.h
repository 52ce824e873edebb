#pragma once

#include "HostExport.h"
#include "MessageDialog.h"
#include "MessageTypes.h"

#include <map>

/// What is shown for the number of a message.
struct TNumberedMessage
{
    /// `%1` to `%11` stand for the arguments, each in its own direction; an argument that is not given leaves
    /// nothing.
    QString Text;
    TMessageDialog::TKind Kind = TMessageDialog::TKind::Information; ///< the sign beside the text
    /// The buttons with captions and results of their own (see TMessageResult); none for those of the call.
    QVector<TDialogButton> Buttons;
};

/// The messages that are shown by their number: those that frames ask for, and what a host or an application
/// adds.
class HOST_EXPORT TNumberedMessages
{
public:
    TNumberedMessages(); ///< with the messages that frames ask for

    /// Adds a message, or replaces the one of this number.
    void Set(int number, const TNumberedMessage& message);
    /// Whether there is a message of this number.
    bool Has(int number) const { return messages_.count(number) != 0; }
    /// The message; for a number without one a warning that names the number.
    TNumberedMessage Find(int number) const;

    /// The text with its placeholders filled.
    static QString Filled(const QString& text, const TMessageArguments& arguments);

private:
    std::map<int, TNumberedMessage> messages_;
};
