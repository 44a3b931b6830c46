// Images: the factory overloads and the image of the reference library, the
// well-known properties and their keys, categories without pixel
// conversion, regions of interest, and the per-thread settings.
#include "Quilon_/Images/Image.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Drawing/Globals.h"
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Geometry/TwoD/Point.h"
#include "Quilon_/Images/BitmapAccess.h"
#include "Quilon_/Images/BitmapConverter.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/ImageAvailableEventArgs.h"
#include "Quilon_/Images/ImageCollection.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/Images/Utility/Functions.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/EventHandler.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <thread>

namespace Quilon_::Tests::ImageSuite {

using namespace Quilon_::Images;
using Geometry::Axes;
using System::LIString;
using System::Pointer;
using System::Ref;
namespace Helper = System::ExtendedPropertiesHelper;

Ref<Geometry::ICoordinates> SizeXY(std::int64_t x, std::int64_t y)
{
    return Geometry::Coordinates::New(x, y, Axes::aXY);
}

std::uint8_t* Samples(const Ref<IImage>& image)
{
    Ref<IBitmap> bitmap = image->Bitmap();
    return static_cast<std::uint8_t*>(bitmap->Memory()->Data()) + bitmap->Origin();
}

std::wstring CategoryText(const Ref<IImage>& image)
{
    const System::Nullable<LIString> category = Image::Category(image);
    return category.HasValue() ? category.Value().Value() : L"(none)";
}

std::wstring PaletteName(const Ref<IImage>& image)
{
    Pointer<Drawing::IPalette, 0> palette = Image::Palette(image);
    return palette ? palette->Name().Value() : L"(none)";
}

class CChangeCounter
    : public System::Template::ObjectImpl<CChangeCounter, Kernel::IThing, System::EventTarget> {
public:
    int Value() override { return changes; }
    void OnEventTargetReset() override {}
    void OnChanged(System::Interface*, Ref<System::IEventArgs>) { ++changes; }
    int changes = 0;
};

class CNoConverter : public System::Template::ObjectImpl<CNoConverter, IBitmapConverter> {
public:
    std::wstring Name() override { return L"none"; }
    bool CanConvert(Ref<IFormat>, Ref<IFormat>) override { return false; }
    Ref<IBitmap> Convert(Ref<IBitmap> source, Ref<IFormat>) override { return source; }
};

// Palettes of our own, so that the lookup by name does not depend on what
// the library puts in by default.
void UsePalettes(std::initializer_list<const wchar_t*> names)
{
    Ref<Drawing::IPaletteCollection> palettes = Drawing::PaletteCollection::New();
    for (const wchar_t* name : names)
        palettes->Add(Drawing::Palette::New(LIString(name, true), {Drawing::Color(0, 0, 0)}));
    Drawing::Globals::SetPalettes(palettes);
}

TEST(ImageTypes, EnumerationsPrintTheirNames)
{
    EXPECT_EQ(System::ToString(picGrey), L"picGrey");
    EXPECT_EQ(System::ToString(picFrequency), L"picFrequency");
    EXPECT_EQ(System::ToString(static_cast<PredefinedImageCategoryEnum>(9)), L"9");
    EXPECT_EQ(System::ToString(ivitBilinear), L"ivitBilinear");
    EXPECT_FALSE(Image::PredefinedCategory(static_cast<PredefinedImageCategoryEnum>(0)).HasValue());
    EXPECT_EQ(Image::PredefinedCategory(picEdge).Value(), LIString(L"Image.Category.Edge", true));
}

Pointer<IImage, 0> copiedTo;
int copiesWithShape = 0;
void CopyWithMask(Ref<IImage>, Ref<IImage> destination, Pointer<IImage, 0>)
{
    copiedTo = destination;
}
void CopyWithShape(Ref<IImage>, Ref<IImage>, Ref<Geometry::IShapeND>)
{
    ++copiesWithShape;
}

TEST(ImageOperators, OverloadsShareTheNameAndDispatchByArguments)
{
    using Utility::Functions::Copy;
    EXPECT_EQ(Copy.Overload<0>().Name(), L"Copy");
    EXPECT_EQ(Copy.Overload<1>().Name(), L"Copy");
    EXPECT_EQ(Images::Measurements::Functions::Range.Overload<1>().Name(), L"Range");
    EXPECT_EQ(Utility::Functions::ExtractBand.Name(), L"ExtractBand");
    InChildProcess([] {
        StartBasic();
        // The reference library's copies step aside, so that the dispatch is
        // seen through the doubles below.
        Copy.Overload<0>().Implementations().clear();
        Copy.Overload<1>().Implementations().clear();
        Ref<IImage> image = Image::New();
        const std::wstring message = RaisedMessage([&] { Copy(image, image, Pointer<IImage, 0>()); });
        EXPECT_EQ(message.rfind(L"No implementation available for function 'Copy'", 0), 0u)
            << System::ToAnsi(message);

        Copy.Overload<0>().Register(L"Mask copy", &CopyWithMask);
        Copy.Overload<1>().Register(L"Shape copy", &CopyWithShape);
        Copy(image, image, Pointer<IImage, 0>());
        EXPECT_EQ(copiedTo.Get(), image.Get());
        EXPECT_EQ(copiesWithShape, 0);

        // The core makes the args of image sources itself.
        Ref<IImageAvailableEventArgs> args = ImageAvailableEventArgs::New(image);
        EXPECT_EQ(args->Image().Get(), image.Get());
    });
}

TEST(Image, FactoryOverloadsShapeImagesAsAsked)
{
    InChildProcess([] {
        StartBasic();
        Ref<IImage> empty = Image::New();
        EXPECT_TRUE(empty->IsEmpty());
        EXPECT_EQ(empty->Format()->DataType(), System::ntUInt8);

        Ref<IImage> plain = Image::New(SizeXY(4, 3));
        EXPECT_FALSE(plain->IsEmpty());
        EXPECT_EQ(plain->Size()->Y(), 3);
        EXPECT_EQ(plain->BandCount(), 1);
        EXPECT_EQ(plain->Dimension(), 2);
        EXPECT_EQ(plain->SizeInBytes(), 12);
        EXPECT_EQ(plain->Bounds()->Upper()->X(), 4);

        Ref<IFormat> shorts = UniformFormat::New(StorageOrder::New(L"YX"));
        shorts->SetDataType(System::ntInt16);
        Ref<IImage> formatted = Image::New(SizeXY(4, 3), shorts);
        EXPECT_EQ(formatted->Format()->DataType(), System::ntInt16);
        EXPECT_EQ(formatted->Format()->StorageOrder()->ToString(), L"YX");

        Ref<IBitmap> bitmap = Bitmap::New(SizeXY(2, 2));
        EXPECT_EQ(Image::New(bitmap)->Bitmap().Get(), bitmap.Get());
        EXPECT_EQ(Image::New(Ref<IBitmapAccessProvider>(bitmap))->Bitmap()->Memory().Get(),
                  bitmap->Memory().Get());

        Image::SetCategory(formatted, picGrey, false);
        Ref<IImage> withProperties = Image::New(formatted, true);
        EXPECT_EQ(CategoryText(withProperties), L"Image.Category.Grey");
        EXPECT_EQ(withProperties->Format()->DataType(), System::ntInt16);
        EXPECT_NE(withProperties->Bitmap().Get(), formatted->Bitmap().Get());
        EXPECT_EQ(CategoryText(Image::New(formatted, false)), L"(none)");
        EXPECT_EQ(Image::New(formatted, System::ntFloat, false)->Format()->DataType(), System::ntFloat);
        EXPECT_EQ(Image::New(formatted, SizeXY(7, 1), false)->Size()->X(), 7);
        EXPECT_EQ(Image::New(formatted, Ref<IFormat>(UniformFormat::New(StorageOrder::New(L"XY"))), false)
                      ->Format()
                      ->DataType(),
                  System::ntUInt8);
        Ref<IImage> both = Image::New(formatted, SizeXY(5, 5), shorts, true);
        EXPECT_EQ(both->SizeInBytes(), 50);
        EXPECT_EQ(CategoryText(both), L"Image.Category.Grey");

        Ref<IImageCollection> images = ImageCollection::New();
        images->Add(plain);
        EXPECT_EQ(images->Item(0).Get(), plain.Get());
    });
}

TEST(Image, WellKnownPropertiesAreCopiableAndNullRemovesThem)
{
    InChildProcess([] {
        StartBasic();
        UsePalettes({L"Palette.Grey"});
        Ref<IImage> image = Image::New(SizeXY(2, 2));
        Image::SetCategory(image, picGrey, false);
        Image::SetOrigin(image, Pointer<Geometry::ICoordinates, 0>(SizeXY(5, 6)));
        Image::SetROI(image, Ref<Geometry::IShapeSet>(Geometry::ShapeSet::New()));
        const LIString* keys[] = {&Image::CategoryKey(), &Image::PaletteKey(), &Image::ROIKey(),
                                  &Image::OriginKey()};
        for (const LIString* key : keys) {
            EXPECT_TRUE(key->IsLocalizable());
            Pointer<System::IExtendedProperty, 0> property = Helper::Find(image, *key);
            ASSERT_TRUE(property) << System::ToAnsi(key->Value());
            EXPECT_EQ(property->Flags(), 7) << System::ToAnsi(key->Value());
        }
        EXPECT_EQ(Image::CategoryKey().Value(), L"Property.Image.Category");
        EXPECT_EQ(Image::Origin(image)->Y(), 6);

        Image::SetOrigin(image, Pointer<Geometry::ICoordinates, 0>());
        Image::SetPalette(image, Pointer<Drawing::IPalette, 0>());
        Image::SetROI(image, Pointer<Geometry::IShapeSet, 0>());
        EXPECT_FALSE(Image::Origin(image));
        EXPECT_FALSE(Image::Palette(image));
        EXPECT_FALSE(Image::ROI(image));
        EXPECT_FALSE(Helper::Find(image, Image::OriginKey()));
        EXPECT_EQ(RaisedMessage([] { Image::Category(nullptr); }),
                  L"Pointer <Quilon_::Images::IImage> : attempt to assign 0 to a reference");
    });
}

TEST(Image, RegionsOfInterestAreNamedOnlyThroughTheNullablePointer)
{
    InChildProcess([] {
        StartBasic();
        Ref<IImage> image = Image::New(SizeXY(8, 8));
        Ref<Geometry::IShapeSet> kept = Geometry::ShapeSet::New();
        kept->SetName(L"Mine");
        Image::SetROI(image, kept);
        EXPECT_EQ(Image::ROI(image)->Name(), L"Mine");
        EXPECT_EQ(Image::ROI(image).Get(), kept.Get());

        Ref<Geometry::IShapeSet> renamed = Geometry::ShapeSet::New();
        renamed->SetName(L"Mine");
        Image::SetROI(image, Pointer<Geometry::IShapeSet, 0>(renamed));
        EXPECT_EQ(renamed->Name(), L"ShapeSet.Name.ROI");
        EXPECT_EQ(Helper::Name(renamed), LIString(L"ShapeSet.Name.ROI", true));

        Image::SetROI(image, Ref<Geometry::IShapeND>(Geometry::TwoD::PointF::New(2.0f, 3.0f, Axes::aXY)));
        Pointer<Geometry::IShapeSet, 0> single = Image::ROI(image);
        ASSERT_TRUE(single);
        EXPECT_EQ(single->Count(), 1);
        EXPECT_TRUE(single->Contains(Geometry::CoordinatesD::New(2.0, 3.0, Axes::aXY)));
        EXPECT_EQ(single->Name(), L"");

        // A set is a value: its clone keeps the name and holds shapes of its own.
        Ref<Geometry::IShapeSet> copy(Ref<System::ICloneable>(renamed)->Clone());
        copy->Add(Ref<Geometry::IShapeND>(Geometry::TwoD::PointF::New(Axes::aXY)));
        EXPECT_EQ(copy->Name(), L"ShapeSet.Name.ROI");
        EXPECT_EQ(renamed->Count(), 0);
    });
}

TEST(Image, CategoriesWithoutConversionFollowTheirRules)
{
    InChildProcess([] {
        StartBasic();
        UsePalettes({L"Palette.Grey", L"Palette.Binary", L"Palette"});
        Ref<IImage> image = Image::New(SizeXY(2, 1));
        Samples(image)[1] = 200;

        Image::SetCategory(image, picGrey, false);
        EXPECT_EQ(PaletteName(image), L"Palette.Grey");
        // The same category again is a no-op: the palette is not looked up.
        Image::SetPalette(image, Pointer<Drawing::IPalette, 0>());
        Image::SetCategory(image, LIString(L"Image.Category.Grey", true), false);
        EXPECT_EQ(PaletteName(image), L"(none)");

        // A category without a palette of its name removes the palette;
        // no category at all keeps it.
        Image::SetCategory(image, picBinary, false);
        EXPECT_EQ(PaletteName(image), L"Palette.Binary");
        EXPECT_EQ(Samples(image)[1], 200);
        Image::SetCategory(image, System::Nullable<LIString>(), true);
        EXPECT_EQ(CategoryText(image), L"(none)");
        EXPECT_EQ(PaletteName(image), L"Palette.Binary");
        Image::SetCategory(image, picLabel, false);
        EXPECT_EQ(PaletteName(image), L"(none)");

        // Outside 1 to 7 nothing happens; an unknown category is stored as
        // it is, and a short one names the palette from what is left.
        Image::SetCategory(image, static_cast<PredefinedImageCategoryEnum>(0), true);
        Image::SetCategory(image, static_cast<PredefinedImageCategoryEnum>(8), true);
        EXPECT_EQ(CategoryText(image), L"Image.Category.Label");
        Image::SetCategory(image, LIString(L"Short", true), true);
        EXPECT_EQ(CategoryText(image), L"Short");
        EXPECT_EQ(PaletteName(image), L"Palette");

        // Binary images are stored as ntUInt8 whatever they were, and keep
        // their pixels.
        Ref<IFormat> words = UniformFormat::New(StorageOrder::New(L"XY"));
        words->SetDataType(System::ntUInt16);
        Ref<IImage> wide = Image::New(SizeXY(3, 3), words);
        *Basic::Images::BitmapView<std::uint16_t>::Of(wide->Bitmap()).At(2, 1) = 1;
        Image::SetCategory(wide, picBinary, false);
        EXPECT_EQ(wide->Format()->DataType(), System::ntUInt8);
        EXPECT_EQ(wide->Size()->X(), 3);
        EXPECT_EQ(*Basic::Images::BitmapView<std::uint8_t>::Of(wide->Bitmap()).At(2, 1), 1);
    });
}

TEST(Image, ConversionsStopBeforeTheCategoryIsStored)
{
    InChildProcess([] {
        StartBasic();
        // A colour image converted to colour stays as it is, without the category.
        Ref<IImage> colour =
            Image::New(Geometry::Coordinates::New(2, 2, 3, Axes::aXYB),
                       Ref<IFormat>(Color::UniformColorFormat::New(StorageOrder::New(L"BXY"))));
        Image::SetCategory(colour, picColor, true);
        EXPECT_EQ(CategoryText(colour), L"(none)");

        // Three bands become colour over the same samples.
        Ref<IImage> bands = Image::New(Geometry::Coordinates::New(2, 2, 3, Axes::aXYB));
        Samples(bands)[5] = 42;
        Ref<System::IMemory> memory = bands->Bitmap()->Memory();
        Image::SetCategory(bands, picColor, true);
        EXPECT_TRUE((Pointer<Color::IColorFormat, 0>(bands->Format())));
        EXPECT_EQ(bands->Bitmap()->Memory().Get(), memory.Get());
        EXPECT_EQ(Samples(bands)[5], 42);
        EXPECT_EQ(CategoryText(bands), L"Image.Category.Color");

        // Without a copy the conversion fails, and leaves the category as it
        // was.
        Utility::Functions::Copy.Overload<0>().Implementations().clear();
        Ref<IImage> grey = Image::New(SizeXY(2, 2));
        Image::SetCategory(grey, picLabel, false);
        const std::wstring message = RaisedMessage([&] { Image::SetCategory(grey, picGrey, true); });
        EXPECT_NE(message.find(L"No implementation available for function 'Copy'"), std::wstring::npos)
            << System::ToAnsi(message);
        EXPECT_EQ(CategoryText(grey), L"Image.Category.Label");
    });
}

TEST(Image, ReshapeKeepsSamplesPadsAndHonoursTheSizeLimit)
{
    InChildProcess([] {
        StartBasic();
        Ref<IImage> image = Image::New(SizeXY(2, 2));
        Samples(image)[3] = 9; // (1, 1)
        auto* counter = new CChangeCounter;
        Ref<Kernel::IThing> held(counter);
        image->Changed() += System::NewEventHandler(counter, &CChangeCounter::OnChanged);

        image->Reshape(image->Format(), SizeXY(3, 3), false,
                       Padding(ptConstant, System::ToAny(std::int64_t(7))));
        const std::uint8_t expected[] = {0, 0, 7, 0, 9, 7, 7, 7, 7};
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(Samples(image)[i], expected[i]) << "sample " << i;
        EXPECT_EQ(counter->changes, 1);

        Ref<System::IDisableEvents>(image)->SetEventsDisabled(true);
        image->Reshape(image->Format(), SizeXY(3, 3), true, Padding());
        EXPECT_EQ(Samples(image)[4], 0);
        EXPECT_EQ(counter->changes, 1);

        Globals::SetMaximumImageSizeInBytes(8);
        EXPECT_EQ(RaisedMessage([] { Image::New(SizeXY(3, 3)); }),
                  L"An image of 9 bytes exceeds the maximum image size of 8 bytes");
        EXPECT_EQ(RaisedMessage([&] { image->Reshape(image->Format(), SizeXY(4, 4), false, Padding()); }),
                  L"An image of 16 bytes exceeds the maximum image size of 8 bytes");
        EXPECT_EQ(image->Size()->X(), 3);
    });
}

TEST(Image, ClonesHaveSamplesOfTheirOwnAndTheCopiableProperties)
{
    InChildProcess([] {
        StartBasic();
        Ref<IImage> image = Image::New(SizeXY(2, 2));
        Image::SetCategory(image, picBinary, false);
        Helper::SetName(image, LIString(L"Left view", false));
        Ref<IImage> linked = Image::New();
        image->SetLinkedData(linked);

        Ref<IImage> clone(Ref<System::ICloneable>(image)->Clone());
        Samples(image)[0] = 1;
        EXPECT_EQ(Samples(clone)[0], 0);
        EXPECT_EQ(CategoryText(clone), L"Image.Category.Binary");
        EXPECT_EQ(Helper::Name(clone).Value(), L"");
        EXPECT_EQ(clone->LinkedData().Get(), static_cast<System::Interface*>(linked.Get()));
    });
}

TEST(ImageSettings, PerThreadSettingsStartFromTheDefaultOnEveryThread)
{
    InChildProcess([] {
        StartBasic();
        Globals::SetMaximumImageSizeInBytes(100);
        Globals::SetClipImageView(true);
        Globals::SetInitializeBitmapsToZero(false);
        std::int64_t otherMaximum = 0;
        bool otherClip = true, otherZero = true;
        std::thread([&] {
            otherMaximum = Globals::MaximumImageSizeInBytes();
            otherClip = Globals::ClipImageView();
            otherZero = Globals::InitializeBitmapsToZero();
        }).join();
        EXPECT_EQ(otherMaximum, -1);
        EXPECT_FALSE(otherClip);
        EXPECT_FALSE(otherZero); // held once for the process
        EXPECT_EQ(Globals::MaximumImageSizeInBytes(), 100);
        Globals::ClearMaximumImageSizeInBytes();
        EXPECT_EQ(Globals::MaximumImageSizeInBytes(), -1);
        EXPECT_EQ(Globals::DefaultImageViewerInterpolationType(), ivitNearestNeighbour);

        // The library starts every thread with converters of its own;
        // emptying them keeps the collection itself.
        Ref<IBitmapConverterCollection> converters = Globals::BitmapConverters();
        Pointer<IBitmapConverterCollection, 0> otherConverters;
        std::thread([&] { otherConverters = Globals::BitmapConverters(); }).join();
        ASSERT_TRUE(otherConverters);
        EXPECT_NE(otherConverters.Get(), converters.Get());
        converters->Add(Ref<IBitmapConverter>(new CNoConverter));
        Globals::ClearCollectionBitmapConverters();
        EXPECT_EQ(Globals::BitmapConverters().Get(), converters.Get());
        EXPECT_EQ(converters->Count(), 0);
        Globals::ClearBitmapConverters();
        EXPECT_EQ(Globals::BitmapConverters().Get(), nullptr);
    });
}

} // namespace Quilon_::Tests::ImageSuite
