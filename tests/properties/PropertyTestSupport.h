// What the property tests share: the classes and element names the module
// registers, a root element to carry objects through the palette filer, and
// the drawings they act on.
#pragma once

#include "properties/OdTcPropertyBagImpl.h"
#include "properties/TcPropertyClasses.h"

#include "images/TcImageClasses.h"
#include "model/OdTcCatalogImpl.h"
#include "model/OdTcImageList.h"
#include "model/OdTcPaletteUi.h"
#include "model/OdTcPropertyFilter.h"
#include "persist/OdTcPalettePropertiesFilerImpl.h"
#include "persist/OdTcTagTable.h"
#include "persist/TcModelTags.h"
#include "properties/OdTcLineTypeElements.h"
#include "properties/OdTcPropertyCreateInfo.h"
#include "properties/OdTcPropertyReference.h"
#include "properties/OdTcTextStyleTableRecordImpl.h"

#include "sdk/db/OdDbDatabase.h"

#include <string>
#include <vector>

namespace tst {

template <class... C>
void ensureRegistered()
{
  ((C::desc() ? void() : C::rxInit()), ...);
}

inline void registerPropertyClasses()
{
  using namespace tc;
  ensureRegistered<OdTcPersist, OdTcSymbolTableRecord, OdTcCatalogItem, OdTcDatabase, OdTcToolPalette,
                   OdTcPaletteUiProperties, OdTcProperty, OdTcDatabaseProperty, OdTcPropertyBag,
                   OdTcPropertyFilter, OdTcImageList, OdTcImage, OdTcProperties, OdTcPropertyBasicInfo,
                   OdTcPropertyCreateInfo, OdTcLineTypeElement, OdTcComplexLineTypeElement,
                   OdTcTextStyleTableRecordCollection, OdTcPropertyReference, OdTcToolOrderList,
                   OdTcCatalogItemOrderList, OdTcCatalogView, OdTcList, OdTcLineTypeElementsList, OdTcToolList>();
  registerModelTags(OdTcTagTable::instance());
  registerImageClasses(OdTcTagTable::instance());
  tc::registerPropertyClasses(OdTcTagTable::instance());
}

// The root element of a palette file, holding whatever objects it is given
// or read with, in their order.
class Holder : public tc::OdTcPersistImpl<tc::OdTcPersist>
{
public:
  static OdSmartPtr<Holder> create() { return OdSmartPtr<Holder>(new OdRxObjectImpl<Holder>, kOdRxObjAttach); }
  OdString tagName() const override { return "Palette"; }
  bool setValue(const OdString&, const OdVariant& value) override
  {
    if (value.type() != OdVariant::kRxObjectPtr)
      return false;
    m_objects.push_back(tc::OdTcPersistPtr(value.getRxObjectPtr()));
    return true;
  }
  void writeBody(tc::OdTcFiler* filer) override
  {
    for (const auto& object : m_objects)
      filer->writeObject(object);
  }
  std::vector<tc::OdTcPersistPtr> m_objects;
};

// The palette file text of an object, under the root "Palette".
inline std::string paletteXml(tc::OdTcPersist* object)
{
  auto holder = Holder::create();
  holder->m_objects.push_back(tc::OdTcPersistPtr(object));
  OdStreamBufPtr stream = OdMemoryStream::createNew();
  tc::OdTcFilerPtr filer = tc::OdTcPalettePropertiesFilerImpl::createObject();
  filer->openPalette(stream, holder, true);
  filer->flush();
  const auto& bytes = static_cast<OdMemoryStream*>(stream.get())->data();
  return std::string(bytes.begin(), bytes.end());
}

// The objects a palette file text holds under its root.
inline std::vector<tc::OdTcPersistPtr> readPaletteXml(const std::string& xml)
{
  auto holder = Holder::create();
  OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(xml.begin(), xml.end()));
  tc::OdTcPalettePropertiesFilerImpl::createObject()->openPalette(stream, holder, false);
  return holder->m_objects;
}

// The one object of a text, of the class expected.
template <class T>
OdSmartPtr<T> readOne(const std::string& xml)
{
  const auto objects = readPaletteXml(xml);
  if (objects.size() != 1)
    return OdSmartPtr<T>();
  return OdSmartPtr<T>(dynamic_cast<T*>(objects.front().get()));
}

// Between a palette file's root tags.
inline std::string body(const std::string& xml)
{
  const std::string open = "<Palette>";
  const std::string close = "</Palette>";
  if (xml.rfind(open, 0) != 0 || xml.size() < open.size() + close.size())
    return xml;
  return xml.substr(open.size(), xml.size() - open.size() - close.size());
}

inline std::string wrap(const std::string& inner)
{
  return "<Palette>" + inner + "</Palette>";
}

} // namespace tst
