// Binary streams over a byte vector, for suites that check encodings byte by
// byte without the concrete streams of another library:
//
//   Tests::MemoryWriter writer(false, false);   // 4-byte counts, UTF-16
//   writer.stream << std::wstring(L"x");
//   auto reader = Tests::NewMemoryReader(writer.Written(), false, false);
#pragma once

#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <cstring>
#include <vector>

namespace Quilon_::Tests {

namespace Binary = System::Serialization::Binary;
using Bytes = std::vector<unsigned char>;

class CMemoryWriter : public System::Template::ObjectImpl<CMemoryWriter, Binary::IWriter> {
public:
    CMemoryWriter(bool saveIntAsInt64, bool saveStringAsAnsi)
        : m_int64(saveIntAsInt64), m_ansi(saveStringAsAnsi)
    {
    }
    bool SaveIntAsInt64() override { return m_int64; }
    bool SaveStringAsAnsi() override { return m_ansi; }
    void Write(const void* data, std::int64_t size) override
    {
        const auto* bytes = static_cast<const unsigned char*>(data);
        bytes_.insert(bytes_.end(), bytes, bytes + size);
    }
    void Write(System::Any& value) override { Binary::WriteFramed(Binary::WriterRef(this), value); }
    void Write(System::Pointer<System::Interface, 0>, bool) override
    {
        QUILON_RAISE(L"Objects are not written here");
    }
    System::Pointer<System::IMemory, 1> Contents() override { QUILON_RAISE(L"Not kept as a block"); }
    void Save(const std::wstring&) override { QUILON_RAISE(L"Not saved"); }

    Bytes bytes_;

private:
    bool m_int64;
    bool m_ansi;
};

class CMemoryReader : public System::Template::ObjectImpl<CMemoryReader, Binary::IReader> {
public:
    CMemoryReader(Bytes bytes, bool saveIntAsInt64, bool saveStringAsAnsi, unsigned short version)
        : m_bytes(std::move(bytes)), m_int64(saveIntAsInt64), m_ansi(saveStringAsAnsi), m_version(version)
    {
    }
    bool SaveIntAsInt64() override { return m_int64; }
    bool SaveStringAsAnsi() override { return m_ansi; }
    void Read(void* data, std::int64_t size) override
    {
        if (size < 0 || size > Remaining())
            QUILON_RAISE(L"Unexpected end of archive");
        std::memcpy(data, m_bytes.data() + m_position, static_cast<std::size_t>(size));
        m_position += static_cast<std::size_t>(size);
    }
    void Read(System::Any& value) override { Binary::ReadFramed(Binary::ReaderRef(this), value); }
    void Read(System::Pointer<System::Interface, 0>&, bool) override
    {
        QUILON_RAISE(L"Objects are not read here");
    }
    unsigned short Version() override { return m_version; }
    std::int64_t Position() override { return static_cast<std::int64_t>(m_position); }
    std::int64_t Remaining() override { return static_cast<std::int64_t>(m_bytes.size() - m_position); }
    std::wstring Source() override { return std::wstring(); }

private:
    Bytes m_bytes;
    std::size_t m_position = 0;
    bool m_int64;
    bool m_ansi;
    unsigned short m_version;
};

// A writer and the bytes it has written.
struct MemoryWriter {
    explicit MemoryWriter(bool saveIntAsInt64 = true, bool saveStringAsAnsi = false)
        : raw(new CMemoryWriter(saveIntAsInt64, saveStringAsAnsi)), stream(raw)
    {
    }
    const Bytes& Written() const { return raw->bytes_; }

    CMemoryWriter* raw;
    Binary::WriterRef stream;
};

inline Binary::ReaderRef NewMemoryReader(Bytes bytes, bool saveIntAsInt64 = true,
                                         bool saveStringAsAnsi = false,
                                         unsigned short version = System::Serialization::CurrentVersion)
{
    return Binary::ReaderRef(new CMemoryReader(std::move(bytes), saveIntAsInt64, saveStringAsAnsi, version));
}

} // namespace Quilon_::Tests
