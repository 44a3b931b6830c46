#include "ArchiveHeader.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/Factory.h"

#include <cstring>

namespace Quilon_::Basic::Archive {

namespace {

using System::Serialization::CurrentVersion;
using System::Serialization::OldestVersion;

unsigned short VersionOf(const unsigned char* bytes)
{
    return static_cast<unsigned short>(bytes[4] | (bytes[5] << 8));
}

bool IsFlag(unsigned char byte)
{
    return byte <= 1;
}

} // namespace

void Encode(const Header& header, unsigned char (&bytes)[HeaderSize])
{
    std::memcpy(bytes, Magic, sizeof(Magic));
    bytes[4] = static_cast<unsigned char>(header.version & 0xFF);
    bytes[5] = static_cast<unsigned char>(header.version >> 8);
    bytes[6] = header.saveIntAsInt64 ? 1 : 0;
    bytes[7] = header.saveStringAsAnsi ? 1 : 0;
}

Header Decode(const unsigned char* bytes, std::int64_t size, const std::wstring& source)
{
    const std::wstring name = SourceName(source);
    if (size < static_cast<std::int64_t>(HeaderSize))
        QUILON_RAISE(L"Archive '%1%' is truncated: its header needs %2% bytes, %3% found", name, HeaderSize, size);
    if (std::memcmp(bytes, Magic, sizeof(Magic)) != 0)
        QUILON_RAISE(L"'%1%' is not an archive", name);
    const unsigned short version = VersionOf(bytes);
    if (version < OldestVersion || version > CurrentVersion)
        QUILON_RAISE(L"Archive '%1%' has version %2%; versions %3% to %4% can be read", name, version,
                     OldestVersion, CurrentVersion);
    if (!IsFlag(bytes[6]) || !IsFlag(bytes[7]))
        QUILON_RAISE(L"Archive '%1%' has an invalid header: flags %2% and %3%", name, bytes[6], bytes[7]);
    return Header{version, bytes[6] == 1, bytes[7] == 1};
}

bool IsValid(const unsigned char* bytes, std::int64_t size)
{
    if (size < static_cast<std::int64_t>(HeaderSize) || std::memcmp(bytes, Magic, sizeof(Magic)) != 0)
        return false;
    const unsigned short version = VersionOf(bytes);
    return version >= OldestVersion && version <= CurrentVersion && IsFlag(bytes[6]) && IsFlag(bytes[7]);
}

std::wstring SourceName(const std::wstring& path)
{
    return path.empty() ? std::wstring(L"(memory)") : path;
}

} // namespace Quilon_::Basic::Archive
