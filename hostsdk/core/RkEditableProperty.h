// IRkEditableProperty: one row of the host's property inspector, as a module
// provides it, and the connection point through which the inspector hears
// that rows changed. No window code here: the inspector makes the editors
// unless a row makes its own.
#pragma once

#include "hostsdk/core/RkUnknown.h"
#include "sdk/kernel/OdString.h"

#include <cstdint>
#include <vector>

class QRect;
class QWidget;
class IRkEditableProperty;

// Told by a row when its value or its state changed outside the inspector.
class IRkEditablePropertySink : public IRkUnknown
{
public:
  RK_DECLARE_IID(IRkEditablePropertySink);
  // The row's value text, read-only or visible state changed.
  virtual void onPropertyChanged(IRkEditableProperty* property) = 0;
  // Every row is to be read anew (what OpmRefreshProperties asks for).
  virtual void onRefreshAll() = 0;
};

template <class Sink>
class IRkConnectionPoint
{
public:
  // The point holds a counted reference until unadvise.
  virtual bool advise(Sink* sink) = 0;
  virtual bool unadvise(Sink* sink) = 0;

protected:
  ~IRkConnectionPoint() = default;
};

// The usual implementation: keeps the sinks and calls them in turn. A sink
// removed during a round is not called afterwards.
template <class Sink>
class CRkConnectionPointImpl : public IRkConnectionPoint<Sink>
{
public:
  bool advise(Sink* sink) override
  {
    if (!sink)
      return false;
    for (const auto& s : m_sinks)
      if (s.get() == sink)
        return false;
    m_sinks.emplace_back(sink);
    return true;
  }
  bool unadvise(Sink* sink) override
  {
    for (auto it = m_sinks.begin(); it != m_sinks.end(); ++it) {
      if (it->get() == sink) {
        m_sinks.erase(it);
        return true;
      }
    }
    return false;
  }
  template <class F>
  void fire(F f)
  {
    const std::vector<CRkPtr<Sink>> round = m_sinks;
    for (const auto& s : round)
      if (isAdvised(s.get()))
        f(s.get());
  }
  std::size_t sinkCount() const { return m_sinks.size(); }

private:
  bool isAdvised(Sink* sink) const
  {
    for (const auto& s : m_sinks)
      if (s.get() == sink)
        return true;
    return false;
  }
  std::vector<CRkPtr<Sink>> m_sinks;
};

// One entry of a row's drop list. A colour entry shows a swatch, a
// lineweight entry a line of that weight.
struct RkPropertyListItem
{
  OdString text;
  bool hasSwatch = false;
  std::uint32_t rgb = 0;  // 0x00RRGGBB when hasSwatch
  int lineWeight = -100;  // hundredths of a millimetre; -100: no line shown
};

class IRkEditableProperty : public IRkUnknown
{
public:
  RK_DECLARE_IID(IRkEditableProperty);

  // The name in the left column.
  virtual OdString title() const = 0;
  // The value as the right column shows it.
  virtual OdString valueText() const = 0;
  virtual bool isReadOnly() const = 0;
  virtual bool isVisible() const = 0;

  // Takes an edited text. False refuses it, with the reason in `message`
  // (empty: refused without a word); the row then stays in edit and keeps
  // its last good value.
  virtual bool commit(const OdString& text, OdString& message) = 0;
  // The edit was abandoned: forget what was typed.
  virtual void cancel() = 0;

  // A drop list of values to choose from; when `isListOnly` the value can
  // only be picked, not typed.
  virtual bool hasDropList() const { return false; }
  virtual bool isListOnly() const { return false; }
  // Built each time the list opens.
  virtual std::vector<RkPropertyListItem> enumerateList() { return {}; }

  // A "..." button beside the value, which opens a dialog of the row's own.
  virtual bool hasDialogButton() const { return false; }
  // True when the dialog changed the value (the inspector reads it again).
  virtual bool runDialog(QWidget* parent) { return false; }

  // A row that draws and edits in a control of its own makes it here, as a
  // child of `parent` placed at `rect`; null lets the inspector make a line
  // edit or a combo box as the answers above call for.
  virtual QWidget* createInPlaceControl(QWidget* parent, const QRect& rect) { return nullptr; }

  // Where the inspector listens; null when the row never changes by itself.
  virtual IRkConnectionPoint<IRkEditablePropertySink>* connectionPoint() { return nullptr; }
};
