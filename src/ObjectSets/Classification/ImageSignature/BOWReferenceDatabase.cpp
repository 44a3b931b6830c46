#include "Quilon_/ObjectSets/Classification/ImageSignature/BOWReferenceDatabase.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::ObjectSets::Classification::ImageSignature {

QUILON_DEFINE_INTERFACE_TYPE(IBOWReferenceDatabase,
                             L"Quilon_::ObjectSets::Classification::ImageSignature::IBOWReferenceDatabase",
                             System::Interface)

BOWReferenceDatabase::Factory BOWReferenceDatabase::New;

} // namespace Quilon_::ObjectSets::Classification::ImageSignature
