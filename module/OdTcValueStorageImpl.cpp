// Catalog locations and the shared tables.
#include "module/OdTcValueStorageImpl.h"

#include "tools/TcGradientNames.h"

#include "module/OdTcFileSystemItem.h"
#include "model/OdTcToolActionAgent.h"
#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"

#include <QStandardPaths>
#include <QStringList>

namespace tc {

OdSmartPtr<OdTcValueStorageImpl> OdTcValueStorageImpl::createNew()
{
  return OdRxObjectImpl<OdTcValueStorageImpl>::createObject();
}

OdTcValueStorageImpl::OdTcValueStorageImpl()
{
  std::int32_t index = 1;
  for (const auto& [key, shown] : gradientNames())
    m_gradients[index++] = {OdString(key), Supp_Translate(shown)};

  // Commands that tool creation treats apart. "VdAbout" is the host's own.
  for (const char* name : {"imageframe", "MTextEdit", "VdAbout", "pface", "qparams", "refclose", "refset",
                           "SplitViewport_2", "FitViewport", "NetLoad", "lsp", "appload", "ATTRNORMAL", "ATTROFF",
                           "ATTRON", "Lock_Unlock_Viewport", "objeciorder1", "objeciorder2", "objeciorder3",
                           "ON_OFF_Viewport", "ViewZoomScale"})
    m_specialCommands.append(name);

  m_toolKindLabels = toolKindLabels();
}

OdString OdTcValueStorageImpl::catalogPaths()
{
  CRkPtr<IApp> app = hostApp();
  if (!CRkPtr<IStdDirs>::query(app.get()))
    return OdString();
  OdString result;
  OdString value;
  if (readStdDir("ToolPaletteDir", value))
    result += value;
  if (readStdDir("CommonDirs", value)) {
    for (const QString& common : value.qstring().split(u';', Qt::SkipEmptyParts)) {
      OdTcFileSystemItem root(OdString(common), 0);
      root.readTree();
      OdTcFileSystemItemFolderCatcher catcher("ToolPalette", &root);
      if (catcher.isEmpty())
        continue;
      result += ";";
      auto items = catcher.items();
      OdTcFileSystemItem* item = nullptr;
      while (items->next(item))
        result += item->path() + ";";
    }
  }
  return result;
}

OdString OdTcValueStorageImpl::toolPaletteDir() const
{
  OdString value;
  readStdDir("ToolPaletteDir", value);
  return value;
}

OdString OdTcValueStorageImpl::shxFolder() const
{
  OdString value;
  readStdDir("Shx", value);
  return value;
}

OdArray<OdString> OdTcValueStorageImpl::shxFolders() const
{
  OdArray<OdString> out;
  for (const QString& piece : shxFolder().qstring().split(u';', Qt::SkipEmptyParts))
    out.append(OdString(piece));
  return out;
}

OdString OdTcValueStorageImpl::userCatalogFolder() const
{
  CRkPtr<IApp> app = hostApp();
  auto interior = CRkPtr<IAppInterior>::query(app.get());
  const OdString data = interior ? interior->userDataFolder().str() : OdString();
  return OdString::formatted("%s/%s", data, "ToolPalette");
}

OdString OdTcValueStorageImpl::documentsFolder() const
{
  return OdString(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

bool OdTcValueStorageImpl::gradientDisplayName(const OdString& hostName, OdString& out) const
{
  for (const auto& [index, names] : m_gradients) {
    if (names.first == hostName) {
      out = names.second;
      return true;
    }
  }
  return false;
}

bool OdTcValueStorageImpl::gradientHostName(const OdString& displayName, OdString& out) const
{
  for (const auto& [index, names] : m_gradients) {
    if (names.second == displayName) {
      out = names.first;
      return true;
    }
  }
  return false;
}

bool OdTcValueStorageImpl::gradientIndex(const OdString& hostName, std::int32_t& out) const
{
  for (const auto& [index, names] : m_gradients) {
    if (names.first == hostName) {
      out = index;
      return true;
    }
  }
  return false;
}

OdArray<OdString> OdTcValueStorageImpl::gradientDisplayNames() const
{
  OdArray<OdString> out;
  for (const auto& [index, names] : m_gradients)
    out.append(names.second);
  return out;
}

bool OdTcValueStorageImpl::isSpecialCommand(const OdString& name) const
{
  return m_specialCommands.contains(name);
}

bool OdTcValueStorageImpl::toolKindLabel(const OdString& kind, OdString& out) const
{
  auto it = m_toolKindLabels.find(kind);
  if (it == m_toolKindLabels.end())
    return false;
  out = it->second;
  return true;
}

} // namespace tc
