#pragma once

#include "AdoError.h"
#include "HostServices.h"

/// What every exported function of a library does with what goes wrong: no exception may leave it, because
/// the caller may have been built by another compiler, which would not know the exception.
namespace LibraryCall {

/// Without a host there is nobody to tell.
inline void Tell(const QString& text)
{
    if (HasHost())
        Host().Messages.ShowMessage(text);
    else
        qCritical("%s", qPrintable(text));
}

/// Runs `work` and answers its integer; where it fails the user is told, of what is no error of its own in
/// the words `otherwise`, and the answer is 0.
template <typename TWork> int Guarded(TWork work, const QString& otherwise)
{
    try {
        return work();
    } catch (const EADOError& error) {
        Tell(error.Message());
    } catch (const std::exception& error) {
        Tell(QString::fromUtf8(error.what()));
    } catch (...) {
        Tell(otherwise);
    }
    return 0;
}

} // namespace LibraryCall
