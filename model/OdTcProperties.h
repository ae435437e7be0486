// OdTcProperties: the display record of a catalog item: its name,
// description, dates, resource name and pictures.
#pragma once

#include "model/OdTcPersistImpl.h"

namespace tc {

class OdTcImageList;

class OdTcProperties : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcProperties);

public:
  virtual OdString itemName() const = 0;
  // Setting the name or the description refreshes the modification date.
  virtual void setItemName(const OdString& name) = 0;
  virtual OdString description() const = 0;
  virtual void setDescription(const OdString& description) = 0;
  virtual OdString created() const = 0;
  virtual OdString changed() const = 0;
  virtual void setDates(const OdString& created, const OdString& changed) = 0;
  virtual OdString resource() const = 0;
  virtual OdString src() const = 0;
  virtual void setResource(const OdString& resource, const OdString& src) = 0;
  virtual void refreshChanged() = 0;
  virtual OdTcImageList* images() = 0;
  virtual void setImages(OdTcImageList* images) = 0;
};
using OdTcPropertiesPtr = OdSmartPtr<OdTcProperties>;

class OdTcPropertiesImpl : public OdTcPersistImpl<OdTcProperties>
{
public:
  OdTcPropertiesImpl();
  static OdTcPropertiesPtr createNew();

  OdString tagName() const override { return "Properties"; }
  // The name a user sees: the resource name stands in for an empty name.
  OdString displayName() const override;
  void write(OdTcFiler* filer) override;
  void writeBody(OdTcFiler* filer) override;
  void writeTail(OdTcFiler* filer) override;
  bool setValue(const OdString& name, const OdVariant& value) override;
  void copyFrom(const OdRxObject* source) override;

  OdString itemName() const override { return m_itemName; }
  void setItemName(const OdString& name) override;
  OdString description() const override { return m_description; }
  void setDescription(const OdString& description) override;
  OdString created() const override { return m_created; }
  OdString changed() const override { return m_changed; }
  void setDates(const OdString& created, const OdString& changed) override;
  OdString resource() const override { return m_resource; }
  OdString src() const override { return m_src; }
  void setResource(const OdString& resource, const OdString& src) override;
  void refreshChanged() override;
  OdTcImageList* images() override;
  void setImages(OdTcImageList* images) override;

  // The present moment as the files keep it: the C library's text of the
  // universal time.
  static OdString now();

private:
  OdString m_itemName;
  OdString m_description;
  OdString m_created;
  OdString m_changed;
  OdString m_resource;
  OdString m_src;
  OdSmartPtr<OdTcImageList> m_images;
};

// The record of a general property value: whether it is set, its type and
// the value ("BasicPropInfo", with one child "PropValue").
class OdTcPropertyBasicInfo : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcPropertyBasicInfo);

public:
  // True means "-- use current": the tool leaves the drawing's value.
  virtual bool isUnspecified() const = 0;
  virtual void setUnspecified(bool unspecified) = 0;
  virtual std::int32_t valueType() const = 0;
  virtual void setValueType(std::int32_t type) = 0;
  virtual OdVariant value() const = 0;
  virtual void setPropValue(const OdVariant& value) = 0;
  // Whether "valueType" is written; the general properties leave it out.
  virtual bool isValueTypeWritten() const = 0;
  virtual void setValueTypeWritten(bool written) = 0;
};
using OdTcPropertyBasicInfoPtr = OdSmartPtr<OdTcPropertyBasicInfo>;

class OdTcPropertyBasicInfoImpl : public OdTcPersistImpl<OdTcPropertyBasicInfo>
{
public:
  static OdTcPropertyBasicInfoPtr createNew();

  OdString tagName() const override { return "BasicPropInfo"; }
  // Takes "unspecified", "valueType" and "value"; unlike every other class
  // it answers true for names it does not know.
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;

  bool isUnspecified() const override { return m_unspecified; }
  void setUnspecified(bool unspecified) override { m_unspecified = unspecified; }
  std::int32_t valueType() const override { return m_valueType; }
  void setValueType(std::int32_t type) override { m_valueType = type; }
  OdVariant value() const override { return m_value; }
  void setPropValue(const OdVariant& value) override { m_value = value; }
  bool isValueTypeWritten() const override { return m_isValueTypeWritten; }
  void setValueTypeWritten(bool written) override { m_isValueTypeWritten = written; }

private:
  bool m_unspecified = true;
  std::int32_t m_valueType = 0;
  OdVariant m_value = OdVariant(std::int32_t(0));
  bool m_isValueTypeWritten = true;
};

} // namespace tc
