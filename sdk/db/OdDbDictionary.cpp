// Dictionary entries as pairs of code 3 (name) and 350/360 (object).
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbDatabase.h"

#include "sdk/kernel/OdRxClass.h"

ODRX_DEFINE_MEMBERS(OdDbDictionary, OdDbObject, ODRX_CREATE_IMPL(OdDbDictionary, OdDbDictionary))

OdDbDictionary::OdDbDictionary()
{
  initData("DICTIONARY", {odPair(100, kSub), odPair(281, "1")});
}

std::vector<std::pair<OdString, OdDbObjectId>> OdDbDictionary::entries() const
{
  std::vector<std::pair<OdString, OdDbObjectId>> out;
  OdDbDatabase* db = database();
  auto r = sectionRange(kSub);
  for (int i = r.first; i + 1 < r.second; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    const OdDbDxfPair& q = m_pairs[std::size_t(i + 1)];
    if (p.code == 3 && (q.code == 350 || q.code == 360)) {
      out.emplace_back(OdDxf::toOdString(p.value), db ? db->getOdDbObjectId(OdDbHandle::fromText(q.value)) : OdDbObjectId());
      ++i;
    }
  }
  return out;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const
{
  for (const auto& e : entries())
    if (e.first.iCompare(name) == 0)
      return e.second;
  return OdDbObjectId();
}

OdDbObjectPtr OdDbDictionary::getAt(const OdString& name, OdDb::OpenMode mode) const
{
  return getAt(name).openObject(mode);
}

OdString OdDbDictionary::nameAt(const OdDbObjectId& id) const
{
  if (id.isNull())
    return OdString();
  for (const auto& e : entries())
    if (e.second == id)
      return e.first;
  return OdString();
}

OdDbObjectId OdDbDictionary::setAt(const OdString& name, OdDbObject* object)
{
  if (!object)
    throw OdError(eNullPtr, "null object");
  OdDbDatabase* db = database();
  if (!db)
    throw OdError(eNullPtr, "the dictionary is not in a database");
  OdDbObjectId id = object->objectId();
  if (id.isNull())
    id = db->addOdDbObject(object, objectId());
  else
    object->setOwnerId(objectId());
  setAt(name, id, true);
  return id;
}

// 360 marks an entry the dictionary owns, 350 one it only points at.
void OdDbDictionary::setAt(const OdString& name, OdDbObjectId id, bool hardOwner)
{
  assertWriteEnabled();
  remove(name);
  const int at = ensureSection(kSub);
  m_pairs.insert(m_pairs.begin() + at, {OdDbDxfPair{3, storeText(OdDxf::fromOdString(name))},
                                        OdDbDxfPair{hardOwner ? 360 : 350, storeText(id.getHandle().text())}});
}

bool OdDbDictionary::remove(const OdString& name)
{
  auto r = sectionRange(kSub);
  for (int i = r.first; i + 1 < r.second; ++i) {
    const OdDbDxfPair& p = m_pairs[std::size_t(i)];
    if (p.code == 3 && OdDxf::toOdString(p.value).iCompare(name) == 0 &&
        (m_pairs[std::size_t(i + 1)].code == 350 || m_pairs[std::size_t(i + 1)].code == 360)) {
      assertWriteEnabled();
      m_pairs.erase(m_pairs.begin() + i, m_pairs.begin() + i + 2);
      return true;
    }
  }
  return false;
}
