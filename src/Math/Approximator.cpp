#include "Math/ApproximatorImpl.h"

#include "Quilon_/System/Threading/CriticalSection.h"
#include "Quilon_/System/Threading/ThreadId.h"
#include "Quilon_/System/Type.h"

#include <cmath>
#include <unordered_map>
#include <utility>

namespace Quilon_::Math {

using System::Pointer;
using Reference = Pointer<IApproximator, 1>;

QUILON_DEFINE_INTERFACE_TYPE(IApproximator, L"Quilon_::Math::IApproximator", System::Interface)

bool CApproximator::Equal(double x, double y)
{
    return m_epsilon > std::fabs(x - y);
}

bool CApproximator::IsInteger(double x)
{
    return m_epsilon > std::fabs(x - std::trunc(x));
}

std::int64_t CApproximator::Floor(double x)
{
    return ToInteger(std::floor(x + m_epsilon));
}

std::int64_t CApproximator::ToInteger(double x)
{
    return static_cast<std::int64_t>(x >= 0 ? std::trunc(x + m_epsilon) : std::trunc(x - m_epsilon));
}

std::int64_t CApproximator::Ceiling(double x)
{
    return ToInteger(std::ceil(x - m_epsilon));
}

// eps is subtracted on both sides, so ties go down: towards zero above it,
// away from zero below.
std::int64_t CApproximator::Round(double x)
{
    return static_cast<std::int64_t>(x >= 0 ? std::trunc(x + 0.5 - m_epsilon) : std::trunc(x - 0.5 - m_epsilon));
}

std::int64_t CApproximator::Round(double x, RoundingMethodEnum method)
{
    switch (method) {
    case rmFloor:
        return Floor(x);
    case rmCeiling:
        return Ceiling(x);
    case rmRound:
        return Round(x);
    default:
        return ToInteger(x);
    }
}

bool CApproximator::Snap(double& x)
{
    if (!IsInteger(x))
        return false;
    x = static_cast<double>(Round(x));
    return true;
}

Pointer<System::ICloneable, 1> CApproximator::Clone()
{
    return Pointer<System::ICloneable, 1>(new CApproximator(m_epsilon));
}

namespace {

// The default approximator: one per thread, each made at the thread's first
// read as a clone of the process-wide one. Cloning a CApproximator runs no
// code that locks, so it is done under the section.
class DefaultApproximatorStore {
public:
    Reference Get()
    {
        const std::uint32_t thread = System::Threading::CurrentThreadId();
        System::Threading::GeneralCriticalSectionScope lock;
        auto found = m_threads.find(thread);
        if (found != m_threads.end())
            return found->second;
        Pointer<IApproximator, 0> clone;
        System::Template::CloneVariable<IApproximator>(Pointer<IApproximator, 0>(m_processWide), clone);
        return m_threads.emplace(thread, Reference(clone)).first->second;
    }

    void Set(Reference approximator)
    {
        const std::uint32_t thread = System::Threading::CurrentThreadId();
        // What is replaced is released after the section.
        Reference previousOfThread = approximator;
        Reference previousProcessWide = approximator;
        System::Threading::GeneralCriticalSectionScope lock;
        auto [entry, made] = m_threads.try_emplace(thread, approximator);
        if (!made)
            std::swap(entry->second, previousOfThread);
        if (thread == System::Threading::MainThreadId())
            std::swap(m_processWide, previousProcessWide);
    }

    void Clear()
    {
        Threads dropped;
        Reference previous(new CApproximator(0));
        System::Threading::GeneralCriticalSectionScope lock;
        dropped.swap(m_threads);
        std::swap(m_processWide, previous);
    }

private:
    using Threads = std::unordered_map<std::uint32_t, Reference, System::Threading::ThreadIdHash>;

    Reference m_processWide{new CApproximator(0)};
    Threads m_threads;
};

// Never destroyed, so that threads may still ask while the process exits.
DefaultApproximatorStore& Store()
{
    static auto* const store = new DefaultApproximatorStore;
    return *store;
}

Reference NewApproximator()
{
    return Reference(new CApproximator(Approximator::DefaultApproximator()->Epsilon()));
}

Reference NewApproximatorWithEpsilon(double epsilon)
{
    return Reference(new CApproximator(epsilon));
}

} // namespace

namespace Approximator {

Factory New;

namespace {
// Right after New is made, so that approximators can be made from the
// first moment on, before any library is loaded.
[[maybe_unused]] const bool registered = [] {
    New.Register(L"Approximator", &NewApproximator);
    New.Register(L"Approximator", &NewApproximatorWithEpsilon);
    return true;
}();
} // namespace

Reference DefaultApproximator()
{
    return Store().Get();
}

void SetDefaultApproximator(Reference approximator)
{
    Store().Set(std::move(approximator));
}

void ClearDefaultApproximator()
{
    Store().Clear();
}

} // namespace Approximator

} // namespace Quilon_::Math
