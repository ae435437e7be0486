// System variables of the reference host.
#include "app/core/HostSysVars.h"

#include "app/core/HostApp.h"
#include "app/core/HostDocumentManager.h"
#include "app/core/HostEditorEventsImpl.h"
#include "app/core/HostInputParser.h"

#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbSymbolTable.h"

#include <algorithm>
#include <cmath>

struct HostSysVarsImpl::Definition
{
  enum Where
  {
    kHost,     // kept by the host, for every drawing
    kDocument, // kept by the host, per document
    kHeader,   // a header variable "$NAME" of the drawing
    kComputed  // of the drawing, with a rule of its own
  };
  const char* name;
  int type; // OdResBuf result code
  Where where;
  double number = 0.0;      // default of numbers
  const char* text = "";    // default of texts and colours (as typed)
  double min = -1e300, max = 1e300;
  int code = 0; // group code of a header variable
};

namespace {

using Def = HostSysVarsImpl::Definition;
constexpr double kBig = 1e300;

const std::vector<Def>& definitions()
{
  static const std::vector<Def> defs = {
      {"ATTREQ", OdResBuf::kRtInt16, Def::kHost, 1, "", 0, 1},
      {"ATTDIA", OdResBuf::kRtInt16, Def::kHost, 0, "", 0, 1},
      {"HPNAME", OdResBuf::kRtString, Def::kHost, 0, "ANSI31"},
      {"HPANG", OdResBuf::kRtAngle, Def::kHost, 0},
      {"HPSCALE", OdResBuf::kRtDouble, Def::kHost, 1, "", 1e-12, kBig},
      {"HPDOUBLE", OdResBuf::kRtInt16, Def::kHost, 0, "", 0, 1},
      {"HPSPACE", OdResBuf::kRtDouble, Def::kHost, 1, "", 1e-12, kBig},
      {"HPCOLOR", OdResBuf::kRtColor, Def::kHost, 0, "NONE"},
      {"GFNAME", OdResBuf::kRtInt16, Def::kHost, 1, "", 1, 9},
      {"GFANG", OdResBuf::kRtAngle, Def::kHost, 0},
      {"GFSHIFT", OdResBuf::kRtInt16, Def::kHost, 0, "", 0, 1},
      {"GFCLR1", OdResBuf::kRtColor, Def::kHost, 0, "RGB:0,0,255"},
      {"GFCLR2", OdResBuf::kRtColor, Def::kHost, 0, "RGB:255,255,153"},
      {"GFCLRSTATE", OdResBuf::kRtInt16, Def::kHost, 1, "", 0, 1},
      {"GFCLRLUM", OdResBuf::kRtDouble, Def::kHost, 1, "", 0, 1},
      {"LWUNITS", OdResBuf::kRtInt16, Def::kHost, 1, "", 0, 1},
      {"LASTPOINT", OdResBuf::kRtPoint3d, Def::kDocument},
      {"INSUNITS", OdResBuf::kRtInt16, Def::kHeader, 0, "", 0, 20, 70},
      {"TEXTSIZE", OdResBuf::kRtDouble, Def::kHeader, 2.5, "", 1e-12, kBig, 40},
      {"DIMSCALE", OdResBuf::kRtDouble, Def::kHeader, 1, "", 0, kBig, 40},
      {"CELTSCALE", OdResBuf::kRtDouble, Def::kHeader, 1, "", 1e-12, kBig, 40},
      {"LTSCALE", OdResBuf::kRtDouble, Def::kHeader, 1, "", 1e-12, kBig, 40},
      {"CEPSNTYPE", OdResBuf::kRtInt16, Def::kHeader, 0, "", 0, 3, 380},
      {"CELWEIGHT", OdResBuf::kRtInt16, Def::kComputed},
      {"CLAYER", OdResBuf::kRtString, Def::kComputed},
      {"CELTYPE", OdResBuf::kRtString, Def::kComputed},
      {"TEXTSTYLE", OdResBuf::kRtString, Def::kComputed},
      {"DIMSTYLE", OdResBuf::kRtString, Def::kComputed},
      {"CECOLOR", OdResBuf::kRtString, Def::kComputed},
      {"CETRANSPARENCY", OdResBuf::kRtString, Def::kComputed},
      {"CPLOTSTYLE", OdResBuf::kRtString, Def::kComputed},
  };
  return defs;
}

const Def* findDefinition(const OdString& name)
{
  for (const Def& d : definitions())
    if (name.iCompare(d.name) == 0)
      return &d;
  return nullptr;
}

bool isValidLineweight(int w)
{
  static const int weights[] = {-3, -2, -1, 0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40,
                                50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
  return std::find(std::begin(weights), std::end(weights), w) != std::end(weights);
}

// A value of a number kind, as a double; false for another kind.
bool numberOf(const OdResBuf* value, double& out)
{
  const OdResBuf::Kind k = value->kind();
  if (k != OdResBuf::kReal && k != OdResBuf::kInteger)
    return false;
  out = value->getDouble();
  return std::isfinite(out);
}

bool colorOf(const OdResBuf* value, OdCmColor& out)
{
  switch (value->kind()) {
  case OdResBuf::kColor: out = value->getColor(); return true;
  case OdResBuf::kInteger: {
    const std::int64_t index = value->getInt64();
    if (index < 0 || index > 256)
      return false;
    out.setColorIndex(std::int16_t(index));
    return true;
  }
  case OdResBuf::kText:
    if (const auto c = HostInputParser::parseColor(value->getString())) {
      out = *c;
      return true;
    }
    return false;
  default: return false;
  }
}

OdString recordName(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  return r.isNull() ? OdString() : r->getName();
}

OdString transparencyText(const OdCmTransparency& t)
{
  if (t.isByLayer())
    return "ByLayer";
  if (t.isByBlock())
    return "ByBlock";
  // Shown as a percentage of transparency, as users set it.
  return OdString::formatted("%d", int(std::lround((1.0 - t.alpha() / 255.0) * 100.0)));
}

OdResBufPtr defaultValue(const Def& def)
{
  OdResBufPtr rb = OdResBuf::newRb(def.type);
  switch (rb->kind()) {
  case OdResBuf::kReal: rb->setDouble(def.number); break;
  case OdResBuf::kInteger: rb->setInt64(std::int64_t(def.number)); break;
  case OdResBuf::kText: rb->setString(def.text); break;
  case OdResBuf::kColor: rb->setColor(HostInputParser::parseColor(def.text).value_or(OdCmColor())); break;
  case OdResBuf::kPoint: rb->setPoint3d(OdGePoint3d()); break;
  default: break;
  }
  return rb;
}

// A header variable of any name, by the kind of its group code.
OdResBufPtr headerValue(const OdDbDatabase* db, const std::string& key)
{
  const OdDbDatabase::HeaderVar* v = db->headerVar(key);
  if (!v || v->pairs.empty())
    return OdResBufPtr();
  const int code = v->pairs.front().code;
  if (code >= 10 && code <= 18)
    return OdResBuf::newValue(db->getHeaderPoint(key));
  OdResBufPtr rb = OdResBuf::newRb(code);
  switch (rb->kind()) {
  case OdResBuf::kReal: rb->setDouble(db->getHeaderDouble(key)); break;
  case OdResBuf::kInteger: rb->setInt64(db->getHeaderInt(key)); break;
  default: rb->setString(db->getHeaderString(key)); break;
  }
  return rb;
}

} // namespace

HostSysVarsImpl::HostSysVarsImpl(HostApp& app) : m_app(app)
{
  reset();
}

void HostSysVarsImpl::reset()
{
  m_hostValues.clear();
  for (const Def& d : definitions())
    if (d.where == Def::kHost)
      m_hostValues[d.name] = defaultValue(d);
}

OdString HostSysVarsImpl::canonicalName(const OdString& name)
{
  OdString upper = name;
  upper.trimLeft();
  upper.trimRight();
  return upper.makeUpper();
}

OdDbDatabase* HostSysVarsImpl::databaseOr(OdDbDatabase* database) const
{
  if (database)
    return database;
  HostDocumentImpl* document = m_app.documents().current();
  return document ? document->database() : nullptr;
}

int HostSysVarsImpl::typeOf(const OdString& name, OdDbDatabase* database)
{
  if (const Def* def = findDefinition(name))
    return def->type;
  OdResBufPtr v = getVar(name, database);
  return v.isNull() ? OdResBuf::kRtNone : v->restype();
}

OdResBufPtr HostSysVarsImpl::getVar(const OdString& name, OdDbDatabase* database)
{
  OdDbDatabase* db = databaseOr(database);
  const Def* def = findDefinition(name);
  if (!def) {
    if (!db || name.isEmpty())
      return OdResBufPtr();
    return headerValue(db, "$" + canonicalName(name).toUtf8());
  }
  switch (def->where) {
  case Def::kHost: {
    OdResBufPtr copy = OdResBuf::newRb(def->type);
    const OdResBufPtr& v = m_hostValues[def->name];
    if (v->kind() == OdResBuf::kReal) copy->setDouble(v->getDouble());
    else if (v->kind() == OdResBuf::kInteger) copy->setInt64(v->getInt64());
    else if (v->kind() == OdResBuf::kColor) copy->setColor(v->getColor());
    else copy->setString(v->getString());
    return copy;
  }
  case Def::kDocument: {
    HostDocumentImpl* document = m_app.documents().current();
    return OdResBuf::newValue(document ? document->lastPoint() : OdGePoint3d());
  }
  case Def::kHeader: {
    OdResBufPtr rb = defaultValue(*def);
    if (!db)
      return rb;
    const std::string key = std::string("$") + def->name;
    if (rb->kind() == OdResBuf::kReal)
      rb->setDouble(db->getHeaderDouble(key, def->number));
    else
      rb->setInt64(db->getHeaderInt(key, std::int64_t(def->number)));
    return rb;
  }
  case Def::kComputed:
    return db ? getComputed(*def, db) : OdResBufPtr();
  }
  return OdResBufPtr();
}

OdResBufPtr HostSysVarsImpl::getComputed(const Definition& def, OdDbDatabase* db) const
{
  const OdString name(def.name);
  if (name == "CELWEIGHT")
    return OdResBuf::newValue(std::int16_t(db->getCELWEIGHT()));
  if (name == "CLAYER")
    return OdResBuf::newValue(recordName(db->getCLAYER()));
  if (name == "CELTYPE")
    return OdResBuf::newValue(recordName(db->getCELTYPE()));
  if (name == "TEXTSTYLE")
    return OdResBuf::newValue(recordName(db->getTEXTSTYLE()));
  if (name == "DIMSTYLE")
    return OdResBuf::newValue(recordName(db->getDIMSTYLE()));
  if (name == "CECOLOR")
    return OdResBuf::newValue(HostInputParser::formatColor(db->getCECOLOR()));
  if (name == "CETRANSPARENCY")
    return OdResBuf::newValue(transparencyText(db->getCETRANSPARENCY()));
  if (name == "CPLOTSTYLE") {
    // Colour-dependent plot styles have no named styles to choose from.
    if (db->getHeaderInt("$PSTYLEMODE", 1) != 0)
      return OdResBuf::newValue(OdString("ByColor"));
    switch (db->getCEPSNTYPE()) {
    case OdDb::kPlotStyleNameByLayer: return OdResBuf::newValue(OdString("ByLayer"));
    case OdDb::kPlotStyleNameByBlock: return OdResBuf::newValue(OdString("ByBlock"));
    case OdDb::kPlotStyleNameIsDictDefault: return OdResBuf::newValue(OdString("Normal"));
    default: break;
    }
    OdDbDictionaryPtr styles = OdDbDictionary::cast(db->plotStyleNameDictionaryId().openObject());
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle::fromText(OdDxf::fromOdString(db->getHeaderString("$CEPSNID"))));
    return OdResBuf::newValue(styles.isNull() ? OdString() : styles->nameAt(id));
  }
  return OdResBufPtr();
}

HostSystemVariables::Status HostSysVarsImpl::setVar(const OdString& name, const OdResBuf* value,
                                                    OdDbDatabase* database)
{
  return setVar(name, value, database, nullptr);
}

HostSystemVariables::Status HostSysVarsImpl::setVar(const OdString& name, const OdResBuf* value,
                                                    OdDbDatabase* database, OdString* reason)
{
  auto refuse = [reason](Status status, const OdString& why) {
    if (reason)
      *reason = why;
    return status;
  };
  const OdString canonical = canonicalName(name);
  if (!value)
    return refuse(kBadType, "No value was given.");
  OdDbDatabase* db = databaseOr(database);
  const Def* def = findDefinition(canonical);
  if (!def) {
    // Any other variable that the drawing holds, by the kind of its code.
    const std::string key = "$" + canonical.toUtf8();
    OdResBufPtr current = db ? headerValue(db, key) : OdResBufPtr();
    if (current.isNull())
      return refuse(kUnknown, OdString::formatted("Unknown variable name \"%s\".", canonical));
    double number = 0.0;
    switch (current->kind()) {
    case OdResBuf::kReal:
      if (!numberOf(value, number))
        return refuse(kBadType, "Requires a number.");
      db->setHeaderDouble(key, number);
      return kOk;
    case OdResBuf::kInteger:
      if (!numberOf(value, number) || number != std::floor(number))
        return refuse(kBadType, "Requires an integer.");
      db->setHeaderInt(key, std::int64_t(number));
      return kOk;
    case OdResBuf::kPoint:
      if (value->kind() != OdResBuf::kPoint)
        return refuse(kBadType, "Requires a point.");
      db->setHeaderPoint(key, value->getPoint3d());
      return kOk;
    default:
      if (value->kind() != OdResBuf::kText)
        return refuse(kBadType, "Requires a text.");
      db->setHeaderString(key, 1, value->getString());
      return kOk;
    }
  }

  if (def->where == Def::kComputed) {
    if (!db)
      return refuse(kBadValue, "No document is open.");
    return setComputed(*def, value, db, reason);
  }
  if (def->where == Def::kDocument) {
    HostDocumentImpl* document = m_app.documents().current();
    if (value->kind() != OdResBuf::kPoint)
      return refuse(kBadType, "Requires a point.");
    if (!document)
      return refuse(kBadValue, "No document is open.");
    document->setLastPoint(value->getPoint3d());
    fireChanged(db, def->name);
    return kOk;
  }

  OdResBufPtr stored = OdResBuf::newRb(def->type);
  switch (stored->kind()) {
  case OdResBuf::kReal:
  case OdResBuf::kInteger: {
    double number = 0.0;
    if (!numberOf(value, number))
      return refuse(kBadType, "Requires a number.");
    const bool integer = stored->kind() == OdResBuf::kInteger;
    if (integer && number != std::floor(number))
      return refuse(kBadType, "Requires an integer.");
    if (number < def->min || number > def->max) {
      if (def->max >= kBig)
        return refuse(kBadValue, OdString::formatted("Requires a value greater than %s.",
                                                     HostInputParser::formatReal(def->min < 1e-9 ? 0.0 : def->min)));
      return refuse(kBadValue, OdString::formatted("Requires %s between %s and %s.", integer ? "an integer" : "a value",
                                                   HostInputParser::formatReal(def->min),
                                                   HostInputParser::formatReal(def->max)));
    }
    if (integer)
      stored->setInt64(std::int64_t(number));
    else
      stored->setDouble(number);
    break;
  }
  case OdResBuf::kColor: {
    OdCmColor color;
    if (!colorOf(value, color))
      return refuse(kBadType, "Requires a colour: BYLAYER, BYBLOCK, NONE, an index 1-255 or RGB:r,g,b.");
    stored->setColor(color);
    break;
  }
  default:
    if (value->kind() != OdResBuf::kText)
      return refuse(kBadType, "Requires a text.");
    stored->setString(value->getString());
    break;
  }

  if (def->where == Def::kHeader) {
    if (!db)
      return refuse(kBadValue, "No document is open.");
    const std::string key = std::string("$") + def->name;
    if (stored->kind() == OdResBuf::kReal)
      db->setHeaderDouble(key, stored->getDouble(), def->code);
    else
      db->setHeaderInt(key, stored->getInt64(), def->code);
    return kOk; // the document's header reactor tells the editor reactors
  }
  m_hostValues[def->name] = stored;
  fireChanged(db, def->name);
  return kOk;
}

HostSystemVariables::Status HostSysVarsImpl::setComputed(const Definition& def, const OdResBuf* value,
                                                         OdDbDatabase* db, OdString* reason)
{
  auto refuse = [reason](Status status, const OdString& why) {
    if (reason)
      *reason = why;
    return status;
  };
  const OdString name(def.name);
  if (name == "CELWEIGHT") {
    double w = 0.0;
    if (!numberOf(value, w))
      return refuse(kBadType, "Requires an integer.");
    if (!isValidLineweight(int(w)) || w != std::floor(w))
      return refuse(kBadValue, "Requires a lineweight: -1 by layer, -2 by block, -3 default, or hundredths of a millimetre "
                               "(0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, "
                               "158, 200, 211).");
    db->setCELWEIGHT(OdDb::LineWeight(int(w)));
    return kOk;
  }
  if (name == "CECOLOR") {
    OdCmColor color;
    if (!colorOf(value, color) || color.isNone())
      return refuse(kBadValue, "Requires a colour: BYLAYER, BYBLOCK, an index 1-255 or RGB:r,g,b.");
    db->setCECOLOR(color);
    return kOk;
  }
  if (value->kind() != OdResBuf::kText && name != "CETRANSPARENCY")
    return refuse(kBadType, "Requires a name.");
  const OdString text = value->kind() == OdResBuf::kText ? value->getString()
                                                          : OdString::formatted("%d", int(value->getInt64()));
  struct Table
  {
    const char* var;
    OdDbObjectId table;
    void (OdDbDatabase::*set)(OdDbObjectId);
    const char* what;
  };
  const Table tables[] = {{"CLAYER", db->getLayerTableId(), &OdDbDatabase::setCLAYER, "layer"},
                          {"CELTYPE", db->getLinetypeTableId(), &OdDbDatabase::setCELTYPE, "linetype"},
                          {"TEXTSTYLE", db->getTextStyleTableId(), &OdDbDatabase::setTEXTSTYLE, "text style"},
                          {"DIMSTYLE", db->getDimStyleTableId(), &OdDbDatabase::setDIMSTYLE, "dimension style"}};
  for (const Table& t : tables) {
    if (name != t.var)
      continue;
    const OdDbObjectId id = db->recordId(t.table, text);
    if (id.isNull())
      return refuse(kBadValue, OdString::formatted("The drawing has no %s named \"%s\".", t.what, text));
    (db->*t.set)(id);
    if (name == "DIMSTYLE")
      db->setDimstyleData(id);
    return kOk;
  }
  if (name == "CETRANSPARENCY") {
    OdCmTransparency t;
    if (text.iCompare("ByLayer") == 0)
      t = OdCmTransparency(OdCmTransparency::kByLayer);
    else if (text.iCompare("ByBlock") == 0)
      t = OdCmTransparency(OdCmTransparency::kByBlock);
    else {
      const std::optional<int> percent = HostInputParser::parseInteger(text);
      if (!percent || *percent < 0 || *percent > 90)
        return refuse(kBadValue, "Requires ByLayer, ByBlock or a transparency from 0 to 90.");
      t.setAlpha(std::uint8_t(std::lround((100 - *percent) * 0.01 * 255)));
    }
    db->setCETRANSPARENCY(t);
    return kOk;
  }
  if (name == "CPLOTSTYLE") {
    if (db->getHeaderInt("$PSTYLEMODE", 1) != 0)
      return refuse(kReadOnly, "The drawing uses colour-dependent plot styles: CPLOTSTYLE is ByColor.");
    if (text.iCompare("ByLayer") == 0 || text.iCompare("ByBlock") == 0) {
      db->setCEPSNTYPE(text.iCompare("ByLayer") == 0 ? OdDb::kPlotStyleNameByLayer : OdDb::kPlotStyleNameByBlock);
    } else {
      OdDbDictionaryPtr styles = OdDbDictionary::cast(db->plotStyleNameDictionaryId().openObject());
      const OdDbObjectId id = styles.isNull() ? OdDbObjectId() : styles->getAt(text);
      if (id.isNull())
        return refuse(kBadValue, OdString::formatted("The drawing has no plot style named \"%s\".", text));
      db->setHeaderString("$CEPSNID", 390, id.getHandle().ascii());
      db->setCEPSNTYPE(OdDb::kPlotStyleNameById);
    }
    fireChanged(db, "CPLOTSTYLE");
    return kOk;
  }
  return refuse(kReadOnly, OdString::formatted("%s cannot be set.", name));
}

void HostSysVarsImpl::fireChanged(OdDbDatabase* db, const OdString& name)
{
  m_app.editorEvents().fire([&](HostEditorReactor* r) { r->sysVarChanged(db, name); });
}

OdString HostSysVarsImpl::formatValue(const OdResBuf* value)
{
  if (!value)
    return OdString();
  switch (value->restype()) {
  case OdResBuf::kRtAngle: case OdResBuf::kRtOrient: return HostInputParser::formatAngle(value->getDouble());
  default: break;
  }
  switch (value->kind()) {
  case OdResBuf::kReal: return HostInputParser::formatReal(value->getDouble());
  case OdResBuf::kInteger: return OdString::formatted("%d", int(value->getInt64()));
  case OdResBuf::kText: return "\"" + value->getString() + "\"";
  case OdResBuf::kPoint: return HostInputParser::formatPoint(value->getPoint3d());
  case OdResBuf::kColor: return HostInputParser::formatColor(value->getColor());
  case OdResBuf::kObjectId: return value->getObjectId().getHandle().ascii();
  default: return OdString();
  }
}
