// Feed-forward neural networks: layers of neurons, each combining its
// inputs with its weights (composition function) and passing the result
// through an activation function. The concrete classes come from an
// implementation library, which also stores the defaults a network made
// without explicit settings takes:
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<INeuralNetwork> network = NeuralNetwork::New(std::int64_t(4), std::int64_t(3),
//   std::int64_t(10), true); std::vector<double> outputs = network->Compute({0.1, 0.5, 0.2, 0.9});
//   NeuralNetwork::DefaultValues::SetNeuronCount(20);
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Serialization::Binary {
class IWriter;
class IReader;
} // namespace Quilon_::System::Serialization::Binary

namespace Quilon_::NeuralNetworks {

class IActivationFunction;
class ICompositionFunction;
class IInitializer;
class INeuralNetwork;

class QUILON_API INeuron : public virtual System::Interface {
    QUILON_INTERFACE(INeuron)
public:
    virtual std::int64_t InputCount() = 0;
    virtual double Weight(std::int64_t input) = 0;
    virtual void SetWeight(std::int64_t input, double weight) = 0;
    virtual std::vector<double> Weights() = 0;
    virtual void SetWeights(const std::vector<double>& weights) = 0;
    virtual System::Ref<IActivationFunction> ActivationFunction() = 0;
    virtual void SetActivationFunction(System::Ref<IActivationFunction> function) = 0;
    virtual System::Ref<ICompositionFunction> CompositionFunction() = 0;
    virtual void SetCompositionFunction(System::Ref<ICompositionFunction> function) = 0;
    // The neuron's output for these inputs.
    virtual double Compute(const std::vector<double>& inputs) = 0;
};

class QUILON_API INeuronLayer : public virtual System::Collections::Template::ICollection<INeuron> {
    QUILON_INTERFACE(INeuronLayer)
public:
    virtual System::Pointer<INeuralNetwork, 0> Network() = 0;
    virtual std::int64_t InputCount() = 0;
    // The outputs of every neuron for these inputs, kept as Outputs().
    virtual std::vector<double> Compute(const std::vector<double>& inputs) = 0;
    virtual std::vector<double> Outputs() = 0;
    // Sets the function of every neuron of the layer.
    virtual void SetActivationFunction(System::Ref<IActivationFunction> function) = 0;
    virtual void SetCompositionFunction(System::Ref<ICompositionFunction> function) = 0;
    virtual void Initialize(System::Ref<IInitializer> initializer) = 0;
};

class QUILON_API INeuralNetwork : public virtual System::ICloneable {
    QUILON_INTERFACE(INeuralNetwork)
public:
    virtual std::int64_t InputCount() = 0;
    virtual std::int64_t OutputCount() = 0;
    // The hidden layers and the output layer, from the inputs on.
    virtual std::int64_t LayerCount() = 0;
    virtual System::Ref<INeuronLayer> Layer(std::int64_t index) = 0;
    virtual void AddLayer(System::Ref<INeuronLayer> layer) = 0;
    virtual void RemoveLayer(std::int64_t index) = 0;
    // A bias input of constant value feeds every neuron when enabled.
    virtual bool BiasEnabled() = 0;
    virtual void SetBiasEnabled(bool enabled) = 0;
    virtual double BiasValue() = 0;
    virtual void SetBiasValue(double value) = 0;
    virtual std::vector<double> Compute(const std::vector<double>& inputs) = 0;
    virtual void Initialize(System::Ref<IInitializer> initializer) = 0;
    virtual void Write(System::Ref<System::Serialization::Binary::IWriter> writer) = 0;
    virtual void Read(System::Ref<System::Serialization::Binary::IReader> reader) = 0;
};

namespace NeuralNetwork {

// (inputs, outputs, hidden neurons, bias): one hidden layer; or one count
// per hidden layer.
using Factory = System::Functions::Template::Factory<
    System::Ref<INeuralNetwork>(std::int64_t, std::int64_t, std::int64_t, bool),
    System::Ref<INeuralNetwork>(std::int64_t, std::int64_t, const std::vector<std::int64_t>&, bool)>;
extern QUILON_API Factory New;

namespace DefaultValues {
QUILON_API std::int64_t NeuronCount();
QUILON_API void SetNeuronCount(std::int64_t value);
QUILON_API bool BiasEnabled();
QUILON_API void SetBiasEnabled(bool value);
QUILON_API double BiasValue();
QUILON_API void SetBiasValue(double value);
// The object defaults are empty until a library sets them; the reference
// getters raise while they are.
QUILON_API System::Ref<IActivationFunction> ActivationFunction();
QUILON_API void SetActivationFunction(System::Ref<IActivationFunction> value);
// Empty: the output layer takes ActivationFunction().
QUILON_API System::Pointer<IActivationFunction, 0> OutputLayerActivationFunction();
QUILON_API void SetOutputLayerActivationFunction(System::Pointer<IActivationFunction, 0> value);
QUILON_API System::Ref<ICompositionFunction> CompositionFunction();
QUILON_API void SetCompositionFunction(System::Ref<ICompositionFunction> value);
QUILON_API System::Ref<IInitializer> WeightsInitializer();
QUILON_API void SetWeightsInitializer(System::Ref<IInitializer> value);
} // namespace DefaultValues

} // namespace NeuralNetwork

namespace Neuron {
// [1] with its weights.
using Factory = System::Functions::Template::Factory<System::Ref<INeuron>(),
                                                     System::Ref<INeuron>(const std::vector<double>&)>;
extern QUILON_API Factory New;
} // namespace Neuron

namespace NeuronLayer {
// A layer of the network given.
using Factory = System::Functions::Template::Factory<System::Ref<INeuronLayer>(System::Ref<INeuralNetwork>)>;
extern QUILON_API Factory New;
} // namespace NeuronLayer

} // namespace Quilon_::NeuralNetworks
