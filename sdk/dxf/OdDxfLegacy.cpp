// Subclass markers for objects read from files that predate them.
#include "sdk/dxf/OdDxfLegacy.h"

#include <algorithm>

namespace {

bool isCommonEntityCode(int c)
{
  switch (c) {
  case 8: case 6: case 62: case 48: case 60: case 67: case 370: case 420: case 430: case 440: case 347: case 390: case 284:
    return true;
  default:
    return false;
  }
}

const char* recordMarker(const std::string& t)
{
  if (t == "LAYER") return "AcDbLayerTableRecord";
  if (t == "LTYPE") return "AcDbLinetypeTableRecord";
  if (t == "STYLE") return "AcDbTextStyleTableRecord";
  if (t == "DIMSTYLE") return "AcDbDimStyleTableRecord";
  if (t == "VPORT") return "AcDbViewportTableRecord";
  if (t == "VIEW") return "AcDbViewTableRecord";
  if (t == "UCS") return "AcDbUCSTableRecord";
  if (t == "APPID") return "AcDbRegAppTableRecord";
  if (t == "BLOCK_RECORD") return "AcDbBlockTableRecord";
  return nullptr;
}

long long intOf(const OdDbDxfPairArray& pairs, int code, long long def)
{
  for (const OdDbDxfPair& p : pairs)
    if (p.code == code)
      return OdDxf::toInt(p.value, def);
  return def;
}

bool isDimSpecific(int c)
{
  return (c >= 13 && c <= 16) || (c >= 23 && c <= 26) || (c >= 33 && c <= 36) || c == 40 || c == 50 || c == 52;
}

// The markers of an entity type, and for each pair which of them holds it.
struct Split
{
  std::vector<const char*> markers;
  int (*which)(int code) = [](int) { return 0; };
};

Split splitFor(const std::string& t, const OdDbDxfPairArray& body)
{
  Split s;
  if (t == "LINE") s.markers = {"AcDbLine"};
  else if (t == "POINT") s.markers = {"AcDbPoint"};
  else if (t == "CIRCLE") s.markers = {"AcDbCircle"};
  else if (t == "ARC") {
    s.markers = {"AcDbCircle", "AcDbArc"};
    s.which = [](int c) { return (c == 50 || c == 51) ? 1 : 0; };
  } else if (t == "SOLID" || t == "TRACE") s.markers = {"AcDbTrace"};
  else if (t == "3DFACE") s.markers = {"AcDbFace"};
  else if (t == "SHAPE") s.markers = {"AcDbShape"};
  else if (t == "INSERT") s.markers = {"AcDbBlockReference"};
  else if (t == "VIEWPORT") s.markers = {"AcDbViewport"};
  else if (t == "BLOCK") s.markers = {"AcDbBlockBegin"};
  else if (t == "ENDBLK") s.markers = {"AcDbBlockEnd"};
  else if (t == "TEXT") {
    s.markers = {"AcDbText", "AcDbText"};
    s.which = [](int c) { return c == 73 ? 1 : 0; };
  } else if (t == "ATTRIB") {
    s.markers = {"AcDbText", "AcDbAttribute"};
    s.which = [](int c) { return (c == 2 || c == 70 || c == 73 || c == 74 || c == 280) ? 1 : 0; };
  } else if (t == "ATTDEF") {
    s.markers = {"AcDbText", "AcDbAttributeDefinition"};
    s.which = [](int c) { return (c == 2 || c == 3 || c == 70 || c == 73 || c == 74 || c == 280) ? 1 : 0; };
  } else if (t == "POLYLINE") {
    const long long f = intOf(body, 70, 0);
    s.markers = {(f & 64) ? "AcDbPolyFaceMesh" : (f & 16) ? "AcDbPolygonMesh" : (f & 8) ? "AcDb3dPolyline" : "AcDb2dPolyline"};
  } else if (t == "VERTEX") {
    const long long f = intOf(body, 70, 0);
    if ((f & 128) && !(f & 64))
      s.markers = {"AcDbFaceRecord"};
    else
      s.markers = {"AcDbVertex", (f & 64) ? "AcDbPolyFaceMeshVertex" : (f & 32) ? "AcDb3dPolylineVertex" : (f & 16) ? "AcDbPolygonMeshVertex" : "AcDb2dVertex"};
    s.which = [](int) { return 1; };
    if (s.markers.size() == 1)
      s.which = [](int) { return 0; };
  } else if (t == "DIMENSION") {
    static const char* const kinds[] = {"AcDbRotatedDimension", "AcDbAlignedDimension", "AcDb2LineAngularDimension",
                                        "AcDbDiametricDimension", "AcDbRadialDimension", "AcDb3PointAngularDimension",
                                        "AcDbOrdinateDimension"};
    const long long type = intOf(body, 70, 0) & 7;
    if (type == 0) {
      s.markers = {"AcDbDimension", "AcDbAlignedDimension", "AcDbRotatedDimension"};
      s.which = [](int c) {
        if (c == 50 || c == 52) return 2;
        return ((c >= 13 && c <= 14) || (c >= 23 && c <= 24) || (c >= 33 && c <= 34)) ? 1 : 0;
      };
    } else {
      s.markers = {"AcDbDimension", kinds[type < 7 ? type : 0]};
      s.which = [](int c) { return isDimSpecific(c) ? 1 : 0; };
    }
  }
  return s;
}

} // namespace

bool OdDxfLegacy::lacksMarkers(const OdDbDxfPairArray& pairs)
{
  return std::none_of(pairs.begin(), pairs.end(), [](const OdDbDxfPair& p) { return p.code == 100; });
}

OdDbDxfPairArray OdDxfLegacy::addMarkers(const std::string& type, const OdDbDxfPairArray& pairs, bool isEntity)
{
  // Leading 102 groups stay in front, extended data stays at the end.
  std::size_t head = 0;
  while (head < pairs.size() && pairs[head].code == 102) {
    std::size_t j = head + 1;
    while (j < pairs.size() && pairs[j].code != 102)
      ++j;
    head = std::min(pairs.size(), j + 1);
  }
  std::size_t tail = pairs.size();
  for (std::size_t i = head; i < pairs.size(); ++i)
    if (pairs[i].code == 1001) {
      tail = i;
      break;
    }
  const OdDbDxfPairArray body(pairs.begin() + long(head), pairs.begin() + long(tail));
  OdDbDxfPairArray out(pairs.begin(), pairs.begin() + long(head));
  if (const char* rec = recordMarker(type); rec && !isEntity) {
    out.push_back({100, "AcDbSymbolTableRecord"});
    out.push_back({100, rec});
    out.insert(out.end(), body.begin(), body.end());
  } else if (type == "TABLE") {
    // The table's name stands before its marker.
    for (const OdDbDxfPair& p : body)
      if (p.code == 2)
        out.push_back(p);
    out.push_back({100, "AcDbSymbolTable"});
    for (const OdDbDxfPair& p : body)
      if (p.code != 2)
        out.push_back(p);
  } else if (isEntity) {
    out.push_back({100, "AcDbEntity"});
    for (const OdDbDxfPair& p : body)
      if (isCommonEntityCode(p.code))
        out.push_back(p);
    const Split s = splitFor(type, body);
    for (std::size_t m = 0; m < s.markers.size(); ++m) {
      out.push_back({100, s.markers[m]});
      for (const OdDbDxfPair& p : body)
        if (!isCommonEntityCode(p.code) && s.which(p.code) == int(m))
          out.push_back(p);
    }
    if (s.markers.empty())
      for (const OdDbDxfPair& p : body)
        if (!isCommonEntityCode(p.code))
          out.push_back(p);
  } else {
    out.insert(out.end(), body.begin(), body.end());
  }
  out.insert(out.end(), pairs.begin() + long(tail), pairs.end());
  return out;
}
