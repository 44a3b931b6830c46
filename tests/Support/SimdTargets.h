// Runs a check once per instruction set that this processor supports, with
// the reference library's vectorised kernels forced to it, so that every
// variant of a kernel is compared with its scalar reference on the machine
// that runs the tests, AVX-512 or not.
//
//   ForEachSimdTarget([&](const std::string& target) {
//       SCOPED_TRACE(target);
//       Erode(input, output, element);
//       EXPECT_EQ(Samples(output), reference);
//   });
//
// The choice lives in Highway's shared library, which the reference library
// and the test program both load, so forcing it here reaches the kernels of
// a library started in this process. The normal choice is restored after
// the last target.
#pragma once

#include <hwy/targets.h>

#include <cstdint>
#include <string>

namespace Quilon_::Testing {

template <class Check>
void ForEachSimdTarget(Check&& check)
{
    const std::int64_t supported = hwy::SupportedTargets();
    for (std::int64_t rest = supported; rest != 0; rest &= rest - 1) {
        const std::int64_t target = rest & -rest;
        hwy::SetSupportedTargetsForTest(target);
        check(std::string(hwy::TargetName(target)));
    }
    hwy::SetSupportedTargetsForTest(0);
}

} // namespace Quilon_::Testing
