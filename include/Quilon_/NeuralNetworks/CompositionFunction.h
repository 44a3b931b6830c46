// How a neuron combines its inputs with its weights before activation:
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<ICompositionFunction> sum = CompositionFunctions::WeightedSum::New();
//   double net = sum->Compose({1.0, 0.5}, {0.2, -0.4});   // 0.2 - 0.2
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <vector>

namespace Quilon_::NeuralNetworks {

class QUILON_API ICompositionFunction : public virtual System::Interface {
    QUILON_INTERFACE(ICompositionFunction)
public:
    virtual double Compose(const std::vector<double>& inputs, const std::vector<double>& weights) = 0;
};

} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::CompositionFunctions {

class QUILON_API IWeightedSum : public virtual ICompositionFunction {
    QUILON_INTERFACE(IWeightedSum)
};

namespace WeightedSum {
using Factory = System::Functions::Template::Factory<System::Ref<IWeightedSum>()>;
extern QUILON_API Factory New;
} // namespace WeightedSum

} // namespace Quilon_::NeuralNetworks::CompositionFunctions
