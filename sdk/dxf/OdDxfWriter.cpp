// Writing a database as R2018 ASCII DXF.
#include "sdk/dxf/OdDxf.h"
#include "sdk/dxf/OdDxfTokenizer.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbSymbolTable.h"

#include "sdk/kernel/OdSafeFile.h"

#include <charconv>
#include <cstring>
#include <unordered_set>

namespace {

class Writer
{
public:
  explicit Writer(OdDbDatabase* db) : m_db(db) {}

  std::string run()
  {
    prepare();
    m_out.reserve(1 << 20);
    writeHeader();
    writeClasses();
    writeTables();
    writeBlocks();
    writeEntities();
    writeObjects();
    for (const auto& s : m_db->unknownSections()) {
      section(s.name);
      for (const OdDbDxfPair& p : s.pairs)
        pair(p.code, p.value);
      endsec();
    }
    pair(0, "EOF");
    return std::move(m_out);
  }

private:
  // What a complete R2018 drawing needs, and every application name used
  // by extended data registered.
  void prepare()
  {
    m_db->initialize();
    std::unordered_set<std::string> apps;
    for (const OdDbObjectId& id : m_db->allObjectIds()) {
      OdDbObjectPtr o = id.openObject();
      if (o.isNull())
        continue;
      m_usedTypes.insert(o->dxfType());
      for (const OdDbDxfPair& p : o->dxfPairs())
        if (p.code == 1001)
          apps.emplace(p.value);
    }
    for (const std::string& a : apps)
      m_db->newRegApp(OdDxf::toOdString(a));
  }

  void pair(int code, std::string_view value)
  {
    char buf[16];
    auto r = std::to_chars(buf, buf + sizeof buf, code);
    const std::size_t n = std::size_t(r.ptr - buf);
    if (n < 3)
      m_out.append(3 - n, ' ');
    m_out.append(buf, n);
    m_out += '\n';
    if (value.find_first_of("\r\n") == std::string_view::npos) {
      m_out.append(value);
    } else {
      // A line break inside a value would end it: use the caret form.
      for (char c : value) {
        if (c == '\n') m_out += "^J";
        else if (c == '\r') m_out += "^M";
        else m_out += c;
      }
    }
    m_out += '\n';
  }

  void section(std::string_view name)
  {
    pair(0, "SECTION");
    pair(2, name);
  }
  void endsec() { pair(0, "ENDSEC"); }

  // The classes read, and those that objects made here need and the file
  // lacks: drawing programs refuse objects of classes they were not told of.
  void writeClasses()
  {
    struct Known { const char* dxf; const char* cpp; const char* app; const char* flags; bool entity; };
    static const Known known[] = {
        {"ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault", "ObjectDBX Classes", "0", false},
        {"ACDBPLACEHOLDER", "AcDbPlaceHolder", "ObjectDBX Classes", "0", false},
        {"LAYOUT", "AcDbLayout", "ObjectDBX Classes", "0", false},
        {"IMAGE", "AcDbRasterImage", "ISM", "2175", true},
        {"IMAGEDEF", "AcDbRasterImageDef", "ISM", "0", false},
        {"IMAGEDEF_REACTOR", "AcDbRasterImageDefReactor", "ISM", "1", false},
        {"RASTERVARIABLES", "AcDbRasterVariables", "ISM", "0", false}};
    section("CLASSES");
    std::unordered_set<std::string> declared;
    for (const OdDbDxfPair& p : m_db->classesSection()) {
      pair(p.code, p.value);
      if (p.code == 1)
        declared.emplace(p.value);
    }
    for (const Known& k : known) {
      if (declared.count(k.dxf) || !m_usedTypes.count(k.dxf))
        continue;
      pair(0, "CLASS");
      pair(1, k.dxf);
      pair(2, k.cpp);
      pair(3, k.app);
      pair(90, k.flags);
      pair(91, "0");
      pair(280, "0");
      pair(281, k.entity ? "1" : "0");
    }
    endsec();
  }

  void writeHeader()
  {
    section("HEADER");
    pair(9, "$ACADVER");
    pair(1, "AC1032");
    bool codepage = false;
    for (const auto& v : m_db->headerVars()) {
      if (v.name == "$ACADVER" || v.name == "$HANDSEED")
        continue;
      pair(9, v.name);
      if (v.name == "$DWGCODEPAGE") {
        // The text below is UTF-8 whatever the file read had.
        pair(3, "ANSI_1252");
        codepage = true;
        continue;
      }
      // The format gives the current colour its index alone: a true colour
      // stays in the database and goes out as its nearest index, since
      // readers refuse a header variable of several groups that is no point.
      const bool indexOnly = v.name == "$CECOLOR";
      for (const OdDbDxfPair& p : v.pairs)
        if (!indexOnly || p.code == 62)
          pair(p.code, p.value);
    }
    if (!codepage) {
      pair(9, "$DWGCODEPAGE");
      pair(3, "ANSI_1252");
    }
    pair(9, "$HANDSEED");
    pair(5, m_db->handseed().text());
    endsec();
  }

  // Type and handle first, then the object's pairs with the owner put in
  // where the format has it: after the 102 groups, before the first marker.
  void writeObject(const OdDbObject* o)
  {
    pair(0, o->dxfType());
    pair(o->dxfType() == "DIMSTYLE" ? 105 : 5, o->getDbHandle().text());
    const OdDbDxfPairArray& pairs = o->dxfPairs();
    std::size_t i = 0;
    // Reactor and extension dictionary groups come before the owner.
    while (i < pairs.size() && pairs[i].code == 102) {
      do {
        pair(pairs[i].code, pairs[i].value);
        ++i;
      } while (i < pairs.size() && pairs[i].code != 102);
      if (i < pairs.size()) {
        pair(pairs[i].code, pairs[i].value);
        ++i;
      }
    }
    const OdDbObjectId owner = o->ownerId();
    pair(330, owner.isNull() ? std::string("0") : owner.getHandle().text());
    for (; i < pairs.size(); ++i)
      pair(pairs[i].code, pairs[i].value);
  }

  void writeEntity(OdDbObjectId id)
  {
    OdDbObjectPtr e = id.openObject();
    if (e.isNull())
      return;
    writeObject(e);
    std::vector<OdDbObjectId> subs;
    e->ownedSubObjects(subs);
    for (const OdDbObjectId& s : subs)
      if (OdDbObjectPtr so = s.openObject(); so.get())
        writeObject(so);
  }

  // Tables in the order every reader expects; records in their order.
  void writeTables()
  {
    section("TABLES");
    for (const std::string& name : OdDbDatabase::tableOrder()) {
      OdDbSymbolTablePtr t = OdDbSymbolTable::cast(m_db->tableId(name).openObject());
      if (t.isNull())
        continue;
      writeObject(t);
      for (const OdDbObjectId& id : t->recordIds())
        if (OdDbObjectPtr r = id.openObject(); r.get())
          writeObject(r);
      pair(0, "ENDTAB");
    }
    endsec();
  }

  static bool isLayoutSpace(const OdString& name)
  {
    return name.iCompare(OdDbBlockTableRecord::modelSpaceStr()) == 0 ||
           name.iCompare(OdDbBlockTableRecord::paperSpaceStr()) == 0;
  }

  void writeBlocks()
  {
    section("BLOCKS");
    OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(m_db->getBlockTableId().openObject());
    for (const OdDbObjectId& id : blocks->recordIds()) {
      OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::cast(id.openObject());
      if (b.isNull())
        continue;
      writeObject(b->blockBegin());
      // Model space and the active paper space keep their entities in the
      // ENTITIES section.
      if (!isLayoutSpace(b->getName()))
        for (const OdDbObjectId& e : b->entityIds())
          writeEntity(e);
      writeObject(b->blockEnd());
    }
    endsec();
  }

  void writeEntities()
  {
    section("ENTITIES");
    for (const OdDbObjectId& space : {m_db->getModelSpaceId(), m_db->getPaperSpaceId()})
      if (OdDbBlockTableRecordPtr b = OdDbBlockTableRecord::cast(space.openObject()); b.get())
        for (const OdDbObjectId& e : b->entityIds())
          writeEntity(e);
    endsec();
  }

  void writeObjects()
  {
    section("OBJECTS");
    for (const OdDbObjectId& id : m_db->objectsOrder())
      if (OdDbObjectPtr o = id.openObject(); o.get())
        writeObject(o);
    endsec();
  }

  OdDbDatabase* m_db;
  std::string m_out;
  std::unordered_set<std::string> m_usedTypes;
};

// External references are loaded through this library's reader.
struct RegisterReader
{
  RegisterReader() { OdDbDatabase::setDrawingReader(&odDxfReadFile); }
} g_registerReader;

} // namespace

std::string odDxfWriteBuffer(OdDbDatabase* db)
{
  if (!db)
    throw OdError(eNullPtr, "no drawing to write");
  return Writer(db).run();
}

void odDxfWriteFile(OdDbDatabase* db, const OdString& path)
{
  // DXF text under a .dwg name would be refused when read again.
  if (path.qstring().endsWith(".dwg", Qt::CaseInsensitive))
    throw OdError(eUnsupportedFormat,
                  OdString::formatted("Cannot write %s: DWG drawings are not supported; save it as DXF", path));
  const std::string text = odDxfWriteBuffer(db);
  try {
    odWriteFileSafely(path, [&](OdStreamBuf& stream) {
      constexpr std::size_t kChunk = std::size_t(1) << 30;
      for (std::size_t at = 0; at < text.size(); at += kChunk)
        stream.putBytes(text.data() + at, std::uint32_t(std::min(kChunk, text.size() - at)));
    });
  } catch (const OdError_FileException& e) {
    throw OdError(eFileAccessErr, OdString::formatted("Cannot write %s: %s", path, e.reason()));
  }
}
