// OdDbBlockTableRecord: a block definition (or layout space) and its entities.
#pragma once

#include "sdk/db/OdDbEntity.h"
#include "sdk/db/OdDbObjectIterator.h"
#include "sdk/db/OdDbSymbolTable.h"

#include <vector>

class OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
  ODRX_DECLARE_MEMBERS(OdDbBlockTableRecord);

public:
  static constexpr const char* kSub = "AcDbBlockTableRecord";
  static constexpr const char* kBeginSub = "AcDbBlockBegin";
  static const OdString& modelSpaceStr();
  static const OdString& paperSpaceStr();
  const char* recordSub() const override { return kSub; }

  enum BlockScaling { kAny = 0, kUniform = 1 };

  // Adds the entity to the database (when it is not in one) and to this block.
  OdDbObjectId appendOdDbEntity(OdDbEntity* entity);
  OdDbObjectIteratorPtr newIterator(bool atBeginning = true, bool skipErased = true) const;
  const std::vector<OdDbObjectId>& entityIds() const { return m_entities; }
  void removeEntity(OdDbObjectId id);

  // The values of the definition itself live in its BLOCK entity (origin,
  // description, flags, xref path); the record keeps units and scaling.
  OdGePoint3d origin() const { return m_begin->getPoint(kBeginSub, 10); }
  void setOrigin(const OdGePoint3d& p) { m_begin->setPoint(kBeginSub, 10, p); }
  // The description of the block.
  OdString comments() const { return m_begin->getString(kBeginSub, 4); }
  void setComments(const OdString& text);
  // The file of an external reference.
  OdString pathName() const { return m_begin->getString(kBeginSub, 1); }
  void setPathName(const OdString& path) { m_begin->setString(kBeginSub, 1, path); }

  int blockFlags() const { return int(m_begin->getInt(kBeginSub, 70, 0)); }
  void setBlockFlags(int flags) { m_begin->setInt(kBeginSub, 70, flags); }
  // Flag 1 of the BLOCK entity (*U, *D, *X... blocks).
  bool isAnonymous() const;
  // Model space and every paper space (*Model_Space, *Paper_Space...).
  bool isLayout() const;
  bool hasAttributeDefinitions() const { return (blockFlags() & 2) != 0; }
  bool isFromExternalReference() const { return (blockFlags() & 4) != 0; }
  bool isFromOverlayReference() const { return (blockFlags() & 8) != 0; }
  void setIsFromExternalReference(bool on) { setBlockFlags(on ? blockFlags() | 4 : blockFlags() & ~12); }
  void setIsFromOverlayReference(bool on) { setBlockFlags(on ? blockFlags() | 12 : blockFlags() & ~8); }
  bool isResolved() const { return (blockFlags() & 32) != 0; }
  bool isUnloaded() const { return isFromExternalReference() && !isResolved(); }

  OdDbObjectId getLayoutId() const { return getId(kSub, 340); }
  void setLayoutId(OdDbObjectId id) { setId(kSub, 340, id); }
  OdDb::UnitsValue blockInsertUnits() const { return OdDb::UnitsValue(getInt(kSub, 70, 0)); }
  void setBlockInsertUnits(OdDb::UnitsValue units) { setInt(kSub, 70, units); }
  BlockScaling blockScaling() const { return BlockScaling(getInt(kSub, 281, 0)); }
  void setBlockScaling(BlockScaling scaling) { setInt(kSub, 281, scaling); }
  bool explodable() const { return getInt(kSub, 280, 1) != 0; }
  void setExplodable(bool on) { setInt(kSub, 280, on ? 1 : 0); }

  // The BLOCK and ENDBLK entities that frame the definition in a file.
  OdDbEntity* blockBegin() const { return m_begin.get(); }
  OdDbEntity* blockEnd() const { return m_end.get(); }
  void setBlockBeginEnd(OdDbEntity* begin, OdDbEntity* end);
  // For readers: an entity already in the database, owned by this block.
  void appendLoadedEntity(OdDbObjectId id) { m_entities.push_back(id); }

  void setName(const OdString& name) override;
  void subAddedToDatabase() override;
  void ownedSubObjects(std::vector<OdDbObjectId>& ids) const override;
  OdResult erase(bool erasing = true) override;

protected:
  OdDbBlockTableRecord();
  int flags() const override { return blockFlags(); }

private:
  // Owned: written right before and after the block's entities.
  OdDbEntityPtr m_begin;
  OdDbEntityPtr m_end;
  std::vector<OdDbObjectId> m_entities;
};
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;
