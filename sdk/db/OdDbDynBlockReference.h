// OdDbDynBlockReference: the dynamic block behind a block reference.
#pragma once

#include "sdk/db/OdDbBlockReference.h"

// A reference to a dynamic block names an anonymous representation (*U...)
// of it; the representation points back at the dynamic block's definition
// through the extended data "AcDbBlockRepBTag". This class follows that
// link, so that tools see the block the user inserted.
class OdDbDynBlockReference
{
public:
  explicit OdDbDynBlockReference(OdDbObjectId blockReferenceId);
  explicit OdDbDynBlockReference(const OdDbBlockReference* reference);

  // True when the reference shows a dynamic block (or a representation).
  bool isDynamicBlock() const;
  // The dynamic block's definition; for other references, their own.
  OdDbObjectId dynamicBlockTableRecord() const;
  // The anonymous representation the reference names, or null.
  OdDbObjectId anonymousBlockTableRecord() const;
  OdDbObjectId blockId() const { return m_ref.isNull() ? OdDbObjectId() : m_ref->objectId(); }

  // True for the definition of a dynamic block itself.
  static bool isDynamicBlockDefinition(OdDbObjectId blockId);

private:
  OdDbObjectId representedBlock() const;
  OdDbBlockReferencePtr m_ref;
};
