#include "Quilon_/Library.h"

#include "Interop/EntryPoint.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Raise.h"

#include <pugixml.hpp>

#include <dlfcn.h>

#include <algorithm>
#include <cwctype>
#include <exception>
#include <filesystem>
#include <mutex>

namespace Quilon_ {

using namespace System;

namespace {

// Constant-initialised, so that they are null before any static constructor
// asks for a manager.
constinit Pointer<IErrorManager, 0> errorManager;
constinit Pointer<Diagnostic::ITraceManager, 0> traceManager;
constinit Pointer<Localization::ITranslator, 0> translator;
// Read by every allocation once Initialize has run, on any thread, so the
// slot has a lock of its own.
constinit Pointer<IMemoryManager, 0> memoryManager;
constinit std::mutex memoryManagerLock;

// Start-up and shut-down are single-threaded by contract; nothing here is
// locked.
std::wstring initializationFileName;
std::vector<std::wstring> libraries;
bool initializationFileRead = false;

// Appends the names of "DefaultLibraries" of `fileName`. A file that cannot
// be named, read or parsed, or whose text is not UTF-8, gives none.
void AppendDefaultLibraries(const std::wstring& fileName)
{
    std::vector<std::wstring> names;
    try {
        pugi::xml_document document;
        if (!document.load_file(ToAnsi(fileName).c_str()))
            return;
        pugi::xml_node list = document.document_element().child("DefaultLibraries");
        for (pugi::xml_node library : list.children("Library")) {
            if (pugi::xml_node name = library.child("Name"))
                names.push_back(ToString(name.text().get()));
        }
    } catch (const Pointer<IException, 1>&) {
        return;
    }
    libraries.insert(libraries.end(), names.begin(), names.end());
}

// Once per process; a list the application has set takes the place of the
// file's.
void ReadInitializationFile()
{
    if (initializationFileRead)
        return;
    if (libraries.empty())
        AppendDefaultLibraries(Library::InitializationFileName());
    initializationFileRead = true;
}

// The C library here has no handler for invalid parameters that could turn
// them into exceptions: a bad argument shows in errno, or ends the process.
// The step keeps its place in the start-up, empty.
void InstallInvalidParameterHandler() {}

std::wstring Lowered(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) { return std::towlower(c); });
    return text;
}

// Whether `name`, in any case of letters, occurs in an entry of the list.
bool IsListed(const std::wstring& name)
{
    const std::wstring lowered = Lowered(name);
    return std::any_of(libraries.begin(), libraries.end(), [&](const std::wstring& entry) {
        return Lowered(entry).find(lowered) != std::wstring::npos;
    });
}

std::string FolderOf(const std::string& path)
{
    std::string::size_type slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

std::string SystemText()
{
    const char* text = dlerror();
    return text ? text : "";
}

// dlopen of `name`; a bare file name is first looked for beside the core.
// On failure, the system's text.
bool OpenLibrary(const std::wstring& name, std::string& systemText)
{
    std::string path;
    try {
        path = ToAnsi(name);
    } catch (const Pointer<IException, 1>& failure) {
        systemText = ToAnsi(failure->Message());
        return false;
    }
    const int mode = RTLD_NOW | RTLD_GLOBAL;
    if (path.find('/') == std::string::npos) {
        std::string besideCore = FolderOf(Interop::Detail::ModuleFileName()) + path;
        std::error_code ignored;
        if (!besideCore.empty() && std::filesystem::exists(besideCore, ignored)) {
            if (dlopen(besideCore.c_str(), mode))
                return true;
            systemText = SystemText();
            return false;
        }
    }
    if (dlopen(path.c_str(), mode))
        return true;
    systemText = SystemText();
    return false;
}

// After a failed initialiser nothing registered so far runs, neither the
// initialisers still pending nor the finalisers of what did run.
void DiscardQueues()
{
    Library::Initializers() = Initializer::InitializerQueue();
    Library::Finalizers() = Initializer::FinalizerQueue();
}

// The exception being handled, as the failure to initialise `name`.
Pointer<IException, 1> InitializationFailure(const std::wstring& name)
{
    const wchar_t* const message = L"Failed to initialize library '%1%'\n%2%";
    try {
        throw;
    } catch (const std::exception& failure) {
        return QUILON_MAKE_EXCEPTION(message, name, std::string(failure.what()));
    } catch (const Pointer<IException, 1>& failure) {
        return QUILON_MAKE_EXCEPTION(message, name, failure->Message());
    } catch (...) {
        return QUILON_MAKE_EXCEPTION(L"Failed to initialize library '%1%'\nUnknown exception", name);
    }
}

} // namespace

void Library::Initialize()
{
    std::vector<Pointer<IException, 1>> errors;
    Initialize(errors);
    if (!errors.empty())
        System::Detail::Throw(errors.front());
}

void Library::Initialize(std::vector<Pointer<IException, 1>>& errors)
{
    SetInitializationState(0);
    AddMemoryPressureFunction = &System::AddMemoryPressure;
    InstallInvalidParameterHandler();
    ReadInitializationFile();
    SetInitializationState(1);
    Initializer::RunInitializers<Library>();
    SetInitializationState(2);
    SetInitializationState(3);
    const std::vector<std::wstring> names = libraries;
    for (const std::wstring& name : names) {
        Pointer<IException, 0> error;
        LoadLibraryW(name, error);
        if (error)
            errors.emplace_back(error);
    }
    SetInitializationState(4);
}

void Library::Finalize(void (*progress)(float))
{
    Initializer::RunFinalizers<Library>(progress);
    SetInitializationState(-1);
}

std::int64_t Library::Version()
{
    return 4401;
}

std::wstring Library::InitializationFileName()
{
    if (initializationFileName.empty()) {
        std::string module = Interop::Detail::ModuleFileName();
        std::replace(module.begin(), module.end(), '\\', '/');
        initializationFileName = System::Detail::ToStringLenient(FolderOf(module)) + L"Quilon.xml";
    }
    return initializationFileName;
}

void Library::SetInitializationFileName(const std::wstring& fileName)
{
    initializationFileName = fileName;
}

std::vector<std::wstring> Library::Libraries()
{
    return libraries;
}

void Library::SetLibraries(const std::vector<std::wstring>& names)
{
    libraries = names;
}

void Library::LoadLibraryW(const std::wstring& name)
{
    Pointer<IException, 0> error;
    LoadLibraryW(name, error);
    if (error)
        System::Detail::Throw(Pointer<IException, 1>(error));
}

void Library::LoadLibraryW(const std::wstring& name, Pointer<IException, 0>& error)
{
    std::string systemText;
    if (!OpenLibrary(name, systemText)) {
        error = QUILON_MAKE_EXCEPTION(L"Failed to load library '%1%'\n%2%", name, systemText);
        return;
    }
    if (!IsListed(name))
        libraries.push_back(name);
    try {
        Initializer::RunInitializers<Library>();
    } catch (...) {
        DiscardQueues();
        error = InitializationFailure(name);
    }
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

Pointer<IMemoryManager, 0> Library::MemoryManager()
{
    std::lock_guard<std::mutex> lock(memoryManagerLock);
    return memoryManager;
}

void Library::SetMemoryManager(Pointer<IMemoryManager, 0> manager)
{
    {
        std::lock_guard<std::mutex> lock(memoryManagerLock);
        std::swap(memoryManager, manager);
    }
    // The old manager is released outside the lock: its destruction may
    // allocate, and allocation asks for the manager.
}

Initializer::InitializerQueue& Library::Initializers()
{
    static Initializer::InitializerQueue queue;
    return queue;
}

Initializer::FinalizerQueue& Library::Finalizers()
{
    static Initializer::FinalizerQueue queue;
    return queue;
}

} // namespace Quilon_
