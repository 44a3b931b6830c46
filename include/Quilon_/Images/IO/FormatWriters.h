// Writers with the options of their format: the quality of JPEG files, the
// compression of PNG and TIFF files, the identifiers of DICOM files. A
// writer of the collection offers them through a cast:
//
//   Pointer<Images::IO::IJPEGWriter, 0> jpeg(writer);
//   if (jpeg)
//       jpeg->SetQuality(75);
//
// The writers of Images::IO::Globals::BitmapWriters() are shared by every
// thread: options set on them hold for every Write of the process. A writer
// that is System::ICloneable gives a copy whose options are its own.
#pragma once

#include "Quilon_/Images/IO/BitmapWriter.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images::IO {

// The slot orders are fixed: other libraries are binary clients of them.
class QUILON_API IJPEGWriter : public virtual IBitmapWriter {
    QUILON_INTERFACE(IJPEGWriter)
public:
    // 1. From 1 (smallest file) to 100 (best image); 90 unless set.
    virtual std::int64_t Quality() = 0;
    // 2. Raises for a value outside [1, 100].
    virtual void SetQuality(std::int64_t quality) = 0;
    // 3. Whether the file shows coarse first when loaded over a slow line.
    virtual bool Progressive() = 0;
    // 4.
    virtual void SetProgressive(bool progressive) = 0;
    // 5. Whether the entropy coding is optimised for the image (smaller,
    // slower to write).
    virtual bool OptimizeCoding() = 0;
    // 6.
    virtual void SetOptimizeCoding(bool optimize) = 0;
};

class QUILON_API IPNGImageWriter : public virtual IBitmapWriter {
    QUILON_INTERFACE(IPNGImageWriter)
public:
    // 1. The deflate level, from 0 (none) to 9 (smallest); 6 unless set.
    virtual std::int64_t CompressionLevel() = 0;
    // 2. Raises for a value outside [0, 9].
    virtual void SetCompressionLevel(std::int64_t level) = 0;
    // 3. Whether the rows are interlaced (Adam7).
    virtual bool Interlaced() = 0;
    // 4.
    virtual void SetInterlaced(bool interlaced) = 0;
    // 5. The gamma stored in the file; 0 stores none.
    virtual double Gamma() = 0;
    // 6. Raises for a negative value.
    virtual void SetGamma(double gamma) = 0;
};

// How a TIFF file's samples are compressed.
enum TIFFCompressionEnumTag : std::int32_t {
    tcNone = 0,
    tcLZW = 1,
    tcDeflate = 2,
    tcPackBits = 3,
};
using TIFFCompressionEnum = TIFFCompressionEnumTag;

class QUILON_API ITIFFWriter : public virtual IBitmapWriter {
    QUILON_INTERFACE(ITIFFWriter)
public:
    // 1. tcDeflate unless set.
    virtual TIFFCompressionEnum Compression() = 0;
    // 2.
    virtual void SetCompression(TIFFCompressionEnum compression) = 0;
    // 3. Whether the horizontal difference predictor precedes LZW and
    // deflate compression (smaller files of smooth images).
    virtual bool Predictor() = 0;
    // 4.
    virtual void SetPredictor(bool predictor) = 0;
    // 5. Rows per strip; 0 lets the library choose (about 8 KB a strip).
    virtual std::int64_t RowsPerStrip() = 0;
    // 6. Raises for a negative value.
    virtual void SetRowsPerStrip(std::int64_t rows) = 0;
    // 7. The width of the tiles; 0 (with TileHeight 0) writes strips.
    virtual std::int64_t TileWidth() = 0;
    // 8. Raises unless 0 or a positive multiple of 16.
    virtual void SetTileWidth(std::int64_t width) = 0;
    // 9.
    virtual std::int64_t TileHeight() = 0;
    // 10. Raises unless 0 or a positive multiple of 16.
    virtual void SetTileHeight(std::int64_t height) = 0;
    // 11. The image description tag; empty writes none.
    virtual std::wstring Description() = 0;
    // 12.
    virtual void SetDescription(const std::wstring& description) = 0;
    // 13. The software tag; empty writes none.
    virtual std::wstring Software() = 0;
    // 14.
    virtual void SetSoftware(const std::wstring& software) = 0;
    // 15. The artist tag; empty writes none.
    virtual std::wstring Artist() = 0;
    // 16.
    virtual void SetArtist(const std::wstring& artist) = 0;
    // 17. Pixels per centimetre along X; 0 writes no resolution.
    virtual double XResolution() = 0;
    // 18. Raises for a negative value.
    virtual void SetXResolution(double resolution) = 0;
    // 19. Pixels per centimetre along Y; 0 writes no resolution.
    virtual double YResolution() = 0;
    // 20. Raises for a negative value.
    virtual void SetYResolution(double resolution) = 0;
};

// The identifiers a medical image file carries; unique ones come from
// DICOMWriter::GenerateUniqueIdentifier.
class QUILON_API IDICOMWriter : public virtual IBitmapWriter {
    QUILON_INTERFACE(IDICOMWriter)
public:
    // 1.
    virtual std::wstring PatientName() = 0;
    // 2.
    virtual void SetPatientName(const std::wstring& name) = 0;
    // 3.
    virtual std::wstring PatientID() = 0;
    // 4.
    virtual void SetPatientID(const std::wstring& id) = 0;
    // 5. Empty: a new one is generated for each file.
    virtual std::wstring StudyInstanceUID() = 0;
    // 6.
    virtual void SetStudyInstanceUID(const std::wstring& uid) = 0;
    // 7. Empty: a new one is generated for each file.
    virtual std::wstring SeriesInstanceUID() = 0;
    // 8.
    virtual void SetSeriesInstanceUID(const std::wstring& uid) = 0;
};

} // namespace Quilon_::Images::IO

namespace Quilon_::System {
QUILON_API std::wstring ToString(Images::IO::TIFFCompressionEnum value);
} // namespace Quilon_::System
