#include "Quilon_/Math/Classification/MOCA.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/Classification/FeatureSelector.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IMOCA, L"Quilon_::Math::Classification::IMOCA", IClassifier)
QUILON_DEFINE_INTERFACE_TYPE(IMOCAGenerator, L"Quilon_::Math::Classification::IMOCAGenerator",
                             IClassifierGenerator)

MOCA::Factory MOCA::New;

namespace MOCAGenerator {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             IDeviationEvaluationFunction)
QUILON_DEFINE_DEFAULT_OBJECT(InnerDeviationEvaluationFunction, SetInnerDeviationEvaluationFunction,
                             IDeviationEvaluationFunction)
QUILON_DEFINE_DEFAULT_VALUE(BinaryClassifierCombinationMethod, SetBinaryClassifierCombinationMethod,
                            BinaryClassifierCombinationMethodEnum, bccmProbability)
QUILON_DEFINE_DEFAULT_VALUE(ReuseClassifierGeneratorClassifier, SetReuseClassifierGeneratorClassifier, bool,
                            false)
} // namespace DefaultValues

} // namespace MOCAGenerator

} // namespace Quilon_::Math::Classification

namespace Quilon_::System {

Any ToAny(Math::Classification::BinaryClassifierCombinationMethodEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
