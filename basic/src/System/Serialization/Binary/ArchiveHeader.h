// The header that opens every archive of this library: four magic bytes,
// the archive version as an unsigned 16-bit value, then one byte for each
// flag of the stream (8-byte counts, narrow strings), 0 or 1.
//
//   51 42 41 52 | 31 11 | 01 | 00      "QBAR", 4401, 8-byte counts, UTF-16
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace Quilon_::Basic::Archive {

inline constexpr unsigned char Magic[4] = {'Q', 'B', 'A', 'R'};
inline constexpr std::size_t HeaderSize = 8;

struct Header {
    unsigned short version;
    bool saveIntAsInt64;
    bool saveStringAsAnsi;
};

// The eight bytes of `header`.
void Encode(const Header& header, unsigned char (&bytes)[HeaderSize]);

// The header at the start of `bytes`; raises a message that names `source`
// when they are too few, do not start with the magic, carry a version this
// library cannot read or a flag other than 0 or 1.
Header Decode(const unsigned char* bytes, std::int64_t size, const std::wstring& source);

// Whether Decode would accept the bytes.
bool IsValid(const unsigned char* bytes, std::int64_t size);

// How messages name an archive: its file, or "(memory)".
std::wstring SourceName(const std::wstring& path);

} // namespace Quilon_::Basic::Archive
