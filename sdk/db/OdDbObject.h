// OdDbObject: the root of everything a drawing database holds.
#pragma once

#include "sdk/db/OdDbDxfPairs.h"
#include "sdk/db/OdDbObjectId.h"
#include "sdk/db/OdGeTypes.h"
#include "sdk/kernel/OdRxObject.h"

#include <initializer_list>
#include <string>
#include <vector>

// Every object keeps its data as the DXF group-code pairs it was read with
// (or was made with), after its type, handle and owner. The typed
// operations of the classes below read and change those pairs in place, so
// that whatever this SDK does not model survives a read and a write as it
// was, in its order.
class OdDbObject : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdDbObject);

public:
  ~OdDbObject() override;

  OdDbObjectId objectId() const { return OdDbObjectId(m_stub); }
  OdDbHandle getDbHandle() const { return m_stub ? m_stub->handle : OdDbHandle(); }
  OdDbDatabase* database() const { return m_stub ? m_stub->database : nullptr; }
  OdDbObjectId ownerId() const { return m_owner; }
  virtual void setOwnerId(OdDbObjectId owner)
  {
    assertWriteEnabled();
    m_owner = owner;
  }

  bool isErased() const { return m_stub && m_stub->erased; }
  // Erases (or un-erases) the object; an erased object is not written.
  virtual OdResult erase(bool erasing = true);
  bool isEraseStatusToggled() const { return m_eraseToggled; }

  // Opening is a state of the object here: the database is in memory and
  // single-threaded, so read and write access differ only in this mode.
  OdDb::OpenMode openMode() const { return m_openMode; }
  bool isReadEnabled() const { return m_openMode != OdDb::kNotOpen; }
  bool isWriteEnabled() const { return m_openMode == OdDb::kForWrite; }
  void upgradeOpen() { m_openMode = OdDb::kForWrite; }
  void downgradeOpen() { m_openMode = OdDb::kForRead; }
  void close() { m_eraseToggled = false; }
  void setOpenMode(OdDb::OpenMode mode) { m_openMode = mode; }
  // Every change of the object's data, owner or erase state goes through
  // here first, so that the database's reactors hear of it before it
  // happens. Code that edits dxfPairs() directly calls it itself.
  void assertWriteEnabled() const;

  // True for objects of classes that the writing application did not
  // publish (proxies), kept as they were read.
  bool isAProxy() const;
  OdDbObjectId extensionDictionary() const;
  // Persistent reactors: objects told of this one's changes, kept in its
  // {ACAD_REACTORS group (an image definition lists its images' reactors).
  void addPersistentReactor(OdDbObjectId reactorId);
  std::vector<OdDbObjectId> getPersistentReactors() const;
  // The DXF type name ("LINE", "LAYER", "DICTIONARY").
  OdString dxfName() const { return OdDxf::toOdString(m_type); }
  const std::string& dxfType() const { return m_type; }

  // Extended data of one application: the pairs after its 1001, without it.
  OdDbDxfPairArray xData(const OdString& appName) const;
  void setXData(const OdString& appName, const OdDbDxfPairArray& pairs);

  // --- storage, for the DXF filers and the classes -----------------------
  const OdDbDxfPairArray& dxfPairs() const { return m_pairs; }
  OdDbDxfPairArray& dxfPairs() { return m_pairs; }
  void setDxfData(std::string type, OdDbDxfPairArray pairs, const OdDbStringArenaPtr& arena);
  const OdDbStringArenaPtr& arena() const;
  std::string_view storeText(std::string_view text) const { return arena()->store(text); }

  // Index of the first pair with `code` in the subclass `sub` (every
  // section of that name; null: anywhere before the extended data), or -1.
  int findPair(const char* sub, int code, int from = 0) const;
  std::string_view rawValue(const char* sub, int code, std::string_view fallback = {}) const;
  OdString getString(const char* sub, int code, const OdString& fallback = OdString()) const;
  double getDouble(const char* sub, int code, double fallback = 0.0) const;
  long long getInt(const char* sub, int code, long long fallback = 0) const;
  OdGePoint3d getPoint(const char* sub, int code, const OdGePoint3d& fallback = OdGePoint3d()) const;
  OdGeVector3d getVector(const char* sub, int code, const OdGeVector3d& fallback = OdGeVector3d()) const;
  OdDbObjectId getId(const char* sub, int code) const;

  void setRaw(const char* sub, int code, std::string_view value);
  void setString(const char* sub, int code, const OdString& value);
  void setDouble(const char* sub, int code, double value);
  void setInt(const char* sub, int code, long long value);
  void setPoint(const char* sub, int code, const OdGePoint3d& p);
  void setVector(const char* sub, int code, const OdGeVector3d& v);
  void setId(const char* sub, int code, OdDbObjectId id);
  void removeCode(const char* sub, int code);
  // [begin, end) of the first section named `sub`; end = begin when absent.
  std::pair<int, int> sectionRange(const char* sub) const;
  // Replaces the pairs of the first section `sub` after its marker.
  void replaceSection(const char* sub, const OdDbDxfPairArray& body);
  // Makes sure the subclass marker exists (appended before extended data).
  int ensureSection(const char* sub);

  // Set by the database when the object joins it.
  void attachStub(OdDbStub* stub) { m_stub = stub; }
  // Called once the object is in a database: objects that own others
  // (block records, references with attributes) bring those along.
  virtual void subAddedToDatabase() {}
  // Objects owned by this one that are written right after it and cloned
  // with it (block begin/end, attributes, vertices, their end marker).
  virtual void ownedSubObjects(std::vector<OdDbObjectId>& ids) const { (void)ids; }

protected:
  OdDbObject();
  // Sets type and the pairs a new object starts with (literal texts).
  void initData(const char* type, std::initializer_list<OdDbDxfPair> pairs);
  int xdataStart() const;

  OdDbStub* m_stub = nullptr; // not owned: the stub owns this object
  OdDbObjectId m_owner;
  std::string m_type;
  OdDbDxfPairArray m_pairs;
  mutable OdDbStringArenaPtr m_arena;
  OdDb::OpenMode m_openMode = OdDb::kForRead;
  bool m_eraseToggled = false;
};

// Short form of a pair literal in class constructors.
constexpr OdDbDxfPair odPair(int code, const char* text) { return OdDbDxfPair{code, std::string_view(text)}; }
