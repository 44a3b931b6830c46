// The operator objects alive in the process, for tools that list them.
//
// Every operator enters the registry when it is constructed and leaves it
// when it is destroyed, in whichever library it lives. An operator is known
// by the name of the exported object that holds it, as code writes it, for
// example "Quilon_::System::ErrorManager::New"; the operators of a factory
// with several overloads share the factory's name.
//
//   for (const FunctionRegistry::Entry& entry : FunctionRegistry::Entries())
//       std::wprintf(L"%ls: %zu\n", entry.name.c_str(), entry.function->ImplementationCount());
#pragma once

#include "Quilon_/Config.h"

#include <string>
#include <vector>

namespace Quilon_::System::Functions {

namespace Detail {
class Function;
}

class QUILON_API FunctionRegistry {
public:
    struct Entry {
        // The exported object's name; for an operator that is not exported,
        // its own Name(), which may be empty.
        std::wstring name;
        const Detail::Function* function;
    };

    // Every operator, ordered by name; those of one object in the order of
    // construction.
    static std::vector<Entry> Entries();
    // The operators alive now, unnamed and unordered: naming them looks up
    // every exported symbol, which is far too slow for a check at shut-down.
    static std::vector<const Detail::Function*> Alive();

    // For the constructors and the destructor of Detail::Function only. Safe
    // during static construction and destruction of any library.
    static void Add(const Detail::Function& function);
    static void Remove(const Detail::Function& function) noexcept;
};

} // namespace Quilon_::System::Functions
