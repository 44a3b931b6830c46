#include "Quilon_/NeuralNetworks/Classification/NeuralNetworkClassifierGenerator.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/DeviationEvaluationFunctions/DeviationEvaluationFunction.h"
#include "Quilon_/NeuralNetworks/LearningEngine.h"
#include "Quilon_/NeuralNetworks/NeuralNetwork.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks::Classification {

QUILON_DEFINE_INTERFACE_TYPE(
    INeuralNetworkClassifierGeneratorEventArgs,
    L"Quilon_::NeuralNetworks::Classification::INeuralNetworkClassifierGeneratorEventArgs", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(INeuralNetworkClassifierGenerator,
                             L"Quilon_::NeuralNetworks::Classification::INeuralNetworkClassifierGenerator",
                             Math::Classification::IClassifierGenerator)
QUILON_DEFINE_INTERFACE_TYPE(
    ISingleLayerNetworkClassifierGenerator,
    L"Quilon_::NeuralNetworks::Classification::ISingleLayerNetworkClassifierGenerator",
    Math::Classification::IClassifierGenerator)

namespace NeuralNetworkClassifierGenerator {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
QUILON_DEFINE_DEFAULT_OBJECT(InnerLearningEngine, SetInnerLearningEngine, ILearningEngine)
} // namespace DefaultValues

} // namespace NeuralNetworkClassifierGenerator

namespace SingleLayerNetworkClassifierGenerator {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_OBJECT(DeviationEvaluationFunction, SetDeviationEvaluationFunction,
                             Math::IDeviationEvaluationFunction)
QUILON_DEFINE_DEFAULT_OBJECT(Optimizer, SetOptimizer, ISingleLayerNetworkOptimizer)
} // namespace DefaultValues

} // namespace SingleLayerNetworkClassifierGenerator

} // namespace Quilon_::NeuralNetworks::Classification
