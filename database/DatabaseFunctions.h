#pragma once

#include "DatabaseExport.h"

class TADOConnection;

/// The functions of functions.sql for the embedded engine, with the same results: dbo.GetExpCenterName,
/// dbo.GetUinqueCode_FNC and dbo.Category_SubNodes. To be called before the connection is opened; a server
/// brings its own functions along and ignores these.
DATABASE_EXPORT void RegisterDatabaseFunctions(TADOConnection& connection);
