// The dashes of a linetype snapshot: "LinetypeElement" with its length,
// holding a "ComplexLinetypeElement" when the dash draws a shape or a text,
// and their list "LinetypeElements".
#pragma once

#include "model/OdTcPersistImpl.h"

#include <vector>

namespace tc {

class OdTcLineTypeElement : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcLineTypeElement);
};

class OdTcComplexLineTypeElement : public OdTcLineTypeElement
{
  ODRX_DECLARE_MEMBERS(OdTcComplexLineTypeElement);
};

class OdTcLineTypeElementsList : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcLineTypeElementsList);
};

// The shape or text of a dash.
class OdTcComplexLineTypeElementImpl : public OdTcPersistImpl<OdTcComplexLineTypeElement>
{
public:
  static OdSmartPtr<OdTcComplexLineTypeElementImpl> createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "ComplexLinetypeElement"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  std::int32_t m_shapeNumber = 0;
  OdString m_text;
  double m_offsetX = 0.0;
  double m_offsetY = 0.0;
  double m_rotation = 0.0; // radians
  bool m_isAbsoluteRotation = false;
  double m_scale = 1.0;
  // The handle of its text style or shape file in the linetype's
  // collection; empty for none.
  OdString m_styleHandle;
};
using OdTcComplexLineTypeElementImplPtr = OdSmartPtr<OdTcComplexLineTypeElementImpl>;

class OdTcLineTypeElementImpl : public OdTcPersistImpl<OdTcLineTypeElement>
{
public:
  static OdSmartPtr<OdTcLineTypeElementImpl> createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "LinetypeElement"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;

  double m_dash = 0.0;
  // Null for a plain dash.
  OdTcComplexLineTypeElementImplPtr m_complex;
};
using OdTcLineTypeElementImplPtr = OdSmartPtr<OdTcLineTypeElementImpl>;

class OdTcLineTypeElementsListImpl : public OdTcPersistImpl<OdTcLineTypeElementsList>
{
public:
  static OdSmartPtr<OdTcLineTypeElementsListImpl> createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
  void copyFrom(const OdRxObject* source) override;

  OdString tagName() const override { return "LinetypeElements"; }
  void writeBody(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  bool hasChildren() const override { return !m_elements.empty(); }

  void add(OdTcLineTypeElementImpl* element);

  std::vector<OdTcLineTypeElementImplPtr> m_elements;
};
using OdTcLineTypeElementsListImplPtr = OdSmartPtr<OdTcLineTypeElementsListImpl>;

} // namespace tc
