#include "Quilon_/Library.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Raise.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace Quilon_::Tests::ErrorManagerTests {

using namespace Quilon_::System;

Pointer<IException, 1> MakeError(const wchar_t* message)
{
    return Exception::New(message, L"f()", L"e.cpp", 1);
}

// Each test starts with a fresh manager and no last error or warning on the
// main thread. The per-thread stores are process-wide, so they are cleared
// through the manager.
class ErrorManagerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_manager->TakeLastError();
        m_manager->Warn(MakeError(L"(reset)"), wlInformation);
    }
    void TearDown() override { m_manager->TakeLastError(); }

    Pointer<IErrorManager, 1> m_manager = ErrorManager::New();
};

// ---------------------------------------------------------------------------
// Last error

TEST_F(ErrorManagerTest, LastErrorIsTakenOnce)
{
    Pointer<IException, 1> error = MakeError(L"e");
    m_manager->SetLastError(error);
    EXPECT_TRUE(m_manager->TakeLastError() == error);
    EXPECT_FALSE(m_manager->TakeLastError());
}

TEST_F(ErrorManagerTest, SettingNullReplacesTheLastError)
{
    m_manager->SetLastError(MakeError(L"e"));
    m_manager->SetLastError(nullptr);
    EXPECT_FALSE(m_manager->TakeLastError());
}

TEST_F(ErrorManagerTest, LastErrorIsOneProcessWideRecordPerThread)
{
    // What one manager records, another one reads: Library::ErrorManager()
    // may make a new manager for each call.
    Pointer<IException, 1> error = MakeError(L"e");
    m_manager->SetLastError(error);
    EXPECT_TRUE(ErrorManager::New()->TakeLastError() == error);
}

TEST_F(ErrorManagerTest, EachThreadHasItsOwnLastError)
{
    Pointer<IException, 1> mine = MakeError(L"mine");
    Pointer<IException, 1> theirs = MakeError(L"theirs");
    m_manager->SetLastError(mine);

    Pointer<IException, 0> seenThere;
    Pointer<IException, 0> takenThere;
    std::thread other([&] {
        seenThere = m_manager->TakeLastError();
        m_manager->SetLastError(theirs);
        takenThere = m_manager->TakeLastError();
    });
    other.join();

    EXPECT_FALSE(seenThere == mine);
    EXPECT_TRUE(takenThere == theirs);
    EXPECT_TRUE(m_manager->TakeLastError() == mine);
}

// ---------------------------------------------------------------------------
// Warnings

TEST_F(ErrorManagerTest, WarningIsKeptWithLevelAndTagAndReadWithoutClearing)
{
    Pointer<IException, 1> warning = MakeError(L"w");
    m_manager->Warn(warning, wlSevere, ToAny(std::wstring(L"tag")));

    Pointer<IWarningEventArgs, 0> last = m_manager->LastWarning();
    ASSERT_TRUE(last);
    EXPECT_TRUE(last->Warning() == warning);
    EXPECT_EQ(last->Level(), wlSevere);
    EXPECT_EQ(last->Tag().CastTo<std::wstring>(), L"tag");
    EXPECT_TRUE(m_manager->LastWarning() == last);

    m_manager->Warn(warning, wlInformation);
    EXPECT_EQ(m_manager->LastWarning()->Level(), wlInformation);
    EXPECT_TRUE(m_manager->LastWarning()->Tag().IsEmpty());
    // A warning is not an error.
    EXPECT_FALSE(m_manager->TakeLastError());
}

TEST_F(ErrorManagerTest, EachThreadHasItsOwnLastWarning)
{
    Pointer<IException, 1> mine = MakeError(L"mine");
    m_manager->Warn(mine, wlWarning);

    Pointer<IException, 0> seenThere;
    std::thread other([&] {
        m_manager->Warn(MakeError(L"theirs"), wlWarning);
        seenThere = m_manager->LastWarning()->Warning();
    });
    other.join();

    EXPECT_EQ(seenThere->Message(), L"theirs");
    EXPECT_TRUE(m_manager->LastWarning()->Warning() == mine);
}

TEST_F(ErrorManagerTest, NullWarningRaisesAndLeavesTheManagerUsable)
{
    // The re-entry guard must be lowered again when a warning fails, or the
    // manager would drop every later warning.
    using Raised = Pointer<IException, 1>;
    EXPECT_THROW(m_manager->Warn(Raised(), wlWarning), Raised);
    Pointer<IException, 1> warning = MakeError(L"after");
    m_manager->Warn(warning, wlWarning);
    EXPECT_TRUE(m_manager->LastWarning()->Warning() == warning);
}

} // namespace Quilon_::Tests::ErrorManagerTests
