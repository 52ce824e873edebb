#pragma once

#include <array>
#include <QString>

/// The buttons of a confirmation.
enum class TMessageButtons { mbOk = 0, mbOkCancel = 1, mbYesNo = 2, mbYesNoCancel = 3 };

/// The user's answer to a confirmation, by the numbers that frames test. Closing the box is a Cancel, or a No
/// where there is no Cancel.
enum class TMessageResult { mrOk = 1, mrCancel = 2, mrYes = 6, mrNo = 7 };

/// Identifiers of confirmations. Hosts may add their own numbers.
enum class TConfirmationMessage : int {
    cmCreateTag = 20150, ///< the tag does not exist; create it?
};

/// Identifiers of notifications. Hosts may add their own numbers.
enum class TNotificationMessage : int {
    nmLimitReached = 10026, ///< argument 0 names the limit that was reached
};

/// The texts that fill a notification's placeholders, in order; unused ones are empty.
using TMessageArguments = std::array<QString, 11>;
