// Any bytes as an archive: the reader must raise on whatever is wrong with
// them and never crash, hang or allocate more than the bytes justify. The
// same input is read twice, once as a sequence of values and once as a
// sequence of objects, each until the end or the first failure.

#include "Quilon_/Library.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/String.h"

#include <cstddef>
#include <cstdint>

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

namespace {

Pointer<IMemory, 1> BlockOf(const std::uint8_t* data, std::size_t size)
{
    // The reader keeps the block, not the bytes, so they are copied.
    Pointer<IMemory, 1> block = Memory::New(static_cast<std::int64_t>(size), false);
    block->CopyFrom(data, static_cast<std::int64_t>(size), 0);
    return block;
}

template <class Value>
void ReadUntilTheEnd(const std::uint8_t* data, std::size_t size)
{
    try {
        ReaderRef reader = Reader::New(BlockOf(data, size));
        while (reader->Remaining() > 0) {
            Value value;
            reader >> value;
        }
    } catch (const Pointer<IException, 1>&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Quilon_::Library::SetInitializationFileName(ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ReadUntilTheEnd<Any>(data, size);
    ReadUntilTheEnd<Pointer<Interface, 0>>(data, size);
    // Each raise is also reported; the fuzzer's inputs would fill the list.
    Quilon_::Library::ErrorManager()->TakeLastError();
    return 0;
}
