// The deviations of a network over a set of samples, evaluated by any cost
// measure; what termination conditions and the storer of the best networks
// read at each epoch:
//
//   System::Ref<NeuralNetworks::IDeviationsEvaluator> evaluator =
//       NeuralNetworks::DeviationsEvaluator::New(network, System::ToAny(base));
//   double cost = evaluator->Evaluate(Math::DeviationEvaluationFunctions::MeanSquareError::New());
#pragma once

#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::NeuralNetworks {

class INeuralNetwork;

class QUILON_API IDeviationsEvaluator : public virtual System::Interface {
    QUILON_INTERFACE(IDeviationsEvaluator)
public:
    virtual System::Ref<INeuralNetwork> Network() = 0;
    // The samples, as given to New.
    virtual System::Any Samples() = 0;
    // The cost of the network's outputs over the samples; computed once per
    // function until Reset.
    virtual double Evaluate(System::Ref<Math::IDeviationEvaluationFunction> function) = 0;
    // Forgets the outputs computed, after the network changed.
    virtual void Reset() = 0;
};

namespace DeviationsEvaluator {
// (network, samples).
using Factory = System::Functions::Template::Factory<System::Ref<IDeviationsEvaluator>(
    System::Ref<INeuralNetwork>, const System::Any&)>;
extern QUILON_API Factory New;
} // namespace DeviationsEvaluator

} // namespace Quilon_::NeuralNetworks
