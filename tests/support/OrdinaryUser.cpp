#include "OrdinaryUser.h"

#include <exception>
#include <QtGlobal>
#include <thread>

#ifdef Q_OS_LINUX
#include <array>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_LINUX

constexpr std::array permissionOverrides{CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH};

bool Succeeds(long result)
{
    return result == 0;
}

// The system keeps these privileges for each thread by itself.
bool GiveUpOverrides()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
    if (!Succeeds(syscall(SYS_capget, &header, sets.data())))
        return false;
    for (const unsigned override : permissionOverrides) {
        __user_cap_data_struct& set = sets[CAP_TO_INDEX(override)];
        const bool held = (set.permitted & CAP_TO_MASK(override)) != 0;
        if (held && !Succeeds(prctl(PR_CAPBSET_DROP, override, 0, 0, 0)))
            return false;
        set.effective &= ~CAP_TO_MASK(override);
        set.permitted &= ~CAP_TO_MASK(override);
        set.inheritable &= ~CAP_TO_MASK(override);
    }
    return Succeeds(syscall(SYS_capset, &header, sets.data()));
}

#else

bool GiveUpOverrides()
{
    return true;
}

#endif

} // namespace

void AsOrdinaryUser(const std::function<void()>& work)
{
    std::exception_ptr thrown;
    std::thread([&] {
        if (!GiveUpOverrides())
            qFatal("The privilege to pass over permissions cannot be given up.");
        try {
            work();
        } catch (...) {
            thrown = std::current_exception();
        }
    }).join();
    if (thrown)
        std::rethrow_exception(thrown);
}
