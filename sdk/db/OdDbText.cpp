// Text entities: angles in degrees in the file, styles by name.
#include "sdk/db/OdDbText.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbSymbolTable.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbText, OdDbEntity, ODRX_CREATE_IMPL(OdDbText, OdDbText))
ODRX_DEFINE_MEMBERS(OdDbAttributeDefinition, OdDbText, ODRX_CREATE_IMPL(OdDbAttributeDefinition, OdDbAttributeDefinition))
ODRX_DEFINE_MEMBERS(OdDbAttribute, OdDbText, ODRX_CREATE_IMPL(OdDbAttribute, OdDbAttribute))
ODRX_DEFINE_MEMBERS(OdDbMText, OdDbEntity, ODRX_CREATE_IMPL(OdDbMText, OdDbMText))

namespace {
constexpr double kDeg = 180.0 / M_PI;

OdDbObjectId styleByName(const OdDbObject* o, const OdString& name)
{
  OdDbDatabase* db = o->database();
  return db ? db->recordId(db->getTextStyleTableId(), name) : OdDbObjectId();
}

OdString recordName(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  return r.isNull() ? OdString() : r->getName();
}
} // namespace

OdDbText::OdDbText()
{
  initData("TEXT", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(10, "0.0"), odPair(20, "0.0"),
                    odPair(30, "0.0"), odPair(40, "2.5"), odPair(1, ""), odPair(100, kSub)});
}

double OdDbText::rotation() const { return getDouble(kSub, 50, 0.0) / kDeg; }
void OdDbText::setRotation(double a) { setDouble(kSub, 50, a * kDeg); }
double OdDbText::oblique() const { return getDouble(kSub, 51, 0.0) / kDeg; }
void OdDbText::setOblique(double a) { setDouble(kSub, 51, a * kDeg); }
void OdDbText::setVerticalMode(int mode)
{
  if (verticalSub() != kSub) {
    setInt(verticalSub(), 74, mode);
    return;
  }
  if (findPair(kSub, 73) >= 0) {
    setInt(kSub, 73, mode);
    return;
  }
  // Plain text keeps code 73 in its second AcDbText section.
  assertWriteEnabled();
  int last = -1;
  for (std::size_t i = 0; i < m_pairs.size() && m_pairs[i].code != 1001; ++i)
    if (m_pairs[i].code == 100 && m_pairs[i].value == kSub)
      last = int(i);
  if (last < 0)
    last = ensureSection(kSub) - 1;
  m_pairs.insert(m_pairs.begin() + last + 1, OdDbDxfPair{73, storeText(OdDxf::fromInt(mode))});
}

OdDbObjectId OdDbText::textStyle() const { return styleByName(this, textStyleName()); }
void OdDbText::setTextStyle(OdDbObjectId id)
{
  const OdString name = recordName(id);
  if (!name.isEmpty())
    setString(kSub, 7, name);
}

OdDbAttributeDefinition::OdDbAttributeDefinition()
{
  initData("ATTDEF", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(10, "0.0"), odPair(20, "0.0"),
                      odPair(30, "0.0"), odPair(40, "2.5"), odPair(1, ""), odPair(100, kDefSub), odPair(280, "0"),
                      odPair(3, ""), odPair(2, ""), odPair(70, "0")});
}

void OdDbAttributeDefinition::setFlag(int bit, bool on)
{
  const long long f = getInt(kDefSub, 70, 0);
  setInt(kDefSub, 70, on ? (f | bit) : (f & ~bit));
}

OdDbAttribute::OdDbAttribute()
{
  initData("ATTRIB", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(10, "0.0"), odPair(20, "0.0"),
                      odPair(30, "0.0"), odPair(40, "2.5"), odPair(1, ""), odPair(100, kAttSub), odPair(280, "0"),
                      odPair(2, ""), odPair(70, "0")});
}

void OdDbAttribute::setInvisible(bool on)
{
  const long long f = getInt(kAttSub, 70, 0);
  setInt(kAttSub, 70, on ? (f | 1) : (f & ~1));
}

void OdDbAttribute::setAttributeFromBlock(const OdDbAttributeDefinition* def, const OdGePoint3d& offset)
{
  if (!def)
    return;
  setPropertiesFrom(def);
  setTag(def->tag());
  setTextString(def->textString());
  const OdGePoint3d p = def->position();
  setPosition(OdGePoint3d(p.x + offset.x, p.y + offset.y, p.z + offset.z));
  setHeight(def->height());
  setRotation(def->rotation());
  setString(kSub, 7, def->textStyleName());
  setInvisible(def->isInvisible());
}

OdDbMText::OdDbMText()
{
  initData("MTEXT", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, kSub), odPair(10, "0.0"), odPair(20, "0.0"),
                     odPair(30, "0.0"), odPair(40, "2.5"), odPair(41, "0.0"), odPair(71, "1"), odPair(72, "5"),
                     odPair(1, "")});
}

OdString OdDbMText::contents() const
{
  std::string text;
  auto r = sectionRange(kSub);
  for (int i = r.first; i < r.second; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    if (p.code == 3 || p.code == 1)
      text.append(p.value);
  }
  return OdDxf::toOdString(text);
}

void OdDbMText::setContents(const OdString& text)
{
  removeCode(kSub, 3);
  const std::string utf8 = OdDxf::fromOdString(text);
  // Pieces of at most 250 bytes, never cutting a UTF-8 sequence.
  std::vector<std::string_view> pieces;
  std::size_t pos = 0;
  while (utf8.size() - pos > 250) {
    std::size_t n = 250;
    while (n > 0 && (static_cast<unsigned char>(utf8[pos + n]) & 0xC0) == 0x80)
      --n;
    pieces.push_back(std::string_view(utf8).substr(pos, n));
    pos += n;
  }
  setRaw(kSub, 1, std::string_view(utf8).substr(pos));
  int at = findPair(kSub, 1);
  for (const auto& piece : pieces)
    m_pairs.insert(m_pairs.begin() + at++, OdDbDxfPair{3, storeText(piece)});
}

OdDbObjectId OdDbMText::textStyle() const { return styleByName(this, textStyleName()); }
void OdDbMText::setTextStyle(OdDbObjectId id)
{
  const OdString name = recordName(id);
  if (!name.isEmpty())
    setString(kSub, 7, name);
}
