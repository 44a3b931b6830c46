// JPEG files through libjpeg-turbo: 8-bit grey and RGB (other colour spaces
// of the file are converted to RGB by the decoder). Writing is always lossy
// and says so, whatever the samples; the quality is 90 unless set.
//
// libjpeg ends a failure by calling error_exit, which must not return: it
// jumps back to the function that owns the jump buffer, where the failure
// becomes an exception once libjpeg's frames are left behind.
#include "Images/IO/ImageFile.h"
#include "Quilon_/Images/IO/FormatWriters.h"

// jpeglib.h needs FILE and size_t declared before it.
#include <cstdio>
#include <jpeglib.h>

#include <csetjmp>

namespace Quilon_::Basic::Images::IO {

namespace {

const wchar_t* const jpegFormatName = L"JPEG";

struct JPEGWriterOptions {
    std::int64_t quality = 90;
    bool progressive = false;
    bool optimize = false;
};

struct ErrorManager {
    jpeg_error_mgr base{};
    std::jmp_buf jump{};
    char message[JMSG_LENGTH_MAX] = "";
};

void OnErrorExit(j_common_ptr info)
{
    auto* errors = reinterpret_cast<ErrorManager*>(info->err);
    (*info->err->format_message)(info, errors->message);
    std::longjmp(errors->jump, 1);
}

// Warnings (corrupt data that the decoder works around, extraneous bytes)
// are not shown; a file that decodes is read.
void OnMessage(j_common_ptr, int) {}

ErrorManager* InstallErrors(ErrorManager& errors)
{
    jpeg_std_error(&errors.base);
    errors.base.error_exit = &OnErrorExit;
    errors.base.emit_message = &OnMessage;
    return &errors;
}

// Reads the header and, with `pixels`, every row (width * bands bytes
// each). Called within RunReader, whose jump buffer catches libjpeg's
// failures.
void Decompress(jpeg_decompress_struct& info, const std::uint8_t* bytes, std::int64_t count,
                ImageLayout& layout, std::vector<std::uint8_t>* pixels)
{
    jpeg_mem_src(&info, bytes, static_cast<unsigned long>(count));
    jpeg_read_header(&info, TRUE);
    info.out_color_space = info.jpeg_color_space == JCS_GRAYSCALE ? JCS_GRAYSCALE : JCS_RGB;
    layout.width = info.image_width;
    layout.height = info.image_height;
    layout.bands = info.out_color_space == JCS_GRAYSCALE ? 1 : 3;
    layout.type = System::ntUInt8;
    if (!pixels)
        return;
    jpeg_start_decompress(&info);
    const std::size_t rowBytes = std::size_t(layout.SamplesPerRow());
    pixels->resize(rowBytes * std::size_t(layout.height));
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = pixels->data() + std::size_t(info.output_scanline) * rowBytes;
        jpeg_read_scanlines(&info, &row, 1);
    }
    jpeg_finish_decompress(&info);
}

// False with the message in `errors` when libjpeg failed; a C++ failure (no
// memory for the rows) leaves by exception, after the decoder is freed.
bool RunReader(const std::uint8_t* bytes, std::int64_t count, ErrorManager& errors, ImageLayout& layout,
               std::vector<std::uint8_t>* pixels)
{
    jpeg_decompress_struct info{};
    info.err = &InstallErrors(errors)->base;
    if (setjmp(errors.jump)) {
        jpeg_destroy_decompress(&info);
        return false;
    }
    jpeg_create_decompress(&info);
    try {
        Decompress(info, bytes, count, layout, pixels);
    } catch (...) {
        jpeg_destroy_decompress(&info);
        throw;
    }
    jpeg_destroy_decompress(&info);
    return true;
}

class CJPEGReader : public ReaderBase<CJPEGReader> {
public:
    std::wstring Name() override { return jpegFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"jpg", L"jpeg", L"jpe", L"jfif"}; }
    std::int64_t SignatureSize() override { return 3; }
    bool CanRead(const std::uint8_t* bytes, std::int64_t count) override
    {
        return count >= 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
    }

    ImageLayout ParseHeader()
    {
        if (!CanRead(Bytes(), ByteCount()))
            Unreadable(L"no JPEG signature");
        ErrorManager errors;
        ImageLayout layout;
        if (!RunReader(Bytes(), ByteCount(), errors, layout, nullptr))
            Unreadable(System::ToString(std::string(errors.message)));
        return layout;
    }

    void Decode(const ImageRef& image)
    {
        ErrorManager errors;
        ImageLayout layout;
        std::vector<std::uint8_t> pixels;
        if (!RunReader(Bytes(), ByteCount(), errors, layout, &pixels))
            Unreadable(System::ToString(std::string(errors.message)));
        RowWriter<std::uint8_t> rows(image, Layout());
        for (std::int64_t y = 0; y < layout.height; ++y)
            rows.Store(pixels.data() + y * layout.SamplesPerRow(), y, 0);
    }
};

// Writes every row of `source`; within RunWriter's jump buffer.
void Compress(jpeg_compress_struct& info, std::FILE* stream, const ImageLayout& layout,
              const RowReader& source, std::vector<std::uint8_t>& row, const JPEGWriterOptions& options)
{
    jpeg_stdio_dest(&info, stream);
    info.image_width = JDIMENSION(layout.width);
    info.image_height = JDIMENSION(layout.height);
    info.input_components = int(layout.bands);
    info.in_color_space = layout.bands == 1 ? JCS_GRAYSCALE : JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, int(options.quality), TRUE);
    if (options.progressive)
        jpeg_simple_progression(&info);
    info.optimize_coding = options.optimize ? TRUE : FALSE;
    jpeg_start_compress(&info, TRUE);
    for (std::int64_t y = 0; y < layout.height; ++y) {
        source.Load(row.data(), y, 0);
        JSAMPROW line = row.data();
        jpeg_write_scanlines(&info, &line, 1);
    }
    jpeg_finish_compress(&info);
}

bool RunWriter(std::FILE* stream, ErrorManager& errors, const ImageLayout& layout, const RowReader& source,
               std::vector<std::uint8_t>& row, const JPEGWriterOptions& options)
{
    jpeg_compress_struct info{};
    info.err = &InstallErrors(errors)->base;
    if (setjmp(errors.jump)) {
        jpeg_destroy_compress(&info);
        return false;
    }
    jpeg_create_compress(&info);
    try {
        Compress(info, stream, layout, source, row, options);
    } catch (...) {
        jpeg_destroy_compress(&info);
        throw;
    }
    jpeg_destroy_compress(&info);
    return true;
}

class CJPEGWriter
    : public System::Template::ObjectImpl<CJPEGWriter, QI::IO::IJPEGWriter, System::ICloneable> {
public:
    std::int64_t Quality() override { return m_options.quality; }
    void SetQuality(std::int64_t quality) override
    {
        if (quality < 1 || quality > 100)
            QUILON_RAISE(L"The JPEG quality must be from 1 to 100, not %1%", quality);
        m_options.quality = quality;
    }
    bool Progressive() override { return m_options.progressive; }
    void SetProgressive(bool progressive) override { m_options.progressive = progressive; }
    bool OptimizeCoding() override { return m_options.optimize; }
    void SetOptimizeCoding(bool optimize) override { m_options.optimize = optimize; }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        auto* copy = new CJPEGWriter();
        copy->m_options = m_options;
        return System::Pointer<System::ICloneable, 1>(copy);
    }

    std::wstring Name() override { return jpegFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"jpg", L"jpeg", L"jpe", L"jfif"}; }
    System::Nullable<Quilon_::IO::ConversionOptionsEnum> Conversion(ImageRef image) override
    {
        const std::optional<ImageLayout> layout = LayoutOf(image);
        if (!layout || layout->depth != 1 || (layout->bands != 1 && layout->bands != 3) ||
            layout->width > JPEG_MAX_DIMENSION || layout->height > JPEG_MAX_DIMENSION)
            return {};
        return Quilon_::IO::coLossyConversion;
    }
    void Write(ImageRef image, const std::wstring& fileName) override
    {
        if (!Conversion(image).HasValue())
            RaiseUnwritable(jpegFormatName, fileName, L"only single grey or RGB images can be stored");
        const ImageLayout layout = *LayoutOf(image);
        const RowReader source(image, layout);
        std::vector<std::uint8_t> row(std::size_t(layout.SamplesPerRow()));
        TemporaryFile file(fileName, jpegFormatName);
        ErrorManager errors;
        if (!RunWriter(file.Stream(), errors, layout, source, row, m_options))
            RaiseUnwritable(jpegFormatName, fileName, System::ToString(std::string(errors.message)));
        file.Commit();
    }

private:
    JPEGWriterOptions m_options;
};

} // namespace

System::Ref<QI::IO::IBitmapReader> NewJPEGReader()
{
    return System::Ref<QI::IO::IBitmapReader>(new CJPEGReader());
}

System::Ref<QI::IO::IBitmapWriter> NewJPEGWriter()
{
    return System::Ref<QI::IO::IBitmapWriter>(new CJPEGWriter());
}

} // namespace Quilon_::Basic::Images::IO
