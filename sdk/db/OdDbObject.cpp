// OdDbObject: pair storage access shared by every class of the database.
#include "sdk/db/OdDbObject.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbObject, OdRxObject, ODRX_CREATE_IMPL(OdDbObject, OdDbObject))

const OdDbObjectId OdDbObjectId::kNull;

// Opening hands out the object itself: there are no locks to take in a
// database that lives in one thread's memory.
OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const
{
  if (!m_stub || !m_stub->object || (m_stub->erased && !openErased))
    return OdDbObjectPtr();
  m_stub->object->setOpenMode(mode);
  return OdDbObjectPtr(m_stub->object);
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErased) const
{
  if (!m_stub)
    throw OdError(eNullPtr, "null object id");
  OdDbObjectPtr p = openObject(mode, openErased);
  if (p.isNull())
    throw OdError(eKeyNotFound, OdString("no object for handle ") + m_stub->handle.ascii());
  return p;
}

OdDbObject::OdDbObject()
{
  m_type = "OBJECT";
}

OdDbObject::~OdDbObject() = default;

void OdDbObject::assertWriteEnabled() const
{
  if (m_stub && m_stub->database)
    m_stub->database->fireObjectOpenedForModify(this);
}

OdResult OdDbObject::erase(bool erasing)
{
  if (!m_stub)
    return eNullPtr; // not in a drawing: nothing to erase it from
  if (m_stub->erased != erasing)
    assertWriteEnabled();
  if (m_stub->erased != erasing)
    m_eraseToggled = !m_eraseToggled;
  m_stub->erased = erasing;
  return eOk;
}

bool OdDbObject::isAProxy() const
{
  return m_type == "ACAD_PROXY_ENTITY" || m_type == "ACAD_PROXY_OBJECT";
}

OdDbObjectId OdDbObject::extensionDictionary() const
{
  for (std::size_t i = 0; i + 1 < m_pairs.size(); ++i) {
    if (m_pairs[i].code == 100)
      break;
    if (m_pairs[i].code == 102 && m_pairs[i].value == "{ACAD_XDICTIONARY" && m_pairs[i + 1].code == 360) {
      OdDbDatabase* db = database();
      return db ? db->getOdDbObjectId(OdDbHandle::fromText(m_pairs[i + 1].value)) : OdDbObjectId();
    }
  }
  return OdDbObjectId();
}

std::vector<OdDbObjectId> OdDbObject::getPersistentReactors() const
{
  std::vector<OdDbObjectId> out;
  OdDbDatabase* db = database();
  bool in = false;
  for (const OdDbDxfPair& p : m_pairs) {
    if (p.code != 102 && !in)
      break;
    if (p.code == 102) {
      in = p.value == "{ACAD_REACTORS";
      continue;
    }
    if (p.code == 330 && db)
      out.push_back(db->getOdDbObjectId(OdDbHandle::fromText(p.value)));
  }
  return out;
}

// The group leads the pairs, as the format has it: before the extension
// dictionary's group and the owner.
void OdDbObject::addPersistentReactor(OdDbObjectId reactorId)
{
  if (reactorId.isNull())
    return;
  for (const OdDbObjectId& id : getPersistentReactors())
    if (id == reactorId)
      return;
  assertWriteEnabled();
  const OdDbDxfPair entry{330, storeText(reactorId.getHandle().text())};
  for (std::size_t i = 0; i < m_pairs.size() && m_pairs[i].code == 102; ++i) {
    if (m_pairs[i].value == "{ACAD_REACTORS") {
      std::size_t end = i + 1;
      while (end < m_pairs.size() && m_pairs[end].code != 102)
        ++end;
      m_pairs.insert(m_pairs.begin() + long(end), entry);
      return;
    }
  }
  m_pairs.insert(m_pairs.begin(), {OdDbDxfPair{102, "{ACAD_REACTORS"}, entry, OdDbDxfPair{102, "}"}});
}

void OdDbObject::initData(const char* type, std::initializer_list<OdDbDxfPair> pairs)
{
  m_type = type;
  m_pairs.assign(pairs.begin(), pairs.end());
}

void OdDbObject::setDxfData(std::string type, OdDbDxfPairArray pairs, const OdDbStringArenaPtr& arena)
{
  assertWriteEnabled();
  m_type = std::move(type);
  m_pairs = std::move(pairs);
  m_arena = arena;
}

const OdDbStringArenaPtr& OdDbObject::arena() const
{
  if (!m_arena)
    m_arena = std::make_shared<OdDbStringArena>();
  return m_arena;
}

int OdDbObject::xdataStart() const
{
  for (std::size_t i = 0; i < m_pairs.size(); ++i)
    if (m_pairs[i].code == 1001)
      return int(i);
  return int(m_pairs.size());
}

int OdDbObject::findPair(const char* sub, int code, int from) const
{
  bool inSub = sub == nullptr;
  if (sub && from > 0) {
    // Find which section `from` falls in.
    for (int i = from - 1; i >= 0; --i)
      if (m_pairs[std::size_t(i)].code == 100) {
        inSub = m_pairs[std::size_t(i)].value == sub;
        break;
      }
  }
  // Extended data ends the search: its codes mean something else there.
  const int end = int(m_pairs.size());
  for (int i = from; i < end; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    if (p.code == 1001)
      return -1;
    if (p.code == 100 && sub) {
      inSub = p.value == sub;
      continue;
    }
    if (inSub && p.code == code)
      return i;
  }
  return -1;
}

std::string_view OdDbObject::rawValue(const char* sub, int code, std::string_view fallback) const
{
  const int i = findPair(sub, code);
  return i < 0 ? fallback : m_pairs[std::size_t(i)].value;
}

OdString OdDbObject::getString(const char* sub, int code, const OdString& fallback) const
{
  const int i = findPair(sub, code);
  return i < 0 ? fallback : OdDxf::toOdString(m_pairs[std::size_t(i)].value);
}

double OdDbObject::getDouble(const char* sub, int code, double fallback) const
{
  const int i = findPair(sub, code);
  return i < 0 ? fallback : OdDxf::toDouble(m_pairs[std::size_t(i)].value, fallback);
}

long long OdDbObject::getInt(const char* sub, int code, long long fallback) const
{
  const int i = findPair(sub, code);
  return i < 0 ? fallback : OdDxf::toInt(m_pairs[std::size_t(i)].value, fallback);
}

OdGePoint3d OdDbObject::getPoint(const char* sub, int code, const OdGePoint3d& fallback) const
{
  const int i = findPair(sub, code);
  if (i < 0)
    return fallback;
  OdGePoint3d p(OdDxf::toDouble(m_pairs[std::size_t(i)].value), 0, 0);
  // Y and Z follow X; look a little ahead, since a few writers leave Z out.
  for (std::size_t k = std::size_t(i) + 1; k < m_pairs.size() && k <= std::size_t(i) + 2; ++k) {
    if (m_pairs[k].code == code + 10)
      p.y = OdDxf::toDouble(m_pairs[k].value);
    else if (m_pairs[k].code == code + 20)
      p.z = OdDxf::toDouble(m_pairs[k].value);
    else
      break;
  }
  return p;
}

OdGeVector3d OdDbObject::getVector(const char* sub, int code, const OdGeVector3d& fallback) const
{
  if (findPair(sub, code) < 0)
    return fallback;
  const OdGePoint3d p = getPoint(sub, code);
  return OdGeVector3d(p.x, p.y, p.z);
}

OdDbObjectId OdDbObject::getId(const char* sub, int code) const
{
  const std::string_view v = rawValue(sub, code);
  OdDbDatabase* db = database();
  if (v.empty() || !db)
    return OdDbObjectId();
  return db->getOdDbObjectId(OdDbHandle::fromText(v));
}

std::pair<int, int> OdDbObject::sectionRange(const char* sub) const
{
  const int end = xdataStart();
  if (!sub)
    return {0, end};
  for (int i = 0; i < end; ++i) {
    if (m_pairs[std::size_t(i)].code == 100 && m_pairs[std::size_t(i)].value == sub) {
      int j = i + 1;
      while (j < end && m_pairs[std::size_t(j)].code != 100)
        ++j;
      return {i + 1, j};
    }
  }
  return {end, end};
}

int OdDbObject::ensureSection(const char* sub)
{
  assertWriteEnabled();
  const int end = xdataStart();
  if (!sub)
    return end;
  for (int i = 0; i < end; ++i) {
    if (m_pairs[std::size_t(i)].code == 100 && m_pairs[std::size_t(i)].value == sub) {
      int j = i + 1;
      while (j < end && m_pairs[std::size_t(j)].code != 100)
        ++j;
      return j;
    }
  }
  m_pairs.insert(m_pairs.begin() + end, OdDbDxfPair{100, storeText(sub)});
  return end + 1;
}

// A value not there yet goes to the end of its section (made when
// missing), before the extended data.
void OdDbObject::setRaw(const char* sub, int code, std::string_view value)
{
  assertWriteEnabled();
  const std::string_view stored = storeText(value);
  const int i = findPair(sub, code);
  if (i >= 0) {
    m_pairs[std::size_t(i)].value = stored;
    return;
  }
  const int at = ensureSection(sub);
  m_pairs.insert(m_pairs.begin() + at, OdDbDxfPair{code, stored});
}

void OdDbObject::setString(const char* sub, int code, const OdString& value)
{
  setRaw(sub, code, OdDxf::fromOdString(value));
}

void OdDbObject::setDouble(const char* sub, int code, double value)
{
  setRaw(sub, code, OdDxf::fromDouble(value));
}

void OdDbObject::setInt(const char* sub, int code, long long value)
{
  setRaw(sub, code, OdDxf::fromInt(value));
}

void OdDbObject::setPoint(const char* sub, int code, const OdGePoint3d& p)
{
  assertWriteEnabled();
  const int i = findPair(sub, code);
  if (i >= 0) {
    std::size_t k = std::size_t(i);
    m_pairs[k].value = storeText(OdDxf::fromDouble(p.x));
    if (k + 1 < m_pairs.size() && m_pairs[k + 1].code == code + 10)
      m_pairs[k + 1].value = storeText(OdDxf::fromDouble(p.y));
    else
      m_pairs.insert(m_pairs.begin() + long(k + 1), OdDbDxfPair{code + 10, storeText(OdDxf::fromDouble(p.y))});
    if (k + 2 < m_pairs.size() && m_pairs[k + 2].code == code + 20)
      m_pairs[k + 2].value = storeText(OdDxf::fromDouble(p.z));
    else
      m_pairs.insert(m_pairs.begin() + long(k + 2), OdDbDxfPair{code + 20, storeText(OdDxf::fromDouble(p.z))});
    return;
  }
  const int at = ensureSection(sub);
  m_pairs.insert(m_pairs.begin() + at, {OdDbDxfPair{code, storeText(OdDxf::fromDouble(p.x))},
                                        OdDbDxfPair{code + 10, storeText(OdDxf::fromDouble(p.y))},
                                        OdDbDxfPair{code + 20, storeText(OdDxf::fromDouble(p.z))}});
}

void OdDbObject::setVector(const char* sub, int code, const OdGeVector3d& v)
{
  setPoint(sub, code, OdGePoint3d(v.x, v.y, v.z));
}

void OdDbObject::setId(const char* sub, int code, OdDbObjectId id)
{
  setRaw(sub, code, id.isNull() ? std::string("0") : id.getHandle().text());
}

void OdDbObject::removeCode(const char* sub, int code)
{
  assertWriteEnabled();
  for (int i = findPair(sub, code); i >= 0; i = findPair(sub, code, i))
    m_pairs.erase(m_pairs.begin() + i);
}

void OdDbObject::replaceSection(const char* sub, const OdDbDxfPairArray& body)
{
  assertWriteEnabled();
  ensureSection(sub);
  auto r = sectionRange(sub);
  m_pairs.erase(m_pairs.begin() + r.first, m_pairs.begin() + r.second);
  m_pairs.insert(m_pairs.begin() + r.first, body.begin(), body.end());
}

OdDbDxfPairArray OdDbObject::xData(const OdString& appName) const
{
  OdDbDxfPairArray out;
  const std::string app = OdDxf::fromOdString(appName);
  bool in = false;
  for (std::size_t i = std::size_t(xdataStart()); i < m_pairs.size(); ++i) {
    if (m_pairs[i].code == 1001) {
      in = OdDxf::toOdString(m_pairs[i].value).iCompare(appName) == 0;
      continue;
    }
    if (in)
      out.push_back(m_pairs[i]);
  }
  return out;
}

void OdDbObject::setXData(const OdString& appName, const OdDbDxfPairArray& pairs)
{
  assertWriteEnabled();
  // Drop the old group of this application, then append the new one.
  std::size_t i = std::size_t(xdataStart());
  while (i < m_pairs.size()) {
    if (m_pairs[i].code == 1001 && OdDxf::toOdString(m_pairs[i].value).iCompare(appName) == 0) {
      std::size_t j = i + 1;
      while (j < m_pairs.size() && m_pairs[j].code != 1001)
        ++j;
      m_pairs.erase(m_pairs.begin() + long(i), m_pairs.begin() + long(j));
      continue;
    }
    ++i;
  }
  if (pairs.empty())
    return;
  m_pairs.push_back(OdDbDxfPair{1001, storeText(OdDxf::fromOdString(appName))});
  for (const OdDbDxfPair& p : pairs)
    m_pairs.push_back(OdDbDxfPair{p.code, storeText(p.value)});
}
