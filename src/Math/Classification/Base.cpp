#include "Quilon_/Math/Classification/Base.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IBase, L"Quilon_::Math::Classification::IBase", System::Interface)

namespace Base {

Factory New;

namespace DefaultValues {

namespace {
constexpr Detail::Limit testRatioLimit{0, Detail::Bound::Closed, 1, Detail::Bound::Closed,
                                       L"Invalid test ratio."};
} // namespace

QUILON_DEFINE_OPTIONAL_DEFAULT_OBJECT(InputRange, SetInputRange, IRangeD)
QUILON_DEFINE_DEFAULT_VALUE(ComputeFeaturesLimitsOnLearningSamplesMapped,
                            SetComputeFeaturesLimitsOnLearningSamplesMapped, bool, false)
QUILON_DEFINE_DEFAULT_VALUE(LearnMultipleClassSamples, SetLearnMultipleClassSamples, bool, true)
QUILON_DEFINE_DEFAULT_VALUE(IgnoreMultipleClassSamples, SetIgnoreMultipleClassSamples, bool, false)
QUILON_DEFINE_LIMITED_DEFAULT_VALUE(TestRatio, SetTestRatio, double, 0.25, testRatioLimit)

} // namespace DefaultValues

} // namespace Base

} // namespace Quilon_::Math::Classification
