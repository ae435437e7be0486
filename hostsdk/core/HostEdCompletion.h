// The host's command-line completion: sources offer entries, each with a
// text, a description, a picture and an action.
#pragma once

#include "sdk/kernel/OdString.h"

#include <functional>
#include <memory>

class QPainter;

namespace HostEdCompletion {

class Pictogram
{
public:
  virtual ~Pictogram() = default;
  virtual void draw(QPainter* device, int x, int y, int width, int height) = 0;
};

class Action
{
public:
  virtual ~Action() = default;
  virtual void execute() = 0;
};

class CallFunction : public Action
{
public:
  explicit CallFunction(std::function<void()> function) : m_function(std::move(function)) {}
  void execute() override
  {
    if (m_function)
      m_function();
  }

private:
  std::function<void()> m_function;
};

struct Entry
{
  Entry(const OdString& text, const OdString& description, std::shared_ptr<Pictogram> pictogram,
        std::shared_ptr<Action> action, const OdString& label = OdString())
      : text(text), description(description), pictogram(std::move(pictogram)),
        label(label.isEmpty() ? text : label),
        displayText(description.isEmpty() ? text : text + " (" + description + ")"), action(std::move(action))
  {
  }

  OdString text;
  OdString description;
  std::shared_ptr<Pictogram> pictogram;
  OdString label;
  bool flag1 = false;
  bool flag2 = false;
  OdString displayText;
  std::shared_ptr<Action> action;
};
using EntryPtr = std::shared_ptr<Entry>;
using EntryCallback = std::function<void(const EntryPtr&)>;
// A source of entries: called with a callback, it calls it once per entry.
using Provider = std::function<void(const EntryCallback&)>;

class Registry
{
public:
  virtual ~Registry() = default;
  // The provider object is not copied: it must outlive its registration.
  virtual void addProvider(const OdString& key, const Provider* provider) = 0;
  // Removes the provider under `key`; `provider` may be null for "whatever
  // is registered there".
  virtual void removeProvider(const OdString& key, const Provider* provider) = 0;
};

} // namespace HostEdCompletion
