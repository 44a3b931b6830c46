#include "Quilon_/Math/Classification/FuzzyLogic/Classifier.h"

#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Math::Classification::FuzzyLogic {

QUILON_DEFINE_INTERFACE_TYPE(IClassifier, L"Quilon_::Math::Classification::FuzzyLogic::IClassifier",
                             System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IClassifierGenerator,
                             L"Quilon_::Math::Classification::FuzzyLogic::IClassifierGenerator",
                             System::Interface)

ClassifierGenerator::Factory ClassifierGenerator::New;

} // namespace Quilon_::Math::Classification::FuzzyLogic
