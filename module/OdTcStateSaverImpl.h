// OdTcStateSaverImpl: the module-wide reach into the remembered state of
// the palette window, for the palette set, the import of palettes and the
// tools, which have no frame window to ask.
#pragma once

#include "model/OdTcPersistImpl.h"

#include "hostsdk/core/AppInterfaces.h"

namespace tc {

class OdTcStateSaverImpl : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<OdTcStateSaverImpl> createNew();
  OdTcStateSaverImpl();

  // The reader's setValue of every persistent object stays as it is.
  using OdTcPersistImpl<OdTcPersist>::setValue;

  // Reaches for the node again when it was missing, so that a branch the
  // host made since the start is used; without it nothing happens.
  virtual void setValue(const char* name, const CRkVariant& value);
  // False when there is no such value; the caller takes its default.
  virtual bool getValue(const char* name, CRkVariant& value);

private:
  CRkPtr<IConfigManager> m_node;
};
using OdTcStateSaverImplPtr = OdSmartPtr<OdTcStateSaverImpl>;

} // namespace tc
