// The object-set file settings: where relative names are looked up, the
// readers and writers of object-set files that the IO operators choose from,
// and the readers and writers of their extended properties.
//
//   ObjectSets::IO::Globals::ObjectSetReaders()->Add(myReader);   // this thread's list
//   ObjectSets::IO::Globals::ObjectSetFolders()->Add(L"/data/tables");
//
// Each setting holds one value per thread: a thread's first read clones
// what the main thread set (the implementation libraries fill it there at
// start-up), so a thread can work with a list of formats of its own.
// ClearX() drops every thread's value; ClearCollectionX() empties the
// calling thread's list and keeps the object.
#pragma once

#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::System::Collections {
class IStringCollection;
} // namespace Quilon_::System::Collections

namespace Quilon_::IO {
class IReaderCollection;
class IWriterCollection;
class IExtendedPropertiesReaderCollection;
class IExtendedPropertiesWriterCollection;
} // namespace Quilon_::IO

namespace Quilon_::ObjectSets::IO::Globals {

// Folders in which Read looks for a relative file name that is not found
// from the working folder; none by default.
QUILON_DECLARE_SETTING(ObjectSetFolders, SetObjectSetFolders, ClearObjectSetFolders,
                       System::Ref<System::Collections::IStringCollection>);
QUILON_DECLARE_SETTING(ObjectSetReaders, SetObjectSetReaders, ClearObjectSetReaders,
                       System::Ref<Quilon_::IO::IReaderCollection>);
QUILON_DECLARE_SETTING(ObjectSetWriters, SetObjectSetWriters, ClearObjectSetWriters,
                       System::Ref<Quilon_::IO::IWriterCollection>);
QUILON_DECLARE_SETTING(ExtendedPropertiesReaders, SetExtendedPropertiesReaders,
                       ClearExtendedPropertiesReaders,
                       System::Ref<Quilon_::IO::IExtendedPropertiesReaderCollection>);
QUILON_DECLARE_SETTING(ExtendedPropertiesWriters, SetExtendedPropertiesWriters,
                       ClearExtendedPropertiesWriters,
                       System::Ref<Quilon_::IO::IExtendedPropertiesWriterCollection>);
QUILON_API void ClearCollectionExtendedPropertiesReaders();
QUILON_API void ClearCollectionExtendedPropertiesWriters();

} // namespace Quilon_::ObjectSets::IO::Globals
