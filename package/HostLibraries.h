#pragma once

#include <QByteArray>
#include <QFunctionPointer>
#include <QString>

/// The host's libraries that are loaded at run time. Names are given as "Name.dll" on every platform; the
/// host looks for the platform's file of that name in the application's library folder only.
class ILibraries
{
public:
    virtual ~ILibraries() = default;

    /// A loaded library; 0 is none.
    using THandle = quintptr;

    /// Loads a library; 0 where it is missing or cannot be loaded, which frames report with ShowMessage.
    virtual THandle Tarva_LoadLibrary(const QString& library) = 0;
    /// Gives a loaded library back.
    virtual void Tarva_FreeLibrary(const QString& library, THandle handle) = 0;
    /// An exported function of a loaded library; null where there is none.
    virtual QFunctionPointer FindFunction(THandle handle, const QByteArray& function) = 0;

    /// Loads a library, calls an exported function without arguments and answers its integer. What happens
    /// where either is missing is the host's (usually a message and 0); frames ignore the answer.
    virtual int Run_DLL_FuncReturnInt(const QString& library, const QString& function) = 0;
};
