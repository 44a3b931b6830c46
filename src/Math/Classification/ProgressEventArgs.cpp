#include "Quilon_/Math/Classification/ProgressEventArgs.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IFeatureSelectorEventArgs,
                             L"Quilon_::Math::Classification::IFeatureSelectorEventArgs", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IMOCAGeneratorEventArgs,
                             L"Quilon_::Math::Classification::IMOCAGeneratorEventArgs", System::Interface)

FeatureSelectorEventArgs::Factory FeatureSelectorEventArgs::New;
MOCAGeneratorEventArgs::Factory MOCAGeneratorEventArgs::New;

} // namespace Quilon_::Math::Classification
