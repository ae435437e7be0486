// OdTcToolCommand: the tool that types a macro on the host's command line.
#pragma once

#include "tools/OdTcToolActionAgentImplBase.h"

namespace tc {

class OdTcToolCommand : public OdTcToolActionAgent
{
  ODRX_DECLARE_MEMBERS(OdTcToolCommand);
};
using OdTcToolCommandPtr = OdSmartPtr<OdTcToolCommand>;

class OdTcToolCommandImpl : public OdTcToolActionAgentImplBase<OdTcToolCommand>
{
public:
  static OdTcToolCommandPtr createNew(const OdString& macro = OdString());
  OdTcToolCommandImpl() { fillProperties(); }

  OdString tagName() const override { return "Command"; }
  // The macro, as it stands, in an element of its own: "Macro".
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  // Types the macro, trimmed at its end, and Enter after it. False, and
  // nothing typed, without a document or with an empty macro.
  bool execute(HostDocument* document) override;
  // The picture of the macro's command in the host's button resource.
  bool loadDefaultImage(OdTcImage* image) override;
  // One row: the macro.
  void fillProperties() override;

  OdString getCommandString() const override { return m_commandString; }
  void setCommandString(const OdString& text) override { m_commandString = text; }

  // The command a macro starts: the macro up to its first blank, after its
  // last "^X" pair, without "_" ("^C^C_LINE" gives "LINE").
  static OdString commandOfMacro(const OdString& macro);
};

} // namespace tc
