// The pool and timer factories, empty until a library registers on them,
// and the two process-wide pools.
#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/Timer.h"

#include "../../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::IThreadPool;
using testing::StartsWith;
namespace Globals = System::Threading::Globals;

class CIdlePool : public System::Template::ObjectImpl<CIdlePool, IThreadPool> {
    Pointer<System::Threading::IThreadPoolJob> Queue(Pointer<System::Threading::IThreadPoolTask>) override
    {
        return {};
    }
    std::int64_t ThreadCount() override { return 0; }
    void WaitAll() override {}
    void CancelAll() override {}
    std::int64_t PendingCount() override { return 0; }
};

TEST(ThreadPoolTest, FactoriesAreEmptyAndPoolSettingsAreProcessWide)
{
    EXPECT_THAT(RaisedMessage([] { System::Threading::ThreadPool::New(2); }),
                StartsWith(L"No implementation available for function 'New' ("));
    EXPECT_THAT(RaisedMessage([] { System::Threading::Timer::New(); }),
                StartsWith(L"No implementation available for function 'New' ("));

    Pointer<IThreadPool> pool(new CIdlePool);
    std::thread([&] { Globals::SetConversionThreadPool(pool); }).join();
    EXPECT_TRUE(Globals::ConversionThreadPool() == pool);
    EXPECT_FALSE(Globals::ProcessingThreadPool());

    Globals::ClearConversionThreadPool();
    EXPECT_EQ(RaisedMessage([] { Globals::ConversionThreadPool()->ThreadCount(); }),
              L"Pointer <Quilon_::System::Threading::IThreadPool> : attempt to access a 0 pointer");
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::Threading
