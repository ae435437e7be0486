// The drawing database: handles, tables, header variables, current values.
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabaseReactor.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbLinetypeTableRecord.h"
#include "sdk/db/OdDbTextStyleTableRecord.h"
#include "sdk/db/OdDmUtil.h"

#include "sdk/kernel/OdRxClass.h"

#include <algorithm>

ODRX_DEFINE_MEMBERS(OdDbDatabase, OdRxObject, ODRX_CREATE_IMPL(OdDbDatabase, OdDbDatabase))

namespace {
OdDbDatabase::DrawingReader g_reader = nullptr;
}

void OdDbDatabase::setDrawingReader(DrawingReader reader) { g_reader = reader; }
OdDbDatabase::DrawingReader OdDbDatabase::drawingReader() { return g_reader; }

OdDbDatabasePtr odDbCreateDatabase(bool defaults)
{
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  if (defaults)
    db->initialize();
  return db;
}

OdDbDatabase::OdDbDatabase() : m_arena(std::make_shared<OdDbStringArena>()) {}

OdDbDatabase::~OdDbDatabase()
{
  // Objects may outlive the database in someone's smart pointer: cut them
  // loose first, so that they never reach a stub that is gone.
  for (OdDbStub& s : m_stubs)
    if (s.object) {
      s.object->attachStub(nullptr);
      s.object->OdDbObject::setOwnerId(OdDbObjectId());
    }
  for (OdDbStub& s : m_stubs)
    if (OdDbObject* o = std::exchange(s.object, nullptr))
      o->release();
}

OdDbStub* OdDbDatabase::newStub(const OdDbHandle& handle)
{
  m_stubs.emplace_back();
  OdDbStub* s = &m_stubs.back();
  s->handle = handle;
  s->database = this;
  m_byHandle.insert(s);
  if (handle.value() >= m_handseed.value() && handle.value() < kTemporaryHandles)
    m_handseed = handle.value() + 1;
  return s;
}

void OdDbDatabase::reassignHandle(OdDbObjectId id, const OdDbHandle& handle)
{
  OdDbStub* s = id.stub();
  if (!s || m_byHandle.find(handle.value()))
    throw OdError(eInvalidInput, OdString("handle in use: ") + handle.ascii());
  m_byHandle.erase(s->handle.value());
  s->handle = handle;
  m_byHandle.insert(s);
  if (handle.value() >= m_handseed.value() && handle.value() < kTemporaryHandles)
    m_handseed = handle.value() + 1;
}

OdDbObjectId OdDbDatabase::getOdDbObjectId(const OdDbHandle& handle, bool createIfNotFound)
{
  if (handle.isNull())
    return OdDbObjectId();
  if (OdDbStub* s = m_byHandle.find(handle.value()))
    return OdDbObjectId(s);
  return createIfNotFound ? OdDbObjectId(newStub(handle)) : OdDbObjectId();
}

OdDbObjectId OdDbDatabase::addOdDbObject(OdDbObject* object, OdDbObjectId ownerId, const OdDbHandle& handle)
{
  if (!object)
    throw OdError(eNullPtr, "null object");
  if (object->database())
    throw OdError(eInvalidInput, "the object is already in a database");
  OdDbStub* stub = nullptr;
  if (!handle.isNull()) {
    stub = m_byHandle.find(handle.value());
    if (stub) {
      if (stub->object)
        throw OdError(eInvalidInput, OdString("handle in use: ") + handle.ascii());
    } else {
      stub = newStub(handle);
    }
  } else {
    stub = newStub(m_handseed);
  }
  object->addRef();
  stub->object = object;
  object->attachStub(stub);
  // Reactors hear of the object before anything more is done to it (its
  // owner, the objects it owns): an undo journal then knows it as new.
  for (std::size_t i = 0; i < m_reactors.size(); ++i)
    m_reactors[i]->objectAppended(this, object);
  object->setOwnerId(ownerId);
  object->setOpenMode(OdDb::kForWrite);
  // Everything that is no entity and no table goes to the OBJECTS section.
  if (!object->isKindOf(OdDbEntity::desc()) && !object->isKindOf(OdDbSymbolTable::desc()) &&
      !object->isKindOf(OdDbSymbolTableRecord::desc()))
    m_objects.push_back(OdDbObjectId(stub));
  object->subAddedToDatabase();
  return OdDbObjectId(stub);
}

std::vector<OdDbObjectId> OdDbDatabase::allObjectIds() const
{
  std::vector<OdDbObjectId> out;
  for (const OdDbStub& s : m_stubs)
    if (s.object)
      out.push_back(OdDbObjectId(const_cast<OdDbStub*>(&s)));
  std::sort(out.begin(), out.end(), [](const OdDbObjectId& a, const OdDbObjectId& b) {
    return a.getHandle().value() < b.getHandle().value();
  });
  return out;
}

const std::vector<std::string>& OdDbDatabase::tableOrder()
{
  static const std::vector<std::string> order = {"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW",
                                                 "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"};
  return order;
}

OdDbObjectId OdDbDatabase::tableId(const std::string& name) const
{
  auto it = m_tables.find(name);
  return it == m_tables.end() ? OdDbObjectId() : it->second;
}

void OdDbDatabase::setTableId(const std::string& name, OdDbObjectId id)
{
  m_tables[name] = id;
}

OdDbObjectId OdDbDatabase::recordId(OdDbObjectId tableId, const OdString& name) const
{
  OdDbSymbolTablePtr t = OdDbSymbolTable::cast(tableId.openObject());
  return t.isNull() ? OdDbObjectId() : t->getAt(name);
}

namespace {

OdString nameOf(OdDbObjectId id)
{
  OdDbSymbolTableRecordPtr r = OdDbSymbolTableRecord::cast(id.openObject());
  return r.isNull() ? OdString() : r->getName();
}

// The header names a built-in arrow without the underscore of its block, as
// drawing programs write it; a value that already names the same arrow, in
// whatever spelling, is kept so that a drawing round trips unchanged.
OdString arrowHeaderText(const OdString& blockName, const OdString& current)
{
  if (blockName.isEmpty() || !OdDmUtil::isBuiltInArrow(blockName))
    return blockName;
  if (!current.isEmpty() && OdDmUtil::arrowBlockName(current).iCompare(blockName) == 0)
    return current;
  return blockName.left(1) == "_" ? blockName.mid(1) : blockName;
}
} // namespace

OdDbObjectId OdDbDatabase::getModelSpaceId() const { return recordId(getBlockTableId(), OdDbBlockTableRecord::modelSpaceStr()); }
OdDbObjectId OdDbDatabase::getPaperSpaceId() const { return recordId(getBlockTableId(), OdDbBlockTableRecord::paperSpaceStr()); }
OdDbObjectId OdDbDatabase::getLayerZeroId() const { return recordId(getLayerTableId(), "0"); }
OdDbObjectId OdDbDatabase::getLinetypeByLayerId() const { return recordId(getLinetypeTableId(), "ByLayer"); }
OdDbObjectId OdDbDatabase::getLinetypeByBlockId() const { return recordId(getLinetypeTableId(), "ByBlock"); }
OdDbObjectId OdDbDatabase::getLinetypeContinuousId() const { return recordId(getLinetypeTableId(), "Continuous"); }
OdDbObjectId OdDbDatabase::getTextStyleStandardId() const { return recordId(getTextStyleTableId(), "Standard"); }
OdDbObjectId OdDbDatabase::getDimStyleStandardId() const { return recordId(getDimStyleTableId(), "Standard"); }
OdDbObjectId OdDbDatabase::getRegAppAcadId() const { return recordId(getRegAppTableId(), "ACAD"); }

bool OdDbDatabase::newRegApp(const OdString& name)
{
  OdDbSymbolTablePtr t = OdDbSymbolTable::cast(getRegAppTableId().openObject(OdDb::kForWrite));
  if (t.isNull() || name.isEmpty() || t->has(name))
    return false;
  OdDbSymbolTableRecordPtr r = OdDbRegAppTableRecord::createObject();
  r->setName(name);
  t->add(r);
  return true;
}

OdDbObjectId OdDbDatabase::namedDictionary(const char* key, bool create) const
{
  OdDbDictionaryPtr root = OdDbDictionary::cast(m_rootDictionary.openObject());
  if (root.isNull())
    return OdDbObjectId();
  OdDbObjectId id = root->getAt(key);
  // An entry that leads nowhere (files do have them) counts as none.
  if (!id.isNull() && OdDbDictionary::cast(id.openObject()).isNull()) {
    if (!create)
      return OdDbObjectId();
    id = OdDbObjectId();
  }
  if (id.isNull() && create) {
    OdDbDictionaryPtr d = OdDbDictionary::createObject();
    id = root->setAt(key, d);
  }
  return id;
}

OdDbObjectId OdDbDatabase::findLayoutNamed(const OdString& name) const
{
  OdDbDictionaryPtr d = OdDbDictionary::cast(getLayoutDictionaryId().openObject());
  return d.isNull() ? OdDbObjectId() : d->getAt(name);
}

OdDbObjectId OdDbDatabase::getActiveLayoutBTRId() const
{
  return getTILEMODE() ? getModelSpaceId() : getPaperSpaceId();
}

OdDbObjectId OdDbDatabase::currentLayoutId() const
{
  OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::cast(getActiveLayoutBTRId().openObject());
  return b.isNull() ? OdDbObjectId() : b->getLayoutId();
}

// --- reactors ----------------------------------------------------------------

void OdDbDatabase::addReactor(OdDbDatabaseReactor* reactor)
{
  if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
    m_reactors.push_back(reactor);
}

void OdDbDatabase::removeReactor(OdDbDatabaseReactor* reactor)
{
  m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

// By index: a reactor may remove itself while it is told.
void OdDbDatabase::fireModify(const OdDbObject* object) const
{
  for (std::size_t i = 0; i < m_reactors.size(); ++i)
    m_reactors[i]->objectOpenedForModify(this, object);
}

void OdDbDatabase::fireHeader(const std::string& name, bool changed) const
{
  if (m_reactors.empty())
    return;
  const OdString bare = OdDxf::toOdString(name.size() > 1 && name[0] == '$' ? name.substr(1) : name);
  for (std::size_t i = 0; i < m_reactors.size(); ++i) {
    if (changed)
      m_reactors[i]->headerSysVarChanged(this, bare);
    else
      m_reactors[i]->headerSysVarWillChange(this, bare);
  }
}

// --- header ------------------------------------------------------------------

const OdDbDatabase::HeaderVar* OdDbDatabase::headerVar(const std::string& name) const
{
  for (const HeaderVar& v : m_header)
    if (v.name == name)
      return &v;
  return nullptr;
}

void OdDbDatabase::setHeaderVar(const std::string& name, const OdDbDxfPairArray& pairs)
{
  OdDbDxfPairArray stored;
  for (const OdDbDxfPair& p : pairs)
    stored.push_back({p.code, m_arena->store(p.value)});
  fireHeader(name, false);
  bool found = false;
  for (HeaderVar& v : m_header)
    if (v.name == name) {
      v.pairs = std::move(stored);
      found = true;
      break;
    }
  if (!found)
    m_header.push_back({name, std::move(stored)});
  fireHeader(name, true);
}

void OdDbDatabase::removeHeaderVar(const std::string& name)
{
  if (!headerVar(name))
    return;
  fireHeader(name, false);
  m_header.erase(std::remove_if(m_header.begin(), m_header.end(), [&](const HeaderVar& v) { return v.name == name; }),
                 m_header.end());
  fireHeader(name, true);
}

OdString OdDbDatabase::getHeaderString(const std::string& name, const OdString& fallback) const
{
  const HeaderVar* v = headerVar(name);
  return v && !v->pairs.empty() ? OdDxf::toOdString(v->pairs.front().value) : fallback;
}

double OdDbDatabase::getHeaderDouble(const std::string& name, double fallback) const
{
  const HeaderVar* v = headerVar(name);
  return v && !v->pairs.empty() ? OdDxf::toDouble(v->pairs.front().value, fallback) : fallback;
}

long long OdDbDatabase::getHeaderInt(const std::string& name, long long fallback) const
{
  const HeaderVar* v = headerVar(name);
  return v && !v->pairs.empty() ? OdDxf::toInt(v->pairs.front().value, fallback) : fallback;
}

OdGePoint3d OdDbDatabase::getHeaderPoint(const std::string& name) const
{
  OdGePoint3d p;
  if (const HeaderVar* v = headerVar(name))
    for (const OdDbDxfPair& q : v->pairs) {
      if (q.code == 10) p.x = OdDxf::toDouble(q.value);
      if (q.code == 20) p.y = OdDxf::toDouble(q.value);
      if (q.code == 30) p.z = OdDxf::toDouble(q.value);
    }
  return p;
}

// Setters keep the group code a variable already has: files of other
// versions may use another code than the one a new variable gets.
void OdDbDatabase::setHeaderString(const std::string& name, int code, const OdString& value)
{
  const HeaderVar* v = headerVar(name);
  const int c = v && !v->pairs.empty() ? v->pairs.front().code : code;
  const std::string text = OdDxf::fromOdString(value);
  setHeaderVar(name, {{c, text}});
}

void OdDbDatabase::setHeaderDouble(const std::string& name, double value, int code)
{
  const HeaderVar* v = headerVar(name);
  const int c = v && !v->pairs.empty() ? v->pairs.front().code : code;
  const std::string text = OdDxf::fromDouble(value);
  setHeaderVar(name, {{c, text}});
}

void OdDbDatabase::setHeaderInt(const std::string& name, long long value, int code)
{
  const HeaderVar* v = headerVar(name);
  const int c = v && !v->pairs.empty() ? v->pairs.front().code : code;
  const std::string text = OdDxf::fromInt(value);
  setHeaderVar(name, {{c, text}});
}

void OdDbDatabase::setHeaderPoint(const std::string& name, const OdGePoint3d& p)
{
  const std::string x = OdDxf::fromDouble(p.x), y = OdDxf::fromDouble(p.y), z = OdDxf::fromDouble(p.z);
  setHeaderVar(name, {{10, x}, {20, y}, {30, z}});
}

OdDbObjectId OdDbDatabase::getCLAYER() const
{
  const OdDbObjectId id = recordId(getLayerTableId(), getHeaderString("$CLAYER", "0"));
  return id.isNull() ? getLayerZeroId() : id;
}
void OdDbDatabase::setCLAYER(OdDbObjectId id) { setHeaderString("$CLAYER", 8, nameOf(id)); }

OdCmColor OdDbDatabase::getCECOLOR() const
{
  const OdDbDxfPair* rgb = nullptr;
  const OdDbDxfPair* names = nullptr;
  if (const HeaderVar* v = headerVar("$CECOLOR"))
    for (const OdDbDxfPair& p : v->pairs) {
      if (p.code == 420 && !rgb)
        rgb = &p;
      else if (p.code == 430 && !names)
        names = &p;
    }
  return OdDxf::toColor(std::int16_t(getHeaderInt("$CECOLOR", 256)), rgb, names);
}

void OdDbDatabase::setCECOLOR(const OdCmColor& c)
{
  OdDbDxfPairArray pairs{{62, m_arena->store(OdDxf::fromInt(c.isByLayer() ? 256 : c.colorIndex()))}};
  OdDxf::appendTrueColor(c, pairs, *m_arena);
  setHeaderVar("$CECOLOR", pairs);
}

OdDbObjectId OdDbDatabase::getCELTYPE() const
{
  const OdDbObjectId id = recordId(getLinetypeTableId(), getHeaderString("$CELTYPE", "ByLayer"));
  return id.isNull() ? getLinetypeByLayerId() : id;
}
void OdDbDatabase::setCELTYPE(OdDbObjectId id) { setHeaderString("$CELTYPE", 6, nameOf(id)); }

OdDbObjectId OdDbDatabase::getTEXTSTYLE() const
{
  const OdDbObjectId id = recordId(getTextStyleTableId(), getHeaderString("$TEXTSTYLE", "Standard"));
  return id.isNull() ? getTextStyleStandardId() : id;
}
void OdDbDatabase::setTEXTSTYLE(OdDbObjectId id) { setHeaderString("$TEXTSTYLE", 7, nameOf(id)); }

OdDbObjectId OdDbDatabase::getDIMSTYLE() const
{
  const OdDbObjectId id = recordId(getDimStyleTableId(), getHeaderString("$DIMSTYLE", "Standard"));
  return id.isNull() ? getDimStyleStandardId() : id;
}
void OdDbDatabase::setDIMSTYLE(OdDbObjectId id) { setHeaderString("$DIMSTYLE", 2, nameOf(id)); }

OdCmTransparency OdDbDatabase::getCETRANSPARENCY() const
{
  OdCmTransparency t;
  t.serializeIn(std::uint32_t(getHeaderInt("$CETRANSPARENCY", 0)));
  return t;
}

void OdDbDatabase::setCETRANSPARENCY(const OdCmTransparency& t)
{
  if (t.isByLayer())
    removeHeaderVar("$CETRANSPARENCY");
  else
    setHeaderInt("$CETRANSPARENCY", t.serializeOut(), 440);
}

void OdDbDatabase::setDimstyleData(OdDbObjectId styleId)
{
  OdSmartPtr<OdDbDimStyleTableRecord> s = OdDbDimStyleTableRecord::cast(styleId.openObject());
  if (s.isNull())
    throw OdError(eInvalidInput, "not a dimension style");
  setDimstyleData(s.get());
}

// Variables without a code of their own (kept as extended data) have no
// header variable either and are left out.
void OdDbDatabase::setDimstyleData(const OdDbDimStyleTableRecord* s)
{
  if (!s)
    return;
  auto up = [](const char* n) {
    std::string u = std::string("$") + n;
    for (char& ch : u)
      ch = char(std::toupper(static_cast<unsigned char>(ch)));
    return u;
  };
#define ODDB_SD_D(n, N, c, d) if (c > 0) setHeaderDouble(up(#n), s->n(), 40);
#define ODDB_SD_I(n, N, c, d) if (c > 0) setHeaderInt(up(#n), s->n(), 70);
#define ODDB_SD_S(n, N, c) if (c > 0) setHeaderString(up(#n), 1, s->n());
#define ODDB_SD_C(n, N, c) setHeaderInt(up(#n), s->n().colorIndex(), 70);
#define ODDB_SD_L(n, N, c) setHeaderInt(up(#n), int(s->n()), 70);
#define ODDB_SD_A(n, N, c) setHeaderString(up(#n), 1, arrowHeaderText(s->arrowName(s->n()), getHeaderString(up(#n))));
  ODDB_DIMVARS_DOUBLE(ODDB_SD_D)
  ODDB_DIMVARS_INT(ODDB_SD_I)
  ODDB_DIMVARS_BOOL(ODDB_SD_I)
  ODDB_DIMVARS_STRING(ODDB_SD_S)
  ODDB_DIMVARS_COLOR(ODDB_SD_C)
  ODDB_DIMVARS_LWEIGHT(ODDB_SD_L)
  ODDB_DIMVARS_BLOCK(ODDB_SD_A)
  // A style without a text style or linetypes of its own stands for the
  // defaults: left as they were, the previous style's would stay in force.
  const OdString style = nameOf(s->dimtxsty());
  setHeaderString("$DIMTXSTY", 7, style.isEmpty() ? nameOf(getTextStyleStandardId()) : style);
  const struct { const char* var; OdDbObjectId id; } ltypes[] = {
      {"$DIMLTYPE", s->dimltype()}, {"$DIMLTEX1", s->dimltex1()}, {"$DIMLTEX2", s->dimltex2()}};
  for (const auto& l : ltypes)
    setHeaderString(l.var, 6, nameOf(l.id));
}
