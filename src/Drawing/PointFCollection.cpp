#include "Quilon_/Drawing/PointFCollection.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueCollection<Drawing::Point<float>>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IValueCollection<Drawing::Point<float>>, Interface>(
            L"Quilon_::System::Collections::Template::IValueCollection<Quilon_::Drawing::Template::Point<"
            L"float,POINTF>>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IPointFCollection, L"Quilon_::Drawing::IPointFCollection",
                             System::Collections::Template::IValueCollection<Point<float>>)

PointFCollection::Factory PointFCollection::New;

} // namespace Quilon_::Drawing
