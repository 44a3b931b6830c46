#include "Quilon_/Images/Bitmap.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IBitmap, L"Quilon_::Images::IBitmap", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBitmapInternal, L"Quilon_::Images::IBitmapInternal", System::Interface)

namespace Bitmap {

Factory New;

QUILON_DEFINE_FUNCTION_SLOT(Pad, 1, void (*)(Ref, const Padding&))
QUILON_DEFINE_FUNCTION_SLOT(Pad, 2, void (*)(Ref, Shape, const Padding&))
QUILON_DEFINE_FUNCTION_SLOT(Frame, 1, void (*)(Ref, const System::Any&, bool))
QUILON_DEFINE_FUNCTION_SLOT(Frame, 2, void (*)(Ref, Shape, const System::Any&, bool))

void Pad(Ref bitmap, const Padding& padding)
{
    QUILON_FUNCTION_SLOT(Pad, 1)(std::move(bitmap), padding);
}

void Pad(Ref bitmap, Shape shape, const Padding& padding)
{
    QUILON_FUNCTION_SLOT(Pad, 2)(std::move(bitmap), std::move(shape), padding);
}

void Frame(Ref bitmap, const System::Any& value, bool volume)
{
    QUILON_FUNCTION_SLOT(Frame, 1)(std::move(bitmap), value, volume);
}

void Frame(Ref bitmap, Shape shape, const System::Any& value, bool volume)
{
    QUILON_FUNCTION_SLOT(Frame, 2)(std::move(bitmap), std::move(shape), value, volume);
}

} // namespace Bitmap

} // namespace Quilon_::Images
