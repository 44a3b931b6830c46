#include "Quilon_/System/Any.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"

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
