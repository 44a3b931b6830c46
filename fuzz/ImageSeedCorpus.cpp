// Writes the seed corpus of the image reader fuzzer into FOLDER: small
// images of each format, band count and sample type that the registered
// writers store, and the ASCII grey and pixel maps that only are read.
//
//   ImageSeedCorpus build-fuzz/image-corpus

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/IO/Functions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

#include <sys/stat.h>

#include <cstdio>
#include <cstring>
#include <string>

using namespace Quilon_::System;
namespace Images = Quilon_::Images;
namespace Geometry = Quilon_::Geometry;

namespace {

struct Seed {
    const char* file;
    std::int64_t depth;
    std::int64_t bands;
    NumericTypeEnum type;
};

constexpr Seed seeds[] = {
    {"grey8.png", 1, 1, ntUInt8},   {"grey16.png", 1, 1, ntUInt16}, {"greyalpha.png", 1, 2, ntUInt8},
    {"rgb8.png", 1, 3, ntUInt8},    {"rgba16.png", 1, 4, ntUInt16}, {"grey8.tif", 1, 1, ntUInt8},
    {"grey16.tif", 1, 1, ntUInt16}, {"float.tif", 1, 1, ntFloat},   {"rgb8.tif", 1, 3, ntUInt8},
    {"stack.tif", 3, 1, ntUInt8},   {"grey8.jpg", 1, 1, ntUInt8},   {"rgb8.jpg", 1, 3, ntUInt8},
    {"grey8.pgm", 1, 1, ntUInt8},   {"grey16.pgm", 1, 1, ntUInt16}, {"rgb8.ppm", 1, 3, ntUInt8},
};

Ref<Images::IImage> SeedImage(const Seed& seed)
{
    Geometry::Axes axes = seed.depth > 1 ? Geometry::Axes::aXYZ : Geometry::Axes::aXY;
    std::wstring order = seed.depth > 1 ? L"XYZ" : L"XY";
    if (seed.bands > 1) {
        axes = Geometry::Axes(axes | Geometry::aB);
        order = L"B" + order;
    }
    Ref<Geometry::ICoordinates> size = Geometry::Coordinates::New(axes);
    size->SetValue(Geometry::aX, 9);
    size->SetValue(Geometry::aY, 7);
    if (seed.depth > 1)
        size->SetValue(Geometry::aZ, seed.depth);
    if (seed.bands > 1)
        size->SetValue(Geometry::aB, seed.bands);
    Ref<Images::IFormat> format = Images::UniformFormat::New(Images::StorageOrder::New(order));
    format->SetDataType(seed.type);
    Ref<Images::IImage> image = Images::Image::New(size, format);
    // A ramp, so that the compressors have something to model.
    auto* bytes = static_cast<std::uint8_t*>(image->Bitmap()->Memory()->Data());
    for (std::int64_t i = 0; i < image->SizeInBytes(); ++i)
        bytes[i] = std::uint8_t(i * 7);
    return image;
}

void WriteText(const std::string& path, const char* text)
{
    if (std::FILE* file = std::fopen(path.c_str(), "w")) {
        std::fputs(text, file);
        std::fclose(file);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: ImageSeedCorpus FOLDER\n");
        return 2;
    }
    Quilon_::Library::SetInitializationFileName(ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    const std::string folder = argv[1];
    ::mkdir(folder.c_str(), 0755);
    try {
        for (const Seed& seed : seeds)
            Images::IO::Functions::Write(SeedImage(seed), ToString(folder + "/" + seed.file));
    } catch (const Pointer<IException, 1>& failure) {
        std::fprintf(stderr, "ImageSeedCorpus: %s\n", ToAnsi(failure->Message()).c_str());
        return 1;
    }
    WriteText(folder + "/ascii.pgm", "P2\n# comment\n3 2\n15\n0 1 2\n13 14 15\n");
    WriteText(folder + "/ascii.ppm", "P3\n2 1\n255\n255 0 0  0 0 255\n");
    std::printf("%zu images in %s\n", std::size(seeds) + 2, folder.c_str());
    return 0;
}
