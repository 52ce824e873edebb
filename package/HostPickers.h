#pragma once

#include "AccountTypes.h"
#include "EntityTypes.h"

#include <QString>

/// The host's selection dialogs. Each is modal and answers the picked code; 0 means that the user cancelled,
/// upon which frames change nothing.
class IPickers
{
public:
    virtual ~IPickers() = default;

    /// The list of an entity. `argument` is the frame's text for the list: the typed code and "#LC#", or
    /// further parameters and "#OP#", before the box's own selection parameters; `all` lists the ones that
    /// are switched off too.
    virtual int Select_Entity(TSoftwarePart part, const QString& argument, bool all) = 0;
    /// The list of groups of an entity; frames pass an empty argument.
    virtual int Select_GroupList(TSoftwarePart part, const QString& argument) = 0;

    /// The chart of accounts on several levels. The texts are the codes to begin with, empty where there is
    /// none; `focusLevel` is 0 for total, 1 for assistant, 2 for detail.
    virtual THCSelectedCode Select_AccountCodes(TSelectGroups groups, const QString& total,
                                                const QString& assistant, const QString& detail,
                                                quint8 focusLevel) = 0;
    /// Total accounts only. `groups` is the text of AccGroupsToString; `code` the code to begin with, may be
    /// empty.
    virtual int Select_AccTotals1(const QString& groups, const QString& code) = 0;
    /// Assistant accounts of a total account; `code` as above.
    virtual int Select_AccAssistants1(int total, const QString& code) = 0;
    /// Detail accounts of a total and an assistant account; `code` as above.
    virtual int Select_AccDetails1(int total, int assistant, const QString& code) = 0;

    /// The dialog that defines a tag, with `name` filled in; frames pass 1 for `mode` (create). Answers the
    /// new tag's code, -1 when there are as many tags as the host allows, anything else when nothing was
    /// created.
    virtual int Call_insert_tags(const QString& name, quint8 mode) = 0;
};
