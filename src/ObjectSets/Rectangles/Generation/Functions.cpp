#include "Quilon_/ObjectSets/Rectangles/Generation/Functions.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets::Rectangles::Generation::Functions {

Operator<void(Image, SelectiveSearchStrategyEnum, Set, double, double, double)>
    SelectiveSearch(L"SelectiveSearch");

} // namespace Quilon_::ObjectSets::Rectangles::Generation::Functions

namespace Quilon_::System {

Any ToAny(ObjectSets::Rectangles::Generation::SelectiveSearchStrategyEnum value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
