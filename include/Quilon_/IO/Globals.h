// The general lists of file formats: readers and writers of any kind of
// object, for the domains that have no list of their own.
//
//   IO::Globals::Readers()->Add(myReader);       // this thread's list
//   IO::Globals::SetWriters(IO::WriterCollection::New());
//
// Each setting holds one value per thread: a thread's first read clones what
// the main thread set (the implementation libraries fill it there at
// start-up), so a thread can work with a list of formats of its own.
#pragma once

#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::IO {
class IReaderCollection;
class IWriterCollection;
} // namespace Quilon_::IO

namespace Quilon_::IO::Globals {

QUILON_DECLARE_SETTING(Readers, SetReaders, ClearReaders, System::Ref<IReaderCollection>);
QUILON_DECLARE_SETTING(Writers, SetWriters, ClearWriters, System::Ref<IWriterCollection>);

} // namespace Quilon_::IO::Globals
