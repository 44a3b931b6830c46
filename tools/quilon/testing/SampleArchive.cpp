// Writes the archives that the tool's tests dump: FOLDER/sample.qba with a
// few values of common types, and FOLDER/truncated.qba, the same cut short
// in its last value.
//
//   quilon_sample_archive build/tools/quilon
#include "Quilon_/Library.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/String.h"

#include <cstdio>
#include <string>

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

namespace {

void SaveBytes(const std::string& path, const void* data, std::size_t size)
{
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file || std::fwrite(data, 1, size, file) != size) {
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        std::exit(1);
    }
    std::fclose(file);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: quilon_sample_archive INIT_FILE FOLDER\n");
        return 2;
    }
    Quilon_::Library::SetInitializationFileName(ToString(argv[1]));
    Quilon_::Library::Initialize();
    const std::string folder = argv[2];
    {
        WriterRef writer = Writer::New(true, false);
        writer << ToAny(-7) << ToAny(std::wstring(L"hello")) << ToAny(std::vector<double>{1, 2.5, 3})
               << ToAny(DateTime(2020, 1, 2, 3, 4, 5, 6)) << Any() << ToAny(LIString(L"Area", true))
               << ToAny(std::complex<double>(1, -1));
        Pointer<IMemory, 1> bytes = writer->Contents();
        SaveBytes(folder + "/sample.qba", bytes->Data(), static_cast<std::size_t>(bytes->Size()));
        SaveBytes(folder + "/truncated.qba", bytes->Data(), static_cast<std::size_t>(bytes->Size() - 3));
    }
    Quilon_::Library::Finalize();
    return 0;
}
