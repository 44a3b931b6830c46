// Ranges of doubles: a minimum and a maximum. The concrete class lives in an
// implementation library, which registers it on RangeD::New:
//
//   Pointer<Math::IRangeD> bytes = Math::RangeD::New(0, 255);
//   bytes->Maximum();   // 255
#pragma once

#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Math {

class QUILON_API IRangeD : public virtual System::Interface {
    QUILON_INTERFACE(IRangeD)
public:
    virtual double Minimum() = 0;
    virtual void SetMinimum(double value) = 0;
    virtual double Maximum() = 0;
    virtual void SetMaximum(double value) = 0;
};

namespace RangeD {

// The two ways of making a range, each an operator named "New".
class QUILON_API Factory {
public:
    using Empty = System::Pointer<IRangeD, 1> (*)();
    using Bounded = System::Pointer<IRangeD, 1> (*)(double minimum, double maximum);

    System::Pointer<IRangeD, 1> operator()() const { return New1(); }
    System::Pointer<IRangeD, 1> operator()(double minimum, double maximum) const { return New2(minimum, maximum); }

    System::Functions::Template::Function<Empty> New1{L"New"};
    System::Functions::Template::Function<Bounded> New2{L"New"};
};

extern QUILON_API Factory New;

} // namespace RangeD

} // namespace Quilon_::Math
