#include "Quilon_/ObjectSets/ImageAttribute.h"

#include "Quilon_/Images/Image.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IImageAttribute, L"Quilon_::ObjectSets::IImageAttribute", IAttribute)

} // namespace Quilon_::ObjectSets
