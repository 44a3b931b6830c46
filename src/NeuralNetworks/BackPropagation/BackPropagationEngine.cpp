#include "Quilon_/NeuralNetworks/BackPropagation/BackPropagationEngine.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/BackPropagation/BestNeuralNetworks.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation {

QUILON_DEFINE_INTERFACE_TYPE(IBackPropagationEngine,
                             L"Quilon_::NeuralNetworks::BackPropagation::IBackPropagationEngine",
                             ILearningEngine, ITerminationConditionEvents)
QUILON_DEFINE_INTERFACE_TYPE(IGradientBackPropagationEngine,
                             L"Quilon_::NeuralNetworks::BackPropagation::IGradientBackPropagationEngine",
                             IBackPropagationEngine)
QUILON_DEFINE_INTERFACE_TYPE(IRPropGradientBackPropagationEngine,
                             L"Quilon_::NeuralNetworks::BackPropagation::IRPropGradientBackPropagationEngine",
                             IBackPropagationEngine)

namespace {

using Math::Classification::Detail::Bound;
using Math::Classification::Detail::Limit;
using Math::Classification::Detail::unbounded;

constexpr Limit updateValueLimit{0, Bound::Open, unbounded, Bound::Closed,
                                 L"Invalid weight update value : %1%."};
constexpr Limit increaseFactorLimit{1, Bound::Open, unbounded, Bound::Closed,
                                    L"Invalid update value value : %1%."};
constexpr Limit decreaseFactorLimit{0, Bound::Open, 1, Bound::Open, L"Invalid update value value : %1%."};

} // namespace

namespace BackPropagationEngine::DefaultValues {

QUILON_DEFINE_DEFAULT_VALUE(SplitSamples, SetSplitSamples, bool, true)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(ValidationRatio, SetValidationRatio, double, 0.25,
                                    Math::Classification::Detail::validationRatioLimit)
QUILON_DEFINE_DEFAULT_VALUE(LessOrEqual, SetLessOrEqual, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(BalanceLearnSamplesMode, SetBalanceLearnSamplesMode, BalanceLearnSamplesModeEnum,
                            blsmRepeat)

namespace {
Math::Classification::Detail::DefaultObject<ITerminationConditionCollection> terminationConditionsValue;

// A vector of references cannot stay empty-handed at library end either:
// its functions go with the other object defaults.
std::vector<System::Ref<Math::IDeviationEvaluationFunction>>& BestNetworksFunctions()
{
    static std::vector<System::Ref<Math::IDeviationEvaluationFunction>> functions;
    return functions;
}
const bool bestNetworksFunctionsReleased = [] {
    Math::Classification::Detail::AddDefaultObjectRelease([] { BestNetworksFunctions().clear(); });
    return true;
}();
} // namespace

System::Ref<ITerminationConditionCollection> TerminationConditionCollection()
{
    return terminationConditionsValue.Get();
}

// An engine without a condition would never stop.
void SetTerminationConditionCollection(System::Ref<ITerminationConditionCollection> value)
{
    if (value->Count() < 1)
        QUILON_RAISE(L"Invalid termination condition collection size.");
    terminationConditionsValue.Set(value);
}

std::vector<System::Ref<Math::IDeviationEvaluationFunction>> BestNeuralNetworksDeviationEvaluationFunctions()
{
    return BestNetworksFunctions();
}

void SetBestNeuralNetworksDeviationEvaluationFunctions(
    const std::vector<System::Ref<Math::IDeviationEvaluationFunction>>& value)
{
    BestNetworksFunctions() = value;
}

} // namespace BackPropagationEngine::DefaultValues

namespace GradientBackPropagationEngine {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(LearningRate, SetLearningRate, double, 0.01,
                                    Math::Classification::Detail::learningRateLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(Momentum, SetMomentum, double, 0.0,
                                    Math::Classification::Detail::momentumLimit)
QUILON_DEFINE_DEFAULT_VALUE(LearningMode, SetLearningMode, LearningModeEnum, lmBatch)
QUILON_DEFINE_DEFAULT_VALUE(RandomizeSamples, SetRandomizeSamples, bool, true)
} // namespace DefaultValues

} // namespace GradientBackPropagationEngine

namespace RPropGradientBackPropagationEngine {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(LearningRate, SetLearningRate, double, 0.0001,
                                    Math::Classification::Detail::learningRateLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(Momentum, SetMomentum, double, 0.0,
                                    Math::Classification::Detail::momentumLimit)
QUILON_DEFINE_DEFAULT_VALUE(UseBackTracking, SetUseBackTracking, bool, true)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(InitialUpdateValue, SetInitialUpdateValue, double, 0.1, updateValueLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MinUpdateValue, SetMinUpdateValue, double, 0.000001, updateValueLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MaxUpdateValue, SetMaxUpdateValue, double, 50.0, updateValueLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(UpdateValueIncreaseFactor, SetUpdateValueIncreaseFactor, double, 1.2,
                                    increaseFactorLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(UpdateValueDecreaseFactor, SetUpdateValueDecreaseFactor, double, 0.5,
                                    decreaseFactorLimit)
} // namespace DefaultValues

} // namespace RPropGradientBackPropagationEngine

} // namespace Quilon_::NeuralNetworks::BackPropagation

namespace Quilon_::System {

Any ToAny(NeuralNetworks::BackPropagation::LearningModeEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
