// Gradient colours.
#include "tools/OdTcGradientColors.h"

namespace tc {

namespace {
// A packed colour as the files have it: unsigned decimal, or signed where a
// writer printed it with a sign.
std::uint32_t packedColor(const OdString& text)
{
  bool ok = false;
  const qlonglong value = text.qstring().trimmed().toLongLong(&ok);
  return ok ? std::uint32_t(value) : 0u;
}
} // namespace

OdSmartPtr<OdTcColorValueImpl> OdTcColorValueImpl::createNew(const OdCmColor& color)
{
  auto value = OdRxObjectImpl<OdTcColorValueImpl>::createObject();
  value->setColor(color);
  return value;
}

bool OdTcColorValueImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "mRGB")
    return false;
  m_color.setColor(packedColor(value.getString()));
  return true;
}

void OdTcColorValueImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttributeElement("AcCmColor", "mRGB", OdVariant(std::int32_t(m_color.color())));
}

void OdTcColorValueImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcColorValueImpl*>(source))
    m_color = src->m_color;
}

OdSmartPtr<OdTcGradientColorImpl> OdTcGradientColorImpl::createNew(const OdCmColor& color)
{
  auto gradientColor = OdRxObjectImpl<OdTcGradientColorImpl>::createObject();
  gradientColor->setColor(color);
  return gradientColor;
}

OdTcGradientColorImpl::OdTcGradientColorImpl() : m_value(OdTcColorValueImpl::createNew())
{
  m_value->setParent(this);
}

bool OdTcGradientColorImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "Color")
    return false;
  // Anything but a colour record (a file of another program) keeps the
  // colour as it was.
  if (auto* record = dynamic_cast<OdTcColorValueImpl*>(value.getRxObjectPtr().get()))
    m_value = record;
  return true;
}

void OdTcGradientColorImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  if (auto* src = dynamic_cast<const OdTcGradientColorImpl*>(source))
    m_value->setColor(src->color());
}

OdSmartPtr<OdTcGradientColorsImpl> OdTcGradientColorsImpl::createEmpty()
{
  return OdRxObjectImpl<OdTcGradientColorsImpl>::createObject();
}

OdSmartPtr<OdTcGradientColorsImpl> OdTcGradientColorsImpl::createNew()
{
  auto list = createEmpty();
  OdCmColor first;
  first.setColorIndex(OdCmEntityColor::kACIBlue);
  OdCmColor second;
  second.setColorIndex(OdCmEntityColor::kACIYellow);
  for (const OdCmColor& color : {first, second}) {
    auto entry = OdTcGradientColorImpl::createNew(color);
    entry->setParent(list.get());
    list->m_colors.push_back(entry);
  }
  return list;
}

bool OdTcGradientColorsImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (name != "GradientColor")
    return false;
  if (auto* entry = dynamic_cast<OdTcGradientColorImpl*>(value.getRxObjectPtr().get()))
    m_colors.push_back(entry);
  return true;
}

void OdTcGradientColorsImpl::writeBody(OdTcFiler* filer)
{
  for (const auto& entry : m_colors)
    filer->writeObject(entry);
}

void OdTcGradientColorsImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcPersist>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcGradientColorsImpl*>(source);
  if (!src)
    return;
  m_colors.clear();
  for (const auto& entry : src->m_colors) {
    auto copy = OdTcGradientColorImpl::createNew(entry->color());
    copy->setParent(this);
    m_colors.push_back(copy);
  }
}

OdCmColor OdTcGradientColorsImpl::color(int index) const
{
  return index >= 0 && index < count() ? m_colors[size_t(index)]->color() : OdCmColor();
}

void OdTcGradientColorsImpl::setColor(int index, const OdCmColor& color)
{
  if (index < 0)
    return;
  while (count() <= index) {
    m_colors.push_back(OdTcGradientColorImpl::createNew());
    m_colors.back()->setParent(this);
  }
  m_colors[size_t(index)]->setColor(color);
}

} // namespace tc
