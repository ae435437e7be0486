// Polylines: the light one (LWPOLYLINE) and the 2-D one with vertex entities.
#pragma once

#include "sdk/db/OdDbSubEntities.h"

// Vertices are 2-D in the plane of the polyline (elevation, normal); each
// may carry a bulge (tan of a quarter of the arc angle) and widths.
class OdDbPolyline : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDbPolyline);

public:
  static constexpr const char* kSub = "AcDbPolyline";
  struct Vertex
  {
    OdGePoint2d point;
    double startWidth = 0.0, endWidth = 0.0, bulge = 0.0;
  };

  unsigned numVerts() const { return unsigned(vertices().size()); }
  void getPointAt(unsigned index, OdGePoint2d& p) const { p = vertices().at(index).point; }
  double getBulgeAt(unsigned index) const { return vertices().at(index).bulge; }
  void getWidthsAt(unsigned index, double& startWidth, double& endWidth) const;
  void addVertexAt(unsigned index, const OdGePoint2d& p, double bulge = 0.0, double startWidth = -1.0, double endWidth = -1.0);
  void setPointAt(unsigned index, const OdGePoint2d& p);
  void setBulgeAt(unsigned index, double bulge);
  void removeVertexAt(unsigned index);
  bool isClosed() const { return (getInt(kSub, 70, 0) & 1) != 0; }
  void setClosed(bool closed);
  double getConstantWidth() const { return getDouble(kSub, 43, 0.0); }
  void setConstantWidth(double w) { setDouble(kSub, 43, w); }
  double elevation() const { return getDouble(kSub, 38, 0.0); }
  void setElevation(double e) { setDouble(kSub, 38, e); }
  OdGeVector3d normal() const { return getVector(kSub, 210, OdGeVector3d::kZAxis); }

  std::vector<Vertex> vertices() const;
  void setVertices(const std::vector<Vertex>& list);

protected:
  OdDbPolyline();
};
using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;

class OdDb2dVertex : public OdDbEntity
{
  ODRX_DECLARE_MEMBERS(OdDb2dVertex);

public:
  static constexpr const char* kSub = "AcDb2dVertex";
  OdGePoint3d position() const { return getPoint(kSub, 10); }
  void setPosition(const OdGePoint3d& p) { setPoint(kSub, 10, p); }
  double bulge() const { return getDouble(kSub, 42, 0.0); }
  void setBulge(double b) { setDouble(kSub, 42, b); }
  double startWidth() const { return getDouble(kSub, 40, 0.0); }
  void setStartWidth(double w) { setDouble(kSub, 40, w); }
  double endWidth() const { return getDouble(kSub, 41, 0.0); }
  void setEndWidth(double w) { setDouble(kSub, 41, w); }

protected:
  OdDb2dVertex();
};
using OdDb2dVertexPtr = OdSmartPtr<OdDb2dVertex>;

// POLYLINE: its vertices are entities of their own, owned by it.
class OdDb2dPolyline : public OdDbCurve
{
  ODRX_DECLARE_MEMBERS(OdDb2dPolyline);

public:
  static constexpr const char* kSub = "AcDb2dPolyline";
  OdDbObjectId appendVertex(OdDb2dVertex* vertex) { return m_vertices.append(this, vertex); }
  OdDbObjectIteratorPtr vertexIterator() const;
  std::vector<OdDbObjectId> vertexIds() const { return m_vertices.ids(); }
  bool isClosed() const { return (polyFlags() & 1) != 0; }
  void makeClosed() { setPolyFlags(polyFlags() | 1); }
  void makeOpen() { setPolyFlags(polyFlags() & ~1); }
  int polyFlags() const { return int(getInt(nullptr, 70, 0)); }
  void setPolyFlags(int f) { setInt(nullptr, 70, f); }
  double elevation() const { return getPoint(nullptr, 10).z; }
  void setElevation(double e) { setPoint(kSub, 10, OdGePoint3d(0, 0, e)); }
  double defaultStartWidth() const { return getDouble(nullptr, 40, 0.0); }
  double defaultEndWidth() const { return getDouble(nullptr, 41, 0.0); }

  OdDbSubEntities& subEntities() { return m_vertices; }
  void subAddedToDatabase() override { m_vertices.addedToDatabase(this); }
  void ownedSubObjects(std::vector<OdDbObjectId>& ids) const override { m_vertices.collect(ids); }
  OdResult erase(bool erasing = true) override;

protected:
  OdDb2dPolyline();

private:
  OdDbSubEntities m_vertices;
};
using OdDb2dPolylinePtr = OdSmartPtr<OdDb2dPolyline>;
