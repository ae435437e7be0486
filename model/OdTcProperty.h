// OdTcProperty: one property of a tool, either a general property that the
// tool applies to the drawing's current state while it runs, or a view onto
// a field of the tool's agent. Implementations live in properties/.
#pragma once

#include "model/OdTcPersist.h"

#include "sdk/kernel/OdVariant.h"

class IRkEditableProperty;
class OdDbDatabase;

namespace tc {

class OdTcPropertyBasicInfo;

class OdTcProperty : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(OdTcProperty);

public:
  // The translated display name ("General.Color" as the host translates
  // it); what a bag is searched by.
  virtual OdString name() const = 0;
  // The group heading of the property's row ("General" for the general
  // properties).
  virtual OdString category() const = 0;
  virtual OdVariant getValue() const = 0;
  // The editor's view of the property: a new counted row for the host's
  // inspector, or null where the property has no editor.
  virtual IRkEditableProperty* createEditableProperty() = 0;
  // Saves the drawing's current value and sets the property's own. A
  // property left at "-- use current" only saves.
  virtual void apply(OdDbDatabase* database) = 0;
  // Puts the value saved by apply back.
  virtual void restore(OdDbDatabase* database) = 0;
  // Ends an editing period: rollbackEdit puts the values from before its
  // first change back, acceptEdit keeps what stands.
  virtual void rollbackEdit() = 0;
  virtual void acceptEdit() = 0;
  virtual bool isEdited() const = 0;
  virtual void setReadOnly(bool readOnly) = 0;
  virtual bool isReadOnly() const = 0;
  // The stored value record ("BasicPropInfo"); null for an agent's
  // property, whose value is a field of the agent.
  virtual OdTcPropertyBasicInfo* basicInfo() = 0;
  // Whether the row can be edited, and whether it shows at all; an agent's
  // property asks the agent, whose other fields decide.
  virtual bool isEnabled() const = 0;
  virtual bool isVisible() const = 0;
};
using OdTcPropertyPtr = OdSmartPtr<OdTcProperty>;

// The base of the general properties: a property that acts on a drawing
// and keeps a snapshot of the record it names.
class OdTcDatabaseProperty : public OdTcProperty
{
  ODRX_DECLARE_MEMBERS(OdTcDatabaseProperty);

public:
  // The tool properties dialog brackets its editing period with these: a
  // first change while tracking keeps a backup for rollbackEdit.
  virtual void beginEditTracking() = 0;
  virtual void endEditTracking() = 0;
  // The value as its cell shows it: the translated "-- use current" for a
  // property the tool does not set.
  virtual OdString valueText() const = 0;
  // Sets the value from the editor's text. The translated "-- use current",
  // or a text the kind cannot take, makes the property unspecified and
  // answers false.
  virtual bool setValueText(const OdString& text) = 0;
};
using OdTcDatabasePropertyPtr = OdSmartPtr<OdTcDatabaseProperty>;

} // namespace tc
