// Any bytes as an image file: every registered image reader is handed them,
// whatever their signature says, and must raise on whatever is wrong with
// them and never crash, hang or allocate more than the thread's maximum
// image size.

#include "Quilon_/Images/IO/BitmapReader.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/String.h"

#include <cstddef>
#include <cstdint>

using namespace Quilon_::System;
namespace IO = Quilon_::Images::IO;

namespace {

// Large enough for every seed, small enough that a forged header cannot
// take the fuzzer's memory.
constexpr std::int64_t maximumImageBytes = 64 << 20;

void ReadWith(const Ref<IO::IBitmapReader>& shared, const Ref<IMemory>& bytes)
{
    try {
        Ref<IO::IBitmapReader> reader(Ref<ICloneable>(shared)->Clone());
        reader->CanRead(static_cast<const std::uint8_t*>(bytes->Data()), bytes->Size());
        reader->OpenMemory(bytes, L"fuzz input");
        reader->Size();
        reader->Read(Quilon_::Images::Image::New());
        reader->Close();
    } catch (const Pointer<IException, 1>&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Quilon_::Library::SetInitializationFileName(ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    Quilon_::Images::Globals::SetMaximumImageSizeInBytes(maximumImageBytes);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The readers keep the block, not the bytes, so they are copied.
    Ref<IMemory> bytes = Memory::New(static_cast<std::int64_t>(size), false);
    bytes->CopyFrom(data, static_cast<std::int64_t>(size), 0);
    Ref<IO::IBitmapReaderCollection> readers = IO::Globals::BitmapReaders();
    for (std::int64_t i = 0; i < readers->Count(); ++i)
        ReadWith(readers->Item(i), bytes);
    // Each raise is also reported; the fuzzer's inputs would fill the list.
    Quilon_::Library::ErrorManager()->TakeLastError();
    return 0;
}
