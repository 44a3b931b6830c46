// quilon: the command-line tool of the toolkit, an application of the core
// library linked like any other.
//
//   quilon info [--init FILE]                 start the library; what it loaded and what failed
//   quilon operators [--init FILE] [PATTERN]  the operators known, with their implementations and rules
//   quilon version                            the library version and its initialisation state
//   quilon demo [--init FILE]                 work through the demo plug-in and the operator frame
//   quilon dump [--init FILE] ARCHIVE         the header and the values of an archive
//   quilon run [--init FILE] OPERATOR ARGS... an operator on image files, numbers and enumerators

#include "Commands.h"

#include "Quilon_/System/Exception.h"

#include <cstdio>
#include <cstring>
#include <exception>

namespace {

struct Command {
    const char* name;
    int (*run)(const Quilon_::Tool::Arguments&);
    const char* summary;
};

const Command commands[] = {
    {"info", &Quilon_::Tool::Info, "[--init FILE]: start the library; print what it loaded and each failure"},
    {"operators", &Quilon_::Tool::Operators,
     "[--init FILE] [PATTERN]: list operators, their implementations and rule chains"},
    {"version", &Quilon_::Tool::Version, "print the library version and the initialisation state"},
    {"demo", &Quilon_::Tool::Demo, "[--init FILE]: run the demo plug-in's operators and show a fall-back"},
    {"dump", &Quilon_::Tool::Dump, "[--init FILE] ARCHIVE: print an archive's header and each value in it"},
    {"run", &Quilon_::Tool::Run, "[--init FILE] OPERATOR ARGS...: call an operator; images are files"},
};

void PrintUsage(std::FILE* out)
{
    std::fputs("usage: quilon <command> [arguments]\n\ncommands:\n", out);
    for (const Command& command : commands)
        std::fprintf(out, "  %-10s %s\n", command.name, command.summary);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0) {
        PrintUsage(argc < 2 ? stderr : stdout);
        return argc < 2 ? 2 : 0;
    }
    for (const Command& command : commands) {
        if (std::strcmp(argv[1], command.name) != 0)
            continue;
        try {
            return command.run(Quilon_::Tool::Arguments(argv + 2, argv + argc));
        } catch (const Quilon_::System::Pointer<Quilon_::System::IException, 1>& failure) {
            std::fprintf(stderr, "quilon: %ls\n  at %ls:%lld\n", failure->Message().c_str(),
                         failure->File().c_str(), static_cast<long long>(failure->Line()));
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "quilon: %s\n", failure.what());
        }
        return 1;
    }
    std::fprintf(stderr, "quilon: unknown command '%s'\n", argv[1]);
    PrintUsage(stderr);
    return 2;
}
