#include "Quilon_/NeuralNetworks/BackPropagation/BestNeuralNetworks.h"

#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/DeviationsEvaluator.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Serialization/Binary/Writer.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation {

QUILON_DEFINE_INTERFACE_TYPE(IBestNeuralNetworkDatas,
                             L"Quilon_::NeuralNetworks::BackPropagation::IBestNeuralNetworkDatas",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBestNeuralNetworksStorer,
                             L"Quilon_::NeuralNetworks::BackPropagation::IBestNeuralNetworksStorer",
                             System::Interface)

BestNeuralNetworkDatas::Factory BestNeuralNetworkDatas::New;
BestNeuralNetworksStorer::Factory BestNeuralNetworksStorer::New;

} // namespace Quilon_::NeuralNetworks::BackPropagation
