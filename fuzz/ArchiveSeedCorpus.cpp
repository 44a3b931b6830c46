// Writes the seed corpus of the archive reader fuzzer into FOLDER: small
// archives of each kind of value, in each of the four stream modes.
//
//   ArchiveSeedCorpus build-fuzz/corpus

#include "Quilon_/Library.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/String.h"

#include <sys/stat.h>

#include <cstdio>
#include <string>
#include <vector>

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization::Binary;

namespace {

std::vector<Any> Samples()
{
    Quilon_::Math::Moments moments;
    moments.Mean() = 1.5;
    return {
        Any(),
        ToAny(true),
        ToAny(-7),
        ToAny(std::int64_t(-123456)),
        ToAny(2.5),
        ToAny(std::complex<double>(1, -1)),
        ToAny(boost::rational<int>(3, 4)),
        ToAny(std::string("narrow")),
        ToAny(std::wstring(L"wide \u00e9")),
        ToAny(LIString(L"Area", true)),
        ToAny(std::vector<double>{1, 2, 3}),
        ToAny(std::vector<std::vector<std::int64_t>>{{1}, {2, 3}}),
        ToAny(std::vector<Any>{ToAny(1), ToAny(std::wstring(L"x"))}),
        ToAny(std::vector<std::pair<Any, LIString>>{{ToAny(2), LIString(L"two", false)}}),
        ToAny(DateTime(2020, 1, 2, 3, 4, 5, 6)),
        ToAny(moments),
        ToAny(Type(Type::ValueType(L"Sample::Value"))),
    };
}

} // namespace

int WriteCorpus(const std::string& folder);

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: ArchiveSeedCorpus FOLDER\n");
        return 2;
    }
    Quilon_::Library::SetInitializationFileName(ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Quilon_::Library::Initialize();
    try {
        return WriteCorpus(argv[1]);
    } catch (const Pointer<IException, 1>& failure) {
        std::fprintf(stderr, "ArchiveSeedCorpus: %s\n", ToAnsi(failure->Message()).c_str());
        return 1;
    }
}

int WriteCorpus(const std::string& folder)
{
    ::mkdir(folder.c_str(), 0755);
    const std::vector<Any> samples = Samples();
    int written = 0;
    for (int mode = 0; mode < 4; ++mode) {
        WriterRef all = Writer::New((mode & 1) != 0, (mode & 2) != 0);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            WriterRef one = Writer::New((mode & 1) != 0, (mode & 2) != 0);
            one << samples[i];
            all << samples[i];
            one->Save(ToString(folder + "/seed-" + std::to_string(mode) + "-" + std::to_string(i)));
            ++written;
        }
        all->Save(ToString(folder + "/seed-" + std::to_string(mode) + "-all"));
        ++written;
    }
    std::printf("%d archives in %s\n", written, folder.c_str());
    return 0;
}
