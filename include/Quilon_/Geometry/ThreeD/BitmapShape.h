// A 3-D shape given voxel by voxel: a binary bitmap placed at an origin.
// The shape of the objects of a labelled volume is of this kind.
//
//   blob->Value(3, 4, 5);          // whether voxel (3, 4, 5) belongs to it
//   Ref<Geometry::TwoD::IBitmapShape> slice = blob->Slice(5);
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IBitmapShape : public virtual IBoxedF {
    QUILON_INTERFACE(IBitmapShape)
public:
    virtual System::Ref<Images::IBitmap> Bitmap() = 0;
    virtual void SetBitmap(System::Ref<Images::IBitmap> bitmap) = 0;
    // The location of the bitmap's first voxel.
    virtual System::Ref<ICoordinates> Origin() = 0;
    virtual void SetOrigin(System::Ref<ICoordinates> origin) = 0;
    // False outside the bitmap.
    virtual bool Value(std::int64_t x, std::int64_t y, std::int64_t z) = 0;
    // Grows the bitmap when the voxel lies outside it and `value` is true.
    virtual void SetValue(std::int64_t x, std::int64_t y, std::int64_t z, bool value) = 0;
    // The number of voxels set.
    virtual std::int64_t VoxelCount() = 0;
    virtual void Fill(bool value) = 0;
    virtual void Invert() = 0;
    // Shrinks the bitmap to the box of the voxels set.
    virtual void Crop() = 0;
    // The voxels of one plane z, as a 2-D shape.
    virtual System::Ref<TwoD::IBitmapShape> Slice(std::int64_t z) = 0;
    virtual bool Overlaps(System::Ref<IBitmapShape> other) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
