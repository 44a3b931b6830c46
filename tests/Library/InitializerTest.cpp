// Ranked initialisers and finalisers: the rank check, the order of the
// queues, and how Library::LoadLibraryW handles an initialiser that fails.
#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Initializer.h"
#include "Quilon_/System/Raise.h"

#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "../Support/StartupPlugins.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace Quilon_::Tests::InitializerTests {

using namespace Quilon_::System;

// Queues of the tests' own, emptied by each test at its start.
struct TestQueues {
    static void Clear()
    {
        Initializers() = {};
        Finalizers() = {};
    }
    static Initializer::InitializerQueue& Initializers()
    {
        static Initializer::InitializerQueue queue;
        return queue;
    }
    static Initializer::FinalizerQueue& Finalizers()
    {
        static Initializer::FinalizerQueue queue;
        return queue;
    }
};

std::vector<std::string> steps;

template <int Rank>
void Initialize()
{
    steps.push_back("initialize " + std::to_string(Rank));
}

template <int Rank>
void Finalize()
{
    steps.push_back("finalize " + std::to_string(Rank));
}

// Registers an initialiser of a lower rank than its own while it runs, as a
// library loaded from an initialiser would.
void InitializeAndAddOne()
{
    Initialize<2>();
    Template::Initializer<TestQueues>(&Initialize<1>, &Finalize<1>, 0.01f);
}

TEST(Initializer, RanksUpToOneAreAcceptedAndNegativeOnesToo)
{
    TestQueues::Clear();
    Template::Initializer<TestQueues>(nullptr, nullptr, 1.0f);
    Template::Initializer<TestQueues>(nullptr, nullptr, -1.0f);
    EXPECT_EQ(RaisedMessage([] { Template::Initializer<TestQueues>(nullptr, nullptr, 1.5f); }),
              L"Initializer rank is out of range: '1.5' (expected a value between 0 and 1)");
    EXPECT_EQ(TestQueues::Initializers().size(), 2u);
    EXPECT_EQ(TestQueues::Initializers().top().rank, -1.0f);
    EXPECT_FLOAT_EQ(Initializer::RankAfter({0.2f, 0.4f}), 0.41f);
}

TEST(Initializer, RunsUpByRankPicksUpNewEntriesAndFinalizesDownReportingEachRankOnce)
{
    TestQueues::Clear();
    Template::Initializer<TestQueues>(&Initialize<50>, &Finalize<50>, 0.5f);
    Template::Initializer<TestQueues>(&InitializeAndAddOne, &Finalize<2>, 0.02f);
    Template::Initializer<TestQueues>(&Initialize<90>, &Finalize<90>, 0.9f);
    Template::Initializer<TestQueues>(&Initialize<50>, &Finalize<50>, 0.5f);
    Template::Initializer<TestQueues>(nullptr, &Finalize<30>, 0.3f);

    steps.clear();
    Initializer::RunInitializers<TestQueues>();
    EXPECT_EQ(steps, (std::vector<std::string>{"initialize 2", "initialize 1", "initialize 50", "initialize 50",
                                               "initialize 90"}));

    steps.clear();
    StartupPlugins::progressCalls.clear();
    Initializer::RunFinalizers<TestQueues>(&StartupPlugins::RecordProgress);
    EXPECT_EQ(steps, (std::vector<std::string>{"finalize 90", "finalize 50", "finalize 50", "finalize 30",
                                               "finalize 2", "finalize 1"}));
    EXPECT_EQ(StartupPlugins::progressCalls, (std::vector<float>{0.9f, 0.5f, 0.3f, 0.02f, 0.0f}));
    EXPECT_EQ(TestQueues::Initializers().size(), 6u) << "back in place for the next start";
}

int neverRun = 0;

void NeverRun()
{
    ++neverRun;
}

TEST(LibraryStartup, AFailingInitializerOfTheStartPropagatesLeftToBeInitializedAndFinalized)
{
    InChildProcess([] {
        Library::SetInitializationFileName(L"/nonexistent/Quilon.xml");
        void (*const fail)() = [] { QUILON_RAISE(L"Cannot start"); };
        Template::Initializer<Library>(&Initialize<10>, nullptr, 0.1f);
        Template::Initializer<Library>(fail, nullptr, 0.2f);
        Template::Initializer<Library>(&NeverRun, nullptr, 0.3f);
        EXPECT_EQ(RaisedMessage([] { Library::Initialize(); }), L"Cannot start");
        EXPECT_EQ(InitializationState(), 1) << "the start stops where the initialiser failed";
        EXPECT_EQ(AddMemoryPressureFunction, &AddMemoryPressure);
        EXPECT_EQ(Library::Initializers().top().initialize, fail);
        EXPECT_EQ(Library::Finalizers().top().initialize, fail);
        EXPECT_EQ(neverRun, 0);
    });
}

TEST(LibraryLoading, AFailedInitializerIsReportedAndDiscardsEveryPendingEntry)
{
    InChildProcess([] {
        Template::Initializer<Library>(nullptr, &NeverRun, 0.5f);
        const std::wstring prefix = L"Failed to initialize library 'libQuilon_.TestThrower.so'\n";
        const std::pair<void (*)(), std::wstring> cases[] = {
            {[] { throw std::runtime_error("standard failure"); }, L"standard failure"},
            {[] { QUILON_RAISE(L"raised failure"); }, L"raised failure"},
            {[] { throw 42; }, L"Unknown exception"},
        };
        for (const auto& [initialize, reason] : cases) {
            Template::Initializer<Library>(initialize, &NeverRun, 0.2f);
            Template::Initializer<Library>(&NeverRun, &NeverRun, 0.6f);
            Pointer<IException, 0> error;
            Library::LoadLibraryW(L"libQuilon_.TestThrower.so", error);
            ASSERT_TRUE(error);
            EXPECT_EQ(error->Message(), prefix + reason);
            EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == error) << "reported";
            EXPECT_TRUE(Library::Initializers().empty());
            EXPECT_TRUE(Library::Finalizers().empty());
        }
        Library::Finalize();
        EXPECT_EQ(neverRun, 0);
    });
}

TEST(LibraryLoading, ANameIsListedUnlessItOccursInAnEntryInAnyCase)
{
    InChildProcess([] {
        const std::wstring entry = L"plugins/LIBQUILON_.TESTTHROWER.SO.1";
        Library::SetLibraries({entry});
        Library::LoadLibraryW(L"libQuilon_.TestThrower.so");
        EXPECT_EQ(Library::Libraries(), std::vector<std::wstring>{entry});

        const std::wstring path = ToString(QUILON_TEST_LIB_DIR "/libQuilon_.TestThrower.so");
        Library::LoadLibraryW(path);
        EXPECT_EQ(Library::Libraries(), (std::vector<std::wstring>{entry, path}));

        EXPECT_EQ(RaisedMessage([] { Library::LoadLibraryW(L"/nonexistent/libQuilon_.TestThrower.so"); }),
                  L"Failed to load library '/nonexistent/libQuilon_.TestThrower.so'\n"
                  L"/nonexistent/libQuilon_.TestThrower.so: cannot open shared object file: No such file or directory");
        EXPECT_EQ(Library::Libraries().size(), 2u) << "a library that failed to load is not listed";
    });
}

} // namespace Quilon_::Tests::InitializerTests
