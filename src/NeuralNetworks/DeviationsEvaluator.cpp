#include "Quilon_/NeuralNetworks/DeviationsEvaluator.h"

#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(IDeviationsEvaluator, L"Quilon_::NeuralNetworks::IDeviationsEvaluator",
                             System::Interface)

DeviationsEvaluator::Factory DeviationsEvaluator::New;

} // namespace Quilon_::NeuralNetworks
