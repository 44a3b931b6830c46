#include "Quilon_/ObjectSets/Points/Generation/Functions.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets::Points::Generation::Functions {

Operator<void(Image, KeyPointDetectorEnum, Set)> DetectKeyPoints(L"DetectKeyPoints");

} // namespace Quilon_::ObjectSets::Points::Generation::Functions

namespace Quilon_::System {

Any ToAny(ObjectSets::Points::Generation::KeyPointDetectorEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
