#include "Quilon_/System/Serialization/Binary/Serializable.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/TypeDictionary.h"

#include <cstdint>
#include <limits>

namespace Quilon_::System::Serialization::Binary {

QUILON_DEFINE_INTERFACE_TYPE(ISerializable, L"Quilon_::System::Serialization::Binary::ISerializable",
                             System::Interface)

namespace {

template <class T>
WriterRef WriteBytes(WriterRef writer, const T& value)
{
    writer->Write(&value, sizeof(T));
    return writer;
}

template <class T>
ReaderRef ReadBytes(ReaderRef reader, T& value)
{
    reader->Read(&value, sizeof(T));
    return reader;
}

// Wide characters beyond the basic plane become surrogate pairs; a value
// that is no character at all becomes the replacement character.
std::u16string ToUtf16(const std::wstring& text)
{
    std::u16string units;
    units.reserve(text.size());
    for (wchar_t c : text) {
        auto code = static_cast<std::uint32_t>(c);
        if (code > 0x10FFFF)
            code = 0xFFFD;
        if (code >= 0x10000) {
            code -= 0x10000;
            units.push_back(static_cast<char16_t>(0xD800 + (code >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + (code & 0x3FF)));
        } else {
            units.push_back(static_cast<char16_t>(code));
        }
    }
    return units;
}

// A lone surrogate is kept as it stands, so that any unit sequence reads.
std::wstring FromUtf16(const std::u16string& units)
{
    std::wstring text;
    text.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        const std::uint32_t unit = units[i];
        if (unit >= 0xD800 && unit < 0xDC00 && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
            units[i + 1] < 0xE000) {
            text.push_back(static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (units[i + 1] - 0xDC00)));
            ++i;
        } else {
            text.push_back(static_cast<wchar_t>(unit));
        }
    }
    return text;
}

template <class Unit, class Text>
ReaderRef ReadCountedUnits(ReaderRef reader, Text& text)
{
    std::uint64_t count = 0;
    reader >> count;
    Detail::CheckCount(*reader, count, sizeof(Unit));
    Text read(count, Unit());
    reader->Read(read.data(), static_cast<std::int64_t>(count * sizeof(Unit)));
    text = std::move(read);
    return reader;
}

} // namespace

void Detail::CheckCount(IReader& reader, std::uint64_t count, std::uint64_t recordSize)
{
    const std::int64_t remaining = reader.Remaining();
    if (remaining < 0 || count > static_cast<std::uint64_t>(remaining) / recordSize)
        QUILON_RAISE(L"Invalid count in archive: %1% (only %2% bytes remain)", count, remaining);
}

WriterRef operator<<(WriterRef writer, bool value)
{
    return WriteBytes(std::move(writer), static_cast<unsigned char>(value ? 1 : 0));
}
WriterRef operator<<(WriterRef writer, char value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, unsigned char value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, short value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, unsigned short value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, int value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, unsigned int value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, float value)
{
    return WriteBytes(std::move(writer), value);
}
WriterRef operator<<(WriterRef writer, double value)
{
    return WriteBytes(std::move(writer), value);
}

ReaderRef operator>>(ReaderRef reader, bool& value)
{
    unsigned char byte = 0;
    reader = ReadBytes(std::move(reader), byte);
    value = byte != 0;
    return reader;
}
ReaderRef operator>>(ReaderRef reader, char& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, unsigned char& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, short& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, unsigned short& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, int& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, unsigned int& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, float& value)
{
    return ReadBytes(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, double& value)
{
    return ReadBytes(std::move(reader), value);
}

namespace {

// A counted integer: its own 8 bytes, or 4 when the stream is narrow, in
// which case the value must survive the narrowing.
template <class Narrow, class Wide>
WriterRef WriteCounted(WriterRef writer, Wide value, const wchar_t* overflowMessage)
{
    if (writer->SaveIntAsInt64())
        return WriteBytes(std::move(writer), value);
    const auto narrow = static_cast<Narrow>(value);
    if (narrow != value)
        QUILON_RAISE(overflowMessage, value);
    return WriteBytes(std::move(writer), narrow);
}

template <class Narrow, class Wide>
ReaderRef ReadCounted(ReaderRef reader, Wide& value)
{
    if (reader->SaveIntAsInt64())
        return ReadBytes(std::move(reader), value);
    Narrow narrow = 0;
    reader = ReadBytes(std::move(reader), narrow);
    value = narrow;
    return reader;
}

} // namespace

WriterRef operator<<(WriterRef writer, std::int64_t value)
{
    return WriteCounted<std::int32_t>(std::move(writer), value, L"Int value exceeds 32 bits storage: '%1%'");
}

WriterRef operator<<(WriterRef writer, std::uint64_t value)
{
    return WriteCounted<std::uint32_t>(std::move(writer), value,
                                       L"UInt value exceeds 32 bits storage: '%1%'");
}

ReaderRef operator>>(ReaderRef reader, std::int64_t& value)
{
    return ReadCounted<std::int32_t>(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, std::uint64_t& value)
{
    return ReadCounted<std::uint32_t>(std::move(reader), value);
}

WriterRef operator<<(WriterRef writer, const std::complex<float>& value)
{
    return writer << value.real() << value.imag();
}
WriterRef operator<<(WriterRef writer, const std::complex<double>& value)
{
    return writer << value.real() << value.imag();
}
WriterRef operator<<(WriterRef writer, const boost::rational<int>& value)
{
    return writer << value.numerator() << value.denominator();
}
WriterRef operator<<(WriterRef writer, const boost::rational<unsigned int>& value)
{
    return writer << value.numerator() << value.denominator();
}

template <class T>
static ReaderRef ReadComplex(ReaderRef reader, std::complex<T>& value)
{
    T real{}, imaginary{};
    reader = reader >> real >> imaginary;
    value = std::complex<T>(real, imaginary);
    return reader;
}
ReaderRef operator>>(ReaderRef reader, std::complex<float>& value)
{
    return ReadComplex(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, std::complex<double>& value)
{
    return ReadComplex(std::move(reader), value);
}

// A zero denominator in a corrupt archive must not reach boost, which throws
// an exception of its own for it; nor may the lowest signed value, which
// boost negates when it moves the sign to the numerator.
template <class T>
static ReaderRef ReadRational(ReaderRef reader, boost::rational<T>& value)
{
    T numerator{}, denominator{};
    reader = reader >> numerator >> denominator;
    constexpr T lowest = std::numeric_limits<T>::min();
    if (denominator == 0 || (std::is_signed_v<T> && (numerator == lowest || denominator == lowest)))
        QUILON_RAISE(L"Invalid rational number in archive: %1%/%2%", numerator, denominator);
    value.assign(numerator, denominator);
    return reader;
}
ReaderRef operator>>(ReaderRef reader, boost::rational<int>& value)
{
    return ReadRational(std::move(reader), value);
}
ReaderRef operator>>(ReaderRef reader, boost::rational<unsigned int>& value)
{
    return ReadRational(std::move(reader), value);
}

WriterRef operator<<(WriterRef writer, const std::string& value)
{
    writer = writer << static_cast<std::uint64_t>(value.size());
    writer->Write(value.data(), static_cast<std::int64_t>(value.size()));
    return writer;
}

WriterRef operator<<(WriterRef writer, const std::wstring& value)
{
    if (writer->SaveStringAsAnsi())
        return writer << System::ToAnsi(value);
    const std::u16string units = ToUtf16(value);
    writer = writer << static_cast<std::uint64_t>(units.size());
    writer->Write(units.data(), static_cast<std::int64_t>(units.size() * sizeof(char16_t)));
    return writer;
}

WriterRef operator<<(WriterRef writer, const System::LIString& value)
{
    return writer << value.IsLocalizable() << value.Value();
}

ReaderRef operator>>(ReaderRef reader, std::string& value)
{
    return ReadCountedUnits<char>(std::move(reader), value);
}

ReaderRef operator>>(ReaderRef reader, std::wstring& value)
{
    if (reader->SaveStringAsAnsi()) {
        std::string narrow;
        reader = reader >> narrow;
        value = System::ToString(narrow);
        return reader;
    }
    std::u16string units;
    reader = ReadCountedUnits<char16_t>(std::move(reader), units);
    value = FromUtf16(units);
    return reader;
}

ReaderRef operator>>(ReaderRef reader, System::LIString& value)
{
    bool localizable = false;
    std::wstring text;
    reader = reader >> localizable >> text;
    value = System::LIString(text, localizable);
    return reader;
}

WriterRef operator<<(WriterRef writer, const System::Type& value)
{
    const bool reference = !value.IsEmpty() && value.IsReferenceType();
    return writer << static_cast<unsigned char>(reference ? 1 : 0)
                  << (value.IsEmpty() ? std::wstring() : value.Name());
}

ReaderRef operator>>(ReaderRef reader, System::Type& value)
{
    unsigned char kind = 0;
    std::wstring name;
    reader = reader >> kind >> name;
    if (name.empty()) {
        // The empty Type was written: it replaces what the variable held.
        value = System::Type();
        return reader;
    }
    auto types = System::Type::Types();
    if (types->ContainsKey(name))
        value = types->Item(name);
    else if (kind == 1)
        QUILON_RAISE(L"Unknown type '%1%'", name);
    else
        value = System::Type(System::Type::ValueType(name));
    return reader;
}

WriterRef operator<<(WriterRef writer, const System::DateTime& value)
{
    return writer << value.Year() << value.Month() << value.Day() << value.Hour() << value.Minute()
                  << value.Second() << value.Millisecond();
}

ReaderRef operator>>(ReaderRef reader, System::DateTime& value)
{
    unsigned short year = 0, milliseconds = 0;
    unsigned char month = 0, day = 0, hour = 0, minute = 0, second = 0;
    reader = reader >> year >> month >> day >> hour >> minute >> second >> milliseconds;
    value = System::DateTime(year, month, day, hour, minute, second, milliseconds);
    return reader;
}

WriterRef operator<<(WriterRef writer, const Math::Moments& value)
{
    return writer << value.Minimum() << value.Maximum() << value.Mean() << value.StandardDeviation()
                  << value.Skewness() << value.Kurtosis();
}

ReaderRef operator>>(ReaderRef reader, Math::Moments& value)
{
    Math::Moments read;
    reader = reader >> read.Minimum() >> read.Maximum() >> read.Mean() >> read.StandardDeviation() >>
             read.Skewness() >> read.Kurtosis();
    value = read;
    return reader;
}

WriterRef operator<<(WriterRef writer, const System::Any& value)
{
    // The slot takes the value by reference for the row writers, which only
    // read it; a copy of every value written would be waste.
    writer->Write(const_cast<System::Any&>(value));
    return writer;
}

ReaderRef operator>>(ReaderRef reader, System::Any& value)
{
    reader->Read(value);
    return reader;
}

} // namespace Quilon_::System::Serialization::Binary
