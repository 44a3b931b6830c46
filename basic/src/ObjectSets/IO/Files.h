// Whole files as text for the object-set formats, and the pieces of file
// names that choose a format:
//
//   std::string text = LoadText(L"objects.csv");   // raises, naming the file
//   SaveText(L"copy.csv", text);
//   ExtensionOf(L"/data/Objects.CSV");             // L"csv"
//
// The formats themselves (NewCsvReader, NewCsvWriter) are declared here too,
// for the registry.
#pragma once

#include "Quilon_/System/Pointer.h"

#include <string>

namespace Quilon_::IO {
class IReader;
class IWriter;
} // namespace Quilon_::IO

namespace Quilon_::Basic::ObjectSets::IO {

std::string LoadText(const std::wstring& fileName);
// Writes in one go, after the text is complete; raises when the file
// cannot be written.
void SaveText(const std::wstring& fileName, const std::string& text);
// Lower case, without the dot; empty when the name has none.
std::wstring ExtensionOf(const std::wstring& fileName);

System::Ref<Quilon_::IO::IReader> NewCsvReader();
System::Ref<Quilon_::IO::IWriter> NewCsvWriter();

} // namespace Quilon_::Basic::ObjectSets::IO
