// The raising sequence: translate, format, locate, record as the thread's
// last error, throw.
#include "Quilon_/System/Exception.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include "../Support/ScopedTranslator.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <string>

namespace Quilon_::Tests::ExceptionTests {

using namespace Quilon_::System;

int raisedLine = 0;

[[noreturn]] void RaiseValue(int value)
{
    raisedLine = __LINE__ + 1;
    QUILON_RAISE(L"Value %1%", value);
}

// Each test starts and ends with no last error on the main thread.
class ExceptionTest : public ::testing::Test {
protected:
    void SetUp() override { Library::ErrorManager()->TakeLastError(); }
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

TEST_F(ExceptionTest, RaisedExceptionIsLocatedAndIsTheThreadsLastErrorOnce)
{
    Pointer<IException, 0> e = Raised([] { RaiseValue(42); });
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Message(), L"Value 42");
    EXPECT_NE(e->Function().find(L"RaiseValue(int)"), std::wstring::npos) << ToAnsi(e->Function());
    EXPECT_EQ(e->File(), L"tests/System/ExceptionTest.cpp");
    EXPECT_EQ(e->Line(), raisedLine);
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == e);
    EXPECT_FALSE(Library::ErrorManager()->TakeLastError());
}

TEST_F(ExceptionTest, MessageIsTranslatedBeforeItIsFormatted)
{
    ScopedTranslator german(L"Value %1%", L"Wert %1%"); // the literal is the key
    EXPECT_EQ(RaisedMessage([] { RaiseValue(5); }), L"Wert 5");
}

TEST_F(ExceptionTest, CancellationThrownAsAnExceptionIsToldApart)
{
    Pointer<ICancelException, 1> cancel = CancelException::RawNew(L"Cancelled", L"f()", L"c.cpp", 7);
    Pointer<IException, 0> caught = Raised([&] { throw Pointer<IException, 1>(cancel); });
    EXPECT_TRUE((Pointer<ICancelException, 0>(caught) == cancel));
    EXPECT_FALSE((Pointer<ICancelException, 0>(Exception::New(L"m", L"f()", L"c.cpp", 7))));
}

} // namespace Quilon_::Tests::ExceptionTests
