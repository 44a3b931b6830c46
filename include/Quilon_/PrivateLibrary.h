// The start-up queues of one shared library: every library built on the
// toolkit, the core included, includes this header.
//
// It declares, in the global namespace, a class `Library` that belongs to the
// including library alone, with its own two queues, and one entry in the
// queues of Quilon_::Library, at rank 0.7, that runs them. So the global
// queues order the libraries, and each library's own queues order its parts:
//
//   #include "Quilon_/PrivateLibrary.h"
//
//   namespace {
//   void RegisterShapes() { Shapes::New.Register(L"Shapes", &NewShapes); }
//   const Quilon_::System::Template::Initializer<::Library> shapes(&RegisterShapes, nullptr, 0.2f);
//   }
//
// Inside namespace Quilon_ the plain name `Library` means Quilon_::Library;
// write ::Library for the library's own queues.
#pragma once

#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Initializer.h"

// Hidden whatever the library's own build settings, so that the queues of
// two libraries loaded with RTLD_GLOBAL never stand in for each other.
class __attribute__((visibility("hidden"))) Library {
public:
    static Quilon_::System::Initializer::InitializerQueue& Initializers()
    {
        static Quilon_::System::Initializer::InitializerQueue queue;
        return queue;
    }
    static Quilon_::System::Initializer::FinalizerQueue& Finalizers()
    {
        static Quilon_::System::Initializer::FinalizerQueue queue;
        return queue;
    }

    static void Initialize() { Quilon_::System::Initializer::RunInitializers<Library>(); }
    // As Quilon_::Library::Finalize, without progress: once a library has
    // finalised its parts, the process counts as finalised, so finalisers
    // of lower rank no longer destroy objects that a last release frees.
    static void Finalize()
    {
        Quilon_::System::Initializer::RunFinalizers<Library>(nullptr);
        Quilon_::System::SetInitializationState(-1);
    }
};

namespace Quilon_::System::Initializer::Detail {

// One per library however many of its files include this header.
[[maybe_unused]] inline const Template::Initializer<Quilon_::Library> __attribute__((visibility("hidden")))
privateLibraryEntry(&::Library::Initialize, &::Library::Finalize, 0.7f);

} // namespace Quilon_::System::Initializer::Detail
