#include "Quilon_/System/Threading/ThreadPool.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Threading {

QUILON_DEFINE_INTERFACE_TYPE(IThreadPoolTask, L"Quilon_::System::Threading::IThreadPoolTask", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IThreadPoolJob, L"Quilon_::System::Threading::IThreadPoolJob", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IThreadPool, L"Quilon_::System::Threading::IThreadPool", Interface)

Functions::Template::Function<Pointer<IThreadPool> (*)(std::int64_t)> ThreadPool::New(L"New");

namespace Globals {
QUILON_DEFINE_SETTING(ConversionThreadPool, SetConversionThreadPool, ClearConversionThreadPool)
QUILON_DEFINE_SETTING(ProcessingThreadPool, SetProcessingThreadPool, ClearProcessingThreadPool)
} // namespace Globals

} // namespace Quilon_::System::Threading
