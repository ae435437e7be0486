// Recording and replaying the steps of the undo journal.
#include "app/core/HostUndo.h"

#include "sdk/db/OdDbSymbolTable.h"

HostUndo::HostUndo(OdDbDatabase* database) : m_database(database)
{
  if (m_database)
    m_database->addReactor(this);
}

HostUndo::~HostUndo()
{
  if (m_database)
    m_database->removeReactor(this);
}

void HostUndo::beginStep(const OdString& name)
{
  if (m_inCommand)
    return;
  m_inCommand = true;
  m_open.name = name;
}

void HostUndo::innerCommand(const OdString& name)
{
  if (m_inCommand && m_open.name.left(2) == "__")
    m_open.name = name;
}

void HostUndo::endStep()
{
  m_inCommand = false;
  if (m_open.empty()) {
    m_open = Step();
    return;
  }
  m_undo.push_back(std::move(m_open));
  m_open = Step();
  m_redo.clear();
}

OdString HostUndo::undoName() const
{
  if (!m_open.empty())
    return "changes outside a command";
  return m_undo.empty() ? OdString() : m_undo.back().name;
}

OdString HostUndo::redoName() const
{
  return m_redo.empty() ? OdString() : m_redo.back().name;
}

HostUndo::ObjectState HostUndo::stateOf(const OdDbObject* object) const
{
  ObjectState s;
  s.erased = object->isErased();
  s.owner = object->ownerId();
  s.type = object->dxfType();
  s.pairs = object->dxfPairs();
  s.arena = object->arena();
  return s;
}

void HostUndo::objectAppended(const OdDbDatabase*, const OdDbObject* object)
{
  if (m_replaying || !object)
    return;
  OdDbStub* stub = object->objectId().stub();
  if (m_open.touched.count(stub))
    return;
  ObjectChange change;
  change.id = object->objectId();
  change.before.exists = false;
  change.before.erased = true;
  m_open.touched.emplace(stub, m_open.objects.size());
  m_open.objects.push_back(std::move(change));
}

void HostUndo::objectOpenedForModify(const OdDbDatabase*, const OdDbObject* object)
{
  if (m_replaying || !object)
    return;
  OdDbStub* stub = object->objectId().stub();
  if (!stub || m_open.touched.count(stub))
    return;
  ObjectChange change;
  change.id = object->objectId();
  change.before = stateOf(object);
  m_open.touched.emplace(stub, m_open.objects.size());
  m_open.objects.push_back(std::move(change));
}

void HostUndo::headerSysVarWillChange(const OdDbDatabase* database, const OdString& name)
{
  if (m_replaying)
    return;
  const std::string key = "$" + name.toUtf8();
  if (m_open.touchedHeader.count(key))
    return;
  HeaderChange change;
  change.name = key;
  if (const OdDbDatabase::HeaderVar* v = database->headerVar(key)) {
    change.existedBefore = true;
    change.before = v->pairs;
  }
  m_open.touchedHeader.emplace(key, m_open.header.size());
  m_open.header.push_back(std::move(change));
}

// Only the object's own state is set: objects that erase others with them
// (a block reference its attributes) have those in the step as well.
void HostUndo::applyState(OdDbObjectId id, const ObjectState& state)
{
  OdDbObjectPtr object = id.openObject(OdDb::kForWrite, true);
  if (object.isNull())
    return;
  if (state.exists) {
    object->setDxfData(state.type, state.pairs, state.arena);
    object->OdDbObject::setOwnerId(state.owner);
  }
  object->OdDbObject::erase(state.erased);
}

void HostUndo::takeBack(Step& step)
{
  for (auto it = step.objects.rbegin(); it != step.objects.rend(); ++it) {
    OdDbObjectPtr object = it->id.openObject(OdDb::kForRead, true);
    if (object.isNull())
      continue;
    it->after = stateOf(object);
    applyState(it->id, it->before);
  }
  for (auto it = step.header.rbegin(); it != step.header.rend(); ++it) {
    const OdDbDatabase::HeaderVar* v = m_database->headerVar(it->name);
    it->existsAfter = v != nullptr;
    it->after = v ? v->pairs : OdDbDxfPairArray();
    if (it->existedBefore)
      m_database->setHeaderVar(it->name, it->before);
    else
      m_database->removeHeaderVar(it->name);
  }
}

void HostUndo::bringBack(Step& step)
{
  for (const ObjectChange& change : step.objects)
    applyState(change.id, change.after);
  for (const HeaderChange& change : step.header) {
    if (change.existsAfter)
      m_database->setHeaderVar(change.name, change.after);
    else
      m_database->removeHeaderVar(change.name);
  }
}

// Names and erase states of records changed under the tables' name
// indexes: they are rebuilt on the next look-up.
void HostUndo::afterReplay()
{
  for (const std::string& table : OdDbDatabase::tableOrder())
    if (OdDbSymbolTablePtr t = OdDbSymbolTable::cast(m_database->tableId(table).openObject()); t.get())
      t->invalidateIndex();
}

bool HostUndo::undo()
{
  if (!m_database)
    return false;
  // Changes recorded since the last step ended (outside a command, or in
  // the command that asks to undo) are a step of their own.
  if (!m_open.empty()) {
    Step open = std::move(m_open);
    m_open = Step();
    m_open.name = open.name;
    open.name = "changes outside a command";
    m_undo.push_back(std::move(open));
    m_redo.clear();
  }
  if (m_undo.empty())
    return false;
  replay(m_undo, m_redo, &HostUndo::takeBack);
  return true;
}

bool HostUndo::redo()
{
  if (!m_database || m_redo.empty())
    return false;
  replay(m_redo, m_undo, &HostUndo::bringBack);
  return true;
}

// Moves the last step of `from` to `to` after applying it; what the
// replay changes is not journaled, and the views learn of it either way.
void HostUndo::replay(std::vector<Step>& from, std::vector<Step>& to, void (HostUndo::*apply)(Step&))
{
  Step step = std::move(from.back());
  from.pop_back();
  m_replaying = true;
  try {
    (this->*apply)(step);
  } catch (...) {
    m_replaying = false;
    afterReplay();
    throw;
  }
  m_replaying = false;
  afterReplay();
  to.push_back(std::move(step));
}
