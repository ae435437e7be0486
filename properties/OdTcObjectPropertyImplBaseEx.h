// The binding of an editable row to a field of an agent: a property whose
// value is read and written through the agent's own getter and setter,
// named at compile time, with the agent's predicates for whether the row is
// enabled and shown. The backup of the editing period is a value of the
// field's type.
#pragma once

#include "properties/OdTcPropertyImplBase.h"

#include "sdk/kernel/OdArray.h"

namespace tc {

// What the rows of the host's inspector ask of any binding, whatever the
// type of its value.
class OdTcEditableBinding
{
public:
  enum Kind
  {
    kBool,
    kReal,
    kAngle,
    kText,
    kFileName,
    kMultiverse,
    kColor,
    kCallback
  };

  virtual Kind bindingKind() const = 0;
  // The value as the row shows it.
  virtual OdString valueText() const = 0;
  // Takes a typed text; false, with the reason in `message` (empty where
  // there is nothing to say), when the text is refused. The field keeps its
  // value then.
  virtual bool commitText(const OdString& text, OdString& message) = 0;
  // The entries of the row's list; none for rows without one.
  virtual OdArray<OdString> choices() const { return OdArray<OdString>(); }

protected:
  ~OdTcEditableBinding() = default;
};

// The functors: each holds its own copy of the owner, set by setOwner.
template <class Owner, class Value, auto Member>
struct Getter
{
  Owner* owner = nullptr;
  Value operator()() const { return (owner->*Member)(); }
};

template <class Owner, class Value, auto Member>
struct Setter
{
  Owner* owner = nullptr;
  void operator()(const Value& value) const { (owner->*Member)(value); }
};

template <class Owner, class Array, auto Member>
struct Enumerator
{
  Owner* owner = nullptr;
  Array operator()() const { return (owner->*Member)(); }
};

template <class Owner, auto Member>
struct Enabler
{
  Owner* owner = nullptr;
  bool operator()() const { return (owner->*Member)(); }
};

template <class Owner, auto Member>
struct Visible
{
  Owner* owner = nullptr;
  bool operator()() const { return (owner->*Member)(); }
};

// The defaults: always enabled, always shown.
template <class Owner>
struct IsEnabled
{
  Owner* owner = nullptr;
  bool operator()() const { return true; }
};

template <class Owner>
struct IsVisible
{
  Owner* owner = nullptr;
  bool operator()() const { return true; }
};

template <class Base, class Owner, class Value, class Get, class Set, class En = IsEnabled<Owner>,
          class Vis = IsVisible<Owner>>
class OdTcObjectPropertyImplBaseEx : public OdTcPropertyImplBase<Base>, public OdTcEditableBinding
{
public:
  using ValueType = Value;
  using BindingBase = OdTcObjectPropertyImplBaseEx;

  // The owner does not belong to the row: the agent owns its bag of rows.
  void setOwner(Owner* owner)
  {
    m_getter.owner = owner;
    m_setter.owner = owner;
    m_enabled.owner = owner;
    m_visible.owner = owner;
  }
  Owner* owner() const { return m_getter.owner; }

  bool isEnabled() const override { return m_enabled.owner && m_enabled() && !this->m_isReadOnly; }
  bool isVisible() const override { return m_visible.owner && m_visible(); }

  void getValue(Value& out) const { out = m_getter(); }
  // The first change of an editing period keeps the old value.
  void setValue(const Value& in)
  {
    if (!this->m_isEdited) {
      m_backup = m_getter();
      this->m_isEdited = true;
    }
    m_setter(in);
    tcNotifyPropertyChanged(this);
  }
  using OdTcPropertyImplBase<Base>::setValue;

  void rollbackEdit() override
  {
    if (!this->m_isEdited)
      return;
    m_setter(m_backup);
    this->m_isEdited = false;
  }
  void acceptEdit() override { this->m_isEdited = false; }

  // The value lives in the agent: the row has no record of its own.
  OdTcPropertyBasicInfo* basicInfo() override { return nullptr; }

  void copyFrom(const OdRxObject* source) override
  {
    OdTcPropertyImplBase<Base>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcObjectPropertyImplBaseEx*>(source))
      setOwner(src->owner());
  }

protected:
  Value value() const { return m_getter(); }

  Get m_getter;
  Set m_setter;
  En m_enabled;
  Vis m_visible;
  Value m_backup{};
};

} // namespace tc
