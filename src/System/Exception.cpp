#include "Quilon_/System/Exception.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"
#include "Quilon_/System/Type.h"
#include "System/ExceptionImpl.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IException, L"Quilon_::System::IException", Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICancelException, L"Quilon_::System::ICancelException", IException)

Pointer<IException, 1> Exception::New(const std::wstring& message, const std::wstring& function,
                                      const std::wstring& file, std::int64_t line)
{
    return Pointer<IException, 1>(new CException(message, function, file, line));
}

Pointer<IException, 1> Exception::RawNew(const std::wstring& message, const std::wstring& function,
                                         const std::wstring& file, std::int64_t line)
{
    return New(message, function, file, line);
}

// Made once and kept for the life of the process: reporting exhausted memory
// must not need memory.
Pointer<IException, 1> Exception::OutOfMemory()
{
    static IException* const instance = [] {
        IException* made =
            new CException(Detail::TranslateMessage(L"Not enough memory to complete the operation"),
                           ToString(QUILON_FUNCTION), ToString(__FILE__), __LINE__);
        made->AddReference();
        return made;
    }();
    return Pointer<IException, 1>(instance);
}

namespace {
// Made during start-up, before memory can run out.
[[maybe_unused]] const bool outOfMemoryReady = static_cast<bool>(Exception::OutOfMemory());
} // namespace

Pointer<ICancelException, 1> CancelException::New(const std::wstring& message, const std::wstring& function,
                                                  const std::wstring& file, std::int64_t line)
{
    return Pointer<ICancelException, 1>(new CCancelException(message, function, file, line));
}

Pointer<ICancelException, 1> CancelException::RawNew(const std::wstring& message,
                                                     const std::wstring& function, const std::wstring& file,
                                                     std::int64_t line)
{
    return New(message, function, file, line);
}

namespace {

template <class C>
Pointer<Interface, 1> NewEmpty()
{
    return Pointer<Interface, 1>(static_cast<IException*>(new C));
}

// Exceptions are read back from archives by their class names.
void RegisterExceptionFactories()
{
    Serialization::RegisterClass<CException>(&NewEmpty<CException>);
    Serialization::RegisterClass<CCancelException>(&NewEmpty<CCancelException>);
}

const Template::Initializer<::Library> exceptionFactories(&RegisterExceptionFactories, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::System
