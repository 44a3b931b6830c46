// Portable grey and pixel maps, read and written here without a library:
// binary P5 (grey) and P6 (RGB), and the ASCII P2 and P3 for reading;
// 8-bit samples, or 16-bit big-endian ones when the maximum value is above
// 255. Samples are kept as stored: a maximum value other than 255 or 65535
// does not rescale them.
#include "Images/IO/ImageFile.h"

#include <cstring>

namespace Quilon_::Basic::Images::IO {

namespace {

const wchar_t* const pnmFormatName = L"PNM";

// A cursor over the header and the ASCII samples: numbers separated by
// white space, comments from '#' to the end of the line.
class TextCursor {
public:
    TextCursor(const std::uint8_t* bytes, std::int64_t count, std::int64_t position)
        : m_bytes(bytes), m_count(count), m_position(position)
    {
    }
    // The next number; none at the end, on a character that is no digit or
    // when it exceeds `maximum`.
    std::optional<std::int64_t> Number(std::int64_t maximum)
    {
        SkipSpace();
        if (m_position >= m_count || m_bytes[m_position] < '0' || m_bytes[m_position] > '9')
            return std::nullopt;
        std::int64_t value = 0;
        while (m_position < m_count && m_bytes[m_position] >= '0' && m_bytes[m_position] <= '9') {
            value = value * 10 + (m_bytes[m_position++] - '0');
            if (value > maximum)
                return std::nullopt;
        }
        return value;
    }
    std::int64_t Position() const { return m_position; }
    // The single white-space character that ends a binary header.
    bool SkipOneSpace()
    {
        if (m_position >= m_count || !IsSpace(m_bytes[m_position]))
            return false;
        ++m_position;
        return true;
    }

private:
    static bool IsSpace(std::uint8_t c)
    {
        return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
    }
    void SkipSpace()
    {
        while (m_position < m_count) {
            if (m_bytes[m_position] == '#') {
                while (m_position < m_count && m_bytes[m_position] != '\n')
                    ++m_position;
            } else if (IsSpace(m_bytes[m_position])) {
                ++m_position;
            } else {
                break;
            }
        }
    }

    const std::uint8_t* m_bytes;
    std::int64_t m_count;
    std::int64_t m_position;
};

class CPNMReader : public ReaderBase<CPNMReader> {
public:
    std::wstring Name() override { return pnmFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"pgm", L"ppm", L"pnm"}; }
    std::int64_t SignatureSize() override { return 3; }
    bool CanRead(const std::uint8_t* bytes, std::int64_t count) override
    {
        return count >= 3 && bytes[0] == 'P' &&
               (bytes[1] == '2' || bytes[1] == '3' || bytes[1] == '5' || bytes[1] == '6') &&
               (bytes[2] == ' ' || bytes[2] == '\t' || bytes[2] == '\n' || bytes[2] == '\r' ||
                bytes[2] == '#');
    }

    ImageLayout ParseHeader()
    {
        if (!CanRead(Bytes(), ByteCount()))
            Unreadable(L"no portable grey or pixel map signature (P2, P3, P5 or P6)");
        m_kind = Bytes()[1];
        TextCursor cursor(Bytes(), ByteCount(), 2);
        // Sizes beyond 2^31 are refused as corrupt before any product is
        // formed; CheckLayout then applies the memory limit.
        const std::optional<std::int64_t> width = cursor.Number(std::numeric_limits<std::int32_t>::max());
        const std::optional<std::int64_t> height = cursor.Number(std::numeric_limits<std::int32_t>::max());
        const std::optional<std::int64_t> maximum = cursor.Number(65535);
        if (!width || !height || !maximum)
            Unreadable(L"the header is truncated or malformed");
        if (*maximum == 0)
            Unreadable(L"the maximum sample value is 0");
        if (*width == 0 || *height == 0)
            Unreadable(L"the header gives an empty image");
        if (IsBinary() && !cursor.SkipOneSpace())
            Unreadable(L"the header is truncated or malformed");
        m_maximum = *maximum;
        m_dataStart = cursor.Position();
        ImageLayout layout;
        layout.width = *width;
        layout.height = *height;
        layout.bands = (m_kind == '3' || m_kind == '6') ? 3 : 1;
        layout.type = m_maximum > 255 ? System::ntUInt16 : System::ntUInt8;
        if (IsBinary()) {
            // The samples must be in the file: a header claiming more is
            // refused here, before the image is made.
            const std::int64_t sampleBytes = m_maximum > 255 ? 2 : 1;
            const std::int64_t available = ByteCount() - m_dataStart;
            if (layout.width > available / layout.height / layout.bands / sampleBytes)
                Unreadable(L"the file is truncated");
        } else if (layout.width > (ByteCount() - m_dataStart + 1) / 2 / layout.height / layout.bands) {
            // Each ASCII sample takes a digit and a separator at least.
            Unreadable(L"the file is truncated");
        }
        return layout;
    }

    void Decode(const ImageRef& image)
    {
        if (Layout().type == System::ntUInt16)
            DecodeAs<std::uint16_t>(image);
        else
            DecodeAs<std::uint8_t>(image);
    }

private:
    bool IsBinary() const { return m_kind == '5' || m_kind == '6'; }

    template <class T>
    void DecodeAs(const ImageRef& image)
    {
        const ImageLayout& layout = Layout();
        RowWriter<T> rows(image, layout);
        std::vector<T> row(std::size_t(layout.SamplesPerRow()));
        const std::uint8_t* data = Bytes() + m_dataStart;
        TextCursor cursor(Bytes(), ByteCount(), m_dataStart);
        for (std::int64_t y = 0; y < layout.height; ++y) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (!IsBinary()) {
                    const std::optional<std::int64_t> value = cursor.Number(m_maximum);
                    if (!value)
                        Unreadable(L"a sample is missing or above the maximum value");
                    row[i] = T(*value);
                } else if constexpr (sizeof(T) == 2) {
                    row[i] = T((data[0] << 8) | data[1]);
                    data += 2;
                } else {
                    row[i] = *data++;
                }
            }
            rows.Store(row.data(), y, 0);
        }
    }

    std::uint8_t m_kind = 0;
    std::int64_t m_maximum = 0;
    std::int64_t m_dataStart = 0;
};

class CPNMWriter : public System::Template::ObjectImpl<CPNMWriter, QI::IO::IBitmapWriter> {
public:
    std::wstring Name() override { return pnmFormatName; }
    std::vector<std::wstring> Extensions() override { return {L"pgm", L"ppm", L"pnm"}; }
    System::Nullable<Quilon_::IO::ConversionOptionsEnum> Conversion(ImageRef image) override
    {
        const std::optional<ImageLayout> layout = LayoutOf(image);
        if (!layout || layout->depth != 1 || (layout->bands != 1 && layout->bands != 3))
            return {};
        return PlanStorage(layout->type, {System::ntUInt8, System::ntUInt16})->conversion;
    }
    void Write(ImageRef image, const std::wstring& fileName) override
    {
        const std::optional<ImageLayout> layout = LayoutOf(image);
        if (!Conversion(image).HasValue())
            RaiseUnwritable(pnmFormatName, fileName,
                            L"only single images of one or three bands can be stored");
        if (PlanStorage(layout->type, {System::ntUInt8, System::ntUInt16})->type == System::ntUInt16)
            WriteAs<std::uint16_t>(image, *layout, fileName);
        else
            WriteAs<std::uint8_t>(image, *layout, fileName);
    }

private:
    template <class T>
    static void WriteAs(const ImageRef& image, const ImageLayout& layout, const std::wstring& fileName)
    {
        TemporaryFile file(fileName, pnmFormatName);
        const std::string header = std::string(layout.bands == 3 ? "P6\n" : "P5\n") +
                                   std::to_string(layout.width) + " " + std::to_string(layout.height) + "\n" +
                                   (sizeof(T) == 2 ? "65535\n" : "255\n");
        std::fwrite(header.data(), 1, header.size(), file.Stream());
        RowReader rows(image, layout);
        std::vector<T> row(std::size_t(layout.SamplesPerRow()));
        std::vector<std::uint8_t> bytes(row.size() * sizeof(T));
        for (std::int64_t y = 0; y < layout.height; ++y) {
            rows.Load(row.data(), y, 0);
            for (std::size_t i = 0; i < row.size(); ++i) {
                if constexpr (sizeof(T) == 2) {
                    bytes[2 * i] = std::uint8_t(row[i] >> 8);
                    bytes[2 * i + 1] = std::uint8_t(row[i] & 0xFF);
                } else {
                    bytes[i] = row[i];
                }
            }
            std::fwrite(bytes.data(), 1, bytes.size(), file.Stream());
        }
        file.Commit();
    }
};

} // namespace

System::Ref<QI::IO::IBitmapReader> NewPNMReader()
{
    return System::Ref<QI::IO::IBitmapReader>(new CPNMReader());
}

System::Ref<QI::IO::IBitmapWriter> NewPNMWriter()
{
    return System::Ref<QI::IO::IBitmapWriter>(new CPNMWriter());
}

} // namespace Quilon_::Basic::Images::IO
