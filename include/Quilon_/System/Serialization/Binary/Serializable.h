// The encodings of binary archives: stream operators for every value that
// an archive holds, and the interface of objects that write themselves.
//
//   writer << std::int64_t(3) << std::wstring(L"name") << std::vector<double>{1, 2};
//   reader >> count >> name >> values;
//
// Everything is little-endian as in memory. Counted integers (lengths,
// counts, every __int64 value) take 8 or 4 bytes as the stream says; wide
// strings are UTF-16 code units on every platform, or their narrow form.
// Each operator takes the stream by value and returns it, so calls chain.
#pragma once

#include "Quilon_/Math/Moments.h"
#include "Quilon_/System/DateTime.h"
#include "Quilon_/System/Serialization/Binary/Reader.h"
#include "Quilon_/System/Serialization/Binary/Writer.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include <boost/rational.hpp>

#include <complex>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Quilon_::System::Serialization::Binary {

class QUILON_API ISerializable : public virtual System::Interface {
    QUILON_INTERFACE(ISerializable)
public:
    virtual void Serialize(System::Pointer<IWriter, 1> writer) = 0;
    virtual void Deserialize(System::Pointer<IReader, 1> reader) = 0;
};

using WriterRef = System::Pointer<IWriter, 1>;
using ReaderRef = System::Pointer<IReader, 1>;

// Values of a fixed size.
QUILON_API WriterRef operator<<(WriterRef writer, bool value);
QUILON_API WriterRef operator<<(WriterRef writer, char value);
QUILON_API WriterRef operator<<(WriterRef writer, unsigned char value);
QUILON_API WriterRef operator<<(WriterRef writer, short value);
QUILON_API WriterRef operator<<(WriterRef writer, unsigned short value);
QUILON_API WriterRef operator<<(WriterRef writer, int value);
QUILON_API WriterRef operator<<(WriterRef writer, unsigned int value);
QUILON_API WriterRef operator<<(WriterRef writer, float value);
QUILON_API WriterRef operator<<(WriterRef writer, double value);
QUILON_API ReaderRef operator>>(ReaderRef reader, bool& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, char& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, unsigned char& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, short& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, unsigned short& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, int& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, unsigned int& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, float& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, double& value);

// Counted integers: 8 bytes, or 4 when the stream says so, in which case the
// value must fit and a signed one is sign-extended when read.
QUILON_API WriterRef operator<<(WriterRef writer, std::int64_t value);
QUILON_API WriterRef operator<<(WriterRef writer, std::uint64_t value);
QUILON_API ReaderRef operator>>(ReaderRef reader, std::int64_t& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, std::uint64_t& value);

QUILON_API WriterRef operator<<(WriterRef writer, const std::complex<float>& value);
QUILON_API WriterRef operator<<(WriterRef writer, const std::complex<double>& value);
QUILON_API WriterRef operator<<(WriterRef writer, const boost::rational<int>& value);
QUILON_API WriterRef operator<<(WriterRef writer, const boost::rational<unsigned int>& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, std::complex<float>& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, std::complex<double>& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, boost::rational<int>& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, boost::rational<unsigned int>& value);

QUILON_API WriterRef operator<<(WriterRef writer, const std::string& value);
QUILON_API WriterRef operator<<(WriterRef writer, const std::wstring& value);
QUILON_API WriterRef operator<<(WriterRef writer, const System::LIString& value);
// A literal would otherwise be written as a bool.
WriterRef operator<<(WriterRef writer, const char* value) = delete;
WriterRef operator<<(WriterRef writer, const wchar_t* value) = delete;
QUILON_API ReaderRef operator>>(ReaderRef reader, std::string& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, std::wstring& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, System::LIString& value);

// A kind byte (1 for an interface) and the name. A name that this process
// does not know reads as a new value type, or raises for an interface.
QUILON_API WriterRef operator<<(WriterRef writer, const System::Type& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, System::Type& value);

// Nine bytes: the year on two, month, day, hour, minute and second on one
// each, the milliseconds on two. The day of the week is not stored and
// reads back as 0 (Sunday).
QUILON_API WriterRef operator<<(WriterRef writer, const System::DateTime& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, System::DateTime& value);

// The six doubles in their order: minimum, maximum, mean, standard
// deviation, skewness, kurtosis.
QUILON_API WriterRef operator<<(WriterRef writer, const Math::Moments& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, Math::Moments& value);

// Through the stream's own framing of dynamic values.
QUILON_API WriterRef operator<<(WriterRef writer, const System::Any& value);
QUILON_API ReaderRef operator>>(ReaderRef reader, System::Any& value);

// Objects that implement ISerializable, through the stream's framing.
template <class I, int N>
WriterRef operator<<(WriterRef writer, const System::Pointer<I, N>& object)
{
    writer->Write(System::Pointer<System::Interface, 0>(object), false);
    return writer;
}
template <class I, int N>
ReaderRef operator>>(ReaderRef reader, System::Pointer<I, N>& object)
{
    System::Pointer<System::Interface, 0> read;
    reader->Read(read, false);
    object = System::Pointer<I, N>(read);
    return reader;
}

namespace Detail {

// Raises unless `count` records of at least `recordSize` bytes each fit in
// what remains of the archive: a corrupt count must fail before anything is
// allocated for it.
QUILON_API void CheckCount(IReader& reader, std::uint64_t count, std::uint64_t recordSize);

// Elements whose record is their bytes in memory, on a stream whose counted
// integers take 8 bytes or not.
template <class T>
bool IsStoredAsInMemory(bool saveIntAsInt64)
{
    if constexpr (std::is_same_v<T, std::int64_t> || std::is_same_v<T, std::uint64_t>)
        return saveIntAsInt64;
    else
        return std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;
}

template <class T>
struct IsCountedRecord : std::false_type {
};
template <class C, class Tr, class A>
struct IsCountedRecord<std::basic_string<C, Tr, A>> : std::true_type {
};
template <class T, class A>
struct IsCountedRecord<std::vector<T, A>> : std::true_type {
};
template <>
struct IsCountedRecord<std::int64_t> : std::true_type {
};
template <>
struct IsCountedRecord<std::uint64_t> : std::true_type {
};

template <class T>
struct IsPair : std::false_type {
};
template <class A, class B>
struct IsPair<std::pair<A, B>> : std::true_type {
};

// The fewest bytes that one record of T takes on the stream; every record
// takes at least one.
template <class T>
std::uint64_t MinimumRecordSize(IReader& reader)
{
    if constexpr (IsCountedRecord<T>::value)
        return reader.SaveIntAsInt64() ? 8 : 4;
    else if constexpr (IsPair<T>::value)
        return MinimumRecordSize<typename T::first_type>(reader) +
               MinimumRecordSize<typename T::second_type>(reader);
    else if constexpr (std::is_arithmetic_v<T>)
        return sizeof(T);
    else if constexpr (std::is_same_v<T, Math::Moments>)
        return 6 * sizeof(double);
    else
        return 1;
}

} // namespace Detail

template <class T, class A>
WriterRef operator<<(WriterRef writer, const std::vector<T, A>& values)
{
    writer << static_cast<std::uint64_t>(values.size());
    if constexpr (!std::is_same_v<T, bool>) {
        if (Detail::IsStoredAsInMemory<T>(writer->SaveIntAsInt64())) {
            writer->Write(values.data(), static_cast<std::int64_t>(values.size() * sizeof(T)));
            return writer;
        }
    }
    for (const T& value : values)
        writer << value;
    return writer;
}

template <class T, class A>
ReaderRef operator>>(ReaderRef reader, std::vector<T, A>& values)
{
    std::uint64_t count = 0;
    reader >> count;
    Detail::CheckCount(*reader, count, Detail::MinimumRecordSize<T>(*reader));
    std::vector<T, A> read;
    if constexpr (!std::is_same_v<T, bool>) {
        if (Detail::IsStoredAsInMemory<T>(reader->SaveIntAsInt64())) {
            read.resize(count);
            reader->Read(read.data(), static_cast<std::int64_t>(count * sizeof(T)));
            values = std::move(read);
            return reader;
        }
    }
    read.reserve(count);
    for (std::uint64_t i = 0; i < count; ++i) {
        T value{};
        reader >> value;
        read.push_back(std::move(value));
    }
    values = std::move(read);
    return reader;
}

template <class A, class B>
WriterRef operator<<(WriterRef writer, const std::pair<A, B>& value)
{
    return writer << value.first << value.second;
}

template <class A, class B>
ReaderRef operator>>(ReaderRef reader, std::pair<A, B>& value)
{
    return reader >> value.first >> value.second;
}

} // namespace Quilon_::System::Serialization::Binary
