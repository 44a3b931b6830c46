// The pool and timer factories, empty until a library registers on them,
// and the two process-wide pools.
#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/ThreadPool.h"
#include "Quilon_/System/Threading/Timer.h"

#include "../../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::IThreadPool;
using System::Threading::IThreadPoolJob;
using System::Threading::IThreadPoolTask;
using testing::StartsWith;
namespace Globals = System::Threading::Globals;

class CIdlePool : public System::Template::ObjectImpl<CIdlePool, IThreadPool> {
public:
    explicit CIdlePool(std::int64_t threads) : m_threads(threads) {}
    Pointer<IThreadPoolJob> Queue(Pointer<IThreadPoolTask>) override { return Pointer<IThreadPoolJob>(); }
    std::int64_t ThreadCount() override { return m_threads; }
    void WaitAll() override {}
    void CancelAll() override {}
    std::int64_t PendingCount() override { return 0; }

private:
    std::int64_t m_threads;
};

Pointer<IThreadPool> NewIdlePool(std::int64_t threads)
{
    return Pointer<IThreadPool>(new CIdlePool(threads));
}

TEST(ThreadPoolTest, FactoriesMakeNothingUntilALibraryRegisters)
{
    EXPECT_THAT(RaisedMessage([] { System::Threading::ThreadPool::New(2); }),
                StartsWith(L"No implementation available for function 'New' ("));
    EXPECT_THAT(RaisedMessage([] { System::Threading::Timer::New(); }),
                StartsWith(L"No implementation available for function 'New' ("));
    Library::ErrorManager()->TakeLastError();

    System::Threading::ThreadPool::New.Register(&NewIdlePool);
    EXPECT_EQ(System::Threading::ThreadPool::New(3)->ThreadCount(), 3);
    System::Threading::ThreadPool::New.Unregister(&NewIdlePool);
}

TEST(ThreadPoolTest, PoolSettingsAreSharedByAllThreads)
{
    Pointer<IThreadPool> pool = NewIdlePool(2);
    std::thread([&] { Globals::SetConversionThreadPool(pool); }).join();
    EXPECT_TRUE(Globals::ConversionThreadPool() == pool);
    EXPECT_FALSE(Globals::ProcessingThreadPool());

    Globals::ClearConversionThreadPool();
    Pointer<IThreadPool> cleared = Globals::ConversionThreadPool();
    EXPECT_FALSE(cleared);
    EXPECT_EQ(RaisedMessage([&] { cleared->ThreadCount(); }),
              L"Pointer <Quilon_::System::Threading::IThreadPool> : attempt to access a 0 pointer");
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::Threading
