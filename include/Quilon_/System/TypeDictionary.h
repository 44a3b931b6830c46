// The process-wide dictionary of run-time types, by fully qualified name.
//
//   Type t = Type::Types()->Item(L"Quilon_::System::Interface");
#pragma once

#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/Type.h"

#include <string>
#include <unordered_map>

namespace Quilon_::System {

namespace Collections::Template {
template <>
QUILON_API const Type& IValueDictionary<std::wstring, Type>::GetType();
}

class QUILON_API ITypeDictionary : public Collections::Template::IValueDictionary<std::wstring, Type> {
    QUILON_INTERFACE(ITypeDictionary)
};

// The dictionary's inner store, which registration fills without going
// through the public operations.
class QUILON_API ITypeDictionaryInternal : public virtual Interface {
    QUILON_INTERFACE(ITypeDictionaryInternal)
public:
    virtual std::unordered_map<std::wstring, Type>& Store() = 0;
};

} // namespace Quilon_::System
