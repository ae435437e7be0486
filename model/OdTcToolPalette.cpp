// The tool palette item.
#include "model/OdTcToolPaletteImpl.h"

#include "model/OdTcCatalog.h"
#include "model/OdTcFileStore.h"
#include "model/OdTcTool.h"

#include "hostsdk/core/HostCore.h"

#include <algorithm>
#include <vector>

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolPalette, OdTcCatalogItem, ODRX_CREATE_IMPL(OdTcToolPaletteImpl, OdTcToolPalette))

namespace {
constexpr int kNotSupported = 3;

// The order of tools by their kinds: blocks, commands, hatches, rasters;
// within one kind by name ignoring case, except that two blocks count as
// equal. Items that are not tools, tools without an agent, and kinds out
// of the table compare as equal to anything.
int compareByKind(OdTcCatalogItem* first, OdTcCatalogItem* second)
{
  OdTcToolPtr a = OdTcTool::cast(first);
  OdTcToolPtr b = OdTcTool::cast(second);
  if (!a || !b || !a->agent() || !b->agent())
    return 0;
  static const char* const kKinds[] = {"Block", "Command", "Hatch", "Raster"};
  auto rank = [](const OdString& kind) {
    for (int i = 0; i < 4; ++i)
      if (kind == kKinds[i])
        return i;
    return -1;
  };
  const OdString kindA = a->agent()->tagName();
  const OdString kindB = b->agent()->tagName();
  const int ra = rank(kindA);
  const int rb = rank(kindB);
  if (kindA == kindB)
    return ra == 0 ? 0 : a->displayName().iCompare(b->displayName());
  if (ra < 0 || rb < 0)
    return 0;
  return ra < rb ? -1 : 1;
}

// A stable insertion sort: the compare functions of the palette's orders
// are not all strict weak orders (tools without a kind are equal to all),
// which the standard sorts do not allow.
template <class Less>
void insertionSort(std::vector<OdTcCatalogItemPtr>& items, const Less& less)
{
  for (size_t i = 1; i < items.size(); ++i) {
    OdTcCatalogItemPtr item = items[i];
    size_t j = i;
    while (j > 0 && less(item, items[j - 1])) {
      items[j] = items[j - 1];
      --j;
    }
    items[j] = item;
  }
}
} // namespace

OdTcToolPalettePtr OdTcToolPaletteImpl::createNew()
{
  return OdRxObjectImpl<OdTcToolPaletteImpl, OdTcToolPalette>::createObject();
}

OdTcToolPaletteImpl::OdTcToolPaletteImpl() : m_database(OdTcDatabaseImpl::createNew())
{
  m_database->setParent(this); // so that tools find their catalog
}

void OdTcToolPaletteImpl::copyFrom(const OdRxObject* source)
{
  OdTcPersistImpl<OdTcToolPalette>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolPaletteImpl*>(source);
  if (!src)
    return;
  m_database = OdTcDatabasePtr(src->m_database->clone());
  m_database->setParent(this);
  m_grouped = src->m_grouped;
}

bool OdTcToolPaletteImpl::addChild(OdTcCatalogItem* tool)
{
  if (!m_database->addChild(tool))
    return false;
  if (m_updateOnAdd)
    save();
  fireItemAdded(tool);
  return true;
}

void OdTcToolPaletteImpl::setPath(const OdString&)
{
  throw OdError(kNotSupported, "A palette's path follows its file");
}

void OdTcToolPaletteImpl::setFileRevision(const OdString&)
{
  throw OdError(kNotSupported, "A palette's file revision is not set");
}

OdString OdTcToolPaletteImpl::href()
{
  OdTcCatalog* owner = catalog();
  return odtcFileStore().makeHref(owner ? owner->path() : OdString(), m_database->path());
}

void OdTcToolPaletteImpl::setToolOrder(const OdArray<OdString>& ids)
{
  m_database->paletteUi()->toolOrder() = ids;
  m_database->paletteUi()->setSortType(2);
  m_database->setModified();
}

void OdTcToolPaletteImpl::setSortType(std::int32_t sortType)
{
  m_database->paletteUi()->setSortType(sortType);
  m_database->setModified();
}

void OdTcToolPaletteImpl::setPreviewSize(std::int32_t size)
{
  m_database->paletteUi()->setPreviewSize(size);
  m_database->setModified();
}

void OdTcToolPaletteImpl::setPreviewStyle(std::int32_t style)
{
  m_database->paletteUi()->setPreviewStyle(style);
  m_database->setModified();
}

bool OdTcToolPaletteImpl::load(const OdString& path)
{
  if (m_database.isNull()) {
    m_database = OdTcDatabaseImpl::createNew();
    m_database->setParent(this);
  }
  m_database->setPath(path);
  return m_database->load(path);
}

bool OdTcToolPaletteImpl::saveCopy(const OdString& path)
{
  const OdString own = m_database->path();
  m_database->setPath(path);
  const bool saved = m_database->save(path);
  m_database->setPath(own);
  return saved;
}

OdTcProperties* OdTcToolPaletteImpl::properties()
{
  return static_cast<OdTcDatabaseImpl*>(m_database.get())->properties();
}

void OdTcToolPaletteImpl::enableUpdate(bool saveNow)
{
  m_updateOnAdd = true;
  if (saveNow)
    save();
}

OdArray<OdTcCatalogItemPtr> OdTcToolPaletteImpl::sortedTools()
{
  std::vector<OdTcCatalogItemPtr> tools;
  auto e = m_database->enumerateTools();
  while (OdTcCatalogItem* tool = e->next())
    tools.push_back(OdTcCatalogItemPtr(tool));
  switch (sortType()) {
  case 0:
    std::stable_sort(tools.begin(), tools.end(), [](const OdTcCatalogItemPtr& a, const OdTcCatalogItemPtr& b) {
      return a->displayName().iCompare(b->displayName()) < 0;
    });
    break;
  case 2: {
    const OdArray<OdString>& order = m_database->paletteUi()->toolOrder();
    auto rank = [&](const OdTcCatalogItemPtr& tool) {
      unsigned at = 0;
      return order.find(tool->id(), at) ? at : order.size();
    };
    std::stable_sort(tools.begin(), tools.end(),
                     [&](const OdTcCatalogItemPtr& a, const OdTcCatalogItemPtr& b) { return rank(a) < rank(b); });
    break;
  }
  case 1:
    insertionSort(tools, [](const OdTcCatalogItemPtr& a, const OdTcCatalogItemPtr& b) {
      return compareByKind(a.get(), b.get()) < 0;
    });
    break;
  default:
    break;
  }
  OdArray<OdTcCatalogItemPtr> sorted;
  for (const OdTcCatalogItemPtr& tool : tools)
    sorted.append(tool);
  return sorted;
}

OdArray<OdString> OdTcToolPaletteImpl::unsupportedTools()
{
  OdArray<OdString> list;
  auto tools = m_database->enumerateTools();
  while (OdTcCatalogItem* item = tools->next()) {
    OdTcToolPtr tool = OdTcTool::cast(item);
    if (!tool)
      continue;
    if (OdTcToolActionAgent* agent = tool->agent())
      if (!agent->canRun())
        list.append(Supp_Translate(toolKindLabel(agent->tagName())));
    if (tool->toolType() == 3)
      list.append(Supp_Translate("Text"));
    if (tool->toolType() == 4)
      list.append(Supp_Translate("Separator"));
  }
  return list;
}

} // namespace tc
