// The archive reader of both overloads of Reader::New, and Reader::IsArchive.
// A file is read whole into a block first, so that both overloads read from
// memory; the header is checked before anything else is done.
#include "ArchiveHeader.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/String.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace Quilon_::Basic {

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

// The whole file in one block; only a regular file is read, so that a
// device or a pipe cannot make the reader wait or allocate at will.
Pointer<IMemory, 1> LoadFile(const std::wstring& path)
{
    const std::string name = ToAnsi(path);
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0)
        QUILON_RAISE(L"Cannot read archive '%1%' (%2%)", path, errno);
    if (!S_ISREG(status.st_mode))
        QUILON_RAISE(L"Cannot read archive '%1%': it is not a file", path);
    File file(std::fopen(name.c_str(), "rb"));
    if (!file)
        QUILON_RAISE(L"Cannot read archive '%1%' (%2%)", path, errno);
    const auto size = static_cast<std::int64_t>(status.st_size);
    Pointer<IMemory, 1> block = Memory::New(size, false);
    if (std::fread(block->Data(), 1, static_cast<std::size_t>(size), file.get()) != static_cast<std::size_t>(size))
        QUILON_RAISE(L"Cannot read archive '%1%': it changed while it was read", path);
    return block;
}

class CArchiveReader : public Template::ObjectImpl<CArchiveReader, IReader> {
public:
    CArchiveReader(Pointer<IMemory, 1> block, const std::wstring& source)
        : m_block(std::move(block)), m_source(source),
          m_header(Archive::Decode(Bytes(), m_block->Size(), source)),
          m_position(static_cast<std::int64_t>(Archive::HeaderSize))
    {
    }

    bool SaveIntAsInt64() override { return m_header.saveIntAsInt64; }
    bool SaveStringAsAnsi() override { return m_header.saveStringAsAnsi; }

    void Read(void* data, std::int64_t size) override
    {
        // The block is asked for its size on every read: whoever shares it
        // may have resized it meanwhile.
        const std::int64_t remaining = Remaining();
        if (size < 0 || size > remaining)
            QUILON_RAISE(L"Unexpected end of archive '%1%': %2% bytes wanted at position %3%, %4% remain",
                         Archive::SourceName(m_source), size, m_position, remaining < 0 ? 0 : remaining);
        if (size == 0)
            return;
        std::memcpy(data, Bytes() + m_position, static_cast<std::size_t>(size));
        m_position += size;
    }

    void Read(Any& value) override { ReadFramed(ReaderRef(this), value); }

    void Read(Pointer<Interface, 0>& object, bool) override { ReadFramedObject(ReaderRef(this), object); }

    unsigned short Version() override { return m_header.version; }
    std::int64_t Position() override { return m_position; }
    std::int64_t Remaining() override { return m_block->Size() - m_position; }
    std::wstring Source() override { return m_source; }

private:
    const unsigned char* Bytes() { return static_cast<const unsigned char*>(m_block->Data()); }

    Pointer<IMemory, 1> m_block;
    std::wstring m_source;
    Archive::Header m_header;
    std::int64_t m_position;
};

Pointer<IReader, 1> NewFileReader(const std::wstring& path)
{
    return Pointer<IReader, 1>(new CArchiveReader(LoadFile(path), path));
}

Pointer<IReader, 1> NewMemoryReader(Pointer<IMemory, 1> block)
{
    return Pointer<IReader, 1>(new CArchiveReader(std::move(block), std::wstring()));
}

// Regular files only: opening a pipe to look at it would wait for a writer.
bool IsArchiveFile(const std::wstring& path)
{
    const std::string name = ToAnsi(path);
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    File file(std::fopen(name.c_str(), "rb"));
    unsigned char header[Archive::HeaderSize];
    return file && std::fread(header, 1, sizeof(header), file.get()) == sizeof(header) &&
           Archive::IsValid(header, sizeof(header));
}

void RegisterReader()
{
    Reader::New.Register(L"Archive file reader", &NewFileReader);
    Reader::New.Register(L"Archive memory reader", &NewMemoryReader);
    Reader::SetIsArchiveFunction1(&IsArchiveFile);
}

const Template::Initializer<::Library> reader(&RegisterReader, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
