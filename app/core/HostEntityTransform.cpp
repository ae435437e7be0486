// Similarity transforms of entities, kind by kind.
#include "app/core/HostEntityTransform.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbText.h"

#include <cmath>

namespace {

constexpr double kDegree = M_PI / 180.0;

// Every point of the listed codes in a section, and every vector of the
// listed vector codes, transformed in place: points of kinds that keep
// lists of them (splines, solids).
void transformPairs(OdDbEntity* e, const char* sub, std::initializer_list<int> pointCodes,
                    std::initializer_list<int> vectorCodes, const HostSimilarity& s)
{
  e->assertWriteEnabled();
  OdDbDxfPairArray& pairs = e->dxfPairs();
  const auto range = e->sectionRange(sub);
  auto isIn = [](int code, std::initializer_list<int> codes) {
    for (int c : codes)
      if (c == code)
        return true;
    return false;
  };
  for (int i = range.first; i < range.second; ++i) {
    const int code = pairs[std::size_t(i)].code;
    const bool point = isIn(code, pointCodes);
    if (!point && !isIn(code, vectorCodes))
      continue;
    OdGePoint3d p(OdDxf::toDouble(pairs[std::size_t(i)].value), 0.0, 0.0);
    int last = i;
    if (last + 1 < range.second && pairs[std::size_t(last + 1)].code == code + 10)
      p.y = OdDxf::toDouble(pairs[std::size_t(++last)].value);
    const bool hasZ = last + 1 < range.second && pairs[std::size_t(last + 1)].code == code + 20;
    if (hasZ)
      p.z = OdDxf::toDouble(pairs[std::size_t(++last)].value);
    const OdGePoint3d q = point ? s.apply(p) : OdGePoint3d() + s.applyToVector(p.asVector());
    const double values[3] = {q.x, q.y, q.z};
    for (int k = i; k <= last; ++k)
      pairs[std::size_t(k)].value = e->storeText(OdDxf::fromDouble(values[k - i]));
    i = last;
  }
}

void transformText(OdDbText* t, const HostSimilarity& s)
{
  const bool aligned = t->findPair(OdDbText::kSub, 11) >= 0;
  const OdGePoint3d alignment = t->alignmentPoint();
  t->setPosition(s.apply(t->position()));
  if (aligned)
    t->setAlignmentPoint(s.apply(alignment));
  t->setHeight(t->height() * s.factor());
  t->setRotation(t->rotation() + s.turn());
}

void transformHatch(OdDbHatch* h, const HostSimilarity& s)
{
  OdDbHatch::Data d = h->data();
  const double degrees = s.turn() / kDegree;
  d.elevationPoint.z = s.apply(d.elevationPoint).z;
  for (OdDbHatch::Loop& loop : d.loops) {
    for (OdGePoint2d& v : loop.vertices)
      v = s.apply(v);
    for (OdDbHatch::Edge& e : loop.edges) {
      switch (e.type) {
      case OdDbHatch::kLine:
        e.p1 = s.apply(e.p1);
        e.p2 = s.apply(e.p2);
        break;
      case OdDbHatch::kCirArc:
        e.p1 = s.apply(e.p1);
        e.radius *= s.factor();
        // Angles of clockwise edges run the other way.
        e.startAngle += e.ccw ? degrees : -degrees;
        e.endAngle += e.ccw ? degrees : -degrees;
        break;
      case OdDbHatch::kEllArc: {
        e.p1 = s.apply(e.p1);
        const OdGeVector3d axis = s.applyToVector(OdGeVector3d(e.p2.x, e.p2.y, 0.0));
        e.p2 = OdGePoint2d(axis.x, axis.y);
        break;
      }
      default:
        for (OdGePoint2d& p : e.controlPoints)
          p = s.apply(p);
        for (OdGePoint2d& p : e.fitPoints)
          p = s.apply(p);
        if (e.hasTangents) {
          const OdGeVector3d a = s.applyToVector(OdGeVector3d(e.startTangent.x, e.startTangent.y, 0.0));
          const OdGeVector3d b = s.applyToVector(OdGeVector3d(e.endTangent.x, e.endTangent.y, 0.0));
          e.startTangent = OdGeVector2d(a.x, a.y);
          e.endTangent = OdGeVector2d(b.x, b.y);
        }
        break;
      }
    }
  }
  for (OdGePoint2d& seed : d.seeds)
    seed = s.apply(seed);
  if (!d.solid) {
    d.angle += degrees;
    d.scale *= s.factor();
    for (OdDbHatch::PatternLine& line : d.lines) {
      line.angle += degrees;
      line.base = s.apply(line.base);
      const OdGeVector3d offset = s.applyToVector(OdGeVector3d(line.offset.x, line.offset.y, 0.0));
      line.offset = OdGeVector2d(offset.x, offset.y);
      for (double& dash : line.dashes)
        dash *= s.factor();
    }
  }
  if (d.hasGradient)
    d.gradientAngle += s.turn();
  h->setData(d);
}

} // namespace

double HostSimilarity::factor() const
{
  return std::fabs(scale);
}

double HostSimilarity::turn() const
{
  return rotation + (scale < 0.0 ? M_PI : 0.0);
}

OdGeVector3d HostSimilarity::applyToVector(const OdGeVector3d& v) const
{
  const double c = std::cos(turn()), s = std::sin(turn()), k = factor();
  return OdGeVector3d(k * (v.x * c - v.y * s), k * (v.x * s + v.y * c), k * v.z);
}

OdGePoint3d HostSimilarity::apply(const OdGePoint3d& p) const
{
  return insertion + applyToVector(p - base);
}

OdGePoint2d HostSimilarity::apply(const OdGePoint2d& p) const
{
  const OdGePoint3d q = apply(OdGePoint3d(p.x, p.y, base.z));
  return OdGePoint2d(q.x, q.y);
}

namespace HostEntityTransform {

bool transform(OdDbEntity* entity, const HostSimilarity& s)
{
  if (!entity)
    return false;
  // Entities out of the drawing's plane would need a full 3-D transform.
  const OdGeVector3d normal = entity->getVector(nullptr, 210, OdGeVector3d::kZAxis);
  if (!normal.isEqualTo(OdGeVector3d::kZAxis, 1e-12))
    return false;
  if (OdDbLinePtr l = OdDbLine::cast(entity); l.get()) {
    l->setStartPoint(s.apply(l->startPoint()));
    l->setEndPoint(s.apply(l->endPoint()));
  } else if (OdDbArcPtr a = OdDbArc::cast(entity); a.get()) {
    a->setCenter(s.apply(a->center()));
    a->setRadius(a->radius() * s.factor());
    a->setStartAngle(a->startAngle() + s.turn());
    a->setEndAngle(a->endAngle() + s.turn());
  } else if (OdDbCirclePtr c = OdDbCircle::cast(entity); c.get()) {
    c->setCenter(s.apply(c->center()));
    c->setRadius(c->radius() * s.factor());
  } else if (OdDbEllipsePtr el = OdDbEllipse::cast(entity); el.get()) {
    el->set(s.apply(el->center()), el->normal(), s.applyToVector(el->majorAxis()), el->radiusRatio(),
            el->startAngle(), el->endAngle());
  } else if (OdDbPointPtr pt = OdDbPoint::cast(entity); pt.get()) {
    pt->setPosition(s.apply(pt->position()));
  } else if (OdDbSolidPtr so = OdDbSolid::cast(entity); so.get()) {
    transformPairs(so, OdDbSolid::kSub, {10, 11, 12, 13}, {}, s);
  } else if (OdDbSplinePtr sp = OdDbSpline::cast(entity); sp.get()) {
    transformPairs(sp, OdDbSpline::kSub, {10, 11}, {12, 13}, s);
  } else if (OdDbPolylinePtr pl = OdDbPolyline::cast(entity); pl.get()) {
    std::vector<OdDbPolyline::Vertex> vertices = pl->vertices();
    for (OdDbPolyline::Vertex& v : vertices) {
      v.point = s.apply(v.point);
      v.startWidth *= s.factor();
      v.endWidth *= s.factor();
    }
    pl->setVertices(vertices);
    if (pl->findPair(OdDbPolyline::kSub, 43) >= 0)
      pl->setConstantWidth(pl->getConstantWidth() * s.factor());
    pl->setElevation(s.apply(OdGePoint3d(0, 0, pl->elevation())).z);
  } else if (OdDb2dPolylinePtr p2 = OdDb2dPolyline::cast(entity); p2.get()) {
    for (const OdDbObjectId& id : p2->vertexIds()) {
      OdDb2dVertexPtr v = OdDb2dVertex::cast(id.openObject(OdDb::kForWrite));
      if (v.isNull())
        continue;
      v->setPosition(s.apply(v->position()));
      v->setStartWidth(v->startWidth() * s.factor());
      v->setEndWidth(v->endWidth() * s.factor());
    }
    p2->setElevation(s.apply(OdGePoint3d(0, 0, p2->elevation())).z);
  } else if (OdDbTextPtr t = OdDbText::cast(entity); t.get()) {
    transformText(t, s);
  } else if (OdDbMTextPtr m = OdDbMText::cast(entity); m.get()) {
    m->setLocation(s.apply(m->location()));
    m->setTextHeight(m->textHeight() * s.factor());
    m->setWidth(m->width() * s.factor());
    if (m->findPair(OdDbMText::kSub, 11) >= 0)
      m->setVector(OdDbMText::kSub, 11, s.applyToVector(m->direction()));
    else
      m->setRotation(m->rotation() + s.turn());
  } else if (OdDbBlockReferencePtr r = OdDbBlockReference::cast(entity); r.get()) {
    const OdGeScale3d k = r->scaleFactors();
    r->setPosition(s.apply(r->position()));
    r->setScaleFactors(OdGeScale3d(k.sx * s.factor(), k.sy * s.factor(), k.sz * s.factor()));
    r->setRotation(r->rotation() + s.turn());
    for (const OdDbObjectId& id : r->attributeIds())
      if (OdDbAttributePtr att = OdDbAttribute::cast(id.openObject(OdDb::kForWrite)); att.get())
        transformText(att, s);
  } else if (OdDbHatchPtr h = OdDbHatch::cast(entity); h.get()) {
    transformHatch(h, s);
  } else if (OdDbRasterImagePtr img = OdDbRasterImage::cast(entity); img.get()) {
    transformPairs(img, OdDbRasterImage::kSub, {10}, {11, 12}, s);
  } else {
    return false;
  }
  return true;
}

} // namespace HostEntityTransform
