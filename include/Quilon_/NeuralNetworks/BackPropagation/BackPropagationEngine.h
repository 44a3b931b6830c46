// Back-propagation engines: gradient descent with momentum, and RProp
// (each weight with its own step, grown while the gradient keeps its sign).
// The concrete engines come from an implementation library; the defaults
// below are what they take when made without explicit settings:
//
//   using namespace Quilon_::NeuralNetworks::BackPropagation;
//   GradientBackPropagationEngine::DefaultValues::SetLearningRate(0.05);
//   System::Ref<IGradientBackPropagationEngine> engine = GradientBackPropagationEngine::New();
//   engine->Learn(network, base);
#pragma once

#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"
#include "Quilon_/NeuralNetworks/LearningEngine.h"

#include <cstdint>
#include <vector>

namespace Quilon_::NeuralNetworks::BackPropagation {

class IBestNeuralNetworksStorer;

// When the weights change: after each sample, or once per epoch.
enum LearningModeEnumTag : std::int32_t {
    lmOnLine = 0,
    lmBatch = 1,
};
using LearningModeEnum = LearningModeEnumTag;

class QUILON_API IBackPropagationEngine : public virtual ILearningEngine,
                                          public virtual ITerminationConditionEvents {
    QUILON_INTERFACE(IBackPropagationEngine)
public:
    // Whether an epoch of equal cost counts as an improvement.
    virtual bool LessOrEqual() = 0;
    virtual void SetLessOrEqual(bool lessOrEqual) = 0;
    virtual System::Ref<ITerminationConditionCollection> TerminationConditions() = 0;
    virtual System::Ref<IBestNeuralNetworksStorer> BestNeuralNetworksStorer() = 0;
    virtual EpochCompletedEvent& EpochCompleted() = 0;
};

class QUILON_API IGradientBackPropagationEngine : public virtual IBackPropagationEngine {
    QUILON_INTERFACE(IGradientBackPropagationEngine)
public:
    virtual double LearningRate() = 0;
    virtual void SetLearningRate(double rate) = 0;
    virtual double Momentum() = 0;
    virtual void SetMomentum(double momentum) = 0;
    virtual LearningModeEnum LearningMode() = 0;
    virtual void SetLearningMode(LearningModeEnum mode) = 0;
    // Whether the samples are presented in a new random order each epoch.
    virtual bool RandomizeSamples() = 0;
    virtual void SetRandomizeSamples(bool randomize) = 0;
};

class QUILON_API IRPropGradientBackPropagationEngine : public virtual IBackPropagationEngine {
    QUILON_INTERFACE(IRPropGradientBackPropagationEngine)
public:
    virtual double LearningRate() = 0;
    virtual void SetLearningRate(double rate) = 0;
    virtual double Momentum() = 0;
    virtual void SetMomentum(double momentum) = 0;
    // Whether a step that changed the gradient's sign is taken back.
    virtual bool UseBackTracking() = 0;
    virtual void SetUseBackTracking(bool use) = 0;
    virtual double InitialUpdateValue() = 0;
    virtual void SetInitialUpdateValue(double value) = 0;
    virtual double MinUpdateValue() = 0;
    virtual void SetMinUpdateValue(double value) = 0;
    virtual double MaxUpdateValue() = 0;
    virtual void SetMaxUpdateValue(double value) = 0;
    virtual double UpdateValueIncreaseFactor() = 0;
    virtual void SetUpdateValueIncreaseFactor(double factor) = 0;
    virtual double UpdateValueDecreaseFactor() = 0;
    virtual void SetUpdateValueDecreaseFactor(double factor) = 0;
};

namespace BackPropagationEngine::DefaultValues {
QUILON_API bool SplitSamples();
QUILON_API void SetSplitSamples(bool value);
// 0 <= v <= 1, else "Invalid validation ratio : %1%.".
QUILON_API double ValidationRatio();
QUILON_API void SetValidationRatio(double value);
QUILON_API bool LessOrEqual();
QUILON_API void SetLessOrEqual(bool value);
QUILON_API BalanceLearnSamplesModeEnum BalanceLearnSamplesMode();
QUILON_API void SetBalanceLearnSamplesMode(BalanceLearnSamplesModeEnum value);
// Empty until a library sets it; reading it then raises. A collection
// without conditions is refused ("Invalid termination condition collection
// size.") and the one held stays.
QUILON_API System::Ref<ITerminationConditionCollection> TerminationConditionCollection();
QUILON_API void SetTerminationConditionCollection(System::Ref<ITerminationConditionCollection> value);
QUILON_API std::vector<System::Ref<Math::IDeviationEvaluationFunction>>
BestNeuralNetworksDeviationEvaluationFunctions();
QUILON_API void SetBestNeuralNetworksDeviationEvaluationFunctions(
    const std::vector<System::Ref<Math::IDeviationEvaluationFunction>>& value);
} // namespace BackPropagationEngine::DefaultValues

namespace GradientBackPropagationEngine {

using Factory = System::Functions::Template::Factory<System::Ref<IGradientBackPropagationEngine>()>;
extern QUILON_API Factory New;

namespace DefaultValues {
// 0 < v <= 1, else "Invalid learning rate : %1%.".
QUILON_API double LearningRate();
QUILON_API void SetLearningRate(double value);
// 0 <= v <= 1, else "Invalid momentum : %1%.".
QUILON_API double Momentum();
QUILON_API void SetMomentum(double value);
QUILON_API LearningModeEnum LearningMode();
QUILON_API void SetLearningMode(LearningModeEnum value);
QUILON_API bool RandomizeSamples();
QUILON_API void SetRandomizeSamples(bool value);
} // namespace DefaultValues

} // namespace GradientBackPropagationEngine

namespace RPropGradientBackPropagationEngine {

using Factory = System::Functions::Template::Factory<System::Ref<IRPropGradientBackPropagationEngine>()>;
extern QUILON_API Factory New;

namespace DefaultValues {
QUILON_API double LearningRate();
QUILON_API void SetLearningRate(double value);
QUILON_API double Momentum();
QUILON_API void SetMomentum(double value);
QUILON_API bool UseBackTracking();
QUILON_API void SetUseBackTracking(bool value);
// The three update values: v > 0, else "Invalid weight update value : %1%.".
QUILON_API double InitialUpdateValue();
QUILON_API void SetInitialUpdateValue(double value);
QUILON_API double MinUpdateValue();
QUILON_API void SetMinUpdateValue(double value);
QUILON_API double MaxUpdateValue();
QUILON_API void SetMaxUpdateValue(double value);
// v > 1 for the increase, 0 < v < 1 for the decrease, else "Invalid update
// value value : %1%.".
QUILON_API double UpdateValueIncreaseFactor();
QUILON_API void SetUpdateValueIncreaseFactor(double value);
QUILON_API double UpdateValueDecreaseFactor();
QUILON_API void SetUpdateValueDecreaseFactor(double value);
} // namespace DefaultValues

} // namespace RPropGradientBackPropagationEngine

} // namespace Quilon_::NeuralNetworks::BackPropagation

namespace Quilon_::System {
QUILON_API Any ToAny(NeuralNetworks::BackPropagation::LearningModeEnum value);
} // namespace Quilon_::System
