#include "Quilon_/ObjectSets/Classification/ImageSignature/BOWImageSignatureComputer.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::ObjectSets::Classification::ImageSignature {

QUILON_DEFINE_INTERFACE_TYPE(
    IBOWImageSignatureComputer,
    L"Quilon_::ObjectSets::Classification::ImageSignature::IBOWImageSignatureComputer", System::Interface)

BOWImageSignatureComputer::Factory BOWImageSignatureComputer::New;

} // namespace Quilon_::ObjectSets::Classification::ImageSignature
