// The folders of the configuration tree.
#include "app/core/HostConfigNode.h"

#include "app/core/HostConfig.h"

#include <algorithm>

namespace {

bool sameName(const std::string& a, const std::string& b)
{
  if (a == b)
    return true;
  return QString::fromStdString(a).compare(QString::fromStdString(b), Qt::CaseInsensitive) == 0;
}

// Splits "A/B\C" into its parts; empty parts are dropped.
std::vector<std::string> splitPath(const std::string& path)
{
  std::vector<std::string> parts;
  std::string part;
  for (char c : path) {
    if (c == '/' || c == '\\') {
      if (!part.empty())
        parts.push_back(part);
      part.clear();
    } else {
      part += c;
    }
  }
  if (!part.empty())
    parts.push_back(part);
  return parts;
}

} // namespace

HostConfigNode::HostConfigNode(HostConfig* store, HostConfigNode* parent, std::string name)
    : m_store(store), m_parent(parent), m_name(std::move(name))
{
}

CXStringW HostConfigNode::name() const
{
  return CXStringW(OdString(m_name));
}

bool HostConfigNode::openFolder(const char* name, bool create, IConfigManager** out)
{
  if (!out)
    return false;
  *out = nullptr;
  HostConfigNode* node = folder(name ? name : "", create);
  if (!node)
    return false;
  node->addRef();
  *out = node;
  return true;
}

HostConfigNode* HostConfigNode::folder(const std::string& path, bool create)
{
  const std::vector<std::string> parts = splitPath(path);
  if (parts.empty())
    return nullptr;
  HostConfigNode* node = this;
  for (const std::string& part : parts) {
    HostConfigNode* next = node->childNamed(part);
    if (!next) {
      if (!create)
        return nullptr;
      auto* made = new HostConfigNode(node->m_store, node, part);
      node->m_folders.push_back(CRkPtr<HostConfigNode>::attach(made));
      next = made;
      node->changed(std::string(), nullptr);
    }
    node = next;
  }
  return node;
}

bool HostConfigNode::deleteFolder(const char* name)
{
  const std::string key(name ? name : "");
  auto it = std::find_if(m_folders.begin(), m_folders.end(),
                         [&](const CRkPtr<HostConfigNode>& f) { return sameName(f->m_name, key); });
  if (it == m_folders.end())
    return false;
  CRkPtr<HostConfigNode> gone = *it;
  m_folders.erase(it);
  gone->detach();
  changed(std::string(), nullptr);
  return true;
}

bool HostConfigNode::getValue(const char* name, CRkVariant& value) const
{
  if (const Value* v = valueNamed(name ? name : "")) {
    value = v->value;
    return true;
  }
  return false;
}

bool HostConfigNode::setValue(const char* name, const CRkVariant& value)
{
  const std::string key(name ? name : "");
  if (key.empty())
    return false;
  if (Value* v = valueNamed(key)) {
    if (v->value == value)
      return true; // nothing changed: no write, no notice
    v->value = value;
  } else {
    m_values.push_back({key, value});
  }
  changed(key, &value);
  return true;
}

bool HostConfigNode::deleteValue(const char* name)
{
  const std::string key(name ? name : "");
  auto it = std::find_if(m_values.begin(), m_values.end(), [&](const Value& v) { return sameName(v.name, key); });
  if (it == m_values.end())
    return false;
  const std::string removed = it->name;
  m_values.erase(it);
  changed(removed, nullptr);
  return true;
}

std::vector<std::string> HostConfigNode::valueNames() const
{
  std::vector<std::string> names;
  for (const Value& v : m_values)
    names.push_back(v.name);
  return names;
}

std::vector<std::string> HostConfigNode::folderNames() const
{
  std::vector<std::string> names;
  for (const auto& f : m_folders)
    names.push_back(f->m_name);
  return names;
}

std::string HostConfigNode::path() const
{
  if (!m_parent)
    return std::string();
  const std::string above = m_parent->path();
  return above.empty() ? m_name : above + "/" + m_name;
}

std::vector<HostConfigNode*> HostConfigNode::folders() const
{
  std::vector<HostConfigNode*> list;
  for (const auto& f : m_folders)
    list.push_back(f.get());
  return list;
}

void HostConfigNode::detach()
{
  m_store = nullptr;
  m_parent = nullptr;
  for (const auto& f : m_folders)
    f->detach();
}

void HostConfigNode::loadValue(const std::string& name, const CRkVariant& value)
{
  if (Value* v = valueNamed(name))
    v->value = value;
  else
    m_values.push_back({name, value});
}

HostConfigNode* HostConfigNode::loadFolder(const std::string& name)
{
  if (HostConfigNode* existing = childNamed(name))
    return existing;
  auto* made = new HostConfigNode(m_store, this, name);
  m_folders.push_back(CRkPtr<HostConfigNode>::attach(made));
  return made;
}

HostConfigNode* HostConfigNode::childNamed(const std::string& name) const
{
  for (const auto& f : m_folders)
    if (sameName(f->m_name, name))
      return f.get();
  return nullptr;
}

HostConfigNode::Value* HostConfigNode::valueNamed(const std::string& name)
{
  for (Value& v : m_values)
    if (sameName(v.name, name))
      return &v;
  return nullptr;
}

const HostConfigNode::Value* HostConfigNode::valueNamed(const std::string& name) const
{
  return const_cast<HostConfigNode*>(this)->valueNamed(name);
}

void HostConfigNode::changed(const std::string& valueName, const CRkVariant* value)
{
  if (m_store)
    m_store->nodeChanged(this, valueName, value);
}
