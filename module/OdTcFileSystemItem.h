// A tree of folders read from the disk, and the catchers that pick folders
// out of it by name.
#pragma once

#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tc {

class OdTcFileSystemItem;
using OdTcFileSystemItemPtr = std::shared_ptr<OdTcFileSystemItem>;

class OdTcFileSystemItemEnum
{
public:
  virtual ~OdTcFileSystemItemEnum() = default;
  // The next item in `out`; false at the end.
  virtual bool next(OdTcFileSystemItem*& out) = 0;
  virtual void reset() = 0;
};

template <class Pointer>
class OdTcFileSystemItemEnumImpl : public OdTcFileSystemItemEnum
{
public:
  explicit OdTcFileSystemItemEnumImpl(const std::vector<Pointer>& items) : m_items(items) {}
  bool next(OdTcFileSystemItem*& out) override
  {
    if (m_position >= m_items.size())
      return false;
    out = &*m_items[m_position++];
    return true;
  }
  void reset() override { m_position = 0; }

private:
  const std::vector<Pointer>& m_items; // not owned
  size_t m_position = 0;
};

class OdTcFileSystemItem
{
public:
  OdTcFileSystemItem(const OdString& path, std::int32_t tag);
  virtual ~OdTcFileSystemItem() = default;

  const OdString& path() const { return m_path; }
  const OdString& name() const { return m_name; }
  std::int32_t tag() const { return m_tag; }
  std::unique_ptr<OdTcFileSystemItemEnum> children() const;
  const std::vector<OdTcFileSystemItemPtr>& childItems() const { return m_children; }

  // Reads the folders below this one, depth first, in the order the file
  // system gives. A folder that cannot be read has no children. Links to
  // folders are not followed: a link back up the tree would never end.
  void readTree();

private:
  OdString m_path;
  OdString m_name;
  std::vector<OdTcFileSystemItemPtr> m_children;
  std::int32_t m_tag;
};

class OdTcFileSystemItemCatcher
{
public:
  virtual ~OdTcFileSystemItemCatcher() = default;
  virtual void catchItem(OdTcFileSystemItem* item) { m_items.push_back(item); }
  bool isEmpty() const { return m_items.empty(); }
  std::unique_ptr<OdTcFileSystemItemEnum> items() const;

protected:
  std::vector<OdTcFileSystemItem*> m_items; // not owned: items of the tree
};

// Catches the root and every folder below it whose name is `folderName`,
// ignoring case; parents before children, and a caught folder is searched
// too.
class OdTcFileSystemItemFolderCatcher : public OdTcFileSystemItemCatcher
{
public:
  OdTcFileSystemItemFolderCatcher(const OdString& folderName, OdTcFileSystemItem* root);

private:
  void walk(OdTcFileSystemItem* item);
  OdString m_folderName;
};

} // namespace tc
