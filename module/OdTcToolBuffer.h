// OdTcToolBuffer: the module's own clipboard of tools: the identifiers of
// the items the user copied, found again through the palette manager when
// they are pasted.
#pragma once

#include "model/OdTcPersistImpl.h"
#include "model/OdTcTool.h"

#include "sdk/kernel/OdArray.h"

namespace tc {

class OdTcPaletteManager;

class OdTcToolBuffer : public OdTcPersistImpl<OdTcPersist>
{
public:
  // `manager` is not owned: the module keeps it longer than the buffer.
  static OdSmartPtr<OdTcToolBuffer> createNew(OdTcPaletteManager* manager);
  explicit OdTcToolBuffer(OdTcPaletteManager* manager) : m_manager(manager) {}

  void clear() { m_ids.clear(); }
  void add(const OdString& id) { m_ids.append(id); }
  const OdArray<OdString>& list() const { return m_ids; }
  // Whether `id` is a tool of an open catalog.
  bool isTool(const OdString& id) const;
  // That tool, or null.
  OdTcTool* getItem(const OdString& id) const;

private:
  OdTcPaletteManager* m_manager;
  OdArray<OdString> m_ids;
};
using OdTcToolBufferPtr = OdSmartPtr<OdTcToolBuffer>;

} // namespace tc
