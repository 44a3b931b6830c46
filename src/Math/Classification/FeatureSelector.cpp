#include "Quilon_/Math/Classification/FeatureSelector.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/Classification/Classifier.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IFeatureSelector, L"Quilon_::Math::Classification::IFeatureSelector",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ISFFSFeatureSelector, L"Quilon_::Math::Classification::ISFFSFeatureSelector",
                             IFeatureSelector)

namespace SFFSFeatureSelector {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_VALUE(FeatureSelectionEnabled, SetFeatureSelectionEnabled, bool, true)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(ValidationRatio, SetValidationRatio, double, 0.25,
                                    Detail::validationRatioLimit)
QUILON_DEFINE_DEFAULT_VALUE(SplitSamples, SetSplitSamples, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(BalanceLearnSamples, SetBalanceLearnSamples, bool, true)
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             IDeviationEvaluationFunction)
QUILON_DEFINE_DEFAULT_VALUE(StopIfErrorIncrease, SetStopIfErrorIncrease, bool, false)
} // namespace DefaultValues

} // namespace SFFSFeatureSelector

} // namespace Quilon_::Math::Classification
