#pragma once

#include "ADOCommand.h"
#include "ADOConnection.h"
#include "ADOQuery.h"
#include "HostData.h"
#include "HostExport.h"

/// The data module: one connection, one shared query, one shared command. The connection comes from whoever
/// opened the database.
class HOST_EXPORT THostDataModule : public IDataModule
{
public:
    /// `connection` must outlive the data module.
    explicit THostDataModule(TADOConnection& connection);

    TADOConnection* ADOConnection1() override { return connection_; }
    TADOQuery* SharedQuery() override { return &query_; }
    TADOCommand* SharedCommand() override { return &command_; }

private:
    TADOConnection* connection_;
    TADOQuery query_;
    TADOCommand command_;
};
