// A library that cannot start: of its three initialisers the one of rank 0.5
// raises, after the one of rank 0.1 has run and before the one of rank 0.9.
#include "Quilon_/System/Initializer.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/StartupPlugins.h"

namespace {

using Quilon_::Tests::StartupPlugins::Record;

void Initialize01()
{
    Record(L"Failing: initialize 0.1");
}

void Finalize01()
{
    Record(L"Failing: finalize 0.1");
}

void Fail()
{
    QUILON_RAISE(L"The failing plug-in cannot start");
}

void Initialize09()
{
    Record(L"Failing: initialize 0.9");
}

const Quilon_::System::Template::Initializer<Quilon_::Library> first(&Initialize01, &Finalize01, 0.1f);
const Quilon_::System::Template::Initializer<Quilon_::Library> failing(&Fail, nullptr, 0.5f);
const Quilon_::System::Template::Initializer<Quilon_::Library> last(&Initialize09, nullptr, 0.9f);

} // namespace
