// Kernels, separable kernels and the predefined kernels, for the core's New
// objects. The weights are kept dense over the kernel's extent, which is
// what a convolution loop reads.
#include "Geometry/NgbGraphOffsets.h"
#include "Geometry/WeightedCoordinatesImpl.h"

#include "Quilon_/Basic/Geometry/Kernels.h"
#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <numeric>

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;

namespace {

struct KernelData {
    QG::Axes axes;
    Extent extent;
    std::vector<double> weights;
    double divisor = 1;

    KernelData Transposed() const
    {
        return {axes, Reflected(extent), {weights.rbegin(), weights.rend()}, divisor};
    }
};

// What both kinds of kernel answer from their data.
template <class Derived, class... Capabilities>
class CKernelBase : public System::Template::ObjectImpl<Derived, IKernel, ITransposable, Capabilities...>,
                    public KernelView {
public:
    explicit CKernelBase(KernelData data) : m_data(std::move(data)) {}

    QG::Axes Axes() override { return m_data.axes; }
    Ref<IWeightedCoordinatesCollection> Points() override
    {
        Ref<IWeightedCoordinatesCollection> points = WeightedCoordinatesCollection::New();
        std::vector<AxisEnum> axes = SpatialAxes(m_data.axes);
        for (std::int64_t i = 0; i < m_data.extent.Count(); ++i) {
            const Offset offset = m_data.extent.At(i);
            const std::int64_t values[] = {offset.x, offset.y, offset.z};
            Ref<IWeightedCoordinates> point(new CWeightedCoordinates(m_data.axes, m_data.weights[i]));
            for (std::size_t a = 0; a < axes.size(); ++a)
                point->SetValue(axes[a], values[a]);
            points->Add(point);
        }
        return points;
    }
    Ref<IBox> Bounds() override { return ToBox(m_data.extent, m_data.axes); }
    std::vector<double> Weights() override { return m_data.weights; }
    double Divisor() override { return m_data.divisor; }
    double WeightSum() override { return std::accumulate(m_data.weights.begin(), m_data.weights.end(), 0.0); }

    Offset Lower() const override { return m_data.extent.lower; }
    Offset Upper() const override { return m_data.extent.upper; }
    std::span<const double> Weights() const override { return m_data.weights; }
    double Divisor() const override { return m_data.divisor; }

protected:
    KernelData m_data;
};

class CKernel : public CKernelBase<CKernel> {
public:
    using CKernelBase::CKernelBase;
    Ref<IKernel> Transposed() override { return Ref<IKernel>(new CKernel(m_data.Transposed())); }
};

KernelData DataOf(IKernel& kernel)
{
    if (auto* view = dynamic_cast<KernelView*>(&kernel))
        return {kernel.Axes(),
                {view->Lower(), view->Upper()},
                {view->Weights().begin(), view->Weights().end()},
                view->Divisor()};
    Ref<IBox> bounds = kernel.Bounds();
    return {kernel.Axes(), ToExtent(*bounds), kernel.Weights(), kernel.Divisor()};
}

// The full convolution of two kernels: applying it is applying both.
KernelData Convolved(const KernelData& a, const KernelData& b)
{
    KernelData result{a.axes,
                      {{a.extent.lower.x + b.extent.lower.x, a.extent.lower.y + b.extent.lower.y,
                        a.extent.lower.z + b.extent.lower.z},
                       {a.extent.upper.x + b.extent.upper.x - 1, a.extent.upper.y + b.extent.upper.y - 1,
                        a.extent.upper.z + b.extent.upper.z - 1}},
                      {},
                      a.divisor * b.divisor};
    result.weights.assign(static_cast<std::size_t>(result.extent.Count()), 0.0);
    for (std::int64_t i = 0; i < a.extent.Count(); ++i) {
        const Offset p = a.extent.At(i);
        for (std::int64_t j = 0; j < b.extent.Count(); ++j) {
            const Offset q = b.extent.At(j);
            result.weights[result.extent.Index({p.x + q.x, p.y + q.y, p.z + q.z})] +=
                a.weights[i] * b.weights[j];
        }
    }
    return result;
}

class CSeparableKernel : public CKernelBase<CSeparableKernel, ISeparable> {
public:
    CSeparableKernel(KernelData data, std::vector<Ref<IKernel>> factors)
        : CKernelBase(std::move(data)), m_factors(std::move(factors))
    {
    }
    std::vector<Ref<IKernel>> Factors() override { return m_factors; }
    Ref<IKernel> Transposed() override
    {
        std::vector<Ref<IKernel>> transposed;
        for (const auto& factor : m_factors)
            transposed.push_back(Ref<IKernel>(new CKernel(DataOf(*factor).Transposed())));
        return Ref<IKernel>(new CSeparableKernel(m_data.Transposed(), std::move(transposed)));
    }

private:
    std::vector<Ref<IKernel>> m_factors;
};

Extent CheckedExtent(IBox& box)
{
    Extent extent = ToExtent(box);
    if (extent.Width() <= 0 || extent.Height() <= 0 || extent.Depth() <= 0)
        QUILON_RAISE(L"A kernel needs at least one point");
    return extent;
}

void CheckWeightCount(const Extent& extent, std::size_t count)
{
    if (static_cast<std::int64_t>(count) != extent.Count())
        QUILON_RAISE(L"A kernel over %1% points needs %1% weights, not %2%", extent.Count(),
                     static_cast<std::int64_t>(count));
}

Ref<IKernel> NewUniform(Ref<IBox> box)
{
    Extent extent = CheckedExtent(*box);
    const auto count = static_cast<std::size_t>(extent.Count());
    return Ref<IKernel>(
        new CKernel({box->Axes(), extent, std::vector<double>(count, 1.0), static_cast<double>(count)}));
}

Ref<IKernel> NewWeighted(Ref<IBox> box, const std::vector<double>& weights)
{
    Extent extent = CheckedExtent(*box);
    CheckWeightCount(extent, weights.size());
    return Ref<IKernel>(new CKernel({box->Axes(), extent, weights, 1.0}));
}

Ref<IKernel> NewInteger(Ref<IBox> box, const std::vector<std::int64_t>& weights, double divisor)
{
    Extent extent = CheckedExtent(*box);
    CheckWeightCount(extent, weights.size());
    if (divisor == 0)
        QUILON_RAISE(L"The divisor of a kernel must not be 0");
    return Ref<IKernel>(new CKernel({box->Axes(), extent, {weights.begin(), weights.end()}, divisor}));
}

struct PredefinedShape {
    std::int64_t size;
    enum { LowPass, HighPass, Cross, Laplacian } kind;
};

PredefinedShape ShapeOf(PredefinedKernelEnum value)
{
    switch (value) {
    case pkHighPass3:
        return {3, PredefinedShape::HighPass};
    case pkHighPass5:
        return {5, PredefinedShape::HighPass};
    case pkHighPass7:
        return {7, PredefinedShape::HighPass};
    case pkLaplacian:
        return {3, PredefinedShape::Cross};
    case pkLaplacian3:
        return {3, PredefinedShape::Laplacian};
    case pkLaplacian5:
        return {5, PredefinedShape::Laplacian};
    case pkLaplacian7:
        return {7, PredefinedShape::Laplacian};
    case pkLowPass3:
        return {3, PredefinedShape::LowPass};
    case pkLowPass5:
        return {5, PredefinedShape::LowPass};
    case pkLowPass7:
        return {7, PredefinedShape::LowPass};
    }
    QUILON_RAISE(L"Unknown predefined kernel: %1%", System::ToString(value));
}

Ref<IKernel> NewPredefined(PredefinedKernelEnum value, QG::Axes axes)
{
    const PredefinedShape shape = ShapeOf(value);
    const bool solid = (axes & aZ) != 0;
    CheckSpatialAxes(axes, solid ? 3 : 2);
    const std::int64_t h = (shape.size - 1) / 2;
    const Extent extent{{-h, -h, solid ? -h : 0}, {h + 1, h + 1, solid ? h + 1 : 1}};
    const auto count = static_cast<std::size_t>(extent.Count());
    const std::size_t centre = static_cast<std::size_t>(extent.Index({0, 0, 0}));
    KernelData data{axes, extent, std::vector<double>(count, 1.0), 1.0};
    switch (shape.kind) {
    case PredefinedShape::LowPass:
        data.divisor = static_cast<double>(count);
        break;
    case PredefinedShape::HighPass:
        std::fill(data.weights.begin(), data.weights.end(), -1.0);
        data.weights[centre] = static_cast<double>(count) - 1;
        break;
    case PredefinedShape::Laplacian:
        data.weights[centre] = 1 - static_cast<double>(count);
        break;
    case PredefinedShape::Cross:
        for (std::size_t i = 0; i < count; ++i) {
            const Offset o = extent.At(static_cast<std::int64_t>(i));
            data.weights[i] = std::abs(o.x) + std::abs(o.y) + std::abs(o.z) == 1 ? 1.0 : 0.0;
        }
        data.weights[centre] = solid ? -6.0 : -4.0;
        break;
    }
    return Ref<IKernel>(new CKernel(std::move(data)));
}

Ref<IKernel> NewSeparable(const std::vector<Ref<IKernel>>& factors)
{
    if (factors.empty())
        QUILON_RAISE(L"A separable kernel needs at least one factor");
    KernelData whole = DataOf(*factors.front());
    for (std::size_t i = 1; i < factors.size(); ++i) {
        if (factors[i]->Axes() != whole.axes)
            QUILON_RAISE(L"The factors of a separable kernel have different axes: '%1%' and '%2%'",
                         whole.axes.ToString(), factors[i]->Axes().ToString());
        whole = Convolved(whole, DataOf(*factors[i]));
    }
    return Ref<IKernel>(new CSeparableKernel(std::move(whole), factors));
}

Ref<IKernel> NewSeparable2(Ref<IKernel> first, Ref<IKernel> second)
{
    return NewSeparable({first, second});
}

Ref<IKernel> NewSeparable3(Ref<IKernel> first, Ref<IKernel> second, Ref<IKernel> third)
{
    return NewSeparable({first, second, third});
}

void RegisterKernels()
{
    const wchar_t* name = L"Dense kernel";
    Kernel::New.Register(name, &NewUniform);
    Kernel::New.Register(name, &NewWeighted);
    Kernel::New.Register(name, &NewInteger);
    Kernel::New.Register(name, &NewPredefined);
    SeparableKernel::New.Register(L"Separable kernel", &NewSeparable2);
    SeparableKernel::New.Register(L"Separable kernel", &NewSeparable3);
    SeparableKernel::New.Register(L"Separable kernel", &NewSeparable);
}

const System::Template::Initializer<::Library> kernels(&RegisterKernels, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
