// Numbers written into samples: any boxed number, converted to the sample
// type with rounding and saturation.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Helper.h"

#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace Quilon_::Basic::Images {

template <class T>
struct IsComplex : std::false_type {
};
template <class T>
struct IsComplex<std::complex<T>> : std::true_type {
};

// `value` as a sample of type T: integers round to nearest and saturate,
// NaN gives 0.
template <class T>
T SampleFromDouble(double value)
{
    if constexpr (IsComplex<T>::value || std::is_floating_point_v<T>) {
        return T(value);
    } else {
        if (std::isnan(value))
            return T(0);
        value = std::nearbyint(value);
        constexpr double lowest = static_cast<double>(std::numeric_limits<T>::lowest());
        // The first double above the largest T: the largest T itself may not
        // be a double.
        constexpr double beyond = 2.0 * (static_cast<double>(std::numeric_limits<T>::max() / 2) + 1.0);
        if (value <= lowest)
            return std::numeric_limits<T>::lowest();
        if (value >= beyond)
            return std::numeric_limits<T>::max();
        return static_cast<T>(value);
    }
}

// An empty Any is 0; any other value is read as a number.
template <class T>
T SampleFromAny(const System::Any& value)
{
    return value.IsEmpty() ? T(0) : SampleFromDouble<T>(System::Helper::ScalarValue(value));
}

} // namespace Quilon_::Basic::Images
