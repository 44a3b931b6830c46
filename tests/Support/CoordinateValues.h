// The values of a coordinates object as a plain vector, for comparing
// positions in geometry suites:
//
//   EXPECT_EQ(ValuesOf(Coordinates::Add(a, b)), (std::vector<std::int64_t>{3, 4}));
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Tests {

template <class I>
std::vector<typename I::ValueType> ValuesOf(const System::Pointer<I, 1>& coordinates)
{
    std::vector<typename I::ValueType> values;
    for (std::int64_t i = 0; i < coordinates->AxisCount(); ++i)
        values.push_back(coordinates->Value(i));
    return values;
}

} // namespace Quilon_::Tests
