#include "Quilon_/Measurements/MeasurementsDictionary.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IDictionary<Type, Measurements::IMeasurementCollection>::GetType()
{
    static const Type type = System::Detail::MakeInterfaceType<
        IDictionary<Type, Measurements::IMeasurementCollection>, Interface>(
        L"Quilon_::System::Collections::Template::IDictionary<Quilon_::System::Type,Quilon_::Measurements::"
        L"IMeasurementCollection>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IMeasurementsDictionary, L"Quilon_::Measurements::IMeasurementsDictionary",
                             System::Collections::Template::IDictionary<System::Type, IMeasurementCollection>)

MeasurementsDictionary::Factory MeasurementsDictionary::New;

} // namespace Quilon_::Measurements
