// The library's managers: the ones set are used, and a reset brings back the default.
#include "Quilon_/Library.h"
// The whole public surface compiles in one translation unit.
#include "Quilon_/Quilon_.h"
#include "Quilon_/System/Raise.h"

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

TEST(LibraryTest, ManagersSetAreUsedUntilReset)
{
    EXPECT_EQ(Library::Version(), 4401);
    auto* errors = new CRecordingErrorManager;
    Library::SetErrorManager(Pointer<IErrorManager, 1>(errors));
    Pointer<IException, 1> made = QUILON_MAKE_EXCEPTION(L"Recorded");
    EXPECT_TRUE(errors->lastError == made);
    Library::SetErrorManager(nullptr);
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError() == made) << "only the manager set has seen it";

    {
        ScopedTranslator german(L"Open", L"Öffnen");
        EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Öffnen");
    }
    EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Open");
}

} // namespace Quilon_::Tests::LibraryTests
