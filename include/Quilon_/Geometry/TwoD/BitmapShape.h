// A 2-D shape given pixel by pixel: a binary bitmap placed at an origin.
// The shape of the objects of a labelled image is of this kind.
//
//   Ref<Geometry::TwoD::IBitmapShape> blob = Geometry::TwoD::BitmapShape::New(mask, origin);
//   blob->Value(3, 4);   // whether pixel (3, 4) of the image belongs to it
#pragma once

#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/Windows/Viewable.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IBitmapShape : public virtual IBoxedF, public virtual IBitmapShapeND {
    QUILON_INTERFACE(IBitmapShape)
public:
    // Whether the pixel at (x, y), in image coordinates, belongs to the
    // shape; false outside the bitmap.
    virtual bool Value(std::int64_t x, std::int64_t y) = 0;
    // Grows the bitmap when (x, y) lies outside it and `value` is true.
    virtual void SetValue(std::int64_t x, std::int64_t y, bool value) = 0;
    // The view the shape was made for, if any.
    virtual System::Pointer<Windows::IViewable, 0> Viewable() = 0;
};

namespace BitmapShape {
// New(mask, origin): the set pixels of `mask`, placed at `origin`;
// New(lower, upper): an empty shape over that extent;
// New(viewable, filled, axes): a shape over the whole extent of a view,
// every pixel set when `filled`.
using Factory = System::Functions::Template::Factory<
    System::Ref<IBitmapShape>(System::Ref<Images::IBitmap>, System::Ref<ICoordinates>),
    System::Ref<IBitmapShape>(System::Ref<ICoordinates>, System::Ref<ICoordinates>),
    System::Ref<IBitmapShape>(System::Ref<Windows::IViewable>, bool, Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace BitmapShape

} // namespace Quilon_::Geometry::TwoD
