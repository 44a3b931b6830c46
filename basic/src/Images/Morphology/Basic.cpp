// Erosion, dilation, opening, closing and the top-hats of the reference
// library: a run of erosion and dilation passes per volume of the image,
// over a structuring element or a neighbourhood graph with its centre.
#include "Images/Morphology/MorphologySupport.h"
#include "Images/Morphology/RowErosion.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Morphology/Basic/Functions.h"
#include "Quilon_/Images/Morphology/OpeningClosing/Functions.h"
#include "Quilon_/Images/Morphology/Segmentation/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <initializer_list>
#include <span>

namespace Quilon_::Basic::Images::Morphology {

namespace {

namespace Catalogue = ::Quilon_::Images::Morphology;
using ElementRef = System::Ref<::Quilon_::Geometry::IStructuringElement>;
using GraphRef = System::Ref<::Quilon_::Geometry::INgbGraph>;

// Runs the passes from `source`, which stays as it is, through two scratch
// buffers, and writes the result or its residue into `target`: the
// general path, for images that the row path does not take.
template <class T>
void RunPlainPasses(const Grid& grid, const T* source, T* target, std::span<const MorphologyPass> passes,
                    Residue residue)
{
    const auto count = static_cast<std::size_t>(grid.Count());
    std::vector<T> first(count), second(count);
    const T* current = source;
    T* next = first.data();
    for (const MorphologyPass& pass : passes)
        for (std::int64_t i = 0; i < pass.times; ++i) {
            if (pass.dilate)
                Dilate(grid, current, next, std::span<const Shift>(pass.shifts));
            else
                Erode(grid, current, next, std::span<const Shift>(pass.shifts));
            current = next;
            next = next == first.data() ? second.data() : first.data();
        }
    for (std::size_t i = 0; i < count; ++i)
        target[i] = residue == Residue::white   ? SaturatedDifference(source[i], current[i])
                    : residue == Residue::black ? SaturatedDifference(current[i], source[i])
                                                : current[i];
}

void RunMorphology(const ImageRef& in, const ImageRef& out, std::initializer_list<MorphologyPass> passes,
                   Residue residue = Residue::none)
{
    const std::span<const MorphologyPass> list(passes.begin(), passes.size());
    if (RunRowPasses(in, out, list, residue))
        return;
    ForEachVolume(in, out, [&](const Grid& grid, auto* source, auto* target) {
        RunPlainPasses(grid, source, target, list, residue);
    });
}

// The element's offsets, in a buffer of the calling thread that the next
// call reuses: a call on a small image allocates nothing for them.
const std::vector<Shift>& ShiftsOfElement(const ElementRef& element)
{
    thread_local std::vector<Shift> shifts;
    ElementShiftsInto(*element, shifts);
    return shifts;
}

std::int64_t CheckedIterations(std::int64_t iterations)
{
    if (iterations < 0)
        QUILON_RAISE(L"The number of iterations must not be negative: %1%", iterations);
    return iterations;
}

void ErodeByElement(ImageRef in, ImageRef out, ElementRef element)
{
    const std::vector<Shift>& shifts = ShiftsOfElement(element);
    RunMorphology(in, out, {{false, shifts, 1}});
}
void ErodeByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t iterations)
{
    const std::vector<Shift> shifts = ShiftsOf(*graph, true);
    RunMorphology(in, out, {{false, shifts, CheckedIterations(iterations)}});
}
void DilateByElement(ImageRef in, ImageRef out, ElementRef element)
{
    const std::vector<Shift>& shifts = ShiftsOfElement(element);
    RunMorphology(in, out, {{true, shifts, 1}});
}
void DilateByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t iterations)
{
    const std::vector<Shift> shifts = ShiftsOf(*graph, true);
    RunMorphology(in, out, {{true, shifts, CheckedIterations(iterations)}});
}

// Opening (erosion first) or closing (dilation first), or their residue.
void OpenOrClose(const ImageRef& in, const ImageRef& out, const std::vector<Shift>& shifts, std::int64_t size,
                 bool open, Residue residue = Residue::none)
{
    RunMorphology(in, out, {{!open, shifts, size}, {open, shifts, size}}, residue);
}

void OpenByElement(ImageRef in, ImageRef out, ElementRef element)
{
    OpenOrClose(in, out, ShiftsOfElement(element), 1, true);
}
void OpenByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t size)
{
    OpenOrClose(in, out, ShiftsOf(*graph, true), CheckedIterations(size), true);
}
void CloseByElement(ImageRef in, ImageRef out, ElementRef element)
{
    OpenOrClose(in, out, ShiftsOfElement(element), 1, false);
}
void CloseByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t size)
{
    OpenOrClose(in, out, ShiftsOf(*graph, true), CheckedIterations(size), false);
}
void WhiteTophatByElement(ImageRef in, ImageRef out, ElementRef element)
{
    OpenOrClose(in, out, ShiftsOfElement(element), 1, true, Residue::white);
}
void WhiteTophatByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t size)
{
    OpenOrClose(in, out, ShiftsOf(*graph, true), CheckedIterations(size), true, Residue::white);
}
void BlackTophatByElement(ImageRef in, ImageRef out, ElementRef element)
{
    OpenOrClose(in, out, ShiftsOfElement(element), 1, false, Residue::black);
}
void BlackTophatByGraph(ImageRef in, ImageRef out, GraphRef graph, std::int64_t size)
{
    OpenOrClose(in, out, ShiftsOf(*graph, true), CheckedIterations(size), false, Residue::black);
}

void RegisterBasic()
{
    const wchar_t* name = L"Reference morphology";
    namespace B = Catalogue::Basic::Functions;
    namespace OC = Catalogue::OpeningClosing::Functions;
    namespace S = Catalogue::Segmentation::Functions;
    B::Erode.Overload<0>().Register(name, &ErodeByElement);
    B::Erode.Overload<1>().Register(name, &ErodeByGraph);
    B::Dilate.Overload<0>().Register(name, &DilateByElement);
    B::Dilate.Overload<1>().Register(name, &DilateByGraph);
    OC::Open.Overload<0>().Register(name, &OpenByElement);
    OC::Open.Overload<1>().Register(name, &OpenByGraph);
    OC::Close.Overload<0>().Register(name, &CloseByElement);
    OC::Close.Overload<1>().Register(name, &CloseByGraph);
    S::WhiteTophat.Overload<0>().Register(name, &WhiteTophatByElement);
    S::WhiteTophat.Overload<1>().Register(name, &WhiteTophatByGraph);
    S::BlackTophat.Overload<0>().Register(name, &BlackTophatByElement);
    S::BlackTophat.Overload<1>().Register(name, &BlackTophatByGraph);
}

const System::Template::Initializer<::Library> basicInitializer(&RegisterBasic, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Morphology
