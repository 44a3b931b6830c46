// The operators that read and write image files. An implementation library
// registers their implementations at start-up; they choose among the
// readers and writers of Images::IO::Globals:
//
//   Ref<Images::IImage> image = Images::Image::New();
//   Images::IO::Functions::Read(image, L"cells.tif");     // by content, then extension
//   Images::IO::Functions::Write(image, L"cells.png");    // by extension
//   // The plane at Z = 3 alone, and back into plane 3 of a stack:
//   Images::IO::Functions::Export(stack, L"plane3.png", Quilon_::Geometry::aZ, 3);
//   Images::IO::Functions::Import(stack, L"plane3.png", Quilon_::Geometry::aZ, 3);
//
// Without an implementation a call raises "No implementation available for
// function". A file that cannot be read or written raises a message that
// names it.
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::IO::Functions {

using Image = System::Ref<IImage>;

// (image, fileName): the image becomes the file's content, with its size,
// data type and category. The reader is chosen by the file's first bytes;
// the extension decides only between readers that both accept them.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, const std::wstring&)> Read;
// (image, fileName): chosen by the extension, among its writers the one
// that converts least.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, const std::wstring&)> Write;
// (image, fileName, axis, index): reads the file, one dimension less than
// the image, into the slice at `index` along `axis`; the file's image must
// have the size and data type of the slice.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, const std::wstring&,
                                                                 Quilon_::Geometry::AxisEnum, std::int64_t)>
    Import;
// (image, fileName, axis, index): writes the slice at `index` along `axis`.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, const std::wstring&,
                                                                 Quilon_::Geometry::AxisEnum, std::int64_t)>
    Export;

} // namespace Quilon_::Images::IO::Functions
