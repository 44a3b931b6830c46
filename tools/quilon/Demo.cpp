#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Raise.h"

#include <cmath>
#include <cstdio>

namespace Quilon_::Tool {

namespace {

using namespace Quilon_::System;

// Two implementations of one operator: the general one, registered first,
// and a faster one registered later, which refuses negative input. The later
// registration is tried first; when it fails, the call falls back.
double GeneralRoot(double value)
{
    if (value < 0)
        QUILON_RAISE(L"Cannot take the root of %1%", value);
    return std::sqrt(value);
}

double FastRoot(double value)
{
    if (value < 0)
        QUILON_RAISE(L"Fast root needs a value of at least 0, got %1%", value);
    return std::sqrt(value);
}

// Made when the demo runs, so that it is listed by no other command.
Functions::Template::Function<double (*)(double)>& Root()
{
    static Functions::Template::Function<double (*)(double)> root(L"Root");
    return root;
}

void Show(double value)
{
    try {
        std::printf("  Root(%g) = %g\n", value, Root()(value));
    } catch (const Pointer<IException, 1>& failure) {
        std::printf("  Root(%g) failed: %ls\n    raised in %ls:%lld\n", value, failure->Message().c_str(),
                    failure->File().c_str(), static_cast<long long>(failure->Line()));
    }
}

} // namespace

int Demo(const Arguments& arguments)
{
    Version(arguments);

    std::printf("\noperator '%ls' without implementation:\n", Root().Name().c_str());
    Show(2.0);

    Root().Register(L"General root", &GeneralRoot);
    Root().Register(L"Fast root", &FastRoot);
    std::printf("\nimplementations, in the order they are tried:\n");
    for (const auto& implementation : Root().Implementations())
        std::printf("  %ls\n", implementation.Name().Value().c_str());

    std::printf("\ncalls:\n");
    Show(16.0);
    Show(-4.0);

    Pointer<IException, 0> last = Library::ErrorManager()->TakeLastError();
    std::printf("\nlast error of this thread: %ls\n", last ? last->Message().c_str() : L"(none)");
    return 0;
}

} // namespace Quilon_::Tool
