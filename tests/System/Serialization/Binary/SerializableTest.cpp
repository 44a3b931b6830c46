#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../../../Support/MemoryStreams.h"
#include "../../../Support/Raised.h"

#include <gtest/gtest.h>

#include <complex>
#include <cstring>
#include <limits>

using namespace Quilon_;
using namespace Quilon_::System::Serialization::Binary;
using Quilon_::System::Serialization::CurrentVersion;
using System::Any;
using Tests::Bytes;
using Tests::MemoryWriter;
using Tests::NewMemoryReader;

namespace {

using BinaryStreams = Tests::RaisingTest;

template <class T>
T RoundTrip(const T& value, bool saveIntAsInt64 = true, bool saveStringAsAnsi = false)
{
    MemoryWriter writer(saveIntAsInt64, saveStringAsAnsi);
    writer.stream << value;
    ReaderRef reader = NewMemoryReader(writer.Written(), saveIntAsInt64, saveStringAsAnsi);
    T read{};
    reader >> read;
    EXPECT_EQ(reader->Remaining(), 0);
    return read;
}

template <class T>
Bytes Encoded(const T& value, bool saveIntAsInt64 = true, bool saveStringAsAnsi = false)
{
    MemoryWriter writer(saveIntAsInt64, saveStringAsAnsi);
    writer.stream << value;
    return writer.Written();
}

} // namespace

TEST_F(BinaryStreams, EncodingsAreLittleEndianWithCountsOfTheStreamsWidth)
{
    EXPECT_EQ(Encoded(std::vector<double>{1, 2, 3}).size(), 32u);
    EXPECT_EQ(Encoded(std::vector<double>{1, 2, 3}, false).size(), 28u);
    EXPECT_EQ(Encoded(std::wstring()), (Bytes{0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Encoded(std::wstring(), false), (Bytes{0, 0, 0, 0}));
    // A character beyond the basic plane is two UTF-16 units, and counts so.
    EXPECT_EQ(Encoded(std::wstring(L"A\U0001F600"), false),
              (Bytes{3, 0, 0, 0, 0x41, 0, 0x3D, 0xD8, 0x00, 0xDE}));
    EXPECT_EQ(Encoded(std::wstring(L"\u00e9"), false, true), (Bytes{2, 0, 0, 0, 0xC3, 0xA9}));
    EXPECT_EQ(Encoded(System::LIString(L"a", false), false), (Bytes{0, 1, 0, 0, 0, 'a', 0}));
    EXPECT_EQ(Encoded(true), (Bytes{1}));
    EXPECT_EQ(Encoded(short(0x0102)), (Bytes{2, 1}));
    EXPECT_EQ(Encoded(std::int64_t(-1), false), (Bytes{0xFF, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(Encoded(std::make_pair(1, std::vector<std::int64_t>{5}), false),
              (Bytes{1, 0, 0, 0, 1, 0, 0, 0, 5, 0, 0, 0}));

    EXPECT_EQ(RoundTrip(std::wstring(L"A\U0001F600z")), L"A\U0001F600z");
    EXPECT_EQ(RoundTrip(std::wstring(L"caf\u00e9"), true, true), L"caf\u00e9");
    EXPECT_EQ(RoundTrip(std::vector<std::int64_t>{-1, 7}, false), (std::vector<std::int64_t>{-1, 7}));
    EXPECT_EQ(RoundTrip(std::vector<bool>{true, false, true}), (std::vector<bool>{true, false, true}));
    EXPECT_EQ(RoundTrip(System::LIString(L"key", true)), System::LIString(L"key", true));
    EXPECT_EQ(RoundTrip(boost::rational<int>(-3, 4)), boost::rational<int>(-3, 4));
}

TEST_F(BinaryStreams, CountedValuesMustFitFourBytesOnANarrowStream)
{
    MemoryWriter writer(false);
    EXPECT_EQ(Tests::RaisedMessage([&] { writer.stream << (std::int64_t(1) << 32); }),
              L"Int value exceeds 32 bits storage: '4294967296'");
    EXPECT_EQ(Tests::RaisedMessage([&] { writer.stream << (std::uint64_t(1) << 32); }),
              L"UInt value exceeds 32 bits storage: '4294967296'");
    EXPECT_TRUE(writer.Written().empty());
    EXPECT_EQ(RoundTrip(std::int64_t(-1), false), -1);
    EXPECT_EQ(RoundTrip(std::numeric_limits<std::uint32_t>::max() + std::uint64_t(0), false), 0xFFFFFFFFu);
}

TEST_F(BinaryStreams, TypesReadByNameAndUnknownValueTypesArriveAsNewValueTypes)
{
    const System::Type known = System::Type::Types()->Item(L"Quilon_::System::Interface");
    EXPECT_EQ(Encoded(known, false)[0], 1) << "an interface is of the reference kind";
    EXPECT_EQ(RoundTrip(known), known);

    System::Type unknownValue = System::Type::ValueType(L"Tests::NeverRegisteredValue");
    MemoryWriter writer;
    writer.stream << static_cast<unsigned char>(0) << std::wstring(L"Tests::Unseen")
                  << static_cast<unsigned char>(1) << std::wstring(L"Tests::IUnseen")
                  << static_cast<unsigned char>(1) << std::wstring();
    ReaderRef reader = NewMemoryReader(writer.Written());
    System::Type read;
    reader >> read;
    EXPECT_EQ(read.Name(), L"Tests::Unseen");
    EXPECT_FALSE(read.IsReferenceType());
    EXPECT_EQ(Tests::RaisedMessage([&] { reader >> read; }), L"Unknown type 'Tests::IUnseen'");
    // An empty name is the empty Type, whatever the variable held before.
    reader >> read;
    EXPECT_TRUE(read.IsEmpty());
}

TEST_F(BinaryStreams, DynamicValuesTravelByTheirRowAndATypeWithoutRowIsRefused)
{
    const std::vector<Any> values{Any(),
                                  System::ToAny(42),
                                  System::ToAny(2.5),
                                  System::ToAny(std::wstring(L"w")),
                                  System::ToAny(std::vector<double>{1, 2}),
                                  System::ToAny(std::complex<float>(1, -1)),
                                  System::ToAny(std::make_pair(std::int64_t(3), std::int64_t(4))),
                                  System::ToAny(-6LL),
                                  System::ToAny(std::vector<unsigned long long>{6})};
    EXPECT_EQ(RoundTrip(values), values);
    EXPECT_EQ(RoundTrip(System::ToAny(values)), System::ToAny(values));

    struct NoRow {};
    MemoryWriter writer;
    EXPECT_EQ(Tests::RaisedMessage([&] {
                  writer.stream << System::ToAny(NoRow{});
              }).rfind(L"No binary serialization functions for type '", 0),
              0u);

    // The first row of a name stays.
    Register(
        typeid(int), [](WriterRef, Any&) {}, [](ReaderRef, Any&) {}, CurrentVersion);
    EXPECT_EQ(RoundTrip(System::ToAny(7)), System::ToAny(7));
}

TEST_F(BinaryStreams, ARowNewerThanTheArchiveIsRefused)
{
    struct Recent {
        bool operator==(const Recent&) const = default;
    };
    Register(
        typeid(Recent), [](WriterRef, Any&) {},
        [](ReaderRef, Any& value) { value = System::ToAny(Recent{}); }, 4401);
    MemoryWriter writer;
    writer.stream << System::ToAny(Recent{});
    ReaderRef old = NewMemoryReader(writer.Written(), true, false, 4400);
    Any read;
    EXPECT_NE(Tests::RaisedMessage([&] { old >> read; }).find(L"4400"), std::wstring::npos);
}

TEST_F(BinaryStreams, CorruptCountsFailBeforeAnythingIsAllocated)
{
    MemoryWriter huge;
    huge.stream << (std::uint64_t(1) << 62) << 'x';
    std::string text;
    EXPECT_EQ(Tests::RaisedMessage([&] { NewMemoryReader(huge.Written()) >> text; }),
              L"Invalid count in archive: 4611686018427387904 (only 1 bytes remain)");

    MemoryWriter tooMany;
    tooMany.stream << std::uint64_t(3) << 1.0 << 2.0;
    std::vector<double> values{9};
    EXPECT_NE(Tests::RaisedMessage([&] { NewMemoryReader(tooMany.Written()) >> values; }), L"");
    EXPECT_EQ(values, std::vector<double>{9}) << "a failed read leaves the target as it was";

    // Two strings take at least their two counts.
    std::vector<std::wstring> strings;
    EXPECT_EQ(Tests::RaisedMessage([&] {
                  NewMemoryReader(Bytes{2, 0, 0, 0, 0, 0, 0, 0, 1}) >> strings;
              }),
              L"Invalid count in archive: 2 (only 1 bytes remain)");
    // Values that the rational type cannot hold are refused, not handed on.
    boost::rational<int> ratio;
    for (Bytes bad : {Bytes{1, 0, 0, 0, 0, 0, 0, 0}, Bytes{0, 0, 0, 0x80, 1, 0, 0, 0}})
        EXPECT_EQ(Tests::RaisedMessage([&] { NewMemoryReader(bad) >> ratio; }).rfind(L"Invalid rational number", 0), 0u);
    double truncated = 0;
    EXPECT_EQ(Tests::RaisedMessage([&] {
                  NewMemoryReader(Bytes{1, 2, 3}) >> truncated;
              }),
              L"Unexpected end of archive");
}

TEST_F(BinaryStreams, DateTimeTakesNineBytesAndMomentsSixDoubles)
{
    const System::DateTime moment(2024, 2, 29, 23, 59, 58, 0x0234);
    EXPECT_EQ(Encoded(moment), (Bytes{0xE8, 0x07, 2, 29, 23, 59, 58, 0x34, 0x02}));
    // The clock fills in the day of the week; the archive does not keep it.
    const System::DateTime fromClock = moment + System::Millisecond(0);
    ASSERT_NE(fromClock.DayOfWeek(), System::dwSunday);
    const System::DateTime read = RoundTrip(fromClock);
    EXPECT_EQ(read.DayOfWeek(), System::dwSunday);
    EXPECT_EQ(read, moment);

    Math::Moments moments;
    moments.Minimum() = -1;
    moments.Kurtosis() = 6;
    const Bytes bytes = Encoded(moments);
    ASSERT_EQ(bytes.size(), 48u);
    double last = 0;
    std::memcpy(&last, bytes.data() + 40, sizeof(double));
    EXPECT_EQ(last, 6);
    EXPECT_EQ(RoundTrip(moments), moments);
    EXPECT_EQ(RoundTrip(std::vector<Math::Moments>{moments, Math::Moments()}, false),
              (std::vector<Math::Moments>{moments, Math::Moments()}));
}
