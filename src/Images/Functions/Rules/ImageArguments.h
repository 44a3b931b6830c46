// How the image rules read their arguments: images by index, with the
// checking policy of Ref, and the tests on sizes that several rules share.
//
//   System::Ref<IImage> image = ImageAt(arguments, index);
//   if (SpatialDimension(image->Size()) != 2) ...
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Cloneable.h"

#include <cstdint>
#include <string>
#include <typeinfo>
#include <vector>

namespace Quilon_::Images::Functions::Rules::Detail {

// The image at `index`; an argument of another kind, or a null image, raises
// through the cast, which the operator takes as a failed implementation.
inline System::Ref<IImage> ImageAt(const std::vector<System::Any>& arguments, std::int64_t index)
{
    return arguments.at(static_cast<std::size_t>(index)).CastTo<System::Ref<IImage>>();
}

// ImageAt for a rule that only reads the image while it runs: the image
// boxed at `index`, without a reference of its own (the box keeps it
// alive). Anything ImageAt refuses goes through ImageAt, and raises alike.
inline IImage& BorrowedImageAt(const std::vector<System::Any>& arguments, std::int64_t index)
{
    using Object = System::Pointer<System::Interface, 0>;
    const System::Any& argument = arguments.at(static_cast<std::size_t>(index));
    if (const System::Detail::AnyHolderBase* holder = argument.Holder())
        if (const void* value = holder->ValuePointer(typeid(Object)))
            if (IImage* image =
                    System::Detail::InterfaceCast<IImage>(static_cast<const Object*>(value)->Get()))
                return *image;
    // The box keeps the object alive after the reference that ImageAt
    // returns is gone.
    return *ImageAt(arguments, index);
}

// The image that `argument` holds, through any wrapper; null when it holds
// no object or an object that is no image. Never raises.
IImage* HeldImage(const System::Any& argument);

inline bool HasBand(Quilon_::Geometry::Axes axes)
{
    return (axes & Quilon_::Geometry::aB) != 0;
}

// The number of axes of `size` without the time and band axes.
std::int64_t SpatialDimension(const System::Ref<Quilon_::Geometry::ICoordinates>& size);

// A copy of `size` without the band axis; `size` itself when it has none.
System::Ref<Quilon_::Geometry::ICoordinates>
WithoutBand(const System::Ref<Quilon_::Geometry::ICoordinates>& size);

// A copy of an object that can be cloned; raises for one that cannot.
template <class T>
System::Ref<T> Cloned(const System::Pointer<T, 0>& source)
{
    System::Pointer<T, 0> copy;
    System::Template::CloneVariable<T>(source, copy);
    return System::Ref<T>(copy);
}

} // namespace Quilon_::Images::Functions::Rules::Detail

namespace Quilon_::Images::Functions::Rules::Detail {

// A word of bit flags as the catalogues write it: "0x2F".
std::wstring WordText(unsigned short word);

} // namespace Quilon_::Images::Functions::Rules::Detail
