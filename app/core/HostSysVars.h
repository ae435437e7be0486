// The reference host's system variables: those of the drawing (header
// variables, with defaults for the ones a drawing does not hold, and the
// current properties CLAYER, CECOLOR, CELTYPE, ... kept by name), and those
// the host keeps itself (ATTREQ, the HP* and GF* values of the hatch
// commands, LWUNITS).
#pragma once

#include "hostsdk/core/HostSysVars.h"

#include <map>
#include <string>

class HostApp;

class HostSysVarsImpl : public HostSystemVariables
{
public:
  explicit HostSysVarsImpl(HostApp& app);

  OdResBufPtr getVar(const OdString& name, OdDbDatabase* database = nullptr) override;
  Status setVar(const OdString& name, const OdResBuf* value, OdDbDatabase* database = nullptr) override;
  // The same, with the reason of a refusal for the user.
  Status setVar(const OdString& name, const OdResBuf* value, OdDbDatabase* database, OdString* reason);

  // The result code of the variable's kind (kRtInt16, kRtDouble, ...), or
  // kRtNone for an unknown name.
  int typeOf(const OdString& name, OdDbDatabase* database = nullptr);
  // The canonical (upper-case) name of a variable.
  static OdString canonicalName(const OdString& name);
  // A value as the command line shows it: angles in degrees, texts quoted.
  static OdString formatValue(const OdResBuf* value);

  // Host variables back to their defaults (a new session).
  void reset();

  struct Definition;

private:
  OdDbDatabase* databaseOr(OdDbDatabase* database) const;
  OdResBufPtr getComputed(const Definition& def, OdDbDatabase* db) const;
  Status setComputed(const Definition& def, const OdResBuf* value, OdDbDatabase* db, OdString* reason);
  void fireChanged(OdDbDatabase* db, const OdString& name);

  HostApp& m_app;
  std::map<std::string, OdResBufPtr> m_hostValues; // by canonical name
};
