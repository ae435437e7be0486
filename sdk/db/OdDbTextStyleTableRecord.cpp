// Text style records: flags, angles in degrees in the file, font in xdata.
#include "sdk/db/OdDbTextStyleTableRecord.h"

#include "sdk/kernel/OdRxClass.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbTextStyleTableRecord, OdDbSymbolTableRecord,
                    ODRX_CREATE_IMPL(OdDbTextStyleTableRecord, OdDbTextStyleTableRecord))

OdDbTextStyleTableRecord::OdDbTextStyleTableRecord()
{
  initRecord("STYLE", kSub,
             {odPair(2, ""), odPair(70, "0"), odPair(40, "0.0"), odPair(41, "1.0"), odPair(50, "0.0"),
              odPair(71, "0"), odPair(42, "2.5"), odPair(3, "txt"), odPair(4, "")});
}

double OdDbTextStyleTableRecord::obliquingAngle() const
{
  return getDouble(kSub, 50, 0.0) * M_PI / 180.0;
}

void OdDbTextStyleTableRecord::setObliquingAngle(double angle)
{
  setDouble(kSub, 50, angle * 180.0 / M_PI);
}

void OdDbTextStyleTableRecord::setBit(int code, int bit, bool on)
{
  const long long v = getInt(kSub, code, 0);
  setInt(kSub, code, on ? (v | bit) : (v & ~bit));
}

void OdDbTextStyleTableRecord::font(OdString& typeface, bool& bold, bool& italic, int& charset, int& pitchAndFamily) const
{
  typeface.empty();
  bold = italic = false;
  charset = pitchAndFamily = 0;
  for (const OdDbDxfPair& p : xData("ACAD")) {
    if (p.code == 1000) {
      typeface = OdDxf::toOdString(p.value);
    } else if (p.code == 1071) {
      // Packed: italic 0x1000000, bold 0x2000000, character set in the
      // second byte, pitch and family in the lowest.
      const auto v = std::uint32_t(OdDxf::toInt(p.value));
      italic = (v & 0x1000000) != 0;
      bold = (v & 0x2000000) != 0;
      charset = int((v >> 8) & 0xFF);
      pitchAndFamily = int(v & 0xFF);
    }
  }
}

void OdDbTextStyleTableRecord::setFont(const OdString& typeface, bool bold, bool italic, int charset, int pitchAndFamily)
{
  if (typeface.isEmpty()) {
    setXData("ACAD", {});
    return;
  }
  const std::uint32_t flags = (italic ? 0x1000000u : 0u) | (bold ? 0x2000000u : 0u) |
                              (std::uint32_t(charset & 0xFF) << 8) | std::uint32_t(pitchAndFamily & 0xFF);
  const std::string face = OdDxf::fromOdString(typeface);
  const std::string packed = OdDxf::fromInt(flags);
  setXData("ACAD", {OdDbDxfPair{1000, face}, OdDbDxfPair{1071, packed}});
}
