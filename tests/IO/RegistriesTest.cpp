// The lists of file formats as threads see them: a thread works on a copy
// of what the main thread set, and emptying a list in place keeps the list.
#include "Quilon_/IO/ExtendedPropertiesReader.h"
#include "Quilon_/IO/ExtendedPropertiesWriter.h"
#include "Quilon_/IO/Globals.h"
#include "Quilon_/IO/Preview/Globals.h"
#include "Quilon_/IO/Preview/PreviewExtendedPropertiesGenerator.h"
#include "Quilon_/IO/Reader.h"
#include "Quilon_/IO/Writer.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/ObjectSets/IO/Globals.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"

#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::FormatRegistries {

using System::Ref;

TEST(FormatRegistries, AThreadsReadersAreItsOwnOnceItHasThem)
{
    InChildProcess([] {
        StartBasic();
        Ref<IO::IReaderCollection> objectSetReaders = ObjectSets::IO::Globals::ObjectSetReaders();
        ASSERT_EQ(objectSetReaders->Count(), 1);
        EXPECT_EQ(objectSetReaders->Item(0)->Name(), L"CSV");
        EXPECT_EQ(ObjectSets::IO::Globals::ObjectSetWriters()->Item(0)->Extensions(),
                  std::vector<std::wstring>{L"csv"});

        std::int64_t seenBefore = -1;
        std::int64_t seenAfter = -1;
        std::thread other([&] {
            seenBefore = IO::Globals::Readers()->Count();
            IO::Globals::Readers()->Add(objectSetReaders->Item(0));
            seenAfter = IO::Globals::Readers()->Count();
        });
        other.join();
        EXPECT_EQ(seenBefore, 0);
        EXPECT_EQ(seenAfter, 1);
        EXPECT_EQ(IO::Globals::Readers()->Count(), 0);
    });
}

TEST(FormatRegistries, ClearingACollectionKeepsTheObject)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            const char* name;
            System::Interface* (*list)();
            std::int64_t (*count)();
            void (*clearCollection)();
        };
        const Case cases[] = {
            {"image properties readers",
             [] {
                 return static_cast<System::Interface*>(
                     Images::IO::Globals::ExtendedPropertiesReaders().Get());
             },
             [] { return Images::IO::Globals::ExtendedPropertiesReaders()->Count(); },
             &Images::IO::Globals::ClearCollectionExtendedPropertiesReaders},
            {"object-set properties writers",
             [] {
                 return static_cast<System::Interface*>(
                     ObjectSets::IO::Globals::ExtendedPropertiesWriters().Get());
             },
             [] { return ObjectSets::IO::Globals::ExtendedPropertiesWriters()->Count(); },
             &ObjectSets::IO::Globals::ClearCollectionExtendedPropertiesWriters},
            {"preview properties generators",
             [] {
                 return static_cast<System::Interface*>(
                     IO::Preview::Globals::PreviewExtendedPropertiesGenerators().Get());
             },
             [] { return IO::Preview::Globals::PreviewExtendedPropertiesGenerators()->Count(); },
             &IO::Preview::Globals::ClearCollectionPreviewExtendedPropertiesGenerators},
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(c.name);
            System::Interface* before = c.list();
            ASSERT_NE(before, nullptr);
            c.clearCollection();
            EXPECT_EQ(c.list(), before);
            EXPECT_EQ(c.count(), 0);
        }
        // Emptying the object-set readers in place leaves Read without a
        // format, not without a list.
        ObjectSets::IO::Globals::ObjectSetReaders()->Clear();
        EXPECT_EQ(ObjectSets::IO::Globals::ObjectSetReaders()->Count(), 0);
    });
}

} // namespace Quilon_::Tests::FormatRegistries
