// Folder trees and catchers.
#include "module/OdTcFileSystemItem.h"

#include "hostsdk/core/CXStringW.h"

#include <QDir>
#include <QFileInfo>

namespace tc {

OdTcFileSystemItem::OdTcFileSystemItem(const OdString& path, std::int32_t tag)
    : m_path(path), m_name(CXStringW(path).GetFileName().str()), m_tag(tag)
{
}

std::unique_ptr<OdTcFileSystemItemEnum> OdTcFileSystemItem::children() const
{
  return std::make_unique<OdTcFileSystemItemEnumImpl<OdTcFileSystemItemPtr>>(m_children);
}

void OdTcFileSystemItem::readTree()
{
  const QDir dir(m_path.qstring());
  const QFileInfoList entries =
      dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks, QDir::NoSort);
  QString base = m_path.qstring();
  if (!base.endsWith(u'/'))
    base += u'/';
  for (const QFileInfo& entry : entries) {
    auto child = std::make_shared<OdTcFileSystemItem>(OdString(base + entry.fileName()), m_tag);
    m_children.push_back(child);
    child->readTree();
  }
}

std::unique_ptr<OdTcFileSystemItemEnum> OdTcFileSystemItemCatcher::items() const
{
  return std::make_unique<OdTcFileSystemItemEnumImpl<OdTcFileSystemItem*>>(m_items);
}

OdTcFileSystemItemFolderCatcher::OdTcFileSystemItemFolderCatcher(const OdString& folderName,
                                                                 OdTcFileSystemItem* root)
    : m_folderName(folderName)
{
  if (!root)
    return;
  if (root->name().iCompare(m_folderName) == 0)
    catchItem(root);
  for (const auto& child : root->childItems())
    walk(child.get());
}

void OdTcFileSystemItemFolderCatcher::walk(OdTcFileSystemItem* item)
{
  if (item->name().iCompare(m_folderName) == 0)
    catchItem(item);
  for (const auto& child : item->childItems())
    walk(child.get());
}

} // namespace tc
