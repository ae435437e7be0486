// The commands known to the host, by group and name. The table lives as
// long as the process: modules register their commands while their library
// loads, once, and the library stays mapped across restarts of the host.
#pragma once

#include "hostsdk/core/CmdInterfaces.h"
#include "hostsdk/core/HostCommandInfo.h"

#include <functional>
#include <memory>
#include <vector>

// A command of the host itself, with the named parameters of a run by name
// (null when typed).
using HostCommandFn = std::function<void(IMemParam* parameters)>;

struct HostCommand
{
  enum Kind
  {
    kFunction, // a plain function registered by a module
    kClass,    // a command object made by a creator, run through ICmdProcess
    kHost      // a command of the host
  };
  OdString group;
  OdString localName;
  OdString globalName;
  Kind kind = kFunction;
  CmdFunction function = nullptr;
  CmdCreatorFn creator = nullptr;
  HostCommandFn host;
  // What the host shows for the command; empty for a module's commands.
  OdString displayText;
  OdString menuText;
  OdString description;
  OdString className; // the class of the objects it draws
};
using HostCommandPtr = std::shared_ptr<const HostCommand>;

class HostCommandTable : public HostCommandTableInfo
{
public:
  static HostCommandTable& instance();

  // False when the group already has a command of that global or local
  // name (ignoring case): the first registration stays.
  bool add(const HostCommand& command);
  // Removes one command, or with an empty name the whole group.
  int remove(const OdString& group, const OdString& name = OdString());

  // Finds a command by its global name, then by its local name, ignoring
  // case; groups are searched in the order they were first used.
  HostCommandPtr find(const OdString& name) const;
  HostCommandPtr find(const OdString& group, const OdString& name) const;
  std::vector<HostCommandPtr> commandsInGroup(const OdString& group) const;
  std::vector<OdString> groups() const;

  // HostCommandTableInfo: the command that find(name) finds.
  bool findCommand(const OdString& name, HostCommandInfo& out) const override;

private:
  std::vector<HostCommandPtr> m_commands; // in the order of registration
  std::vector<OdString> m_groups;         // in the order first used
};
