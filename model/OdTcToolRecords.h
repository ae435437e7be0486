// The records of other programs' palette files that a tool reads: the
// command of a multitool ("CustomData"), its pop-up menu ("Flyout"), a
// reference to a stock tool ("StockToolRef"), and the two origin records
// ("ToolSource", "Source") that are read and dropped.
#pragma once

#include "model/OdTcPersistImpl.h"

namespace tc {

class OdTcToolCustomData : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolCustomData);

public:
  // The class of the drawing object the multitool's command draws.
  virtual OdString className() const = 0;
  virtual OdString idButton() const = 0;
};
using OdTcToolCustomDataPtr = OdSmartPtr<OdTcToolCustomData>;

class OdTcToolFlyout : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolFlyout);

public:
  virtual bool isEnabled() const = 0;
  virtual OdString shapePackage() const = 0;
  virtual OdString currentShape() const = 0;
};
using OdTcToolFlyoutPtr = OdSmartPtr<OdTcToolFlyout>;

class OdTcStockToolRef : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcStockToolRef);

public:
  virtual OdString idValue() const = 0;
};
using OdTcStockToolRefPtr = OdSmartPtr<OdTcStockToolRef>;

class OdTcToolSource : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcToolSource);
};

class OdTcSource : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcSource);
};

class OdTcToolCustomDataImpl : public OdTcPersistImpl<OdTcToolCustomData>
{
public:
  OdString tagName() const override { return "CustomData"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;
  OdString className() const override { return m_className; }
  OdString idButton() const override { return m_idButton; }

private:
  OdString m_className;
  OdString m_idButton;
};

class OdTcToolFlyoutImpl : public OdTcPersistImpl<OdTcToolFlyout>
{
public:
  OdString tagName() const override { return "Flyout"; }
  // "ShapePackage" and "CurrentShape" carry the same attribute "idValue":
  // the two are told apart by the order of arrival alone (see the .cpp).
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  bool isEnabled() const override { return m_enable; }
  OdString shapePackage() const override { return m_shapePackage; }
  OdString currentShape() const override { return m_currentShape; }

  // The process-wide counter of "idValue" arrivals: 0 before a
  // "ShapePackage", 1 before a "CurrentShape".
  static int pairingCounter();
  static void resetPairingCounter();

private:
  bool m_enable = false;
  OdString m_shapePackage;
  OdString m_currentShape;
};

class OdTcStockToolRefImpl : public OdTcPersistImpl<OdTcStockToolRef>
{
public:
  OdString tagName() const override { return "StockToolRef"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  OdString idValue() const override { return m_idValue; }

private:
  OdString m_idValue;
};

// Read under "ToolSource": the tool's origin in another program. Kept only
// while its parent is read; it writes nothing.
class OdTcToolSourceImpl : public OdTcPersistImpl<OdTcToolSource>
{
public:
  bool setValue(const OdString& name, const OdVariant& value) override;

private:
  OdString m_id;
  OdString m_palette;
};

// Read under "Source"; stores and writes nothing.
class OdTcSourceImpl : public OdTcPersistImpl<OdTcSource>
{
};

// Reads the booleans of the files: "TRUE" and "1", in any case, are true.
bool readFileBool(const OdString& text);

} // namespace tc
