// A real plug-in, built with hidden visibility from the public headers only,
// raises and makes objects; the test program and the core catch and cast
// them. Catching, dynamic_cast and typeid across the library boundary work
// only if everything they need is exported.
#include "Quilon_/Library.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Type.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../Support/ThrowerPlugin.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Tests::CrossLibraryTests {

using namespace Quilon_::System;

TEST(CrossLibrary, PluginsExceptionsObjectsAndTypesAreUsableHere)
{
    // The plug-in is loaded once and never unloaded: Types() keeps its type
    // descriptions, whose code lives in the plug-in.
    const wchar_t* const greeterName = L"Quilon_::Tests::IGreeter";
    static const bool registeredBefore = Type::Types()->ContainsKey(greeterName);
    static void* const library = dlopen(QUILON_TEST_LIB_DIR "/libQuilon_.TestThrower.so", RTLD_NOW | RTLD_GLOBAL);
    ASSERT_NE(library, nullptr) << dlerror();
    EXPECT_FALSE(registeredBefore);
    const Type& greeterType = *reinterpret_cast<ThrowerPlugin::GreeterType>(dlsym(library, "QuilonTestThrower_GreeterType"))();
    EXPECT_TRUE(Type::Types()->Item(greeterName) == greeterType);

    Library::ErrorManager()->TakeLastError();
    try {
        reinterpret_cast<ThrowerPlugin::Raise>(dlsym(library, "QuilonTestThrower_Raise"))(L"boom");
        ADD_FAILURE() << "nothing thrown";
    } catch (const Pointer<IException, 1>& e) {
        EXPECT_EQ(e->Message(), L"Plug-in failure: 'boom'");
        EXPECT_EQ(e->File(), L"tests/plugins/Thrower/Plugin.cpp");
        EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == e) << "recorded in the core, for this thread";
    }

    // The greeter comes with one reference for the caller.
    Interface* made = reinterpret_cast<ThrowerPlugin::MakeGreeter>(dlsym(library, "QuilonTestThrower_MakeGreeter"))(L"Hi");
    Pointer<Interface, 1> greeter(made);
    made->ReleaseReference();
    ASSERT_NE(dynamic_cast<IGreeter*>(greeter.Get()), nullptr);
    EXPECT_EQ(dynamic_cast<IGreeter*>(greeter.Get())->Greet(L"you"), L"Hi, you");
    Pointer<Interface, 1> clone(Pointer<ICloneable, 1>(greeter)->Clone());
    EXPECT_FALSE(clone == greeter);
    EXPECT_EQ(dynamic_cast<IGreeter*>(clone.Get())->Greet(L"clone"), L"Hi, clone");
    EXPECT_FALSE((Pointer<IException, 0>(greeter)));
    EXPECT_TRUE(greeterType.IsImplementedBy(greeter));
    EXPECT_FALSE(greeterType.IsImplementedBy(Exception::New(L"m", L"f()", L"x.cpp", 1)));
}

TEST(CrossLibrary, ValuesBoxedInAPluginAreReadHereAndTheOtherWayRound)
{
    static void* const library = dlopen(QUILON_TEST_LIB_DIR "/libQuilon_.TestThrower.so", RTLD_NOW | RTLD_GLOBAL);
    ASSERT_NE(library, nullptr) << dlerror();
    std::vector<Any> boxed = reinterpret_cast<ThrowerPlugin::BoxValues>(dlsym(library, "QuilonTestThrower_BoxValues"))();
    ASSERT_EQ(boxed.size(), 3u);
    EXPECT_TRUE(Helper::IsInteger(boxed[0]));
    EXPECT_TRUE(boxed[0] == ToAny(std::int64_t(7)));
    EXPECT_EQ(boxed[1].CastTo<NumericTypeEnum>(), ntInt16);
    using Pair = std::pair<int, std::wstring>;
    EXPECT_EQ(boxed[2].CastTo<Pair>().second, L"two");

    auto unboxPair = reinterpret_cast<ThrowerPlugin::UnboxPair>(dlsym(library, "QuilonTestThrower_UnboxPair"));
    EXPECT_EQ(unboxPair(ToAny(Pair(3, L"three"))), 3);
    // Not closed: Types() keeps the plug-in's type descriptions.
}

} // namespace Quilon_::Tests::CrossLibraryTests
