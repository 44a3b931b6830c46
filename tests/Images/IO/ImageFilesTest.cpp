// Image files as an application meets them: Read and Write through the
// reference library's readers and writers, round trips of every format and
// sample type, the choice by content and extension, slices of stacks, and
// broken files, each refused with a message that names it.
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/IO/BitmapReader.h"
#include "Quilon_/Images/IO/BitmapWriter.h"
#include "Quilon_/Images/IO/FormatWriters.h"
#include "Quilon_/Images/IO/Functions.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/String.h"

#include "../../Support/BasicLibrary.h"
#include "../../Support/InChildProcess.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <thread>

namespace Quilon_::Tests::ImageFiles {

namespace QI = Quilon_::Images;
using namespace System;
using Basic::Images::BitmapView;
using Basic::Images::DispatchSampleType;
using ImageRef = Ref<QI::IImage>;
namespace fs = std::filesystem;

struct Shape {
    std::int64_t width;
    std::int64_t height;
    std::int64_t depth;
    std::int64_t bands;
    NumericTypeEnum type;
};

ImageRef NewImage(const Shape& shape)
{
    std::wstring order = shape.depth > 1 ? L"XYZ" : L"XY";
    Geometry::Axes axes = shape.depth > 1 ? Geometry::Axes::aXYZ : Geometry::Axes::aXY;
    if (shape.bands > 1) {
        order = L"B" + order;
        axes = Geometry::Axes(axes | Geometry::aB);
    }
    Ref<Geometry::ICoordinates> size = Geometry::Coordinates::New(axes);
    size->SetValue(Geometry::aX, shape.width);
    size->SetValue(Geometry::aY, shape.height);
    if (shape.depth > 1)
        size->SetValue(Geometry::aZ, shape.depth);
    if (shape.bands > 1)
        size->SetValue(Geometry::aB, shape.bands);
    Ref<QI::IFormat> format = QI::UniformFormat::New(QI::StorageOrder::New(order));
    format->SetDataType(shape.type);
    return QI::Image::New(size, format);
}

// The samples of an image in the order of its view (X fastest), as doubles.
std::vector<double> Samples(const ImageRef& image)
{
    std::vector<double> values;
    DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_arithmetic_v<T>) {
            const BitmapView<T> view = BitmapView<T>::Of(image->Bitmap());
            for (std::int64_t d = 0; d < view.size[3]; ++d)
                for (std::int64_t c = 0; c < view.size[2]; ++c)
                    for (std::int64_t b = 0; b < view.size[1]; ++b)
                        for (std::int64_t a = 0; a < view.size[0]; ++a)
                            values.push_back(double(*view.At(a, b, c, d)));
        }
    });
    return values;
}

// Fills the image with values from `value(i)`, i counting in view order.
template <class Value>
void Fill(const ImageRef& image, Value value)
{
    DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_arithmetic_v<T>) {
            const BitmapView<T> view = BitmapView<T>::Of(image->Bitmap());
            std::int64_t i = 0;
            for (std::int64_t d = 0; d < view.size[3]; ++d)
                for (std::int64_t c = 0; c < view.size[2]; ++c)
                    for (std::int64_t b = 0; b < view.size[1]; ++b)
                        for (std::int64_t a = 0; a < view.size[0]; ++a)
                            *view.At(a, b, c, d) = T(value(i++));
        }
    });
}

// A pattern that uses the whole range of the type: the extremes, and
// values whose high and low bytes differ (byte order shows).
double Pattern(NumericTypeEnum type, std::int64_t i)
{
    switch (type) {
    case ntUInt8:
        return double((i * 37 + 11) % 256);
    case ntInt8:
        return double((i * 37 + 11) % 256 - 128);
    case ntUInt16:
        return double((i * 4099 + 7) % 65536);
    case ntInt16:
        return double((i * 4099 + 7) % 65536 - 32768);
    case ntUInt32:
        return double((i * 16777259LL + 5) % 4294967296LL);
    case ntInt32:
        return double((i * 16777259LL + 5) % 4294967296LL - 2147483648LL);
    default:
        return double(i) * 0.25 - 3.5;
    }
}

// A smooth grey image for the lossy format, the same in every band: small
// error expected.
double Smooth(const Shape& shape, std::int64_t i)
{
    const std::int64_t pixel = i % (shape.width * shape.height);
    return 128.0 + 60.0 * std::sin(double(pixel % shape.width) / 4.0) +
           30.0 * std::cos(double(pixel / shape.width) / 5.0);
}

fs::path Folder()
{
    const fs::path folder = fs::temp_directory_path() / ("quilon-image-files-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    return folder;
}

std::wstring Fixture(const char* name)
{
    return ToString(std::string(QUILON_TEST_FIXTURES_DIR) + "/images/" + name);
}

void ExpectShape(const ImageRef& image, const Shape& shape, const std::string& label)
{
    Ref<Geometry::ICoordinates> size = image->Size();
    EXPECT_EQ(size->Value(Geometry::aX), shape.width) << label;
    EXPECT_EQ(size->Value(Geometry::aY), shape.height) << label;
    EXPECT_EQ((size->Axes() & Geometry::aZ) ? size->Value(Geometry::aZ) : 1, shape.depth) << label;
    EXPECT_EQ(image->BandCount(), shape.bands) << label;
    EXPECT_EQ(image->Format()->DataType(), shape.type) << label;
}

TEST(ImageFiles, EveryFormatAndSampleTypeComesBackAsWritten)
{
    struct Case {
        const char* file;
        Shape shape;
        double tolerance;
    };
    const std::vector<Case> cases = {
        {"grey8.pgm", {7, 5, 1, 1, ntUInt8}, 0},     {"grey16.pgm", {7, 5, 1, 1, ntUInt16}, 0},
        {"rgb8.ppm", {6, 4, 1, 3, ntUInt8}, 0},      {"rgb16.ppm", {6, 4, 1, 3, ntUInt16}, 0},
        {"grey8.png", {9, 3, 1, 1, ntUInt8}, 0},     {"grey16.png", {9, 3, 1, 1, ntUInt16}, 0},
        {"greyalpha.png", {5, 5, 1, 2, ntUInt8}, 0}, {"rgb8.png", {8, 6, 1, 3, ntUInt8}, 0},
        {"rgb16.png", {8, 6, 1, 3, ntUInt16}, 0},    {"rgba8.png", {4, 7, 1, 4, ntUInt8}, 0},
        {"grey8.tif", {9, 4, 1, 1, ntUInt8}, 0},     {"grey16.tif", {9, 4, 1, 1, ntUInt16}, 0},
        {"float.tif", {5, 5, 1, 1, ntFloat}, 0},     {"signed16.tif", {6, 3, 1, 1, ntInt16}, 0},
        {"signed32.tif", {6, 3, 1, 1, ntInt32}, 0},  {"double.tif", {4, 4, 1, 1, ntDouble}, 0},
        {"rgb8.tif", {6, 5, 1, 3, ntUInt8}, 0},      {"stack8.tif", {5, 4, 6, 1, ntUInt8}, 0},
        {"stackrgb.tiff", {3, 4, 2, 3, ntFloat}, 0}, {"grey8.jpg", {24, 16, 1, 1, ntUInt8}, 6},
        {"rgb8.jpeg", {24, 16, 1, 3, ntUInt8}, 12},
    };
    InChildProcess([&] {
        StartBasic();
        const fs::path folder = Folder();
        for (const Case& c : cases) {
            const std::wstring file = ToString((folder / c.file).string());
            ImageRef written = NewImage(c.shape);
            const bool lossy = c.tolerance > 0;
            Fill(written,
                 [&](std::int64_t i) { return lossy ? Smooth(c.shape, i) : Pattern(c.shape.type, i); });
            QI::IO::Functions::Write(written, file);
            ImageRef read = QI::Image::New();
            QI::IO::Functions::Read(read, file);
            ExpectShape(read, c.shape, c.file);
            const std::vector<double> expected = Samples(written);
            const std::vector<double> actual = Samples(read);
            ASSERT_EQ(actual.size(), expected.size()) << c.file;
            double worst = 0;
            for (std::size_t i = 0; i < actual.size(); ++i)
                worst = std::max(worst, std::abs(actual[i] - expected[i]));
            EXPECT_LE(worst, c.tolerance) << c.file;
            // One band reads as grey, three as colour in the RGB space.
            const Nullable<LIString> category = QI::Image::Category(read);
            if (c.shape.bands == 1 || c.shape.bands == 3) {
                ASSERT_TRUE(category.HasValue()) << c.file;
                EXPECT_EQ(
                    category.Value(),
                    QI::Image::PredefinedCategory(c.shape.bands == 1 ? QI::picGrey : QI::picColor).Value())
                    << c.file;
            }
            if (c.shape.bands == 3) {
                Pointer<QI::Color::IColorFormat, 0> colour(read->Format());
                ASSERT_TRUE(colour) << c.file;
                ASSERT_TRUE(colour->ColorSpace()) << c.file;
                EXPECT_EQ(colour->ColorSpace()->Name(), L"RGB") << c.file;
            }
        }
        // Every file went through a temporary that is gone now.
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            EXPECT_EQ(entry.path().string().find(".part"), std::string::npos) << entry.path();
        fs::remove_all(folder);
    });
}

TEST(ImageFiles, ContentDecidesOverExtensionAndWritersConvert)
{
    InChildProcess([] {
        StartBasic();
        const fs::path folder = Folder();
        // A file written by another encoder: sample (x, y) is 16 x + y.
        ImageRef reference = QI::Image::New();
        QI::IO::Functions::Read(reference, Fixture("grey16x16.png"));
        ExpectShape(reference, {16, 16, 1, 1, ntUInt8}, "grey16x16.png");
        const std::vector<double> samples = Samples(reference);
        EXPECT_EQ(samples[1], 16);
        EXPECT_EQ(samples[16], 1);
        EXPECT_EQ(samples[255], 255);

        // A PNG named .tif is read as the PNG it is.
        fs::copy_file(ToAnsi(Fixture("grey16x16.png")), folder / "named.tif");
        ImageRef renamed = QI::Image::New();
        QI::IO::Functions::Read(renamed, ToString((folder / "named.tif").string()));
        EXPECT_EQ(Samples(renamed), samples);

        // Values that an 8-bit format cannot hold are saturated and rounded
        // half away from zero; a 32-bit integer image goes to 16 bits.
        struct Conversion {
            NumericTypeEnum type;
            std::vector<double> values;
            const char* file;
            NumericTypeEnum stored;
            std::vector<double> expected;
        };
        const std::vector<Conversion> conversions = {
            {ntFloat, {-5, 2.5, 3.49, 300}, "float.png", ntUInt8, {0, 3, 3, 255}},
            {ntInt32, {-1, 70000, 65535, 12}, "int32.pgm", ntUInt16, {0, 65535, 65535, 12}},
            {ntInt8, {-128, 127, 0, -1}, "int8.png", ntUInt16, {0, 127, 0, 0}},
            {ntDouble, {-1, 0.5, 254.5, 1e9}, "double.pgm", ntUInt8, {0, 1, 255, 255}},
        };
        for (const Conversion& c : conversions) {
            ImageRef image = NewImage({4, 1, 1, 1, c.type});
            Fill(image, [&](std::int64_t i) { return c.values[std::size_t(i)]; });
            const std::wstring file = ToString((folder / c.file).string());
            QI::IO::Functions::Write(image, file);
            ImageRef read = QI::Image::New();
            QI::IO::Functions::Read(read, file);
            EXPECT_EQ(read->Format()->DataType(), c.stored) << c.file;
            const std::vector<double> actual = Samples(read);
            EXPECT_EQ(actual, c.expected) << c.file;
        }
        fs::remove_all(folder);
    });
}

TEST(ImageFiles, StacksWriteAsPagesAndSlicesImportAndExport)
{
    InChildProcess([] {
        StartBasic();
        const fs::path folder = Folder();
        const std::wstring stackFile = ToString((folder / "stack.tif").string());
        const std::wstring planeFile = ToString((folder / "plane.png").string());
        ImageRef stack = NewImage({4, 3, 5, 1, ntUInt16});
        Fill(stack, [](std::int64_t i) { return double(i * 100); });
        QI::IO::Functions::Write(stack, stackFile);

        // The plane at Z = 2 alone.
        QI::IO::Functions::Export(stack, planeFile, Geometry::aZ, 2);
        ImageRef plane = QI::Image::New();
        QI::IO::Functions::Read(plane, planeFile);
        ExpectShape(plane, {4, 3, 1, 1, ntUInt16}, "plane");
        const std::vector<double> planeSamples = Samples(plane);
        for (std::size_t i = 0; i < planeSamples.size(); ++i)
            EXPECT_EQ(planeSamples[i], double((24 + i) * 100)) << i;

        // Back into plane 4 of the stack read from its pages; the others stay.
        ImageRef read = QI::Image::New();
        QI::IO::Functions::Read(read, stackFile);
        ExpectShape(read, {4, 3, 5, 1, ntUInt16}, "stack");
        QI::IO::Functions::Import(read, planeFile, Geometry::aZ, 4);
        const std::vector<double> merged = Samples(read);
        for (std::size_t i = 0; i < merged.size(); ++i) {
            const double expected = i >= 48 ? double((i - 48 + 24) * 100) : double(i * 100);
            EXPECT_EQ(merged[i], expected) << i;
        }

        // Page by page through the reader itself.
        Ref<QI::IO::IBitmapReader> tiff = QI::IO::Globals::BitmapReaders()->Item(1);
        Ref<QI::IO::IMultiPageBitmapReader> pages(Ref<ICloneable>(tiff)->Clone());
        pages->Open(stackFile);
        EXPECT_EQ(pages->PageCount(), 5);
        pages->SetCurrentPage(2);
        ImageRef page = QI::Image::New();
        pages->ReadPage(page);
        EXPECT_EQ(Samples(page), planeSamples);
        EXPECT_EQ(RaisedMessage([&] { pages->SetCurrentPage(5); }),
                  L"Page 5 is outside the 5 pages of the file '" + stackFile + L"'");

        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Export(stack, planeFile, Geometry::aZ, 5); }),
                  L"Slice 5 is outside the 5 slices of the image along aZ");
        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Import(read, stackFile, Geometry::aZ, 0); }),
                  L"The image of the file '" + stackFile +
                      L"' has not the size and data type of a slice along aZ");
        fs::remove_all(folder);
    });
}

// A writer of the collection with options of its own.
template <class Writer>
Ref<Writer> OwnWriter(std::int64_t index)
{
    return Ref<Writer>(Ref<ICloneable>(QI::IO::Globals::BitmapWriters()->Item(index))->Clone());
}

TEST(ImageFiles, FormatOptionsChangeTheFileNotTheSamples)
{
    InChildProcess([] {
        StartBasic();
        const fs::path folder = Folder();
        auto path = [&](const char* name) { return ToString((folder / name).string()); };
        auto readBack = [](const std::wstring& file) {
            ImageRef read = QI::Image::New();
            QI::IO::Functions::Read(read, file);
            return Samples(read);
        };

        // TIFF: every compression, strips of one row, and tiles that do not
        // divide the image, on a 16-bit stack and on floats.
        ImageRef stack = NewImage({37, 21, 2, 1, ntUInt16});
        Fill(stack, [](std::int64_t i) { return Pattern(ntUInt16, i); });
        ImageRef floats = NewImage({37, 21, 1, 3, ntFloat});
        Fill(floats, [](std::int64_t i) { return Pattern(ntFloat, i); });
        struct TIFFCase {
            QI::IO::TIFFCompressionEnum compression;
            bool predictor;
            std::int64_t rowsPerStrip;
            std::int64_t tile;
        };
        const std::vector<TIFFCase> tiffCases = {
            {QI::IO::tcNone, false, 0, 0},     {QI::IO::tcLZW, true, 0, 0},
            {QI::IO::tcDeflate, true, 1, 0},   {QI::IO::tcPackBits, false, 5, 0},
            {QI::IO::tcDeflate, false, 0, 16}, {QI::IO::tcLZW, true, 0, 32},
        };
        for (const TIFFCase& c : tiffCases) {
            Ref<QI::IO::ITIFFWriter> tiff = OwnWriter<QI::IO::ITIFFWriter>(1);
            tiff->SetCompression(c.compression);
            tiff->SetPredictor(c.predictor);
            tiff->SetRowsPerStrip(c.rowsPerStrip);
            tiff->SetTileWidth(c.tile);
            tiff->SetTileHeight(c.tile);
            tiff->SetDescription(L"test");
            tiff->SetXResolution(10);
            tiff->SetYResolution(10);
            const std::string label = ToAnsi(ToString(c.compression)) + " tile " + std::to_string(c.tile);
            tiff->Write(stack, path("options.tif"));
            EXPECT_EQ(readBack(path("options.tif")), Samples(stack)) << label;
            tiff->Write(floats, path("options.tif"));
            EXPECT_EQ(readBack(path("options.tif")), Samples(floats)) << label;
        }

        // PNG: interlaced, uncompressed or not, the samples are the same.
        ImageRef rgb = NewImage({33, 17, 1, 3, ntUInt16});
        Fill(rgb, [](std::int64_t i) { return Pattern(ntUInt16, i); });
        Ref<QI::IO::IPNGImageWriter> png = OwnWriter<QI::IO::IPNGImageWriter>(0);
        png->SetInterlaced(true);
        png->SetGamma(0.45455);
        for (std::int64_t level : {0, 9}) {
            png->SetCompressionLevel(level);
            png->Write(rgb, path("options.png"));
            EXPECT_EQ(readBack(path("options.png")), Samples(rgb)) << "level " << level;
        }

        // JPEG: the quality trades size for fidelity.
        const Shape grey{64, 64, 1, 1, ntUInt8};
        ImageRef smooth = NewImage(grey);
        Fill(smooth, [&](std::int64_t i) { return Smooth(grey, i) + double((i * 7919) % 13); });
        Ref<QI::IO::IJPEGWriter> jpeg = OwnWriter<QI::IO::IJPEGWriter>(2);
        jpeg->SetProgressive(true);
        jpeg->SetOptimizeCoding(true);
        jpeg->SetQuality(10);
        jpeg->Write(smooth, path("low.jpg"));
        jpeg->SetQuality(95);
        jpeg->Write(smooth, path("high.jpg"));
        EXPECT_LT(fs::file_size(folder / "low.jpg"), fs::file_size(folder / "high.jpg"));
        const std::vector<double> expected = Samples(smooth);
        const std::vector<double> high = readBack(path("high.jpg"));
        for (std::size_t i = 0; i < high.size(); ++i)
            EXPECT_NEAR(high[i], expected[i], 12) << i;
        // The shared writer kept its own options.
        EXPECT_EQ(Ref<QI::IO::IJPEGWriter>(QI::IO::Globals::BitmapWriters()->Item(2))->Quality(), 90);

        EXPECT_EQ(RaisedMessage([&] { jpeg->SetQuality(0); }),
                  L"The JPEG quality must be from 1 to 100, not 0");
        EXPECT_EQ(RaisedMessage([&] { png->SetCompressionLevel(10); }),
                  L"The PNG compression level must be from 0 to 9, not 10");
        EXPECT_EQ(RaisedMessage([] { OwnWriter<QI::IO::ITIFFWriter>(1)->SetTileWidth(24); }),
                  L"A TIFF tile side must be 0 or a multiple of 16, not 24");
        fs::remove_all(folder);
    });
}

// The rectangle (x, y, width, height) of each of `planes` planes of samples
// w x h (X fastest), from plane `first` on.
std::vector<double> Crop(const std::vector<double>& samples, std::int64_t w, std::int64_t h,
                         std::int64_t first, std::int64_t planes,
                         const std::array<std::int64_t, 4>& rectangle)
{
    const auto [x0, y0, cw, ch] = rectangle;
    std::vector<double> part;
    for (std::int64_t p = first; p < first + planes; ++p)
        for (std::int64_t y = y0; y < y0 + ch; ++y)
            for (std::int64_t x = x0; x < x0 + cw; ++x)
                part.push_back(samples[std::size_t(x + w * (y + h * p))]);
    return part;
}

TEST(ImageFiles, TilesAndRegionsReadAsPartsOfTheWholePage)
{
    InChildProcess([] {
        StartBasic();
        const fs::path folder = Folder();
        const std::wstring file = ToString((folder / "tiled.tif").string());
        auto pair = [](std::int64_t x, std::int64_t y) {
            return Geometry::Coordinates::New(x, y, Geometry::Axes::aXY);
        };
        auto values = [](const Ref<Geometry::ICoordinates>& c) { return std::pair(c->X(), c->Y()); };

        // Colour floats in tiles that do not divide the image; a 16-bit stack
        // in strips of 5 rows, read at its second page.
        ImageRef colour = NewImage({37, 21, 1, 3, ntFloat});
        Fill(colour, [](std::int64_t i) { return Pattern(ntFloat, i); });
        ImageRef stack = NewImage({37, 21, 2, 1, ntUInt16});
        Fill(stack, [](std::int64_t i) { return Pattern(ntUInt16, i); });
        struct Case {
            const char* label;
            ImageRef image;
            std::int64_t rowsPerStrip, tile;
            bool tiled;
            std::pair<std::int64_t, std::int64_t> tileSize, tileCount;
            std::int64_t page, planes;
        };
        const std::vector<Case> cases = {
            {"tiles", colour, 0, 16, true, {16, 16}, {3, 2}, 0, 3},
            {"strips", stack, 5, 0, false, {37, 5}, {1, 5}, 1, 1},
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(c.label);
            Ref<QI::IO::ITIFFWriter> writer = OwnWriter<QI::IO::ITIFFWriter>(1);
            writer->SetRowsPerStrip(c.rowsPerStrip);
            writer->SetTileWidth(c.tile);
            writer->SetTileHeight(c.tile);
            writer->Write(c.image, file);

            Ref<QI::IO::ITiledBitmapReader> tiled(
                Ref<ICloneable>(QI::IO::Globals::BitmapReaders()->Item(1))->Clone());
            tiled->Open(file);
            Ref<QI::IO::IMultiPageBitmapReader>(tiled)->SetCurrentPage(c.page);
            EXPECT_EQ(tiled->IsTiled(), c.tiled);
            EXPECT_EQ(values(tiled->TileSize()), c.tileSize);
            EXPECT_EQ(values(tiled->TileCount()), c.tileCount);
            EXPECT_EQ(values(tiled->TileOf(pair(36, 20))),
                      std::pair(c.tileCount.first - 1, c.tileCount.second - 1));

            const std::vector<double> whole = Samples(c.image);
            const std::int64_t first = c.planes == 1 ? c.page : 0;
            for (const std::array<std::int64_t, 4>& r : std::vector<std::array<std::int64_t, 4>>{
                     {0, 0, 37, 21}, {15, 4, 3, 13}, {36, 20, 1, 1}, {16, 16, 21, 5}}) {
                ImageRef part = QI::Image::New();
                tiled->ReadRegion(pair(r[0], r[1]), pair(r[2], r[3]), part);
                EXPECT_EQ(Samples(part), Crop(whole, 37, 21, first, c.planes, r)) << r[0] << "," << r[1];
            }
            // The last tile is cut by the image's edges.
            const auto [w, h] = c.tileSize;
            const auto [columns, rows] = c.tileCount;
            const std::array<std::int64_t, 4> last{(columns - 1) * w, (rows - 1) * h, 37 - (columns - 1) * w,
                                                   21 - (rows - 1) * h};
            ImageRef tile = QI::Image::New();
            tiled->ReadTile(columns - 1, rows - 1, tile);
            ExpectShape(tile, {last[2], last[3], 1, c.planes, c.image->Format()->DataType()}, c.label);
            EXPECT_EQ(Samples(tile), Crop(whole, 37, 21, first, c.planes, last));
        }

        Ref<QI::IO::ITiledBitmapReader> tiled(
            Ref<ICloneable>(QI::IO::Globals::BitmapReaders()->Item(1))->Clone());
        EXPECT_EQ(RaisedMessage([&] { tiled->TileCount(); }), L"No TIFF file is open");
        tiled->Open(file);
        EXPECT_EQ(RaisedMessage([&] { tiled->ReadTile(0, 5, QI::Image::New()); }),
                  L"Tile (0, 5) is outside the 1 x 5 tiles of the file '" + file + L"'");
        EXPECT_EQ(RaisedMessage([&] { tiled->ReadRegion(pair(30, 0), pair(8, 1), QI::Image::New()); }),
                  L"The region of 8 x 1 at (30, 0) is not inside the 37 x 21 image of the file '" + file +
                      L"'");
        EXPECT_EQ(RaisedMessage([&] { tiled->TileOf(pair(37, 0)); }),
                  L"The location (37, 0) is outside the 37 x 21 image of the file '" + file + L"'");
        fs::remove_all(folder);
    });
}

TEST(ImageFiles, BrokenFilesAreRefusedWithTheirName)
{
    InChildProcess([] {
        StartBasic();
        const fs::path folder = Folder();
        const std::wstring unknown = ToString((folder / "notes.txt").string());
        std::FILE* text = std::fopen(ToAnsi(unknown).c_str(), "w");
        std::fputs("not an image at all", text);
        std::fclose(text);
        const std::wstring missing = ToString((folder / "missing.png").string());
        struct Broken {
            std::wstring file;
            std::wstring message;
        };
        const std::vector<Broken> cases = {
            {Fixture("truncated.png"),
             L"Cannot read the PNG file '" + Fixture("truncated.png") + L"': the file is truncated"},
            {Fixture("wrong-magic.png"),
             L"Cannot read the PNG file '" + Fixture("wrong-magic.png") + L"': no PNG signature"},
            {Fixture("absurd.pgm"),
             L"Cannot read the PNM file '" + Fixture("absurd.pgm") + L"': the file is truncated"},
            {Fixture("absurd.tif"),
             L"Cannot read the TIFF file '" + Fixture("absurd.tif") +
                 L"': the header claims 2000000000000 bytes of samples in a file of 138 bytes"},
            {Fixture("empty.ppm"),
             L"Cannot read the PNM file '" + Fixture("empty.ppm") + L"': the header gives an empty image"},
            {unknown, L"No image file reader recognises the file '" + unknown + L"'"},
            {missing, L"Failed to open file '" + missing + L"' for read access"},
        };
        for (const Broken& c : cases) {
            ImageRef image = QI::Image::New();
            EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Read(image, c.file); }), c.message);
            EXPECT_TRUE(image->IsEmpty()) << ToAnsi(c.file);
        }

        // The limit of the thread holds before anything is allocated.
        QI::Globals::SetMaximumImageSizeInBytes(255);
        ImageRef image = QI::Image::New();
        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Read(image, Fixture("grey16x16.png")); }),
                  L"The image of the PNG file '" + Fixture("grey16x16.png") +
                      L"' takes 256 bytes, above the maximum image size of 255 bytes");
        QI::Globals::SetMaximumImageSizeInBytes(256);
        QI::IO::Functions::Read(image, Fixture("grey16x16.png"));

        // Writing: by extension only, and never over the target on failure.
        const std::wstring target = ToString((folder / "kept.png").string());
        QI::IO::Functions::Write(image, target);
        const auto before = fs::file_size(ToAnsi(target));
        ImageRef stack = NewImage({2, 2, 2, 1, ntUInt8});
        const std::wstring odd = ToString((folder / "image.xyz").string());
        const std::wstring nowhere = ToString((folder / "no-such-folder" / "a.png").string());
        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Write(image, odd); }),
                  L"No image file writer for the extension of the file '" + odd + L"'");
        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Write(stack, target); }),
                  L"No image file writer can store this image in the file '" + target + L"'");
        EXPECT_EQ(RaisedMessage([&] { QI::IO::Functions::Write(image, nowhere); }),
                  L"Failed to open file '" + nowhere + L"' for write access");
        EXPECT_EQ(fs::file_size(ToAnsi(target)), before);
        fs::remove_all(folder);
    });
}

TEST(ImageFiles, FormatsAreListedPerThread)
{
    InChildProcess([] {
        StartBasic();
        auto names = [] {
            std::vector<std::wstring> found;
            Ref<QI::IO::IBitmapReaderCollection> readers = QI::IO::Globals::BitmapReaders();
            for (std::int64_t i = 0; i < readers->Count(); ++i)
                found.push_back(readers->Item(i)->Name());
            return found;
        };
        const std::vector<std::wstring> all{L"PNG", L"TIFF", L"JPEG", L"PNM"};
        EXPECT_EQ(names(), all);
        Ref<QI::IO::IBitmapWriterCollection> writers = QI::IO::Globals::BitmapWriters();
        EXPECT_EQ(writers->Count(), 4);
        // A thread that drops a format keeps the others' lists as they are.
        std::thread([&] {
            QI::IO::Globals::BitmapReaders()->RemoveAt(0);
            EXPECT_EQ(names().size(), 3u);
        }).join();
        EXPECT_EQ(names(), all);
        EXPECT_EQ(ToString(Quilon_::IO::coLossyConversion), L"coLossyConversion");
        EXPECT_FALSE(QI::IO::DICOMWriter::GenerateUniqueIdentifierFunction1IsImplemented());
        EXPECT_EQ(RaisedMessage([] { QI::IO::DICOMWriter::GenerateUniqueIdentifier(L"1.2"); }),
                  L"Function has no implementation");
    });
}

} // namespace Quilon_::Tests::ImageFiles
