#pragma once

#include "HostExport.h"
#include "HostLibraries.h"

/// No library is loaded yet: each operation throws EServiceNotOffered.
class HOST_EXPORT THostLibraries : public ILibraries
{
public:
    THandle Tarva_LoadLibrary(const QString& library) override;
    void Tarva_FreeLibrary(const QString& library, THandle handle) override;
    QFunctionPointer FindFunction(THandle handle, const QByteArray& function) override;
    int Run_DLL_FuncReturnInt(const QString& library, const QString& function) override;
};
