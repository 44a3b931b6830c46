#include "Quilon_/NeuralNetworks/BackPropagation/TerminationConditions/MinCost.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions {

QUILON_DEFINE_INTERFACE_TYPE(IMinCost,
                             L"Quilon_::NeuralNetworks::BackPropagation::TerminationConditions::IMinCost",
                             IDeviationEvaluationFunctionTerminationCondition)

namespace MinCost {

Factory New;

namespace DefaultValues {
namespace {
constexpr Math::Classification::Detail::Limit minCostLimit{
    0, Math::Classification::Detail::Bound::Closed, Math::Classification::Detail::unbounded,
    Math::Classification::Detail::Bound::Closed, L"Invalid minimum cost : %1%."};
} // namespace

QUILON_DEFINE_LIMITED_DEFAULT_VALUE(MinCost, SetMinCost, double, 0.0, minCostLimit)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
} // namespace DefaultValues

} // namespace MinCost

} // namespace Quilon_::NeuralNetworks::BackPropagation::TerminationConditions
