// Archives of the reference library, written to files and read back: every
// kind of value the table of dynamic values knows, objects made by their
// factories, and archives that are damaged or too old. Each test starts the
// library in a child process of its own.
#include "Quilon_/Library.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"
#include "Quilon_/System/String.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <set>

namespace Quilon_::Tests::Archives {

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;
using Bytes = std::vector<unsigned char>;
using std::int64_t;
using std::uint64_t;
using std::vector;

std::wstring TemporaryPath(const wchar_t* name)
{
    return ToString(::testing::TempDir()) + name + std::to_wstring(::getpid());
}

Bytes BytesOf(Pointer<IMemory, 1> block)
{
    const auto* data = static_cast<const unsigned char*>(block->Data());
    return Bytes(data, data + block->Size());
}

ReaderRef ReaderOver(Bytes& bytes)
{
    return Reader::New(Memory::New(bytes.data(), static_cast<int64_t>(bytes.size())));
}

// A note with a title and a number, written and read by its own class.
class INote : public virtual Interface {
    QUILON_INTERFACE(INote)
public:
    virtual std::wstring Title() = 0;
    virtual int64_t Number() = 0;
};
QUILON_DEFINE_INTERFACE_TYPE(INote, L"Quilon_::Tests::Archives::INote", Interface)

class CNote : public Template::ObjectImpl<CNote, INote, ISerializable> {
public:
    CNote(std::wstring title = std::wstring(), int64_t number = 0)
        : m_title(std::move(title)), m_number(number)
    {
    }
    std::wstring Title() override { return m_title; }
    int64_t Number() override { return m_number; }
    void Serialize(WriterRef writer) override { writer << m_title << m_number; }
    void Deserialize(ReaderRef reader) override { reader >> m_title >> m_number; }

private:
    std::wstring m_title;
    int64_t m_number;
};

class CPlain : public Template::ObjectImpl<CPlain, INote> {
public:
    std::wstring Title() override { return L"plain"; }
    int64_t Number() override { return 0; }
};

Pointer<Interface, 1> NewEmptyNote()
{
    return Pointer<Interface, 1>(new CNote);
}

// Notes can be read from archives of version 4100 on. Registered by hand,
// under the full name, as a library without RegisterClass would.
void RegisterNote()
{
    Serialization::Factories()->Add(L"Quilon_::Tests::Archives::CNote",
                                    Serialization::Factory(&NewEmptyNote, 4100));
}

// One value of every row of the table, none of them a default value, so
// that a row that reads nothing cannot pass.
vector<Any> OneValueOfEachRow()
{
    Math::Moments moments;
    moments.Mean() = 2.5;
    moments.Skewness() = -0.25;
    return {
        Any(),
        ToAny(true),
        ToAny('c'),
        ToAny(static_cast<unsigned char>(200)),
        ToAny(static_cast<short>(-300)),
        ToAny(static_cast<unsigned short>(60000)),
        ToAny(-70000),
        ToAny(4000000000u),
        ToAny(int64_t(-5)),
        ToAny(uint64_t(7)),
        ToAny(1.5f),
        ToAny(-2.25),
        ToAny(std::complex<float>(1, -1)),
        ToAny(std::complex<double>(-3, 4)),
        ToAny(boost::rational<int>(-3, 4)),
        ToAny(boost::rational<unsigned int>(5, 6)),
        ToAny(vector<bool>{true, false, true}),
        ToAny(vector<char>{'a', 'b'}),
        ToAny(vector<unsigned char>{1, 255}),
        ToAny(vector<short>{-1, 2}),
        ToAny(vector<unsigned short>{3, 65535}),
        ToAny(vector<int>{-4, 5}),
        ToAny(vector<unsigned int>{6, 7}),
        ToAny(vector<int64_t>{-8, 9}),
        ToAny(vector<uint64_t>{10, 11}),
        ToAny(vector<float>{0.5f}),
        ToAny(vector<double>{1e300, -0.0}),
        ToAny(vector<std::complex<float>>{{1, 2}}),
        ToAny(vector<std::complex<double>>{{3, 4}}),
        ToAny(vector<Any>{ToAny(1), ToAny(std::wstring(L"nested"))}),
        ToAny(vector<vector<int64_t>>{{1}, {}, {2, 3}}),
        ToAny(vector<vector<float>>{{1.5f}}),
        ToAny(vector<vector<double>>{{2.5}, {}}),
        ToAny(std::make_pair(vector<int64_t>{1, 2}, int64_t(3))),
        ToAny(vector<std::pair<vector<int64_t>, int64_t>>{{{4}, 5}}),
        ToAny(std::make_pair(int64_t(6), int64_t(-7))),
        ToAny(vector<std::pair<Any, LIString>>{{ToAny(8), LIString(L"eight", true)}}),
        ToAny(std::string("narrow")),
        ToAny(std::wstring(L"wide \u00e9\u4e2d\U0001F600")),
        ToAny(vector<std::wstring>{L"", L"x"}),
        ToAny(LIString(L"Area", true)),
        ToAny(INote::GetType()),
        ToAny(DateTime(2001, 9, 9, 1, 46, 40, 123)),
        ToAny(moments),
        ToAny(vector<Math::Moments>{moments, Math::Moments()}),
    };
}

using ArchiveTest = RaisingTest;

TEST_F(ArchiveTest, EveryRowOfTheTableRoundTripsThroughAFileInEachMode)
{
    InChildProcess([] {
        StartBasic();
        const vector<Any> values = OneValueOfEachRow();
        std::set<std::wstring> covered;
        for (const Any& value : values)
            covered.insert(Helper::TypeName(value.TypeInfo()));
        for (const auto& row : GetFunctions())
            EXPECT_TRUE(covered.count(row.first)) << "no sample of " << ToAnsi(row.first);

        const std::wstring path = TemporaryPath(L"values");
        for (const bool int64Counts : {true, false}) {
            for (const bool ansi : {false, true}) {
                SCOPED_TRACE(::testing::Message()
                             << "8-byte counts " << int64Counts << ", narrow strings " << ansi);
                WriterRef writer = Writer::New(int64Counts, ansi);
                for (const Any& value : values)
                    writer << value;
                writer->Save(path);
                EXPECT_TRUE(Reader::IsArchive(path));

                ReaderRef reader = Reader::New(path);
                EXPECT_EQ(reader->SaveIntAsInt64(), int64Counts);
                EXPECT_EQ(reader->SaveStringAsAnsi(), ansi);
                EXPECT_EQ(reader->Version(), Serialization::CurrentVersion);
                EXPECT_EQ(reader->Source(), path);
                for (const Any& value : values) {
                    Any read;
                    reader >> read;
                    EXPECT_EQ(Helper::TypeName(read.TypeInfo()), Helper::TypeName(value.TypeInfo()));
                    // Re-written, the value read gives the bytes of the value written.
                    WriterRef original = Writer::New(int64Counts, ansi),
                              again = Writer::New(int64Counts, ansi);
                    original << value;
                    again << read;
                    EXPECT_EQ(BytesOf(again->Contents()), BytesOf(original->Contents()))
                        << ToAnsi(Helper::TypeName(value.TypeInfo()));
                }
                EXPECT_EQ(reader->Remaining(), 0);
            }
        }
        std::remove(ToAnsi(path).c_str());
    });
}

TEST_F(ArchiveTest, ObjectsAreMadeByTheirFactoriesAndRefusedFromOlderArchives)
{
    InChildProcess([] {
        StartBasic();
        RegisterNote();
        const std::wstring path = TemporaryPath(L"objects");
        WriterRef writer = Writer::New(true, false);
        writer << Pointer<INote, 1>(new CNote(L"first", 42)) << Pointer<INote, 0>() << std::wstring(L"after");
        writer->Save(path);

        ReaderRef reader = Reader::New(path);
        Pointer<INote, 0> note, none(new CNote);
        std::wstring after;
        reader >> note >> none >> after;
        ASSERT_TRUE(note);
        EXPECT_EQ(note->Title(), L"first");
        EXPECT_EQ(note->Number(), 42);
        EXPECT_FALSE(none);
        EXPECT_EQ(after, L"after");

        // Exceptions travel with their message and location, cancellations as such.
        WriterRef failures = Writer::New(false, false);
        failures << Exception::New(L"broken", L"F()", L"System/X.cpp", 7)
                 << Pointer<IException, 1>(CancelException::New(L"stopped", L"G()", L"Y.cpp", 9));
        Bytes failureBytes = BytesOf(failures->Contents());
        EXPECT_TRUE(Serialization::Factories()->ContainsKey(L"Quilon_::System::CException"));
        Pointer<IException, 0> broken, stopped;
        ReaderOver(failureBytes) >> broken >> stopped;
        ASSERT_TRUE(broken && stopped);
        EXPECT_EQ(broken->Message() + broken->Function() + broken->File(), L"brokenF()System/X.cpp");
        EXPECT_EQ(broken->Line(), 7);
        using Cancel = Pointer<ICancelException, 0>;
        EXPECT_FALSE(Cancel(broken));
        ASSERT_TRUE(Cancel(stopped));
        EXPECT_EQ(stopped->Line(), 9);

        // The same archive claiming version 4099, one below the note's oldest.
        Bytes old = BytesOf(writer->Contents());
        old[4] = 4099 & 0xFF;
        old[5] = 4099 >> 8;
        EXPECT_EQ(RaisedMessage([&] { ReaderOver(old) >> note; }),
                  L"Class 'Quilon_::Tests::Archives::CNote' cannot be read from an archive of version 4099 "
                  L"(oldest: 4100)");

        EXPECT_EQ(
            RaisedMessage([&] { Writer::New(true, false) << Pointer<INote, 1>(new CPlain); }),
            L"An object of class 'Quilon_::Tests::Archives::CPlain' cannot be written to an archive: it "
            L"is not serializable");
        WriterRef stranger = Writer::New(true, false);
        stranger << std::wstring(L"Nobody::CNothing");
        Bytes strangerBytes = BytesOf(stranger->Contents());
        EXPECT_EQ(RaisedMessage([&] { ReaderOver(strangerBytes) >> note; }),
                  L"Unknown class 'Nobody::CNothing' in archive");
        std::remove(ToAnsi(path).c_str());
    });
}

// The reference library's own classes, nested objects included.
TEST_F(ArchiveTest, TheReferenceLibrarysObjectsRoundTripThroughAFile)
{
    InChildProcess([] {
        StartBasic();
        Pointer<IExtendedPropertyDictionary, 1> properties = ExtendedPropertyDictionary::New();
        Pointer<IExtendedProperty, 1> unit =
            ExtendedProperty::New(LIString(L"Unit"), ToAny(std::wstring(L"mm")), true, false);
        unit->SetFlags(epfCopiable);
        properties->Add(unit);
        properties->Add(Pointer<IExtendedProperty, 1>(
            ScalarExtendedProperty::New(LIString(L"Gain"), ToAny(2.5), Math::RangeD::New(0.0, 10.0), 0.5)));
        const std::wstring path = TemporaryPath(L"library-objects");
        WriterRef writer = Writer::New(false, true);
        writer << properties << Math::MatrixD::New(2, 3, {1, 2, 3, 4, 5, 6})
               << Math::IntervalD::New(-1.0, 1.0);
        writer->Save(path);

        Pointer<IExtendedPropertyDictionary, 0> read;
        Pointer<Math::IMatrixD, 0> matrix;
        Pointer<Math::IIntervalD, 0> interval;
        Reader::New(path) >> read >> matrix >> interval;
        ASSERT_TRUE(read && matrix && interval);
        EXPECT_EQ(ExtendedPropertiesHelper::Value(read, L"Unit"), ToAny(std::wstring(L"mm")));
        EXPECT_EQ(read->Find(LIString(L"Unit"))->Flags(), epfCopiable);
        EXPECT_TRUE(read->Find(LIString(L"Unit"))->IsReadOnly());
        Pointer<IScalarExtendedProperty, 1> gain(read->Find(LIString(L"Gain")));
        EXPECT_EQ(gain->ScalarValue(), 2.5);
        EXPECT_EQ(gain->Increment(), 0.5);
        ASSERT_TRUE(gain->Range());
        EXPECT_EQ(gain->Range()->Maximum(), 10.0);
        EXPECT_EQ(matrix->Rows(), 2);
        EXPECT_EQ(matrix->Values(), (vector<double>{1, 2, 3, 4, 5, 6}));
        EXPECT_TRUE(interval->Contains(-1.0) && !interval->Contains(1.5));
        std::remove(ToAnsi(path).c_str());
    });
}

TEST_F(ArchiveTest, DamagedHeadersAreRefusedWithTheirSource)
{
    InChildProcess([] {
        StartBasic();
        Bytes good = BytesOf(Writer::New(true, false)->Contents());
        ASSERT_EQ(good.size(), 8u);
        auto messageFor = [&](Bytes bytes) { return RaisedMessage([&] { ReaderOver(bytes); }); };
        EXPECT_EQ(messageFor(Bytes(good.begin(), good.begin() + 5)),
                  L"Archive '(memory)' is truncated: its header needs 8 bytes, 5 found");
        Bytes magic = good;
        magic[0] = 'X';
        EXPECT_EQ(messageFor(magic), L"'(memory)' is not an archive");
        for (const unsigned version : {4402u, 3999u}) {
            Bytes other = good;
            other[4] = version & 0xFF;
            other[5] = version >> 8;
            EXPECT_EQ(messageFor(other), L"Archive '(memory)' has version " + std::to_wstring(version) +
                                             L"; versions 4000 to 4401 can be read");
        }
        Bytes flags = good;
        flags[7] = 2;
        EXPECT_EQ(messageFor(flags), L"Archive '(memory)' has an invalid header: flags 1 and 2");

        const std::wstring path = TemporaryPath(L"notarchive");
        std::FILE* file = std::fopen(ToAnsi(path).c_str(), "wb");
        std::fputs("plain text, no archive", file);
        std::fclose(file);
        EXPECT_FALSE(Reader::IsArchive(path));
        EXPECT_EQ(RaisedMessage([&] { Reader::New(path); }), L"'" + path + L"' is not an archive");
        std::remove(ToAnsi(path).c_str());
        EXPECT_FALSE(Reader::IsArchive(path));
        EXPECT_EQ(RaisedMessage([&] { Reader::New(path); }), L"Cannot read archive '" + path + L"' (2)");
        EXPECT_FALSE(Reader::IsArchive(ToString(::testing::TempDir())));
    });
}

TEST_F(ArchiveTest, DamagedContentsRaiseInsteadOfCrashingOrAllocating)
{
    InChildProcess([] {
        StartBasic();
        RegisterNote();
        WriterRef writer = Writer::New(false, false);
        writer << ToAny(vector<double>{1, 2}) << Pointer<INote, 1>(new CNote(L"n", 1))
               << ToAny(std::wstring(L"end"));
        const Bytes whole = BytesOf(writer->Contents());
        // Cut anywhere, the archive raises at the value that the cut falls in.
        for (std::size_t cut = 8; cut < whole.size(); ++cut) {
            Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(cut));
            Any first, last;
            Pointer<INote, 0> note;
            EXPECT_TRUE(Raised([&] { ReaderOver(part) >> first >> note >> last; })) << "cut at " << cut;
        }
        // Whole, it reads to its end, and a read past the end names what it wanted.
        Bytes all = whole;
        ReaderRef reader = ReaderOver(all);
        Any first, last;
        Pointer<INote, 0> note;
        int64_t more = 0;
        reader >> first >> note >> last;
        EXPECT_EQ(last.CastTo<std::wstring>(), L"end");
        EXPECT_EQ(RaisedMessage([&] { reader >> more; }),
                  L"Unexpected end of archive '(memory)': 4 bytes wanted at position " + std::to_wstring(all.size()) +
                      L", 0 remain");

        // Vectors of one Any each, nested far deeper than any real archive.
        WriterRef nested = Writer::New(true, false);
        for (int level = 0; level < 1000; ++level)
            nested << Helper::TypeName(typeid(std::vector<Any>)) << uint64_t(1);
        nested << Any();
        Bytes deep = BytesOf(nested->Contents());
        Any read;
        EXPECT_EQ(RaisedMessage([&] { ReaderOver(deep) >> read; }),
                  L"Archive values are nested more than 200 levels deep");
        // The depth is counted per value: the next read starts at the top again.
        WriterRef shallow = Writer::New(true, false);
        shallow << ToAny(std::vector<Any>{ToAny(1)});
        Bytes flat = BytesOf(shallow->Contents());
        ReaderOver(flat) >> read;
        EXPECT_EQ(read.CastTo<std::vector<Any>>().size(), 1u);
    });
}

} // namespace Quilon_::Tests::Archives
