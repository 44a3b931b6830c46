// Allocation and the memory-pressure counters with the host's manager.
#include "Quilon_/Library.h"
#include "Quilon_/System/Allocator.h"
#include "Quilon_/System/MemoryManager.h"
#include "Quilon_/System/ObjectImpl.h"

#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>
#include <vector>

namespace Quilon_::Tests::MemoryTests {

using namespace Quilon_::System;

// Keeps each call as ('+' | '-' | 'g', bytes). With `reenter`, telling it of
// added pressure adds more, as a manager that allocates would.
class CRecordingMemoryManager : public Template::ObjectImpl<CRecordingMemoryManager, IMemoryManager> {
public:
    void AddMemoryPressure(std::uint64_t bytes) override
    {
        calls.emplace_back('+', bytes);
        if (reenter)
            System::AddMemoryPressure(1);
    }
    void RemoveMemoryPressure(std::uint64_t bytes) override { calls.emplace_back('-', bytes); }
    void ForceGarbageCollection() override { calls.emplace_back('g', 0); }

    std::vector<std::pair<char, std::uint64_t>> calls;
    bool reenter = false;
};

using Calls = std::vector<std::pair<char, std::uint64_t>>;

TEST(MemoryPressure, IsPassedOnInStepsOfHalfAMebibyteAndCountedWithoutAManager)
{
    auto* manager = new CRecordingMemoryManager;
    Library::SetMemoryManager(Pointer<IMemoryManager, 0>(manager));
    // Whatever is pending from before crosses a step either way; afterwards
    // nothing is.
    AddMemoryPressure(0x80000);
    RemoveMemoryPressure(0x80000);
    manager->calls.clear();
    const std::uint64_t allocated = AllocatedMemorySize();

    AddMemoryPressure(524287);
    EXPECT_TRUE(manager->calls.empty());
    AddMemoryPressure(1);
    RemoveMemoryPressure(524287);
    EXPECT_EQ(manager->calls, (Calls{{'+', 524288}}));
    RemoveMemoryPressure(1);
    ForceGarbageCollection();
    EXPECT_EQ(manager->calls, (Calls{{'+', 524288}, {'-', 524288}, {'g', 0}}));
    EXPECT_EQ(AllocatedMemorySize(), allocated);

    // A manager that allocates while it is told comes back on the same
    // thread, and starts a new batch.
    manager->reenter = true;
    AddMemoryPressure(0x80000);
    EXPECT_EQ(manager->calls.back(), std::make_pair('+', std::uint64_t(0x80000)));
    EXPECT_EQ(AllocatedMemorySize(), allocated + 0x80001);
    manager->reenter = false;
    RemoveMemoryPressure(0x80001);

    // Without a manager the counter still follows, and what crosses a step
    // is dropped.
    manager->calls.clear();
    Pointer<IMemoryManager, 0> held = Library::MemoryManager();
    Library::SetMemoryManager(nullptr);
    AddMemoryPressure(0x80005);
    EXPECT_EQ(AllocatedMemorySize(), allocated + 0x80005);
    ForceGarbageCollection();
    Library::SetMemoryManager(held);
    AddMemoryPressure(1);
    EXPECT_TRUE(manager->calls.empty());
    RemoveMemoryPressure(0x80006);
    Library::SetMemoryManager(nullptr);
}

TEST(Allocator, ByteArraysAndTheFailurePaths)
{
    EXPECT_EQ(UnsafeArrayAllocator<char>::New(0), nullptr);
    char* bytes = UnsafeArrayAllocator<char>::New(16);
    ASSERT_NE(bytes, nullptr);
    std::memset(bytes, 0x5A, 16); // the sanitizer build checks the bounds
    UnsafeArrayAllocator<char>::Delete(bytes);
    EXPECT_EQ(bytes, nullptr);

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // The sanitizers end the process on a request this large instead of
    // failing it.
    const std::uint64_t tooMuch = std::uint64_t(1) << 62;
    EXPECT_EQ(RaisedMessage([&] { UnsafeArrayAllocator<char>::New(tooMuch); }),
              L"Memory allocation failed (4611686018427387904 bytes requested)");
    Pointer<IException, 0> outOfMemory = Raised([&] { Allocator::Allocate(tooMuch); });
    EXPECT_TRUE(outOfMemory == Exception::OutOfMemory()) << "the one made in advance";
    EXPECT_EQ(outOfMemory->Message(), L"Not enough memory to complete the operation");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == outOfMemory);
#endif

}

} // namespace Quilon_::Tests::MemoryTests
