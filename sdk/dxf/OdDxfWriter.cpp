// Writing a database as R2018 ASCII DXF.
#include "sdk/dxf/OdDxf.h"
#include "sdk/dxf/OdDxfTokenizer.h"

#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbSymbolTable.h"

#include "sdk/kernel/OdLargeBuffer.h"
#include "sdk/kernel/OdSafeFile.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <unordered_set>

namespace {

// True when the text holds a line feed or a carriage return. Eight bytes
// at a time: only a word with a control character gets a closer look.
bool hasLineBreak(std::string_view text)
{
  const char* p = text.data();
  const char* end = p + text.size();
  for (; end - p >= 8; p += 8) {
    std::uint64_t w;
    std::memcpy(&w, p, 8);
    if (((w - 0x0E0E0E0E0E0E0E0Eull) & ~w & 0x8080808080808080ull) == 0)
      continue;
    for (int k = 0; k < 8; ++k)
      if (p[k] == '\n' || p[k] == '\r')
        return true;
  }
  for (; p < end; ++p)
    if (*p == '\n' || *p == '\r')
      return true;
  return false;
}

// Upper-case hex of a handle, into `buf`; the text written.
std::string_view hexText(std::uint64_t value, char (&buf)[17])
{
  char* end = buf + sizeof buf;
  char* p = end;
  do {
    *--p = "0123456789ABCDEF"[value & 15];
    value >>= 4;
  } while (value);
  return std::string_view(p, std::size_t(end - p));
}

class Writer
{
public:
  explicit Writer(OdDbDatabase* db) : m_db(db) {}

  // The DXF text of the drawing; data() and size() give it.
  void run()
  {
    prepare();
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
  }
  const char* data() const { return m_text.data(); }
  std::size_t size() const { return m_size; }

private:
  // What a complete R2018 drawing needs, every application name used by
  // extended data registered, and room for the whole text.
  void prepare()
  {
    m_db->initialize();
    std::unordered_set<std::string> apps;
    std::size_t bytes = 1 << 16;
    m_db->forEachObject([&](const OdDbObject* o) {
      if (!m_usedTypes.count(o->dxfType()))
        m_usedTypes.insert(o->dxfType());
      bytes += 32;
      for (const OdDbDxfPair& p : o->dxfPairs()) {
        bytes += 5 + p.value.size();
        if (p.code == 1001 && !apps.count(std::string(p.value)))
          apps.emplace(p.value);
      }
    });
    for (const std::string& a : apps)
      m_db->newRegApp(OdDxf::toOdString(a));
    // A little over what the pairs take, so that the text is written into
    // one block, never moved while it grows.
    grow(bytes + bytes / 16);
  }

  void grow(std::size_t capacity) { m_text.resize(capacity); }

  // Room for `n` more bytes; where they go.
  char* room(std::size_t n)
  {
    if (m_text.size() - m_size < n)
      grow(std::max(m_text.size() * 2, m_size + n));
    return m_text.data() + m_size;
  }

  void pair(int code, std::string_view value)
  {
    // Carets may double the value; the code takes at most eleven bytes.
    char* p = room(value.size() * 2 + 16);
    if (code >= 0 && code < 1000) {
      // Codes stand right-aligned in three columns.
      p[0] = code >= 100 ? char('0' + code / 100) : ' ';
      p[1] = code >= 10 ? char('0' + code / 10 % 10) : ' ';
      p[2] = char('0' + code % 10);
      p += 3;
    } else {
      char buf[16];
      const auto r = std::to_chars(buf, buf + sizeof buf, code);
      const std::size_t n = std::size_t(r.ptr - buf);
      for (std::size_t k = n; k < 3; ++k)
        *p++ = ' ';
      std::memcpy(p, buf, n);
      p += n;
    }
    *p++ = '\n';
    if (!hasLineBreak(value)) {
      std::memcpy(p, value.data(), value.size());
      p += value.size();
    } else {
      // A line break inside a value would end it: use the caret form.
      for (char c : value) {
        if (c == '\n') {
          *p++ = '^';
          *p++ = 'J';
        } else if (c == '\r') {
          *p++ = '^';
          *p++ = 'M';
        } else {
          *p++ = c;
        }
      }
    }
    *p++ = '\n';
    m_size = std::size_t(p - m_text.data());
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
    char hex[17];
    pair(0, o->dxfType());
    pair(o->dxfType() == "DIMSTYLE" ? 105 : 5, hexText(o->getDbHandle().value(), hex));
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
    pair(330, owner.isNull() ? std::string_view("0") : hexText(owner.getHandle().value(), hex));
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
  OdLargeBuffer m_text; // its size is the room there is; m_size is what is used
  std::size_t m_size = 0;
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
  Writer w(db);
  w.run();
  return std::string(w.data(), w.size());
}

void odDxfWriteFile(OdDbDatabase* db, const OdString& path)
{
  // DXF text under a .dwg name would be refused when read again.
  if (path.qstring().endsWith(".dwg", Qt::CaseInsensitive))
    throw OdError(eUnsupportedFormat,
                  OdString::formatted("Cannot write %s: DWG drawings are not supported; save it as DXF", path));
  if (!db)
    throw OdError(eNullPtr, "no drawing to write");
  Writer text(db);
  text.run();
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
