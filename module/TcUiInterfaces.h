// The interfaces through which the module reaches its windows. The palette
// set is the root of the query; a window that does not exist answers
// nothing.
#pragma once

#include "hostsdk/core/CRkVariant.h"

namespace tc {

class OdTcCatalogItem;
class OdTcCatalogItemReactor;

enum TcUiInterfaceType
{
  kITcUiPaletteSet = 1,
  kITcUiTreeView,
  kITcUiListView,
  kITcUiFrameWnd,
  kITcUiMenuBuilder,
  kITcUiStateSaver
};

// Root of the user interface's interfaces; not counted.
class ITcUnknown
{
public:
  virtual bool queryInterface(int type, void** out) = 0;

protected:
  ~ITcUnknown() = default;
};

class ITcUiPaletteSet : public ITcUnknown
{
public:
  virtual void show(bool visible) = 0;
  virtual bool isShown() const = 0;

protected:
  ~ITcUiPaletteSet() = default;
};

class ITcUiTreeView : public ITcUnknown
{
public:
  virtual void loadTree() = 0;
  virtual OdTcCatalogItem* selectedItem() = 0;
  // The reactor with which the tree follows changes of catalog items.
  virtual OdTcCatalogItemReactor* catalogItemReactor() = 0;

protected:
  ~ITcUiTreeView() = default;
};

class ITcUiListView : public ITcUnknown
{
public:
  virtual void refresh() = 0;

protected:
  ~ITcUiListView() = default;
};

// Small named values that the windows keep from one run of the host to the
// next. Without the host's branch for them nothing is kept, and every
// value reads as missing.
class ITcUiStateSaver : public ITcUnknown
{
public:
  virtual void setValue(const char* name, const CRkVariant& value) = 0;
  // False when there is no such value; the caller takes its default.
  virtual bool getValue(const char* name, CRkVariant& value) = 0;

protected:
  ~ITcUiStateSaver() = default;
};

} // namespace tc
