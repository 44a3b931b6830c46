#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/String.h"

#include <cstdio>

namespace Quilon_::Tool {

bool ParseStartOptions(const Arguments& arguments, StartOptions& options)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] != "--init") {
            options.rest.push_back(arguments[i]);
            continue;
        }
        if (i + 1 == arguments.size()) {
            std::fputs("quilon: --init needs the name of an initialisation file\n", stderr);
            return false;
        }
        options.initializationFile = arguments[++i];
    }
    return true;
}

Failures StartLibrary(const StartOptions& options)
{
    if (!options.initializationFile.empty())
        Library::SetInitializationFileName(System::ToString(options.initializationFile));
    Failures failures;
    Library::Initialize(failures);
    return failures;
}

void StopLibrary(Failures& failures)
{
    failures.clear();
    Library::Finalize(nullptr);
}

void PrintMessage(std::FILE* out, const std::wstring& message)
{
    std::string text = System::ToAnsi(message);
    std::string::size_type start = 0;
    for (const char* indent = "  "; start <= text.size(); indent = "    ") {
        std::string::size_type end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        std::fprintf(out, "%s%s\n", indent, text.substr(start, end - start).c_str());
        start = end + 1;
    }
}

} // namespace Quilon_::Tool
