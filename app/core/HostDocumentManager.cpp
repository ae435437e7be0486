// Opening and closing documents.
#include "app/core/HostDocumentManager.h"

#include "app/core/HostApp.h"
#include "app/core/HostEditorEventsImpl.h"

#include "sdk/dxf/OdDxf.h"

#include <QFileInfo>

#include <algorithm>

HostDocumentImpl* HostDocumentManager::newDocument()
{
  const OdString name = OdString::formatted("Drawing%d.dxf", ++m_newCount);
  OdDbDatabasePtr database = odDbCreateDatabase();
  m_documents.push_back(std::make_unique<HostDocumentImpl>(m_app, name, OdString(), database));
  HostDocumentImpl* document = m_documents.back().get();
  m_app.editorEvents().fireDocManager([&](HostDocManagerReactor* r) { r->documentCreated(document); });
  makeCurrent(document);
  return document;
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
      makeCurrent(d.get());
      return d.get();
    }
  }
  HostEditorEventsImpl& events = m_app.editorEvents();
  events.fire([&](HostEditorReactor* r) { r->beginDwgOpen(path); });
  OdDbDatabasePtr database;
  try {
    database = odDxfReadFile(path);
  } catch (const OdError& e) {
    error = e.description();
    return nullptr;
  }
  events.fire([&](HostEditorReactor* r) { r->endDwgOpen(path); });
  m_documents.push_back(std::make_unique<HostDocumentImpl>(m_app, OdString(info.fileName()), path, database));
  HostDocumentImpl* document = m_documents.back().get();
  events.fireDocManager([&](HostDocManagerReactor* r) { r->documentCreated(document); });
  makeCurrent(document);
  return document;
}

// The events of a document that goes, before and after it is destroyed.
void HostDocumentManager::destroy(std::unique_ptr<HostDocumentImpl> document)
{
  HostEditorEventsImpl& events = m_app.editorEvents();
  OdDbDatabase* database = document->database();
  events.fire([&](HostEditorReactor* r) { r->beginDocClose(database); });
  events.fire([&](HostEditorReactor* r) { r->docCloseWillStart(database); });
  events.fireDocManager([&](HostDocManagerReactor* r) { r->documentToBeDestroyed(document.get()); });
  events.fire([](HostEditorReactor* r) { r->DestroyWillStart(); });
  document.reset();
  events.fire([](HostEditorReactor* r) { r->DestroyFinished(); });
}

bool HostDocumentManager::closeDocument(HostDocumentImpl* document)
{
  auto it = std::find_if(m_documents.begin(), m_documents.end(), [&](const auto& d) { return d.get() == document; });
  if (it == m_documents.end())
    return false;
  // Destroyed only once the list and the current document are right again.
  std::unique_ptr<HostDocumentImpl> gone = std::move(*it);
  m_documents.erase(it);
  const bool wasCurrent = m_current == document;
  if (wasCurrent)
    m_current = nullptr;
  destroy(std::move(gone));
  if (wasCurrent && !m_documents.empty())
    makeCurrent(m_documents.back().get());
  return true;
}

void HostDocumentManager::closeAll()
{
  m_current = nullptr;
  while (!m_documents.empty()) {
    std::unique_ptr<HostDocumentImpl> gone = std::move(m_documents.back());
    m_documents.pop_back();
    destroy(std::move(gone));
  }
  m_newCount = 0;
}

bool HostDocumentManager::makeCurrent(HostDocumentImpl* document)
{
  for (const auto& d : m_documents) {
    if (d.get() == document) {
      if (m_current != document) {
        m_current = document;
        m_app.editorEvents().fireDocManager([&](HostDocManagerReactor* r) { r->documentActivated(document); });
      }
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
