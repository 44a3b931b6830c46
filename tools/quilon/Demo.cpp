#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Memory.h"
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

// The plug-in's greeting operator, found by name: the tool does not link
// the plug-in, so the operator is reached through the registry and cast to
// its signature, across the library boundary.
using Greeting = Functions::Template::Function<std::wstring (*)(const std::wstring&)>;

const Greeting* FindGreeting()
{
    for (const auto& entry : Functions::FunctionRegistry::Entries())
        if (entry.name == L"Quilon_::Demo::Functions::Greet")
            return dynamic_cast<const Greeting*>(entry.function);
    return nullptr;
}

void Greet(const Greeting& greet, const std::wstring& name)
{
    try {
        std::printf("  Greet(\"%ls\") = \"%ls\"\n", name.c_str(), greet(name).c_str());
    } catch (const Pointer<IException, 1>& failure) {
        std::printf("  Greet(\"%ls\") failed: %ls\n", name.c_str(), failure->Message().c_str());
    }
}

// The work the plug-in was loaded for: its operator, with fall-back from the
// implementation registered last.
void RunPluginWork()
{
    const Greeting* greet = FindGreeting();
    if (!greet) {
        std::printf("\nthe demo plug-in is not loaded: no greeting operator\n");
        return;
    }
    std::printf("\noperator Quilon_::Demo::Functions::Greet, implementations in the order tried:\n");
    for (const auto& implementation : greet->Implementations())
        std::printf("  %ls\n", implementation.Name().Value().c_str());
    Greet(*greet, L"world");
    Greet(*greet, L"");
}

void PrintMatrix(const char* title, Math::IMatrixD& matrix)
{
    std::printf("  %s\n", title);
    for (std::int64_t row = 0; row < matrix.Rows(); ++row) {
        std::printf("   ");
        for (std::int64_t column = 0; column < matrix.Columns(); ++column)
            std::printf(" %8.4f", matrix.Value(row, column));
        std::printf("\n");
    }
}

// What the reference library fills in the core: the memory factory, and the
// matrix class with the functions that compute on it.
void RunReferenceLibraryWork()
{
    if (!Math::MatrixD::InverseFunction1IsImplemented()) {
        std::printf("\nthe reference library is not loaded: no matrix functions\n");
        return;
    }
    Pointer<IMemory, 1> block = Memory::New(1024, true);
    std::printf("\nMemory::New(1024, true): %lld bytes, first byte %d\n",
                static_cast<long long>(block->Size()), static_cast<const unsigned char*>(block->Data())[0]);

    std::printf("\nmatrices of the reference library:\n");
    Pointer<Math::IMatrixD, 1> matrix = Math::MatrixD::New(2, 2, {4.0, 7.0, 2.0, 6.0});
    PrintMatrix("m", *matrix);
    PrintMatrix("Inverse(m)", *Math::MatrixD::Inverse(matrix));
    Pointer<Math::IMatrixD, 1> symmetric = Math::MatrixD::New(2, 2, {2.0, 1.0, 1.0, 2.0});
    PrintMatrix("EigenVectors of (2 1; 1 2), one per column", *Math::MatrixD::EigenVectors(symmetric));
    try {
        Math::MatrixD::Inverse(Math::MatrixD::New(2, 2, {1.0, 2.0, 2.0, 4.0}));
    } catch (const Pointer<IException, 1>& failure) {
        std::printf("  Inverse of (1 2; 2 4) failed: %ls\n", failure->Message().c_str());
    }
}

void RunRootDemo()
{
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
}

} // namespace

int Demo(const Arguments& arguments)
{
    StartOptions options;
    if (!ParseStartOptions(arguments, options) || !options.rest.empty()) {
        std::fputs("usage: quilon demo [--init FILE]\n", stderr);
        return 2;
    }
    Failures failures = StartLibrary(options);
    Version(Arguments());
    std::printf("initialisation file: %ls\n", Library::InitializationFileName().c_str());
    for (const std::wstring& library : Library::Libraries())
        std::printf("  library %ls\n", library.c_str());
    for (const auto& failure : failures)
        PrintMessage(stdout, failure->Message());

    RunPluginWork();
    RunReferenceLibraryWork();
    RunGeometryWork();
    RunImageWork();
    RunPipeline();
    RunRootDemo();

    const int status = failures.empty() ? 0 : 1;
    StopLibrary(failures);
    return status;
}

} // namespace Quilon_::Tool
