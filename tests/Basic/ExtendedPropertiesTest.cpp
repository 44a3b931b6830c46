// Extended properties through the helper functions, on objects of every
// kind: without properties, carrying a dictionary, and being one.
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/ObjectImpl.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>

namespace Quilon_::Tests::ExtendedProperties {

using namespace Quilon_::System;
namespace Properties = System::ExtendedPropertiesHelper;

class CCarrier : public Template::ObjectImpl<CCarrier, Template::IExtendedPropertiesContainerImpl> {};

Pointer<Interface, 1> NewCarrier()
{
    return Pointer<Interface, 1>(new CCarrier);
}

using ExtendedPropertiesTest = RaisingTest;

TEST_F(ExtendedPropertiesTest, AnObjectWithoutPropertiesReadsEmptyAndRefusesWrites)
{
    Pointer<Interface, 1> plain(new Kernel::CThing);
    EXPECT_FALSE(Properties::Find(plain, L"Owner"));
    EXPECT_TRUE(Properties::Value(plain, L"Owner").IsEmpty());
    EXPECT_EQ(RaisedMessage([&] { Properties::Property(plain, L"Owner"); }),
              L"Extended property 'Owner' is not defined");
    EXPECT_EQ(RaisedMessage([&] { Properties::SetValue(plain, L"Owner", ToAny(1)); }),
              L"Property 'Owner' does not exist (use 'LIString' overload for implicit creation)");
    EXPECT_EQ(RaisedMessage([&] { Properties::SetValue(plain, LIString(L"Owner"), ToAny(1)); }),
              L"Object should implement IExtendedPropertiesContainer ('Tests::Kernel::CThing')");
    EXPECT_EQ(Properties::Name(plain), LIString(L"", true));
    EXPECT_FALSE(Properties::DateTime(plain).HasValue());
    Properties::Remove(plain, L"Owner"); // nothing to remove, nothing raised

    // No object at all is refused by every function, reading ones included.
    const Pointer<Interface, 0> none;
    const std::function<void()> calls[] = {
        [&] { Properties::Find(none, L"Owner"); },
        [&] { Properties::Value(none, L"Owner"); },
        [&] { Properties::SetValue(none, L"Owner", ToAny(1)); },
        [&] { Properties::SetValue(none, LIString(L"Owner"), ToAny(1)); },
        [&] { Properties::Remove(none, L"Owner"); },
        [&] { Properties::Name(none); },
        [&] { Properties::DateTime(none); },
        [&] { Properties::CopyCopiableExtendedProperties(none, none); },
    };
    for (const auto& call : calls)
        EXPECT_EQ(RaisedMessage(call),
                  L"Pointer <Quilon_::System::Interface> : attempt to assign 0 to a reference");
}

TEST_F(ExtendedPropertiesTest, LIStringKeysCreateAndEveryKeyFormFindsByText)
{
    InChildProcess([] {
        StartBasic();
        Pointer<Interface, 1> carrier = NewCarrier();
        Properties::SetValue(carrier, LIString(L"Owner", false), ToAny(std::wstring(L"me")));
        EXPECT_EQ(Properties::Value(carrier, L"Owner"), ToAny(std::wstring(L"me")));
        Properties::SetValue(carrier, L"Owner", ToAny(std::wstring(L"you")));
        EXPECT_EQ(Properties::Value(carrier, LIString(L"Owner", true)), ToAny(std::wstring(L"you")));
        EXPECT_EQ(Properties::Property(carrier, L"Owner")->Flags(), 0);

        Properties::SetValue(carrier, LIString(L"Owner"), ToAny(3), epfCopiable);
        EXPECT_EQ(Properties::Property(carrier, L"Owner")->Flags(), epfCopiable);
        Properties::Remove(carrier, L"Owner");
        EXPECT_FALSE(Properties::Find(carrier, L"Owner"));

        Properties::SetName(carrier, LIString(L"Left view"));
        EXPECT_EQ(Properties::Name(carrier), LIString(L"Left view"));
        EXPECT_EQ(Properties::Property(carrier, L"Property.Object.Name")->Flags(), epfPersistent | epfHidden);
        Properties::SetValue(carrier, L"Property.Object.Name", ToAny(std::wstring(L"plain")));
        EXPECT_EQ(Properties::Name(carrier), LIString(L"plain", false));

        const System::DateTime taken(2024, 5, 6, 7, 8, 9);
        Properties::SetDateTime(carrier, taken);
        EXPECT_EQ(Properties::DateTime(carrier).Value(), taken);

        // A dictionary is its own property bag.
        Pointer<Interface, 1> dictionary(ExtendedPropertyDictionary::New());
        Properties::SetValue(dictionary, LIString(L"Gain"), ToAny(2.0));
        EXPECT_EQ(Properties::Value(dictionary, L"Gain"), ToAny(2.0));
    });
}

TEST_F(ExtendedPropertiesTest, OnlyCopiablePropertiesTravelAndAsIndependentClones)
{
    InChildProcess([] {
        StartBasic();
        Pointer<Interface, 1> source = NewCarrier();
        Pointer<Interface, 1> destination = NewCarrier();
        Properties::SetValue(source, LIString(L"Unit"), ToAny(std::wstring(L"mm")), epfCopiable);
        Properties::SetValue(source, LIString(L"Scale"), ToAny(0.5), 0);
        Properties::SetName(source, LIString(L"source"));
        Properties::SetValue(destination, LIString(L"Scale"), ToAny(2.0), 0);

        Properties::CopyCopiableExtendedProperties(source, destination);
        EXPECT_EQ(Properties::Value(destination, L"Unit"), ToAny(std::wstring(L"mm")));
        EXPECT_EQ(Properties::Value(destination, L"Scale"), ToAny(2.0)) << "not copiable: the entry stays";
        EXPECT_TRUE(Properties::Name(destination).Value().empty()) << "a name never travels";
        Properties::SetValue(source, L"Unit", ToAny(std::wstring(L"cm")));
        EXPECT_EQ(Properties::Value(destination, L"Unit"), ToAny(std::wstring(L"mm")));

        Properties::CopyCopiableExtendedProperties(source, source);
        Pointer<Interface, 1> plain(new Kernel::CThing);
        EXPECT_NE(RaisedMessage([&] { Properties::CopyCopiableExtendedProperties(source, plain); }), L"");
    });
}

} // namespace Quilon_::Tests::ExtendedProperties
