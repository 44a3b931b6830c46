// The error manager keeps one last error and one last warning per thread,
// process-wide: a new manager sees what another one recorded.
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Exception.h"

#include "../Support/EventDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace Quilon_::Tests::ErrorManagerTests {

using namespace Quilon_::System;

Pointer<IException, 1> MakeError(const wchar_t* message)
{
    return Exception::New(message, L"f()", L"e.cpp", 1);
}

TEST(ErrorManagerTest, LastErrorAndLastWarningArePerThread)
{
    Pointer<IErrorManager, 1> manager = ErrorManager::New();
    Pointer<IException, 1> error = MakeError(L"error"), warning = MakeError(L"warning");
    manager->SetLastError(error);
    manager->Warn(warning, wlSevere, ToAny(std::wstring(L"tag")));

    Pointer<IException, 0> errorThere, takenThere, warningThere;
    std::thread([&] {
        errorThere = manager->TakeLastError();
        manager->SetLastError(MakeError(L"theirs"));
        takenThere = manager->TakeLastError();
        manager->Warn(MakeError(L"theirs"), wlWarning);
        warningThere = manager->LastWarning()->Warning();
    }).join();
    EXPECT_FALSE(errorThere);
    EXPECT_EQ(takenThere->Message(), L"theirs");
    EXPECT_EQ(warningThere->Message(), L"theirs");

    // The error is taken once; the warning is read without clearing.
    EXPECT_TRUE(ErrorManager::New()->TakeLastError() == error);
    EXPECT_FALSE(manager->TakeLastError());
    Pointer<IWarningEventArgs, 0> last = manager->LastWarning();
    EXPECT_TRUE(last->Warning() == warning);
    EXPECT_EQ(last->Level(), wlSevere);
    EXPECT_EQ(last->Tag().CastTo<std::wstring>(), L"tag");
    EXPECT_TRUE(manager->LastWarning() == last);
}

TEST(ErrorManagerTest, NullWarningRaisesAndLeavesTheManagerUsable)
{
    // The re-entry guard must be lowered again when a warning fails, or the
    // manager would drop every later warning.
    Pointer<IErrorManager, 1> manager = ErrorManager::New();
    using Raised = Pointer<IException, 1>;
    EXPECT_THROW(manager->Warn(Raised(), wlWarning), Raised);
    manager->TakeLastError();
    manager->Warn(MakeError(L"after"), wlInformation);
    EXPECT_EQ(manager->LastWarning()->Level(), wlInformation);
}

TEST(ErrorManagerTest, WarningRaisedOnceEvenWhenAListenerWarnsAgain)
{
    Pointer<IErrorManager, 1> manager = ErrorManager::New();
    using Recorder = Events::CArgsRecorder<Pointer<IWarningEventArgs, 1>>;
    auto* listener = new Recorder;
    Events::Thing heldlistener(listener);
    manager->WarningRaised() += listener->Handler();
    listener->onCall = [&](Pointer<IWarningEventArgs, 1>&) { manager->Warn(MakeError(L"inner"), wlSevere); };

    Pointer<IException, 1> warning = MakeError(L"outer");
    manager->Warn(warning, wlWarning, ToAny(std::int64_t(7)));
    ASSERT_EQ(listener->received.size(), 1u);
    Pointer<IWarningEventArgs, 1> args = listener->received[0];
    EXPECT_TRUE(args->Warning() == warning);
    EXPECT_EQ(args->Tag().CastTo<std::int64_t>(), 7);
    // The listener saw the args that were kept as the last warning.
    EXPECT_TRUE(manager->LastWarning() == args);

    // The guard is down again after the firing.
    listener->onCall = nullptr;
    manager->Warn(MakeError(L"next"), wlInformation);
    EXPECT_EQ(listener->received.size(), 2u);
}

} // namespace Quilon_::Tests::ErrorManagerTests
