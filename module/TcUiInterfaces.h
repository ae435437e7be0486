// The interfaces through which the module reaches its windows. The palette
// set is the root of the query; a window that does not exist answers
// nothing.
#pragma once

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

} // namespace tc
