// The bindings of the rows of a tool's agent, one per kind of value: yes or
// no, a number with its range, an angle, a text, a file name, a choice from
// a list, a colour, and a text with a dialog of the agent's.
#pragma once

#include "properties/OdTcObjectPropertyImplBaseEx.h"
#include "properties/TcColorText.h"
#include "properties/TcSharedText.h"
#include "properties/TcValueConversion.h"

#include "hostsdk/core/HostCore.h"

#include <QStringList>

namespace tc {

// Every binding class: the frame, its clone and its display name.
#define TC_BINDING_MEMBERS(ClassName)                                                                \
public:                                                                                              \
  static OdSmartPtr<ClassName> createNew(Owner* owner, const OdString& displayName)                 \
  {                                                                                                  \
    OdSmartPtr<ClassName> p = OdRxObjectImpl<ClassName>::createObject();                            \
    p->setOwner(owner);                                                                              \
    p->setName(Supp_Translate(displayName));                                                         \
    return p;                                                                                        \
  }                                                                                                  \
  /* a fixed name, shared by every row of the kind */                                                \
  static OdSmartPtr<ClassName> createNew(Owner* owner, const char* displayName)                     \
  {                                                                                                  \
    OdSmartPtr<ClassName> p = OdRxObjectImpl<ClassName>::createObject();                            \
    p->setOwner(owner);                                                                              \
    p->setName(tcTranslate(displayName));                                                            \
    return p;                                                                                        \
  }                                                                                                  \
  OdRxObjectPtr clone() const override { return tcCloneAs<ClassName, ClassName>(this); }                 \
  /* the typed getValue beside the variant one */                                                    \
  using ClassName::BindingBase::getValue;

template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcBoolObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, bool, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcBoolObjectPropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kBool; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  // The two words of "Yes\tNo\t", translated; the first is true.
  OdArray<OdString> choices() const override
  {
    OdArray<OdString> words;
    for (const QString& word : Supp_Translate("Yes\tNo\t").qstring().split('\t', Qt::SkipEmptyParts))
      words.append(OdString(word));
    return words;
  }
  OdString valueText() const override
  {
    const OdArray<OdString> words = choices();
    return words.size() == 2 ? words[this->value() ? 0 : 1] : OdString(this->value() ? "Yes" : "No");
  }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    const OdArray<OdString> words = choices();
    for (unsigned i = 0; i < words.size() && i < 2; ++i)
      if (words[i] == text) {
        this->setValue(i == 0);
        return true;
      }
    return false;
  }
};

template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcDoubleObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, double, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcDoubleObjectPropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kReal; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return tcRealText(this->value()); }
  bool commitText(const OdString& text, OdString& message) override
  {
    double v = 0.0;
    if (!tcTextToReal(text, false, v, message) || !tcValidateReal(v, m_minimum, m_maximum, message))
      return false;
    this->setValue(v);
    return true;
  }

  void setRange(double minimum, double maximum)
  {
    m_minimum = minimum;
    m_maximum = maximum;
  }
  double minimum() const { return m_minimum; }
  double maximum() const { return m_maximum; }

  void copyFrom(const OdRxObject* source) override
  {
    OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, double, Get, Set, En, Vis>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcDoubleObjectPropertyImplEx*>(source))
      setRange(src->m_minimum, src->m_maximum);
  }

private:
  double m_minimum = kTcRealMinimum;
  double m_maximum = kTcRealMaximum;
};

// Angles have no range.
template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcAnglePropertyImplEx : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, double, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcAnglePropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kAngle; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return tcAngleText(this->value()); }
  bool commitText(const OdString& text, OdString& message) override
  {
    double v = 0.0;
    if (!tcTextToReal(text, true, v, message))
      return false;
    this->setValue(v);
    return true;
  }
};

template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcTextObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcTextObjectPropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kText; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return this->value(); }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    this->setValue(text);
    return true;
  }
};

// A text with a button that opens a file dialog of the default extension
// and filter.
template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcFileNameObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcFileNameObjectPropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kFileName; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return this->value(); }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    this->setValue(text);
    return true;
  }

  void setFileDialog(const OdString& defaultExtension, const OdString& filter)
  {
    m_defaultExtension = defaultExtension;
    m_filter = filter;
  }
  OdString defaultExtension() const { return m_defaultExtension; }
  OdString filter() const { return m_filter; }

  void copyFrom(const OdRxObject* source) override
  {
    OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>::copyFrom(source);
    if (auto* src = dynamic_cast<const OdTcFileNameObjectPropertyImplEx*>(source))
      setFileDialog(src->m_defaultExtension, src->m_filter);
  }

private:
  OdString m_defaultExtension;
  OdString m_filter;
};

// A text chosen from the list the agent's enumerator gives; a text that is
// none of its entries is refused.
template <class Owner, class Get, class Set, class Enum, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcMultiverseObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcMultiverseObjectPropertyImplEx)

  void setOwner(Owner* owner)
  {
    OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>::setOwner(owner);
    m_enumerator.owner = owner;
  }

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kMultiverse; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return this->value(); }
  OdArray<OdString> choices() const override
  {
    return m_enumerator.owner ? OdArray<OdString>(m_enumerator()) : OdArray<OdString>();
  }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    if (!choices().contains(text))
      return false;
    this->setValue(text);
    return true;
  }

private:
  Enum m_enumerator;
};

template <class Owner, class Get, class Set, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcColorObjectPropertyImplEx
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdCmColor, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcColorObjectPropertyImplEx)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kColor; }
  OdVariant getValue() const override { return OdVariant(std::int64_t(this->value().color())); }
  OdString valueText() const override { return tcColorText(this->value()); }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    OdCmColor color;
    if (!tcParseColorText(text, color))
      return false;
    this->setValue(color);
    return true;
  }
};

// A text whose button runs a dialog of the agent's ("Sample.Pattern name":
// the pattern choice); the dialog sets the field itself.
template <class Owner, class Get, class Set, auto Dialog, class En = IsEnabled<Owner>, class Vis = IsVisible<Owner>>
class OdTcCallbackObjectPropertyImpl
    : public OdTcObjectPropertyImplBaseEx<OdTcProperty, Owner, OdString, Get, Set, En, Vis>
{
  TC_BINDING_MEMBERS(OdTcCallbackObjectPropertyImpl)

  OdTcEditableBinding::Kind bindingKind() const override { return OdTcEditableBinding::kCallback; }
  OdVariant getValue() const override { return OdVariant(this->value()); }
  OdString valueText() const override { return this->value(); }
  bool commitText(const OdString& text, OdString& message) override
  {
    message = OdString();
    this->setValue(text);
    return true;
  }
  // Runs the agent's dialog; true when it chose a value, which then passes
  // through the setter with the editing period's backup.
  bool runDialog()
  {
    OdString chosen = this->value();
    if (!this->owner() || !(this->owner()->*Dialog)(chosen))
      return false;
    this->setValue(chosen);
    return true;
  }
};

#undef TC_BINDING_MEMBERS

} // namespace tc
