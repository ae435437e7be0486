// The snapshot of a text style ("TextstyleTableRecord"), and the collection
// of them that a linetype snapshot carries, keyed by the handle each style
// had in the drawing it came from.
#pragma once

#include "properties/OdTcSymbolTableRecord.h"

#include <utility>
#include <vector>

namespace tc {

class OdTcTextStyleTableRecordImpl : public OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>
{
public:
  static OdSmartPtr<OdTcTextStyleTableRecordImpl> createNew();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "TextstyleTableRecord"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  OdDbSymbolTableRecordPtr createDbRecord(OdDbDatabase* target) const override;
  bool captureDbRecord(OdDbObjectId id) override;

  // The handle of the style in its drawing, as hex text; written as an
  // attribute, so that a collection finds its styles by it.
  OdString handle() const { return m_handle; }
  void setHandle(const OdString& handle) { m_handle = handle; }

  bool m_isShapeFile = false;
  OdString m_fileName;
  bool m_isMirroredInX = false; // backwards
  bool m_isMirroredInY = false; // upside down
  bool m_isVertical = false;
  double m_widthRatio = 1.0;
  double m_fixedTextHeight = 0.0;
  double m_obliquing = 0.0; // radians
  double m_priorTextHeight = 2.5;
  OdString m_typeFace;
  bool m_bold = false;
  bool m_italic = false;
  std::int32_t m_charSet = 0;
  std::int32_t m_pitchAndFamily = 0;
  // The packed word of the font as the drawing kept it; carried, not used.
  OdString m_fontXdata;

private:
  OdString m_handle;
};
using OdTcTextStyleTableRecordImplPtr = OdSmartPtr<OdTcTextStyleTableRecordImpl>;

class OdTcTextStyleTableRecordCollection : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcTextStyleTableRecordCollection);
};

class OdTcTextStyleTableRecordCollectionImpl : public OdTcPersistImpl<OdTcTextStyleTableRecordCollection>
{
public:
  static OdSmartPtr<OdTcTextStyleTableRecordCollectionImpl> createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "TextstyleTableRecordCollection"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  bool hasChildren() const override { return !m_styles.empty(); }

  // Adds a style under its handle; a style of a handle already there
  // replaces the one before.
  void add(OdTcTextStyleTableRecordImpl* style);
  // The style of that handle (hex, ignoring case), or null.
  OdTcTextStyleTableRecordImpl* find(const OdString& handle) const;
  int count() const { return int(m_styles.size()); }
  OdTcTextStyleTableRecordImpl* at(int i) const { return m_styles[std::size_t(i)]; }

private:
  std::vector<OdTcTextStyleTableRecordImplPtr> m_styles;
};
using OdTcTextStyleTableRecordCollectionImplPtr = OdSmartPtr<OdTcTextStyleTableRecordCollectionImpl>;

} // namespace tc
