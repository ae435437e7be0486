// OdDbDatabase: a drawing in memory — objects by handle, tables, header.
#pragma once

#include "sdk/db/OdCmColor.h"
#include "sdk/db/OdDbObject.h"

#include <deque>
#include <unordered_map>
#include <vector>

class OdDbDatabase;
class OdDbDatabaseReactor;
class OdDbDimStyleTableRecord;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

class OdDbDatabase : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdDbDatabase);

public:
  ~OdDbDatabase() override;

  // Adds whatever a drawing needs and lacks: the nine tables, their
  // standard records, the named object dictionary with groups, layouts
  // (Model, Layout1) and plot style names, and the two layout blocks.
  void initialize();

  // --- objects ----------------------------------------------------------
  // The id of a handle; with createIfNotFound, an empty id that an object
  // may fill later (forward references while reading).
  OdDbObjectId getOdDbObjectId(const OdDbHandle& handle, bool createIfNotFound = false);
  // Puts the object into the database under a new handle (or the given one,
  // which must be free) and sets its owner.
  OdDbObjectId addOdDbObject(OdDbObject* object, OdDbObjectId ownerId = OdDbObjectId(),
                             const OdDbHandle& handle = OdDbHandle());
  OdDbHandle handseed() const { return m_handseed; }
  // Handles from here up are the readers' stand-ins for objects that came
  // without one; they never raise the seed and get real handles later.
  static constexpr std::uint64_t kTemporaryHandles = 0x7000000000000000ull;
  void reassignHandle(OdDbObjectId id, const OdDbHandle& handle);
  // New handles start at `seed` or above (a file's $HANDSEED: handles below
  // it may be named by data that outlived their objects).
  void reserveHandles(const OdDbHandle& seed)
  {
    if (seed.value() > m_handseed.value() && seed.value() < kTemporaryHandles)
      m_handseed = seed;
  }
  // Every id with an object, in handle order.
  std::vector<OdDbObjectId> allObjectIds() const;

  // --- tables and well-known objects --------------------------------------
  OdDbObjectId getBlockTableId() const { return tableId("BLOCK_RECORD"); }
  OdDbObjectId getLayerTableId() const { return tableId("LAYER"); }
  OdDbObjectId getLinetypeTableId() const { return tableId("LTYPE"); }
  OdDbObjectId getTextStyleTableId() const { return tableId("STYLE"); }
  OdDbObjectId getDimStyleTableId() const { return tableId("DIMSTYLE"); }
  OdDbObjectId getRegAppTableId() const { return tableId("APPID"); }
  OdDbObjectId getViewportTableId() const { return tableId("VPORT"); }
  OdDbObjectId getViewTableId() const { return tableId("VIEW"); }
  OdDbObjectId getUCSTableId() const { return tableId("UCS"); }
  // The record of that name in a table (names compare ignoring case); null
  // when the table or the record is missing.
  OdDbObjectId recordId(OdDbObjectId tableId, const OdString& name) const;
  // A table by its DXF name ("LAYER"); null when the drawing has none.
  OdDbObjectId tableId(const std::string& dxfTableName) const;
  void setTableId(const std::string& dxfTableName, OdDbObjectId id);
  static const std::vector<std::string>& tableOrder();

  OdDbObjectId getModelSpaceId() const;
  OdDbObjectId getPaperSpaceId() const;
  OdDbObjectId getNamedObjectsDictionaryId() const { return m_rootDictionary; }
  void setNamedObjectsDictionaryId(OdDbObjectId id) { m_rootDictionary = id; }
  OdDbObjectId getLayoutDictionaryId() const { return namedDictionary("ACAD_LAYOUT", false); }
  OdDbObjectId plotStyleNameDictionaryId(bool create = false) const { return namedDictionary("ACAD_PLOTSTYLENAME", create); }
  OdDbObjectId imageDictionaryId(bool create = false) const { return namedDictionary("ACAD_IMAGE_DICT", create); }
  OdDbObjectId namedDictionary(const char* key, bool create) const;
  OdDbObjectId getLayerZeroId() const;
  OdDbObjectId getLinetypeByLayerId() const;
  OdDbObjectId getLinetypeByBlockId() const;
  OdDbObjectId getLinetypeContinuousId() const;
  OdDbObjectId getTextStyleStandardId() const;
  OdDbObjectId getDimStyleStandardId() const;
  OdDbObjectId getRegAppAcadId() const;
  // Registers an application name for extended data; true when added.
  bool newRegApp(const OdString& name);

  // The layout of model space or of the active paper space ($TILEMODE).
  OdDbObjectId currentLayoutId() const;
  OdDbObjectId getActiveLayoutBTRId() const;
  OdDbObjectId findLayoutNamed(const OdString& name) const;

  // --- header variables ---------------------------------------------------
  struct HeaderVar
  {
    std::string name; // with the "$"
    OdDbDxfPairArray pairs;
  };
  const std::vector<HeaderVar>& headerVars() const { return m_header; }
  const HeaderVar* headerVar(const std::string& name) const;
  void setHeaderVar(const std::string& name, const OdDbDxfPairArray& pairs);
  void removeHeaderVar(const std::string& name);
  OdString getHeaderString(const std::string& name, const OdString& fallback = OdString()) const;
  double getHeaderDouble(const std::string& name, double fallback = 0.0) const;
  long long getHeaderInt(const std::string& name, long long fallback = 0) const;
  OdGePoint3d getHeaderPoint(const std::string& name) const;
  // Sets the value, keeping the group code the variable has (or `code`).
  void setHeaderString(const std::string& name, int code, const OdString& value);
  void setHeaderDouble(const std::string& name, double value, int code = 40);
  void setHeaderInt(const std::string& name, long long value, int code = 70);
  void setHeaderPoint(const std::string& name, const OdGePoint3d& p);

  // The drawing's current values, for the objects made from now on.
  OdDbObjectId getCLAYER() const;
  void setCLAYER(OdDbObjectId layerId);
  OdCmColor getCECOLOR() const;
  void setCECOLOR(const OdCmColor& color);
  OdDbObjectId getCELTYPE() const;
  void setCELTYPE(OdDbObjectId linetypeId);
  double getCELTSCALE() const { return getHeaderDouble("$CELTSCALE", 1.0); }
  void setCELTSCALE(double scale) { setHeaderDouble("$CELTSCALE", scale); }
  OdDb::LineWeight getCELWEIGHT() const { return OdDb::LineWeight(getHeaderInt("$CELWEIGHT", OdDb::kLnWtByLayer)); }
  void setCELWEIGHT(OdDb::LineWeight w) { setHeaderInt("$CELWEIGHT", w, 370); }
  OdDb::PlotStyleNameType getCEPSNTYPE() const { return OdDb::PlotStyleNameType(getHeaderInt("$CEPSNTYPE", 0)); }
  void setCEPSNTYPE(OdDb::PlotStyleNameType t) { setHeaderInt("$CEPSNTYPE", t, 380); }
  OdDbObjectId getTEXTSTYLE() const;
  void setTEXTSTYLE(OdDbObjectId styleId);
  OdDbObjectId getDIMSTYLE() const;
  void setDIMSTYLE(OdDbObjectId styleId);
  OdCmTransparency getCETRANSPARENCY() const;
  void setCETRANSPARENCY(const OdCmTransparency& t);
  OdDb::UnitsValue getINSUNITS() const { return OdDb::UnitsValue(getHeaderInt("$INSUNITS", 0)); }
  void setINSUNITS(OdDb::UnitsValue u) { setHeaderInt("$INSUNITS", u); }
  double getDIMSCALE() const { return getHeaderDouble("$DIMSCALE", 1.0); }
  void setDIMSCALE(double s) { setHeaderDouble("$DIMSCALE", s); }
  double getLTSCALE() const { return getHeaderDouble("$LTSCALE", 1.0); }
  void setLTSCALE(double s) { setHeaderDouble("$LTSCALE", s); }
  OdGePoint3d getINSBASE() const { return getHeaderPoint("$INSBASE"); }
  void setINSBASE(const OdGePoint3d& p) { setHeaderPoint("$INSBASE", p); }
  bool getTILEMODE() const { return getHeaderInt("$TILEMODE", 1) != 0; }
  bool getMEASUREMENT() const { return getHeaderInt("$MEASUREMENT", 0) != 0; }
  // Brings the drawing's $DIM variables in line with the style.
  void setDimstyleData(OdDbObjectId styleId);
  void setDimstyleData(const OdDbDimStyleTableRecord* style);

  // --- reactors -----------------------------------------------------------
  // Reactors are not owned; adding one twice adds it once.
  void addReactor(OdDbDatabaseReactor* reactor);
  void removeReactor(OdDbDatabaseReactor* reactor);
  // Told by an object before it changes (OdDbObject::assertWriteEnabled).
  void fireObjectOpenedForModify(const OdDbObject* object) const
  {
    if (!m_reactors.empty())
      fireModify(object);
  }

  // --- file --------------------------------------------------------------
  OdString getFilename() const { return m_fileName; }
  void setFilename(const OdString& path) { m_fileName = path; }
  // $ACADVER of the file read ("AC1032"), empty for a new drawing.
  std::string originalFileVersion() const { return m_fileVersion; }
  void setOriginalFileVersion(const std::string& v) { m_fileVersion = v; }
  const OdDbStringArenaPtr& arena() const { return m_arena; }
  // While a file is read, objects that own others do not make defaults for
  // them: the file brings its own, with their handles.
  bool isLoading() const { return m_loading; }
  void setLoading(bool on) { m_loading = on; }

  // What the DXF filers keep beside the objects: the CLASSES section, and
  // sections this SDK does not know, each as its pairs.
  OdDbDxfPairArray& classesSection() { return m_classes; }
  struct RawSection
  {
    std::string name;
    OdDbDxfPairArray pairs;
  };
  std::vector<RawSection>& unknownSections() { return m_unknownSections; }
  // Objects of the OBJECTS section in their order (new ones at the end).
  const std::vector<OdDbObjectId>& objectsOrder() const { return m_objects; }
  void setObjectsOrder(std::vector<OdDbObjectId> order) { m_objects = std::move(order); }

  // --- blocks across drawings ---------------------------------------------
  // A new drawing whose model space holds copies of the block's entities,
  // based at the block's origin, with the records they use.
  OdDbDatabasePtr wblock(OdDbObjectId blockId) const;
  // A new drawing with copies of the chosen entities, based at basePoint.
  OdDbDatabasePtr wblock(const OdArray<OdDbObjectId>& objectIds, const OdGePoint3d& basePoint) const;
  // Copies the model space of `source` into a new block definition named
  // `blockName` (origin: the source's $INSBASE) with the layers, linetypes,
  // styles and blocks its entities use. A definition of that name already
  // here stays as it is and is returned; so do records of the same name.
  OdDbObjectId insert(const OdString& blockName, OdDbDatabase* source, bool preserveSourceDatabase = true);

  // Reading drawings from files is the DXF library's; it registers itself
  // here so that external references can be loaded from this library.
  using DrawingReader = OdDbDatabasePtr (*)(const OdString& path);
  static void setDrawingReader(DrawingReader reader);
  static DrawingReader drawingReader();

protected:
  OdDbDatabase();

private:
  friend class OdDbCloner;
  OdDbStub* newStub(const OdDbHandle& handle);
  void addLayouts();
  void fireModify(const OdDbObject* object) const;
  void fireHeader(const std::string& name, bool changed) const;

  std::deque<OdDbStub> m_stubs;
  std::unordered_map<std::uint64_t, OdDbStub*> m_byHandle;
  OdDbHandle m_handseed = 1;
  std::unordered_map<std::string, OdDbObjectId> m_tables;
  OdDbObjectId m_rootDictionary;
  std::vector<HeaderVar> m_header;
  std::vector<OdDbObjectId> m_objects;
  OdDbDxfPairArray m_classes;
  std::vector<RawSection> m_unknownSections;
  OdDbStringArenaPtr m_arena;
  OdString m_fileName;
  std::string m_fileVersion;
  bool m_loading = false;
  std::vector<OdDbDatabaseReactor*> m_reactors; // not owned
};

// A new drawing; with defaults, one with every table and standard record.
OdDbDatabasePtr odDbCreateDatabase(bool defaults = true);
// Registers the classes of this library (also run when it loads).
void odDbInitClasses();
