// Linetype records: the dash list is read and rewritten as a whole.
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbLinetypeTableRecord, OdDbSymbolTableRecord,
                    ODRX_CREATE_IMPL(OdDbLinetypeTableRecord, OdDbLinetypeTableRecord))

OdDbLinetypeTableRecord::OdDbLinetypeTableRecord()
{
  initRecord("LTYPE", kSub, {odPair(2, ""), odPair(70, "0"), odPair(3, ""), odPair(72, "65"), odPair(73, "0"), odPair(40, "0.0")});
}

// Each dash starts with its code 49; what follows up to the next 49 belongs
// to it (74 flags, then shape or text values).
std::vector<OdDbLinetypeTableRecord::Dash> OdDbLinetypeTableRecord::dashes() const
{
  std::vector<Dash> out;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    if (p.code == 49) {
      out.emplace_back();
      out.back().length = OdDxf::toDouble(p.value);
      continue;
    }
    if (out.empty())
      continue;
    Dash& d = out.back();
    switch (p.code) {
    case 74: d.flags = int(OdDxf::toInt(p.value)); break;
    case 75: d.shapeNumber = int(OdDxf::toInt(p.value)); break;
    case 340: d.style = std::string(OdDxf::trim(p.value)); break;
    case 46: d.scale = OdDxf::toDouble(p.value, 1.0); break;
    case 50: d.rotation = OdDxf::toDouble(p.value); break;
    case 44: d.offsetX = OdDxf::toDouble(p.value); break;
    case 45: d.offsetY = OdDxf::toDouble(p.value); break;
    case 9: d.text = OdDxf::toOdString(p.value); break;
    default: break;
    }
  }
  return out;
}

void OdDbLinetypeTableRecord::setDashes(const std::vector<Dash>& list)
{
  auto r = sectionRange(kSub);
  // Keep the record's own values, which stand before the first dash.
  OdDbDxfPairArray body;
  for (int i = r.first; i < r.second; ++i) {
    if (m_pairs[std::size_t(i)].code == 49)
      break;
    if (m_pairs[std::size_t(i)].code != 73)
      body.push_back(m_pairs[std::size_t(i)]);
  }
  body.push_back(OdDbDxfPair{73, storeText(OdDxf::fromInt(long(list.size())))});
  if (findPair(kSub, 40) < 0)
    body.push_back(OdDbDxfPair{40, "0.0"});
  for (const Dash& d : list) {
    body.push_back(OdDbDxfPair{49, storeText(OdDxf::fromDouble(d.length))});
    body.push_back(OdDbDxfPair{74, storeText(OdDxf::fromInt(d.flags))});
    // Readers expect the whole set of values behind a shape or text flag.
    if (d.isComplex()) {
      body.push_back(OdDbDxfPair{75, storeText(OdDxf::fromInt((d.flags & 2) ? 0 : d.shapeNumber))});
      body.push_back(OdDbDxfPair{340, storeText(d.style.empty() ? std::string("0") : d.style)});
      body.push_back(OdDbDxfPair{46, storeText(OdDxf::fromDouble(d.scale))});
      body.push_back(OdDbDxfPair{50, storeText(OdDxf::fromDouble(d.rotation))});
      body.push_back(OdDbDxfPair{44, storeText(OdDxf::fromDouble(d.offsetX))});
      body.push_back(OdDbDxfPair{45, storeText(OdDxf::fromDouble(d.offsetY))});
      if (d.flags & 2)
        body.push_back(OdDbDxfPair{9, storeText(OdDxf::fromOdString(d.text))});
    }
  }
  replaceSection(kSub, body);
}

OdDbLinetypeTableRecord::Dash OdDbLinetypeTableRecord::dash(int i) const
{
  const auto list = dashes();
  if (i < 0 || i >= int(list.size()))
    throw OdError(eInvalidInput, OdString::formatted("dash index %d out of range", i));
  return list[std::size_t(i)];
}

template <class F>
void OdDbLinetypeTableRecord::editDash(int i, F f)
{
  auto list = dashes();
  if (i < 0 || i >= int(list.size()))
    throw OdError(eInvalidInput, OdString::formatted("dash index %d out of range", i));
  f(list[std::size_t(i)]);
  setDashes(list);
}

void OdDbLinetypeTableRecord::setNumDashes(int count)
{
  auto list = dashes();
  list.resize(std::size_t(count < 0 ? 0 : count));
  setDashes(list);
}

void OdDbLinetypeTableRecord::setDashLengthAt(int i, double length)
{
  editDash(i, [&](Dash& d) { d.length = length; });
}

OdDbObjectId OdDbLinetypeTableRecord::shapeStyleAt(int i) const
{
  const Dash d = dash(i);
  OdDbDatabase* db = database();
  if (!db || d.style.empty() || d.style == "0")
    return OdDbObjectId();
  return db->getOdDbObjectId(OdDbHandle::fromText(d.style));
}

void OdDbLinetypeTableRecord::setShapeStyleAt(int i, OdDbObjectId styleId)
{
  editDash(i, [&](Dash& d) {
    d.style = styleId.isNull() ? std::string() : styleId.getHandle().text();
    if (!styleId.isNull() && !(d.flags & 6))
      d.flags |= 4;
  });
}

void OdDbLinetypeTableRecord::setShapeNumberAt(int i, int number)
{
  editDash(i, [&](Dash& d) {
    d.shapeNumber = number;
    if (number != 0 && !(d.flags & 2))
      d.flags |= 4;
  });
}

void OdDbLinetypeTableRecord::setShapeOffsetAt(int i, const OdGeVector2d& offset)
{
  editDash(i, [&](Dash& d) { d.offsetX = offset.x; d.offsetY = offset.y; });
}

void OdDbLinetypeTableRecord::setShapeScaleAt(int i, double scale)
{
  editDash(i, [&](Dash& d) { d.scale = scale; });
}

void OdDbLinetypeTableRecord::setShapeRotationAt(int i, double rotation)
{
  editDash(i, [&](Dash& d) { d.rotation = rotation; });
}

void OdDbLinetypeTableRecord::setShapeIsUcsOrientedAt(int i, bool oriented)
{
  editDash(i, [&](Dash& d) { d.flags = oriented ? (d.flags | 1) : (d.flags & ~1); });
}

void OdDbLinetypeTableRecord::setTextAt(int i, const OdString& text)
{
  editDash(i, [&](Dash& d) {
    d.text = text;
    if (text.isEmpty())
      d.flags &= ~2;
    else
      d.flags = (d.flags & ~4) | 2;
  });
}
