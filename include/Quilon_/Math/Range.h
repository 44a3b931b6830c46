// Ranges: a minimum and a maximum, of integers (IRange) or of doubles
// (IRangeD). The concrete classes live in an implementation library, which
// registers them on Range::New and RangeD::New:
//
//   Pointer<Math::IRangeD> bytes = Math::RangeD::New(0.0, 255.0);
//   bytes->Maximum();   // 255
//   Pointer<Math::IRange> radii = Math::Range::New(std::int64_t(3), std::int64_t(12));
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>

namespace Quilon_::Math {

class QUILON_API IRange : public virtual System::Interface {
    QUILON_INTERFACE(IRange)
public:
    virtual std::int64_t Minimum() = 0;
    virtual void SetMinimum(std::int64_t value) = 0;
    virtual std::int64_t Maximum() = 0;
    virtual void SetMaximum(std::int64_t value) = 0;
};

class QUILON_API IRangeD : public virtual System::Interface {
    QUILON_INTERFACE(IRangeD)
public:
    virtual double Minimum() = 0;
    virtual void SetMinimum(double value) = 0;
    virtual double Maximum() = 0;
    virtual void SetMaximum(double value) = 0;
};

namespace Range {
// An empty range is [0, 0].
using Factory = System::Functions::Template::Factory<System::Pointer<IRange, 1>(),
                                                     System::Pointer<IRange, 1>(std::int64_t, std::int64_t)>;
extern QUILON_API Factory New;
} // namespace Range

namespace RangeD {
using Factory = System::Functions::Template::Factory<System::Pointer<IRangeD, 1>(),
                                                     System::Pointer<IRangeD, 1>(double, double)>;
extern QUILON_API Factory New;
} // namespace RangeD

} // namespace Quilon_::Math
