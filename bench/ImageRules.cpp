// An image operator under the chain that erosion and dilation use (check
// the input is scalar, make the output after it, check the two agree),
// with an implementation that does nothing, on an 8 x 8 image whose output
// is ready: what the rules cost per call. The baseline is the same operator
// without rules, in the same run. A last case runs the real Erode of the
// catalogue on the same image, to put the rules beside the work they guard.

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/String.h"

#include <benchmark/benchmark.h>

namespace {

using namespace Quilon_;
using namespace Quilon_::Images::Functions::Rules;
using ImageRef = System::Ref<Images::IImage>;

[[gnu::noinline]] void DoNothing(ImageRef, ImageRef)
{
    benchmark::ClobberMemory();
}

System::Functions::Template::Function<void (*)(ImageRef, ImageRef)> Plain(&DoNothing);
System::Functions::Template::Function<void (*)(ImageRef, ImageRef)> Ruled(&DoNothing);

// Filled after start-up, as the catalogue's initialiser fills the operator.
void FillChain()
{
    System::Functions::RuleChain()
        .Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)})
        .AssignTo(Ruled);
}

ImageRef SquareImage(std::int64_t side)
{
    auto format = Images::UniformFormat::New(Images::StorageOrder::New(L"XY"));
    return Images::Image::New(Geometry::Coordinates::New(side, side, Geometry::Axes::aXY), format);
}

ImageRef SmallImage()
{
    return SquareImage(8);
}

template <class Operator>
void Run(benchmark::State& state, Operator& op)
{
    ImageRef input = SmallImage();
    ImageRef output = SmallImage();
    for (auto _ : state)
        op(input, output);
}

void BM_Baseline_OperatorWithoutRules(benchmark::State& state)
{
    Run(state, Plain);
}
BENCHMARK(BM_Baseline_OperatorWithoutRules);

// The output is ready: the make rule reshapes nothing and carries the
// properties over.
void BM_ErodeChain_ReadyOutput(benchmark::State& state)
{
    Run(state, Ruled);
}
BENCHMARK(BM_ErodeChain_ReadyOutput);

// The catalogue's own Erode, with its chain and the reference library's
// implementation, by the 3 x 3 square: the rules and the erosion together.
void BM_Erode_Real3x3Square(benchmark::State& state)
{
    ImageRef input = SmallImage();
    ImageRef output = SmallImage();
    System::Ref<Geometry::IStructuringElement> square =
        Geometry::StructuringElement::New(Geometry::pseSquare, 1.0);
    for (auto _ : state)
        Images::Morphology::Basic::Functions::Erode(input, output, square);
}
BENCHMARK(BM_Erode_Real3x3Square);

// The catalogue's Threshold, whose chain also makes a binary output: on
// 8 x 8 the call alone, on 256 x 256 the call beside a little work.
void BM_Threshold_Real(benchmark::State& state)
{
    ImageRef input = SquareImage(state.range(0));
    ImageRef output = SquareImage(state.range(0));
    for (auto _ : state)
        Images::Segmentation::Functions::Threshold(input, output, 128.0);
}
BENCHMARK(BM_Threshold_Real)->Arg(8)->Arg(256);

} // namespace

int main(int argc, char** argv)
{
    // The concrete images and formats come from the reference library.
    Library::SetInitializationFileName(System::ToString(QUILON_FIXTURES_DIR "/Basic.xml"));
    Library::Initialize();
    FillChain();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
