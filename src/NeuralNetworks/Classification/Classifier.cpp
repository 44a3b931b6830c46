#include "Quilon_/NeuralNetworks/Classification/Classifier.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/FeatureSelector.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Serialization/Binary/Reader.h"
#include "Quilon_/System/Serialization/Binary/Writer.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::Classification {

QUILON_DEFINE_INTERFACE_TYPE(IClassifier, L"Quilon_::NeuralNetworks::Classification::IClassifier",
                             Math::Classification::IClassifier)
QUILON_DEFINE_INTERFACE_TYPE(IMONNA, L"Quilon_::NeuralNetworks::Classification::IMONNA",
                             Math::Classification::IMOCA)
QUILON_DEFINE_INTERFACE_TYPE(IMONNAGenerator, L"Quilon_::NeuralNetworks::Classification::IMONNAGenerator",
                             Math::Classification::IMOCAGenerator)

Classifier::Factory Classifier::New;
MONNA::Factory MONNA::New;

namespace MONNAGenerator {

Factory New;

namespace DefaultValues {

QUILON_DEFINE_DEFAULT_OBJECT(ClassifierGenerator, SetClassifierGenerator,
                             Math::Classification::IClassifierGenerator)

void SetClassifierGenerator(System::Pointer<Math::Classification::IClassifierGenerator, 0> value)
{
    ClassifierGeneratorValue.Set(value);
}

QUILON_DEFINE_OPTIONAL_DEFAULT_OBJECT(FeatureSelector, SetFeatureSelector,
                                      Math::Classification::IFeatureSelector)

} // namespace DefaultValues

} // namespace MONNAGenerator

} // namespace Quilon_::NeuralNetworks::Classification
