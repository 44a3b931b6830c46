#include "Commands.h"

#include "Quilon_/Images/IO/BitmapReader.h"
#include "Quilon_/Images/IO/BitmapWriter.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

#include <dlfcn.h>
#include <link.h>

#include <cstdio>
#include <filesystem>

namespace Quilon_::Tool {

namespace {

// The folder of the core library, where a bare library name is looked for
// first.
std::string CoreFolder()
{
    void* core = dlopen("libQuilon_.so", RTLD_LAZY | RTLD_NOLOAD);
    if (!core)
        return std::string();
    link_map* module = nullptr;
    std::string folder;
    if (dlinfo(core, RTLD_DI_LINKMAP, &module) == 0 && module && module->l_name)
        folder = std::filesystem::path(module->l_name).parent_path().string() + "/";
    dlclose(core);
    return folder;
}

// Whether the library is in the process, looked for as the library looks for
// it when loading.
bool IsLoaded(const std::string& name)
{
    Arguments candidates;
    if (name.find('/') == std::string::npos)
        candidates.push_back(CoreFolder() + name);
    candidates.push_back(name);
    for (const std::string& candidate : candidates) {
        if (void* handle = dlopen(candidate.c_str(), RTLD_LAZY | RTLD_NOLOAD)) {
            dlclose(handle);
            return true;
        }
    }
    return false;
}

// One line per reader or writer of image files: its name and extensions.
template <class Collection>
void PrintFormats(const char* title, const System::Pointer<Collection, 0>& formats)
{
    const std::int64_t count = formats ? formats->Count() : 0;
    std::printf("%s (%lld):\n", title, static_cast<long long>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        auto format = formats->Item(i);
        std::string extensions;
        for (const std::wstring& extension : format->Extensions())
            extensions += (extensions.empty() ? "." : " .") + System::ToAnsi(extension);
        std::printf("  %-40s %s\n", System::ToAnsi(format->Name()).c_str(), extensions.c_str());
    }
}

} // namespace

int Info(const Arguments& arguments)
{
    StartOptions options;
    if (!ParseStartOptions(arguments, options) || !options.rest.empty()) {
        std::fputs("usage: quilon info [--init FILE]\n", stderr);
        return 2;
    }
    Failures failures = StartLibrary(options);

    std::printf("Quilon_ library version %lld\n", static_cast<long long>(Library::Version()));
    const std::string file = System::ToAnsi(Library::InitializationFileName());
    std::printf("initialisation file: %s%s\n", file.c_str(),
                std::filesystem::exists(file) ? "" : " (not found)");
    const std::vector<std::wstring> libraries = Library::Libraries();
    std::printf("libraries (%zu):\n", libraries.size());
    for (const std::wstring& library : libraries) {
        const std::string name = System::ToAnsi(library);
        std::printf("  %-40s %s\n", name.c_str(), IsLoaded(name) ? "loaded" : "not loaded");
    }
    std::printf("start-up failures (%zu)%s\n", failures.size(), failures.empty() ? "" : ":");
    for (const auto& failure : failures)
        PrintMessage(stdout, failure->Message());
    PrintFormats("image readers", System::Pointer<Images::IO::IBitmapReaderCollection, 0>(
                                      Images::IO::Globals::BitmapReaders()));
    PrintFormats("image writers", System::Pointer<Images::IO::IBitmapWriterCollection, 0>(
                                      Images::IO::Globals::BitmapWriters()));

    const int status = failures.empty() ? 0 : 1;
    StopLibrary(failures);
    return status;
}

} // namespace Quilon_::Tool
