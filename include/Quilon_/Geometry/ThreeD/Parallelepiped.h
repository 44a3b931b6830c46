// A 3-D parallelepiped: a corner and three edges, which need not be
// orthogonal.
//
//   p->SetEdgeU(CoordinatesF::New(2.0f, 0.0f, 0.0f, Axes::aXYZ));
//   Ref<ICoordinatesF> far = p->Corner(7);   // origin + u + v + w
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IParallelepipedF : public virtual IBoxedF {
    QUILON_INTERFACE(IParallelepipedF)
public:
    virtual System::Ref<ICoordinatesF> Origin() = 0;
    virtual void SetOrigin(System::Ref<ICoordinatesF> origin) = 0;
    virtual System::Ref<ICoordinatesF> EdgeU() = 0;
    virtual void SetEdgeU(System::Ref<ICoordinatesF> edge) = 0;
    virtual System::Ref<ICoordinatesF> EdgeV() = 0;
    virtual void SetEdgeV(System::Ref<ICoordinatesF> edge) = 0;
    virtual System::Ref<ICoordinatesF> EdgeW() = 0;
    virtual void SetEdgeW(System::Ref<ICoordinatesF> edge) = 0;
    // Corner i, 0 to 7, adds edge u for bit 0, v for bit 1, w for bit 2.
    virtual System::Ref<ICoordinatesF> Corner(std::int64_t index) = 0;
    // The outward unit normal of face 0 to 5: -u, +u, -v, +v, -w, +w.
    virtual System::Ref<ICoordinatesF> FaceNormal(std::int64_t face) = 0;
    // Whether the three edges are orthogonal within the approximator's
    // tolerance.
    virtual bool IsRectangular() = 0;
    // Makes v and w orthogonal to u and to each other, keeping u.
    virtual void Orthogonalize() = 0;
};

} // namespace Quilon_::Geometry::ThreeD
