// Runs a piece of a test in a forked child process, for tests of what
// happens once per process: start-up, the reading of the initialisation
// file, loading libraries, shut-down.
//
//   TEST(LibraryStartup, ReadsTheFileOnce)
//   {
//       Tests::InChildProcess([] {
//           Library::Initialize();
//           EXPECT_EQ(Library::Libraries().size(), 2u);
//       });
//   }
//
// The child reports its failures as the test would, on the same output, and
// the test fails with them. The child ends without running static
// destructors, so nothing it did reaches the parent.
#pragma once

#include "Quilon_/System/Exception.h"
#include "Quilon_/System/String.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <functional>

namespace Quilon_::Tests {

inline void InChildProcess(const std::function<void()>& body)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    ASSERT_NE(child, -1) << "fork failed";
    if (child == 0) {
        try {
            body();
        } catch (const System::Pointer<System::IException, 1>& failure) {
            ADD_FAILURE() << "raised: " << System::ToAnsi(failure->Message());
        } catch (const std::exception& failure) {
            ADD_FAILURE() << "thrown: " << failure.what();
        } catch (...) {
            ADD_FAILURE() << "an unknown exception was thrown";
        }
        std::fflush(nullptr);
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    const bool childSucceeded = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    EXPECT_TRUE(childSucceeded) << "the child process failed (status " << status << "); its failures are above";
}

} // namespace Quilon_::Tests
