// The open documents of the host and which one is current.
#pragma once

#include "HostDocumentImpl.h"

#include <memory>
#include <vector>

class HostDocumentManager
{
public:
  explicit HostDocumentManager(HostApp& app) : m_app(app) {}

  // A new empty document "DrawingN.dxf" (N counts up in a session), made
  // current.
  HostDocumentImpl* newDocument();
  // A document for a file; made current. Until the host reads drawings the
  // file is only checked: it must exist and must not be a .dwg file.
  // Returns null with the reason in `error`.
  HostDocumentImpl* openDocument(const OdString& filePath, OdString& error);
  // Closes the document; the last one opened before it becomes current.
  bool closeDocument(HostDocumentImpl* document);
  void closeAll();

  HostDocumentImpl* current() const { return m_current; }
  bool makeCurrent(HostDocumentImpl* document);
  std::vector<HostDocumentImpl*> documents() const;

private:
  HostApp& m_app;
  std::vector<std::unique_ptr<HostDocumentImpl>> m_documents; // in the order opened
  HostDocumentImpl* m_current = nullptr;                      // one of m_documents, or null
  int m_newCount = 0;
};
