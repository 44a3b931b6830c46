// The archive writer of Writer::New: the archive grows in memory, header
// first, and is copied out by Contents() or Save().
#include "ArchiveHeader.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/String.h"

#include <cerrno>
#include <cstdio>
#include <vector>

namespace Quilon_::Basic {

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

namespace {

class CArchiveWriter : public Template::ObjectImpl<CArchiveWriter, IWriter> {
public:
    CArchiveWriter(bool saveIntAsInt64, bool saveStringAsAnsi)
        : m_saveIntAsInt64(saveIntAsInt64), m_saveStringAsAnsi(saveStringAsAnsi)
    {
        unsigned char header[Archive::HeaderSize];
        Archive::Encode({Serialization::CurrentVersion, saveIntAsInt64, saveStringAsAnsi}, header);
        m_bytes.assign(header, header + Archive::HeaderSize);
    }

    bool SaveIntAsInt64() override { return m_saveIntAsInt64; }
    bool SaveStringAsAnsi() override { return m_saveStringAsAnsi; }

    void Write(const void* data, std::int64_t size) override
    {
        if (size < 0)
            QUILON_RAISE(L"Invalid size to write: %1%", size);
        const auto* bytes = static_cast<const unsigned char*>(data);
        m_bytes.insert(m_bytes.end(), bytes, bytes + size);
    }

    void Write(Any& value) override { WriteFramed(WriterRef(this), value); }

    void Write(Pointer<Interface, 0> object, bool) override { WriteFramedObject(WriterRef(this), object); }

    Pointer<IMemory, 1> Contents() override
    {
        const auto size = static_cast<std::int64_t>(m_bytes.size());
        Pointer<IMemory, 1> block = Memory::New(size, false);
        block->CopyFrom(m_bytes.data(), size, 0);
        return block;
    }

    void Save(const std::wstring& path) override
    {
        std::FILE* file = std::fopen(ToAnsi(path).c_str(), "wb");
        if (!file)
            QUILON_RAISE(L"Cannot write archive '%1%' (%2%)", path, errno);
        const bool written = std::fwrite(m_bytes.data(), 1, m_bytes.size(), file) == m_bytes.size();
        const int error = errno;
        if (std::fclose(file) != 0 || !written)
            QUILON_RAISE(L"Cannot write archive '%1%' (%2%)", path, written ? errno : error);
    }

private:
    std::vector<unsigned char> m_bytes;
    bool m_saveIntAsInt64;
    bool m_saveStringAsAnsi;
};

Pointer<IWriter, 1> NewArchiveWriter(bool saveIntAsInt64, bool saveStringAsAnsi)
{
    return Pointer<IWriter, 1>(new CArchiveWriter(saveIntAsInt64, saveStringAsAnsi));
}

void RegisterWriter()
{
    Writer::New.Register(L"Archive writer", &NewArchiveWriter);
}

const Template::Initializer<::Library> writer(&RegisterWriter, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
