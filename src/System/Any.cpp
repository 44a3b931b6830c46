#include "Quilon_/System/Any.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"
#include "Quilon_/System/Type.h"

#include <cstring>

namespace Quilon_::System::Detail {

AnyHolderBase::~AnyHolderBase() = default;

void* AnyHolderBase::operator new(std::size_t size)
{
    if (void* block = Quilon_malloc(size))
        return block;
    Pointer<IException, 1> outOfMemory = Exception::OutOfMemory();
    Library::ErrorManager()->SetLastError(outOfMemory);
    throw outOfMemory;
}

void AnyHolderBase::operator delete(void* block) noexcept
{
    Quilon_free(block);
}

// Types are the same when their names are, so that values boxed in one
// library are read in another.
bool SameType(const std::type_info& a, const std::type_info& b) noexcept
{
    return a == b || std::strcmp(a.name(), b.name()) == 0;
}

void RaiseEmptyAnyCast(const std::type_info& target)
{
    QUILON_RAISE(L"Cannot cast from an empty Any to '%1%'", Helper::TypeName(target));
}

void RaiseAnyCast(const std::type_info& source, const std::type_info& target)
{
    QUILON_RAISE(L"Cannot cast from '%1%' to '%2%'", Helper::TypeName(source), Helper::TypeName(target));
}

} // namespace Quilon_::System::Detail

namespace Quilon_::System {

// clang-format off
Any ToAny(bool value) { return Detail::Box(value); }
Any ToAny(char value) { return Detail::Box(value); }
Any ToAny(unsigned char value) { return Detail::Box(value); }
Any ToAny(short value) { return Detail::Box(value); }
Any ToAny(unsigned short value) { return Detail::Box(value); }
Any ToAny(int value) { return Detail::Box(value); }
Any ToAny(unsigned int value) { return Detail::Box(value); }
Any ToAny(std::int64_t value) { return Detail::Box(value); }
Any ToAny(std::uint64_t value) { return Detail::Box(value); }
Any ToAny(float value) { return Detail::Box(value); }
Any ToAny(double value) { return Detail::Box(value); }
Any ToAny(void* value) { return Detail::Box(value); }
Any ToAny(const std::string& value) { return Detail::Box(value); }
Any ToAny(const std::wstring& value) { return Detail::Box(value); }
Any ToAny(const LIString& value) { return Detail::Box(value); }
Any ToAny(const Type& value) { return Detail::Box(value); }
Any ToAny(const Pointer<Interface, 0>& value) { return Detail::Box(value); }
Any ToAny(const Any& value) { return value; }

Any ToAny(const std::vector<bool>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<char>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<unsigned char>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<short>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<unsigned short>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<int>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<unsigned int>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<std::int64_t>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<std::uint64_t>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<float>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<double>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<void*>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<std::wstring>& value) { return Detail::Box(value); }
Any ToAny(const std::vector<Pointer<Interface, 0>>& value) { return Detail::Box(value); }
// clang-format on

} // namespace Quilon_::System
