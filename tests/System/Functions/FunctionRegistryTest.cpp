// The registry of operator objects: exported ones by the name of the object
// that holds them, others by their own name, for as long as they live.
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Quilon_::Tests::FunctionRegistryTests {

using namespace Quilon_::System;
using Functions::FunctionRegistry;

std::vector<const Functions::Detail::Function*> Named(const std::wstring& name)
{
    std::vector<const Functions::Detail::Function*> found;
    for (const FunctionRegistry::Entry& entry : FunctionRegistry::Entries()) {
        if (entry.name == name)
            found.push_back(entry.function);
    }
    return found;
}

int Increment(int value)
{
    return value + 1;
}

TEST(FunctionRegistry, NamesOperatorsByTheirObjectAndForgetsThemWhenDestroyed)
{
    EXPECT_EQ(Named(L"Quilon_::System::ErrorManager::New"),
              std::vector<const Functions::Detail::Function*>{&ErrorManager::New});
    EXPECT_EQ(Named(L"Quilon_::System::Memory::New"),
              (std::vector<const Functions::Detail::Function*>{&Memory::New.Allocating, &Memory::New.Wrapping}))
        << "the operators of a factory share its name, in their order";

    {
        Functions::Template::Function<int (*)(int)> local(L"Local operator");
        std::vector<const Functions::Detail::Function*> found = Named(L"Local operator");
        ASSERT_EQ(found.size(), 1u);
        EXPECT_EQ(found.front(), &local);
        local.Register(&Increment);
        EXPECT_EQ(found.front()->ImplementationCount(), 1u);
    }
    EXPECT_TRUE(Named(L"Local operator").empty());

    std::vector<FunctionRegistry::Entry> entries = FunctionRegistry::Entries();
    EXPECT_TRUE(std::is_sorted(entries.begin(), entries.end(),
                               [](const auto& a, const auto& b) { return a.name < b.name; }));
}

} // namespace Quilon_::Tests::FunctionRegistryTests
