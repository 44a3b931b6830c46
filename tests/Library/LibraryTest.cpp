// The library's managers: defaults when nothing is set, and the ones set.
#include "Quilon_/Library.h"
#include "Quilon_/System/Raise.h"

#include "../Support/KernelDoubles.h"
#include "../Support/ScopedTranslator.h"

#include <gtest/gtest.h>

#include <utility>

namespace Quilon_::Tests::LibraryTests {

using namespace Quilon_::System;

// Keeps the last error it is given.
class CRecordingErrorManager : public Template::ObjectImpl<CRecordingErrorManager, IErrorManager> {
public:
    void Warn(Pointer<IException, 1>, WarningLevelEnum, Any) override {}
    void Warn(Pointer<IException, 1>, WarningLevelEnum) override {}
    Pointer<IException, 0> TakeLastError() override { return std::exchange(lastError, nullptr); }
    void SetLastError(Pointer<IException, 0> error) override { lastError = error; }
    Pointer<IWarningEventArgs, 0> LastWarning() override { return nullptr; }
    Event<Pointer<IWarningEventArgs, 1>>& WarningRaised() override { return warningRaised; }

    Pointer<IException, 0> lastError;
    Event<Pointer<IWarningEventArgs, 1>> warningRaised{this};
};

TEST(LibraryTest, VersionAndDefaultManagers)
{
    EXPECT_EQ(Library::Version(), 4401);
    Pointer<IException, 1> made = QUILON_MAKE_EXCEPTION(L"Recorded");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == made);
    EXPECT_NO_THROW(Library::TraceManager()->Trace(L"message", L"Category", L"f()", L"x.cpp", 3));
    EXPECT_EQ(Library::Translator()->Translate(L"Viewer.ds.Image viewer"), L"Image viewer");
}

TEST(LibraryTest, ManagersSetAreUsedUntilReset)
{
    auto* errors = new CRecordingErrorManager;
    Pointer<IErrorManager, 1> errorManager(errors);
    Library::SetErrorManager(errorManager);
    EXPECT_TRUE(Library::ErrorManager() == errorManager);
    Pointer<IException, 1> made = QUILON_MAKE_EXCEPTION(L"Recorded");
    EXPECT_TRUE(errors->lastError == made);
    Library::SetErrorManager(nullptr);
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError() == made) << "only the manager set has seen it";

    Pointer<Diagnostic::ITraceManager, 1> traceManager(new Kernel::CRecordingTrace);
    Library::SetTraceManager(traceManager);
    EXPECT_TRUE(Library::TraceManager() == traceManager);
    Library::SetTraceManager(nullptr);
    EXPECT_FALSE(Library::TraceManager() == traceManager);

    {
        ScopedTranslator german(L"Open", L"Öffnen");
        EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Öffnen");
    }
    EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Open");
}

} // namespace Quilon_::Tests::LibraryTests
