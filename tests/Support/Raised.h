// The exception that a piece of code raises, for asserting messages, and a
// fixture for suites that raise on purpose:
//
//   using AnyCast = Tests::RaisingTest;
//   TEST_F(AnyCast, ...) { EXPECT_EQ(Tests::RaisedMessage([&] { any.CastTo<int>(); }), L"..."); }
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/System/Exception.h"

#include <gtest/gtest.h>

#include <string>

namespace Quilon_::Tests {

// What `code` throws as Pointer<IException,1>; null, and a test failure,
// when it returns normally.
template <class Code>
System::Pointer<System::IException, 0> Raised(Code&& code)
{
    try {
        code();
    } catch (const System::Pointer<System::IException, 1>& exception) {
        return exception;
    }
    ADD_FAILURE() << "expected a raised IException";
    return nullptr;
}

// The message of what `code` raises; empty when it raises nothing.
template <class Code>
std::wstring RaisedMessage(Code&& code)
{
    System::Pointer<System::IException, 0> exception = Raised(code);
    return exception ? exception->Message() : std::wstring();
}

// Takes the thread's last error after each test, so that what one test
// raised is not seen by the next.
class RaisingTest : public ::testing::Test {
protected:
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }
};

} // namespace Quilon_::Tests
