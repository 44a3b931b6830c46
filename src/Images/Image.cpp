#include "Quilon_/Images/Image.h"

#include "Quilon_/Drawing/Globals.h"
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Images/BitmapAccess.h"
#include "Quilon_/Images/BitmapConverter.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Color/Utility/Functions.h"
#include "Quilon_/Images/ImageCache.h"
#include "Quilon_/Images/Math/Functions.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/Images/TileUpdater.h"
#include "Quilon_/Images/Utility/Functions.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/Type.h"

#include <algorithm>
#include <utility>

QUILON_DEFINE_ENUM_TEXT(Images::PredefinedImageCategoryEnum, Number, {Images::picBinary, L"picBinary"},
                        {Images::picGrey, L"picGrey"}, {Images::picLabel, L"picLabel"},
                        {Images::picColor, L"picColor"}, {Images::picEdge, L"picEdge"},
                        {Images::picComplex, L"picComplex"}, {Images::picFrequency, L"picFrequency"})
QUILON_DEFINE_ENUM_TEXT(Images::ImageViewerInterpolationTypeEnum, Number,
                        {Images::ivitNearestNeighbour, L"ivitNearestNeighbour"},
                        {Images::ivitBilinear, L"ivitBilinear"}, {Images::ivitBicubic, L"ivitBicubic"})

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImage, L"Quilon_::Images::IImage", System::Interface)

namespace Image {

Factory New;

namespace {

namespace Helper = System::ExtendedPropertiesHelper;
using System::LIString;
using System::Nullable;

// The well-known properties are copiable (bit 2), so that operators carry
// them from their inputs to their outputs.
constexpr unsigned char PropertyFlags = 7;

// "Image.Category." less its dot: what is left after it names the palette.
constexpr std::size_t CategoryPrefixLength = 14;

const wchar_t* const PredefinedCategories[] = {
    L"Image.Category.Binary", L"Image.Category.Grey",    L"Image.Category.Label",     L"Image.Category.Color",
    L"Image.Category.Edge",   L"Image.Category.Complex", L"Image.Category.Frequency",
};

bool IsCategory(const LIString& category, PredefinedImageCategoryEnum which)
{
    return category.Value() == PredefinedCategories[which - 1];
}

// Every reshaping inside the toolkit pads with integer zeros.
Padding ZeroPadding()
{
    return Padding(ptConstant, System::ToAny(std::int64_t(0)));
}

template <class T>
System::Pointer<T, 0> ObjectProperty(const Ref& image, const LIString& key)
{
    const System::Any value = Helper::Value(image, key);
    if (value.IsEmpty())
        return nullptr;
    return value.CastTo<System::Pointer<T, 0>>();
}

template <class T>
void SetOrRemove(const Ref& image, const LIString& key, const System::Pointer<T, 0>& value)
{
    if (value)
        Helper::SetValue(image, key, System::ToAny(value), PropertyFlags);
    else
        Helper::Remove(image, key);
}

void CopyImage(const Ref& source, const Ref& destination)
{
    Utility::Functions::Copy(source, destination, System::Pointer<IImage, 0>());
}

// A clone of the image's format with another data type.
Format FormatOfType(const Ref& image, System::NumericTypeEnum type)
{
    Format format(System::Pointer<System::ICloneable, 1>(image->Format())->Clone());
    format->SetDataType(type);
    return format;
}

// Gives the image another data type. The image's format is its bitmap's own,
// which must not change under the samples, so the image is reshaped to a
// format of that type, which converts each sample's value.
void SetDataType(const Ref& image, System::NumericTypeEnum type)
{
    if (image->Format()->DataType() == type)
        return;
    image->Reshape(FormatOfType(image, type), image->Size(), false, ZeroPadding());
}

// The image takes a colour format over its own samples: the memory is
// rewrapped, no sample moves.
void RewrapAsColor(const Ref& image)
{
    System::Ref<IBitmapAccessProperties> properties = BitmapAccessProperties::New();
    properties->SetOptions(static_cast<BitmapAccessOptionsEnum>(1));
    System::Ref<IBitmapAccess> access = System::Ref<IBitmapAccessProvider>(image)->Access(properties);
    System::Ref<System::IMemory> memory = access->Bitmap()->Memory();
    System::Ref<IFormat> format = Color::UniformColorFormat::New(image->Format()->StorageOrder());
    image->SetBitmap(Bitmap::New(image->Size(), format, memory), true);
}

void ConvertToBinary(const Ref& image)
{
    Ref thresholded = New();
    Ref grey = SingleBandScalar(image);
    System::Ref<::Quilon_::Math::IRangeD> range = Measurements::Functions::Range(grey);
    const double lower = range->Minimum();
    const double upper = range->Maximum();
    if (lower == upper) {
        Segmentation::Functions::Threshold(grey, thresholded, ::Quilon_::Math::IntervalD::New(lower, lower));
        if (lower == 0)
            Utility::Functions::Clear(thresholded);
    } else {
        Segmentation::Functions::OtsuThreshold(grey, thresholded, System::Pointer<IImage, 0>());
    }
    CopyImage(thresholded, image);
}

// One band per spatial axis, the bands of a location side by side.
void ConvertToEdge(const Ref& image)
{
    Size size = image->Size();
    const Quilon_::Geometry::Axes spatial(static_cast<unsigned char>(
        size->Axes() & (Quilon_::Geometry::aX | Quilon_::Geometry::aY | Quilon_::Geometry::aZ)));
    const std::int64_t dimension = spatial.AxisCount();
    if (dimension == image->BandCount())
        return;
    Size edgeSize(System::Pointer<System::ICloneable, 1>(size)->Clone());
    edgeSize->SetAxes(
        Quilon_::Geometry::Axes(static_cast<unsigned char>(edgeSize->Axes() | Quilon_::Geometry::aB)));
    edgeSize->SetValue(Quilon_::Geometry::aB, dimension);
    Format edgeFormat = UniformFormat::New(
        StorageOrder::BFirst(StorageOrder::Add(image->Format()->StorageOrder(), Quilon_::Geometry::aB)));
    Ref edges = New(edgeSize, edgeFormat);
    Utility::Functions::CopyBand(SingleBandScalar(image), edges, 0);
    image->Reshape(edgeFormat, edgeSize, false, ZeroPadding());
    CopyImage(edges, image);
}

void ConvertToComplex(const Ref& image)
{
    if (System::IsComplex(image->Format()->DataType()))
        return;
    Ref scalar = SingleBandScalar(image);
    SetDataType(scalar, System::ContainingNumericType(System::ntComplexF, scalar->Format()->DataType()));
    CopyImage(scalar, image);
}

// Converts the samples for `category`; false when the category is not to be
// stored after all.
bool ConvertPixels(const Ref& image, const LIString& category)
{
    if (IsCategory(category, picColor)) {
        if (System::Pointer<Color::IColorFormat, 0>(image->Format()))
            return false;
        if (image->BandCount() == 3) {
            RewrapAsColor(image);
        } else {
            Ref colour = New();
            Color::Utility::Functions::ExpandRGB(SingleBandScalar(image), colour);
            CopyImage(colour, image);
        }
    } else if (IsCategory(category, picGrey) || IsCategory(category, picLabel)) {
        CopyImage(SingleBandScalar(image), image);
    } else if (IsCategory(category, picBinary)) {
        ConvertToBinary(image);
    } else if (IsCategory(category, picEdge)) {
        ConvertToEdge(image);
    } else if (IsCategory(category, picComplex) || IsCategory(category, picFrequency)) {
        ConvertToComplex(image);
    }
    return true;
}

// "Image.Category.Grey" shows through "Palette.Grey"; a category without a
// palette of its name loses the palette it had.
void SetPaletteOf(const Ref& image, const LIString& category)
{
    const std::wstring& text = category.Value();
    const std::wstring name = L"Palette" + text.substr(std::min(text.size(), CategoryPrefixLength));
    System::Pointer<Drawing::IPalette, 0> palette;
    if (System::Pointer<Drawing::IPaletteCollection, 0> palettes = Drawing::Globals::Palettes())
        palette = palettes->Find(LIString(name, true));
    SetPalette(image, palette);
}

} // namespace

const LIString& CategoryKey()
{
    static const LIString key(L"Property.Image.Category", true);
    return key;
}

const LIString& PaletteKey()
{
    static const LIString key(L"Property.Image.Palette", true);
    return key;
}

const LIString& ROIKey()
{
    static const LIString key(L"Property.Image.ROI", true);
    return key;
}

const LIString& OriginKey()
{
    static const LIString key(L"Property.Image.Origin", true);
    return key;
}

const LIString& ROIName()
{
    static const LIString name(L"ShapeSet.Name.ROI", true);
    return name;
}

Nullable<LIString> PredefinedCategory(PredefinedImageCategoryEnum category)
{
    if (category < picBinary || category > picFrequency)
        return {};
    return LIString(PredefinedCategories[category - 1], true);
}

Nullable<LIString> Category(Ref image)
{
    System::Pointer<System::IExtendedProperty, 0> property = Helper::Find(image, CategoryKey());
    if (!property)
        return {};
    System::Any value;
    property->GetValue(value);
    return value.CastTo<LIString>();
}

void SetCategory(Ref image, Nullable<LIString> category, bool convert)
{
    if (!category.HasValue()) {
        Helper::Remove(image, CategoryKey());
        return;
    }
    const LIString& target = category.Value();
    const Nullable<LIString> current = Category(image);
    if (current.HasValue() && current.Value() == target)
        return;
    // The property is written only after the samples, so that a failed
    // conversion leaves the image's category as it was.
    if (convert && !ConvertPixels(image, target))
        return;
    if (IsCategory(target, picBinary))
        SetDataType(image, System::ntUInt8);
    Helper::SetValue(image, CategoryKey(), System::ToAny(target), PropertyFlags);
    SetPaletteOf(image, target);
}

void SetCategory(Ref image, PredefinedImageCategoryEnum category, bool convert)
{
    const Nullable<LIString> text = PredefinedCategory(category);
    if (text.HasValue())
        SetCategory(std::move(image), text, convert);
}

System::Pointer<Drawing::IPalette, 0> Palette(Ref image)
{
    return ObjectProperty<Drawing::IPalette>(image, PaletteKey());
}

void SetPalette(Ref image, System::Pointer<Drawing::IPalette, 0> palette)
{
    SetOrRemove(image, PaletteKey(), palette);
}

void SetPalette(Ref image, System::Ref<Drawing::IPalette> palette)
{
    SetPalette(std::move(image), System::Pointer<Drawing::IPalette, 0>(palette));
}

System::Pointer<Quilon_::Geometry::IShapeSet, 0> ROI(Ref image)
{
    return ObjectProperty<Quilon_::Geometry::IShapeSet>(image, ROIKey());
}

void SetROI(Ref image, System::Pointer<Quilon_::Geometry::IShapeSet, 0> roi)
{
    if (roi)
        Helper::SetName(roi, ROIName());
    SetOrRemove(image, ROIKey(), roi);
}

void SetROI(Ref image, System::Ref<Quilon_::Geometry::IShapeSet> roi)
{
    Helper::SetValue(image, ROIKey(), System::ToAny(roi), PropertyFlags);
}

void SetROI(Ref image, System::Ref<Quilon_::Geometry::IShapeND> shape)
{
    System::Ref<Quilon_::Geometry::IShapeSet> roi = Quilon_::Geometry::ShapeSet::New();
    roi->Add(shape);
    SetROI(std::move(image), roi);
}

System::Pointer<Quilon_::Geometry::ICoordinates, 0> Origin(Ref image)
{
    return ObjectProperty<Quilon_::Geometry::ICoordinates>(image, OriginKey());
}

void SetOrigin(Ref image, System::Pointer<Quilon_::Geometry::ICoordinates, 0> origin)
{
    SetOrRemove(image, OriginKey(), origin);
}

Ref SingleBandScalar(Ref image)
{
    Ref result = image;
    if (System::Pointer<Color::IColorFormat, 0>(image->Format())) {
        result = New();
        Color::Utility::Functions::Intensity(image, result);
    } else if (image->Size()->Axes() & Quilon_::Geometry::aB) {
        result = New();
        Utility::Functions::ExtractBand(image, result, 0);
    }
    if (System::IsComplex(result->Format()->DataType())) {
        Ref magnitude = New();
        Images::Math::Functions::Magnitude(result, magnitude);
        // The magnitudes take the place of the complex values; a fresh image
        // receives them, so that the caller's image keeps its samples.
        if (result.Get() == image.Get())
            result = New();
        CopyImage(magnitude, result);
    }
    return result;
}

} // namespace Image

namespace Globals {

QUILON_DEFINE_SETTING(InitializeBitmapsToZero, SetInitializeBitmapsToZero, ClearInitializeBitmapsToZero, true,
                      System::gvsProcess)
QUILON_DEFINE_SETTING(UseMemorySavingImageView, SetUseMemorySavingImageView, ClearUseMemorySavingImageView,
                      false, System::gvsPerThread)
QUILON_DEFINE_SETTING(UseImageBoundsOnly, SetUseImageBoundsOnly, ClearUseImageBoundsOnly, false,
                      System::gvsPerThread)
QUILON_DEFINE_SETTING(ClipImageView, SetClipImageView, ClearClipImageView, false, System::gvsPerThread)
QUILON_DEFINE_SETTING(MaximumImageSizeInBytes, SetMaximumImageSizeInBytes, ClearMaximumImageSizeInBytes,
                      std::int64_t(-1), System::gvsPerThread)
QUILON_DEFINE_SETTING(DefaultImageViewerInterpolationType, SetDefaultImageViewerInterpolationType,
                      ClearDefaultImageViewerInterpolationType, ivitNearestNeighbour, System::gvsPerThread)
// What the main thread sets (the libraries' start-up code) is what every
// later thread clones.
QUILON_DEFINE_SETTING(BitmapConverters, SetBitmapConverters, ClearBitmapConverters,
                      System::Ref<IBitmapConverterCollection>(), System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(ImageCache, SetImageCache, ClearImageCache, System::Ref<IImageCache>(),
                      System::gvsPerThreadFromMain)
QUILON_DEFINE_SETTING(TileUpdater, SetTileUpdater, ClearTileUpdater, System::Ref<ITileUpdater>(),
                      System::gvsPerThreadFromMain)

void ClearCollectionBitmapConverters()
{
    System::Pointer<IBitmapConverterCollection, 0> converters = BitmapConverters();
    if (converters)
        converters->Clear();
}

} // namespace Globals

} // namespace Quilon_::Images
