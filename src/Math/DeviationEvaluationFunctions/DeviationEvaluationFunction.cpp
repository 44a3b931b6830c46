#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Math {

QUILON_DEFINE_INTERFACE_TYPE(IDeviationEvaluationFunction, L"Quilon_::Math::IDeviationEvaluationFunction",
                             System::Interface)

} // namespace Quilon_::Math

namespace Quilon_::Math::DeviationEvaluationFunctions {

QUILON_DEFINE_INTERFACE_TYPE(IErrorRate, L"Quilon_::Math::DeviationEvaluationFunctions::IErrorRate",
                             IDeviationEvaluationFunction)
QUILON_DEFINE_INTERFACE_TYPE(IBalancedErrorRate,
                             L"Quilon_::Math::DeviationEvaluationFunctions::IBalancedErrorRate",
                             IDeviationEvaluationFunction)
QUILON_DEFINE_INTERFACE_TYPE(IMeanSquareError,
                             L"Quilon_::Math::DeviationEvaluationFunctions::IMeanSquareError",
                             IDeviationEvaluationFunction)
QUILON_DEFINE_INTERFACE_TYPE(IBalancedMeanSquareError,
                             L"Quilon_::Math::DeviationEvaluationFunctions::IBalancedMeanSquareError",
                             IDeviationEvaluationFunction)

ErrorRate::Factory ErrorRate::New;
BalancedErrorRate::Factory BalancedErrorRate::New;
MeanSquareError::Factory MeanSquareError::New;
BalancedMeanSquareError::Factory BalancedMeanSquareError::New;

} // namespace Quilon_::Math::DeviationEvaluationFunctions
