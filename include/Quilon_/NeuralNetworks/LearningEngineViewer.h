// A view of learning as an image: the decision regions of the network over
// two features, with the samples drawn on them, refreshed as the epochs
// pass. It is an image source, so any image viewer can show it:
//
//   using namespace Quilon_::NeuralNetworks;
//   System::Ref<ILearningEngineViewer> viewer = LearningEngineViewer::New();
//   viewer->SetLearningEngine(engine);
//   viewer->ImageAvailable().Add(handler);
#pragma once

#include "Quilon_/Images/ImageSource.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>

namespace Quilon_::Geometry {
class ICoordinates;
} // namespace Quilon_::Geometry

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Math::Classification {
class IBase;
} // namespace Quilon_::Math::Classification

namespace Quilon_::NeuralNetworks {

class ILearningEngine;

class QUILON_API ILearningEngineViewer : public virtual Images::IImageSource {
    QUILON_INTERFACE(ILearningEngineViewer)
public:
    virtual System::Pointer<ILearningEngine, 0> LearningEngine() = 0;
    virtual void SetLearningEngine(System::Pointer<ILearningEngine, 0> engine) = 0;
    virtual System::Ref<Geometry::ICoordinates> ImageSize() = 0;
    virtual void SetImageSize(System::Ref<Geometry::ICoordinates> size) = 0;
    // The range of the two features shown, mapped onto the image.
    virtual System::Ref<Math::IRangeD> InputRange() = 0;
    virtual void SetInputRange(System::Ref<Math::IRangeD> range) = 0;
    virtual std::int64_t XFeature() = 0;
    virtual void SetXFeature(std::int64_t feature) = 0;
    virtual std::int64_t YFeature() = 0;
    virtual void SetYFeature(std::int64_t feature) = 0;
    // The samples drawn over the regions.
    virtual System::Pointer<Math::Classification::IBase, 0> Base() = 0;
    virtual void SetBase(System::Pointer<Math::Classification::IBase, 0> base) = 0;
    virtual bool ShowSamples() = 0;
    virtual void SetShowSamples(bool show) = 0;
    // Every how many epochs the image is made again.
    virtual std::int64_t RefreshEpochInterval() = 0;
    virtual void SetRefreshEpochInterval(std::int64_t interval) = 0;
    virtual void Refresh() = 0;
};

namespace LearningEngineViewer {

using Factory = System::Functions::Template::Factory<System::Ref<ILearningEngineViewer>()>;
extern QUILON_API Factory New;

namespace DefaultValues {
// Empty until a library sets them; reading them then raises.
QUILON_API System::Ref<Geometry::ICoordinates> ImageSize();
QUILON_API void SetImageSize(System::Ref<Geometry::ICoordinates> value);
QUILON_API System::Ref<Math::IRangeD> InputRange();
QUILON_API void SetInputRange(System::Ref<Math::IRangeD> value);
} // namespace DefaultValues

} // namespace LearningEngineViewer

} // namespace Quilon_::NeuralNetworks
