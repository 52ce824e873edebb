#pragma once

#include "AccountTypes.h"
#include "EntityTypes.h"

#include <QString>
#include <QVariant>

class QWidget;
class TADOQuery;

/// The host's common library: codes, amounts, lookups, the code lock.
class ICommonLibrary
{
public:
    virtual ~ICommonLibrary() = default;

    /// A typed code completed to `length` digits, usually by zeros in front. Frames pass texts as they were
    /// typed and show what comes back; an empty code stays empty, one that is already as long stays as it is.
    virtual QString CompleteCode(const QString& code, int length) = 0;

    /// An amount as text in the product's way, ASCII digits, `.` before decimals, no grouping.
    virtual QString FloatToStr_TRV(long double value) = 0;

    /// Looks a code up. `code` is the text as typed, not completed, and may be anything a user types;
    /// `fields` names the wanted columns, `;` between them; `control` is the box the code was typed into (may
    /// be null). Answers the field's value, or a QVariantList of the values where there are several fields;
    /// an invalid variant where there is no such code, upon which frames empty the box and its caption and
    /// stay silent.
    virtual QVariant LookupDBs(const QString& code, const QString& fields, LocateDBsOptions option,
                               QWidget* control, PerLocateOptions persons) = 0;

    /// Reads a query's rows again so that the grid shows what has just been written, keeping the current row.
    /// A null or closed query is left alone.
    virtual void ResetDataset(TADOQuery* query) = 0;

    /// Lays a control (usually tabs) out from the right. Null is left alone.
    virtual void SetWinControlRightAlign(QWidget* control) = 0;

    /// True when another user holds the code of a part. `code` is decimal text; `option` comes from
    /// IniOptions; frames pass false for `showMessage` and say themselves what is wrong.
    virtual bool LocateLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                             bool showMessage) = 0;
    /// Takes, renews or releases the hold on a code; true when that has happened. Releasing a code that is
    /// not held does nothing. A frame whose code was not taken asks whether another user holds it; where
    /// nobody does, it goes on.
    virtual bool OperationOnLockCode_SoftwarePart(const QString& code, TSoftwarePart part, int option,
                                                  TOperationType operation, bool showMessage) = 0;
};
