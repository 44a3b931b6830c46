// The rules that prepare output images, run through operator calls as a
// catalogue chain runs them: the shape and type the output is given, the
// properties it takes over, what an output used in place or aliased by an
// input becomes, and the options of category and type.
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/Geometry/TwoD/Point.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageEdge.h"
#include "Quilon_/Images/Math/MatrixRules.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include "../../../Support/BasicLibrary.h"
#include "../../../Support/InChildProcess.h"
#include "../../../Support/Raised.h"
#include "ImageRuleSupport.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace Quilon_;
using namespace Quilon_::Images::Functions::Rules;
using namespace Quilon_::Tests::ImageRules;
using namespace Quilon_::System;
using Quilon_::System::Functions::rtMake;
using Quilon_::System::Functions::rtPreExecute;
using Quilon_::System::Functions::Rules::IRule;
using Tests::Chain;
using Tests::InChildProcess;
using Tests::StartBasic;
namespace Image = Quilon_::Images::Image;

const LIString grey(L"Image.Category.Grey");
const LIString binary(L"Image.Category.Binary");
const LIString colour(L"Image.Category.Color");

// Runs `make` in the Make position of a two-argument operator on
// (input, output).
void Make(const Pointer<IRule>& make, const ImageRef& input, const ImageRef& output)
{
    ImageOperator op(&Receive2);
    op.SetRules(rtMake, Chain({make}));
    op(input, output);
}

MakeImageOptions WithCategory(const LIString& category)
{
    MakeImageOptions options;
    options.Set(category);
    return options;
}

MakeImageOptions WithType(NumericTypeEnum type, bool exact)
{
    MakeImageOptions options;
    options.Set(TypeOptions(type, exact));
    return options;
}

using ImageMaker = std::function<ImageRef()>;

template <class... Values>
std::vector<std::int64_t> Extent(Values... values)
{
    return {std::int64_t(values)...};
}

struct ShapeCase {
    const char* what;
    ImageMaker input;
    ImageMaker output;
    std::function<Pointer<IRule>()> rule;
    NumericTypeEnum type;
    unsigned char axes;
    std::vector<std::int64_t> values;
};

TEST(ImageMakeRules, OutputTakesTheShapeAndTypeTheWordsAsk)
{
    InChildProcess([] {
        StartBasic();
        auto fresh = [] { return Image::New(); };
        auto make = [](unsigned short options, MakeImageOptions made = {}) {
            return [=] { return MakeImageCompatible::New(1, 0, options, made, 0); };
        };
        auto plain = [](NumericTypeEnum type, std::int64_t width, std::int64_t height) {
            return [=] { return Plain(type, width, height); };
        };
        const ImageMaker grey16 = plain(ntUInt16, 8, 6), grey8 = plain(ntUInt8, 8, 6);
        const std::vector<ShapeCase> cases{
            {"a fresh output takes everything", grey16, fresh, make(0x2F), ntUInt16, Axes::aXY, Extent(8, 6)},
            {"containment alone gives a fresh output the input's type", grey16, fresh,
             make(mcSize | mcContainingType), ntUInt16, Axes::aXY, Extent(8, 6)},
            {"a sized 8-bit output keeps its type without a type bit", grey16, grey8, make(mcSize), ntUInt8,
             Axes::aXY, Extent(8, 6)},
            {"without mcSize the output keeps its size", grey16, plain(ntFloat, 5, 5), make(mcSameType),
             ntUInt16, Axes::aXY, Extent(5, 5)},
            {"the same type", plain(ntFloat, 8, 6), grey16, make(mcSize | mcSameType), ntFloat, Axes::aXY,
             Extent(8, 6)},
            {"a type option contains the output's type", grey8, grey16, make(mcSize, WithType(ntInt8, false)),
             ntInt32, Axes::aXY, Extent(8, 6)},
            {"an exact type option", grey8, grey16, make(mcSize, WithType(ntFloat, true)), ntFloat, Axes::aXY,
             Extent(8, 6)},
            // Axes that differ beyond the band axis become the truth value
            // of the condition: the X axis alone.
            {"axes ignoring the band take the truth value", [] { return Volume(ntUInt8, 4, 4, 4); },
             plain(ntUInt8, 4, 4), make(mcAxesIgnoringBand), ntUInt8, Geometry::aX, Extent(4)},
            {"grey from three bands keeps the input's type", [] { return Banded(ntUInt16, 8, 6, 3); }, fresh,
             make(mcSize, WithCategory(grey)), ntUInt16, Axes::aXY, Extent(8, 6)},
            {"colour from one band gives three", grey8, fresh, make(mcSize, WithCategory(colour)), ntUInt8,
             Axes::aXYB, Extent(8, 6, 3)},
        };
        for (const ShapeCase& c : cases) {
            ImageRef output = c.output();
            Make(c.rule(), c.input(), output);
            EXPECT_EQ(output->Format()->DataType(), c.type) << c.what;
            EXPECT_EQ(static_cast<int>(output->Size()->Axes()), c.axes) << c.what;
            EXPECT_EQ(Values(output->Size()), c.values) << c.what;
        }
    });
}

TEST(ImageMakeRules, CategoryOptionsShapeColourAndGreyOutputs)
{
    InChildProcess([] {
        StartBasic();
        ImageRef toColour = Image::New();
        Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(colour), tpOrigin), Plain(ntUInt8, 8, 6),
             toColour);
        EXPECT_TRUE((Pointer<Images::Color::IColorFormat, 0>(toColour->Format())));
        EXPECT_EQ(toColour->Format()->StorageOrder()->Axis(0), Geometry::aB);
        EXPECT_EQ(Image::Category(toColour).Value(), colour);

        // An output that is a colour image of the right axes keeps its format.
        ImageRef colourOutput = Colour(8, 6);
        Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(colour), 0), Plain(ntUInt8, 8, 6),
             colourOutput);
        EXPECT_TRUE((Pointer<Images::Color::IColorFormat, 0>(colourOutput->Format())));

        ImageRef toGrey = Colour(8, 6);
        Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(grey), 0x16), Colour(8, 6), toGrey);
        EXPECT_EQ(static_cast<int>(toGrey->Size()->Axes()), Axes::aXY);
        EXPECT_FALSE((Pointer<Images::Color::IColorFormat, 0>(toGrey->Format())));
        EXPECT_EQ(Image::Category(toGrey).Value(), grey);
    });
}

TEST(ImageMakeRules, OutputEventsAreSilentForTheCallOnly)
{
    InChildProcess([] {
        StartBasic();
        ImageRef input = Plain(ntUInt8, 8, 6);
        ImageRef output = Image::New();
        bool silentInside = false;
        static std::function<void(ImageRef)> inside;
        inside = [&](ImageRef received) {
            EXPECT_EQ(received.Get(), output.Get());
            silentInside = Pointer<IDisableEvents>(received)->EventsDisabled();
        };
        ImageOperator op(+[](ImageRef, ImageRef out) { inside(out); });
        op.SetRules(rtMake, Chain({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)}));
        op.SetRules(rtPreExecute, Chain({CheckImageCompatible::New(1, 0, 0xF)}));
        op(input, output);
        EXPECT_TRUE(silentInside);
        EXPECT_FALSE(Pointer<IDisableEvents>(output)->EventsDisabled());
    });
}

TEST(ImageMakeRules, PropertiesFollowTheTransferWord)
{
    InChildProcess([] {
        StartBasic();
        Pointer<Interface> linked = Geometry::Coordinates::New(1, Axes(Geometry::aX));
        auto source = [&] {
            ImageRef image = Plain(ntUInt8, 8, 6);
            Image::SetCategory(image, LIString(L"Image.Category.Label"), false);
            Image::SetOrigin(image, Geometry::Coordinates::New(1, 2, Axes::aXY));
            image->SetLinkedData(linked);
            Image::SetROI(image, Ref<Geometry::IShapeND>(Geometry::TwoD::PointF::New(1.0f, 2.0f, Axes::aXY)));
            return image;
        };
        auto origin = [](const ImageRef& image) {
            Pointer<Geometry::ICoordinates, 0> o = Image::Origin(image);
            return o ? Values(o) : std::vector<std::int64_t>();
        };

        ImageRef input = source();
        ImageRef all = Image::New();
        Make(MakeImageCompatible::New(1, 0, 0x2F, 0x1F), input, all);
        EXPECT_EQ(Image::Category(all).Value(), LIString(L"Image.Category.Label"));
        EXPECT_EQ(origin(all), (std::vector<std::int64_t>{1, 2}));
        EXPECT_NE(Image::Origin(all).Get(), Image::Origin(input).Get()) << "the origin is a copy";
        EXPECT_EQ(all->LinkedData().Get(), linked.Get());
        ASSERT_TRUE(Image::ROI(all));
        EXPECT_EQ(Image::ROI(all)->Count(), 1);
        EXPECT_NE(Image::ROI(all).Get(), Image::ROI(input).Get()) << "the region is a copy";

        ImageRef none = Plain(ntUInt8, 8, 6);
        Make(MakeImageCompatible::New(1, 0, mcSize, 0), input, none);
        EXPECT_FALSE(Image::Category(none).HasValue());
        EXPECT_FALSE(Image::Origin(none));
        EXPECT_FALSE(none->LinkedData());
        EXPECT_FALSE(Image::ROI(none));

        // tpNewOrigin fills a missing origin and leaves one that is there.
        ImageRef placed = Plain(ntUInt8, 8, 6);
        Image::SetOrigin(placed, Geometry::Coordinates::New(5, 5, Axes::aXY));
        ImageRef unplaced = Plain(ntUInt8, 8, 6);
        Make(MakeImageCompatible::New(1, 0, mcSize, tpNewOrigin), input, placed);
        Make(MakeImageCompatible::New(1, 0, mcSize, tpNewOrigin), input, unplaced);
        EXPECT_EQ(origin(placed), (std::vector<std::int64_t>{5, 5}));
        EXPECT_EQ(origin(unplaced), (std::vector<std::int64_t>{1, 2}));

        // tpOrigin from an input without one removes the output's.
        Make(MakeImageCompatible::New(1, 0, mcSize, tpOrigin), Plain(ntUInt8, 8, 6), placed);
        EXPECT_FALSE(Image::Origin(placed));
    });
}

// An output that carries every property, made after an input that carries
// none, twice over as an application calls: each word removes what the
// input lacks and leaves the rest; a category already in place stays, and
// one of the wrong kind fails the call as reading it fails.
TEST(ImageMakeRules, PlainInputClearsWhatTheWordCarries)
{
    InChildProcess([] {
        StartBasic();
        auto decorated = [] {
            ImageRef image = Plain(ntUInt8, 8, 6);
            Image::SetCategory(image, LIString(L"Image.Category.Label"), false);
            Image::SetOrigin(image, Geometry::Coordinates::New(3, 4, Axes::aXY));
            Image::SetROI(image, Ref<Geometry::IShapeND>(Geometry::TwoD::PointF::New(1.0f, 2.0f, Axes::aXY)));
            Image::SetPalette(
                image, Drawing::Palette::New(LIString(L"Palette.Test"), std::vector<Drawing::Color>{}));
            return image;
        };
        struct Case {
            const char* what;
            unsigned short word;
            bool origin, roi, palette;
        };
        const Case cases[] = {
            {"no word keeps everything", 0, true, true, true},
            {"tpOrigin", tpOrigin, false, true, true},
            {"tpNewOrigin keeps the output's", tpNewOrigin, true, true, true},
            {"tpROI", tpROI, true, false, true},
            {"tpNewROI replaces a region by none", tpNewROI, true, false, true},
            {"tpPalette", tpPalette, true, true, false},
            {"all of them", tpOrigin | tpROI | tpPalette, false, false, false},
        };
        for (const Case& c : cases) {
            ImageRef output = decorated();
            for (int call = 0; call < 2; ++call) {
                Make(MakeImageCompatible::New(1, 0, mcSize, c.word), Plain(ntUInt8, 8, 6), output);
                EXPECT_EQ(bool(Image::Origin(output)), c.origin) << c.what << ", call " << call;
                EXPECT_EQ(bool(Image::ROI(output)), c.roi) << c.what << ", call " << call;
                EXPECT_EQ(bool(Image::Palette(output)), c.palette) << c.what << ", call " << call;
                EXPECT_EQ(Image::Category(output).Value(), LIString(L"Image.Category.Label")) << c.what;
            }
        }

        ImageRef output = decorated();
        for (int call = 0; call < 2; ++call) {
            Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(binary), 0), Plain(ntUInt8, 8, 6),
                 output);
            EXPECT_EQ(Image::Category(output).Value(), binary) << "call " << call;
        }
        ExtendedPropertiesHelper::SetValue(output, Image::CategoryKey(), ToAny(std::int64_t(7)));
        EXPECT_NE(Refusal([&] {
                      Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(binary), 0),
                           Plain(ntUInt8, 8, 6), output);
                  }),
                  L"");
    });
}

TEST(ImageMakeRules, InPlaceOutputKeepsItsOriginAndRegion)
{
    InChildProcess([] {
        StartBasic();
        ImageRef first = Plain(ntUInt8, 8, 6);
        Image::SetOrigin(first, Geometry::Coordinates::New(1, 2, Axes::aXY));
        Image::SetCategory(first, LIString(L"Image.Category.Label"), false);
        ImageRef second = Plain(ntUInt8, 8, 6);
        Image::SetOrigin(second, Geometry::Coordinates::New(7, 7, Axes::aXY));
        auto format = second->Format().Get();

        ImageOperator3 op(&Receive3);
        op.SetRules(rtMake, Chain({MakeImageCompatible::New(2, 0, 0x2F, 0x1F)}));
        op(first, second, second);
        EXPECT_EQ(second->Format().Get(), format) << "nothing to reshape";
        EXPECT_EQ(Values(Image::Origin(second)), (std::vector<std::int64_t>{7, 7}));
        EXPECT_EQ(Image::Category(second).Value(), LIString(L"Image.Category.Label"))
            << "taken before the stop";
        EXPECT_EQ(Received()[1].Get(), second.Get());
    });
}

TEST(ImageMakeRules, AliasedInputSurvivesTheReshape)
{
    InChildProcess([] {
        StartBasic();
        ImageRef image = Plain(ntUInt8, 8, 6);
        ImageOperator3 op(&Receive3);
        op.SetRules(rtMake, Chain({MakeImageCompatible::New(2, 1, mcSize, WithCategory(colour), 0)}));
        op(image, image, image);
        const auto& received = Received();
        EXPECT_EQ(received[2].Get(), image.Get());
        EXPECT_NE(received[0].Get(), image.Get());
        EXPECT_EQ(received[0].Get(), received[1].Get()) << "one copy, shared";
        EXPECT_EQ(static_cast<int>(received[0]->Size()->Axes()), Axes::aXY);
        EXPECT_EQ(static_cast<int>(image->Size()->Axes()), Axes::aXYB);
    });
}

TEST(ImageMakeRules, PaletteStaysBehindForCategoriesWithTheirOwn)
{
    InChildProcess([] {
        StartBasic();
        // The palette bit is cleared when the rule is made.
        EXPECT_EQ(
            Functions::Rules::Present(MakeImageCompatible::New(1, 0, mcSize, WithCategory(binary), 0x1F)),
            L"CMakeImageCompatible(1, 0, 0x4, {Image.Category.Binary}, 0x17)");
        EXPECT_EQ(
            Functions::Rules::Present(MakeImageCompatible::New(1, {0, 2}, 0x2F, WithCategory(grey), 0x1F)),
            L"CMakeImageCompatible(1, {0, 2}, 0x2F, {Image.Category.Grey}, 0x1F)");

        ImageRef input = Plain(ntUInt8, 8, 6);
        Pointer<Drawing::IPalette, 0> palette =
            Drawing::Palette::New(LIString(L"Palette.Test"), std::vector<Drawing::Color>{});
        Image::SetPalette(input, palette);
        ImageRef output = Image::New();
        Make(MakeImageCompatible::New(1, 0, mcSize, WithCategory(binary), tpPalette), input, output);
        EXPECT_NE(Image::Palette(output).Get(), palette.Get());
        ImageRef plain = Image::New();
        Make(MakeImageCompatible::New(1, 0, mcSize, tpPalette), input, plain);
        EXPECT_EQ(Image::Palette(plain).Get(), palette.Get());
    });
}

using ImageMakeRuleConsistency = Tests::RaisingTest;

TEST_F(ImageMakeRuleConsistency, ContradictoryRegionBitsFailWhenTheRuleIsMade)
{
    EXPECT_EQ(Tests::RaisedMessage([] { MakeImageCompatible::New(1, 0, 0x2F, tpROI | tpNewROI); }),
              L"tpROI and tpNewROI are mutually exclusive");
    EXPECT_EQ(Tests::RaisedMessage([] { MakeImageCompatible::New(1, 0, 0x2F, WithCategory(grey), 0x5F); }),
              L"tpROI and tpNewROI are mutually exclusive");
}

TEST(ImageMakeRules, OptionsCompareEqualWhateverTheyHold)
{
    const MakeImageOptions a = WithCategory(grey);
    const MakeImageOptions b = WithType(ntFloat, true);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(ToAny(a) == ToAny(b));
    EXPECT_EQ(ToAny(b).CastTo<MakeImageOptions>().typeOptions.Value(), TypeOptions(ntFloat, true));
}

TEST(ImageMakeRules, EdgeOutputsHaveOneUnsignedBandPerAxis)
{
    InChildProcess([] {
        StartBasic();
        auto edge = [](const ImageRef& input, const ImageRef& output) {
            Make(MakeImageEdge::New(1, 0), input, output);
            EXPECT_EQ(Image::Category(output).Value(), LIString(L"Image.Category.Edge"));
        };
        ImageRef plane = Image::New();
        edge(Plain(ntInt16, 8, 6), plane);
        EXPECT_EQ(plane->Format()->DataType(), ntUInt16);
        EXPECT_EQ(static_cast<int>(plane->Size()->Axes()), Axes::aXYB);
        EXPECT_EQ(Values(plane->Size()), (std::vector<std::int64_t>{8, 6, 2}));
        EXPECT_EQ(plane->Format()->StorageOrder()->Axis(0), Geometry::aB);

        ImageRef volume = Image::New();
        edge(Volume(ntUInt8, 4, 3, 2), volume);
        EXPECT_EQ(volume->Format()->DataType(), ntUInt8);
        EXPECT_EQ(Values(volume->Size()), (std::vector<std::int64_t>{4, 3, 2, 3}));

        // Outputs that fit are left alone, and still get the category.
        for (NumericTypeEnum type : {ntUInt16, ntFloat}) {
            ImageRef fitting = MakeImage(type, Geometry::Coordinates::New(8, 6, 2, Axes::aXYB), L"BXY");
            auto format = fitting->Format().Get();
            edge(Plain(ntInt16, 8, 6), fitting);
            EXPECT_EQ(fitting->Format().Get(), format) << ToAnsi(System::ToString(type));
        }
        // A signed or complex output of the right size is not.
        ImageRef signedOutput = MakeImage(ntInt16, Geometry::Coordinates::New(8, 6, 2, Axes::aXYB), L"BXY");
        edge(Plain(ntInt16, 8, 6), signedOutput);
        EXPECT_EQ(signedOutput->Format()->DataType(), ntUInt16);
    });
}

TEST(ImageMakeRules, MatrixOutputsHaveOneBandPerColumn)
{
    InChildProcess([] {
        StartBasic();
        auto apply = [](const ImageRef& input, const ImageRef& output, std::int64_t columns) {
            using MatrixOperator =
                Functions::Template::Function<void (*)(ImageRef, ImageRef, Pointer<Math::IMatrixD>)>;
            MatrixOperator op(+[](ImageRef, ImageRef, Pointer<Math::IMatrixD>) {});
            op.SetRules(rtMake, Chain({Images::Math::Detail::MakeImageAgainstMatrix::New(1, 0, 2)}));
            op(input, output, Math::MatrixD::New(std::int64_t(3), columns));
        };
        ImageRef two = Image::New();
        apply(Banded(ntUInt16, 8, 6, 3), two, 2);
        EXPECT_EQ(Values(two->Size()), (std::vector<std::int64_t>{8, 6, 2}));
        EXPECT_EQ(two->Format()->DataType(), ntUInt16);

        ImageRef one = Banded(ntFloat, 8, 6, 3);
        apply(Banded(ntUInt16, 8, 6, 3), one, 1);
        EXPECT_EQ(static_cast<int>(one->Size()->Axes()), Axes::aXY);
        EXPECT_EQ(one->Format()->DataType(), ntFloat) << "a sized output keeps its type";

        // The input's bands against the columns decide, with the spatial
        // size, whether the output fits.
        ImageRef fitting = Banded(ntFloat, 8, 6, 2);
        auto format = fitting->Format().Get();
        apply(Banded(ntUInt16, 8, 6, 3), fitting, 3);
        EXPECT_EQ(fitting->Format().Get(), format);
    });
}

} // namespace
