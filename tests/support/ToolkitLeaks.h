#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

/// What is allocated while it lives is not looked for as a leak. For an error that a test lets leave an event
/// handler: the toolkit is built without exception safety, and what such an error passes on its way is left
/// behind.
class TToolkitLeaks
{
public:
    TToolkitLeaks(const TToolkitLeaks&) = delete;
    TToolkitLeaks& operator=(const TToolkitLeaks&) = delete;
#if defined(__SANITIZE_ADDRESS__)
    TToolkitLeaks()
    {
        __lsan_disable();
    }
    ~TToolkitLeaks()
    {
        __lsan_enable();
    }
#else
    TToolkitLeaks() = default;
    ~TToolkitLeaks()
    {
    } // not trivial, so that an unused one is no warning
#endif
};
