// OdTcPropertyBagImpl: the ordered properties of a tool ("GeneralProperties")
// or of an agent.
#pragma once

#include "model/OdTcPersistImpl.h"
#include "model/OdTcPropertyBag.h"

#include "sdk/kernel/OdArray.h"

namespace tc {

class OdTcPropertyBagImpl : public OdTcPersistImpl<OdTcPropertyBag>
{
public:
  static OdTcPropertyBagPtr createNew();
  static OdRxObjectPtr pseudoConstructor();

  OdString tagName() const override { return "GeneralProperties"; }
  void writeBody(OdTcFiler* filer) override;
  // Each child object is a property, appended in the order of the file.
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;
  OdRxObjectPtr clone() const override;
  bool hasChildren() const override { return !m_properties.isEmpty(); }

  void addProperty(OdTcProperty* property) override;
  int count() const override { return int(m_properties.size()); }
  void clear() override { m_properties.clear(); }
  bool isEmpty() const override { return m_properties.isEmpty(); }
  OdString getName() const override { return m_name; }
  void setName(const OdString& name) override { m_name = name; }
  OdTcEnumPtr<OdTcProperty> newEnumerator() const override;
  OdTcProperty* findByName(const OdString& name) const override;
  // Takes the key of a display name ("General.Color") and finds the
  // property named with its translation, ignoring case.
  OdTcProperty* findByDisplayName(const OdString& name) const override;

private:
  OdArray<OdTcPropertyPtr> m_properties;
  OdString m_name;
};

} // namespace tc
