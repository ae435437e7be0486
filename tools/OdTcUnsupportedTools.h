// The kinds of tools of other programs that this system reads but does not
// carry out: visual styles, lights, multileaders and tables. A palette that
// holds them lists them as unsupported; they do nothing when clicked, and
// their payload is not kept.
#pragma once

#include "tools/OdTcToolActionAgentImplBase.h"
#include "tools/OdTcToolCommand.h"

namespace tc {

template <class I>
class OdTcUnsupportedToolImplBase : public OdTcToolActionAgentImplBase<I>
{
public:
  bool canRun() const override { return false; }
  bool execute(HostDocument*) override { return false; }
  // Swallows whatever the element holds.
  bool setValue(const OdString&, const OdVariant&) override { return true; }
};

class OdTcToolVisualStyleCommandImpl : public OdTcUnsupportedToolImplBase<OdTcToolCommand>
{
public:
  OdString tagName() const override { return "VisualStyle"; }
};

class OdTcToolLightCommandImpl : public OdTcUnsupportedToolImplBase<OdTcToolCommand>
{
public:
  OdString tagName() const override { return "Light"; }
};

class OdTcToolMLeaderCommandImpl : public OdTcUnsupportedToolImplBase<OdTcToolActionAgent>
{
public:
  OdString tagName() const override { return "MLeader"; }
};

class OdTcToolTableCommandImpl : public OdTcUnsupportedToolImplBase<OdTcToolActionAgent>
{
public:
  OdString tagName() const override { return "Table"; }
};

} // namespace tc
