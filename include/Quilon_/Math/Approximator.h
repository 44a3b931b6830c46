// Comparison of doubles within a tolerance, as geometry compares
// coordinates. Each thread has its own default approximator, so a thread
// can loosen or tighten the tolerance without disturbing the others:
//
//   Pointer<Math::IApproximator> near = Math::Approximator::New(0.001);
//   near->Equal(1.0005, 1.0);    // true
//   near->Round(2.5);            // 2, and -3 for -2.5
//
//   Math::Approximator::DefaultApproximator()->Floor(x);
//
// A thread's first read of the default copies the process-wide
// approximator; a write from the main thread replaces the process-wide one
// as well, so that threads started later see it. The library that supplies
// the concrete classes sets the first tolerance during its start-up; until
// then the tolerance is 0.
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>

namespace Quilon_::Math {

enum RoundingMethodEnumTag : std::int32_t {
    rmFloor = 0,
    rmToInteger = 1,
    rmCeiling = 2,
    rmRound = 3,
};
using RoundingMethodEnum = RoundingMethodEnumTag;

// With eps the tolerance, the comparisons are strict against the widened or
// narrowed bound: Greater(x, y) is x > y + eps, Equal(x, y) is |x - y| < eps.
class QUILON_API IApproximator : public virtual System::Interface {
    QUILON_INTERFACE(IApproximator)
public:
    virtual double Epsilon() = 0;
    virtual void SetEpsilon(double epsilon) = 0;
    virtual bool Greater(double x, double y) = 0;
    virtual bool Less(double x, double y) = 0;
    virtual bool GreaterOrEqual(double x, double y) = 0;
    virtual bool LessOrEqual(double x, double y) = 0;
    virtual bool Equal(double x, double y) = 0;
    virtual bool IsInteger(double x) = 0;
    virtual std::int64_t Floor(double x) = 0;
    // Truncation towards zero, after moving x eps away from zero.
    virtual std::int64_t ToInteger(double x) = 0;
    virtual std::int64_t Ceiling(double x) = 0;
    // Half away from zero less eps on both sides: 2.5 gives 2, -2.5 gives -3.
    virtual std::int64_t Round(double x) = 0;
    // Floor(x) + 0.5.
    virtual double PixelCenter(double x) = 0;
    // By `method`; a value that is no method rounds as ToInteger.
    virtual std::int64_t Round(double x, RoundingMethodEnum method) = 0;
    // Moves x onto the integer it is within eps of, rounding as Round, and
    // tells whether it did.
    virtual bool Snap(double& x) = 0;
};

namespace Approximator {

// New() takes the tolerance of the calling thread's default approximator.
using Factory = System::Functions::Template::Factory<System::Pointer<IApproximator, 1>(),
                                                     System::Pointer<IApproximator, 1>(double)>;
extern QUILON_API Factory New;

// The calling thread's approximator.
QUILON_API System::Pointer<IApproximator, 1> DefaultApproximator();
// Replaces the calling thread's approximator, and on the main thread the
// process-wide one too.
QUILON_API void SetDefaultApproximator(System::Pointer<IApproximator, 1> approximator);
// Drops every thread's approximator and puts back a process-wide one of
// tolerance 0.
QUILON_API void ClearDefaultApproximator();

} // namespace Approximator

} // namespace Quilon_::Math
