#include "ObjectSets/IO/Csv.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/StringAttribute.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <charconv>
#include <limits>
#include <unordered_set>

namespace Quilon_::Basic::ObjectSets::Csv {

namespace {

using Quilon_::ObjectSets::IAttribute;
using Quilon_::ObjectSets::IObjectSet;
using Quilon_::ObjectSets::Key;
using System::Pointer;
using System::Ref;

// The parser's state between characters.
class CsvSplitter {
public:
    CsvSplitter(std::string_view bytes, const std::wstring& fileName) : m_bytes(bytes), m_fileName(fileName)
    {
        if (m_bytes.substr(0, 3) == "\xEF\xBB\xBF")
            m_at = 3;
    }

    std::vector<Record> Split()
    {
        std::vector<Record> records;
        while (m_at < m_bytes.size()) {
            Record record = NextRecord();
            // A line without any character is skipped.
            if (!(record.fields.size() == 1 && record.fields[0].text.empty() && !record.fields[0].quoted))
                records.push_back(std::move(record));
        }
        return records;
    }

private:
    Record NextRecord()
    {
        Record record;
        record.line = m_line;
        for (;;) {
            record.fields.push_back(NextField());
            if (m_at >= m_bytes.size())
                return record;
            const char separator = m_bytes[m_at++];
            if (separator == ',')
                continue;
            // A line break: LF, or CR LF.
            if (separator == '\r' && m_at < m_bytes.size() && m_bytes[m_at] == '\n')
                ++m_at;
            ++m_line;
            return record;
        }
    }

    // Stops before the separator that ends the field (or at the end).
    Field NextField()
    {
        Field field;
        if (m_at < m_bytes.size() && m_bytes[m_at] == '"')
            return QuotedField();
        while (m_at < m_bytes.size()) {
            const char c = m_bytes[m_at];
            if (c == ',' || c == '\n' || (c == '\r' && Next() == '\n'))
                break;
            field.text.push_back(c);
            ++m_at;
        }
        return field;
    }

    Field QuotedField()
    {
        Field field;
        field.quoted = true;
        const std::int64_t opened = m_line;
        ++m_at;
        for (;;) {
            if (m_at >= m_bytes.size())
                QUILON_RAISE(L"The file '%1%' ends inside the quoted field that begins on line %2%",
                             m_fileName, opened);
            const char c = m_bytes[m_at++];
            if (c == '"') {
                if (m_at < m_bytes.size() && m_bytes[m_at] == '"') {
                    field.text.push_back('"');
                    ++m_at;
                    continue;
                }
                break;
            }
            if (c == '\n')
                ++m_line;
            field.text.push_back(c);
        }
        if (m_at < m_bytes.size()) {
            const char c = m_bytes[m_at];
            if (c != ',' && c != '\n' && !(c == '\r' && Next() == '\n'))
                QUILON_RAISE(L"Line %1% of the file '%2%' has text after the closing quote of a field",
                             m_line, m_fileName);
        }
        return field;
    }

    char Next() const { return m_at + 1 < m_bytes.size() ? m_bytes[m_at + 1] : '\0'; }

    std::string_view m_bytes;
    const std::wstring& m_fileName;
    std::size_t m_at = 0;
    std::int64_t m_line = 1;
};

template <class T>
bool ParseNumber(const std::string& text, T& value)
{
    if (text.empty())
        return false;
    const char* first = text.data();
    const char* last = first + text.size();
    // from_chars takes no plus sign; a table may well have one.
    if (*first == '+' && text.size() > 1)
        ++first;
    auto [end, error] = std::from_chars(first, last, value);
    return error == std::errc() && end == last;
}

enum class ColumnKind { int32, floating, string };

bool HasCell(const std::vector<Record>& records, std::size_t column)
{
    for (std::size_t row = 1; row < records.size(); ++row)
        if (!records[row].fields[column].text.empty() || records[row].fields[column].quoted)
            return true;
    return false;
}

ColumnKind InferKind(const std::vector<Record>& records, std::size_t column)
{
    bool integers = true;
    for (std::size_t row = 1; row < records.size(); ++row) {
        const Field& field = records[row].fields[column];
        if (field.quoted)
            return ColumnKind::string;
        if (field.text.empty())
            continue;
        std::int32_t integer = 0;
        if (integers && ParseNumber(field.text, integer))
            continue;
        integers = false;
        double number = 0;
        if (!ParseNumber(field.text, number))
            return ColumnKind::string;
    }
    return integers && HasCell(records, column) ? ColumnKind::int32 : ColumnKind::floating;
}

const System::Type& DataTypeOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::int32:
        return Quilon_::ObjectSets::DataTypeOf<std::int32_t>();
    case ColumnKind::floating:
        return Quilon_::ObjectSets::DataTypeOf<float>();
    default:
        return Quilon_::ObjectSets::DataTypeOf<std::wstring>();
    }
}

void CheckShape(const std::vector<Record>& records, const std::wstring& fileName)
{
    if (records.empty())
        QUILON_RAISE(L"The file '%1%' has no header line", fileName);
    const Record& header = records.front();
    if (header.fields.front().text != "Key")
        QUILON_RAISE(L"The file '%1%' does not begin with the column 'Key'", fileName);
    for (const Record& record : records)
        if (record.fields.size() != header.fields.size())
            QUILON_RAISE(L"Line %1% of the file '%2%' has %3% fields where the header has %4%", record.line,
                         fileName, record.fields.size(), header.fields.size());
}

void AddColumns(const Ref<IObjectSet>& set, const std::vector<Record>& records, const std::wstring& fileName,
                std::vector<Ref<IAttribute>>& columns, std::vector<ColumnKind>& kinds)
{
    const Record& header = records.front();
    for (std::size_t column = 1; column < header.fields.size(); ++column) {
        const std::wstring name = System::ToString(header.fields[column].text);
        if (set->Attributes()->ContainsKey(name))
            QUILON_RAISE(L"The column '%1%' comes twice in the header of the file '%2%'", name, fileName);
        const ColumnKind kind = InferKind(records, column);
        kinds.push_back(kind);
        columns.push_back(set->AddAttribute(name, DataTypeOf(kind)));
    }
}

Key ParseKey(const Record& record, const std::wstring& fileName)
{
    std::int64_t key = 0;
    if (!ParseNumber(record.fields.front().text, key))
        QUILON_RAISE(L"The key '%1%' on line %2% of the file '%3%' is not an integer",
                     System::Detail::ToStringLenient(record.fields.front().text), record.line, fileName);
    return Key(key);
}

void StoreCell(IAttribute& column, ColumnKind kind, Key key, const Field& field)
{
    if (field.text.empty() && !field.quoted)
        return;
    switch (kind) {
    case ColumnKind::int32: {
        std::int32_t value = 0;
        ParseNumber(field.text, value);
        dynamic_cast<Quilon_::ObjectSets::IInt32Attribute&>(column).SetInt32Value(key, value);
        break;
    }
    case ColumnKind::floating: {
        double value = 0;
        ParseNumber(field.text, value);
        dynamic_cast<Quilon_::ObjectSets::IScalarAttribute&>(column).SetScalarValue(key, value);
        break;
    }
    default:
        column.SetValue(key, System::ToAny(System::ToString(field.text)));
    }
}

template <class T>
void AppendNumber(std::string& text, T value)
{
    char buffer[64];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    text.append(buffer, error == std::errc() ? end : buffer);
}

void AppendQuoted(std::string& text, const std::string& value)
{
    text.push_back('"');
    for (char c : value) {
        if (c == '"')
            text.push_back('"');
        text.push_back(c);
    }
    text.push_back('"');
}

// Names are quoted only when they must be: a header of plain names reads
// as plainly as the numbers under it.
void AppendName(std::string& text, const std::string& name)
{
    if (name.find_first_of(",\"\r\n") == std::string::npos)
        text += name;
    else
        AppendQuoted(text, name);
}

void AppendCell(std::string& text, IAttribute& column, Key key)
{
    if (!column.HasValue(key))
        return;
    if (auto* int32 = dynamic_cast<Quilon_::ObjectSets::IInt32Attribute*>(&column))
        AppendNumber(text, int32->Int32Value(key));
    else if (auto* single = dynamic_cast<Quilon_::ObjectSets::IFloatAttribute*>(&column))
        AppendNumber(text, single->FloatValue(key));
    else if (auto* scalar = dynamic_cast<Quilon_::ObjectSets::IScalarAttribute*>(&column))
        AppendNumber(text, scalar->ScalarValue(key));
    else if (auto* string = dynamic_cast<Quilon_::ObjectSets::IStringAttribute*>(&column))
        AppendQuoted(text, System::ToAnsi(string->StringValue(key)));
}

} // namespace

std::vector<Record> Parse(std::string_view bytes, const std::wstring& fileName)
{
    return CsvSplitter(bytes, fileName).Split();
}

Ref<IObjectSet> Read(std::string_view bytes, const std::wstring& fileName)
{
    const std::vector<Record> records = Parse(bytes, fileName);
    CheckShape(records, fileName);
    Ref<IObjectSet> set = Quilon_::ObjectSets::ObjectSet::New();
    std::vector<Ref<IAttribute>> columns;
    std::vector<ColumnKind> kinds;
    AddColumns(set, records, fileName, columns, kinds);
    std::unordered_set<Key> seen;
    for (std::size_t row = 1; row < records.size(); ++row) {
        const Record& record = records[row];
        const Key key = ParseKey(record, fileName);
        if (!seen.insert(key).second)
            QUILON_RAISE(L"The key %1% on line %2% of the file '%3%' is on an earlier line too", key.Value(),
                         record.line, fileName);
        set->AddObject(key);
        for (std::size_t column = 0; column < columns.size(); ++column)
            StoreCell(*columns[column], kinds[column], key, record.fields[column + 1]);
    }
    return set;
}

bool Writable(const Ref<IAttribute>& attribute)
{
    return Pointer<Quilon_::ObjectSets::IScalarAttribute, 0>(attribute) ||
           Pointer<Quilon_::ObjectSets::IStringAttribute, 0>(attribute);
}

std::string Write(const Ref<IObjectSet>& set, std::vector<std::wstring>& leftOut)
{
    Ref<Quilon_::ObjectSets::IAttributeDictionary> attributes = set->Attributes();
    std::vector<Ref<IAttribute>> columns;
    std::string text = "Key";
    for (std::int64_t i = 0; i < attributes->Count(); ++i) {
        Ref<IAttribute> column = attributes->ItemAt(i);
        if (!Writable(column)) {
            leftOut.push_back(column->Name().Value());
            continue;
        }
        columns.push_back(column);
        text.push_back(',');
        AppendName(text, System::ToAnsi(column->Name().Value()));
    }
    text.push_back('\n');
    Ref<Quilon_::ObjectSets::IObjectDictionary> rows = set->Objects();
    for (std::int64_t i = 0; i < rows->Count(); ++i) {
        const Key key = rows->KeyAt(i);
        AppendNumber(text, key.Value());
        for (const Ref<IAttribute>& column : columns) {
            text.push_back(',');
            AppendCell(text, *column, key);
        }
        text.push_back('\n');
    }
    return text;
}

} // namespace Quilon_::Basic::ObjectSets::Csv
