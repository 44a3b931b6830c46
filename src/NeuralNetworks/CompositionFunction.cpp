#include "Quilon_/NeuralNetworks/CompositionFunction.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(ICompositionFunction, L"Quilon_::NeuralNetworks::ICompositionFunction",
                             System::Interface)

namespace CompositionFunctions {

QUILON_DEFINE_INTERFACE_TYPE(IWeightedSum, L"Quilon_::NeuralNetworks::CompositionFunctions::IWeightedSum",
                             ICompositionFunction)

WeightedSum::Factory WeightedSum::New;

} // namespace CompositionFunctions

} // namespace Quilon_::NeuralNetworks
