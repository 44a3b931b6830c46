// Generators of network classifiers: train a given network with a learning
// engine, or search the size of a one-hidden-layer network with an
// optimizer. The concrete generators come from an implementation library:
//
//   using namespace Quilon_::NeuralNetworks::Classification;
//   System::Ref<INeuralNetworkClassifierGenerator> generator =
//       NeuralNetworkClassifierGenerator::New(network, engine, cost);
//   System::Ref<Math::Classification::IClassifier> classifier = generator->Generate(base);
#pragma once

#include "Quilon_/Math/Classification/Classifier.h"
#include "Quilon_/System/Event.h"

#include <cstdint>

namespace Quilon_::Math {
class IDeviationEvaluationFunction;
} // namespace Quilon_::Math

namespace Quilon_::NeuralNetworks {
class ILearningEngine;
class INeuralNetwork;
class ISingleLayerNetworkOptimizer;
} // namespace Quilon_::NeuralNetworks

namespace Quilon_::NeuralNetworks::Classification {

// Where a generator is in its run.
enum NeuralNetworkClassifierGeneratorStageEnumTag : std::int32_t {
    nncgsStarted = 0,
    nncgsEpochCompleted = 1,
    nncgsCompleted = 2,
};
using NeuralNetworkClassifierGeneratorStageEnum = NeuralNetworkClassifierGeneratorStageEnumTag;

class QUILON_API INeuralNetworkClassifierGeneratorEventArgs : public virtual System::Interface {
    QUILON_INTERFACE(INeuralNetworkClassifierGeneratorEventArgs)
public:
    virtual NeuralNetworkClassifierGeneratorStageEnum Stage() = 0;
    virtual std::int64_t Epoch() = 0;
    virtual double Cost() = 0;
    virtual System::Pointer<INeuralNetwork, 0> Network() = 0;
    // Set by a handler to stop the generation.
    virtual bool& Cancel() = 0;
};

using NeuralNetworkClassifierGeneratorEvent =
    System::Event<System::Ref<INeuralNetworkClassifierGeneratorEventArgs>>;

class QUILON_API INeuralNetworkClassifierGenerator
    : public virtual Math::Classification::IClassifierGenerator {
    QUILON_INTERFACE(INeuralNetworkClassifierGenerator)
public:
    // The network trained; each generation starts from a copy of it.
    virtual System::Ref<INeuralNetwork> Network() = 0;
    virtual void SetNetwork(System::Ref<INeuralNetwork> network) = 0;
    virtual System::Ref<ILearningEngine> InnerLearningEngine() = 0;
    virtual void SetInnerLearningEngine(System::Ref<ILearningEngine> engine) = 0;
    virtual System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> function) = 0;
    virtual void Cancel() = 0;
    virtual bool IsGenerating() = 0;
    virtual NeuralNetworkClassifierGeneratorEvent& Progress() = 0;
};

class QUILON_API ISingleLayerNetworkClassifierGenerator
    : public virtual Math::Classification::IClassifierGenerator {
    QUILON_INTERFACE(ISingleLayerNetworkClassifierGenerator)
public:
    virtual System::Ref<ISingleLayerNetworkOptimizer> Optimizer() = 0;
    virtual void SetOptimizer(System::Ref<ISingleLayerNetworkOptimizer> optimizer) = 0;
    virtual System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction() = 0;
    virtual void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> function) = 0;
    virtual void Cancel() = 0;
    virtual NeuralNetworkClassifierGeneratorEvent& Progress() = 0;
};

namespace NeuralNetworkClassifierGenerator {

// (network, learning engine, cost).
using Factory = System::Functions::Template::Factory<System::Ref<INeuralNetworkClassifierGenerator>(
    System::Ref<INeuralNetwork>, System::Ref<ILearningEngine>,
    System::Ref<Math::IDeviationEvaluationFunction>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// Empty until a library sets them; reading them then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
QUILON_API System::Ref<ILearningEngine> InnerLearningEngine();
QUILON_API void SetInnerLearningEngine(System::Ref<ILearningEngine> value);
} // namespace DefaultValues

} // namespace NeuralNetworkClassifierGenerator

namespace SingleLayerNetworkClassifierGenerator {

// (optimizer, cost).
using Factory = System::Functions::Template::Factory<System::Ref<ISingleLayerNetworkClassifierGenerator>(
    System::Ref<ISingleLayerNetworkOptimizer>, System::Ref<Math::IDeviationEvaluationFunction>)>;
extern QUILON_API Factory New;

namespace DefaultValues {
// Empty until a library sets them; reading them then raises.
QUILON_API System::Ref<Math::IDeviationEvaluationFunction> DeviationEvaluationFunction();
QUILON_API void SetDeviationEvaluationFunction(System::Ref<Math::IDeviationEvaluationFunction> value);
QUILON_API System::Ref<ISingleLayerNetworkOptimizer> Optimizer();
QUILON_API void SetOptimizer(System::Ref<ISingleLayerNetworkOptimizer> value);
} // namespace DefaultValues

} // namespace SingleLayerNetworkClassifierGenerator

} // namespace Quilon_::NeuralNetworks::Classification
