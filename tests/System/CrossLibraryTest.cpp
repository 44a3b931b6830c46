// A real plug-in, built with hidden visibility from the public headers only,
// raises and makes objects; the test program and the core catch and cast
// them. Catching, dynamic_cast and typeid across the library boundary work
// only if everything they need is exported.
#include "Quilon_/Library.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../Support/MapTranslator.h"
#include "../Support/ThrowerPlugin.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <string>

namespace Quilon_::Tests::CrossLibraryTests {

using namespace Quilon_::System;

const wchar_t* const GreeterName = L"Quilon_::Tests::IGreeter";

class CLocalCloneable : public Template::ObjectImpl<CLocalCloneable, ICloneable> {
public:
    Pointer<ICloneable, 1> Clone() override { return Pointer<ICloneable, 1>(new CLocalCloneable); }
};

// The plug-in is loaded once and never unloaded: Types() keeps its type
// descriptions, whose code lives in the plug-in.
class CrossLibrary : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        if (s_library)
            return;
        s_registeredBefore = Type::Types()->ContainsKey(GreeterName);
        s_library = dlopen(QUILON_TEST_LIB_DIR "/libQuilon_.TestThrower.so", RTLD_NOW | RTLD_GLOBAL);
        if (!s_library)
            s_loadError = dlerror();
    }

    void SetUp() override
    {
        ASSERT_NE(s_library, nullptr) << s_loadError;
        Library::ErrorManager()->TakeLastError();
    }
    void TearDown() override { Library::ErrorManager()->TakeLastError(); }

    template <class F>
    static F Symbol(const char* name)
    {
        void* symbol = dlsym(s_library, name);
        if (!symbol)
            ADD_FAILURE() << "missing export " << name;
        return reinterpret_cast<F>(symbol);
    }

    // Adopts the reference that the plug-in's MakeGreeter hands over.
    static Pointer<Interface, 1> MakeGreeter(const wchar_t* greeting)
    {
        Interface* made = Symbol<ThrowerPlugin::MakeGreeter>("QuilonTestThrower_MakeGreeter")(greeting);
        Pointer<Interface, 1> held(made);
        made->ReleaseReference();
        return held;
    }

    static IGreeter* AsGreeter(const Pointer<Interface, 1>& object) { return dynamic_cast<IGreeter*>(object.Get()); }

    static bool s_registeredBefore;
    static void* s_library;
    static std::string s_loadError;
};

bool CrossLibrary::s_registeredBefore = false;
void* CrossLibrary::s_library = nullptr;
std::string CrossLibrary::s_loadError;

// ---------------------------------------------------------------------------
// Exceptions

TEST_F(CrossLibrary, ExceptionRaisedInPluginIsCaughtHereWithItsLocation)
{
    auto raise = Symbol<ThrowerPlugin::Raise>("QuilonTestThrower_Raise");
    try {
        raise(L"boom");
        FAIL() << "nothing thrown";
    } catch (const Pointer<IException, 1>& e) {
        EXPECT_EQ(e->Message(), L"Plug-in failure: 'boom'");
        EXPECT_EQ(e->File(), L"tests/plugins/Thrower/Plugin.cpp");
        EXPECT_NE(e->Function().find(L"QuilonTestThrower_Raise"), std::wstring::npos);
        EXPECT_GT(e->Line(), 0);
        // Recorded in the core, for this thread.
        EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == e);
    }
}

TEST_F(CrossLibrary, PluginRaisesThroughTheTranslatorSetHere)
{
    ScopedTranslator translator(L"Plug-in failure: '%1%'", L"Fehler im Plug-in: '%1%'");
    auto raise = Symbol<ThrowerPlugin::Raise>("QuilonTestThrower_Raise");
    try {
        raise(L"x");
        FAIL() << "nothing thrown";
    } catch (const Pointer<IException, 1>& e) {
        EXPECT_EQ(e->Message(), L"Fehler im Plug-in: 'x'");
    }
}

TEST_F(CrossLibrary, CancellationThrownInPluginIsToldApartHere)
{
    auto cancel = Symbol<ThrowerPlugin::Cancel>("QuilonTestThrower_Cancel");
    try {
        cancel();
        FAIL() << "nothing thrown";
    } catch (const Pointer<IException, 1>& e) {
        Pointer<ICancelException, 0> cancelled(e);
        ASSERT_TRUE(cancelled);
        EXPECT_EQ(cancelled->Message(), L"Cancelled in the plug-in");
        EXPECT_EQ(cancelled->File(), L"tests/plugins/Thrower/Plugin.cpp");
    }
}

TEST_F(CrossLibrary, ExceptionRaisedInTheCoreIsCaughtInPlugin)
{
    std::wstring message;
    Symbol<ThrowerPlugin::CatchFromCore>("QuilonTestThrower_CatchFromCore")(&message);
    EXPECT_EQ(message, L"MultiByteToWideChar failed (error code = 84)");
}

// ---------------------------------------------------------------------------
// Objects and types

TEST_F(CrossLibrary, ObjectMadeInPluginIsCastHereAndInTheCore)
{
    Pointer<Interface, 1> greeter = MakeGreeter(L"Hello");
    ASSERT_NE(AsGreeter(greeter), nullptr);
    EXPECT_EQ(AsGreeter(greeter)->Greet(L"you"), L"Hello, you");

    Pointer<ICloneable, 0> cloneable(greeter);
    ASSERT_TRUE(cloneable);
    Pointer<Interface, 1> clone(cloneable->Clone());
    EXPECT_FALSE(clone == greeter);
    ASSERT_NE(AsGreeter(clone), nullptr);
    EXPECT_EQ(AsGreeter(clone)->Greet(L"clone"), L"Hello, clone");

    Pointer<IEquatable, 0> equatable(greeter);
    ASSERT_TRUE(equatable);
    EXPECT_TRUE(equatable->Equals(clone));
    // System::Equals casts both objects inside the core.
    EXPECT_TRUE(Equals(greeter, clone));
    EXPECT_FALSE(Equals(greeter, MakeGreeter(L"Goodbye")));

    // An interface the object lacks: null, and no throw, with policy 0.
    EXPECT_FALSE((Pointer<IException, 0>(greeter)));
}

TEST_F(CrossLibrary, PluginCastsObjectsMadeHere)
{
    auto isCloneable = Symbol<ThrowerPlugin::IsCloneable>("QuilonTestThrower_IsCloneable");
    Pointer<ICloneable, 1> local(new CLocalCloneable);
    EXPECT_TRUE(isCloneable(local.Get()));
    EXPECT_FALSE(isCloneable(Exception::New(L"m", L"f()", L"x.cpp", 1).Get()));
}

TEST_F(CrossLibrary, PluginsInterfaceTypeIsRegisteredByLoading)
{
    EXPECT_FALSE(s_registeredBefore);
    const Type& greeterType = *Symbol<ThrowerPlugin::GreeterType>("QuilonTestThrower_GreeterType")();
    ASSERT_TRUE(Type::Types()->ContainsKey(GreeterName));
    EXPECT_TRUE(Type::Types()->Item(GreeterName) == greeterType);
    EXPECT_TRUE(greeterType.IsReferenceType());
    EXPECT_TRUE(greeterType.IsSubclassOf(Interface::GetType()));

    EXPECT_TRUE(greeterType.IsImplementedBy(MakeGreeter(L"Hi")));
    EXPECT_FALSE(greeterType.IsImplementedBy(Pointer<ICloneable, 1>(new CLocalCloneable)));
    EXPECT_TRUE(ICloneable::GetType().IsImplementedBy(MakeGreeter(L"Hi")));
}

TEST_F(CrossLibrary, ValuesBoxedInPluginAreUnboxedHere)
{
    Any number;
    Any object;
    Symbol<ThrowerPlugin::Box>("QuilonTestThrower_Box")(42, &number, &object);
    EXPECT_EQ(number.CastTo<std::int64_t>(), 42);

    Pointer<ICloneable, 0> cloneable = object.CastTo<Pointer<ICloneable, 0>>();
    ASSERT_TRUE(cloneable);
    Pointer<Interface, 1> greeter(cloneable);
    ASSERT_NE(AsGreeter(greeter), nullptr);
    EXPECT_EQ(AsGreeter(greeter)->Greet(L"box"), L"Boxed, box");
}

} // namespace Quilon_::Tests::CrossLibraryTests
