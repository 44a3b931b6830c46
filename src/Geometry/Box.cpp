#include "Quilon_/Geometry/Box.h"

#include "Quilon_/System/Type.h"

#include <algorithm>
#include <utility>

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IBox, L"Quilon_::Geometry::IBox", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBoxF, L"Quilon_::Geometry::IBoxF", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IBoxD, L"Quilon_::Geometry::IBoxD", System::Interface)

namespace Box {
Factory New;
}
namespace BoxF {
Factory New;
}
namespace BoxD {
Factory New;
}

namespace {

// What the box functions need of a family: its factory and the registered
// Min and Max of its coordinates.
template <class I>
struct Family;

template <>
struct Family<IBox> {
    static Box::Factory& New() { return Box::New; }
    static Box::Corner Min(Box::Corner a, Box::Corner b)
    {
        return Coordinates::Min(std::move(a), std::move(b));
    }
    static Box::Corner Max(Box::Corner a, Box::Corner b)
    {
        return Coordinates::Max(std::move(a), std::move(b));
    }
};

template <>
struct Family<IBoxF> {
    static BoxF::Factory& New() { return BoxF::New; }
    static BoxF::Corner Min(BoxF::Corner a, BoxF::Corner b)
    {
        return CoordinatesF::Min(std::move(a), std::move(b));
    }
    static BoxF::Corner Max(BoxF::Corner a, BoxF::Corner b)
    {
        return CoordinatesF::Max(std::move(a), std::move(b));
    }
};

template <>
struct Family<IBoxD> {
    static BoxD::Factory& New() { return BoxD::New; }
    static BoxD::Corner Min(BoxD::Corner a, BoxD::Corner b)
    {
        return CoordinatesD::Min(std::move(a), std::move(b));
    }
    static BoxD::Corner Max(BoxD::Corner a, BoxD::Corner b)
    {
        return CoordinatesD::Max(std::move(a), std::move(b));
    }
};

template <class C>
double At(const System::Ref<C>& corner, std::int64_t index)
{
    return static_cast<double>(corner->Value(index));
}

// The predicates compare every value as a double through the calling
// thread's approximator, so integer boxes honour the tolerance as well.
template <class I>
bool ContainsBox(const System::Ref<I>& a, const System::Ref<I>& b)
{
    System::Ref<Math::IApproximator> approximator = Math::Approximator::DefaultApproximator();
    const auto aLower = a->Lower();
    const auto aUpper = a->Upper();
    const auto bLower = b->Lower();
    const auto bUpper = b->Upper();
    const std::int64_t count = aLower->AxisCount();
    for (std::int64_t i = 0; i < count; ++i) {
        if (approximator->Greater(At(aLower, i), At(bLower, i)))
            return false;
        if (approximator->Less(At(aUpper, i), At(bUpper, i)))
            return false;
    }
    return true;
}

// Touching boxes, and boxes that overlap by no more than the tolerance, do
// not intersect: the upper corner is exclusive.
template <class I>
bool IntersectsBox(const System::Ref<I>& a, const System::Ref<I>& b)
{
    System::Ref<Math::IApproximator> approximator = Math::Approximator::DefaultApproximator();
    const auto aLower = a->Lower();
    const auto aUpper = a->Upper();
    const auto bLower = b->Lower();
    const auto bUpper = b->Upper();
    const std::int64_t count = aLower->AxisCount();
    for (std::int64_t i = 0; i < count; ++i) {
        if (approximator->GreaterOrEqual(At(aLower, i), At(bUpper, i)))
            return false;
        if (approximator->GreaterOrEqual(At(bLower, i), At(aUpper, i)))
            return false;
    }
    return true;
}

template <class I>
System::Ref<I> IntersectionBox(const System::Ref<I>& a, const System::Ref<I>& b)
{
    if (!IntersectsBox(a, b))
        return Family<I>::New()(a->Axes());
    return Family<I>::New()(Family<I>::Max(a->Lower(), b->Lower()), Family<I>::Min(a->Upper(), b->Upper()));
}

// Grows a clone of `a` through its live corners. The comparisons are exact,
// and an empty `b` takes part with whatever its corners hold.
template <class I>
System::Ref<I> UnionBox(const System::Ref<I>& a, const System::Ref<I>& b)
{
    const System::Pointer<I, 2> clone = a;
    System::Ref<I> result = clone;
    const auto lower = result->Lower();
    const auto upper = result->Upper();
    const auto bLower = b->Lower();
    const auto bUpper = b->Upper();
    const std::int64_t count = Coordinates::AxisCount(a->Axes());
    for (std::int64_t i = 0; i < count; ++i) {
        lower->SetValue(i, std::min(bLower->Value(i), lower->Value(i)));
        upper->SetValue(i, std::max(bUpper->Value(i), upper->Value(i)));
    }
    return result;
}

template <class I>
System::Ref<I> NormalizedBox(const System::Ref<I>& box)
{
    const System::Pointer<I, 2> clone = box;
    clone->Normalize();
    return clone;
}

} // namespace

namespace Box {
Reference Normalize(Reference box)
{
    return NormalizedBox(box);
}
Reference Intersection(Reference a, Reference b)
{
    return IntersectionBox(a, b);
}
Reference Union(Reference a, Reference b)
{
    return UnionBox(a, b);
}
bool Intersects(Reference a, Reference b)
{
    return IntersectsBox(a, b);
}
bool Contains(Reference a, Reference b)
{
    return ContainsBox(a, b);
}
} // namespace Box

namespace BoxF {
Reference Normalize(Reference box)
{
    return NormalizedBox(box);
}
Reference Intersection(Reference a, Reference b)
{
    return IntersectionBox(a, b);
}
Reference Union(Reference a, Reference b)
{
    return UnionBox(a, b);
}
bool Intersects(Reference a, Reference b)
{
    return IntersectsBox(a, b);
}
bool Contains(Reference a, Reference b)
{
    return ContainsBox(a, b);
}
// Both corners round alike: an exclusive integer upper corner is not
// compensated for.
System::Ref<IBox> Round(Reference box, Math::RoundingMethodEnum method)
{
    return Box::New(CoordinatesF::ToCoordinates(box->Lower(), method),
                    CoordinatesF::ToCoordinates(box->Upper(), method));
}
} // namespace BoxF

namespace BoxD {
Reference Normalize(Reference box)
{
    return NormalizedBox(box);
}
Reference Intersection(Reference a, Reference b)
{
    return IntersectionBox(a, b);
}
Reference Union(Reference a, Reference b)
{
    return UnionBox(a, b);
}
bool Intersects(Reference a, Reference b)
{
    return IntersectsBox(a, b);
}
bool Contains(Reference a, Reference b)
{
    return ContainsBox(a, b);
}
System::Ref<IBox> Round(Reference box, Math::RoundingMethodEnum method)
{
    return Box::New(CoordinatesD::ToCoordinates(box->Lower(), method),
                    CoordinatesD::ToCoordinates(box->Upper(), method));
}
} // namespace BoxD

} // namespace Quilon_::Geometry
