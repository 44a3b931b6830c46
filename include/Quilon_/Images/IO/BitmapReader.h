// Bitmap readers: one object per file format, which recognises its files by
// their first bytes or their extension and reads them into images.
//
// Implementation libraries add their readers to
// Images::IO::Globals::BitmapReaders(); the operator
// Images::IO::Functions::Read picks one from there. Used directly:
//
//   Ref<IBitmapReader> reader = ...;            // e.g. from the collection
//   reader->Open(L"cells.png");                 // reads and checks the header
//   reader->Size();                             // 640 x 480 (x B for colour)
//   reader->Read(image);                        // reshapes `image`, fills it
//   reader->Close();
//
// A reader holds the file it opened: the collection's readers are shared,
// so Read works on a clone of one (System::ICloneable) and never opens the
// shared object itself.
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Geometry {
class ICoordinates;
} // namespace Quilon_::Geometry

namespace Quilon_::System {
class IMemory;
} // namespace Quilon_::System

namespace Quilon_::Images {
class IFormat;
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::IO {

// The slot order is fixed: other libraries are binary clients of it.
class QUILON_API IBitmapReader : public virtual System::Interface {
    QUILON_INTERFACE(IBitmapReader)
public:
    // 1. A short name for lists and messages: "PNG".
    virtual std::wstring Name() = 0;
    // 2. The extensions of the format's files, lower case, without the dot.
    virtual std::vector<std::wstring> Extensions() = 0;
    // 3. How many leading bytes of a file CanRead needs to decide.
    virtual std::int64_t SignatureSize() = 0;
    // 4. Whether `count` leading bytes of a file are this format's; false
    // when `count` is too small to tell.
    virtual bool CanRead(const std::uint8_t* bytes, std::int64_t count) = 0;
    // 5. Opens the file and reads its header; raises, naming the file, on a
    // file that is missing, truncated, not of the format, or whose samples
    // would exceed Images::Globals::MaximumImageSizeInBytes().
    virtual void Open(const std::wstring& fileName) = 0;
    // 6. The same on the bytes of a file held in memory; `name` stands for
    // the file in messages. The reader keeps a reference to `bytes`.
    virtual void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) = 0;
    // 7. Forgets the open file; does nothing when none is open.
    virtual void Close() = 0;
    // 8. The size of the open file's image: X, Y, then Z for several
    // planes and B for several bands.
    virtual System::Ref<Quilon_::Geometry::ICoordinates> Size() = 0;
    // 9. The format in which Read gives the samples.
    virtual System::Ref<IFormat> Format() = 0;
    // 10. Reshapes `image` to Size() and Format(), reads the samples into
    // it and sets its category (grey for one band, colour for RGB).
    virtual void Read(System::Ref<IImage> image) = 0;
};

// A reader of files that hold several pages (planes of a stack, frames).
// Read gives all pages at once, as the Z axis; these read them one by one.
class QUILON_API IMultiPageBitmapReader : public virtual IBitmapReader {
    QUILON_INTERFACE(IMultiPageBitmapReader)
public:
    // 1. The number of pages of the open file.
    virtual std::int64_t PageCount() = 0;
    // 2. The page that ReadPage reads, from 0.
    virtual std::int64_t CurrentPage() = 0;
    // 3. Raises when `page` is not in [0, PageCount()).
    virtual void SetCurrentPage(std::int64_t page) = 0;
    // 4. The size of the current page (X, Y, and B for several bands).
    virtual System::Ref<Quilon_::Geometry::ICoordinates> PageSize() = 0;
    // 5. Reads the current page alone into `image`.
    virtual void ReadPage(System::Ref<IImage> image) = 0;
};

// A reader of files stored in tiles (scans of slides, large mosaics), which
// reads a part of the image and decodes only the tiles that part touches.
// Tiles are counted from the top left, X first; those of the last column
// and row are cut by the image's edges. A file stored in bands of whole
// rows reads as tiles as wide as the image. A reader that is also
// multi-page reads the tiles of its current page.
//
//   Ref<ITiledBitmapReader> tiled = reader;     // the TIFF reader is one
//   tiled->Open(L"slide.tif");
//   tiled->TileCount();                         // 40 x 30 tiles of 512 x 512
//   tiled->ReadRegion(Coordinates::New(1000, 2000, aXY),
//                     Coordinates::New(256, 256, aXY), image);
class QUILON_API ITiledBitmapReader : public virtual IBitmapReader {
    QUILON_INTERFACE(ITiledBitmapReader)
public:
    // 1. Whether the file itself is stored in tiles.
    virtual bool IsTiled() = 0;
    // 2. The size of a whole tile: X, Y.
    virtual System::Ref<Quilon_::Geometry::ICoordinates> TileSize() = 0;
    // 3. The number of tiles along X and Y.
    virtual System::Ref<Quilon_::Geometry::ICoordinates> TileCount() = 0;
    // 4. The tile (X, Y) that holds the pixel at `location`; raises when
    // the location is outside the image.
    virtual System::Ref<Quilon_::Geometry::ICoordinates>
    TileOf(System::Ref<Quilon_::Geometry::ICoordinates> location) = 0;
    // 5. Reads the tile (x, y) into `image`, reshaped to the tile's size
    // (and B for several bands); raises for a tile outside TileCount().
    virtual void ReadTile(std::int64_t x, std::int64_t y, System::Ref<IImage> image) = 0;
    // 6. Reads the rectangle of `size` at `origin` (X, Y) into `image`,
    // reshaped to it; raises unless the rectangle lies inside the image.
    virtual void ReadRegion(System::Ref<Quilon_::Geometry::ICoordinates> origin,
                            System::Ref<Quilon_::Geometry::ICoordinates> size, System::Ref<IImage> image) = 0;
};

class QUILON_API IBitmapReaderCollection
    : public virtual System::Collections::Template::ICollection<IBitmapReader> {
    QUILON_INTERFACE(IBitmapReaderCollection)
};

namespace BitmapReaderCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IBitmapReaderCollection>()>;
extern QUILON_API Factory New;
} // namespace BitmapReaderCollection

} // namespace Quilon_::Images::IO
