// The table of commands.
#include "app/core/HostCommandTable.h"

#include <algorithm>

namespace {

bool sameText(const OdString& a, const OdString& b)
{
  return a.iCompare(b) == 0;
}

bool hasName(const HostCommand& c, const OdString& name)
{
  return sameText(c.globalName, name) || sameText(c.localName, name);
}

} // namespace

HostCommandTable& HostCommandTable::instance()
{
  // Never destroyed: module libraries may still call in while the process
  // ends.
  static HostCommandTable* table = new HostCommandTable;
  return *table;
}

bool HostCommandTable::add(const HostCommand& command)
{
  if (command.globalName.isEmpty() && command.localName.isEmpty())
    return false;
  if (command.kind == HostCommand::kFunction && !command.function)
    return false;
  if (command.kind == HostCommand::kClass && !command.creator)
    return false;
  if (command.kind == HostCommand::kHost && !command.host)
    return false;
  auto entry = std::make_shared<HostCommand>(command);
  if (entry->globalName.isEmpty())
    entry->globalName = entry->localName;
  if (entry->localName.isEmpty())
    entry->localName = entry->globalName;
  for (const auto& c : m_commands)
    if (sameText(c->group, entry->group) && (hasName(*c, entry->globalName) || hasName(*c, entry->localName)))
      return false;
  m_commands.push_back(entry);
  if (std::none_of(m_groups.begin(), m_groups.end(), [&](const OdString& g) { return sameText(g, entry->group); }))
    m_groups.push_back(entry->group);
  return true;
}

int HostCommandTable::remove(const OdString& group, const OdString& name)
{
  const auto before = m_commands.size();
  std::erase_if(m_commands, [&](const HostCommandPtr& c) {
    return sameText(c->group, group) && (name.isEmpty() || hasName(*c, name));
  });
  if (std::none_of(m_commands.begin(), m_commands.end(), [&](const auto& c) { return sameText(c->group, group); }))
    std::erase_if(m_groups, [&](const OdString& g) { return sameText(g, group); });
  return int(before - m_commands.size());
}

HostCommandPtr HostCommandTable::find(const OdString& name) const
{
  if (name.isEmpty())
    return nullptr;
  // Global names first across all groups: a local name is a translation and
  // must not hide another command's global name.
  for (const OdString& group : m_groups)
    for (const auto& c : m_commands)
      if (sameText(c->group, group) && sameText(c->globalName, name))
        return c;
  for (const OdString& group : m_groups)
    for (const auto& c : m_commands)
      if (sameText(c->group, group) && sameText(c->localName, name))
        return c;
  return nullptr;
}

HostCommandPtr HostCommandTable::find(const OdString& group, const OdString& name) const
{
  for (const auto& c : m_commands)
    if (sameText(c->group, group) && hasName(*c, name))
      return c;
  return nullptr;
}

std::vector<HostCommandPtr> HostCommandTable::commandsInGroup(const OdString& group) const
{
  std::vector<HostCommandPtr> list;
  for (const auto& c : m_commands)
    if (sameText(c->group, group))
      list.push_back(c);
  return list;
}

std::vector<OdString> HostCommandTable::groups() const
{
  return m_groups;
}

bool HostCommandTable::findCommand(const OdString& name, HostCommandInfo& out) const
{
  HostCommandPtr command = find(name);
  if (!command)
    return false;
  out = HostCommandInfo();
  out.globalName = command->globalName;
  out.localName = command->localName;
  out.displayText = command->displayText;
  out.menuText = command->menuText;
  out.description = command->description;
  out.className = command->className;
  return true;
}
