#include "Quilon_/NeuralNetworks/LearningEngineViewer.h"

#include "Math/Classification/DefaultValue.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Math/Classification/Base.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/NeuralNetworks/LearningEngine.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::NeuralNetworks {

QUILON_DEFINE_INTERFACE_TYPE(ILearningEngineViewer, L"Quilon_::NeuralNetworks::ILearningEngineViewer",
                             Images::IImageSource)

namespace LearningEngineViewer {

Factory New;

namespace DefaultValues {
QUILON_DEFINE_DEFAULT_OBJECT(ImageSize, SetImageSize, Geometry::ICoordinates)
QUILON_DEFINE_DEFAULT_OBJECT(InputRange, SetInputRange, Math::IRangeD)
} // namespace DefaultValues

} // namespace LearningEngineViewer

} // namespace Quilon_::NeuralNetworks
