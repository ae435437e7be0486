// Light and 2-D polylines.
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbBlockTableRecord.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbPolyline, OdDbCurve, ODRX_CREATE_IMPL(OdDbPolyline, OdDbPolyline))
ODRX_DEFINE_MEMBERS(OdDb2dVertex, OdDbEntity, ODRX_CREATE_IMPL(OdDb2dVertex, OdDb2dVertex))
ODRX_DEFINE_MEMBERS(OdDb2dPolyline, OdDbCurve, ODRX_CREATE_IMPL(OdDb2dPolyline, OdDb2dPolyline))

OdDbPolyline::OdDbPolyline()
{
  static const OdDbDxfPair defaults[] = {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(90, "0"),
                                         odPair(70, "0")};
  initData("LWPOLYLINE", defaults);
}

std::vector<OdDbPolyline::Vertex> OdDbPolyline::vertices() const
{
  std::vector<Vertex> out;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    switch (p.code) {
    case 10: out.emplace_back(); out.back().point.x = OdDxf::toDouble(p.value); break;
    case 20: if (!out.empty()) out.back().point.y = OdDxf::toDouble(p.value); break;
    case 40: if (!out.empty()) out.back().startWidth = OdDxf::toDouble(p.value); break;
    case 41: if (!out.empty()) out.back().endWidth = OdDxf::toDouble(p.value); break;
    case 42: if (!out.empty()) out.back().bulge = OdDxf::toDouble(p.value); break;
    default: break;
    }
  }
  return out;
}

// Vertices are rewritten as a whole: the per-vertex codes repeat, and only
// their order ties them together.
void OdDbPolyline::setVertices(const std::vector<Vertex>& list)
{
  OdDbDxfPairArray body;
  auto r = sectionRange(kSub);
  // With a constant width (43) the vertices carry no widths of their own.
  bool widths = findPair(kSub, 43) < 0;
  for (int i = r.first; i < r.second; ++i) {
    const int c = m_pairs[std::size_t(i)].code;
    if (c == 10 || c == 20 || c == 40 || c == 41 || c == 42 || c == 91)
      continue;
    if (c == 90)
      body.push_back({90, storeText(OdDxf::fromInt(long(list.size())))});
    else
      body.push_back(m_pairs[std::size_t(i)]);
  }
  for (const Vertex& v : list) {
    body.push_back({10, storeText(OdDxf::fromDouble(v.point.x))});
    body.push_back({20, storeText(OdDxf::fromDouble(v.point.y))});
    if (widths && (v.startWidth != 0.0 || v.endWidth != 0.0)) {
      body.push_back({40, storeText(OdDxf::fromDouble(v.startWidth))});
      body.push_back({41, storeText(OdDxf::fromDouble(v.endWidth))});
    }
    if (v.bulge != 0.0)
      body.push_back({42, storeText(OdDxf::fromDouble(v.bulge))});
  }
  replaceSection(kSub, body);
  if (findPair(kSub, 90) < 0)
    setInt(kSub, 90, long(list.size()));
}

void OdDbPolyline::getWidthsAt(unsigned index, double& startWidth, double& endWidth) const
{
  const Vertex v = vertices().at(index);
  startWidth = v.startWidth;
  endWidth = v.endWidth;
}

void OdDbPolyline::addVertexAt(unsigned index, const OdGePoint2d& p, double bulge, double startWidth, double endWidth)
{
  auto list = vertices();
  Vertex v;
  v.point = p;
  v.bulge = bulge;
  v.startWidth = startWidth < 0 ? 0.0 : startWidth;
  v.endWidth = endWidth < 0 ? 0.0 : endWidth;
  if (index > list.size())
    index = unsigned(list.size());
  list.insert(list.begin() + index, v);
  setVertices(list);
}

void OdDbPolyline::setPointAt(unsigned index, const OdGePoint2d& p)
{
  auto list = vertices();
  list.at(index).point = p;
  setVertices(list);
}

void OdDbPolyline::setBulgeAt(unsigned index, double bulge)
{
  auto list = vertices();
  list.at(index).bulge = bulge;
  setVertices(list);
}

void OdDbPolyline::removeVertexAt(unsigned index)
{
  auto list = vertices();
  list.erase(list.begin() + index);
  setVertices(list);
}

void OdDbPolyline::setClosed(bool closed)
{
  const long long f = getInt(kSub, 70, 0);
  setInt(kSub, 70, closed ? (f | 1) : (f & ~1));
}

OdDb2dVertex::OdDb2dVertex()
{
  static const OdDbDxfPair defaults[] = {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, "AcDbVertex"),
                                         odPair(100, kSub), odPair(10, "0.0"), odPair(20, "0.0"), odPair(30, "0.0"),
                                         odPair(70, "0")};
  initData("VERTEX", defaults);
}

OdDb2dPolyline::OdDb2dPolyline()
{
  static const OdDbDxfPair defaults[] = {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(66, "1"),
                                         odPair(10, "0.0"), odPair(20, "0.0"), odPair(30, "0.0"), odPair(70, "0")};
  initData("POLYLINE", defaults);
}

OdDbObjectIteratorPtr OdDb2dPolyline::vertexIterator() const
{
  return OdDbIdIterator::create<OdDbObjectIterator>(m_vertices.ids());
}

OdResult OdDb2dPolyline::erase(bool erasing)
{
  const OdResult r = OdDbObject::erase(erasing);
  if (r != eOk)
    return r;
  std::vector<OdDbObjectId> ids;
  m_vertices.collect(ids);
  for (const OdDbObjectId& id : ids)
    if (OdDbObjectPtr o = id.openObject(OdDb::kForWrite, true); o.get())
      o->erase(erasing);
  return eOk;
}
