#include "Quilon_/System/Functions/FunctionRegistry.h"

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/String.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace Quilon_::System::Functions {

namespace {

struct Registry {
    std::mutex lock;
    // In the order of construction.
    std::vector<const Detail::Function*> functions;
    // Found on first listing; the address of an object never changes.
    std::unordered_map<const Detail::Function*, std::wstring> names;
};

// Made on first use, by the first operator constructed in any library, and
// never destroyed: operators of every library leave it during static
// destruction.
Registry& TheRegistry()
{
    static Registry* const registry = new Registry;
    return *registry;
}

// The name as code writes it: without the ABI tags that the compiler adds
// to objects whose type involves std::string ("Greet[abi:cxx11]").
std::string Demangled(const char* symbol)
{
    int status = 0;
    std::unique_ptr<char, decltype(&std::free)> text(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                     &std::free);
    std::string name = status == 0 && text ? std::string(text.get()) : std::string(symbol);
    for (auto tag = name.find("[abi:"); tag != std::string::npos; tag = name.find("[abi:", tag)) {
        const auto end = name.find(']', tag);
        if (end == std::string::npos)
            break;
        name.erase(tag, end - tag + 1);
    }
    return name;
}

// The exported symbol whose object contains `function`; the dynamic symbol
// tables know nothing of objects that are not exported, nor of the heap.
std::wstring NameOf(const Detail::Function& function)
{
    const void* address = &function;
    Dl_info info{};
    void* symbolEntry = nullptr;
    if (dladdr1(address, &info, &symbolEntry, RTLD_DL_SYMENT) != 0 && info.dli_sname && symbolEntry) {
        const auto* symbol = static_cast<const ElfW(Sym)*>(symbolEntry);
        const char* start = static_cast<const char*>(info.dli_saddr);
        const char* at = static_cast<const char*>(address);
        if (start <= at && at < start + symbol->st_size)
            return System::Detail::ToStringLenient(Demangled(info.dli_sname));
    }
    return function.Name();
}

} // namespace

std::vector<FunctionRegistry::Entry> FunctionRegistry::Entries()
{
    Registry& registry = TheRegistry();
    std::vector<Entry> entries;
    {
        std::lock_guard<std::mutex> lock(registry.lock);
        for (const Detail::Function* function : registry.functions) {
            auto known = registry.names.find(function);
            entries.push_back(
                Entry{known == registry.names.end() ? std::wstring() : known->second, function});
        }
    }
    // Names are looked up outside the registry's lock: the lookup takes the
    // loader's lock, which a library being loaded holds while its operators
    // arrive here.
    std::vector<Entry> found;
    for (Entry& entry : entries) {
        if (entry.name.empty()) {
            entry.name = NameOf(*entry.function);
            found.push_back(entry);
        }
    }
    {
        std::lock_guard<std::mutex> lock(registry.lock);
        for (const Entry& entry : found) {
            if (std::find(registry.functions.begin(), registry.functions.end(), entry.function) !=
                registry.functions.end())
                registry.names.emplace(entry.function, entry.name);
        }
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.name < b.name; });
    return entries;
}

std::vector<const Detail::Function*> FunctionRegistry::Alive()
{
    Registry& registry = TheRegistry();
    std::lock_guard<std::mutex> lock(registry.lock);
    return {registry.functions.begin(), registry.functions.end()};
}

void FunctionRegistry::Add(const Detail::Function& function)
{
    Registry& registry = TheRegistry();
    std::lock_guard<std::mutex> lock(registry.lock);
    registry.functions.push_back(&function);
}

void FunctionRegistry::Remove(const Detail::Function& function) noexcept
{
    Registry& registry = TheRegistry();
    std::lock_guard<std::mutex> lock(registry.lock);
    // Static objects leave in the reverse order of their arrival.
    auto found = std::find(registry.functions.rbegin(), registry.functions.rend(), &function);
    if (found != registry.functions.rend())
        registry.functions.erase(std::next(found).base());
    registry.names.erase(&function);
}

} // namespace Quilon_::System::Functions
