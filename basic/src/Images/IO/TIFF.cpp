// TIFF files through libtiff: samples of 8, 16 or 32 bits, integer or
// floating point (and 64-bit doubles), one to four samples per pixel,
// stored by strips or tiles. A file of several pages reads as a 3-D image,
// one page per plane along Z, and a 3-D image writes as pages: stacks of
// microscopy come this way. The stack ends at the first page whose size or
// samples differ from the first (a thumbnail, a preview).
//
// libtiff reports through handlers of each opened file: warnings are
// dropped, the last error is kept and becomes the reason of the exception
// when the call that failed returns.
#include "Images/IO/ImageFile.h"
#include "Quilon_/Images/IO/FormatWriters.h"

#include <tiffio.h>

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace Quilon_::Basic::Images::IO {

namespace {

const wchar_t* const tiffFormatName = L"TIFF";

// The file in memory that libtiff reads through the client procedures, and
// the last error it reported.
struct TIFFSession {
    const std::uint8_t* bytes = nullptr;
    toff_t count = 0;
    toff_t position = 0;
    std::string error;
};

tmsize_t ReadProc(thandle_t handle, void* out, tmsize_t size)
{
    auto* session = static_cast<TIFFSession*>(handle);
    if (size < 0)
        return -1;
    const toff_t available = session->position < session->count ? session->count - session->position : 0;
    const toff_t count = std::min<toff_t>(toff_t(size), available);
    std::memcpy(out, session->bytes + session->position, count);
    session->position += count;
    return tmsize_t(count);
}

tmsize_t WriteProc(thandle_t, void*, tmsize_t)
{
    return -1;
}

toff_t SeekProc(thandle_t handle, toff_t offset, int whence)
{
    auto* session = static_cast<TIFFSession*>(handle);
    toff_t base = 0;
    if (whence == SEEK_CUR)
        base = session->position;
    else if (whence == SEEK_END)
        base = session->count;
    // Offsets past the end are kept: the next read there gives nothing.
    session->position = base + offset;
    return session->position;
}

int CloseProc(thandle_t)
{
    return 0;
}

toff_t SizeProc(thandle_t handle)
{
    return static_cast<TIFFSession*>(handle)->count;
}

int OnError(TIFF*, void* user, const char* module, const char* format, va_list arguments)
{
    char text[512];
    std::vsnprintf(text, sizeof text, format, arguments);
    auto* error = static_cast<std::string*>(user);
    *error = module && *module ? std::string(module) + ": " + text : std::string(text);
    return 1;
}

int OnWarning(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

// Options that route the reports of one file into `error`, and cap what
// libtiff allocates in one piece.
class Options {
public:
    explicit Options(std::string& error) : m_options(TIFFOpenOptionsAlloc())
    {
        TIFFOpenOptionsSetErrorHandlerExtR(m_options, &OnError, &error);
        TIFFOpenOptionsSetWarningHandlerExtR(m_options, &OnWarning, nullptr);
        const std::int64_t maximum = QI::Globals::MaximumImageSizeInBytes();
        if (maximum >= 0)
            TIFFOpenOptionsSetMaxSingleMemAlloc(m_options,
                                                tmsize_t(std::max<std::int64_t>(maximum, 1 << 20)));
    }
    ~Options() { TIFFOpenOptionsFree(m_options); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;
    TIFFOpenOptions* Get() const { return m_options; }

private:
    TIFFOpenOptions* m_options;
};

class Handle {
public:
    explicit Handle(TIFF* tiff) : m_tiff(tiff) {}
    ~Handle()
    {
        if (m_tiff)
            TIFFClose(m_tiff);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    TIFF* Get() const { return m_tiff; }
    // Closes now, for a writer that must know that the last bytes went out.
    void Close()
    {
        TIFFClose(m_tiff);
        m_tiff = nullptr;
    }

private:
    TIFF* m_tiff;
};

// The data type of samples of `bits` and `format` (SAMPLEFORMAT_*); none for
// what no bitmap holds.
std::optional<NumericTypeEnum> TypeOf(std::uint16_t bits, std::uint16_t format)
{
    using namespace System;
    if (format == SAMPLEFORMAT_IEEEFP)
        return bits == 32 ? std::optional(ntFloat) : bits == 64 ? std::optional(ntDouble) : std::nullopt;
    const bool isSigned = format == SAMPLEFORMAT_INT;
    if (format != SAMPLEFORMAT_UINT && !isSigned && format != SAMPLEFORMAT_VOID)
        return std::nullopt;
    switch (bits) {
    case 8:
        return isSigned ? ntInt8 : ntUInt8;
    case 16:
        return isSigned ? ntInt16 : ntUInt16;
    case 32:
        return isSigned ? ntInt32 : ntUInt32;
    default:
        return std::nullopt;
    }
}

struct PageShape {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint16_t samples = 1;
    std::optional<NumericTypeEnum> type;
    std::uint16_t planar = PLANARCONFIG_CONTIG;
    bool operator==(const PageShape&) const = default;
};

PageShape ShapeOf(TIFF* tiff)
{
    PageShape shape;
    std::uint16_t bits = 1;
    std::uint16_t format = SAMPLEFORMAT_UINT;
    TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &shape.width);
    TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &shape.height);
    TIFFGetFieldDefaulted(tiff, TIFFTAG_SAMPLESPERPIXEL, &shape.samples);
    TIFFGetFieldDefaulted(tiff, TIFFTAG_BITSPERSAMPLE, &bits);
    TIFFGetFieldDefaulted(tiff, TIFFTAG_SAMPLEFORMAT, &format);
    TIFFGetFieldDefaulted(tiff, TIFFTAG_PLANARCONFIG, &shape.planar);
    shape.type = TypeOf(bits, format);
    return shape;
}

// A rectangle of a page, in pixels.
struct TIFFRegion {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
};

// How a page is cut into the pieces libtiff decodes: tiles, or strips of
// whole rows, which read as tiles as wide as the page.
struct TIFFTileGrid {
    bool tiled = false;
    std::int64_t width = 0; // of a whole tile
    std::int64_t height = 0;
    std::int64_t columns = 0;
    std::int64_t rows = 0;

    // The tile (column, row) cut by the page's edges.
    TIFFRegion Tile(std::int64_t column, std::int64_t row, std::int64_t pageWidth,
                    std::int64_t pageHeight) const
    {
        const std::int64_t left = column * width;
        const std::int64_t top = row * height;
        return {left, top, std::min(width, pageWidth - left), std::min(height, pageHeight - top)};
    }
};

TIFFTileGrid GridOf(TIFF* tiff, std::int64_t pageWidth, std::int64_t pageHeight)
{
    TIFFTileGrid grid;
    grid.tiled = TIFFIsTiled(tiff) != 0;
    if (grid.tiled) {
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        TIFFGetField(tiff, TIFFTAG_TILEWIDTH, &width);
        TIFFGetField(tiff, TIFFTAG_TILELENGTH, &height);
        grid.width = width;
        grid.height = height;
    } else {
        std::uint32_t rowsPerStrip = 0;
        TIFFGetFieldDefaulted(tiff, TIFFTAG_ROWSPERSTRIP, &rowsPerStrip);
        grid.width = pageWidth;
        grid.height = rowsPerStrip == 0 || rowsPerStrip > pageHeight ? pageHeight : rowsPerStrip;
    }
    if (grid.width > 0 && grid.height > 0) {
        grid.columns = (pageWidth + grid.width - 1) / grid.width;
        grid.rows = (pageHeight + grid.height - 1) / grid.height;
    }
    return grid;
}

class CTIFFReader
    : public ReaderBase<CTIFFReader, QI::IO::IMultiPageBitmapReader, QI::IO::ITiledBitmapReader> {
public:
    std::wstring Name() override { return tiffFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"tif", L"tiff"}; }
    std::int64_t SignatureSize() override { return 4; }
    bool CanRead(const std::uint8_t* bytes, std::int64_t count) override
    {
        if (count < 4)
            return false;
        // Classic TIFF (42) and BigTIFF (43), little- or big-endian.
        const bool little =
            bytes[0] == 'I' && bytes[1] == 'I' && bytes[3] == 0 && (bytes[2] == 42 || bytes[2] == 43);
        const bool big =
            bytes[0] == 'M' && bytes[1] == 'M' && bytes[2] == 0 && (bytes[3] == 42 || bytes[3] == 43);
        return little || big;
    }

    ImageLayout ParseHeader()
    {
        if (!CanRead(Bytes(), ByteCount()))
            Unreadable(L"no TIFF signature");
        TIFFSession session = NewSession();
        Options options(session.error);
        Handle tiff(Open(session, options));
        const PageShape first = ShapeOf(tiff.Get());
        if (!first.type)
            Unreadable(L"the sample type is not supported");
        if (first.samples < 1 || first.samples > 4 ||
            (first.samples > 1 && first.planar != PLANARCONFIG_CONTIG))
            Unreadable(L"only one to four samples per pixel, stored together, are supported");
        std::int64_t pages = 1;
        while (TIFFReadDirectory(tiff.Get()) && ShapeOf(tiff.Get()) == first)
            ++pages;
        ImageLayout layout;
        layout.width = first.width;
        layout.height = first.height;
        layout.depth = pages;
        layout.bands = first.samples;
        layout.type = *first.type;
        return layout;
    }

    void Decode(const ImageRef& image) { DecodePages(image, Layout(), 0); }

    std::int64_t PageCount() override { return Layout().depth; }
    std::int64_t CurrentPage() override { return m_page; }
    void SetCurrentPage(std::int64_t page) override
    {
        if (page < 0 || page >= PageCount())
            QUILON_RAISE(L"Page %1% is outside the %2% pages of the file '%3%'", page, PageCount(),
                         FileName());
        m_page = page;
    }
    System::Ref<Geometry::ICoordinates> PageSize() override
    {
        Size(); // raises when no file is open
        return SizeOf(PageLayout());
    }
    void ReadPage(ImageRef image) override
    {
        Size();                 // raises when no file is open
        SetCurrentPage(m_page); // a page of a larger file opened before
        const ImageLayout page = PageLayout();
        PrepareImage(image, page);
        DecodePages(image, page, m_page);
    }

    bool IsTiled() override { return CurrentGrid().tiled; }
    System::Ref<Geometry::ICoordinates> TileSize() override
    {
        const TIFFTileGrid grid = CurrentGrid();
        return PairOf(grid.width, grid.height);
    }
    System::Ref<Geometry::ICoordinates> TileCount() override
    {
        const TIFFTileGrid grid = CurrentGrid();
        return PairOf(grid.columns, grid.rows);
    }
    System::Ref<Geometry::ICoordinates> TileOf(System::Ref<Geometry::ICoordinates> location) override
    {
        const TIFFTileGrid grid = CurrentGrid();
        const std::int64_t x = location->X();
        const std::int64_t y = location->Y();
        if (x < 0 || y < 0 || x >= Layout().width || y >= Layout().height)
            QUILON_RAISE(L"The location (%1%, %2%) is outside the %3% x %4% image of the file '%5%'", x, y,
                         Layout().width, Layout().height, FileName());
        return PairOf(x / grid.width, y / grid.height);
    }
    void ReadTile(std::int64_t x, std::int64_t y, ImageRef image) override
    {
        const TIFFTileGrid grid = CurrentGrid();
        if (x < 0 || y < 0 || x >= grid.columns || y >= grid.rows)
            QUILON_RAISE(L"Tile (%1%, %2%) is outside the %3% x %4% tiles of the file '%5%'", x, y,
                         grid.columns, grid.rows, FileName());
        ReadRegionOfPage(grid.Tile(x, y, Layout().width, Layout().height), image);
    }
    void ReadRegion(System::Ref<Geometry::ICoordinates> origin, System::Ref<Geometry::ICoordinates> size,
                    ImageRef image) override
    {
        Size(); // raises when no file is open
        SetCurrentPage(m_page);
        const TIFFRegion region{origin->X(), origin->Y(), size->X(), size->Y()};
        if (region.width <= 0 || region.height <= 0 || region.x < 0 || region.y < 0 ||
            region.x > Layout().width - region.width || region.y > Layout().height - region.height)
            QUILON_RAISE(
                L"The region of %1% x %2% at (%3%, %4%) is not inside the %5% x %6% image of the file '%7%'",
                region.width, region.height, region.x, region.y, Layout().width, Layout().height, FileName());
        ReadRegionOfPage(region, image);
    }

private:
    TIFFSession NewSession() const
    {
        TIFFSession session;
        session.bytes = Bytes();
        session.count = toff_t(ByteCount());
        return session;
    }

    TIFF* Open(TIFFSession& session, const Options& options)
    {
        const std::string name = System::ToAnsi(FileName());
        TIFF* tiff = TIFFClientOpenExt(name.c_str(), "rm", &session, &ReadProc, &WriteProc, &SeekProc,
                                       &CloseProc, &SizeProc, nullptr, nullptr, options.Get());
        if (!tiff)
            Fail(session);
        return tiff;
    }

    [[noreturn]] void Fail(const TIFFSession& session)
    {
        Unreadable(session.error.empty() ? std::wstring(L"the file is corrupt")
                                         : System::ToString(session.error));
    }

    ImageLayout PageLayout() const
    {
        ImageLayout page = Layout();
        page.depth = 1;
        return page;
    }

    // The pages from `first` on, as many as the layout's depth, into an
    // image prepared for the layout; of each page the part `region`, whose
    // size is the layout's.
    void DecodePages(const ImageRef& image, const ImageLayout& layout, std::int64_t first,
                     const TIFFRegion& region)
    {
        DispatchSampleType(layout.type, [&](auto tag) {
            using T = typename decltype(tag)::type;
            if constexpr (std::is_arithmetic_v<T>)
                DecodeAs<T>(image, layout, first, region);
        });
    }
    void DecodePages(const ImageRef& image, const ImageLayout& layout, std::int64_t first)
    {
        DecodePages(image, layout, first, {0, 0, layout.width, layout.height});
    }

    template <class T>
    void DecodeAs(const ImageRef& image, const ImageLayout& layout, std::int64_t first,
                  const TIFFRegion& region)
    {
        TIFFSession session = NewSession();
        Options options(session.error);
        Handle tiff(OpenPage(session, options, first));
        RowWriter<T> rows(image, layout);
        std::vector<T> page(std::size_t(layout.SamplesPerRow() * layout.height));
        for (std::int64_t z = 0; z < layout.depth; ++z) {
            if (z > 0 && !TIFFReadDirectory(tiff.Get()))
                Fail(session);
            DecodeRegion(tiff.Get(), session, region, page.data());
            for (std::int64_t y = 0; y < layout.height; ++y)
                rows.Store(page.data() + y * layout.SamplesPerRow(), y, z);
        }
    }

    TIFF* OpenPage(TIFFSession& session, const Options& options, std::int64_t page)
    {
        TIFF* tiff = Open(session, options);
        if (page > 0 && !TIFFSetDirectory(tiff, tdir_t(page))) {
            TIFFClose(tiff);
            Fail(session);
        }
        return tiff;
    }

    // Decodes the tiles that `region` of the current directory touches and
    // copies their part of it into `out`, region.width samples per row.
    template <class T>
    void DecodeRegion(TIFF* tiff, TIFFSession& session, const TIFFRegion& region, T* out)
    {
        const ImageLayout& layout = Layout();
        const TIFFTileGrid grid = GridOf(tiff, layout.width, layout.height);
        const std::int64_t bands = layout.bands;
        const std::int64_t tileSamples = grid.width * grid.height * bands;
        // A tile must hold exactly its pixels: anything else (subsampled
        // colour, bits that are not whole samples) is not read as samples.
        if (grid.columns == 0 || grid.rows == 0 ||
            (grid.tiled && TIFFTileSize(tiff) != tmsize_t(tileSamples * std::int64_t(sizeof(T)))))
            Fail(session);
        std::vector<T> tile(static_cast<std::size_t>(tileSamples));
        for (std::int64_t row = region.y / grid.height; row <= (region.y + region.height - 1) / grid.height;
             ++row)
            for (std::int64_t column = region.x / grid.width;
                 column <= (region.x + region.width - 1) / grid.width; ++column) {
                const TIFFRegion piece = grid.Tile(column, row, layout.width, layout.height);
                DecodeTile(tiff, session, grid, piece, tile.data());
                const std::int64_t x0 = std::max(piece.x, region.x);
                const std::int64_t x1 = std::min(piece.x + piece.width, region.x + region.width);
                const std::int64_t y0 = std::max(piece.y, region.y);
                const std::int64_t y1 = std::min(piece.y + piece.height, region.y + region.height);
                for (std::int64_t y = y0; y < y1; ++y)
                    std::memcpy(out + ((y - region.y) * region.width + x0 - region.x) * bands,
                                tile.data() + ((y - piece.y) * grid.width + x0 - piece.x) * bands,
                                std::size_t((x1 - x0) * bands) * sizeof(T));
            }
    }

    template <class T>
    void DecodeTile(TIFF* tiff, TIFFSession& session, const TIFFTileGrid& grid, const TIFFRegion& piece,
                    T* tile)
    {
        if (grid.tiled) {
            if (TIFFReadTile(tiff, tile, std::uint32_t(piece.x), std::uint32_t(piece.y), 0, 0) < 0)
                Fail(session);
            return;
        }
        const tmsize_t wanted =
            tmsize_t(piece.height * grid.width * Layout().bands * std::int64_t(sizeof(T)));
        if (TIFFReadEncodedStrip(tiff, TIFFComputeStrip(tiff, std::uint32_t(piece.y), 0), tile, wanted) <
            wanted)
            Fail(session);
    }

    // The grid of the current page.
    TIFFTileGrid CurrentGrid()
    {
        Size(); // raises when no file is open
        SetCurrentPage(m_page);
        TIFFSession session = NewSession();
        Options options(session.error);
        Handle tiff(OpenPage(session, options, m_page));
        const TIFFTileGrid grid = GridOf(tiff.Get(), Layout().width, Layout().height);
        if (grid.columns == 0 || grid.rows == 0)
            Fail(session);
        return grid;
    }

    void ReadRegionOfPage(const TIFFRegion& region, const ImageRef& image)
    {
        ImageLayout part = PageLayout();
        part.width = region.width;
        part.height = region.height;
        PrepareImage(image, part);
        DecodePages(image, part, m_page, region);
    }

    static System::Ref<Geometry::ICoordinates> PairOf(std::int64_t x, std::int64_t y)
    {
        return Geometry::Coordinates::New(x, y, Geometry::Axes::aXY);
    }

    std::int64_t m_page = 0;
};

const std::initializer_list<NumericTypeEnum> storedTypes = {
    System::ntUInt8,  System::ntInt8,  System::ntUInt16, System::ntInt16,
    System::ntUInt32, System::ntInt32, System::ntFloat,  System::ntDouble};

struct TIFFWriterOptions {
    QI::IO::TIFFCompressionEnum compression = QI::IO::tcDeflate;
    bool predictor = false;
    std::int64_t rowsPerStrip = 0;
    std::int64_t tileWidth = 0;
    std::int64_t tileHeight = 0;
    std::wstring description;
    std::wstring software;
    std::wstring artist;
    double xResolution = 0;
    double yResolution = 0;
};

std::uint16_t CompressionTag(QI::IO::TIFFCompressionEnum compression)
{
    switch (compression) {
    case QI::IO::tcLZW:
        return COMPRESSION_LZW;
    case QI::IO::tcDeflate:
        return COMPRESSION_ADOBE_DEFLATE;
    case QI::IO::tcPackBits:
        return COMPRESSION_PACKBITS;
    default:
        return COMPRESSION_NONE;
    }
}

void SetText(TIFF* tiff, ttag_t tag, const std::wstring& text)
{
    if (!text.empty())
        TIFFSetField(tiff, tag, System::ToAnsi(text).c_str());
}

void CheckTileSide(std::int64_t side)
{
    if (side < 0 || side % 16 != 0)
        QUILON_RAISE(L"A TIFF tile side must be 0 or a multiple of 16, not %1%", side);
}

void CheckResolution(double resolution)
{
    if (!(resolution >= 0))
        QUILON_RAISE(L"A TIFF resolution must not be negative: %1%", resolution);
}

class CTIFFWriter
    : public System::Template::ObjectImpl<CTIFFWriter, QI::IO::ITIFFWriter, System::ICloneable> {
public:
    std::wstring Name() override { return tiffFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"tif", L"tiff"}; }
    System::Nullable<Quilon_::IO::ConversionOptionsEnum> Conversion(ImageRef image) override
    {
        const std::optional<ImageLayout> layout = LayoutOf(image);
        if (!layout || layout->bands > 4 || layout->width > 0x7FFFFFFF || layout->height > 0x7FFFFFFF ||
            layout->depth > 0xFFFF)
            return {};
        return PlanStorage(layout->type, storedTypes)->conversion;
    }
    void Write(ImageRef image, const std::wstring& fileName) override
    {
        if (!Conversion(image).HasValue())
            RaiseUnwritable(tiffFormatName, fileName, L"only images of one to four bands can be stored");
        const ImageLayout layout = *LayoutOf(image);
        DispatchSampleType(PlanStorage(layout.type, storedTypes)->type, [&](auto tag) {
            using T = typename decltype(tag)::type;
            if constexpr (std::is_arithmetic_v<T>)
                WriteAs<T>(image, layout, fileName);
        });
    }

    QI::IO::TIFFCompressionEnum Compression() override { return m_options.compression; }
    void SetCompression(QI::IO::TIFFCompressionEnum compression) override
    {
        m_options.compression = compression;
    }
    bool Predictor() override { return m_options.predictor; }
    void SetPredictor(bool predictor) override { m_options.predictor = predictor; }
    std::int64_t RowsPerStrip() override { return m_options.rowsPerStrip; }
    void SetRowsPerStrip(std::int64_t rows) override
    {
        if (rows < 0)
            QUILON_RAISE(L"The TIFF rows per strip must not be negative: %1%", rows);
        m_options.rowsPerStrip = rows;
    }
    std::int64_t TileWidth() override { return m_options.tileWidth; }
    void SetTileWidth(std::int64_t width) override
    {
        CheckTileSide(width);
        m_options.tileWidth = width;
    }
    std::int64_t TileHeight() override { return m_options.tileHeight; }
    void SetTileHeight(std::int64_t height) override
    {
        CheckTileSide(height);
        m_options.tileHeight = height;
    }
    std::wstring Description() override { return m_options.description; }
    void SetDescription(const std::wstring& description) override { m_options.description = description; }
    std::wstring Software() override { return m_options.software; }
    void SetSoftware(const std::wstring& software) override { m_options.software = software; }
    std::wstring Artist() override { return m_options.artist; }
    void SetArtist(const std::wstring& artist) override { m_options.artist = artist; }
    double XResolution() override { return m_options.xResolution; }
    void SetXResolution(double resolution) override
    {
        CheckResolution(resolution);
        m_options.xResolution = resolution;
    }
    double YResolution() override { return m_options.yResolution; }
    void SetYResolution(double resolution) override
    {
        CheckResolution(resolution);
        m_options.yResolution = resolution;
    }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        auto* copy = new CTIFFWriter();
        copy->m_options = m_options;
        return System::Pointer<System::ICloneable, 1>(copy);
    }

private:
    bool Tiled() const { return m_options.tileWidth > 0 && m_options.tileHeight > 0; }

    template <class T>
    void SetPageTags(TIFF* tiff, const ImageLayout& layout, std::int64_t z) const
    {
        const std::uint16_t sampleFormat = std::is_floating_point_v<T> ? SAMPLEFORMAT_IEEEFP
                                           : std::is_signed_v<T>       ? SAMPLEFORMAT_INT
                                                                       : SAMPLEFORMAT_UINT;
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, std::uint32_t(layout.width));
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, std::uint32_t(layout.height));
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, std::uint16_t(layout.bands));
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, std::uint16_t(sizeof(T) * 8));
        TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, sampleFormat);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, layout.bands >= 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
        if (layout.bands == 2 || layout.bands == 4) {
            const std::uint16_t extra = EXTRASAMPLE_UNASSALPHA;
            TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, std::uint16_t(1), &extra);
        }
        const std::uint16_t compression = CompressionTag(m_options.compression);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, compression);
        if (m_options.predictor &&
            (compression == COMPRESSION_LZW || compression == COMPRESSION_ADOBE_DEFLATE))
            TIFFSetField(tiff, TIFFTAG_PREDICTOR,
                         std::is_floating_point_v<T> ? PREDICTOR_FLOATINGPOINT : PREDICTOR_HORIZONTAL);
        if (Tiled()) {
            TIFFSetField(tiff, TIFFTAG_TILEWIDTH, std::uint32_t(m_options.tileWidth));
            TIFFSetField(tiff, TIFFTAG_TILELENGTH, std::uint32_t(m_options.tileHeight));
        } else {
            TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP,
                         m_options.rowsPerStrip > 0
                             ? std::uint32_t(std::min<std::int64_t>(m_options.rowsPerStrip, 0xFFFFFFFF))
                             : TIFFDefaultStripSize(tiff, 0));
        }
        SetText(tiff, TIFFTAG_IMAGEDESCRIPTION, m_options.description);
        SetText(tiff, TIFFTAG_SOFTWARE, m_options.software);
        SetText(tiff, TIFFTAG_ARTIST, m_options.artist);
        if (m_options.xResolution > 0 || m_options.yResolution > 0) {
            TIFFSetField(tiff, TIFFTAG_XRESOLUTION, float(m_options.xResolution));
            TIFFSetField(tiff, TIFFTAG_YRESOLUTION, float(m_options.yResolution));
            TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_CENTIMETER);
        }
        if (layout.depth > 1) {
            TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, FILETYPE_PAGE);
            TIFFSetField(tiff, TIFFTAG_PAGENUMBER, std::uint16_t(z), std::uint16_t(layout.depth));
        }
    }

    // Tiles are cut from the page, read whole first; those past the
    // image's right or bottom edge are padded with 0.
    template <class T>
    bool WriteTiles(TIFF* tiff, const ImageLayout& layout, const RowReader& source, std::int64_t z) const
    {
        const std::int64_t rowSamples = layout.SamplesPerRow();
        std::vector<T> page(std::size_t(rowSamples * layout.height));
        for (std::int64_t y = 0; y < layout.height; ++y)
            source.Load(page.data() + y * rowSamples, y, z);
        const std::int64_t width = m_options.tileWidth;
        const std::int64_t height = m_options.tileHeight;
        std::vector<T> tile(std::size_t(width * height * layout.bands));
        for (std::int64_t top = 0; top < layout.height; top += height)
            for (std::int64_t left = 0; left < layout.width; left += width) {
                std::fill(tile.begin(), tile.end(), T(0));
                const std::int64_t rows = std::min(height, layout.height - top);
                const std::int64_t columns = std::min(width, layout.width - left);
                for (std::int64_t y = 0; y < rows; ++y)
                    std::copy_n(page.data() + (top + y) * rowSamples + left * layout.bands,
                                columns * layout.bands, tile.data() + y * width * layout.bands);
                if (TIFFWriteTile(tiff, tile.data(), std::uint32_t(left), std::uint32_t(top), 0, 0) < 0)
                    return false;
            }
        return true;
    }

    template <class T>
    void WriteAs(const ImageRef& image, const ImageLayout& layout, const std::wstring& fileName) const
    {
        TemporaryFile file(fileName, tiffFormatName);
        std::string error;
        Options options(error);
        // libtiff closes the descriptor it is given: it gets a copy, and the
        // temporary file keeps its own for the rename.
        const int descriptor = ::dup(::fileno(file.Stream()));
        Handle tiff(TIFFFdOpenExt(descriptor, file.Path().c_str(), "w", options.Get()));
        if (!tiff.Get()) {
            if (descriptor >= 0)
                ::close(descriptor);
            RaiseUnwritable(tiffFormatName, fileName, System::ToString(error));
        }
        const RowReader source(image, layout);
        std::vector<T> row(std::size_t(layout.SamplesPerRow()));
        for (std::int64_t z = 0; z < layout.depth; ++z) {
            TIFF* t = tiff.Get();
            SetPageTags<T>(t, layout, z);
            bool written = true;
            if (Tiled())
                written = WriteTiles<T>(t, layout, source, z);
            else
                for (std::int64_t y = 0; y < layout.height && written; ++y) {
                    source.Load(row.data(), y, z);
                    written = TIFFWriteScanline(t, row.data(), std::uint32_t(y), 0) >= 0;
                }
            if (!written || !TIFFWriteDirectory(t))
                RaiseUnwritable(tiffFormatName, fileName, System::ToString(error));
        }
        tiff.Close();
        if (!error.empty())
            RaiseUnwritable(tiffFormatName, fileName, System::ToString(error));
        file.Commit();
    }

    TIFFWriterOptions m_options;
};

} // namespace

System::Ref<QI::IO::IBitmapReader> NewTIFFReader()
{
    return System::Ref<QI::IO::IBitmapReader>(new CTIFFReader());
}

System::Ref<QI::IO::IBitmapWriter> NewTIFFWriter()
{
    return System::Ref<QI::IO::IBitmapWriter>(new CTIFFWriter());
}

} // namespace Quilon_::Basic::Images::IO
