// Object sets in CSV files through ObjectSets::IO::Functions::Read and
// Write: the exact text written, round trips of every column kind the
// format holds, the kinds inferred when reading, and the messages of
// broken files, which leave the set being read as it was.
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/IO/Functions.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/StringAttribute.h"
#include "Quilon_/ObjectSets/VectorAttribute.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>
#include <stdlib.h>

namespace Quilon_::Tests::ObjectSetCsv {

using namespace Quilon_::ObjectSets;
using System::Ref;
using System::ToAny;
namespace Files = Quilon_::ObjectSets::IO::Functions;

const std::wstring fixtures = System::ToString(QUILON_TEST_FIXTURES_DIR "/csv/");

// A folder of its own for the files of one test, removed with it.
struct TemporaryFolder {
    TemporaryFolder()
    {
        char pattern[] = "/tmp/quilon-csv-XXXXXX";
        path = ::mkdtemp(pattern);
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    std::string path;
};

std::string TextOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void WriteText(const std::string& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

// A set of three rows over an int, a float, a double and a string column,
// with unset cells and strings that need quoting or look like numbers.
Ref<IObjectSet> SampleSet()
{
    Ref<IObjectSet> set = ObjectSet::New();
    Ref<IInt32Attribute> count(set->AddAttribute(L"Count", DataTypeOf<std::int32_t>()));
    Ref<IFloatAttribute> area(set->AddAttribute(L"Area", DataTypeOf<float>()));
    Ref<IStringAttribute> name(set->AddAttribute(L"Name, full", DataTypeOf<std::wstring>()));
    set->AddObject(Key(1));
    set->AddObject(Key(4));
    set->AddObject(Key(2));
    count->SetInt32Value(Key(1), -3);
    count->SetInt32Value(Key(2), std::numeric_limits<std::int32_t>::max());
    area->SetFloatValue(Key(1), 0.1f);
    area->SetFloatValue(Key(4), 1e20f);
    name->SetStringValue(Key(1), L"say \"hi\",\nthen go");
    name->SetStringValue(Key(4), L"12");
    name->SetStringValue(Key(2), L"");
    return set;
}

TEST(ObjectSetCsv, WritesKeysThenScalarAndStringColumns)
{
    InChildProcess([] {
        StartBasic();
        const TemporaryFolder temporary;
        const std::string folder = temporary.path;
        Files::Write(SampleSet(), System::ToString(folder + "/sample.csv"));
        EXPECT_EQ(TextOf(folder + "/sample.csv"), "Key,Count,Area,\"Name, full\"\n"
                                                  "1,-3,0.1,\"say \"\"hi\"\",\nthen go\"\n"
                                                  "4,,1e+20,\"12\"\n"
                                                  "2,2147483647,,\"\"\n");
    });
}

TEST(ObjectSetCsv, RoundTripKeepsRowsKindsAndCells)
{
    InChildProcess([] {
        StartBasic();
        const TemporaryFolder temporary;
        const std::wstring path = System::ToString(temporary.path + "/round.csv");
        Ref<IObjectSet> written = SampleSet();
        Files::Write(written, path);
        Ref<IObjectSet> read = ObjectSet::New();
        Files::Read(read, path);
        EXPECT_EQ(read->Objects()->Keys(), written->Objects()->Keys());
        ASSERT_EQ(read->Attributes()->Keys(), written->Attributes()->Keys());
        for (std::int64_t column = 0; column < written->Attributes()->Count(); ++column) {
            Ref<IAttribute> expected = written->Attributes()->ItemAt(column);
            Ref<IAttribute> actual = read->Attributes()->ItemAt(column);
            SCOPED_TRACE(System::ToAnsi(expected->Name().Value()));
            EXPECT_TRUE(actual->DataType() == expected->DataType());
            for (Key key : written->Objects()->Keys())
                EXPECT_TRUE(actual->Value(key) == expected->Value(key)) << "key " << key.Value();
        }
    });
}

TEST(ObjectSetCsv, ColumnsWithoutTextFormAreLeftOut)
{
    InChildProcess([] {
        StartBasic();
        const TemporaryFolder temporary;
        const std::string folder = temporary.path;
        Ref<IObjectSet> set = ObjectSet::New();
        set->AddAttribute(L"Profile", DataTypeOf<std::vector<float>>());
        set->AddAttribute(L"Area", DataTypeOf<float>());
        set->AddObject()->SetValue(L"Area", ToAny(2.0f));
        Files::Write(set, System::ToString(folder + "/partial.csv"));
        EXPECT_EQ(TextOf(folder + "/partial.csv"), "Key,Area\n1,2\n");
    });
}

// What each column of a read file becomes, from the text of its cells.
TEST(ObjectSetCsv, ReadingInfersEachColumnsKind)
{
    InChildProcess([] {
        StartBasic();
        const TemporaryFolder temporary;
        const std::string path = temporary.path + "/kinds.csv";
        WriteText(path, "Key,Ints,Big,Floats,Texts,Quoted,Empty,Signed\n"
                        "1,1,2147483648,1,x,\"1\",,+4\n"
                        "2,-2,1,2.5,1,2,,-4\n");
        Ref<IObjectSet> set = ObjectSet::New();
        Files::Read(set, System::ToString(path));
        const std::vector<std::pair<const wchar_t*, System::Type>> expected = {
            {L"Ints", DataTypeOf<std::int32_t>()},   {L"Big", DataTypeOf<float>()},
            {L"Floats", DataTypeOf<float>()},        {L"Texts", DataTypeOf<std::wstring>()},
            {L"Quoted", DataTypeOf<std::wstring>()}, {L"Empty", DataTypeOf<float>()},
            {L"Signed", DataTypeOf<std::int32_t>()},
        };
        for (const auto& [name, type] : expected)
            EXPECT_TRUE(set->Attributes()->Item(name)->DataType() == type) << System::ToAnsi(name);
        EXPECT_TRUE(set->Attributes()->Item(L"Quoted")->Value(Key(2)) == ToAny(std::wstring(L"2")));
        EXPECT_FALSE(set->Attributes()->Item(L"Empty")->HasValue(Key(1)));
    });
}

TEST(ObjectSetCsv, ReadsByteOrderMarkCrLfAndQuotedLineBreaks)
{
    InChildProcess([] {
        StartBasic();
        Ref<IObjectSet> set = ObjectSet::New();
        Files::Read(set, fixtures + L"good.csv");
        EXPECT_EQ(set->Objects()->Keys(), (std::vector<Key>{Key(1), Key(2), Key(5)}));
        Ref<IAttribute> name = set->Attributes()->Item(L"Name");
        EXPECT_TRUE(name->Value(Key(1)) == ToAny(std::wstring(L"a, \"b\"")));
        EXPECT_TRUE(name->Value(Key(5)) == ToAny(std::wstring(L"two\r\nlines")));
        EXPECT_TRUE(set->Attributes()->Item(L"Area")->Value(Key(5)) == ToAny(1000.0f));
        EXPECT_TRUE(set->Attributes()->Item(L"Count")->Value(Key(5)) == ToAny(-7));
        EXPECT_FALSE(set->Attributes()->Item(L"Count")->HasValue(Key(2)));
    });
}

TEST(ObjectSetCsv, BrokenFilesNameFileAndLineAndLeaveTheSetAlone)
{
    InChildProcess([] {
        StartBasic();
        struct Broken {
            const wchar_t* file;
            const wchar_t* message; // %F stands for the file's path
        };
        const std::vector<Broken> cases = {
            {L"wrong-field-count.csv", L"Line 3 of the file '%F' has 3 fields where the header has 2"},
            {L"bad-key.csv", L"The key 'x2' on line 3 of the file '%F' is not an integer"},
            {L"duplicate-key.csv", L"The key 1 on line 3 of the file '%F' is on an earlier line too"},
            {L"unclosed-quote.csv", L"The file '%F' ends inside the quoted field that begins on line 2"},
            {L"no-key-column.csv", L"The file '%F' does not begin with the column 'Key'"},
            {L"empty.csv", L"The file '%F' has no header line"},
            {L"duplicate-column.csv", L"The column 'Area' comes twice in the header of the file '%F'"},
            {L"text-after-quote.csv", L"Line 2 of the file '%F' has text after the closing quote of a field"},
        };
        for (const Broken& broken : cases) {
            const std::wstring path = fixtures + broken.file;
            SCOPED_TRACE(System::ToAnsi(broken.file));
            std::wstring expected = broken.message;
            expected.replace(expected.find(L"%F"), 2, path);
            Ref<IObjectSet> set = SampleSet();
            EXPECT_EQ(RaisedMessage([&] { Files::Read(set, path); }), expected);
            EXPECT_EQ(set->Count(), 3);
            EXPECT_EQ(set->Attributes()->Count(), 3);
            EXPECT_TRUE(set->Attributes()->Item(L"Count")->Value(Key(1)) == ToAny(-3));
        }
        EXPECT_EQ(RaisedMessage([] { Files::Read(ObjectSet::New(), L"/nowhere/objects.csv"); }),
                  L"The file '/nowhere/objects.csv' cannot be opened");
        EXPECT_EQ(RaisedMessage([] { Files::Write(ObjectSet::New(), L"objects.xyz"); }),
                  L"No object set file writer for the extension of the file 'objects.xyz'");
    });
}

} // namespace Quilon_::Tests::ObjectSetCsv
