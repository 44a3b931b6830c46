// A third-party library as the tests see it: built from the public headers
// only, with hidden visibility, and loaded with dlopen. It raises, and makes
// objects that the test program and the core cast.
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Type.h"

#include "../../Support/ThrowerPlugin.h"

#include <utility>
#include <vector>

namespace Quilon_::Tests {

using namespace Quilon_::System;

QUILON_DEFINE_INTERFACE_TYPE(IGreeter, L"Quilon_::Tests::IGreeter", Interface)

namespace {

class CGreeter : public Template::ObjectImpl<CGreeter, IGreeter, ICloneable> {
public:
    explicit CGreeter(std::wstring greeting) : m_greeting(std::move(greeting)) {}
    std::wstring Greet(const std::wstring& name) override { return m_greeting + L", " + name; }
    Pointer<ICloneable, 1> Clone() override { return Pointer<ICloneable, 1>(new CGreeter(m_greeting)); }

private:
    std::wstring m_greeting;
};

} // namespace

} // namespace Quilon_::Tests

extern "C" {

QUILON_API void QuilonTestThrower_Raise(const wchar_t* value)
{
    QUILON_RAISE(L"Plug-in failure: '%1%'", std::wstring(value));
}

QUILON_API Quilon_::System::Interface* QuilonTestThrower_MakeGreeter(const wchar_t* greeting)
{
    Quilon_::System::Interface* greeter = static_cast<Quilon_::Tests::IGreeter*>(new Quilon_::Tests::CGreeter(greeting));
    greeter->AddReference();
    return greeter;
}

QUILON_API std::vector<Quilon_::System::Any> QuilonTestThrower_BoxValues()
{
    using namespace Quilon_::System;
    return {ToAny(std::int64_t(7)), ToAny(ntInt16), ToAny(std::pair<int, std::wstring>(2, L"two"))};
}

QUILON_API int QuilonTestThrower_UnboxPair(const Quilon_::System::Any& value)
{
    return value.CastTo<std::pair<int, std::wstring>>().first;
}

QUILON_API const Quilon_::System::Type* QuilonTestThrower_GreeterType()
{
    return &Quilon_::Tests::IGreeter::GetType();
}

} // extern "C"
