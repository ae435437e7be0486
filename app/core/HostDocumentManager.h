// The open documents of the host and which one is current, with the events
// of their opening, activation and closing.
#pragma once

#include "app/core/HostDocumentImpl.h"

#include <memory>
#include <vector>

class HostDocumentManager
{
public:
  explicit HostDocumentManager(HostApp& app) : m_app(app) {}

  // A new empty document "DrawingN.dxf" (N counts up in a session), made
  // current.
  HostDocumentImpl* newDocument();
  // A document for a DXF drawing, read from its file; made current. A .dwg
  // file, a missing one or one that is no readable DXF gives null with the
  // reason in `error`.
  HostDocumentImpl* openDocument(const OdString& filePath, OdString& error);
  // Closes the document; the last one opened before it becomes current.
  bool closeDocument(HostDocumentImpl* document);
  void closeAll();

  HostDocumentImpl* current() const { return m_current; }
  // Makes an open document the current one; documentActivated is told
  // when the current one changes.
  bool makeCurrent(HostDocumentImpl* document);
  std::vector<HostDocumentImpl*> documents() const;

private:
  void destroy(std::unique_ptr<HostDocumentImpl> document);

  HostApp& m_app;
  std::vector<std::unique_ptr<HostDocumentImpl>> m_documents; // in the order opened
  HostDocumentImpl* m_current = nullptr;                      // one of m_documents, or null
  int m_newCount = 0;
};
