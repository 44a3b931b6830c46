// A third-party library as the tests see it: built from the public headers
// only, with hidden visibility, and loaded with dlopen. It raises, and makes
// objects that the test program and the core cast.
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include "../../Support/ThrowerPlugin.h"

namespace Quilon_::Tests {

using namespace Quilon_::System;

QUILON_DEFINE_INTERFACE_TYPE(IGreeter, L"Quilon_::Tests::IGreeter", Interface)

namespace {

class CGreeter : public Template::ObjectImpl<CGreeter, IGreeter, ICloneable, IEquatable> {
public:
    explicit CGreeter(std::wstring greeting) : m_greeting(std::move(greeting)) {}

    std::wstring Greet(const std::wstring& name) override { return m_greeting + L", " + name; }
    Pointer<ICloneable, 1> Clone() override { return Pointer<ICloneable, 1>(new CGreeter(m_greeting)); }
    bool Equals(Pointer<Interface, 1> other) override
    {
        Pointer<IGreeter, 0> greeter(other);
        return greeter && greeter->Greet(L"") == Greet(L"");
    }

private:
    std::wstring m_greeting;
};

} // namespace

} // namespace Quilon_::Tests

using namespace Quilon_::System;
using Quilon_::Tests::CGreeter;

extern "C" {

QUILON_API void QuilonTestThrower_Raise(const wchar_t* value)
{
    QUILON_RAISE(L"Plug-in failure: '%1%'", std::wstring(value));
}

QUILON_API void QuilonTestThrower_Cancel()
{
    throw Pointer<IException, 1>(CancelException::New(L"Cancelled in the plug-in", ToString(QUILON_FUNCTION),
                                                                ToString(__FILE__), __LINE__));
}

QUILON_API Interface* QuilonTestThrower_MakeGreeter(const wchar_t* greeting)
{
    Interface* greeter = static_cast<Quilon_::Tests::IGreeter*>(new CGreeter(greeting));
    greeter->AddReference();
    return greeter;
}

QUILON_API const Type* QuilonTestThrower_GreeterType()
{
    return &Quilon_::Tests::IGreeter::GetType();
}

QUILON_API bool QuilonTestThrower_IsCloneable(Interface* object)
{
    return static_cast<bool>(Pointer<ICloneable, 0>(Pointer<Interface, 0>(object)));
}

QUILON_API void QuilonTestThrower_Box(std::int64_t value, Any* number, Any* object)
{
    *number = ToAny(value);
    *object = ToAny(Pointer<Quilon_::Tests::IGreeter, 1>(new CGreeter(L"Boxed")));
}

QUILON_API void QuilonTestThrower_CatchFromCore(std::wstring* message)
{
    try {
        ToString("\xFF");
    } catch (const Pointer<IException, 1>& e) {
        *message = e->Message();
    }
}

} // extern "C"
