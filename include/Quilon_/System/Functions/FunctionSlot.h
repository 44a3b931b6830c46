// Registered functions: free functions declared by the toolkit and
// implemented in another library through one function-pointer slot each.
// They have no rules, no list and no exception handling: the call forwards
// to the pointer, or raises "Function has no implementation".
//
//   // header: the function and its two further exports
//   QUILON_API double Area(double width, double height);
//   QUILON_DECLARE_FUNCTION_SLOT(Area, 1, double (*)(double, double));
//
//   // source
//   QUILON_DEFINE_FUNCTION_SLOT(Area, 1, double (*)(double, double))
//   double Area(double width, double height) { return QUILON_FUNCTION_SLOT(Area, 1)(width, height); }
//
//   // an implementing library
//   SetAreaFunction1(&MyArea);
//   AreaFunction1IsImplemented();   // true
#pragma once

#include "Quilon_/System/Raise.h"

#include <type_traits>

namespace Quilon_::System::Functions::Detail {

// One slot. Constant-initialised, so that it can be set from any static
// constructor.
template <class Pointer>
class FunctionSlot {
public:
    constexpr FunctionSlot() = default;
    void Set(Pointer function) { m_function = function; }
    bool IsImplemented() const { return m_function != nullptr; }
    // The pointer, or the failure raised in the name of the calling function.
    Pointer Checked(const char* function, const char* file, int line) const
    {
        if (!m_function) [[unlikely]]
            System::Detail::Raise(function, file, line, L"Function has no implementation");
        return m_function;
    }

private:
    Pointer m_function = nullptr;
};

} // namespace Quilon_::System::Functions::Detail

// The pointer type is spelled through type_identity_t, since a declarator
// cannot follow a function-pointer type written out as "R (*)(A...)".
#define QUILON_DECLARE_FUNCTION_SLOT(Name, Number, ...)                                                      \
    QUILON_API void Set##Name##Function##Number(::std::type_identity_t<__VA_ARGS__> function);               \
    QUILON_API bool Name##Function##Number##IsImplemented()

#define QUILON_DEFINE_FUNCTION_SLOT(Name, Number, ...)                                                       \
    constinit ::Quilon_::System::Functions::Detail::FunctionSlot<__VA_ARGS__> Name##Function##Number##Slot;  \
    void Set##Name##Function##Number(::std::type_identity_t<__VA_ARGS__> function)                           \
    {                                                                                                        \
        Name##Function##Number##Slot.Set(function);                                                          \
    }                                                                                                        \
    bool Name##Function##Number##IsImplemented()                                                             \
    {                                                                                                        \
        return Name##Function##Number##Slot.IsImplemented();                                                 \
    }

// The slot's pointer, checked, inside the body of the registered function.
#define QUILON_FUNCTION_SLOT(Name, Number)                                                                   \
    Name##Function##Number##Slot.Checked(QUILON_FUNCTION, __FILE__, __LINE__)
