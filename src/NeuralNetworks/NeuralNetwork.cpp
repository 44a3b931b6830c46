#include "Quilon_/NeuralNetworks/NeuralNetwork.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/NeuralNetworks/ActivationFunction.h"
#include "Quilon_/NeuralNetworks/CompositionFunction.h"
#include "Quilon_/NeuralNetworks/Initializer.h"
#include "Quilon_/System/Serialization/Binary/Reader.h"
#include "Quilon_/System/Serialization/Binary/Writer.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(INeuron, L"Quilon_::NeuralNetworks::INeuron", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(INeuronLayer, L"Quilon_::NeuralNetworks::INeuronLayer",
                             System::Collections::Template::ICollection<INeuron>)
QUILON_DEFINE_INTERFACE_TYPE(INeuralNetwork, L"Quilon_::NeuralNetworks::INeuralNetwork", System::ICloneable)

namespace {
// The typed collection view of a layer is registered by name during static
// construction too.
[[maybe_unused]] const System::Type* const neuronLayerViewType =
    &System::Collections::Template::ICollection<INeuron>::GetType();
} // namespace

Neuron::Factory Neuron::New;
NeuronLayer::Factory NeuronLayer::New;

namespace NeuralNetwork {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_VALUE(NeuronCount, SetNeuronCount, std::int64_t, 50)
QUILON_DEFINE_DEFAULT_VALUE(BiasEnabled, SetBiasEnabled, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(BiasValue, SetBiasValue, double, 1.0)
QUILON_DEFINE_DEFAULT_OBJECT(ActivationFunction, SetActivationFunction, IActivationFunction)
QUILON_DEFINE_OPTIONAL_DEFAULT_OBJECT(OutputLayerActivationFunction, SetOutputLayerActivationFunction,
                                      IActivationFunction)
QUILON_DEFINE_DEFAULT_OBJECT(CompositionFunction, SetCompositionFunction, ICompositionFunction)
QUILON_DEFINE_DEFAULT_OBJECT(WeightsInitializer, SetWeightsInitializer, IInitializer)
} // namespace DefaultValues

} // namespace NeuralNetwork

} // namespace Quilon_::NeuralNetworks
