// The colour spaces of the process as the reference library fills them.
#include "Quilon_/Images/Color/ColorSpaceDictionary.h"
#include "Quilon_/Library.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::ColorSpaces {

using namespace Quilon_::Images::Color;

TEST(ColorSpace, TheLibraryShipsRgbAndNoDefault)
{
    InChildProcess([] {
        StartBasic();
        EXPECT_FALSE(Globals::DefaultColorSpace());
        System::Ref<IColorSpace> rgb = Globals::ColorSpaces()->Item(L"RGB");
        EXPECT_EQ(rgb->BandCount(), 3);
        EXPECT_EQ(rgb->BandIndex(System::LIString(L"Blue", false)), 2);
        EXPECT_EQ(rgb->Range(1)->Maximum(), 255.0);
        EXPECT_EQ(rgb->NumericType(), System::ntUInt8);
        EXPECT_TRUE(rgb->IsCompatible(rgb));

        System::Ref<IColorSpace> grey =
            ColorSpace::New(L"Grey", System::LIString(L"Grey"), 1, {nullptr}, System::ntUInt16, {});
        EXPECT_EQ(grey->BandName(0).Value(), L"Band 0");
        Globals::ColorSpaces()->Add(grey);
        EXPECT_EQ(Globals::ColorSpaces()->WithBandCount(1).size(), 1u);

        System::Ref<IColorSpaceDictionary> spaces = Globals::ColorSpaces();
        Globals::ClearCollectionColorSpaces();
        EXPECT_EQ(Globals::ColorSpaces().Get(), spaces.Get());
        EXPECT_EQ(Globals::ColorSpaces()->Count(), 0);

        Library::Finalize();
        EXPECT_FALSE(Globals::DefaultColorSpace());
    });
}

} // namespace Quilon_::Tests::ColorSpaces
