// Object sets as comma-separated text (RFC 4180), the reference library's
// table format:
//
//   Key,Area,Name
//   1,12.5,"cell"
//   2,3,"a ""quoted"", two-line
//   name"
//
// The first column is the object's key; then one column per scalar or
// string attribute, in the set's order. Vector, key-vector, image and
// spatial attributes have no text form here and are left out; the writer
// reports what it left out as a warning. Text is UTF-8; lines end in LF
// (CRLF is read as well). An unset cell is an empty field.
//
// Writing: integers in decimal, floats and doubles in the shortest text
// that reads back to the same value, every string cell in double quotes
// (so that "12" stays a string). Reading infers each column's kind from its
// cells: a column with a quoted cell is a string column; otherwise int32
// when every cell is an integer that fits 32 bits, float when every cell is
// a number, string else. A column without any cell is a float column.
// Empty lines are skipped; a UTF-8 byte-order mark is ignored. A malformed
// file (a line with the wrong number of fields, a key that is no integer or
// comes twice, an unclosed quote, a repeated column) raises a message that
// names the file and the line.
#pragma once

#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Quilon_::ObjectSets {
class IAttribute;
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::Basic::ObjectSets::Csv {

struct Field {
    std::string text;
    bool quoted = false;
};

struct Record {
    // The line on which the record begins, from 1.
    std::int64_t line = 0;
    std::vector<Field> fields;
};

// Splits `bytes` into records; raises, naming `fileName`, on an unclosed
// quote or a character after a closing quote.
std::vector<Record> Parse(std::string_view bytes, const std::wstring& fileName);

// A new set holding the table of `bytes`.
System::Ref<Quilon_::ObjectSets::IObjectSet> Read(std::string_view bytes, const std::wstring& fileName);

// The text of `set`; the names of the columns left out go to `leftOut`.
std::string Write(const System::Ref<Quilon_::ObjectSets::IObjectSet>& set,
                  std::vector<std::wstring>& leftOut);

// Whether the column has a text form here (scalar or string).
bool Writable(const System::Ref<Quilon_::ObjectSets::IAttribute>& attribute);

} // namespace Quilon_::Basic::ObjectSets::Csv
