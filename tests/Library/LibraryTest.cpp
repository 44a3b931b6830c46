#include "Quilon_/Library.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include "../Support/MapTranslator.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::LibraryTests {

using namespace Quilon_::System;

// Keeps what it is given; the tests read it back.
class CRecordingErrorManager : public Template::ObjectImpl<CRecordingErrorManager, IErrorManager> {
public:
    void Warn(Pointer<IException, 1>, WarningLevelEnum, Any) override {}
    void Warn(Pointer<IException, 1>, WarningLevelEnum) override {}
    Pointer<IException, 0> TakeLastError() override { return std::exchange(lastError, nullptr); }
    void SetLastError(Pointer<IException, 0> error) override
    {
        lastError = error;
        ++setCount;
    }
    Pointer<IWarningEventArgs, 0> LastWarning() override { return nullptr; }

    Pointer<IException, 0> lastError;
    int setCount = 0;
};

class CRecordingTraceManager
    : public Template::ObjectImpl<CRecordingTraceManager, Diagnostic::ITraceManager> {
public:
    void Trace(const std::wstring& message, const std::wstring&, const std::wstring&, const std::wstring&,
               std::int64_t) override
    {
        messages.push_back(message);
    }
    void Trace(const std::wstring& message, const std::wstring&) override { messages.push_back(message); }

    std::vector<std::wstring> messages;
};

// Every test leaves the three managers unset, as the process starts.
class LibraryTest : public ::testing::Test {
protected:
    void SetUp() override { Library::ErrorManager()->TakeLastError(); }
    void TearDown() override
    {
        Library::SetErrorManager(nullptr);
        Library::SetTraceManager(nullptr);
        Library::SetTranslator(nullptr);
        Library::ErrorManager()->TakeLastError();
    }
};

TEST_F(LibraryTest, VersionIs4401)
{
    EXPECT_EQ(Library::Version(), 4401);
}

TEST_F(LibraryTest, ManagersWorkWithNothingSet)
{
    Pointer<IException, 1> error = Exception::New(L"e", L"f()", L"x.cpp", 1);
    Library::ErrorManager()->SetLastError(error);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == error);

    EXPECT_NO_THROW(Library::TraceManager()->Trace(L"message", L"Category"));
    EXPECT_NO_THROW(Library::TraceManager()->Trace(L"message", L"Category", L"f()", L"x.cpp", 3));

    EXPECT_EQ(Library::Translator()->Translate(L"Viewer.ds.Image viewer"), L"Image viewer");
}

TEST_F(LibraryTest, SetErrorManagerIsReturnedAndRecordsRaisedExceptions)
{
    auto* recording = new CRecordingErrorManager;
    Pointer<IErrorManager, 1> manager(recording);
    Library::SetErrorManager(manager);
    EXPECT_TRUE(Library::ErrorManager() == manager);

    Pointer<IException, 1> made = QUILON_MAKE_EXCEPTION(L"Recorded");
    EXPECT_EQ(recording->setCount, 1);
    EXPECT_TRUE(recording->lastError == made);

    // Only the manager that is set has seen it.
    Library::SetErrorManager(nullptr);
    EXPECT_FALSE(Library::ErrorManager() == manager);
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError() == made);
}

TEST_F(LibraryTest, SetTraceManagerIsReturnedUntilReset)
{
    auto* recording = new CRecordingTraceManager;
    Pointer<Diagnostic::ITraceManager, 1> manager(recording);
    Library::SetTraceManager(manager);
    EXPECT_TRUE(Library::TraceManager() == manager);
    Library::TraceManager()->Trace(L"seen", L"Category");
    EXPECT_EQ(recording->messages, std::vector<std::wstring>{L"seen"});

    Library::SetTraceManager(nullptr);
    EXPECT_FALSE(Library::TraceManager() == manager);
}

TEST_F(LibraryTest, SetTranslatorIsReturnedUntilReset)
{
    {
        ScopedTranslator translator(L"Open", L"Öffnen");
        EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Öffnen");
    }
    EXPECT_EQ(Library::Translator()->Translate(L"Open"), L"Open");
}

} // namespace Quilon_::Tests::LibraryTests
