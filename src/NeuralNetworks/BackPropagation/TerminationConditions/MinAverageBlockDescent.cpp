#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MinAverageBlockDescent.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

QUILON_DEFINE_INTERFACE_TYPE(
    IMinAverageBlockDescent,
    L"Quilon_::NeuralNetworks::BackPropagation::TerminationConditions::IMinAverageBlockDescent",
    IDeviationEvaluationFunctionTerminationCondition)

namespace MinAverageBlockDescent {

Factory New;

namespace DefaultValues {
namespace {
constexpr Math::Classification::Detail::Limit minAverageBlockDescentLimit{
    0, Math::Classification::Detail::Bound::Closed, Math::Classification::Detail::unbounded,
    Math::Classification::Detail::Bound::Closed, L"Invalid minimum average block descent : %1%."};
constexpr Math::Classification::Detail::Limit blockCountLimit{
    2, Math::Classification::Detail::Bound::Closed, Math::Classification::Detail::unbounded,
    Math::Classification::Detail::Bound::Closed, L"Invalid block count value : %1%."};
} // namespace

QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MinAverageBlockDescent, SetMinAverageBlockDescent, double, 0.00001,
                                    minAverageBlockDescentLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(BlockSize, SetBlockSize, std::int64_t, 50,
                                    Math::Classification::Detail::blockSizeLimit)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(BlockCount, SetBlockCount, std::int64_t, 3, blockCountLimit)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
} // namespace DefaultValues

} // namespace MinAverageBlockDescent

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
