#pragma once

#include "HostExport.h"
#include "HostLibraries.h"

#include <map>
#include <memory>
#include <QString>

class QLibrary;

/// Libraries of one folder, loaded by name. A name is letters, digits and `_`, with ".dll" behind it or not;
/// "X.dll" stands for the platform's file (libX.so, libX.dylib, X.dll). Anything else, a path above all, is
/// a library that is missing.
///
/// A library that was given back stays in memory until the program ends: texts and types of it may still be
/// in use somewhere.
class HOST_EXPORT THostLibraries : public ILibraries
{
public:
    explicit THostLibraries(const QString& folder = DefaultFolder());
    THostLibraries(const THostLibraries&) = delete;
    THostLibraries& operator=(const THostLibraries&) = delete;
    ~THostLibraries() override;

    /// The folder that the reference host itself was loaded from, with which these libraries are installed;
    /// on Windows the program's folder.
    static QString DefaultFolder();

    /// Each call that succeeds answers a handle of its own.
    THandle Tarva_LoadLibrary(const QString& library) override;
    /// A handle that is not, or no longer, one of this host is left alone.
    void Tarva_FreeLibrary(const QString& library, THandle handle) override;
    QFunctionPointer FindFunction(THandle handle, const QByteArray& function) override;
    /// Where the library or the function is missing the user is told, and the answer is 0.
    int Run_DLL_FuncReturnInt(const QString& library, const QString& function) override;

private:
    QString FileOf(const QString& library) const;

    QString folder_;
    std::map<THandle, std::unique_ptr<QLibrary>> libraries_;
    THandle lastHandle_ = 0;
};
