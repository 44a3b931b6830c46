// Keeping the best network met while learning: for each deviation function,
// the network of least cost so far, written through a binary writer with
// its epoch and cost.
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   System::Ref<IBestNeuralNetworksStorer> storer = BestNeuralNetworksStorer::New(functions, true);
//   storer->Store(network, epoch, evaluator);
//   storer->Datas(0)->Cost();
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::System::Serialization::Binary {
class IWriter;
} // namespace Quilon_::System::Serialization::Binary

namespace Quilon_::NeuralNetworks {
class INeuralNetwork;
class IDeviationsEvaluator;
} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::BackPropagation {

class QUILON_API IBestNeuralNetworkDatas : public virtual System::Interface {
    QUILON_INTERFACE(IBestNeuralNetworkDatas)
public:
    virtual System::Ref<System::Serialization::Binary::IWriter> Writer() = 0;
    virtual std::int64_t Epoch() = 0;
    virtual double Cost() = 0;
    // Keeps the network when its cost is lower than the best so far (or
    // not higher, with lessOrEqual); whether it was kept.
    virtual bool Update(System::Ref<INeuralNetwork> network, std::int64_t epoch, double cost) = 0;
    virtual System::Pointer<INeuralNetwork, 0> Network() = 0;
};

class QUILON_API IBestNeuralNetworksStorer : public virtual System::Interface {
    QUILON_INTERFACE(IBestNeuralNetworksStorer)
public:
    // One record per deviation function, in the order given.
    virtual std::int64_t Count() = 0;
    virtual System::Ref<IBestNeuralNetworkDatas> Datas(std::int64_t index) = 0;
    virtual void Store(System::Ref<INeuralNetwork> network, std::int64_t epoch,
                       System::Ref<IDeviationsEvaluator> deviations) = 0;
};

namespace BestNeuralNetworkDatas {
// (writer, epoch, cost).
using Factory = System::Functions::Template::Factory<System::Ref<IBestNeuralNetworkDatas>(
    System::Ref<System::Serialization::Binary::IWriter>, std::int64_t, double)>;
extern QUILON_API Factory New;
} // namespace BestNeuralNetworkDatas

namespace BestNeuralNetworksStorer {
// (deviation functions, less or equal).
using Factory = System::Functions::Template::Factory<System::Ref<IBestNeuralNetworksStorer>(
    const std::vector<System::Ref<Math::IDeviationEvaluationFunction>>&, bool)>;
extern QUILON_API Factory New;
} // namespace BestNeuralNetworksStorer

} // namespace Quilon_::NeuralNetworks::BackPropagation
