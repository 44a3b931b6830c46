#include "Quilon_/ObjectSets/DataType.h"

#include "Quilon_/System/Helper.h"

#include <typeinfo>

namespace Quilon_::ObjectSets::Detail {

namespace {
// Named as the presentable type names name it, so that a data type written
// to a stream or compared with a name is the same on every platform.
template <class T>
System::Type MakeDataTypeOfValues()
{
    return System::Type(System::Type::ValueType(System::Helper::TypeName(typeid(T))));
}
} // namespace

#define QUILON_OBJECTSETS_VALUE_DATA_TYPE(T)                                                                 \
    template <>                                                                                              \
    const System::Type& ValueDataType<T>()                                                                   \
    {                                                                                                        \
        static const System::Type type = MakeDataTypeOfValues<T>();                                          \
        return type;                                                                                         \
    }

QUILON_OBJECTSETS_VALUE_DATA_TYPE(double)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::int32_t)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(float)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::wstring)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::vector<double>)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::vector<std::int32_t>)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::vector<float>)
QUILON_OBJECTSETS_VALUE_DATA_TYPE(std::vector<Key>)

#undef QUILON_OBJECTSETS_VALUE_DATA_TYPE

} // namespace Quilon_::ObjectSets::Detail
