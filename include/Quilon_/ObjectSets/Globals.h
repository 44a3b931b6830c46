// Settings of object sets, held per thread: a thread's first read copies
// the process-wide value (the factory table is cloned), and what the main
// thread writes becomes the process-wide value as well, so that the
// libraries' start-up code sets what every later thread begins with.
//
//   ObjectSets::Globals::SetCaseSensitiveAttributes(true);   // sets made from now on
//   Ref<IAttribute> made = ObjectSets::Globals::AttributeFactories()->Create(type, L"Area");
//   ObjectSets::Globals::SetPrefixMeasurementAttributes(false);   // "Area", not "Statistics.Area"
#pragma once

#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/System/GlobalVariable.h"

namespace Quilon_::ObjectSets::Globals {

// The table of data types to attribute factories; empty until a library
// sets one at start-up. Clearing resets the threads' tables and the
// process-wide one.
QUILON_DECLARE_SETTING(AttributeFactories, SetAttributeFactories, ClearAttributeFactories,
                       System::Ref<IAttributeFactoryDictionary>);
// Empties the calling thread's table, keeping the table itself.
QUILON_API void ClearCollectionAttributeFactories();
// Whether attribute names are compared with their case; false by default.
QUILON_DECLARE_SETTING(CaseSensitiveAttributes, SetCaseSensitiveAttributes, ClearCaseSensitiveAttributes,
                       bool);
// Whether measurement operators prefix the attributes they make with their
// own name ("Statistics.Mean"); true by default.
QUILON_DECLARE_SETTING(PrefixMeasurementAttributes, SetPrefixMeasurementAttributes,
                       ClearPrefixMeasurementAttributes, bool);

} // namespace Quilon_::ObjectSets::Globals
