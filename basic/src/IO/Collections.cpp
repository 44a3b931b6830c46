// The collections of the general readers and writers, of the readers and
// writers of extended properties and of the preview makers, and the settings
// that hold them: empty lists on the main thread, for the libraries that add
// formats to them.
#include "IO/FormatCollection.h"
#include "Quilon_/IO/ExtendedPropertiesReader.h"
#include "Quilon_/IO/ExtendedPropertiesWriter.h"
#include "Quilon_/IO/Globals.h"
#include "Quilon_/IO/Preview/Globals.h"
#include "Quilon_/IO/Preview/PreviewExtendedPropertiesGenerator.h"
#include "Quilon_/IO/Preview/ThumbnailsGenerator.h"
#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/PrivateLibrary.h"
#include "System/SettingsLifetime.h"

namespace Quilon_::Basic::IO {

namespace {

namespace QIO = Quilon_::IO;
namespace Preview = Quilon_::IO::Preview;

void RegisterFormatCollections()
{
    QIO::ReaderCollection::New.Register(L"Reader collection",
                                        &CFormatCollection<QIO::IReaderCollection, QIO::IReader>::Make);
    QIO::WriterCollection::New.Register(L"Writer collection",
                                        &CFormatCollection<QIO::IWriterCollection, QIO::IWriter>::Make);
    QIO::ExtendedPropertiesReaderCollection::New.Register(
        L"Extended properties reader collection",
        &CFormatCollection<QIO::IExtendedPropertiesReaderCollection, QIO::IExtendedPropertiesReader>::Make);
    QIO::ExtendedPropertiesWriterCollection::New.Register(
        L"Extended properties writer collection",
        &CFormatCollection<QIO::IExtendedPropertiesWriterCollection, QIO::IExtendedPropertiesWriter>::Make);
    Preview::ThumbnailsGeneratorCollection::New.Register(
        L"Thumbnails generator collection",
        &CFormatCollection<Preview::IThumbnailsGeneratorCollection, Preview::IThumbnailsGenerator>::Make);
    Preview::PreviewExtendedPropertiesGeneratorCollection::New.Register(
        L"Preview extended properties generator collection",
        &CFormatCollection<Preview::IPreviewExtendedPropertiesGeneratorCollection,
                           Preview::IPreviewExtendedPropertiesGenerator>::Make);
}

void SetGeneralFormats()
{
    QIO::Globals::SetReaders(QIO::ReaderCollection::New());
    QIO::Globals::SetWriters(QIO::WriterCollection::New());
    Quilon_::Images::IO::Globals::SetExtendedPropertiesReaders(
        QIO::ExtendedPropertiesReaderCollection::New());
    Quilon_::Images::IO::Globals::SetExtendedPropertiesWriters(
        QIO::ExtendedPropertiesWriterCollection::New());
    Preview::Globals::SetThumbnailsGenerators(Preview::ThumbnailsGeneratorCollection::New());
    Preview::Globals::SetPreviewExtendedPropertiesGenerators(
        Preview::PreviewExtendedPropertiesGeneratorCollection::New());
}

void ReleaseGeneralFormats()
{
    QIO::Globals::ClearReaders();
    QIO::Globals::ClearWriters();
    Quilon_::Images::IO::Globals::ClearExtendedPropertiesReaders();
    Quilon_::Images::IO::Globals::ClearExtendedPropertiesWriters();
    Preview::Globals::ClearThumbnailsGenerators();
    Preview::Globals::ClearPreviewExtendedPropertiesGenerators();
}

const System::Template::Initializer<::Library> formatCollections(&RegisterFormatCollections, nullptr, 0.2f);
const SettingsLifetime generalFormats(&SetGeneralFormats, &ReleaseGeneralFormats, 0.3f);

} // namespace

} // namespace Quilon_::Basic::IO
