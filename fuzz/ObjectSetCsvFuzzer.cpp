// Any bytes as an object-set file: every registered object-set reader is
// handed them, and must raise on whatever is wrong with them and never
// crash or hang. The seeds are the CSV fixtures of the tests, broken ones
// included.

#include "Quilon_/IO/Reader.h"
#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/IO/Globals.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/String.h"

#include <cstddef>
#include <cstdint>

using namespace Quilon_::System;

namespace {

void ReadObjectSetWith(const Ref<Quilon_::IO::IReader>& shared, const Ref<IMemory>& bytes)
{
    try {
        Pointer<ICloneable, 0> cloneable(shared);
        Ref<Quilon_::IO::IReader> reader = cloneable ? Ref<Quilon_::IO::IReader>(cloneable->Clone()) : shared;
        reader->CanRead(static_cast<const std::uint8_t*>(bytes->Data()), bytes->Size());
        reader->OpenMemory(bytes, L"fuzz input");
        reader->Read(Quilon_::ObjectSets::ObjectSet::New());
        reader->Close();
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
    Ref<IMemory> bytes = Memory::New(static_cast<std::int64_t>(size), false);
    bytes->CopyFrom(data, static_cast<std::int64_t>(size), 0);
    Ref<Quilon_::IO::IReaderCollection> readers = Quilon_::ObjectSets::IO::Globals::ObjectSetReaders();
    for (std::int64_t i = 0; i < readers->Count(); ++i)
        ReadObjectSetWith(readers->Item(i), bytes);
    // Each raise is also reported; the fuzzer's inputs would fill the list.
    Quilon_::Library::ErrorManager()->TakeLastError();
    return 0;
}
