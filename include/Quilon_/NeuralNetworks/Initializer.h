// The initial weights of networks: an initializer visits the network's
// neurons; the random one draws weights uniformly in a range from a seed.
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<IRandomInitializer> random = RandomInitializer::New(-0.5, 0.5, std::int64_t(7));
//   network->Initialize(random);
//   RandomInitializer::DefaultValues::SetSeed(7);   // also srand(7)
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::NeuralNetworks {

class INeuralNetwork;
class INeuronLayer;
class INeuron;

class QUILON_API IInitializer : public virtual System::Interface {
    QUILON_INTERFACE(IInitializer)
public:
    virtual void InitializeNetwork(System::Ref<INeuralNetwork> network) = 0;
    virtual void InitializeLayer(System::Ref<INeuronLayer> layer) = 0;
    virtual void InitializeNeuron(System::Ref<INeuron> neuron) = 0;
    // The next weight the initializer gives.
    virtual double NextWeight() = 0;
    // Whether the weights of bias inputs are initialised too.
    virtual bool InitializesBias() = 0;
    virtual void SetInitializesBias(bool initializes) = 0;
};

class QUILON_API IRandomInitializer : public virtual IInitializer {
    QUILON_INTERFACE(IRandomInitializer)
public:
    virtual System::Ref<Math::IRangeD> Range() = 0;
    virtual std::int64_t Seed() = 0;
};

namespace RandomInitializer {

// (minimum, maximum, seed).
using Factory =
    System::Functions::Template::Factory<System::Ref<IRandomInitializer>(double, double, std::int64_t)>;
extern QUILON_API Factory New;

namespace DefaultValues {
QUILON_API double Minimum();
QUILON_API void SetMinimum(double value);
QUILON_API double Maximum();
QUILON_API void SetMaximum(double value);
QUILON_API std::int64_t Seed();
// Stores the seed and seeds the process's rand() with it.
QUILON_API void SetSeed(std::int64_t value);
} // namespace DefaultValues

} // namespace RandomInitializer

} // namespace Quilon_::NeuralNetworks
