// A 3-D polyhedron: vertices and the faces that index them. A face lists
// its vertices counter-clockwise as seen from outside.
//
//   std::int64_t f = solid->AddFace({0, 1, 2});
//   solid->FaceArea(f);
#pragma once

#include "Quilon_/Geometry/ThreeD/BoxedF.h"

#include <vector>

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IPolyhedronF : public virtual IBoxedF {
    QUILON_INTERFACE(IPolyhedronF)
public:
    // The shape's own list, not a copy.
    virtual System::Ref<ICoordinatesFCollection> Vertices() = 0;
    virtual void SetVertices(System::Ref<ICoordinatesFCollection> vertices) = 0;
    virtual std::int64_t VertexCount() = 0;
    virtual System::Ref<ICoordinatesF> Vertex(std::int64_t index) = 0;
    virtual void SetVertex(std::int64_t index, System::Ref<ICoordinatesF> vertex) = 0;
    virtual std::int64_t FaceCount() = 0;
    // The vertex indexes of a face.
    virtual std::vector<std::int64_t> Face(std::int64_t index) = 0;
    virtual void SetFace(std::int64_t index, const std::vector<std::int64_t>& vertices) = 0;
    virtual std::int64_t AddFace(const std::vector<std::int64_t>& vertices) = 0;
    virtual bool RemoveFace(std::int64_t index) = 0;
    virtual System::Ref<ICoordinatesF> FaceNormal(std::int64_t index) = 0;
    virtual double FaceArea(std::int64_t index) = 0;
    virtual double SurfaceArea() = 0;
    // Whether every edge is shared by exactly two faces.
    virtual bool IsClosed() = 0;
    virtual void Clear() = 0;
    // Splits every face into triangles.
    virtual void Triangulate() = 0;
};

} // namespace Quilon_::Geometry::ThreeD
