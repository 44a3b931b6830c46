#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MaxEpochCount.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

QUILON_DEFINE_INTERFACE_TYPE(
    IMaxEpochCount, L"Quilon_::NeuralNetworks::BackPropagation::TerminationConditions::IMaxEpochCount",
    ITerminationCondition)

namespace MaxEpochCount {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MaxEpochCount, SetMaxEpochCount, std::int64_t, 10000,
                                    Math::Classification::Detail::epochLimit)
} // namespace DefaultValues

} // namespace MaxEpochCount

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
