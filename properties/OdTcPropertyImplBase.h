// OdTcPropertyImplBase<I>: the common part of every property: its display
// name and group, the record of its value, and the editing period with its
// backup.
#pragma once

#include "properties/TcDelivered.h"
#include "properties/TcPropertyHooks.h"

#include "model/OdTcPersistImpl.h"
#include "model/OdTcProperties.h"
#include "model/OdTcProperty.h"

namespace tc {

template <class I>
class OdTcPropertyImplBase : public OdTcPersistImpl<I>
{
public:
  OdTcPropertyImplBase() : m_basicInfo(OdTcPropertyBasicInfoImpl::createNew()) { m_basicInfo->setParent(this); }

  OdString name() const override { return m_name; }
  void setName(const OdString& name) { m_name = name; }
  OdString category() const override { return m_category; }
  void setCategory(const OdString& category) { m_category = category; }
  OdString displayName() const override { return m_name; }

  OdVariant getValue() const override { return m_basicInfo->value(); }
  IRkEditableProperty* createEditableProperty() override { return tcMakeEditableRow(this); }
  void apply(OdDbDatabase*) override {}
  void restore(OdDbDatabase*) override {}

  // Puts back the fields from before the first change of the period.
  void rollbackEdit() override
  {
    if (!m_isEdited)
      return;
    if (m_backup)
      restoreFrom(*m_backup);
    m_backup = nullptr;
    m_isEdited = false;
  }
  void acceptEdit() override
  {
    m_isEdited = false;
    m_backup = nullptr;
  }
  bool isEdited() const override { return m_isEdited; }
  void setReadOnly(bool readOnly) override { m_isReadOnly = readOnly; }
  bool isReadOnly() const override { return m_isReadOnly; }
  OdTcPropertyBasicInfo* basicInfo() override { return m_basicInfo; }
  const OdTcPropertyBasicInfo* basicInfo() const { return m_basicInfo; }
  bool isEnabled() const override { return true; }
  bool isVisible() const override { return true; }

  // The value record stands first in the file, the definition after it.
  void write(OdTcFiler* filer) override
  {
    writeTail(filer);
    this->writeBody(filer);
  }
  // Written under the name "BasicInfo"; the element is the record's own.
  void writeTail(OdTcFiler* filer) override
  {
    filer->writeTextElement("BasicInfo", OdVariant(OdRxObjectPtr(m_basicInfo.get())), false);
  }
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name != "BasicPropInfo")
      return false;
    // The kind, not the file, decides whether "valueType" is written.
    const bool typeWritten = m_basicInfo->isValueTypeWritten();
    m_basicInfo = tcDeliveredAs<OdTcPropertyBasicInfo>(value);
    m_basicInfo->setValueTypeWritten(typeWritten);
    m_basicInfo->setParent(this);
    return true;
  }

  void copyFrom(const OdRxObject* source) override
  {
    OdTcPersistImpl<I>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcPropertyImplBase*>(source)) {
      m_name = src->m_name;
      m_isReadOnly = src->m_isReadOnly;
      m_basicInfo = OdTcPropertyBasicInfoPtr(src->m_basicInfo->clone());
      m_basicInfo->setParent(this);
      m_trackEdits = src->m_trackEdits;
      m_category = src->m_category;
    }
  }

  bool isUnspecified() const { return m_basicInfo->isUnspecified(); }
  // Every change of a field goes through here first: the first change of
  // an editing period keeps a copy of the property for rollbackEdit.
  void beginChange()
  {
    if (m_trackEdits && !m_isEdited) {
      m_isEdited = true;
      m_backup = OdSmartPtr<OdTcPropertyImplBase>(dynamic_cast<OdTcPropertyImplBase*>(this->clone().get()));
    }
  }

protected:
  // Takes over the fields that an edit can change; kinds with a
  // definition add it.
  virtual void restoreFrom(const OdTcPropertyImplBase& backup)
  {
    m_basicInfo = OdTcPropertyBasicInfoPtr(backup.m_basicInfo->clone());
    m_basicInfo->setParent(this);
  }

  OdString m_name;
  bool m_isReadOnly = false;
  bool m_isEdited = false;
  OdTcPropertyBasicInfoPtr m_basicInfo;
  bool m_trackEdits = true;
  OdString m_category;
  OdSmartPtr<OdTcPropertyImplBase> m_backup;
};

} // namespace tc
