// Objects that deliver images as they come: a camera, a file sequence, a
// processing stage. A source of one image at a time fires ImageAvailable(),
// a source of batches ImagesAvailable():
//
//   source->ImageAvailable().Add(handler);   // handler(sender, Ref<IImageAvailableEventArgs>)
//   source->Acquire();                       // the image arrives through the event
#pragma once

#include "Quilon_/Images/ImageAvailableEventArgs.h"
#include "Quilon_/System/Event.h"

namespace Quilon_::Images {

using ImageAvailableEvent = System::Event<System::Ref<IImageAvailableEventArgs>>;
using ImagesAvailableEvent = System::Event<System::Ref<IImagesAvailableEventArgs>>;

class QUILON_API IImageSource : public virtual System::Interface {
    QUILON_INTERFACE(IImageSource)
public:
    // The image delivered last; null before the first.
    virtual System::Pointer<IImage, 0> CurrentImage() = 0;
    // Asks for the next image, which ImageAvailable() delivers.
    virtual void Acquire() = 0;
    virtual ImageAvailableEvent& ImageAvailable() = 0;
};

class QUILON_API IImagesSource : public virtual System::Interface {
    QUILON_INTERFACE(IImagesSource)
public:
    virtual ImagesAvailableEvent& ImagesAvailable() = 0;
};

} // namespace Quilon_::Images
