// Neighbourhood look-up tables: a binary rule on a point and its neighbours
// in a graph, given as a table from each configuration to the point's new
// value. Thinning, pruning and point-detection operators apply them:
//
//   using namespace Quilon_::Geometry;
//   System::Ref<INgbLUT> ends = NgbLUT::New(pnlEndPoints, pngSquare8);
//   ends->Size();            // one entry per configuration of the centre and its neighbours
//   ends->Value(code);       // 1 if that configuration is an end point
//
// How a configuration is coded as a number, and what each predefined rule
// says, is documented by the implementation library.
#pragma once

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/PredefinedNgbLUT.h"
#include "Quilon_/System/Collections/StringCollection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {

class QUILON_API INgbLUT : public virtual System::Interface {
    QUILON_INTERFACE(INgbLUT)
public:
    // The neighbours the configurations are made of.
    virtual System::Ref<INgbGraph> Graph() = 0;
    // The number of configurations, and so of entries.
    virtual std::int64_t Size() = 0;
    // The entry of one configuration; a code outside 0 .. Size() - 1
    // raises.
    virtual unsigned char Value(std::int64_t configuration) = 0;
    // Every entry, indexed by configuration.
    virtual std::vector<unsigned char> Table() = 0;
};

// 1: a predefined rule on a predefined graph; 2: on a graph; 3: a table
// given as text, one pattern per string, on a graph.
namespace NgbLUT {
using Reference = System::Ref<INgbLUT>;
using Factory =
    System::Functions::Template::Factory<Reference(PredefinedNgbLUTEnum, PredefinedNgbGraphEnum),
                                         Reference(PredefinedNgbLUTEnum, System::Ref<INgbGraph>),
                                         Reference(System::Ref<System::Collections::IStringCollection>,
                                                   System::Ref<INgbGraph>)>;
extern QUILON_API Factory New;
} // namespace NgbLUT

} // namespace Quilon_::Geometry
