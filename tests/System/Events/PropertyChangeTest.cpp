// Property-change events: the mixins that give a class its two events, and
// the factory objects whose six shapes other libraries implement.
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/PropertyChangeEvents.h"
#include "Quilon_/System/Type.h"

#include "../../Support/EventDoubles.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::PropertyChangeTests {

using System::Any;
using System::IEventArgs;
using System::Interface;
using System::IPropertyChangedEventArgs;
using System::IPropertyChangingEventArgs;
using System::Pointer;
using System::ToAny;

// What a library's args would hold; one class serves both factories.
class CArgs : public System::Template::ObjectImpl<CArgs, IPropertyChangingEventArgs> {
public:
    CArgs(std::wstring name, std::int64_t index, Any oldValue, Any newValue, bool hasNew,
          Pointer<IEventArgs, 0> inner = nullptr, Pointer<Interface, 0> source = nullptr)
        : m_name(std::move(name)), m_index(index), m_old(std::move(oldValue)), m_new(std::move(newValue)),
          m_hasNew(hasNew), m_inner(std::move(inner)), m_source(std::move(source))
    {
    }
    std::wstring PropertyName() override { return m_name; }
    std::int64_t Index() override { return m_index; }
    Any OldValue() override { return m_old; }
    Any NewValue() override { return m_new; }
    bool HasNewValue() override { return m_hasNew; }
    Pointer<IEventArgs, 0> InnerEventArgs() override { return m_inner; }
    Pointer<Interface, 0> Source() override { return m_source; }
    void ReleaseValues() override { m_old = m_new = Any(); }
    void SetNewValue(const Any& value) override { m_new = value; }
    bool Allowed() override { return m_allowed; }
    void SetAllowed(bool allowed) override { m_allowed = m_allowed && allowed; }
    std::wstring Reason() override { return m_reason; }
    void SetReason(const std::wstring& reason) override { m_reason = reason; }

private:
    std::wstring m_name;
    std::int64_t m_index;
    Any m_old, m_new;
    bool m_hasNew;
    Pointer<IEventArgs, 0> m_inner;
    Pointer<Interface, 0> m_source;
    bool m_allowed = true;
    std::wstring m_reason;
};

template <class I>
struct Makers {
    using Made = Pointer<I, 1>;
    static Made Value(const std::wstring& n, const Any& v) { return Made(new CArgs(n, -1, v, Any(), false)); }
    static Made Values(const std::wstring& n, const Any& o, const Any& v) { return Made(new CArgs(n, -1, o, v, true)); }
    static Made IndexValue(const std::wstring& n, std::int64_t i, const Any& v)
    {
        return Made(new CArgs(n, i, v, Any(), false));
    }
    static Made IndexValues(const std::wstring& n, std::int64_t i, const Any& o, const Any& v)
    {
        return Made(new CArgs(n, i, o, v, true));
    }
    static Made Inner(const std::wstring& n, Pointer<IEventArgs, 1> e, Pointer<Interface, 1> s)
    {
        return Made(new CArgs(n, -1, Any(), Any(), false, e, s));
    }
    static Made InnerValue(const std::wstring& n, Pointer<IEventArgs, 1> e, Pointer<Interface, 1> s, const Any& v)
    {
        return Made(new CArgs(n, -1, v, Any(), false, e, s));
    }

    // Registers the six for the scope, as a library does at start-up.
    template <class Factory>
    struct Registered {
        explicit Registered(Factory& factory) : f(factory)
        {
            Each([](auto& op, auto make) { op.Register(make); });
        }
        ~Registered()
        {
            Each([](auto& op, auto make) { op.Unregister(make); });
        }
        template <class Visit>
        void Each(Visit visit)
        {
            visit(f.byValue, &Value);
            visit(f.byValues, &Values);
            visit(f.byIndexValue, &IndexValue);
            visit(f.byIndexValues, &IndexValues);
            visit(f.byInner, &Inner);
            visit(f.byInnerValue, &InnerValue);
        }
        Factory& f;
    };
};

template <class I, class Factory>
void ExpectSixShapes(Factory& factory)
{
    typename Makers<I>::template Registered<Factory> registered(factory);
    Pointer<IEventArgs, 1> inner = System::EventArgs::Empty();
    Pointer<Interface, 1> source(new Kernel::CThing);

    Pointer<I, 1> byValue = factory(L"Radius", ToAny(1.5));
    EXPECT_EQ(byValue->PropertyName(), L"Radius");
    EXPECT_EQ(byValue->OldValue().template CastTo<double>(), 1.5) << "a single value is the previous one";
    EXPECT_FALSE(byValue->HasNewValue());
    EXPECT_EQ(byValue->Index(), -1);

    Pointer<I, 1> byValues = factory(L"Radius", ToAny(1), ToAny(2));
    EXPECT_EQ(byValues->NewValue().template CastTo<int>(), 2);
    EXPECT_EQ(factory(L"Items", 3, ToAny(1))->Index(), 3);
    Pointer<I, 1> byIndexValues = factory(L"Items", 4, ToAny(1), ToAny(2));
    EXPECT_EQ(byIndexValues->Index(), 4);
    EXPECT_TRUE(byIndexValues->HasNewValue());

    Pointer<I, 1> byInner = factory(L"Child", inner, source);
    EXPECT_EQ(byInner->InnerEventArgs(), inner);
    EXPECT_EQ(byInner->Source(), source);
    EXPECT_EQ(factory(L"Child", inner, source, ToAny(7))->OldValue().template CastTo<int>(), 7);
}

TEST(PropertyChangeEventArgsTest, EachShapeGoesToItsOwnOperator)
{
    ExpectSixShapes<IPropertyChangedEventArgs>(System::PropertyChangedEventArgs::New);
    ExpectSixShapes<IPropertyChangingEventArgs>(System::PropertyChangingEventArgs::New);
}

TEST(EventArgsTest, EmptyIsOneSharedInstance)
{
    Pointer<IEventArgs, 1> empty = System::EventArgs::Empty();
    EXPECT_EQ(System::EventArgs::Empty(), empty);
    Pointer<System::ICloneable, 0> cloneable(empty);
    ASSERT_TRUE(cloneable);
    Pointer<IEventArgs, 0> clone(cloneable->Clone());
    EXPECT_FALSE(clone == empty);
}

class ICircle : public virtual System::IPropertyChangeEvents {
    QUILON_INTERFACE(ICircle)
public:
    virtual void SetRadius(double radius) = 0;
};
QUILON_DEFINE_INTERFACE_TYPE(ICircle, L"Quilon_::Tests::PropertyChangeTests::ICircle",
                             System::IPropertyChangeEvents)

// Follows the setter pattern of the toolkit; also listens to other circles.
class CCircle
    : public System::Template::ObjectImpl<CCircle, System::Template::IPropertyChangeEventsTargetImpl<ICircle>> {
public:
    void SetRadius(double radius) override
    {
        const double previous = m_radius;
        if (previous == radius)
            return;
        m_radius = radius;
        if (HasPropertyChangedHandlers())
            FirePropertyChanged(System::PropertyChangedEventArgs::New(L"Radius", ToAny(previous)));
    }
    void OnChanged(Interface* sender, Pointer<IPropertyChangedEventArgs, 1> args)
    {
        seen.emplace_back(sender, args->PropertyName());
    }

    std::vector<std::pair<Interface*, std::wstring>> seen;

private:
    double m_radius = 1;
};

TEST(PropertyChangeEventsTest, SettersFireWithTheObjectAsSenderOnlyWhenSomeoneListens)
{
    using Circle = Pointer<ICircle, 1>;
    Makers<IPropertyChangedEventArgs>::Registered<System::PropertyChangedEventArgs::Factory> registered(
        System::PropertyChangedEventArgs::New);
    auto* observed = new CCircle;
    auto* observer = new CCircle;
    Circle circle(observed), listener(observer);

    circle->SetRadius(2);
    EXPECT_FALSE(observed->HasPropertyChangingHandlers());
    EXPECT_FALSE(observed->HasPropertyChangedHandlers());
    circle->PropertyChanged() += System::NewEventHandler(observer, &CCircle::OnChanged);
    EXPECT_TRUE(observed->HasPropertyChangedHandlers());
    circle->SetRadius(2);
    circle->SetRadius(3);
    ASSERT_EQ(observer->seen.size(), 1u);
    EXPECT_EQ(observer->seen[0].first, static_cast<Interface*>(observed));
    EXPECT_EQ(observer->seen[0].second, L"Radius");

    // The listener is an event target through the mixin: its deletion
    // disconnects it.
    EXPECT_EQ(observer->AsEventTarget(), static_cast<System::EventTarget*>(observer));
    listener = circle;
    EXPECT_FALSE(observed->HasPropertyChangedHandlers());

    CCircle copy(*observed);
    EXPECT_EQ(copy.PropertyChanged().Sender(), static_cast<Interface*>(&copy)) << "a copy is its own sender";
}

} // namespace Quilon_::Tests::PropertyChangeTests
