// Opening and closing documents.
#include "app/core/HostDocumentManager.h"

#include "sdk/dxf/OdDxf.h"

#include <QFileInfo>

#include <algorithm>

HostDocumentImpl* HostDocumentManager::newDocument()
{
  const OdString name = OdString::formatted("Drawing%d.dxf", ++m_newCount);
  OdDbDatabasePtr database = odDbCreateDatabase();
  m_documents.push_back(std::make_unique<HostDocumentImpl>(m_app, name, OdString(), database));
  m_current = m_documents.back().get();
  return m_current;
}

HostDocumentImpl* HostDocumentManager::openDocument(const OdString& filePath, OdString& error)
{
  error = OdString();
  const QFileInfo info(filePath.qstring());
  if (filePath.isEmpty()) {
    error = "no file name was given";
    return nullptr;
  }
  if (info.suffix().compare(QLatin1String("dwg"), Qt::CaseInsensitive) == 0) {
    error = OdString::formatted("%s is a DWG drawing, which Verdani cannot read; save it as DXF and open that",
                                filePath);
    return nullptr;
  }
  if (!info.exists()) {
    error = OdString::formatted("%s does not exist; check the name and the folder", filePath);
    return nullptr;
  }
  if (!info.isFile()) {
    error = OdString::formatted("%s is not a file", filePath);
    return nullptr;
  }
  const OdString path(info.absoluteFilePath());
  // A file already open is made current rather than opened twice.
  for (const auto& d : m_documents) {
    if (d->filePath() == path) {
      m_current = d.get();
      return m_current;
    }
  }
  OdDbDatabasePtr database;
  try {
    database = odDxfReadFile(path);
  } catch (const OdError& e) {
    error = e.description();
    return nullptr;
  }
  m_documents.push_back(std::make_unique<HostDocumentImpl>(m_app, OdString(info.fileName()), path, database));
  m_current = m_documents.back().get();
  return m_current;
}

bool HostDocumentManager::closeDocument(HostDocumentImpl* document)
{
  auto it = std::find_if(m_documents.begin(), m_documents.end(), [&](const auto& d) { return d.get() == document; });
  if (it == m_documents.end())
    return false;
  // Destroyed only once the list and the current document are right again.
  std::unique_ptr<HostDocumentImpl> gone = std::move(*it);
  m_documents.erase(it);
  if (m_current == document)
    m_current = m_documents.empty() ? nullptr : m_documents.back().get();
  return true;
}

void HostDocumentManager::closeAll()
{
  m_current = nullptr;
  m_documents.clear();
  m_newCount = 0;
}

bool HostDocumentManager::makeCurrent(HostDocumentImpl* document)
{
  for (const auto& d : m_documents) {
    if (d.get() == document) {
      m_current = document;
      return true;
    }
  }
  return false;
}

std::vector<HostDocumentImpl*> HostDocumentManager::documents() const
{
  std::vector<HostDocumentImpl*> list;
  for (const auto& d : m_documents)
    list.push_back(d.get());
  return list;
}
