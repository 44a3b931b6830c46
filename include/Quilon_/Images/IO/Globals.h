// The image file settings: where relative image names are looked up, and
// the readers and writers of image files that the IO operators choose from.
//
//   Images::IO::Globals::BitmapReaders()->Add(myReader);   // this thread's list
//   for (std::int64_t i = 0; i < Images::IO::Globals::BitmapWriters()->Count(); ++i)
//       std::wcout << Images::IO::Globals::BitmapWriters()->Item(i)->Name() << L"\n";
//
// Each setting holds one value per thread: a thread's first read clones
// what the main thread set (the implementation libraries fill it there at
// start-up), so a thread can work with a list of formats of its own.
#pragma once

#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Pointer.h"

namespace Quilon_::System::Collections {
class IStringCollection;
} // namespace Quilon_::System::Collections

namespace Quilon_::IO {
class IExtendedPropertiesReaderCollection;
class IExtendedPropertiesWriterCollection;
} // namespace Quilon_::IO

namespace Quilon_::Images::IO {
class IBitmapReaderCollection;
class IBitmapWriterCollection;
} // namespace Quilon_::Images::IO

namespace Quilon_::Images::IO::Globals {

// Folders in which Read and Import look for a relative file name that is
// not found from the working folder; none by default.
QUILON_DECLARE_SETTING(ImageFolders, SetImageFolders, ClearImageFolders,
                       System::Ref<System::Collections::IStringCollection>);
QUILON_DECLARE_SETTING(BitmapReaders, SetBitmapReaders, ClearBitmapReaders,
                       System::Ref<IBitmapReaderCollection>);
QUILON_DECLARE_SETTING(BitmapWriters, SetBitmapWriters, ClearBitmapWriters,
                       System::Ref<IBitmapWriterCollection>);

// The readers and writers of the extended properties of image files.
// ClearX() drops every thread's list; ClearCollectionX() empties the calling
// thread's list and keeps the object.
QUILON_DECLARE_SETTING(ExtendedPropertiesReaders, SetExtendedPropertiesReaders,
                       ClearExtendedPropertiesReaders,
                       System::Ref<Quilon_::IO::IExtendedPropertiesReaderCollection>);
QUILON_DECLARE_SETTING(ExtendedPropertiesWriters, SetExtendedPropertiesWriters,
                       ClearExtendedPropertiesWriters,
                       System::Ref<Quilon_::IO::IExtendedPropertiesWriterCollection>);
QUILON_API void ClearCollectionExtendedPropertiesReaders();
QUILON_API void ClearCollectionExtendedPropertiesWriters();

} // namespace Quilon_::Images::IO::Globals
