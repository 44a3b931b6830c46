// The bitmaps, formats and pixel functions of the reference library: what
// its classes do where the toolkit leaves the choice open.
//
//   Pointer<IBitmap> bitmap = Bitmap::New(Geometry::Coordinates::New(640, 480, 3, Geometry::Axes::aXYB));
//   bitmap->Format()->ToString();   // "ntUInt8 XYB": one plane per band
//   Bitmap::Frame(bitmap, System::ToAny(0), false);
//
// Layout
//   - All samples lie in one IMemory block. The stride of each axis follows
//     from the storage order (StorageOrder.h) and the bytes per sample;
//     IBitmap::Strides() lists them in the size's axis order, and Origin()
//     is the byte of location 0. BitmapView.h gives them typed.
//   - ntUInt1, ntUInt2 and ntUInt4 samples take one byte each, the value in
//     the low bits; there is no packing.
//   - Bitmap::New(size) makes ntUInt8 samples, cleared, in the order of the
//     size's own axes ("XY", "XYB", ...). Every New clears a block it
//     allocates. A bitmap keeps a clone of the format it is given, so the
//     caller may go on changing its own; Format() returns the bitmap's, which
//     is to be cloned before it is changed.
//   - Formats: UniformFormat::New and Color::UniformColorFormat::New make
//     ntUInt8 formats; a colour format has 3 bands unless SetBandCount says
//     otherwise, accepts only sizes with that many bands (a size without aB
//     has one), and no colour space until one is set. BinaryFormat::New
//     makes ntUInt1 formats whose set samples are written as 1
//     (SetForegroundValue changes it); their data type cannot change.
//
// Reshaping and padding
//   - Reshape to the same data type keeps the samples at the locations that
//     both sizes have, whatever the two orders, an axis that only the new
//     size has counting from 0; with another data type no sample is kept.
//     Reshaping to the same size and layout changes nothing and keeps the
//     block; any other reshaping moves to a new block, so bitmaps that
//     shared the old one keep it.
//   - Padding fills the samples outside a region: ptConstant with the value
//     (read as a number, rounded and saturated to the sample type, an empty
//     value being 0); ptReplicate with the nearest sample of the region;
//     ptMirror by reflecting at the region's border, the border sample not
//     repeated; ptNone leaves the samples as they are. ptReplicate and
//     ptMirror leave everything as it is when the region is empty.
//   - Bitmap::Pad(bitmap, padding): the region is what the last reshaping
//     kept (the whole bitmap for a new one), so a reshaping with ptNone and
//     a later Pad with ptReplicate extends the edges.
//   - Bitmap::Pad(bitmap, shape, padding): ptConstant fills every sample
//     outside the shape; ptReplicate and ptMirror take the shape's bounds as
//     the region, leaving samples inside the bounds untouched.
//   - Shapes are sampled at pixel centres, which lie on integer locations:
//     pixel (2, 3) belongs to a shape that contains the point (2.0, 3.0).
//
// Framing
//   - Bitmap::Frame(bitmap, value, volume) writes `value` on the samples at
//     the first and last location of X and Y, of every plane and band. The
//     bool `volume` says whether Z is framed too: false frames each XY plane
//     of a stack as a picture of its own, true frames the volume's surface.
//   - Bitmap::Frame(bitmap, shape, value, volume) writes `value` on the
//     samples inside the shape that have a neighbour along X or Y (and Z with
//     `volume`) outside the shape or outside the bitmap.
//
// Accesses
//   - Bitmaps are IBitmapAccessProviders. An access exposes the bitmap
//     itself, or with the last bool of BitmapAccess::New (the properties'
//     Copy()) a copy with a block of its own, written back on Close() (or
//     when the access goes away) if the options hold baoWrite; a mask limits
//     the writing back to the locations where the mask is not 0. An access
//     in another format than the bitmap's is refused.
#pragma once
