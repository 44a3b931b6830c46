#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochOfIncreasingCost.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

QUILON_DEFINE_INTERFACE_TYPE(
    IMaxEpochOfIncreasingCost,
    L"Quilon_::NeuralNetworks::BackPropagation::TerminationConditions::IMaxEpochOfIncreasingCost",
    IDeviationEvaluationFunctionTerminationCondition)

namespace MaxEpochOfIncreasingCost {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MaxEpochOfIncreasingCost, SetMaxEpochOfIncreasingCost, std::int64_t, 1000,
                                    Math::Classification::Detail::epochLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(BlockSize, SetBlockSize, std::int64_t, 1,
                                    Math::Classification::Detail::blockSizeLimit)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
} // namespace DefaultValues

} // namespace MaxEpochOfIncreasingCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
