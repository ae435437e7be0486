// The general properties that name a record of the drawing: layer
// ("Layer"), linetype ("Linetype"), text style ("Textstyle") and dimension
// style ("Dimstyle"). A record of the value's name in the drawing wins; a
// missing one is made from the snapshot the property carries.
#pragma once

#include "properties/OdTcDatabasePropertyImplBase.h"
#include "properties/OdTcPropertyCreateInfos.h"

namespace tc {

class OdTcRecordPropertyImplBase : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  // Saves the drawing's current record; then makes the record of the
  // value's name current, made from the snapshot where the drawing lacks
  // it. The records made stay in the drawing.
  void apply(OdDbDatabase* database) override;
  void restore(OdDbDatabase* database) override;

  // The record's name, or empty.
  OdString recordName() const;
  // The snapshot carried, or null.
  OdTcSymbolTableRecord* snapshot() const;
  // Sets the value to the record of that name in `database` and takes its
  // snapshot; false, changing nothing, when the drawing has no such record.
  bool captureRecord(OdDbDatabase* database, const OdString& name);

protected:
  virtual OdDbObjectId tableId(OdDbDatabase* database) const = 0;
  virtual OdDbObjectId current(OdDbDatabase* database) const = 0;
  virtual void setCurrent(OdDbDatabase* database, OdDbObjectId id) const = 0;
  // A new create-info of the kind, without a snapshot.
  virtual OdTcPropertyCreateInfoPtr newCreateInfo() const = 0;
  // A new, empty snapshot of the kind.
  virtual OdTcSymbolTableRecordPtr newSnapshot() const = 0;
  // After the current record changed (or was put back).
  virtual void currentChanged(OdDbDatabase* database, OdDbObjectId id) const {}

  // A name typed over the value no longer matches the snapshot, which
  // is dropped rather than made under the new name.
  bool takeText(const OdString& text) override;

private:
  OdDbObjectId m_saved;
  bool m_hasSaved = false;
};

class OdTcLayerPropertyImpl : public OdTcRecordPropertyImplBase
{
public:
  OdTcLayerPropertyImpl();
  static OdSmartPtr<OdTcLayerPropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Layer"; }

protected:
  OdDbObjectId tableId(OdDbDatabase* database) const override;
  OdDbObjectId current(OdDbDatabase* database) const override;
  void setCurrent(OdDbDatabase* database, OdDbObjectId id) const override;
  OdTcPropertyCreateInfoPtr newCreateInfo() const override;
  OdTcSymbolTableRecordPtr newSnapshot() const override;
  OdString createInfoTag() const override { return "LayerCreateInfo"; }
  // Layer "0" is in every drawing.
  bool writesCreateInfo() const override { return recordName() != "0"; }
};

class OdTcLineTypePropertyImpl : public OdTcRecordPropertyImplBase
{
public:
  OdTcLineTypePropertyImpl();
  static OdSmartPtr<OdTcLineTypePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Linetype"; }

protected:
  OdDbObjectId tableId(OdDbDatabase* database) const override;
  OdDbObjectId current(OdDbDatabase* database) const override;
  void setCurrent(OdDbDatabase* database, OdDbObjectId id) const override;
  OdTcPropertyCreateInfoPtr newCreateInfo() const override;
  OdTcSymbolTableRecordPtr newSnapshot() const override;
  OdString createInfoTag() const override { return "LineTypeCreateInfo"; }
  // "ByLayer", "ByBlock" and "Continuous" are in every drawing.
  bool writesCreateInfo() const override;
};

class OdTcTextStylePropertyImpl : public OdTcRecordPropertyImplBase
{
public:
  OdTcTextStylePropertyImpl();
  static OdSmartPtr<OdTcTextStylePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Textstyle"; }

protected:
  OdDbObjectId tableId(OdDbDatabase* database) const override;
  OdDbObjectId current(OdDbDatabase* database) const override;
  void setCurrent(OdDbDatabase* database, OdDbObjectId id) const override;
  OdTcPropertyCreateInfoPtr newCreateInfo() const override;
  OdTcSymbolTableRecordPtr newSnapshot() const override;
  OdString createInfoTag() const override { return "TextStyleCreateInfo"; }
};

class OdTcDimStylePropertyImpl : public OdTcRecordPropertyImplBase
{
public:
  OdTcDimStylePropertyImpl();
  static OdSmartPtr<OdTcDimStylePropertyImpl> createNew();
  OdRxObjectPtr clone() const override;
  OdString tagName() const override { return "Dimstyle"; }

protected:
  OdDbObjectId tableId(OdDbDatabase* database) const override;
  OdDbObjectId current(OdDbDatabase* database) const override;
  void setCurrent(OdDbDatabase* database, OdDbObjectId id) const override;
  OdTcPropertyCreateInfoPtr newCreateInfo() const override;
  OdTcSymbolTableRecordPtr newSnapshot() const override;
  OdString createInfoTag() const override { return "DimStyleCreateInfo"; }
  // The drawing's dimension variables follow the style.
  void currentChanged(OdDbDatabase* database, OdDbObjectId id) const override;
};

} // namespace tc
