// Closed intervals of doubles, as thresholds and clipping take them. An
// interval is a value once made: it has no setters.
//
//   Pointer<Math::IIntervalD> band = Math::IntervalD::New(0.25, 0.75);
//   band->Contains(0.75);                         // true: both ends belong to it
//   Math::IntervalD::New(std::int64_t(3));         // [3, 3], the one grey value 3
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>

namespace Quilon_::Math {

class QUILON_API IIntervalD : public virtual System::Interface {
    QUILON_INTERFACE(IIntervalD)
public:
    virtual double Minimum() = 0;
    virtual double Maximum() = 0;
    // minimum <= value <= maximum; never true for NaN.
    virtual bool Contains(double value) = 0;
};

namespace IntervalD {
// New() is [0, 0]; New(v) is [v, v]; New(a, b) is [a, b] as given.
using Factory = System::Functions::Template::Factory<System::Pointer<IIntervalD, 1>(),
                                                     System::Pointer<IIntervalD, 1>(std::int64_t),
                                                     System::Pointer<IIntervalD, 1>(double, double)>;
extern QUILON_API Factory New;
} // namespace IntervalD

} // namespace Quilon_::Math
