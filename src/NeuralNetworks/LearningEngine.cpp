#include "Quilon_/NeuralNetworks/LearningEngine.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/BackPropagation/TerminationCondition.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(ILearningEngine, L"Quilon_::NeuralNetworks::ILearningEngine", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(INetworkOptimizer, L"Quilon_::NeuralNetworks::INetworkOptimizer",
                             ILearningEngine)
QUILON_DEFINE_INTERFACE_TYPE(ISingleLayerNetworkOptimizer,
                             L"Quilon_::NeuralNetworks::ISingleLayerNetworkOptimizer", INetworkOptimizer)
QUILON_DEFINE_INTERFACE_TYPE(IEpochCompletedEventArgs, L"Quilon_::NeuralNetworks::IEpochCompletedEventArgs",
                             System::Interface)

EpochCompletedEventArgs::Factory EpochCompletedEventArgs::New;

namespace SingleLayerNetworkOptimizer {

Factory New;

namespace DefaultValues {

namespace {
constexpr Math::Classification::Detail::Limit neuronCountLimit{
    1, Math::Classification::Detail::Bound::Closed, Math::Classification::Detail::unbounded,
    Math::Classification::Detail::Bound::Closed, L"Invalid neurons count : %1%."};
} // namespace

QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MinNeurons, SetMinNeurons, std::int64_t, 1, neuronCountLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MaxNeurons, SetMaxNeurons, std::int64_t, 50, neuronCountLimit)
QUILON_DEFINE_DEFAULT_VALUE(SplitSamples, SetSplitSamples, bool, true)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(ValidationRatio, SetValidationRatio, double, 0.25,
                                    Math::Classification::Detail::validationRatioLimit)
QUILON_DEFINE_DEFAULT_VALUE(ConfirmResult, SetConfirmResult, bool, false)
QUILON_DEFINE_DEFAULT_VALUE(StopIfEvaluationIncrease, SetStopIfEvaluationIncrease, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(UseOneNeuronIfTwoClasses, SetUseOneNeuronIfTwoClasses, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(BalanceLearnSamplesMode, SetBalanceLearnSamplesMode, BalanceLearnSamplesModeEnum,
                            blsmNone)
QUILON_DEFINE_DEFAULT_OBJECT(InnerLearningEngine, SetInnerLearningEngine, ILearningEngine)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)

} // namespace DefaultValues

} // namespace SingleLayerNetworkOptimizer

} // namespace Quilon_::NeuralNetworks

namespace Quilon_::System {

Any ToAny(NeuralNetworks::BalanceLearnSamplesModeEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
