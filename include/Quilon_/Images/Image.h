// Images: a bitmap with a size and a format, and the four well-known
// properties that travel with it (category, palette, region of interest,
// origin), kept as extended properties of the image.
//
//   Ref<Images::IImage> image =
//       Images::Image::New(Quilon_::Geometry::Coordinates::New(640, 480, Quilon_::Geometry::Axes::aXY));
//   // Also picks the palette "Palette.Grey":
//   Images::Image::SetCategory(image, Images::picGrey, false);
//   Images::Image::Category(image).Value();   // "Image.Category.Grey"
//   Images::Image::SetROI(image, circle);      // a one-shape region of interest
//
// The concrete image comes from an implementation library through
// Image::New. Operators take images, never bitmaps; the functions of the
// Image namespace keep pixels, data type and category consistent.
#pragma once

#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Nullable.h"
#include "Quilon_/System/String.h"

#include <cstdint>
#include <string>

namespace Quilon_::Drawing {
class IPalette;
} // namespace Quilon_::Drawing

namespace Quilon_::Geometry {
class IBox;
class IShapeSet;
class IShapeND;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {

class IBitmapAccessProvider;
class IBitmapConverterCollection;
class IImageCache;
class ITileUpdater;

using ImageChangeEvent = System::Event<System::Ref<System::IEventArgs>>;

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IImage : public virtual System::Interface {
    QUILON_INTERFACE(IImage)
public:
    // 1. The number of samples along each axis; a copy.
    virtual System::Ref<Quilon_::Geometry::ICoordinates> Size() = 0;
    // 2. The bitmap that holds the samples, itself.
    virtual System::Ref<IBitmap> Bitmap() = 0;
    // 3. The format of the bitmap, itself: clone it before changing it.
    virtual System::Ref<IFormat> Format() = 0;
    // 4. An object attached to the image by its user; null when none.
    virtual System::Pointer<System::Interface, 0> LinkedData() = 0;
    // 5.
    virtual void SetLinkedData(System::Pointer<System::Interface, 0> data) = 0;
    // 6. Replaces the bitmap; with `notify` Changed() fires.
    virtual void SetBitmap(System::Ref<IBitmap> bitmap, bool notify) = 0;
    // 7. 1 without the axis aB, else the B value of the size.
    virtual std::int64_t BandCount() = 0;
    // 8. Gives the image a new format and size. With `discard` false the
    // samples at locations in both sizes keep their values (converted under
    // a new data type) and `padding` fills the others; with `discard` true a
    // new bitmap is made and nothing is kept. Fires Changed().
    virtual void Reshape(System::Ref<IFormat> format, System::Ref<Quilon_::Geometry::ICoordinates> size,
                         bool discard, const Padding& padding) = 0;
    // 9. The number of spatial axes of the size (X, Y, Z), without T and B.
    virtual std::int64_t Dimension() = 0;
    // 10. The empty image: ntUInt8 with a size of product 0.
    virtual bool IsEmpty() = 0;
    // 11. The bytes that the samples take under the present format.
    virtual std::int64_t SizeInBytes() = 0;
    // 12. The box from location 0 to the size, upper corner exclusive.
    virtual System::Ref<Quilon_::Geometry::IBox> Bounds() = 0;
    // 13. Fires after the bitmap, its shape or the linked data changed,
    // unless the image's events are disabled.
    virtual ImageChangeEvent& Changed() = 0;
};

enum PredefinedImageCategoryEnumTag : std::int32_t {
    picBinary = 1,
    picGrey = 2,
    picLabel = 3,
    picColor = 4,
    picEdge = 5,
    picComplex = 6,
    picFrequency = 7,
};
using PredefinedImageCategoryEnum = PredefinedImageCategoryEnumTag;

// How a viewer samples an image between pixel centres.
enum ImageViewerInterpolationTypeEnumTag : std::int32_t {
    ivitNearestNeighbour = 0,
    ivitBilinear = 1,
    ivitBicubic = 2,
};
using ImageViewerInterpolationTypeEnum = ImageViewerInterpolationTypeEnumTag;

namespace Image {

using Ref = System::Ref<IImage>;
using Size = System::Ref<Quilon_::Geometry::ICoordinates>;
using Format = System::Ref<IFormat>;

// The overloads after a model make an image of the model's size and format
// unless given; their `bool` copies the model's copiable extended
// properties (category, palette, region of interest, origin among them).
using Factory =
    System::Functions::Template::Factory<Ref(), Ref(Size), Ref(Size, Format), Ref(System::Ref<IBitmap>),
                                         Ref(System::Ref<IBitmapAccessProvider>), Ref(Ref, bool),
                                         Ref(Ref, System::NumericTypeEnum, bool), Ref(Ref, Size, bool),
                                         Ref(Ref, Format, bool), Ref(Ref, Size, Format, bool)>;
extern QUILON_API Factory New;

// The keys under which the well-known properties are kept, localisable.
QUILON_API const System::LIString& CategoryKey();
QUILON_API const System::LIString& PaletteKey();
QUILON_API const System::LIString& ROIKey();
QUILON_API const System::LIString& OriginKey();
// The name a region of interest receives: "ShapeSet.Name.ROI".
QUILON_API const System::LIString& ROIName();
// "Image.Category.Grey" and the others, by value 1 to 7; other values give
// no value.
QUILON_API System::Nullable<System::LIString> PredefinedCategory(PredefinedImageCategoryEnum category);

QUILON_API System::Nullable<System::LIString> Category(Ref image);
// Stores the category; with `convert` the pixels are converted first (see
// the source for the steps). Also replaces the palette by the one named
// after the category, or removes it. No value removes the category alone.
QUILON_API void SetCategory(Ref image, System::Nullable<System::LIString> category, bool convert);
// Values outside 1 to 7 do nothing.
QUILON_API void SetCategory(Ref image, PredefinedImageCategoryEnum category, bool convert);

QUILON_API System::Pointer<Drawing::IPalette, 0> Palette(Ref image);
// Null removes the palette.
QUILON_API void SetPalette(Ref image, System::Pointer<Drawing::IPalette, 0> palette);
QUILON_API void SetPalette(Ref image, System::Ref<Drawing::IPalette> palette);

QUILON_API System::Pointer<Quilon_::Geometry::IShapeSet, 0> ROI(Ref image);
// Names the set "ShapeSet.Name.ROI" before storing it; null removes it.
QUILON_API void SetROI(Ref image, System::Pointer<Quilon_::Geometry::IShapeSet, 0> roi);
// Stores the set as it is, without naming it.
QUILON_API void SetROI(Ref image, System::Ref<Quilon_::Geometry::IShapeSet> roi);
// A new set holding `shape`, stored as above.
QUILON_API void SetROI(Ref image, System::Ref<Quilon_::Geometry::IShapeND> shape);

QUILON_API System::Pointer<Quilon_::Geometry::ICoordinates, 0> Origin(Ref image);
// Null removes the origin.
QUILON_API void SetOrigin(Ref image, System::Pointer<Quilon_::Geometry::ICoordinates, 0> origin);

// A single-band, non-complex view of the image's values: the intensity of a
// colour image, the first band of a multi-band one, the magnitude of a
// complex one, otherwise the image itself.
QUILON_API Ref SingleBandScalar(Ref image);

} // namespace Image

namespace Globals {
// Process-wide.
QUILON_DECLARE_SETTING(InitializeBitmapsToZero, SetInitializeBitmapsToZero, ClearInitializeBitmapsToZero,
                       bool);
// Per thread.
QUILON_DECLARE_SETTING(UseMemorySavingImageView, SetUseMemorySavingImageView, ClearUseMemorySavingImageView,
                       bool);
QUILON_DECLARE_SETTING(UseImageBoundsOnly, SetUseImageBoundsOnly, ClearUseImageBoundsOnly, bool);
QUILON_DECLARE_SETTING(ClipImageView, SetClipImageView, ClearClipImageView, bool);
// -1: no limit.
QUILON_DECLARE_SETTING(MaximumImageSizeInBytes, SetMaximumImageSizeInBytes, ClearMaximumImageSizeInBytes,
                       std::int64_t);
QUILON_DECLARE_SETTING(DefaultImageViewerInterpolationType, SetDefaultImageViewerInterpolationType,
                       ClearDefaultImageViewerInterpolationType, ImageViewerInterpolationTypeEnum);
// Per thread: a thread's first read clones the default, which is what the
// main thread last set.
QUILON_DECLARE_SETTING(BitmapConverters, SetBitmapConverters, ClearBitmapConverters,
                       System::Ref<IBitmapConverterCollection>);
// Empties the calling thread's collection, keeping the collection itself.
QUILON_API void ClearCollectionBitmapConverters();
QUILON_DECLARE_SETTING(ImageCache, SetImageCache, ClearImageCache, System::Ref<IImageCache>);
QUILON_DECLARE_SETTING(TileUpdater, SetTileUpdater, ClearTileUpdater, System::Ref<ITileUpdater>);
} // namespace Globals

} // namespace Quilon_::Images

namespace Quilon_::System {
QUILON_API std::wstring ToString(Images::PredefinedImageCategoryEnum value);
QUILON_API std::wstring ToString(Images::ImageViewerInterpolationTypeEnum value);
} // namespace Quilon_::System
