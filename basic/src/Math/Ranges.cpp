// Ranges and intervals: plain pairs of bounds, registered on the core's New
// objects.
#include "Quilon_/Math/Interval.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"

namespace Quilon_::Basic {

using namespace Quilon_::Math;
using System::Pointer;

namespace {

// The two ranges differ only in the type of their bounds.
template <class IRangeOf, class Bound>
class CRangeOf : public System::Template::ObjectImpl<CRangeOf<IRangeOf, Bound>, IRangeOf, System::ICloneable,
                                                     System::Serialization::Binary::ISerializable> {
public:
    CRangeOf(Bound minimum, Bound maximum) : m_minimum(minimum), m_maximum(maximum) {}

    Bound Minimum() override { return m_minimum; }
    void SetMinimum(Bound value) override { m_minimum = value; }
    Bound Maximum() override { return m_maximum; }
    void SetMaximum(Bound value) override { m_maximum = value; }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new CRangeOf(m_minimum, m_maximum));
    }
    void Serialize(Pointer<System::Serialization::Binary::IWriter, 1> writer) override
    {
        writer << m_minimum << m_maximum;
    }
    void Deserialize(Pointer<System::Serialization::Binary::IReader, 1> reader) override
    {
        reader >> m_minimum >> m_maximum;
    }

private:
    Bound m_minimum;
    Bound m_maximum;
};

class CIntervalD : public System::Template::ObjectImpl<CIntervalD, IIntervalD,
                                                       System::Serialization::Binary::ISerializable> {
public:
    CIntervalD(double minimum, double maximum) : m_minimum(minimum), m_maximum(maximum) {}

    double Minimum() override { return m_minimum; }
    double Maximum() override { return m_maximum; }
    bool Contains(double value) override { return m_minimum <= value && value <= m_maximum; }
    void Serialize(Pointer<System::Serialization::Binary::IWriter, 1> writer) override
    {
        writer << m_minimum << m_maximum;
    }
    // The only change an interval ever sees: being read.
    void Deserialize(Pointer<System::Serialization::Binary::IReader, 1> reader) override
    {
        reader >> m_minimum >> m_maximum;
    }

private:
    double m_minimum;
    double m_maximum;
};

template <class IRangeOf, class Bound>
Pointer<IRangeOf, 1> NewRange(Bound minimum, Bound maximum)
{
    return Pointer<IRangeOf, 1>(new CRangeOf<IRangeOf, Bound>(minimum, maximum));
}

template <class IRangeOf, class Bound>
Pointer<IRangeOf, 1> NewEmptyRange()
{
    return NewRange<IRangeOf, Bound>(0, 0);
}

Pointer<IIntervalD, 1> NewInterval(double minimum, double maximum)
{
    return Pointer<IIntervalD, 1>(new CIntervalD(minimum, maximum));
}

Pointer<IIntervalD, 1> NewEmptyInterval()
{
    return NewInterval(0, 0);
}

Pointer<IIntervalD, 1> NewSingleValueInterval(std::int64_t value)
{
    return NewInterval(static_cast<double>(value), static_cast<double>(value));
}

// The empty instances that archives are read into.
template <class C, class I>
Pointer<System::Interface, 1> NewArchivedRange()
{
    return Pointer<System::Interface, 1>(static_cast<I*>(new C(0, 0)));
}

void RegisterRanges()
{
    System::Serialization::RegisterClass<CRangeOf<IRange, std::int64_t>>(
        &NewArchivedRange<CRangeOf<IRange, std::int64_t>, IRange>);
    System::Serialization::RegisterClass<CRangeOf<IRangeD, double>>(
        &NewArchivedRange<CRangeOf<IRangeD, double>, IRangeD>);
    System::Serialization::RegisterClass<CIntervalD>(&NewArchivedRange<CIntervalD, IIntervalD>);
    Range::New.Register(L"Range", &NewEmptyRange<IRange, std::int64_t>);
    Range::New.Register(L"Range", &NewRange<IRange, std::int64_t>);
    RangeD::New.Register(L"Range", &NewEmptyRange<IRangeD, double>);
    RangeD::New.Register(L"Range", &NewRange<IRangeD, double>);
    IntervalD::New.Register(L"Interval", &NewEmptyInterval);
    IntervalD::New.Register(L"Interval", &NewSingleValueInterval);
    IntervalD::New.Register(L"Interval", &NewInterval);
}

const System::Template::Initializer<::Library> ranges(&RegisterRanges, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
