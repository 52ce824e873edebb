#pragma once

#include <QtGlobal>

#if defined(Q_OS_UNIX)
#include <dlfcn.h>
#endif

/// What is allocated while it lives is not looked for as a leak. For an error that a test lets leave an event
/// handler: the toolkit is built without exception safety, and what such an error passes on its way is left
/// behind.
class TToolkitLeaks
{
public:
    TToolkitLeaks(const TToolkitLeaks&) = delete;
    TToolkitLeaks& operator=(const TToolkitLeaks&) = delete;
    TToolkitLeaks() { Call("__lsan_disable"); }
    ~TToolkitLeaks() { Call("__lsan_enable"); }

private:
    /// The search is there when the program runs with the sanitizers' library, whatever it was itself built
    /// with.
    static void Call([[maybe_unused]] const char* function)
    {
#if defined(Q_OS_UNIX)
        if (void* const address = dlsym(RTLD_DEFAULT, function))
            reinterpret_cast<void (*)()>(address)();
#endif
    }
};
