#include "PickerDialogs.h"

#include "NotOffered.h"

int THostPickers::Select_Entity(TSoftwarePart /*part*/, const QString& /*argument*/, bool /*all*/)
{
    throw EServiceNotOffered("Select_Entity");
}

int THostPickers::Select_GroupList(TSoftwarePart /*part*/, const QString& /*argument*/)
{
    throw EServiceNotOffered("Select_GroupList");
}

THCSelectedCode THostPickers::Select_AccountCodes(TSelectGroups /*groups*/, const QString& /*total*/,
                                                  const QString& /*assistant*/, const QString& /*detail*/,
                                                  quint8 /*focusLevel*/)
{
    throw EServiceNotOffered("Select_AccountCodes");
}

int THostPickers::Select_AccTotals1(const QString& /*groups*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccTotals1");
}

int THostPickers::Select_AccAssistants1(int /*total*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccAssistants1");
}

int THostPickers::Select_AccDetails1(int /*total*/, int /*assistant*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccDetails1");
}

int THostPickers::Call_insert_tags(const QString& /*name*/, quint8 /*mode*/)
{
    throw EServiceNotOffered("Call_insert_tags");
}
