#pragma once

#include "EntityTypes.h"
#include "HostExport.h"

#include <QString>

class TADOConnection;
class THostSettings;

/// The pickers of entities and of their groups: what THostPickers answers for them. The texts that callers
/// pass are those of TEntityArgument. 0 means that the user cancelled, that the dialog was destroyed with the
/// window below it, or that the list could not be read, which the user has been told then.
class HOST_EXPORT TEntityPickers
{
public:
    /// Both must outlive the pickers.
    TEntityPickers(TADOConnection& connection, THostSettings& settings);

    /// Throws std::logic_error for a part without a list and std::invalid_argument for parameters that are
    /// not understood.
    int Select_Entity(TSoftwarePart part, const QString& argument, bool all);
    /// The list of groups; the same as Select_Entity without `all`, which groups do not know.
    int Select_GroupList(TSoftwarePart part, const QString& argument);

private:
    TADOConnection* connection_;
    THostSettings* settings_;
};
