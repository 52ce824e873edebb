#include "HostDataModule.h"

THostDataModule::THostDataModule(TADOConnection& connection) : connection_(&connection)
{
    query_.SetConnection(connection_);
    command_.SetConnection(connection_);
}
