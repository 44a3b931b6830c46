#include "Quilon_/System/Threading/ThreadId.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace Quilon_::System::Threading {

std::uint32_t CurrentThreadId()
{
    thread_local const std::uint32_t id = static_cast<std::uint32_t>(::syscall(SYS_gettid));
    return id;
}

std::uint32_t MainThreadId()
{
    static const std::uint32_t id = CurrentThreadId();
    return id;
}

namespace {
// Static construction runs on the thread that loads the library.
[[maybe_unused]] const std::uint32_t loadingThread = MainThreadId();
} // namespace

} // namespace Quilon_::System::Threading
