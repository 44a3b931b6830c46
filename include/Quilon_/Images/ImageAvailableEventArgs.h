// The arguments of the events by which a source hands out new images: one
// image (IImageSource) or several at once (IImagesSource). The core makes
// these args itself:
//
//   ImageAvailable().Fire(Images::ImageAvailableEventArgs::New(frame));
//
//   void OnImage(Interface*, Ref<Images::IImageAvailableEventArgs> args)
//   {
//       process(args->Image());
//   }
#pragma once

#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Images {

class IImage;
class IImageCollection;

class QUILON_API IImageAvailableEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IImageAvailableEventArgs)
public:
    virtual System::Ref<IImage> Image() = 0;
    // A handler may hand a different image on to the handlers after it.
    virtual void SetImage(System::Ref<IImage> image) = 0;
};

class QUILON_API IImagesAvailableEventArgs : public virtual System::IEventArgs {
    QUILON_INTERFACE(IImagesAvailableEventArgs)
public:
    virtual System::Ref<IImageCollection> Images() = 0;
};

namespace ImageAvailableEventArgs {
// Made by the core; a library may register its own.
class QUILON_API Factory : public System::Functions::Template::Factory<System::Ref<IImageAvailableEventArgs>(
                               System::Ref<IImage>)> {
public:
    Factory();
};
extern QUILON_API Factory New;
} // namespace ImageAvailableEventArgs

namespace ImagesAvailableEventArgs {
// Made by the core; a library may register its own.
class QUILON_API Factory : public System::Functions::Template::Factory<System::Ref<IImagesAvailableEventArgs>(
                               System::Ref<IImageCollection>)> {
public:
    Factory();
};
extern QUILON_API Factory New;
} // namespace ImagesAvailableEventArgs

} // namespace Quilon_::Images
