#include "Quilon_/Library.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include "../Support/MapTranslator.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

namespace Quilon_::Tests::ExceptionTests {

using namespace Quilon_::System;

// Where the helpers below raised, to compare with what the exception says.
std::string raisedFunction;
int raisedLine = 0;

[[noreturn]] void RaiseValue(int value)
{
    raisedFunction = QUILON_FUNCTION;
    raisedLine = __LINE__ + 1;
    QUILON_RAISE(L"Value %1%", value);
}

[[noreturn]] void RaiseWithTooFewArguments()
{
    raisedLine = __LINE__ + 1;
    QUILON_RAISE(L"Between %1% and %2%", 1);
}

// Each test starts and ends with no last error on the main thread.
class ExceptionTest : public ::testing::Test {
protected:
    void SetUp() override { Library::ErrorManager()->TakeLastError(); }
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

// ---------------------------------------------------------------------------
// Exception objects

TEST_F(ExceptionTest, NewAndRawNewKeepWhatTheyAreGiven)
{
    const std::int64_t line = std::int64_t(1) << 40;
    for (const Pointer<IException, 1>& e : {Exception::New(L"m", L"f()", L"a/b.cpp", line),
                                            Exception::RawNew(L"m", L"f()", L"a/b.cpp", line)}) {
        EXPECT_EQ(e->Message(), L"m");
        EXPECT_EQ(e->Function(), L"f()");
        EXPECT_EQ(e->File(), L"a/b.cpp");
        EXPECT_EQ(e->Line(), line);
        EXPECT_EQ(e->Details(), L"");
    }
    // Making an exception is not raising it.
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError());
}

TEST_F(ExceptionTest, CancelExceptionIsAnExceptionButNotTheOtherWayRound)
{
    Pointer<ICancelException, 1> cancel = CancelException::RawNew(L"Cancelled", L"f()", L"c.cpp", 7);
    Pointer<IException, 0> asException(cancel);
    ASSERT_TRUE(asException);
    EXPECT_EQ(asException->Message(), L"Cancelled");
    EXPECT_EQ(asException->Line(), 7);
    EXPECT_TRUE(ICancelException::GetType().IsImplementedBy(asException));

    Pointer<IException, 1> plain = Exception::New(L"m", L"f()", L"c.cpp", 7);
    EXPECT_FALSE((Pointer<ICancelException, 0>(plain)));

    // A cancellation thrown as a plain exception is still told apart.
    Pointer<IException, 0> caught = Raised([&] { throw Pointer<IException, 1>(cancel); });
    EXPECT_TRUE((Pointer<ICancelException, 0>(caught) == cancel));
}

TEST_F(ExceptionTest, OutOfMemoryIsOneObjectMadeAhead)
{
    Pointer<IException, 1> first = Exception::OutOfMemory();
    Pointer<IException, 1> second = Exception::OutOfMemory();
    EXPECT_TRUE(first == second);
    EXPECT_EQ(first->Message(), L"Not enough memory to complete the operation");
    EXPECT_EQ(first->File(), L"System/Exception.cpp");
}

// ---------------------------------------------------------------------------
// The raising sequence

TEST_F(ExceptionTest, RaisedExceptionCarriesFormattedMessageAndLocation)
{
    Pointer<IException, 0> e = Raised([] { RaiseValue(42); });
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Message(), L"Value 42");
    EXPECT_EQ(e->Function(), ToString(raisedFunction));
    EXPECT_NE(e->Function().find(L"RaiseValue(int)"), std::wstring::npos);
    EXPECT_EQ(e->File(), L"tests/System/ExceptionTest.cpp");
    EXPECT_EQ(e->Line(), raisedLine);
}

TEST_F(ExceptionTest, RaisedExceptionIsTheThreadsLastErrorOnce)
{
    Pointer<IException, 0> e = Raised([] { RaiseValue(1); });
    ASSERT_TRUE(e);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == e);
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError());
}

TEST_F(ExceptionTest, OtherThreadsNeitherSeeNorReplaceTheLastError)
{
    Pointer<IException, 0> mine = Raised([] { RaiseValue(1); });
    Pointer<IException, 0> seenThere;
    Pointer<IException, 0> raisedThere;
    Pointer<IException, 0> lastThere;
    std::thread other([&] {
        seenThere = Library::ErrorManager()->TakeLastError();
        raisedThere = Raised([] { RaiseValue(2); });
        lastThere = Library::ErrorManager()->TakeLastError();
    });
    other.join();

    EXPECT_FALSE(seenThere == mine);
    ASSERT_TRUE(raisedThere);
    EXPECT_TRUE(lastThere == raisedThere);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == mine);
}

TEST_F(ExceptionTest, MakeExceptionRecordsWithoutThrowing)
{
    Pointer<IException, 1> made = QUILON_MAKE_EXCEPTION(L"Level %1% of %2%", 3, L"five");
    EXPECT_EQ(made->Message(), L"Level 3 of five");
    EXPECT_EQ(made->File(), L"tests/System/ExceptionTest.cpp");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == made);
}

TEST_F(ExceptionTest, MessageIsTranslatedBeforeItIsFormatted)
{
    ScopedTranslator translator(L"Value %1%", L"Wert %1%");
    Pointer<IException, 0> e = Raised([] { RaiseValue(5); });
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Message(), L"Wert 5");

    // The literal is the key, not the formatted text.
    std::vector<std::wstring> requested = translator->Requested();
    EXPECT_NE(std::find(requested.begin(), requested.end(), L"Value %1%"), requested.end());
    EXPECT_EQ(std::find(requested.begin(), requested.end(), L"Value 5"), requested.end());
}

TEST_F(ExceptionTest, FormatThatDoesNotFitItsArgumentsIsStillRaisedAndLocated)
{
    Pointer<IException, 0> e = Raised(&RaiseWithTooFewArguments);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Message().rfind(L"Format failed for format string 'Between %1% and %2%' (exception = '", 0), 0u)
        << ToAnsi(e->Message());
    EXPECT_EQ(e->File(), L"tests/System/ExceptionTest.cpp");
    EXPECT_EQ(e->Line(), raisedLine);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == e);
}

} // namespace Quilon_::Tests::ExceptionTests
