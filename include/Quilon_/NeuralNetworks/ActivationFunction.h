// Activation functions of neurons, and the kinds the implementation library
// provides:
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<ActivationFunctions::ISigmoid> sigmoid = ActivationFunctions::Sigmoid::New(1.0);
//   double y = sigmoid->Value(0.5);
//   System::Pointer<IFastDerived, 0> fast(sigmoid);   // derivative from the output
#pragma once

#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::NeuralNetworks {

class QUILON_API IActivationFunction : public virtual System::Interface {
    QUILON_INTERFACE(IActivationFunction)
public:
    virtual double Value(double x) = 0;
    virtual double Derivative(double x) = 0;
    // The values the function takes; empty when unbounded.
    virtual System::Pointer<Math::IRangeD, 0> OutputRange() = 0;
};

// An activation function whose derivative is quick to find from its value,
// which back-propagation has at hand.
class QUILON_API IFastDerived : public virtual System::Interface {
    QUILON_INTERFACE(IFastDerived)
public:
    virtual double DerivativeFromValue(double y) = 0;
};

} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::ActivationFunctions {

class QUILON_API IIdentity : public virtual IActivationFunction {
    QUILON_INTERFACE(IIdentity)
};

// Maps the input range linearly onto the output range.
class QUILON_API ILinear : public virtual IActivationFunction {
    QUILON_INTERFACE(ILinear)
public:
    virtual System::Ref<Math::IRangeD> InputRange() = 0;
    virtual void SetInputRange(System::Ref<Math::IRangeD> range) = 0;
    virtual System::Ref<Math::IRangeD> LinearOutputRange() = 0;
    virtual void SetLinearOutputRange(System::Ref<Math::IRangeD> range) = 0;
};

class QUILON_API ISigmoid : public virtual IActivationFunction, public virtual IFastDerived {
    QUILON_INTERFACE(ISigmoid)
public:
    virtual double Slope() = 0;
    virtual void SetSlope(double slope) = 0;
};

class QUILON_API IHyperbolicTangent : public virtual IActivationFunction {
    QUILON_INTERFACE(IHyperbolicTangent)
public:
    virtual double Slope() = 0;
    virtual void SetSlope(double slope) = 0;
};

// The range's minimum below the threshold, its maximum from it on.
class QUILON_API IThreshold : public virtual IActivationFunction {
    QUILON_INTERFACE(IThreshold)
public:
    virtual System::Ref<Math::IRangeD> Levels() = 0;
    virtual double Threshold() = 0;
    virtual void SetThreshold(double threshold) = 0;
};

namespace Identity {
using Factory = System::Functions::Template::Factory<System::Ref<IIdentity>()>;
extern QUILON_API Factory New;
} // namespace Identity

namespace Linear {
// (input range, output range).
using Factory = System::Functions::Template::Factory<System::Ref<ILinear>(System::Ref<Math::IRangeD>,
                                                                          System::Ref<Math::IRangeD>)>;
extern QUILON_API Factory New;
} // namespace Linear

namespace Sigmoid {
// (slope).
using Factory = System::Functions::Template::Factory<System::Ref<ISigmoid>(double)>;
extern QUILON_API Factory New;
} // namespace Sigmoid

namespace HyperbolicTangent {
// (slope).
using Factory = System::Functions::Template::Factory<System::Ref<IHyperbolicTangent>(double)>;
extern QUILON_API Factory New;
} // namespace HyperbolicTangent

namespace Threshold {
// (levels, threshold).
using Factory =
    System::Functions::Template::Factory<System::Ref<IThreshold>(System::Ref<Math::IRangeD>, double)>;
extern QUILON_API Factory New;
} // namespace Threshold

} // namespace Quilon_::NeuralNetworks::ActivationFunctions
