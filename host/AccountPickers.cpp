#include "AccountPickers.h"

#include "NotOffered.h"

TAccountPickers::TAccountPickers(TADOConnection& connection, THostSettings& settings)
    : connection_(&connection), settings_(&settings)
{
}

THCSelectedCode TAccountPickers::Select_AccountCodes(TSelectGroups /*groups*/, const QString& /*total*/,
                                                     const QString& /*assistant*/, const QString& /*detail*/,
                                                     quint8 /*focusLevel*/)
{
    throw EServiceNotOffered("Select_AccountCodes");
}

int TAccountPickers::Select_AccTotals1(const QString& /*groups*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccTotals1");
}

int TAccountPickers::Select_AccAssistants1(int /*total*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccAssistants1");
}

int TAccountPickers::Select_AccDetails1(int /*total*/, int /*assistant*/, const QString& /*code*/)
{
    throw EServiceNotOffered("Select_AccDetails1");
}
