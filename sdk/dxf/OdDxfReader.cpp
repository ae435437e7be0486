// Reading DXF files into a database: sections, tables, blocks, entities and
// objects, each object keeping its pairs (handle and owner taken out).
#include "sdk/dxf/OdDxf.h"
#include "sdk/dxf/OdDxfCodePage.h"
#include "sdk/dxf/OdDxfLegacy.h"
#include "sdk/dxf/OdDxfTokenizer.h"

#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDictionary.h"
#include "sdk/db/OdDbHatch.h"
#include "sdk/db/OdDbLayout.h"
#include "sdk/db/OdDbPolyline.h"
#include "sdk/db/OdDbRasterImage.h"
#include "sdk/db/OdDbSymbolTable.h"
#include "sdk/db/OdDbText.h"

#include "sdk/kernel/OdLargeBuffer.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <unordered_map>

namespace {

using Creator = OdDbObjectPtr (*)();
template <class T>
OdDbObjectPtr make()
{
  return OdDbObjectPtr(T::createObject());
}

const std::unordered_map<std::string_view, Creator>& entityFactory()
{
  static const std::unordered_map<std::string_view, Creator> f = {
      {"LINE", &make<OdDbLine>}, {"CIRCLE", &make<OdDbCircle>}, {"ARC", &make<OdDbArc>},
      {"ELLIPSE", &make<OdDbEllipse>}, {"POINT", &make<OdDbPoint>}, {"SOLID", &make<OdDbSolid>},
      {"SPLINE", &make<OdDbSpline>}, {"LWPOLYLINE", &make<OdDbPolyline>}, {"POLYLINE", &make<OdDb2dPolyline>},
      {"VERTEX", &make<OdDb2dVertex>}, {"TEXT", &make<OdDbText>}, {"MTEXT", &make<OdDbMText>},
      {"ATTRIB", &make<OdDbAttribute>}, {"ATTDEF", &make<OdDbAttributeDefinition>},
      {"INSERT", &make<OdDbBlockReference>}, {"DIMENSION", &make<OdDbDimension>}, {"HATCH", &make<OdDbHatch>},
      {"IMAGE", &make<OdDbRasterImage>}};
  return f;
}

const std::unordered_map<std::string_view, Creator>& objectFactory()
{
  static const std::unordered_map<std::string_view, Creator> f = {
      {"DICTIONARY", &make<OdDbDictionary>}, {"ACDBDICTIONARYWDFLT", &make<OdDbDictionary>}, {"LAYOUT", &make<OdDbLayout>},
      {"PLOTSETTINGS", &make<OdDbPlotSettings>}, {"IMAGEDEF", &make<OdDbRasterImageDef>},
      {"IMAGEDEF_REACTOR", &make<OdDbRasterImageDefReactor>}};
  return f;
}

// One pass over the pairs. Objects are put into the database as they come;
// what links them (owners, block contents, layouts) is settled in finish(),
// since files may name things before defining them.
class Reader
{
public:
  Reader(OdDbDatabase* db, std::string_view text, const std::string& name, OdDxfTextDecoder* decoder)
      : m_db(db), m_tok(text), m_name(name)
  {
    m_tok.setName(name);
    m_tok.setDecoder(decoder);
    m_stage.resize(256);
  }

  void run()
  {
    OdDbDxfPair p;
    bool sawEof = false;
    while (m_tok.next(p)) {
      if (p.code == 999)
        continue;
      if (p.code != 0)
        fail("a section was expected");
      if (p.value == "EOF") {
        sawEof = true;
        break;
      }
      if (p.value != "SECTION")
        fail("a section was expected");
      OdDbDxfPair n;
      if (!m_tok.next(n) || n.code != 2)
        fail("a section has no name");
      if (n.value == "HEADER") readHeader();
      else if (n.value == "CLASSES") readRaw(&m_db->classesSection());
      else if (n.value == "TABLES") readTables();
      else if (n.value == "BLOCKS") readBlocks();
      else if (n.value == "ENTITIES") readEntities();
      else if (n.value == "OBJECTS") readObjects();
      else {
        m_db->unknownSections().push_back({std::string(n.value), {}});
        readRaw(&m_db->unknownSections().back().pairs);
      }
      ++m_sections;
    }
    (void)sawEof; // a file without EOF after complete sections is accepted
    if (m_sections == 0)
      fail("it holds no DXF sections");
    finish();
  }

private:
  [[noreturn]] void fail(const char* what)
  {
    throw OdError(eFileInternalErr, OdString::formatted("Cannot read %s: %s (line %d)", m_name, what, m_tok.line()));
  }

  // The pairs of one object, up to the next code 0 (which stays for the
  // caller), into m_stage; their number.
  std::size_t collect()
  {
    std::size_t n = 0;
    OdDbDxfPair p;
    while (m_tok.next(p)) {
      if (p.code == 0) {
        m_tok.pushBack();
        return n;
      }
      if (p.code == 999)
        continue;
      if (n == m_stage.size())
        m_stage.resize(n * 2);
      m_stage[n++] = p;
    }
    fail("the file ends inside a section; it is cut short");
  }

  bool nextType(std::string_view& type)
  {
    OdDbDxfPair p;
    do {
      if (!m_tok.next(p))
        fail("the file ends inside a section; it is cut short");
    } while (p.code == 999); // comments may stand anywhere
    if (p.code != 0)
      fail("an object was expected");
    type = p.value;
    return true;
  }

  void readRaw(OdDbDxfPairArray* out)
  {
    OdDbDxfPair p;
    while (m_tok.next(p)) {
      if (p.code == 0 && p.value == "ENDSEC")
        return;
      out->push_back(p);
    }
    fail("the file ends inside a section; it is cut short");
  }

  void readHeader()
  {
    OdDbDxfPair p;
    std::string name;
    OdDbDxfPairArray values;
    auto flush = [&] {
      if (!name.empty())
        m_db->setHeaderVar(name, values);
      values.clear();
    };
    while (m_tok.next(p)) {
      if (p.code == 0) {
        flush();
        if (p.value == "ENDSEC")
          return;
        fail("the header ends without ENDSEC");
      }
      if (p.code == 9) {
        flush();
        name = std::string(p.value);
      } else {
        values.push_back(p);
      }
    }
    fail("the file ends inside the header; it is cut short");
  }

  // Puts the object in with the `count` pairs collected, which move to the
  // drawing's arena, handle and owner taken out.
  OdDbObjectId add(OdDbObject* obj, std::string_view type, std::size_t count, bool isEntity,
                   OdDbObjectId defaultOwner, OdDbHandle* ownerHandle = nullptr)
  {
    OdDbHandle handle, owner;
    bool ownerSeen = false;
    const int handleCode = type == "DIMSTYLE" ? 105 : 5;
    bool inGroup = false, seenMarker = false, hasMarker = false;
    OdDbDxfPair* slice = m_db->arena()->allocatePairs(count);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const OdDbDxfPair& p = m_stage[i];
      if (p.code == 102)
        inGroup = p.value.size() > 0 && p.value[0] == '{';
      if (p.code == 100)
        seenMarker = hasMarker = true;
      if (p.code == 1001)
        seenMarker = true;
      if (p.code == handleCode && handle.isNull() && !seenMarker) {
        handle = OdDbHandle::fromText(p.value);
        continue;
      }
      if (p.code == 330 && !ownerSeen && !inGroup && !seenMarker) {
        ownerSeen = true;
        owner = OdDbHandle::fromText(p.value);
        continue;
      }
      slice[kept++] = p;
    }
    OdDbDxfPairArray pairs = OdDbDxfPairArray::borrowing(slice, kept);
    // Files before R13 (and some later writers) leave the markers out.
    if (!hasMarker && (m_legacy || type != "SEQEND"))
      pairs = OdDxfLegacy::addMarkers(std::string(type), pairs, isEntity);
    obj->setDxfData(std::string(type), std::move(pairs), m_db->arena());
    if (!handle.isNull()) {
      OdDbObjectId existing = m_db->getOdDbObjectId(handle);
      if (existing.isValid())
        handle = OdDbHandle(); // a handle twice in the file: the second gets a new one
    }
    if (ownerHandle)
      *ownerHandle = owner;
    // Objects without a handle get a stand-in now and a real one at the
    // end, above every handle of the file, so none is taken twice.
    const bool unhandled = handle.isNull();
    if (unhandled)
      handle = OdDbHandle(m_nextTemporary++);
    const OdDbObjectId id = m_db->addOdDbObject(obj, defaultOwner, handle);
    if (unhandled)
      m_unhandled.push_back(id);
    return id;
  }

  OdDbObjectPtr createObject(std::string_view type)
  {
    const auto& f = objectFactory();
    auto it = f.find(type);
    return it != f.end() ? it->second() : OdDbObject::createObject();
  }

  // Every maker of the entity factory makes an entity.
  OdDbEntityPtr createEntity(std::string_view type)
  {
    const auto& f = entityFactory();
    auto it = f.find(type);
    if (it == f.end())
      return OdDbEntity::createObject();
    OdDbObjectPtr o = it->second();
    return OdDbEntityPtr(static_cast<OdDbEntity*>(o.get()));
  }

  void readTables()
  {
    std::string_view type;
    while (nextType(type)) {
      if (type == "ENDSEC")
        return;
      if (type != "TABLE")
        fail("a table was expected");
      const std::size_t count = collect();
      std::string tableName;
      for (std::size_t i = 0; i < count; ++i)
        if (m_stage[i].code == 2) {
          tableName = std::string(OdDxf::trim(m_stage[i].value));
          break;
        }
      OdDbSymbolTablePtr table = tableFor(tableName);
      const OdDbObjectId tableId = add(table, "TABLE", count, false, OdDbObjectId());
      const bool known = std::find(OdDbDatabase::tableOrder().begin(), OdDbDatabase::tableOrder().end(), tableName) !=
                         OdDbDatabase::tableOrder().end();
      if (known && m_db->tableId(tableName).isNull())
        m_db->setTableId(tableName, tableId);
      else
        m_extraTables.push_back(tableId);
      while (nextType(type)) {
        if (type == "ENDTAB")
          break;
        if (type == "ENDSEC")
          fail("a table ends without ENDTAB");
        OdSmartPtr<OdDbSymbolTableRecord> rec(OdDbSymbolTable::newRecordForTable(std::string(type)), kOdRxObjAttach);
        OdDbObjectPtr obj = rec.get() ? OdDbObjectPtr(rec) : OdDbObject::createObject();
        const OdDbObjectId id = add(obj, type, collect(), false, tableId);
        if (rec.get())
          table->appendLoadedRecord(id);
      }
      if (type != "ENDTAB")
        fail("a table ends without ENDTAB");
    }
  }

  OdDbSymbolTablePtr tableFor(const std::string& name)
  {
    if (name == "BLOCK_RECORD") return OdDbBlockTable::createObject();
    if (name == "LAYER") return OdDbLayerTable::createObject();
    if (name == "LTYPE") return OdDbLinetypeTable::createObject();
    if (name == "STYLE") return OdDbTextStyleTable::createObject();
    if (name == "DIMSTYLE") return OdDbDimStyleTable::createObject();
    if (name == "APPID") return OdDbRegAppTable::createObject();
    if (name == "VPORT") return OdDbViewportTable::createObject();
    if (name == "VIEW") return OdDbViewTable::createObject();
    if (name == "UCS") return OdDbUCSTable::createObject();
    return OdDbSymbolTable::createObject();
  }

  // One entity and, for block references with attributes and polylines,
  // the sub-entities up to SEQEND.
  OdDbEntity* readEntity(std::string_view type, OdDbHandle* ownerHandle)
  {
    OdDbEntityPtr e = createEntity(type);
    const OdDbObjectId id = add(e, type, collect(), true, OdDbObjectId(), ownerHandle);
    OdDbSubEntities* subs = nullptr;
    if (type == "INSERT") {
      if (OdDbBlockReferencePtr ref = OdDbBlockReference::cast(e); ref.get() && ref->getInt(OdDbBlockReference::kSub, 66, 0))
        subs = &ref->subEntities();
    } else if (type == "POLYLINE") {
      if (OdDb2dPolylinePtr pl = OdDb2dPolyline::cast(e); pl.get())
        subs = &pl->subEntities();
    }
    if (!subs)
      return e; // the database holds it
    std::string_view subType;
    while (nextType(subType)) {
      if (subType == "SEQEND") {
        OdDbEntityPtr end = OdDbEntity::createObject();
        add(end, subType, collect(), true, id);
        subs->setSeqEnd(end);
        break;
      }
      if (subType != "ATTRIB" && subType != "VERTEX") {
        // No SEQEND: the next entity starts here.
        m_tok.pushBack();
        break;
      }
      OdDbEntityPtr sub = createEntity(subType);
      add(sub, subType, collect(), true, id);
      subs->appendLoaded(sub);
    }
    return e;
  }

  // A definition is BLOCK, entities, ENDBLK; the record of the same name
  // (from the BLOCK_RECORD table, or made for files before R13) gets them.
  void readBlocks()
  {
    std::string_view type;
    while (nextType(type)) {
      if (type == "ENDSEC")
        return;
      if (type != "BLOCK")
        fail("a block was expected");
      Block block;
      block.begin = OdDbEntity::createObject();
      add(block.begin, type, collect(), true, OdDbObjectId(), &block.owner);
      while (nextType(type)) {
        if (type == "ENDBLK") {
          block.end = OdDbEntity::createObject();
          add(block.end, type, collect(), true, OdDbObjectId());
          break;
        }
        if (type == "ENDSEC")
          fail("a block ends without ENDBLK");
        block.entities.push_back(readEntity(type, nullptr));
      }
      m_blocks.push_back(std::move(block));
    }
  }

  // Entities of model space and of the active paper space.
  void readEntities()
  {
    std::string_view type;
    while (nextType(type)) {
      if (type == "ENDSEC")
        return;
      OdDbHandle owner;
      OdDbEntity* e = readEntity(type, &owner);
      m_entities.push_back({e, owner});
    }
  }

  void readObjects()
  {
    std::string_view type;
    while (nextType(type)) {
      if (type == "ENDSEC")
        return;
      OdDbHandle owner;
      OdDbObjectPtr o = createObject(type);
      const OdDbObjectId id = add(o, type, collect(), false, OdDbObjectId(), &owner);
      m_objects.push_back({id, owner});
    }
  }

  OdDbObjectId idOf(const OdDbHandle& handle) { return m_db->getOdDbObjectId(handle); }

  void finish()
  {
    m_db->reserveHandles(OdDbHandle::fromText(m_db->getHeaderString("$HANDSEED").toUtf8()));
    for (const OdDbObjectId& id : m_unhandled)
      m_db->reassignHandle(id, m_db->handseed());
    // Owners of objects: as written, when they point at something.
    for (const auto& [id, owner] : m_objects)
      if (OdDbObjectPtr o = id.openObject(OdDb::kForWrite); o.get())
        o->setOwnerId(idOf(owner));
    std::vector<OdDbObjectId> order;
    order.reserve(m_objects.size());
    for (const auto& entry : m_objects)
      order.push_back(entry.first);
    m_db->setObjectsOrder(order);
    if (!m_objects.empty()) {
      OdDbDictionaryPtr root = OdDbDictionary::cast(m_objects.front().first.openObject());
      if (root.get())
        m_db->setNamedObjectsDictionaryId(root->objectId());
    }
    // Tables: a drawing may lack some (R12 has no block records).
    for (const std::string& t : OdDbDatabase::tableOrder())
      if (m_db->tableId(t).isNull()) {
        OdDbSymbolTablePtr table = tableFor(t);
        table->setString(nullptr, 2, OdString(t));
        m_db->setTableId(t, m_db->addOdDbObject(table));
      }
    OdDbSymbolTablePtr blocks = OdDbSymbolTable::cast(m_db->getBlockTableId().openObject(OdDb::kForWrite));
    m_db->setLoading(false);
    for (Block& b : m_blocks) {
      const OdString name = b.begin->getString("AcDbBlockBegin", 2);
      OdDbObjectId recId = idOf(b.owner);
      OdDbBlockTableRecordPtr rec = OdDbBlockTableRecord::cast(recId.openObject(OdDb::kForWrite));
      if (rec.isNull())
        rec = OdDbBlockTableRecord::cast(blocks->getAt(name, OdDb::kForWrite));
      if (rec.isNull()) {
        // Older files: the block itself is the definition.
        rec = OdDbBlockTableRecord::createObject();
        rec->setString(OdDbBlockTableRecord::kSub, 2, legacyBlockName(name));
        rec->setBlockBeginEnd(b.begin, b.end);
        blocks->add(rec);
        if (legacyBlockName(name) != name)
          b.begin->setString("AcDbBlockBegin", 2, legacyBlockName(name));
      }
      if (b.end.isNull()) {
        b.end = OdDbEntity::createObject();
        b.end->setDxfData("ENDBLK", {odPair(100, "AcDbEntity"), odPair(8, "0"), odPair(100, "AcDbBlockEnd")}, nullptr);
        m_db->addOdDbObject(b.end, rec->objectId());
      }
      rec->setBlockBeginEnd(b.begin, b.end);
      b.begin->setOwnerId(rec->objectId());
      b.end->setOwnerId(rec->objectId());
      for (OdDbEntity* e : b.entities) {
        e->setOwnerId(rec->objectId());
        rec->appendLoadedEntity(e->objectId());
      }
    }
    // Records that the BLOCKS section did not frame get their BLOCK/ENDBLK.
    for (const OdDbObjectId& id : blocks->recordIds())
      if (OdDbBlockTableRecordPtr rec = OdDbBlockTableRecord::cast(id.openObject(OdDb::kForWrite)); rec.get()) {
        if (rec->blockBegin()->objectId().isNull()) {
          rec->blockBegin()->setString("AcDbBlockBegin", 2, rec->getName());
          rec->blockBegin()->setString("AcDbBlockBegin", 3, rec->getName());
        }
        rec->subAddedToDatabase();
      }
    m_db->initialize();
    placeEntities();
    // Table owners and sub-entity owners were set when they were added.
  }

  // Entities go to the block their owner names, when it is one, else to
  // model space or (code 67) paper space.
  void placeEntities()
  {
    const OdDbObjectId ms = m_db->getModelSpaceId();
    const OdDbObjectId ps = m_db->getPaperSpaceId();
    OdDbStub* lastOwner = nullptr;
    OdDbBlockTableRecord* lastBlock = nullptr;
    for (const auto& [e, owner] : m_entities) {
      OdDbObjectId target = idOf(owner);
      // Entities come in runs of one owner: look a block up once per run.
      OdDbBlockTableRecord* block = nullptr;
      if (target.stub() && target.stub() == lastOwner) {
        block = lastBlock;
      } else {
        lastOwner = target.stub();
        lastBlock = OdDbBlockTableRecord::cast(target.openObject()).get();
        block = lastBlock;
      }
      if (!block) {
        target = e->getInt("AcDbEntity", 67, 0) ? ps : ms;
        block = OdDbBlockTableRecord::cast(target.openObject(OdDb::kForWrite)).get();
      }
      block->upgradeOpen();
      e->setOwnerId(block->objectId());
      block->appendLoadedEntity(e->objectId());
    }
  }

  // R12 names the layout blocks $MODEL_SPACE / $PAPER_SPACE; today's are
  // *Model_Space / *Paper_Space.
  static OdString legacyBlockName(const OdString& name)
  {
    if (name.iCompare("$MODEL_SPACE") == 0 || name.iCompare("*MODEL_SPACE") == 0)
      return OdDbBlockTableRecord::modelSpaceStr();
    if (name.iCompare("$PAPER_SPACE") == 0 || name.iCompare("*PAPER_SPACE") == 0)
      return OdDbBlockTableRecord::paperSpaceStr();
    return name;
  }

public:
  bool m_legacy = false;

private:
  // Entities and blocks are held by the database; these lists only point.
  struct Block
  {
    OdDbEntityPtr begin, end;
    std::vector<OdDbEntity*> entities;
    OdDbHandle owner;
  };
  OdDbDatabase* m_db;
  OdDxfTokenizer m_tok;
  std::string m_name;
  std::vector<OdDbDxfPair> m_stage; // the pairs of the object being read
  std::vector<Block> m_blocks;
  std::vector<std::pair<OdDbEntity*, OdDbHandle>> m_entities;
  std::vector<std::pair<OdDbObjectId, OdDbHandle>> m_objects;
  std::vector<OdDbObjectId> m_extraTables;
  int m_sections = 0;
  std::uint64_t m_nextTemporary = OdDbDatabase::kTemporaryHandles;
  std::vector<OdDbObjectId> m_unhandled;
};

// $ACADVER and $DWGCODEPAGE, found by a quick look at the header.
void sniffHeader(std::string_view text, std::string& version, std::string& codepage)
{
  OdDxfTokenizer tok(text.substr(0, std::min<std::size_t>(text.size(), 1 << 20)));
  OdDbDxfPair p;
  std::string var;
  try {
    while (tok.next(p)) {
      if (p.code == 0 && (p.value == "ENDSEC" || p.value == "EOF"))
        break;
      if (p.code == 9)
        var = std::string(p.value);
      else if (var == "$ACADVER" && p.code == 1)
        version = std::string(OdDxf::trim(p.value));
      else if (var == "$DWGCODEPAGE" && p.code == 3)
        codepage = std::string(OdDxf::trim(p.value));
    }
  } catch (const OdError&) {
    // The real reading reports the fault with its line.
  }
}

bool isValidUtf8(std::string_view s)
{
  const auto* p = reinterpret_cast<const unsigned char*>(s.data());
  const auto* end = p + s.size();
  while (p < end) {
    // Plain ASCII, eight bytes at a time: most drawings are nothing else.
    if (end - p >= 8) {
      std::uint64_t w;
      std::memcpy(&w, p, 8);
      if ((w & 0x8080808080808080ull) == 0) {
        p += 8;
        continue;
      }
    }
    if (*p < 0x80) {
      ++p;
      continue;
    }
    int n = (*p >= 0xF0 && *p < 0xF5) ? 3 : (*p >= 0xE0) ? 2 : (*p >= 0xC2 && *p < 0xE0) ? 1 : -1;
    if (n < 0 || *p >= 0xF5 || end - p <= n)
      return false;
    for (int k = 1; k <= n; ++k)
      if ((p[k] & 0xC0) != 0x80)
        return false;
    p += n + 1;
  }
  return true;
}

bool looksLikeDwg(std::string_view bytes)
{
  return bytes.size() >= 6 && bytes.compare(0, 2, "AC") == 0 &&
         (bytes.compare(0, 4, "AC10") == 0 || bytes.compare(0, 4, "AC1.") == 0 || bytes.compare(0, 4, "AC2.") == 0);
}

// The bytes of a drawing, which may be changed in place, and what keeps them.
struct DrawingBytes
{
  std::shared_ptr<void> owner;
  char* data = nullptr;
  std::size_t size = 0;
  std::string_view view() const { return std::string_view(data, size); }
};

DrawingBytes ownedBytes(std::string bytes)
{
  auto owner = std::make_shared<std::string>(std::move(bytes));
  return {owner, owner->data(), owner->size()};
}

OdDbDatabasePtr readDrawing(DrawingBytes bytes, const std::string& name)
{
  if (looksLikeDwg(bytes.view()))
    throw OdError(eUnsupportedFormat,
                  OdString::formatted("Cannot read %s: DWG drawings are not supported; save it as DXF", name));
  if (OdDxfBinary::isBinary(bytes.view()))
    bytes = ownedBytes(OdDxfBinary::toText(bytes.view()));
  // A byte order mark some editors put in front; line ends of old Macs.
  if (bytes.view().substr(0, 3) == "\xEF\xBB\xBF") {
    bytes.data += 3;
    bytes.size -= 3;
  }
  if (!std::memchr(bytes.data, '\n', bytes.size) && std::memchr(bytes.data, '\r', bytes.size))
    std::replace(bytes.data, bytes.data + bytes.size, '\r', '\n');
  if (std::memchr(bytes.data, 0, std::min<std::size_t>(bytes.size, 4096)))
    throw OdError(eFileInternalErr, OdString::formatted("Cannot read %s: it is no DXF file", name));
  const std::string_view text = bytes.view();
  std::string version, codepage;
  sniffHeader(text, version, codepage);
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  db->arena()->adopt(std::move(bytes.owner));
  db->setOriginalFileVersion(version);
  db->setLoading(true);
  // Objects of drawings as they come take 150 bytes of file or more.
  db->reserveObjects(text.size() / 150);
  // Before R2007 (AC1021) text is in the drawing's code page, and
  // characters outside it are written as \U+XXXX.
  // Some writers put out R2007 and later in the code page all the same:
  // text that is no UTF-8 is taken as the code page's.
  std::unique_ptr<OdDxfTextDecoder> decoder;
  const bool old = !version.empty() && version < "AC1021";
  if (old || version.empty() || !isValidUtf8(text))
    decoder = std::make_unique<OdDxfTextDecoder>(
        text, OdDxfCodePage::iconvName(codepage.empty() ? "ANSI_1252" : codepage), *db->arena());
  Reader reader(db, text, name, decoder.get());
  reader.m_legacy = !version.empty() && version < "AC1012";
  reader.run();
  db->setLoading(false);
  return db;
}

} // namespace

OdDbDatabasePtr odDxfReadBuffer(std::string bytes, const OdString& name)
{
  return readDrawing(ownedBytes(std::move(bytes)), name.toUtf8());
}

OdDbDatabasePtr odDxfReadFile(const OdString& path)
{
  const QString p = path.qstring();
  QFileInfo info(p);
  if (!info.exists())
    throw OdError(eFileNotFound, OdString::formatted("Cannot read %s: the file does not exist", path));
  if (info.suffix().compare("dwg", Qt::CaseInsensitive) == 0)
    throw OdError(eUnsupportedFormat,
                  OdString::formatted("Cannot read %s: DWG drawings are not supported; save it as DXF", path));
  // A FIFO or a device would block the read or never end it.
  if (!info.isFile())
    throw OdError(eFileAccessErr, OdString::formatted("Cannot read %s: it is not a regular file", path));
  QFile f(p);
  if (!f.open(QIODevice::ReadOnly))
    throw OdError(eFileAccessErr, OdString::formatted("Cannot read %s: %s", path, f.errorString()));
  // The text stays in memory as long as the drawing: a large one gets a
  // large buffer of its own.
  const std::size_t size = std::size_t(f.size());
  DrawingBytes bytes;
  if (size >= OdLargeBuffer::kHugePage) {
    auto buffer = std::make_shared<OdLargeBuffer>(size);
    bytes = {buffer, buffer->data(), size};
  } else {
    bytes = ownedBytes(std::string(size, '\0'));
  }
  if (size > 0 && f.read(bytes.data, qint64(size)) != qint64(size))
    throw OdError(eFileAccessErr, OdString::formatted("Cannot read %s: %s", path, f.errorString()));
  OdDbDatabasePtr db = readDrawing(std::move(bytes), path.toUtf8());
  db->setFilename(OdString(info.absoluteFilePath()));
  return db;
}
