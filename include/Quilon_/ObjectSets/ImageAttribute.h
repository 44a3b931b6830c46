// Attributes of an image per object (a thumbnail, a cut-out). Reading an
// unset cell gives an empty Pointer.
//
//   Pointer<ObjectSets::IImageAttribute, 1> crops(set->AddAttribute(L"Crop", Images::IImage::GetType()));
//   crops->SetImageValue(key, image);
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::ObjectSets {

class QUILON_API IImageAttribute : public virtual IAttribute {
    QUILON_INTERFACE(IImageAttribute)
public:
    virtual System::Pointer<Quilon_::Images::IImage, 0> ImageValue(Key key) = 0;
    virtual void SetImageValue(Key key, System::Ref<Quilon_::Images::IImage> image) = 0;
};

} // namespace Quilon_::ObjectSets
