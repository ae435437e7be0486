// The colour property.
#include "properties/OdTcColorPropertyImpl.h"

#include "properties/TcColorText.h"
#include "properties/TcSharedText.h"

#include "sdk/db/OdDbDatabase.h"

namespace tc {

namespace {
const char* const kCurrentColorBook = "curr_color";
} // namespace

OdTcColorPropertyImpl::OdTcColorPropertyImpl()
{
  m_name = tcTranslate("General.Color");
  setCreateInfo(OdTcColorPropertyCreateInfoImpl::createNew());
}

OdSmartPtr<OdTcColorPropertyImpl> OdTcColorPropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcColorPropertyImpl>::createObject();
}

OdRxObjectPtr OdTcColorPropertyImpl::clone() const
{
  return tcCloneAs<OdTcColorPropertyImpl, OdTcColorPropertyImpl>(this);
}

void OdTcColorPropertyImpl::copyFrom(const OdRxObject* source)
{
  OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcColorPropertyImpl*>(source)) {
    m_useCurrentEnabled = src->m_useCurrentEnabled;
    m_applyDisabled = src->m_applyDisabled;
  }
}

OdTcColorPropertyCreateInfoImpl* OdTcColorPropertyImpl::colorInfo() const
{
  auto* info = dynamic_cast<OdTcColorPropertyCreateInfoImpl*>(m_createInfo.get());
  if (!info) {
    auto* self = const_cast<OdTcColorPropertyImpl*>(this);
    self->setCreateInfo(OdTcColorPropertyCreateInfoImpl::createNew());
    info = static_cast<OdTcColorPropertyCreateInfoImpl*>(m_createInfo.get());
  }
  return info;
}

void OdTcColorPropertyImpl::apply(OdDbDatabase* database)
{
  if (m_applyDisabled || !database)
    return;
  m_savedColor = database->getCECOLOR();
  m_hasSaved = true;
  if (!isUnspecified())
    database->setCECOLOR(colorInfo()->m_color);
}

void OdTcColorPropertyImpl::restore(OdDbDatabase* database)
{
  // Writing an equal value would still set a header value the drawing
  // may not have had.
  if (m_hasSaved && database && !(database->getCECOLOR() == m_savedColor))
    database->setCECOLOR(m_savedColor);
}

OdCmColor OdTcColorPropertyImpl::getColor() const
{
  if (isUnspecified() && m_useCurrentEnabled) {
    OdCmColor current;
    current.setRGB(255, 255, 255);
    current.setNames(tcUseCurrentText(), kCurrentColorBook);
    return current;
  }
  return colorInfo()->m_color;
}

void OdTcColorPropertyImpl::setColor(const OdCmColor& color)
{
  beginChange();
  if (color.bookName().iCompare(kCurrentColorBook) == 0) {
    m_basicInfo->setUnspecified(true);
  } else {
    colorInfo()->m_color = color;
    m_basicInfo->setUnspecified(false);
  }
  tcNotifyPropertyChanged(this);
}

OdString OdTcColorPropertyImpl::specifiedText() const
{
  return tcColorText(colorInfo()->m_color);
}

bool OdTcColorPropertyImpl::takeText(const OdString& text)
{
  OdCmColor color;
  if (!tcParseColorText(text, color))
    return false;
  colorInfo()->m_color = color;
  return true;
}

} // namespace tc
