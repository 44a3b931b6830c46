// Start-up and shut-down of the whole library from an initialisation file,
// with real plug-ins loaded by dlopen. Each test starts the library in a
// child process of its own: start-up happens once per process.
#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"

#include "../Support/InChildProcess.h"
#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"
#include "../Support/StartupPlugins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace Quilon_::Tests::InitializationTests {

using namespace Quilon_::System;
using Strings = std::vector<std::wstring>;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::wstring fixtures = ToString(QUILON_TEST_FIXTURES_DIR);
const std::wstring missing = L"libQuilon_.TestMissing.so";
const std::wstring failing = L"libQuilon_.TestFailing.so";
const std::wstring recorder = L"libQuilon_.TestRecorder.so";
const std::wstring thrower = L"libQuilon_.TestThrower.so";

// The trace manager of the child, which keeps the steps the plug-ins record.
Kernel::CRecordingTrace& RecordSteps()
{
    auto* trace = new Kernel::CRecordingTrace;
    Library::SetTraceManager(Pointer<Diagnostic::ITraceManager, 0>(trace));
    return *trace;
}

Strings Steps(const Kernel::CRecordingTrace& trace)
{
    Strings steps;
    for (const auto& [message, category] : trace.traced) {
        if (category == StartupPlugins::Category)
            steps.push_back(message);
    }
    return steps;
}

// The recorder's steps at a start, its global entries and the one that runs
// its own queue (0.7) in the order of rank; a shut-down runs them backwards.
Strings RecorderSteps(const std::wstring& step, int state)
{
    Strings steps;
    for (const wchar_t* entry : {L"global 0.3", L"global 0.3", L"private 0.2", L"private 0.5", L"global 0.95"})
        steps.push_back(L"Recorder: " + step + L" " + entry + L" in state " + std::to_wstring(state));
    if (step == L"finalize")
        std::reverse(steps.begin(), steps.end());
    return steps;
}

bool IsLoaded(const std::wstring& library)
{
    void* handle = dlopen((QUILON_TEST_LIB_DIR "/" + ToAnsi(library)).c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

TEST(LibraryStartup, LoadsTheFilesLibrariesInOrderReportsFailuresAndFinalizesInReverseRank)
{
    InChildProcess([] {
        Kernel::CRecordingTrace& trace = RecordSteps();
        Library::SetInitializationFileName(fixtures + L"/Startup.xml");
        std::vector<Pointer<IException, 1>> errors;
        Library::Initialize(errors);

        EXPECT_EQ(InitializationState(), 4);
        EXPECT_EQ(Library::Libraries(), (Strings{missing, failing, recorder, thrower}));
        ASSERT_EQ(errors.size(), 2u);
        EXPECT_THAT(errors[0]->Message(), StartsWith(L"Failed to load library '" + missing + L"'\n"));
        EXPECT_THAT(errors[0]->Message(), HasSubstr(missing + L": cannot open shared object file"));
        EXPECT_EQ(errors[1]->Message(),
                  L"Failed to initialize library '" + failing + L"'\nThe failing plug-in cannot start");
        EXPECT_TRUE(IsLoaded(recorder) && IsLoaded(thrower)) << "libraries after a failure still load";
        // The failing library's initialiser of rank 0.9 never runs.
        Strings started = RecorderSteps(L"initialize", 3);
        started.insert(started.begin(), L"Failing: initialize 0.1 in state 3");
        EXPECT_EQ(Steps(trace), started);

        // Operators filled by the recorder: one of its own, one of the core.
        EXPECT_EQ(Library::Translator()->Translate(StartupPlugins::GreetingKey), StartupPlugins::GreetingText);
        const auto entries = Functions::FunctionRegistry::Entries();
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [](const auto& e) { return e.name == StartupPlugins::DecorateName; });
        ASSERT_NE(entry, entries.end());
        using Decorate = Functions::Template::Function<std::wstring (*)(const std::wstring&)>;
        auto* decorate = dynamic_cast<const Decorate*>(entry->function);
        ASSERT_NE(decorate, nullptr);
        EXPECT_EQ(decorate->ImplementationCount(), 2u);
        EXPECT_EQ((*decorate)(L"x"), L"'x'") << "the implementation registered last comes first";

        // Only what registered after the failure is finalised: the failing
        // library's finaliser and the core's entry went with it.
        trace.traced.clear();
        StartupPlugins::progressCalls.clear();
        Library::Finalize(&StartupPlugins::RecordProgress);
        // The recorder's own finaliser, its entry at 0.7, ends in state -1:
        // the global finalisers ranked below it see the library finalised.
        Strings finalized = RecorderSteps(L"finalize", 4);
        finalized[3] = finalized[4] = L"Recorder: finalize global 0.3 in state -1";
        EXPECT_EQ(Steps(trace), finalized);
        EXPECT_EQ(StartupPlugins::progressCalls, (std::vector<float>{0.95f, 0.7f, 0.0f})) << "once per rank";
        EXPECT_EQ(InitializationState(), -1);
        int destructions = 0;
        Pointer<Kernel::IThing, 0>(new Kernel::CThing(&destructions));
        EXPECT_EQ(destructions, 0) << "after Finalize a last release destroys nothing";

        // The finalised entries run again at the next start; the file is not
        // read again, and the libraries are only loaded again.
        trace.traced.clear();
        errors.clear();
        Library::Initialize(errors);
        EXPECT_EQ(Steps(trace), RecorderSteps(L"initialize", 1));
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_THAT(errors[0]->Message(), StartsWith(L"Failed to load library '" + missing + L"'"));
        Pointer<Kernel::IThing, 0>(new Kernel::CThing(&destructions));
        EXPECT_EQ(destructions, 1);
    });
}

TEST(LibraryStartup, TheDefaultFileBesideTheCoreNamesTheReferenceLibrary)
{
    InChildProcess([] {
        std::filesystem::path name = Library::InitializationFileName();
        EXPECT_EQ(name.filename(), "Quilon.xml");
        EXPECT_TRUE(std::filesystem::equivalent(name.parent_path(), QUILON_TEST_LIB_DIR));
        Library::Initialize();
        EXPECT_EQ(Library::Libraries(), (Strings{L"libQuilon_.Basic.so"}));
        EXPECT_TRUE(IsLoaded(L"libQuilon_.Basic.so"));
    });
}

TEST(LibraryStartup, AMissingOrMalformedFileStartsWithoutLibrariesAndIsReadOnce)
{
    for (const std::wstring& file : {fixtures + L"/Missing.xml", fixtures + L"/Malformed.xml"}) {
        InChildProcess([&] {
            Library::SetInitializationFileName(file);
            Library::Initialize();
            EXPECT_TRUE(Library::Libraries().empty());
            EXPECT_EQ(InitializationState(), 4);

            Library::SetInitializationFileName(fixtures + L"/Startup.xml");
            Library::Initialize();
            EXPECT_TRUE(Library::Libraries().empty()) << "the file is read once";
        });
    }
}

// The list set by the application takes the place of the file's.
TEST(LibraryStartup, InitializeWithoutAListThrowsTheFirstFailureAfterTryingEveryLibrary)
{
    InChildProcess([] {
        const std::wstring missingToo = L"libQuilon_.TestMissingToo.so";
        Library::SetInitializationFileName(fixtures + L"/Startup.xml");
        Library::SetLibraries({missing, thrower, missingToo});
        Pointer<IException, 0> thrown = Raised([] { Library::Initialize(); });
        ASSERT_TRUE(thrown);
        EXPECT_THAT(thrown->Message(), StartsWith(L"Failed to load library '" + missing + L"'"));
        EXPECT_TRUE(IsLoaded(thrower));
        EXPECT_FALSE(IsLoaded(recorder));
        EXPECT_EQ(Library::Libraries(), (Strings{missing, thrower, missingToo}));
        EXPECT_EQ(InitializationState(), 4);
        Pointer<IException, 0> last = Library::ErrorManager()->TakeLastError();
        ASSERT_TRUE(last);
        EXPECT_THAT(last->Message(), StartsWith(L"Failed to load library '" + missingToo + L"'"))
            << "every failure was reported";
    });
}

} // namespace Quilon_::Tests::InitializationTests
