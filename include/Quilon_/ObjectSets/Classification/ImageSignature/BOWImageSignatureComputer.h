// Bag-of-words signatures of images: the descriptors of an image's key
// points assigned to the nearest words of a vocabulary, counted into one
// histogram per image. The concrete computer comes from an implementation
// library:
//
//   using namespace Quilon_::ObjectSets::Classification::ImageSignature;
//   System::Ref<IBOWImageSignatureComputer> computer = BOWImageSignatureComputer::New();
//   computer->SetVocabulary(words);
//   std::vector<double> signature = computer->Compute(image);
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::ObjectSets {
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::ObjectSets::Classification::ImageSignature {

class QUILON_API IBOWImageSignatureComputer : public virtual System::Interface {
    QUILON_INTERFACE(IBOWImageSignatureComputer)
public:
    // The words: one object per word, its descriptor in an attribute.
    virtual System::Pointer<IObjectSet, 0> Vocabulary() = 0;
    virtual void SetVocabulary(System::Ref<IObjectSet> words) = 0;
    virtual std::int64_t WordCount() = 0;
    // The normalised count of each word in the image.
    virtual std::vector<double> Compute(System::Ref<Images::IImage> image) = 0;
};

namespace BOWImageSignatureComputer {
using Factory = System::Functions::Template::Factory<System::Ref<IBOWImageSignatureComputer>()>;
extern QUILON_API Factory New;
} // namespace BOWImageSignatureComputer

} // namespace Quilon_::ObjectSets::Classification::ImageSignature
