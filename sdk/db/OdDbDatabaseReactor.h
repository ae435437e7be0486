// OdDbDatabaseReactor: hears what happens to the objects and the header of
// one drawing (an undo journal, a view that repaints, variable events).
#pragma once

#include "sdk/kernel/OdString.h"

class OdDbDatabase;
class OdDbObject;

// Added to a database with OdDbDatabase::addReactor; not owned by it, so a
// reactor removes itself before it goes. Drawings read from files get their
// reactors after the reading: a reader's work is never reported.
class OdDbDatabaseReactor
{
public:
  virtual ~OdDbDatabaseReactor() = default;

  // A new object joined the drawing: it has its handle, and gets its owner
  // right after.
  virtual void objectAppended(const OdDbDatabase* database, const OdDbObject* object) {}
  // The object is about to change (its data, its owner, its erase state).
  // Told before every change: a reactor that wants the state before a whole
  // series of changes keeps the first one.
  virtual void objectOpenedForModify(const OdDbDatabase* database, const OdDbObject* object) {}
  // A header variable, by its name without the "$" ("CLAYER").
  virtual void headerSysVarWillChange(const OdDbDatabase* database, const OdString& name) {}
  virtual void headerSysVarChanged(const OdDbDatabase* database, const OdString& name) {}
};
