// OdTcDatabasePropertyImplBase<I>: the common part of the general
// properties: the group "General", the definition that comes with a value,
// the editing period bracketed by the tool properties dialog, and the
// editor's text with "-- use current".
#pragma once

#include "properties/OdTcPropertyCreateInfo.h"
#include "properties/OdTcPropertyImplBase.h"
#include "properties/TcSharedText.h"

#include "model/TcValueText.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

// The translated text that stands for "the tool leaves the drawing's value".
inline OdString tcUseCurrentText()
{
  return Supp_Translate("-- use current");
}

template <class I>
class OdTcDatabasePropertyImplBase : public OdTcPropertyImplBase<I>
{
public:
  OdTcDatabasePropertyImplBase()
  {
    this->m_category = tcSharedText("General");
    this->m_basicInfo->setValueTypeWritten(false);
  }

  void beginEditTracking() override { this->m_trackEdits = true; }
  void endEditTracking() override { this->m_trackEdits = false; }

  OdString valueText() const override
  {
    return this->isUnspecified() ? tcUseCurrentText() : specifiedText();
  }
  bool setValueText(const OdString& text) override
  {
    this->beginChange();
    const bool taken = text != tcUseCurrentText() && takeText(text);
    this->m_basicInfo->setUnspecified(!taken);
    tcNotifyPropertyChanged(this);
    return taken;
  }

  OdTcPropertyCreateInfo* createInfo() const { return m_createInfo; }
  void setCreateInfo(OdTcPropertyCreateInfo* info)
  {
    m_createInfo = info;
    if (m_createInfo)
      m_createInfo->setParent(this);
  }

  // The definition follows the value, and only for a value that is set.
  void writeBody(OdTcFiler* filer) override
  {
    if (!this->isUnspecified() && m_createInfo && writesCreateInfo())
      filer->writeObject(m_createInfo);
  }
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (OdTcPropertyImplBase<I>::setValue(name, value))
      return true;
    const OdString tag = createInfoTag();
    if (tag.isEmpty() || name != tag)
      return false;
    setCreateInfo(OdSmartPtr<OdTcPropertyCreateInfo>(tcDeliveredAs<OdTcPropertyCreateInfo>(value)));
    return true;
  }
  void copyFrom(const OdRxObject* source) override
  {
    OdTcPropertyImplBase<I>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcDatabasePropertyImplBase*>(source))
      setCreateInfo(src->m_createInfo ? OdTcPropertyCreateInfoPtr(src->m_createInfo->clone())
                                      : OdTcPropertyCreateInfoPtr());
  }

protected:
  void restoreFrom(const OdTcPropertyImplBase<I>& backup) override
  {
    OdTcPropertyImplBase<I>::restoreFrom(backup);
    if (auto* src = dynamic_cast<const OdTcDatabasePropertyImplBase*>(&backup))
      setCreateInfo(src->m_createInfo ? OdTcPropertyCreateInfoPtr(src->m_createInfo->clone())
                                      : OdTcPropertyCreateInfoPtr());
  }

  // The text of a value that is set; by default the stored value.
  virtual OdString specifiedText() const { return tcVariantText(this->m_basicInfo->value()); }
  // Stores the value of an edited text; false for a text the kind cannot
  // take. "-- use current" never comes here.
  virtual bool takeText(const OdString& text)
  {
    this->m_basicInfo->setPropValue(OdVariant(text));
    return true;
  }
  // The name under which the filer delivers this kind's definition
  // ("LayerCreateInfo"); empty for kinds without one.
  virtual OdString createInfoTag() const { return OdString(); }
  // Whether the definition of the present value is worth writing.
  virtual bool writesCreateInfo() const { return true; }

  OdTcPropertyCreateInfoPtr m_createInfo;
};

} // namespace tc
