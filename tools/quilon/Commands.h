// The commands of the quilon tool, one function each, and what they share.
#pragma once

#include "Quilon_/System/Exception.h"

#include <cstddef>

#include <cstdio>
#include <string>
#include <vector>

namespace Quilon_::System::Functions::Detail {
class Function;
}

namespace Quilon_::Tool {

using Arguments = std::vector<std::string>;
using Failures = std::vector<System::Pointer<System::IException, 1>>;

// Prints the library version and the initialisation state.
int Version(const Arguments& arguments);
// quilon demo [--init FILE]: starts the library, calls the operator and the
// factory that the demo plug-in filled, then registers implementations on an
// operator of its own to show the fall-back from one to the next.
int Demo(const Arguments& arguments);
// The demo's geometry and bitmap work, through the reference library.
void RunGeometryWork();
// Images, their categories and the make rules, units and gestures.
void RunImageWork();
// The pipeline on a generated sample image: read, smooth, threshold, open,
// fill holes, write; each step with its time, skipped when its operator is
// not implemented.
void RunPipeline();
// quilon info [--init FILE]: starts the library and prints what it loaded
// and each failure; fails when a library did.
int Info(const Arguments& arguments);
// quilon operators [--init FILE] [PATTERN]: starts the library and lists the
// operators whose name contains PATTERN, in any case of letters, one row per
// overload: its number of implementations, its signature and its chain.
int Operators(const Arguments& arguments);
// quilon run [--init FILE] OPERATOR ARGS...: calls an operator from text;
// image arguments are files, read or written by their direction.
int Run(const Arguments& arguments);

// One overload of a named operator, as the registry lists them.
struct Overload {
    std::wstring name;
    std::size_t index;
    // How many overloads the object holds.
    std::size_t count;
    const System::Functions::Detail::Function* function;
};
// Every overload of every named operator, by name.
std::vector<Overload> Overloads();
// "Name[1](Ref<IImage>, double&) -> void"; the index only with several.
std::wstring SignatureText(const Overload& overload);
// quilon dump [--init FILE] ARCHIVE: starts the library and prints the
// archive's header, then each value or object in it; fails on the first
// value that cannot be read.
int Dump(const Arguments& arguments);

// What the commands that start the library take.
struct StartOptions {
    // Empty for the default file beside the core library.
    std::string initializationFile;
    // The arguments other than --init and its file.
    Arguments rest;
};

// Takes "--init FILE" out of `arguments`; false, with a message on the
// error output, when FILE is missing.
bool ParseStartOptions(const Arguments& arguments, StartOptions& options);
// Library::Initialize from the chosen file; the failures of single
// libraries.
Failures StartLibrary(const StartOptions& options);
// Library::Finalize, after the failures are let go: once finalised, the
// library destroys no object any more.
void StopLibrary(Failures& failures);
// Prints a message of the library, its later lines indented below the first.
void PrintMessage(std::FILE* out, const std::wstring& message);

} // namespace Quilon_::Tool
