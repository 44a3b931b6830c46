#include "Quilon_/Library.h"

namespace Quilon_ {

using namespace System;

namespace {
// Constant-initialised, so that they are null before any static constructor
// asks for a manager.
constinit Pointer<IErrorManager, 0> errorManager;
constinit Pointer<Diagnostic::ITraceManager, 0> traceManager;
constinit Pointer<Localization::ITranslator, 0> translator;
} // namespace

std::int64_t Library::Version()
{
    return 4401;
}

// With nothing set, each getter returns what the default New operator makes,
// without keeping it.
Pointer<IErrorManager, 1> Library::ErrorManager()
{
    if (errorManager)
        return Pointer<IErrorManager, 1>(errorManager);
    return System::ErrorManager::New();
}

void Library::SetErrorManager(Pointer<IErrorManager, 0> manager)
{
    errorManager = std::move(manager);
}

Pointer<Diagnostic::ITraceManager, 1> Library::TraceManager()
{
    if (traceManager)
        return Pointer<Diagnostic::ITraceManager, 1>(traceManager);
    return Diagnostic::TraceManager::New();
}

void Library::SetTraceManager(Pointer<Diagnostic::ITraceManager, 0> manager)
{
    traceManager = std::move(manager);
}

Pointer<Localization::ITranslator, 1> Library::Translator()
{
    if (translator)
        return Pointer<Localization::ITranslator, 1>(translator);
    return Localization::Translator::New();
}

void Library::SetTranslator(Pointer<Localization::ITranslator, 0> value)
{
    translator = std::move(value);
}

} // namespace Quilon_
