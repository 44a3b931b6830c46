// Property-change events: the mixin that gives a class its two events, and
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
using System::Pointer;
using System::ToAny;
using Made = Pointer<IPropertyChangedEventArgs, 1>;

// What a library's args would hold.
class CArgs : public System::Template::ObjectImpl<CArgs, IPropertyChangedEventArgs> {
public:
    CArgs(std::wstring name, std::int64_t index, Any oldValue, Any newValue = Any(),
          Pointer<IEventArgs, 0> inner = nullptr, Pointer<Interface, 0> source = nullptr)
        : m_name(std::move(name)), m_index(index), m_old(std::move(oldValue)), m_new(std::move(newValue)),
          m_inner(std::move(inner)), m_source(std::move(source))
    {
    }
    std::wstring PropertyName() override { return m_name; }
    std::int64_t Index() override { return m_index; }
    Any OldValue() override { return m_old; }
    Any NewValue() override { return m_new; }
    bool HasNewValue() override { return !m_new.IsEmpty(); }
    Pointer<IEventArgs, 0> InnerEventArgs() override { return m_inner; }
    Pointer<Interface, 0> Source() override { return m_source; }
    void ReleaseValues() override { m_old = m_new = Any(); }

private:
    std::wstring m_name;
    std::int64_t m_index;
    Any m_old, m_new;
    Pointer<IEventArgs, 0> m_inner;
    Pointer<Interface, 0> m_source;
};

// A library's six implementations.
using Text = const std::wstring&;
using InnerArgs = Pointer<IEventArgs, 1>;
using Source = Pointer<Interface, 1>;
constexpr auto byValue = +[](Text n, const Any& v) { return Made(new CArgs(n, -1, v)); };
constexpr auto byValues = +[](Text n, const Any& o, const Any& v) { return Made(new CArgs(n, -1, o, v)); };
constexpr auto byIndexValue = +[](Text n, std::int64_t i, const Any& v) { return Made(new CArgs(n, i, v)); };
constexpr auto byIndexValues =
    +[](Text n, std::int64_t i, const Any& o, const Any& v) { return Made(new CArgs(n, i, o, v)); };
constexpr auto byInner = +[](Text n, InnerArgs e, Source s) { return Made(new CArgs(n, -1, Any(), Any(), e, s)); };
constexpr auto byInnerValue =
    +[](Text n, InnerArgs e, Source s, const Any& v) { return Made(new CArgs(n, -1, v, Any(), e, s)); };

// Registers the six for the scope, as a library does at start-up.
struct Registered {
    Registered() { Each([](auto& op, auto make) { op.Register(make); }); }
    ~Registered() { Each([](auto& op, auto make) { op.Unregister(make); }); }
    template <class Visit>
    static void Each(Visit visit)
    {
        auto& f = System::PropertyChangedEventArgs::New;
        visit(f.byValue, byValue);
        visit(f.byValues, byValues);
        visit(f.byIndexValue, byIndexValue);
        visit(f.byIndexValues, byIndexValues);
        visit(f.byInner, byInner);
        visit(f.byInnerValue, byInnerValue);
    }
};

TEST(PropertyChangeEventArgsTest, EachShapeGoesToItsOwnOperator)
{
    Registered registered;
    auto& New = System::PropertyChangedEventArgs::New;
    Pointer<IEventArgs, 1> inner = System::EventArgs::Empty();
    Pointer<Interface, 1> source(new Kernel::CThing);

    Made byValue = New(L"Radius", ToAny(1.5));
    EXPECT_EQ(byValue->PropertyName(), L"Radius");
    EXPECT_EQ(byValue->OldValue().CastTo<double>(), 1.5) << "a single value is the previous one";
    EXPECT_FALSE(byValue->HasNewValue());
    EXPECT_EQ(New(L"Radius", ToAny(1), ToAny(2))->NewValue().CastTo<int>(), 2);
    EXPECT_EQ(New(L"Items", 3, ToAny(1))->Index(), 3);
    EXPECT_TRUE(New(L"Items", 4, ToAny(1), ToAny(2))->HasNewValue());
    EXPECT_EQ(New(L"Child", inner, source)->Source(), source);
    EXPECT_EQ(New(L"Child", inner, source, ToAny(7))->InnerEventArgs(), inner);
}

class ICircle : public virtual System::IPropertyChangeEvents {
    QUILON_INTERFACE(ICircle)
public:
    virtual void SetRadius(double radius) = 0;
};
QUILON_DEFINE_INTERFACE_TYPE(ICircle, L"Quilon_::Tests::PropertyChangeTests::ICircle", System::IPropertyChangeEvents)

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
    void OnChanged(Interface* sender, Made args) { seen.emplace_back(sender, args->OldValue().CastTo<double>()); }

    std::vector<std::pair<Interface*, double>> seen;

private:
    double m_radius = 1;
};

TEST(PropertyChangeEventsTest, SettersFireWithTheObjectAsSenderOnlyWhenSomeoneListens)
{
    auto* observed = new CCircle;
    auto* observer = new CCircle;
    Pointer<ICircle, 1> circle(observed), listener(observer);
    circle->SetRadius(2); // no listener: no args are made, and New has no implementation

    Registered registered;
    circle->PropertyChanged() += System::NewEventHandler(observer, &CCircle::OnChanged);
    circle->SetRadius(2);
    circle->SetRadius(3);
    EXPECT_EQ(observer->seen, (std::vector<std::pair<Interface*, double>>{{observed, 2}}));
    EXPECT_FALSE(observed->HasPropertyChangingHandlers());

    // The listener is an event target through the mixin: its deletion
    // disconnects it. A copy is a sender of its own.
    listener = circle;
    EXPECT_FALSE(observed->HasPropertyChangedHandlers());
    CCircle copy(*observed);
    EXPECT_EQ(copy.PropertyChanged().Sender(), static_cast<Interface*>(&copy));
}

} // namespace Quilon_::Tests::PropertyChangeTests
