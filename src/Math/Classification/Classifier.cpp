#include "Quilon_/Math/Classification/Classifier.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IClassifier, L"Quilon_::Math::Classification::IClassifier", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IClassifierGenerator, L"Quilon_::Math::Classification::IClassifierGenerator",
                             System::Interface)

namespace Classifier::DefaultValues {
QUILON_DEFINE_DEFAULT_OBJECT(InputRange, SetInputRange, IRangeD)
} // namespace Classifier::DefaultValues

} // namespace Quilon_::Math::Classification
