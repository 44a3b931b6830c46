// Bitmaps: the function slots of the core, and the reference library's
// layouts, reshaping, padding, framing, accesses and typed views.
#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/Geometry/TwoD/Polygon.h"
#include "Quilon_/Images/BitmapAccess.h"
#include "Quilon_/Images/BitmapAccessor.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/WeakReference.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace Quilon_::Tests::BitmapSuite {

using namespace Quilon_::Images;
using Basic::Images::BitmapView;
using Geometry::Axes;
using Geometry::Coordinates::New;
using System::Pointer;
using BitmapRef = Pointer<IBitmap, 1>;

using BitmapSlots = RaisingTest;

void Pad1Stub(BitmapRef, const Padding&) {}
void Frame1Stub(BitmapRef, const System::Any&, bool) {}

TEST_F(BitmapSlots, PadAndFrameReportTheirSlotsAndRaiseWhenEmpty)
{
    EXPECT_FALSE(Bitmap::PadFunction1IsImplemented());
    Bitmap::SetPadFunction1(&Pad1Stub);
    EXPECT_TRUE(Bitmap::PadFunction1IsImplemented());
    Bitmap::SetPadFunction1(nullptr);
    EXPECT_FALSE(Bitmap::PadFunction1IsImplemented());
    Bitmap::SetFrameFunction1(&Frame1Stub);
    EXPECT_TRUE(Bitmap::FrameFunction1IsImplemented());
    Bitmap::SetFrameFunction1(nullptr);
    EXPECT_FALSE(Bitmap::PadFunction2IsImplemented() || Bitmap::FrameFunction2IsImplemented());
    EXPECT_EQ(RaisedMessage([] { Bitmap::Frame(nullptr, System::Any(), false); }),
              L"Pointer <Quilon_::Images::IBitmap> : attempt to assign 0 to a reference");
    EXPECT_EQ(System::ToString(baoMemory), L"baoMemory");
    EXPECT_EQ(System::ToAny(baoReadWrite).CastTo<BitmapAccessOptionsEnum>(), baoReadWrite);
}

TEST(BitmapSampleTypes, DispatchNamesTheSampleTypeOfEachDataType)
{
    using namespace System;
    const std::pair<NumericTypeEnum, std::int64_t> bytes[] = {
        {ntUInt1, 1}, {ntInt8, 1},   {ntUInt16, 2},   {ntInt32, 4},    {ntUInt64, 8},
        {ntFloat, 4}, {ntDouble, 8}, {ntComplexF, 8}, {ntComplexD, 16}};
    for (auto [type, size] : bytes)
        EXPECT_EQ(Basic::Images::SampleBytes(type), size) << ToAnsi(ToString(type));
    static_assert(std::is_same_v<Basic::Images::SampleType<ntInt16>, std::int16_t>);
    EXPECT_EQ(RaisedMessage([] { Basic::Images::SampleBytes(static_cast<NumericTypeEnum>(3)); }),
              L"Unsupported sample type: 3");
}

// Every sample of an 8-bit bitmap, location by location, X fastest.
std::vector<int> Samples(const BitmapRef& bitmap)
{
    const auto view = BitmapView<std::uint8_t>::Of(bitmap);
    std::vector<int> values;
    for (std::int64_t z = 0; z < view.size[2]; ++z)
        for (std::int64_t y = 0; y < view.size[1]; ++y)
            for (std::int64_t x = 0; x < view.size[0]; ++x)
                values.push_back(*view.At(x, y, z));
    return values;
}

TEST(BitmapBasic, LayoutFollowsTheStorageOrder)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            const wchar_t* order;
            System::NumericTypeEnum type;
            std::vector<std::int64_t> strides;
            std::int64_t origin, bytes, offset; // offset of (1, 2, 1)
        };
        // X = 4, Y = 3, B = 2.
        const Case cases[] = {
            {L"XYB", System::ntUInt8, {1, 4, 12}, 0, 24, 21},
            {L"BXY", System::ntUInt8, {2, 8, 1}, 0, 24, 19},
            {L"BXY", System::ntUInt16, {4, 16, 2}, 0, 48, 38},
            {L"X-YB", System::ntUInt8, {1, -4, 12}, 8, 24, 13},
            {L"Y", System::ntUInt8, {3, 1, 12}, 0, 24, 17},
            {L"ZTXYB", System::ntFloat, {4, 16, 48}, 0, 96, 84},
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(System::ToAnsi(c.order));
            Pointer<IFormat, 1> format = UniformFormat::New(StorageOrder::New(c.order));
            format->SetDataType(c.type);
            BitmapRef bitmap = Bitmap::New(New(4, 3, 2, Axes::aXYB), format);
            EXPECT_EQ(bitmap->Strides(), c.strides);
            EXPECT_EQ(bitmap->Origin(), c.origin);
            EXPECT_EQ(bitmap->Memory()->Size(), c.bytes);
            EXPECT_EQ(format->Offset(bitmap->Size(), New(1, 2, 1, Axes::aXYB)), c.offset);

            BitmapAccessor::New(bitmap)->SetValue(New(1, 2, 1, Axes::aXYB), System::ToAny(1000));
            const auto* bytes = static_cast<const std::uint8_t*>(bitmap->Memory()->Data());
            std::vector<std::int64_t> nonZero;
            for (std::int64_t i = 0; i < c.bytes; ++i)
                if (bytes[i])
                    nonZero.push_back(i);
            ASSERT_FALSE(nonZero.empty());
            EXPECT_GE(nonZero.front(), c.offset);
            EXPECT_LT(nonZero.back(), c.offset + format->BytesPerSample());
        }

        BitmapRef plain = Bitmap::New(New(4, 3, 2, Axes::aXYB));
        EXPECT_EQ(plain->Format()->ToString(), L"ntUInt8 XYB");
        EXPECT_EQ(Samples(plain), std::vector<int>(24, 0)); // X, Y, then the bands
        EXPECT_EQ(RaisedMessage([] {
                      Bitmap::New(New(4, 3, 2, Axes::aXYB), UniformFormat::New(StorageOrder::New(L"XYB")),
                                  System::Memory::New(std::int64_t(23), false));
                  }),
                  L"A block of 23 bytes is too small for a bitmap of 24 bytes");
        EXPECT_EQ(RaisedMessage([] {
                      Bitmap::New(New(4, 3, 2, Axes::aXYB),
                                  Color::UniformColorFormat::New(StorageOrder::New(L"BXY")));
                  }),
                  L"The format ntUInt8 BXY does not fit a bitmap of axes 'XYB'");
        EXPECT_EQ(RaisedMessage([&] { BitmapAccessor::New(plain)->Value(New(4, 0, 0, Axes::aXYB)); }),
                  L"Location (4, 0, 0) is outside the bitmap of size (4 x 3 x 2)");
    });
}

TEST(BitmapBasic, ReshapeKeepsCommonSamplesAndPadFillsTheRest)
{
    InChildProcess([] {
        StartBasic();
        BitmapRef bitmap = Bitmap::New(New(3, 2, Axes::aXY));
        auto view = BitmapView<std::uint8_t>::Of(bitmap);
        for (std::int64_t y = 0; y < 2; ++y)
            for (std::int64_t x = 0; x < 3; ++x)
                *view.At(x, y) = static_cast<std::uint8_t>(1 + x + 3 * y);
        Pointer<System::IMemory, 1> before = bitmap->Memory();

        bitmap->Reshape(New(5, 3, Axes::aXY), bitmap->Format(), Padding(ptConstant, System::ToAny(9.0)));
        EXPECT_FALSE(bitmap->Memory() == before);
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 2, 3, 9, 9, 4, 5, 6, 9, 9, 9, 9, 9, 9, 9}));
        Bitmap::Pad(bitmap, Padding(ptReplicate, System::Any()));
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 2, 3, 3, 3, 4, 5, 6, 6, 6, 4, 5, 6, 6, 6}));
        Bitmap::Pad(bitmap, Padding(ptMirror, System::Any()));
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 2, 3, 2, 1, 4, 5, 6, 5, 4, 1, 2, 3, 2, 1}));

        // The same size and format again changes nothing, not even the block.
        before = bitmap->Memory();
        bitmap->Reshape(New(5, 3, Axes::aXY), bitmap->Format(), Padding());
        EXPECT_TRUE(bitmap->Memory() == before);

        // Another data type converts the kept values; they saturate on the
        // way back to a narrower type.
        Pointer<IFormat, 1> words = UniformFormat::New(StorageOrder::New(L"XY"));
        words->SetDataType(System::ntUInt16);
        bitmap->Reshape(New(6, 1, Axes::aXY), words, Padding(ptConstant, System::ToAny(300)));
        Pointer<IBitmapAccessor, 1> accessor = BitmapAccessor::New(bitmap);
        EXPECT_EQ(accessor->Value(New(1, 0, Axes::aXY)).CastTo<std::uint16_t>(), 2);
        EXPECT_EQ(accessor->Value(New(5, 0, Axes::aXY)).CastTo<std::uint16_t>(), 300);
        bitmap->Reshape(New(6, 1, Axes::aXY), UniformFormat::New(StorageOrder::New(L"XY")), Padding());
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 2, 3, 2, 1, 255}));
    });
}

TEST(BitmapBasic, FrameWritesTheBorderOfEachPlaneOrOfTheVolume)
{
    InChildProcess([] {
        StartBasic();
        BitmapRef plane = Bitmap::New(New(4, 3, Axes::aXY));
        Bitmap::Frame(plane, System::ToAny(std::int64_t(7)), false);
        EXPECT_EQ(Samples(plane), (std::vector<int>{7, 7, 7, 7, 7, 0, 0, 7, 7, 7, 7, 7}));

        for (bool volume : {false, true}) {
            BitmapRef cube = Bitmap::New(New(3, 3, 3, Axes::aXYZ));
            Bitmap::Frame(cube, System::ToAny(300), volume);
            std::vector<int> samples = Samples(cube);
            EXPECT_EQ(std::count(samples.begin(), samples.end(), 0), volume ? 1 : 3);
            EXPECT_EQ(std::count(samples.begin(), samples.end(), 255), volume ? 26 : 24);
        }
    });
}

TEST(BitmapBasic, ShapesBoundPaddingAndFraming)
{
    InChildProcess([] {
        StartBasic();
        // Pixels are centred on integer locations: the square holds (1..3, 1..3).
        Pointer<Geometry::IShapeND, 1> square =
            Geometry::TwoD::PolygonF::New(Drawing::PointFCollection::New(std::vector<Drawing::Point<float>>{
                                              {0.5f, 0.5f}, {3.5f, 0.5f}, {3.5f, 3.5f}, {0.5f, 3.5f}}),
                                          Axes::aXY);
        BitmapRef bitmap = Bitmap::New(New(5, 5, Axes::aXY));
        bitmap->Memory()->Fill(1);
        Bitmap::Pad(bitmap, square, Padding());
        const std::vector<int> inside = {0, 0, 0, 0, 0, 0, 1, 1, 1, 0, 0, 1, 1,
                                         1, 0, 0, 1, 1, 1, 0, 0, 0, 0, 0, 0};
        EXPECT_EQ(Samples(bitmap), inside);

        Bitmap::Frame(bitmap, square, System::ToAny(7), false);
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{0, 0, 0, 0, 0, 0, 7, 7, 7, 0, 0, 7, 1,
                                                     7, 0, 0, 7, 7, 7, 0, 0, 0, 0, 0, 0}));

        Bitmap::Pad(bitmap, square, Padding(ptReplicate, System::Any()));
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 1,
                                                     7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
    });
}

TEST(BitmapBasic, ViewsLocatorsAndAccessesReachTheSameSamples)
{
    InChildProcess([] {
        StartBasic();
        BitmapRef bitmap = Bitmap::New(New(4, 3, Axes::aXY), UniformFormat::New(StorageOrder::New(L"X-Y")));
        const auto view = BitmapView<std::uint8_t>::Of(bitmap);
        EXPECT_EQ(view.stride[1], -4);
        EXPECT_EQ(view.At(2, 1), BitmapAccessor::New(bitmap)->Address(New(2, 1, Axes::aXY)));
        std::int64_t lines = 0, samples = 0;
        Basic::Images::ForEachLine(view, [&](std::uint8_t* line, std::int64_t count, std::int64_t step) {
            ++lines;
            for (std::int64_t i = 0; i < count; ++i)
                line[i * step] = static_cast<std::uint8_t>(++samples);
        });
        EXPECT_EQ(lines, 3);
        EXPECT_EQ(*view.At(0, 2), 9); // the last row lies first in memory
        EXPECT_EQ(static_cast<std::uint8_t*>(bitmap->Memory()->Data())[0], 9);
        EXPECT_EQ(RaisedMessage([&] { BitmapView<float>::Of(bitmap); }),
                  L"Bitmap samples are not of the requested type: ntUInt8");

        Pointer<IBitmapLocator, 1> locator = BitmapLocator::New(bitmap);
        locator->SetLocation(New(1, 0, Axes::aXY));
        locator->Move(Geometry::aY, 2);
        EXPECT_EQ(locator->Address(), view.At(1, 2));
        EXPECT_EQ(RaisedMessage([&] { locator->Move(Geometry::aY, 1); }),
                  L"Moving 1 steps along aY leaves the bitmap of size (4 x 3)");

        Pointer<IBitmapAccessProperties, 1> properties = BitmapAccessProperties::New();
        properties->SetOptions(baoMemory);
        Pointer<IBitmapAccessProvider, 1> provider = bitmap;
        EXPECT_TRUE(provider->Access(properties)->Bitmap()->Memory() == bitmap->Memory());

        properties->SetOptions(baoReadWrite);
        properties->SetCopy(true);
        Pointer<IBitmapAccess, 1> access = provider->Access(properties);
        EXPECT_FALSE(access->Bitmap()->Memory() == bitmap->Memory());
        BitmapAccessor::New(access->Bitmap())->SetValue(New(3, 2, Axes::aXY), System::ToAny(77));
        EXPECT_EQ(*view.At(3, 2), 12);
        access->Close();
        EXPECT_FALSE(access->IsOpen());
        EXPECT_EQ(*view.At(3, 2), 77);
    });
}

TEST(BitmapBasic, ReshapeAcrossAxesAndOrdersAndFailureChangesNothing)
{
    InChildProcess([] {
        StartBasic();
        // Rows stored bottom-up: the kept samples are copied one by one.
        BitmapRef bitmap = Bitmap::New(New(2, 2, Axes::aXY), UniformFormat::New(StorageOrder::New(L"X-Y")));
        auto view = BitmapView<std::uint8_t>::Of(bitmap);
        *view.At(0, 0) = 1, *view.At(1, 0) = 2, *view.At(0, 1) = 3, *view.At(1, 1) = 4;

        // A band axis added: the samples go to band 0, the other bands copy them.
        bitmap->Reshape(New(3, 2, 2, Axes::aXYB), UniformFormat::New(StorageOrder::New(L"X-YB")),
                        Padding(ptReplicate, System::Any()));
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 2, 2, 3, 4, 4, 1, 2, 2, 3, 4, 4}));
        EXPECT_EQ(bitmap->Origin(), 3);

        // Mirroring a region one sample wide repeats that sample.
        bitmap->Reshape(New(1, 1, 2, Axes::aXYB), bitmap->Format(), Padding());
        bitmap->Reshape(New(3, 1, 2, Axes::aXYB), bitmap->Format(), Padding(ptMirror, System::Any()));
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{1, 1, 1, 1, 1, 1}));

        Pointer<System::IMemory, 1> block = bitmap->Memory();
        EXPECT_FALSE(RaisedMessage([&] {
                         bitmap->Reshape(New(3, 1, 2, Axes::aXYB),
                                         Color::UniformColorFormat::New(StorageOrder::New(L"BXY")),
                                         Padding());
                     }).empty());
        EXPECT_EQ(bitmap->Size()->Axes(), Axes::aXYB);
        EXPECT_EQ(bitmap->Format()->ToString(), L"ntUInt8 X-YB");
        EXPECT_TRUE(bitmap->Memory() == block);
    });
}

TEST(BitmapBasic, FormatsAreOwnedByTheirBitmapsAndRewrapSharedMemory)
{
    InChildProcess([] {
        StartBasic();
        Pointer<IFormat, 1> format = UniformFormat::New(StorageOrder::New(L"BXY"));
        BitmapRef rgb = Bitmap::New(New(2, 2, 3, Axes::aXYB), format);
        format->SetDataType(System::ntFloat);
        EXPECT_EQ(rgb->Format()->DataType(), System::ntUInt8);

        // A three-band bitmap seen as colour, without moving a sample.
        Pointer<IBitmapAccessProperties, 1> properties = BitmapAccessProperties::New();
        properties->SetOptions(static_cast<BitmapAccessOptionsEnum>(1));
        Pointer<System::IMemory, 1> memory =
            Pointer<IBitmapAccessProvider, 1>(rgb)->Access(properties)->Bitmap()->Memory();
        Pointer<Color::IColorFormat, 1> colour =
            Color::UniformColorFormat::New(rgb->Format()->StorageOrder());
        EXPECT_EQ(colour->BandCount(), 3);
        EXPECT_FALSE(colour->ColorSpace());
        BitmapRef seen = Bitmap::New(rgb->Size(), colour, memory);
        EXPECT_TRUE(seen->Memory() == rgb->Memory());
        BitmapAccessor::New(rgb)->SetValue(New(1, 1, 2, Axes::aXYB), System::ToAny(42));
        EXPECT_EQ(BitmapAccessor::New(seen)->Value(New(1, 1, 2, Axes::aXYB)).CastTo<std::uint8_t>(), 42);

        Pointer<IBitmapInternal, 1> internal = seen;
        EXPECT_EQ(RaisedMessage([&] { internal->SetMemory(System::Memory::New(std::int64_t(11), false)); }),
                  L"A block of 11 bytes is too small for a bitmap of 12 bytes");
        EXPECT_TRUE(seen->Memory() == memory);

        Pointer<IBinaryFormat, 1> binary = BinaryFormat::New(StorageOrder::New(L"XY"));
        EXPECT_TRUE(binary->IsBinary());
        EXPECT_EQ(binary->BytesPerSample(), 1);
        EXPECT_EQ(RaisedMessage([&] { binary->SetDataType(System::ntUInt8); }),
                  L"A binary format holds ntUInt1 samples, not ntUInt8");
        EXPECT_EQ(RaisedMessage([&] { binary->SetForegroundValue(0); }),
                  L"The foreground value of a binary format cannot be 0");
    });
}

TEST(BitmapBasic, WrittenValuesRoundAndSaturateToTheSampleType)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            System::NumericTypeEnum type;
            double written;
            double read;
        };
        const Case cases[] = {
            {System::ntInt8, 200, 127},    {System::ntInt8, -200, -128},
            {System::ntUInt16, -3, 0},     {System::ntInt32, 2.5, 2},
            {System::ntInt32, 3.5, 4},     {System::ntUInt64, 1e30, 18446744073709551615.0},
            {System::ntFloat, 2.25, 2.25}, {System::ntDouble, -1e300, -1e300},
        };
        for (const Case& c : cases) {
            Pointer<IFormat, 1> format = UniformFormat::New(StorageOrder::New(L"XY"));
            format->SetDataType(c.type);
            Pointer<IBitmapAccessor, 1> accessor =
                BitmapAccessor::New(Bitmap::New(New(1, 1, Axes::aXY), format));
            accessor->SetValue(New(0, 0, Axes::aXY), System::ToAny(c.written));
            EXPECT_EQ(System::Helper::ScalarValue(accessor->Value(New(0, 0, Axes::aXY))), c.read)
                << System::ToAnsi(System::ToString(c.type)) << " " << c.written;
        }
    });
}

TEST(BitmapBasic, CopiedAccessesWriteBackThroughTheirMaskWhenDropped)
{
    InChildProcess([] {
        StartBasic();
        BitmapRef bitmap = Bitmap::New(New(3, 1, Axes::aXY));
        BitmapRef mask = Bitmap::New(New(3, 1, Axes::aXY));
        BitmapView<std::uint8_t>::Of(mask).At(1, 0)[0] = 1;
        System::WeakReference<IBitmapAccess> weak;
        {
            Pointer<IBitmapAccess, 1> access = BitmapAccess::New(bitmap, nullptr, mask, baoWrite, true);
            EXPECT_TRUE(access->IsCopy());
            access->Bitmap()->Memory()->Fill(9);
            EXPECT_EQ(Samples(bitmap), (std::vector<int>{0, 0, 0}));
            weak.SetTarget(access.Get());
        }
        EXPECT_FALSE(weak.Target()); // told by the access's Destroyed event
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{0, 9, 0}));

        // Read-only copies never write back.
        Pointer<IBitmapAccess, 1> reading = BitmapAccess::New(bitmap, nullptr, nullptr, baoRead, true);
        reading->Bitmap()->Memory()->Fill(5);
        reading->Close();
        EXPECT_EQ(Samples(bitmap), (std::vector<int>{0, 9, 0}));
    });
}

TEST(BitmapBasic, LinesFollowTheFastestAxisInMemory)
{
    InChildProcess([] {
        StartBasic();
        BitmapRef columns = Bitmap::New(New(4, 3, Axes::aXY), UniformFormat::New(StorageOrder::New(L"YX")));
        std::vector<std::pair<std::int64_t, std::int64_t>> lines;
        Basic::Images::ForEachLine(
            BitmapView<std::uint8_t>::Of(columns),
            [&](std::uint8_t*, std::int64_t count, std::int64_t step) { lines.emplace_back(count, step); });
        EXPECT_EQ(lines, (std::vector<std::pair<std::int64_t, std::int64_t>>(4, {3, 1})));
    });
}

} // namespace Quilon_::Tests::BitmapSuite
