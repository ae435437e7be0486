// Result buffers: values by kind, converted on reading.
#include "sdk/db/OdResBuf.h"
#include "sdk/db/OdDbDxfPairs.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdResBuf, OdRxObject, ODRX_CREATE_IMPL(OdResBuf, OdResBuf))

OdResBufPtr OdResBuf::newRb(int type)
{
  OdResBufPtr rb = createObject();
  rb->m_type = type;
  return rb;
}

OdResBuf::Kind OdResBuf::kindOf(int type)
{
  switch (type) {
  case kRtNone: case kRtVoid: case kRtNil: return kNone;
  case kRtDouble: case kRtAngle: case kRtOrient: return kReal;
  case kRtInt8: case kRtInt16: case kRtInt32: case kRtInt64: case kRtBool: case kRtT: return kInteger;
  case kRtString: return kText;
  case kRtPoint2d: case kRtPoint3d: return kPoint;
  case kRtEntName: return kObjectId;
  case kRtColor: return kColor;
  default: break;
  }
  // Group codes: the first coordinate of a point stands for the point.
  if ((type >= 10 && type <= 18) || (type >= 1010 && type <= 1013))
    return kPoint;
  switch (OdDxf::codeType(type)) {
  case OdDxf::kDouble: return kReal;
  case OdDxf::kInt16: case OdDxf::kInt32: case OdDxf::kInt64: case OdDxf::kBool: return kInteger;
  case OdDxf::kHandle: return kObjectId;
  default: return kText;
  }
}

double OdResBuf::getDouble() const
{
  if (const double* d = std::get_if<double>(&m_value))
    return *d;
  if (const std::int64_t* i = std::get_if<std::int64_t>(&m_value))
    return double(*i);
  return 0.0;
}

std::int64_t OdResBuf::getInt64() const
{
  if (const std::int64_t* i = std::get_if<std::int64_t>(&m_value))
    return *i;
  if (const double* d = std::get_if<double>(&m_value))
    return std::isfinite(*d) ? std::int64_t(*d) : 0;
  return 0;
}

OdString OdResBuf::getString() const
{
  const OdString* s = std::get_if<OdString>(&m_value);
  return s ? *s : OdString();
}

OdGePoint3d OdResBuf::getPoint3d() const
{
  const OdGePoint3d* p = std::get_if<OdGePoint3d>(&m_value);
  return p ? *p : OdGePoint3d();
}

OdGePoint2d OdResBuf::getPoint2d() const
{
  const OdGePoint3d p = getPoint3d();
  return OdGePoint2d(p.x, p.y);
}

OdDbObjectId OdResBuf::getObjectId() const
{
  const OdDbObjectId* id = std::get_if<OdDbObjectId>(&m_value);
  return id ? *id : OdDbObjectId();
}

OdCmColor OdResBuf::getColor() const
{
  if (const OdCmColor* c = std::get_if<OdCmColor>(&m_value))
    return *c;
  // A bare number is a colour index, as the older variables keep colours.
  OdCmColor c;
  if (std::holds_alternative<std::int64_t>(m_value))
    c.setColorIndex(std::int16_t(getInt64()));
  return c;
}

OdResBuf* OdResBuf::setDouble(double value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setInt64(std::int64_t value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setString(const OdString& value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setPoint3d(const OdGePoint3d& value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setObjectId(const OdDbObjectId& value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setColor(const OdCmColor& value)
{
  m_value = value;
  return this;
}

OdResBuf* OdResBuf::setNext(const OdResBufPtr& next)
{
  m_next = next;
  return this;
}

OdResBuf* OdResBuf::last()
{
  OdResBuf* rb = this;
  while (rb->m_next.get())
    rb = rb->m_next.get();
  return rb;
}
