#include "Quilon_/ObjectSets/IO/Functions.h"

#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"

namespace Quilon_::ObjectSets::IO::Functions {

System::Functions::Template::Function<void (*)(ObjectSet, const std::wstring&)> Read(L"Read");
System::Functions::Template::Function<void (*)(ObjectSet, const std::wstring&)> Write(L"Write");

namespace {

void FillObjectSetFileChains()
{
    System::Functions::RuleChain chain;
    chain.Check({System::Functions::Rules::CheckInterfaceSupported::New(0, IObjectSet::GetType())});
    chain.AssignTo(Read, Write);
}

const System::Functions::Template::ChainsInitializer<::Library> objectSetFileChains(&FillObjectSetFileChains);

} // namespace

} // namespace Quilon_::ObjectSets::IO::Functions
