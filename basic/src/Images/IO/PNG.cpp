// PNG files through libpng: grey, grey and alpha, RGB and RGBA, of 8 or 16
// bits; palette files are expanded to RGB (RGBA with transparency), grey
// values of 1, 2 or 4 bits to 8.
//
// libpng reports errors by a long jump. Each use sits in one function that
// owns the jump buffer; the callbacks handed to libpng never throw, and the
// failure becomes an exception only after the jump has landed, when no C
// frame of libpng is left to unwind.
#include "Images/IO/ImageFile.h"
#include "Quilon_/Images/IO/FormatWriters.h"

#include <png.h>

#include <csetjmp>
#include <cstring>

namespace Quilon_::Basic::Images::IO {

namespace {

const wchar_t* const pngFormatName = L"PNG";

// What the callbacks share with the function that holds the jump buffer.
struct PNGSession {
    const std::uint8_t* bytes = nullptr;
    std::size_t count = 0;
    std::size_t position = 0;
    char message[256] = "";
};

void ReadBytes(png_structp png, png_bytep out, png_size_t count)
{
    auto* session = static_cast<PNGSession*>(png_get_io_ptr(png));
    if (count > session->count - session->position)
        png_error(png, "the file is truncated");
    std::memcpy(out, session->bytes + session->position, count);
    session->position += count;
}

void OnError(png_structp png, png_const_charp message)
{
    auto* session = static_cast<PNGSession*>(png_get_error_ptr(png));
    std::snprintf(session->message, sizeof session->message, "%s", message);
    png_longjmp(png, 1);
}

// Warnings (a bad checksum of an ancillary chunk, an unknown profile) do not
// stop reading, and nothing shows them.
void OnWarning(png_structp, png_const_charp) {}

std::wstring MessageOf(const PNGSession& session)
{
    return System::ToString(std::string(session.message));
}

class ReadStructs {
public:
    explicit ReadStructs(PNGSession& session)
    {
        png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &session, &OnError, &OnWarning);
        if (png)
            info = png_create_info_struct(png);
    }
    ~ReadStructs() { png_destroy_read_struct(&png, info ? &info : nullptr, nullptr); }
    png_structp png = nullptr;
    png_infop info = nullptr;
};

// Reads the header, sets the transformations, and with `pixels` decodes
// every row into it, rows of layout.SamplesPerRow() samples. False with the
// session's message on failure.
bool RunReader(PNGSession& session, ImageLayout& layout, std::vector<std::uint8_t>* pixels,
               std::vector<png_bytep>& rows)
{
    ReadStructs structs(session);
    if (!structs.info) {
        std::snprintf(session.message, sizeof session.message, "out of memory");
        return false;
    }
    png_structp png = structs.png;
    png_infop info = structs.info;
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_set_read_fn(png, &session, &ReadBytes);
    png_read_info(png, info);
    const int colourType = png_get_color_type(png, info);
    const int depth = png_get_bit_depth(png, info);
    if (colourType == PNG_COLOR_TYPE_PALETTE) {
        png_set_palette_to_rgb(png);
        if (png_get_valid(png, info, PNG_INFO_tRNS))
            png_set_tRNS_to_alpha(png);
    }
    if (colourType == PNG_COLOR_TYPE_GRAY && depth < 8)
        png_set_expand_gray_1_2_4_to_8(png);
    if (depth == 16)
        png_set_swap(png);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    layout.width = png_get_image_width(png, info);
    layout.height = png_get_image_height(png, info);
    layout.bands = png_get_channels(png, info);
    layout.type = png_get_bit_depth(png, info) == 16 ? System::ntUInt16 : System::ntUInt8;
    if (!pixels)
        return true;
    const std::size_t rowBytes = png_get_rowbytes(png, info);
    pixels->resize(rowBytes * std::size_t(layout.height));
    rows.resize(std::size_t(layout.height));
    for (std::size_t y = 0; y < rows.size(); ++y)
        rows[y] = pixels->data() + y * rowBytes;
    png_read_image(png, rows.data());
    png_read_end(png, nullptr);
    return true;
}

class CPNGReader : public ReaderBase<CPNGReader> {
public:
    std::wstring Name() override { return pngFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"png"}; }
    std::int64_t SignatureSize() override { return 8; }
    bool CanRead(const std::uint8_t* bytes, std::int64_t count) override
    {
        return count >= 8 && png_sig_cmp(bytes, 0, 8) == 0;
    }

    ImageLayout ParseHeader()
    {
        if (!CanRead(Bytes(), ByteCount()))
            Unreadable(L"no PNG signature");
        PNGSession session = Open();
        ImageLayout layout;
        std::vector<png_bytep> rows;
        if (!RunReader(session, layout, nullptr, rows))
            Unreadable(MessageOf(session));
        return layout;
    }

    void Decode(const ImageRef& image)
    {
        PNGSession session = Open();
        ImageLayout layout;
        std::vector<std::uint8_t> pixels;
        std::vector<png_bytep> rows;
        if (!RunReader(session, layout, &pixels, rows))
            Unreadable(MessageOf(session));
        if (Layout().type == System::ntUInt16)
            Store<std::uint16_t>(image, pixels);
        else
            Store<std::uint8_t>(image, pixels);
    }

private:
    PNGSession Open() const
    {
        PNGSession session;
        session.bytes = Bytes();
        session.count = std::size_t(ByteCount());
        return session;
    }

    template <class T>
    void Store(const ImageRef& image, const std::vector<std::uint8_t>& pixels) const
    {
        const ImageLayout& layout = Layout();
        RowWriter<T> writer(image, layout);
        std::vector<T> row(std::size_t(layout.SamplesPerRow()));
        const std::size_t rowBytes = row.size() * sizeof(T);
        for (std::int64_t y = 0; y < layout.height; ++y) {
            std::memcpy(row.data(), pixels.data() + std::size_t(y) * rowBytes, rowBytes);
            writer.Store(row.data(), y, 0);
        }
    }
};

class WriteStructs {
public:
    explicit WriteStructs(PNGSession& session)
    {
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &session, &OnError, &OnWarning);
        if (png)
            info = png_create_info_struct(png);
    }
    ~WriteStructs() { png_destroy_write_struct(&png, info ? &info : nullptr); }
    png_structp png = nullptr;
    png_infop info = nullptr;
};

struct PNGWriterOptions {
    int level = 6;
    bool interlaced = false;
    double gamma = 0;
};

// Writes the rows of `source`; false with the session's message when
// libpng failed. Interlaced files need every row once per pass: the rows
// are then read once into `image`, a buffer of the whole image.
template <class T>
bool RunWriter(PNGSession& session, std::FILE* stream, const ImageLayout& layout, const RowReader& source,
               std::vector<T>& row, std::vector<T>& image, const PNGWriterOptions& options)
{
    WriteStructs structs(session);
    if (!structs.info) {
        std::snprintf(session.message, sizeof session.message, "out of memory");
        return false;
    }
    png_structp png = structs.png;
    png_infop info = structs.info;
    if (setjmp(png_jmpbuf(png)))
        return false;
    static constexpr int colourTypes[] = {PNG_COLOR_TYPE_GRAY, PNG_COLOR_TYPE_GRAY_ALPHA, PNG_COLOR_TYPE_RGB,
                                          PNG_COLOR_TYPE_RGB_ALPHA};
    png_init_io(png, stream);
    png_set_compression_level(png, options.level);
    png_set_IHDR(png, info, png_uint_32(layout.width), png_uint_32(layout.height), int(sizeof(T) * 8),
                 colourTypes[layout.bands - 1], options.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (options.gamma > 0)
        png_set_gAMA(png, info, options.gamma);
    png_write_info(png, info);
    if (sizeof(T) == 2)
        png_set_swap(png);
    const int passes = png_set_interlace_handling(png);
    if (passes == 1) {
        for (std::int64_t y = 0; y < layout.height; ++y) {
            source.Load(row.data(), y, 0);
            png_write_row(png, reinterpret_cast<png_const_bytep>(row.data()));
        }
    } else {
        const std::size_t samples = row.size();
        image.resize(samples * std::size_t(layout.height));
        for (std::int64_t y = 0; y < layout.height; ++y)
            source.Load(image.data() + std::size_t(y) * samples, y, 0);
        for (int pass = 0; pass < passes; ++pass)
            for (std::int64_t y = 0; y < layout.height; ++y)
                png_write_row(png,
                              reinterpret_cast<png_const_bytep>(image.data() + std::size_t(y) * samples));
    }
    png_write_end(png, nullptr);
    return true;
}

class CPNGWriter
    : public System::Template::ObjectImpl<CPNGWriter, QI::IO::IPNGImageWriter, System::ICloneable> {
public:
    std::wstring Name() override { return pngFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"png"}; }
    System::Nullable<Quilon_::IO::ConversionOptionsEnum> Conversion(ImageRef image) override
    {
        const std::optional<ImageLayout> layout = LayoutOf(image);
        if (!layout || layout->depth != 1 || layout->bands > 4 || layout->width > 0x7FFFFFFF ||
            layout->height > 0x7FFFFFFF)
            return {};
        return PlanStorage(layout->type, {System::ntUInt8, System::ntUInt16})->conversion;
    }
    void Write(ImageRef image, const std::wstring& fileName) override
    {
        if (!Conversion(image).HasValue())
            RaiseUnwritable(pngFormatName, fileName,
                            L"only single images of one to four bands can be stored");
        const ImageLayout layout = *LayoutOf(image);
        const RowReader source(image, layout);
        TemporaryFile file(fileName, pngFormatName);
        PNGSession session;
        bool written = false;
        if (PlanStorage(layout.type, {System::ntUInt8, System::ntUInt16})->type == System::ntUInt16) {
            std::vector<std::uint16_t> row(std::size_t(layout.SamplesPerRow()));
            std::vector<std::uint16_t> whole;
            written = RunWriter(session, file.Stream(), layout, source, row, whole, m_options);
        } else {
            std::vector<std::uint8_t> row(std::size_t(layout.SamplesPerRow()));
            std::vector<std::uint8_t> whole;
            written = RunWriter(session, file.Stream(), layout, source, row, whole, m_options);
        }
        if (!written)
            RaiseUnwritable(pngFormatName, fileName, MessageOf(session));
        file.Commit();
    }

    std::int64_t CompressionLevel() override { return m_options.level; }
    void SetCompressionLevel(std::int64_t level) override
    {
        if (level < 0 || level > 9)
            QUILON_RAISE(L"The PNG compression level must be from 0 to 9, not %1%", level);
        m_options.level = int(level);
    }
    bool Interlaced() override { return m_options.interlaced; }
    void SetInterlaced(bool interlaced) override { m_options.interlaced = interlaced; }
    double Gamma() override { return m_options.gamma; }
    void SetGamma(double gamma) override
    {
        if (!(gamma >= 0))
            QUILON_RAISE(L"The PNG gamma must not be negative: %1%", gamma);
        m_options.gamma = gamma;
    }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        auto* copy = new CPNGWriter();
        copy->m_options = m_options;
        return System::Pointer<System::ICloneable, 1>(copy);
    }

private:
    PNGWriterOptions m_options;
};

} // namespace

System::Ref<QI::IO::IBitmapReader> NewPNGReader()
{
    return System::Ref<QI::IO::IBitmapReader>(new CPNGReader());
}

System::Ref<QI::IO::IBitmapWriter> NewPNGWriter()
{
    return System::Ref<QI::IO::IBitmapWriter>(new CPNGWriter());
}

} // namespace Quilon_::Basic::Images::IO
