#include "ObjectSets/IO/Files.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <algorithm>
#include <cwctype>
#include <fstream>
#include <sstream>

namespace Quilon_::Basic::ObjectSets::IO {

std::string LoadText(const std::wstring& fileName)
{
    std::ifstream file(System::ToAnsi(fileName), std::ios::binary);
    if (!file)
        QUILON_RAISE(L"The file '%1%' cannot be opened", fileName);
    std::ostringstream text;
    text << file.rdbuf();
    if (file.bad())
        QUILON_RAISE(L"The file '%1%' cannot be read", fileName);
    return text.str();
}

void SaveText(const std::wstring& fileName, const std::string& text)
{
    std::ofstream file(System::ToAnsi(fileName), std::ios::binary | std::ios::trunc);
    if (!file)
        QUILON_RAISE(L"The file '%1%' cannot be written", fileName);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.flush();
    if (!file)
        QUILON_RAISE(L"The file '%1%' cannot be written", fileName);
}

std::wstring ExtensionOf(const std::wstring& fileName)
{
    const std::size_t slash = fileName.find_last_of(L'/');
    const std::size_t dot = fileName.find_last_of(L'.');
    if (dot == std::wstring::npos || (slash != std::wstring::npos && dot < slash))
        return std::wstring();
    std::wstring extension = fileName.substr(dot + 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return extension;
}

} // namespace Quilon_::Basic::ObjectSets::IO
