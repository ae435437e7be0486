// Dimension style snapshots.
#include "properties/OdTcDimStyleTableRecordImpl.h"

#include "properties/TcSnapshotValues.h"

#include "model/TcValueText.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDimStyleTableRecord.h"
#include "sdk/db/OdDmUtil.h"
#include "sdk/kernel/OdWcstol.h"

namespace tc {

namespace {

using Style = OdDbDimStyleTableRecord;

enum class Kind
{
  kInt16,
  kUInt8,
  kInt32,
  kDouble,
  kBool,
  kBoolText, // a second name of "dimfxlon", kept and written, never set
  kText,
  kArrow // the name of an arrow block; set once the style is in a drawing
};

struct Variable
{
  const char* name;
  Kind kind;
  OdVariant (*get)(const Style&);
  void (*set)(Style&, const OdVariant&);
};

#define TC_INT(name, acc, Acc, kind)                                              \
  {                                                                               \
    name, kind, [](const Style& s) { return OdVariant(std::int64_t(s.acc())); },  \
        [](Style& s, const OdVariant& v) { s.set##Acc(int(v.getInt64())); }       \
  }
#define TC_WEIGHT(name, acc, Acc)                                                          \
  {                                                                                        \
    name, Kind::kInt32, [](const Style& s) { return OdVariant(std::int64_t(s.acc())); },   \
        [](Style& s, const OdVariant& v) { s.set##Acc(OdDb::LineWeight(v.getInt64())); }   \
  }
#define TC_DOUBLE(name, acc, Acc)                                                     \
  {                                                                                   \
    name, Kind::kDouble, [](const Style& s) { return OdVariant(double(s.acc())); },   \
        [](Style& s, const OdVariant& v) { s.set##Acc(v.getDouble()); }               \
  }
#define TC_BOOL(name, acc, Acc)                                                \
  {                                                                            \
    name, Kind::kBool, [](const Style& s) { return OdVariant(bool(s.acc())); }, \
        [](Style& s, const OdVariant& v) { s.set##Acc(v.getBool()); }          \
  }
#define TC_TEXT(name, acc, Acc)                                                    \
  {                                                                                \
    name, Kind::kText, [](const Style& s) { return OdVariant(OdString(s.acc())); }, \
        [](Style& s, const OdVariant& v) { s.set##Acc(v.getString()); }            \
  }
#define TC_ARROW(name) {name, Kind::kArrow, nullptr, nullptr}

// Every variable, in the order of writing.
const std::vector<Variable>& variables()
{
  static const std::vector<Variable> table = {
      TC_INT("dimadec", dimadec, Dimadec, Kind::kInt16),
      TC_BOOL("dimalt", dimalt, Dimalt),
      TC_INT("dimaltd", dimaltd, Dimaltd, Kind::kInt16),
      TC_DOUBLE("dimaltf", dimaltf, Dimaltf),
      TC_DOUBLE("dimaltrnd", dimaltrnd, Dimaltrnd),
      TC_INT("dimalttd", dimalttd, Dimalttd, Kind::kInt16),
      TC_INT("dimalttz", dimalttz, Dimalttz, Kind::kUInt8),
      TC_DOUBLE("dimasz", dimasz, Dimasz),
      TC_INT("dimatfit", dimatfit, Dimatfit, Kind::kInt16),
      TC_INT("dimaunit", dimaunit, Dimaunit, Kind::kInt16),
      TC_INT("dimazin", dimazin, Dimazin, Kind::kInt16),
      TC_DOUBLE("dimcen", dimcen, Dimcen),
      TC_INT("dimdec", dimdec, Dimdec, Kind::kInt16),
      TC_DOUBLE("dimdle", dimdle, Dimdle),
      TC_DOUBLE("dimdli", dimdli, Dimdli),
      TC_INT("dimdsep", dimdsep, Dimdsep, Kind::kInt16),
      TC_DOUBLE("dimexe", dimexe, Dimexe),
      TC_DOUBLE("dimexo", dimexo, Dimexo),
      TC_INT("dimfrac", dimfrac, Dimfrac, Kind::kInt16),
      TC_DOUBLE("dimgap", dimgap, Dimgap),
      TC_INT("dimjust", dimjust, Dimjust, Kind::kInt16),
      TC_DOUBLE("dimlfac", dimlfac, Dimlfac),
      TC_BOOL("dimlim", dimlim, Dimlim),
      TC_INT("dimlunit", dimlunit, Dimlunit, Kind::kInt16),
      TC_WEIGHT("dimlwd", dimlwd, Dimlwd),
      TC_WEIGHT("dimlwe", dimlwe, Dimlwe),
      TC_DOUBLE("dimrnd", dimrnd, Dimrnd),
      TC_BOOL("dimsah", dimsah, Dimsah),
      TC_DOUBLE("dimscale", dimscale, Dimscale),
      TC_BOOL("dimsd1", dimsd1, Dimsd1),
      TC_BOOL("dimsd2", dimsd2, Dimsd2),
      TC_BOOL("dimse1", dimse1, Dimse1),
      TC_BOOL("dimse2", dimse2, Dimse2),
      TC_BOOL("dimsoxd", dimsoxd, Dimsoxd),
      TC_INT("dimtad", dimtad, Dimtad, Kind::kInt16),
      TC_INT("dimtdec", dimtdec, Dimtdec, Kind::kInt16),
      TC_DOUBLE("dimtfac", dimtfac, Dimtfac),
      TC_BOOL("dimtih", dimtih, Dimtih),
      TC_BOOL("dimtix", dimtix, Dimtix),
      TC_DOUBLE("dimtm", dimtm, Dimtm),
      TC_INT("dimtmove", dimtmove, Dimtmove, Kind::kInt16),
      TC_BOOL("dimtofL", dimtofl, Dimtofl),
      TC_BOOL("dimtoh", dimtoh, Dimtoh),
      TC_BOOL("dimtoL", dimtol, Dimtol),
      TC_INT("dimtolj", dimtolj, Dimtolj, Kind::kUInt8),
      TC_DOUBLE("dimtp", dimtp, Dimtp),
      TC_DOUBLE("dimtsz", dimtsz, Dimtsz),
      TC_DOUBLE("dimtvp", dimtvp, Dimtvp),
      TC_DOUBLE("dimtxt", dimtxt, Dimtxt),
      TC_INT("dimtzin", dimtzin, Dimtzin, Kind::kUInt8),
      TC_BOOL("dimupt", dimupt, Dimupt),
      TC_INT("dimzin", dimzin, Dimzin, Kind::kUInt8),
      {"dimfxlon", Kind::kUInt8, [](const Style& s) { return OdVariant(std::int64_t(s.dimfxlon() ? 1 : 0)); },
       [](Style& s, const OdVariant& v) { s.setDimfxlon(v.getInt64() != 0); }},
      TC_DOUBLE("dimfxl", dimfxl, Dimfxl),
      {"dimfixedext", Kind::kBoolText, [](const Style& s) { return OdVariant(bool(s.dimfixedext())); }, nullptr},
      TC_DOUBLE("dimjogang", dimjogang, Dimjogang),
      TC_INT("dimarcsym", dimarcsym, Dimarcsym, Kind::kInt16),
      TC_INT("dimtfill", dimtfill, Dimtfill, Kind::kInt16),
      TC_BOOL("dimtxtdirection", dimtxtdirection, Dimtxtdirection),
      TC_INT("dimaltz", dimaltz, Dimaltz, Kind::kUInt8),
      TC_DOUBLE("dimaltmzf", dimaltmzf, Dimaltmzf),
      TC_TEXT("dimapost", dimapost, Dimapost),
      TC_TEXT("dimpost", dimpost, Dimpost),
      TC_ARROW("dimblk"),
      TC_ARROW("dimblk1"),
      TC_ARROW("dimblk2"),
      TC_ARROW("dimldrblk"),
  };
  return table;
}

#undef TC_INT
#undef TC_WEIGHT
#undef TC_DOUBLE
#undef TC_BOOL
#undef TC_TEXT
#undef TC_ARROW

int indexOf(const OdString& name)
{
  const auto& table = variables();
  for (std::size_t i = 0; i < table.size(); ++i)
    if (name == table[i].name)
      return int(i);
  return -1;
}

int indexOf(const char* name)
{
  return indexOf(OdString(name));
}

OdVariant parsed(Kind kind, const OdVariant& value)
{
  switch (kind) {
  case Kind::kInt16:
  case Kind::kUInt8:
  case Kind::kInt32: return OdVariant(std::int64_t(odWcstol(value.getString())));
  case Kind::kDouble: return OdVariant(odWcstod(value.getString()));
  case Kind::kBool:
  case Kind::kBoolText: return OdVariant(tcReadBool(value.getString()));
  case Kind::kText:
  case Kind::kArrow: return OdVariant(value.getString());
  }
  return OdVariant();
}

// The arrow of a block as a snapshot keeps it: the built-in arrows by name,
// a block of the user's by the marker, none by the empty text.
OdString arrowOf(const Style& style, OdDbObjectId blockId)
{
  if (blockId.isNull())
    return OdString();
  const OdString name = style.arrowName(blockId);
  return OdDmUtil::isBuiltInArrow(name) ? name : OdString(kTcUserArrowMarker);
}

template <class T>
OdSmartPtr<T> cloneOf(const OdSmartPtr<T>& source)
{
  return source ? OdSmartPtr<T>(static_cast<T*>(source->clone().get())) : OdSmartPtr<T>();
}

} // namespace

OdTcDimStyleTableRecordImpl::OdTcDimStyleTableRecordImpl()
{
  OdSmartPtr<Style> fresh = Style::createObject();
  takeValuesOf(*fresh);
  m_dimclrd = OdTcDimclrdImpl::createNew();
  m_dimclre = OdTcDimclreImpl::createNew();
  m_dimclrt = OdTcDimclrtImpl::createNew();
  m_dimtfillclr = OdTcDimtfillclrImpl::createNew();
  m_dimclrd->m_color = fresh->dimclrd();
  m_dimclre->m_color = fresh->dimclre();
  m_dimclrt->m_color = fresh->dimclrt();
  m_dimtfillclr->m_color = fresh->dimtfillclr();
  for (OdTcPersist* part : {static_cast<OdTcPersist*>(m_dimclrd.get()), static_cast<OdTcPersist*>(m_dimclre.get()),
                            static_cast<OdTcPersist*>(m_dimclrt.get()), static_cast<OdTcPersist*>(m_dimtfillclr.get())})
    part->setParent(this);
}

void OdTcDimStyleTableRecordImpl::takeValuesOf(const Style& style)
{
  m_values.clear();
  for (const Variable& v : variables())
    m_values.push_back(v.get ? v.get(style) : OdVariant(OdString()));
}

OdSmartPtr<OdTcDimStyleTableRecordImpl> OdTcDimStyleTableRecordImpl::createNew()
{
  return OdRxObjectImpl<OdTcDimStyleTableRecordImpl>::createObject();
}

OdRxObjectPtr OdTcDimStyleTableRecordImpl::clone() const
{
  return tcCloneAs<OdTcDimStyleTableRecordImpl, OdTcDimStyleTableRecordImpl>(this);
}

void OdTcDimStyleTableRecordImpl::copyFrom(const OdRxObject* source)
{
  OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcDimStyleTableRecordImpl*>(source);
  if (!src)
    return;
  m_values = src->m_values;
  m_dimclrd = cloneOf(src->m_dimclrd);
  m_dimclre = cloneOf(src->m_dimclre);
  m_dimclrt = cloneOf(src->m_dimclrt);
  m_dimtfillclr = cloneOf(src->m_dimtfillclr);
  m_dimtxsty = cloneOf(src->m_dimtxsty);
  m_dimLineType = cloneOf(src->m_dimLineType);
  m_extLine1LineType = cloneOf(src->m_extLine1LineType);
  m_extLine2LineType = cloneOf(src->m_extLine2LineType);
  for (OdTcPersist* part : {static_cast<OdTcPersist*>(m_dimclrd.get()), static_cast<OdTcPersist*>(m_dimclre.get()),
                            static_cast<OdTcPersist*>(m_dimclrt.get()), static_cast<OdTcPersist*>(m_dimtfillclr.get()),
                            static_cast<OdTcPersist*>(m_dimtxsty.get()), static_cast<OdTcPersist*>(m_dimLineType.get()),
                            static_cast<OdTcPersist*>(m_extLine1LineType.get()),
                            static_cast<OdTcPersist*>(m_extLine2LineType.get())})
    if (part)
      part->setParent(this);
}

OdVariant OdTcDimStyleTableRecordImpl::variable(const OdString& name) const
{
  const int i = indexOf(name);
  return i < 0 ? OdVariant() : m_values[std::size_t(i)];
}

void OdTcDimStyleTableRecordImpl::setVariable(const OdString& name, const OdVariant& value)
{
  const int i = indexOf(name);
  if (i >= 0)
    m_values[std::size_t(i)] = value;
}

void OdTcDimStyleTableRecordImpl::writeBody(OdTcFiler* filer)
{
  const auto& table = variables();
  for (std::size_t i = 0; i < table.size(); ++i) {
    const OdVariant& value = m_values[i];
    switch (table[i].kind) {
    case Kind::kInt16:
    case Kind::kUInt8:
    case Kind::kInt32: tcWriteInt(filer, table[i].name, value.getInt64()); break;
    case Kind::kDouble: tcWriteDouble(filer, table[i].name, value.getDouble()); break;
    case Kind::kBool:
    case Kind::kBoolText: tcWriteBool(filer, table[i].name, value.getBool()); break;
    case Kind::kText:
    case Kind::kArrow: tcWriteText(filer, table[i].name, value.getString()); break;
    }
  }
  tcWriteText(filer, "SymbolTableNameRecord", m_name);
  filer->writeObject(m_dimclrd);
  filer->writeObject(m_dimclre);
  filer->writeObject(m_dimclrt);
  filer->writeObject(m_dimtfillclr);
  filer->writeObject(m_dimtxsty);
  filer->writeObject(m_dimLineType);
  filer->writeObject(m_extLine1LineType);
  filer->writeObject(m_extLine2LineType);
}

bool OdTcDimStyleTableRecordImpl::setValue(const OdString& name, const OdVariant& value)
{
  if (OdTcSymbolTableRecordImplBase<OdTcSymbolTableRecord>::setValue(name, value))
    return true;
  const int i = indexOf(name);
  if (i >= 0) {
    m_values[std::size_t(i)] = parsed(variables()[std::size_t(i)].kind, value);
    return true;
  }
  auto take = [&](auto& field) {
    using T = std::remove_pointer_t<decltype(field.get())>;
    field = tcDeliveredAs<T>(value);
    field->setParent(this);
    return true;
  };
  if (name == "Dimclrd")
    return take(m_dimclrd);
  if (name == "Dimclre")
    return take(m_dimclre);
  if (name == "Dimclrt")
    return take(m_dimclrt);
  if (name == "dimtfillclr")
    return take(m_dimtfillclr);
  if (name == "Dimtxsty")
    return take(m_dimtxsty);
  if (name == "DimLineType")
    return take(m_dimLineType);
  if (name == "ExtLine1LineType")
    return take(m_extLine1LineType);
  if (name == "ExtLine2LineType")
    return take(m_extLine2LineType);
  return false;
}

OdDbSymbolTableRecordPtr OdTcDimStyleTableRecordImpl::createDbRecord(OdDbDatabase*) const
{
  if (m_name.isEmpty())
    return OdDbSymbolTableRecordPtr();
  OdSmartPtr<Style> style = Style::createObject();
  style->setName(m_name);
  const auto& table = variables();
  // Fixed extension lines first: their length means nothing while they
  // are off, and is left as it is then.
  const int fxlon = indexOf("dimfxlon");
  const int fxl = indexOf("dimfxl");
  table[std::size_t(fxlon)].set(*style, m_values[std::size_t(fxlon)]);
  if (style->dimfxlon())
    table[std::size_t(fxl)].set(*style, m_values[std::size_t(fxl)]);
  for (std::size_t i = 0; i < table.size(); ++i)
    if (table[i].set && int(i) != fxlon && int(i) != fxl)
      table[i].set(*style, m_values[i]);
  if (m_dimclrd)
    style->setDimclrd(m_dimclrd->m_color);
  if (m_dimclre)
    style->setDimclre(m_dimclre->m_color);
  if (m_dimclrt)
    style->setDimclrt(m_dimclrt->m_color);
  if (m_dimtfillclr)
    style->setDimtfillclr(m_dimtfillclr->m_color);
  return OdDbSymbolTableRecordPtr(style);
}

void OdTcDimStyleTableRecordImpl::completeDbRecord(OdDbSymbolTableRecord* record) const
{
  OdSmartPtr<Style> style = Style::cast(record);
  OdDbDatabase* db = record ? record->database() : nullptr;
  if (style.isNull() || !db)
    return;
  style->upgradeOpen();
  const char* arrows[] = {"dimblk", "dimblk1", "dimblk2", "dimldrblk"};
  void (Style::*setters[])(OdDbObjectId) = {&Style::setDimblk, &Style::setDimblk1, &Style::setDimblk2,
                                             &Style::setDimldrblk};
  for (int k = 0; k < 4; ++k) {
    const OdString name = m_values[std::size_t(indexOf(arrows[k]))].getString();
    if (name.isEmpty() || name == kTcUserArrowMarker)
      continue;
    // A built-in arrow is made where the drawing lacks it, as drawing
    // programs do; a block of the user's is used only where it exists,
    // since its geometry did not come along.
    const OdDbObjectId blockId = OdDmUtil::isBuiltInArrow(name)
                                     ? OdDmUtil::getArrowId(name, db, true)
                                     : db->recordId(db->getBlockTableId(), name);
    if (!blockId.isNull())
      (style.get()->*setters[k])(blockId);
  }
  if (m_dimtxsty && m_dimtxsty->m_style) {
    const OdDbObjectId id =
        tcFindOrCreateRecord(db, db->getTextStyleTableId(), m_dimtxsty->m_style->name(), m_dimtxsty->m_style);
    if (!id.isNull())
      style->setDimtxsty(id);
  }
  const std::pair<const OdTcDimLineTypeImplBase*, void (Style::*)(OdDbObjectId)> linetypes[] = {
      {m_dimLineType.get(), &Style::setDimltype},
      {m_extLine1LineType.get(), &Style::setDimltex1},
      {m_extLine2LineType.get(), &Style::setDimltex2}};
  for (const auto& [part, setter] : linetypes) {
    if (!part || !part->m_linetype)
      continue;
    const OdDbObjectId id = tcFindOrCreateRecord(db, db->getLinetypeTableId(), part->m_linetype->name(), part->m_linetype);
    if (!id.isNull())
      (style.get()->*setter)(id);
  }
  style->downgradeOpen();
}

bool OdTcDimStyleTableRecordImpl::captureDbRecord(OdDbObjectId id)
{
  OdSmartPtr<Style> style = Style::cast(id.openObject());
  if (style.isNull())
    return false;
  m_name = style->getName();
  takeValuesOf(*style);
  m_values[std::size_t(indexOf("dimblk"))] = OdVariant(arrowOf(*style, style->dimblk()));
  m_values[std::size_t(indexOf("dimblk1"))] = OdVariant(arrowOf(*style, style->dimblk1()));
  m_values[std::size_t(indexOf("dimblk2"))] = OdVariant(arrowOf(*style, style->dimblk2()));
  m_values[std::size_t(indexOf("dimldrblk"))] = OdVariant(arrowOf(*style, style->dimldrblk()));
  m_dimclrd->m_color = style->dimclrd();
  m_dimclre->m_color = style->dimclre();
  m_dimclrt->m_color = style->dimclrt();
  m_dimtfillclr->m_color = style->dimtfillclr();

  m_dimtxsty = nullptr;
  if (!style->dimtxsty().isNull()) {
    m_dimtxsty = OdTcDimStyleTextImpl::createNew();
    m_dimtxsty->setParent(this);
    OdTcTextStyleTableRecordImplPtr text = OdTcTextStyleTableRecordImpl::createNew();
    if (text->captureDbRecord(style->dimtxsty())) {
      text->setParent(m_dimtxsty);
      m_dimtxsty->m_style = text;
    }
  }
  auto captureLinetype = [this](auto& part, OdDbObjectId linetypeId) {
    using T = std::remove_pointer_t<decltype(part.get())>;
    part = nullptr;
    if (linetypeId.isNull())
      return;
    part = T::createNew();
    part->setParent(this);
    part->m_linetype = OdTcLineTypeTableRecordImpl::createNew();
    part->m_linetype->setParent(part);
    part->m_linetype->captureDbRecord(linetypeId);
  };
  captureLinetype(m_dimLineType, style->dimltype());
  captureLinetype(m_extLine1LineType, style->dimltex1());
  captureLinetype(m_extLine2LineType, style->dimltex2());
  return true;
}

} // namespace tc
