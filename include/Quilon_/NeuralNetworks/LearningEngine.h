// Learning engines train a network on the learning samples of a base; a
// network optimizer searches the network size too, by running an inner
// engine on networks of one hidden layer of growing size. The concrete
// engines come from an implementation library:
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<ISingleLayerNetworkOptimizer> optimizer =
//       SingleLayerNetworkOptimizer::New(std::int64_t(4), std::int64_t(3), true);
//   System::Ref<INeuralNetwork> best = optimizer->Optimize(base);
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {
class IBase;
} // namespace Quilon_::Math::Classification

namespace Quilon_::NeuralNetworks {

class INeuralNetwork;

namespace BackPropagation {
class ITerminationCondition;
} // namespace BackPropagation

// How the learning samples are balanced between the classes: as they are,
// or repeated so that every class has as many as the largest.
enum BalanceLearnSamplesModeEnumTag : std::int32_t {
    blsmNone = 0,
    blsmRepeat = 1,
    blsmWeight = 2,
};
using BalanceLearnSamplesModeEnum = BalanceLearnSamplesModeEnumTag;

class QUILON_API ILearningEngine : public virtual System::Interface {
    QUILON_INTERFACE(ILearningEngine)
public:
    // Trains the network on the base's learning samples.
    virtual void Learn(System::Ref<INeuralNetwork> network,
                       System::Ref<Math::Classification::IBase> base) = 0;
    // The network being trained, or last trained.
    virtual System::Pointer<INeuralNetwork, 0> Network() = 0;
    // Stops the learning at the end of the current epoch.
    virtual void Cancel() = 0;
    virtual bool IsLearning() = 0;
    virtual std::int64_t EpochCount() = 0;
    // Whether part of the learning samples is kept aside for validation,
    // and which share.
    virtual bool SplitSamples() = 0;
    virtual void SetSplitSamples(bool split) = 0;
    virtual double ValidationRatio() = 0;
    virtual void SetValidationRatio(double ratio) = 0;
    virtual BalanceLearnSamplesModeEnum BalanceLearnSamplesMode() = 0;
    virtual void SetBalanceLearnSamplesMode(BalanceLearnSamplesModeEnum mode) = 0;
};

class QUILON_API INetworkOptimizer : public virtual ILearningEngine {
    QUILON_INTERFACE(INetworkOptimizer)
public:
    // The best network found for the base.
    virtual System::Ref<INeuralNetwork> Optimize(System::Ref<Math::Classification::IBase> base) = 0;
    virtual System::Ref<ILearningEngine> InnerLearningEngine() = 0;
    virtual void SetInnerLearningEngine(System::Ref<ILearningEngine> engine) = 0;
    virtual System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> function) = 0;
    virtual System::Pointer<INeuralNetwork, 0> BestNetwork() = 0;
};

class QUILON_API ISingleLayerNetworkOptimizer : public virtual INetworkOptimizer {
    QUILON_INTERFACE(ISingleLayerNetworkOptimizer)
public:
    // The hidden layer sizes tried, from MinNeurons to MaxNeurons.
    virtual std::int64_t MinNeurons() = 0;
    virtual void SetMinNeurons(std::int64_t count) = 0;
    virtual std::int64_t MaxNeurons() = 0;
    virtual void SetMaxNeurons(std::int64_t count) = 0;
    // Whether the best size is trained once more to confirm it.
    virtual bool ConfirmResult() = 0;
    virtual void SetConfirmResult(bool confirm) = 0;
    virtual bool StopIfEvaluationIncrease() = 0;
    virtual void SetStopIfEvaluationIncrease(bool stop) = 0;
    // One output neuron rather than two for two classes.
    virtual bool UseOneNeuronIfTwoClasses() = 0;
    virtual void SetUseOneNeuronIfTwoClasses(bool useOne) = 0;
    virtual std::int64_t BestNeuronCount() = 0;
    // The cost reached by each size tried.
    virtual std::vector<double> Evaluations() = 0;
};

// What an engine tells at the end of each epoch.
class QUILON_API IEpochCompletedEventArgs : public virtual System::Interface {
    QUILON_INTERFACE(IEpochCompletedEventArgs)
public:
    virtual std::int64_t Epoch() = 0;
    // Whether this epoch ends the learning.
    virtual bool IsLastEpoch() = 0;
    virtual System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual double Cost() = 0;
    virtual System::Ref<INeuralNetwork> Network() = 0;
    // The condition that ended the learning, if one did.
    virtual System::Pointer<BackPropagation::ITerminationCondition, 0> TerminationCondition() = 0;
    // Set by a handler to stop the learning.
    virtual bool& Cancel() = 0;
};

using EpochCompletedEvent = System::Event<System::Ref<IEpochCompletedEventArgs>>;

namespace EpochCompletedEventArgs {
// (epoch, last epoch, cost function, cost, network, terminating condition).
using Factory = System::Functions::Template::Factory<System::Ref<IEpochCompletedEventArgs>(
    std::int64_t, bool, System::Ref<Math::IDeviationEvaluationFunction>, double, System::Ref<INeuralNetwork>,
    System::Pointer<BackPropagation::ITerminationCondition, 0>)>;
extern QUILON_API Factory New;
} // namespace EpochCompletedEventArgs

namespace SingleLayerNetworkOptimizer {

// (inputs, outputs, bias).
using Factory = System::Functions::Template::Factory<System::Ref<ISingleLayerNetworkOptimizer>(
    std::int64_t, std::int64_t, bool)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// v >= 1, else "Invalid neurons count : %1%.".
QUILON_API std::int64_t MinNeurons();
QUILON_API void SetMinNeurons(std::int64_t value);
QUILON_API std::int64_t MaxNeurons();
QUILON_API void SetMaxNeurons(std::int64_t value);
QUILON_API bool SplitSamples();
QUILON_API void SetSplitSamples(bool value);
// 0 <= v <= 1, else "Invalid validation ratio : %1%.".
QUILON_API double ValidationRatio();
QUILON_API void SetValidationRatio(double value);
QUILON_API bool ConfirmResult();
QUILON_API void SetConfirmResult(bool value);
QUILON_API bool StopIfEvaluationIncrease();
QUILON_API void SetStopIfEvaluationIncrease(bool value);
QUILON_API bool UseOneNeuronIfTwoClasses();
QUILON_API void SetUseOneNeuronIfTwoClasses(bool value);
QUILON_API BalanceLearnSamplesModeEnum BalanceLearnSamplesMode();
QUILON_API void SetBalanceLearnSamplesMode(BalanceLearnSamplesModeEnum value);
// Empty until a library sets them; reading them then raises.
QUILON_API System::Ref<ILearningEngine> InnerLearningEngine();
QUILON_API void SetInnerLearningEngine(System::Ref<ILearningEngine> value);
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
} // namespace DefaultValues

} // namespace SingleLayerNetworkOptimizer

} // namespace Quilon_::NeuralNetworks

namespace Quilon_::System {
QUILON_API Any ToAny(NeuralNetworks::BalanceLearnSamplesModeEnum value);
} // namespace Quilon_::System
