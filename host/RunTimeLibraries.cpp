#include "RunTimeLibraries.h"

#include "NotOffered.h"

THostLibraries::THandle THostLibraries::Tarva_LoadLibrary(const QString& /*library*/)
{
    throw EServiceNotOffered("Tarva_LoadLibrary");
}

void THostLibraries::Tarva_FreeLibrary(const QString& /*library*/, THandle /*handle*/)
{
    throw EServiceNotOffered("Tarva_FreeLibrary");
}

QFunctionPointer THostLibraries::FindFunction(THandle /*handle*/, const QByteArray& /*function*/)
{
    throw EServiceNotOffered("FindFunction");
}

int THostLibraries::Run_DLL_FuncReturnInt(const QString& /*library*/, const QString& /*function*/)
{
    throw EServiceNotOffered("Run_DLL_FuncReturnInt");
}
