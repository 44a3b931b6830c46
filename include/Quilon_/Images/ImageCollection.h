// Lists of images, as operators that take or give several images use them:
//
//   Ref<Images::IImageCollection> frames = Images::ImageCollection::New();
//   frames->Add(Images::Image::New());
//   Ref<Images::IImage> first = frames->Item(0);
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"

namespace Quilon_::Images {

class IImage;

class QUILON_API IImageCollection : public virtual System::Collections::Template::ICollection<IImage> {
    QUILON_INTERFACE(IImageCollection)
};

namespace ImageCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IImageCollection>()>;
extern QUILON_API Factory New;
} // namespace ImageCollection

} // namespace Quilon_::Images
