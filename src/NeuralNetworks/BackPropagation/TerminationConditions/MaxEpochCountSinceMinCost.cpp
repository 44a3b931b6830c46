#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochCountSinceMinCost.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

QUILON_DEFINE_INTERFACE_TYPE(
    IMaxEpochCountSinceMinCost,
    L"Quilon_::NeuralNetworks::BackPropagation::TerminationConditions::IMaxEpochCountSinceMinCost",
    IDeviationEvaluationFunctionTerminationCondition)

namespace MaxEpochCountSinceMinCost {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MaxEpochCountSinceMinCost, SetMaxEpochCountSinceMinCost, std::int64_t,
                                    1000, Math::Classification::Detail::epochLimit)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
} // namespace DefaultValues

} // namespace MaxEpochCountSinceMinCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
