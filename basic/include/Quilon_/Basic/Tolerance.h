// The tolerance that the reference library gives the process-wide
// approximator when it starts: coordinates closer than a millionth of a
// pixel count as equal.
//
//   Library::Initialize();   // with libQuilon_.Basic.so in the list
//   Math::Approximator::DefaultApproximator()->Epsilon();   // Basic::DefaultTolerance
#pragma once

namespace Quilon_::Basic {

inline constexpr double DefaultTolerance = 1e-6;

} // namespace Quilon_::Basic
