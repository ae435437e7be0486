// OdTcToolBlockCommand: the tool that inserts a block definition of a
// drawing file, or attaches the file as an external reference.
#pragma once

#include "tools/OdTcToolActionAgentImplBase.h"

#include "sdk/kernel/OdArray.h"

class OdDbDatabase;

namespace tc {

class OdTcToolBlockCommand : public OdTcToolActionAgent
{
  ODRX_DECLARE_MEMBERS(OdTcToolBlockCommand);

public:
  // 1: one definition inside the source file; 2: the file itself.
  virtual std::int32_t blockType() const = 0;
  virtual void setBlockType(std::int32_t type) = 0;
  virtual OdString blockName() const = 0;
  virtual void setBlockName(const OdString& name) = 0;
  // An absolute path in memory; tokens of well-known folders in files.
  virtual OdString sourceFile() const = 0;
  virtual void setSourceFile(const OdString& path) = 0;
  // 1: a block; 2: an external reference.
  virtual std::int32_t insertAs() const = 0;
  // 1: attachment; 2: overlay; 0: none.
  virtual std::int32_t xrefType() const = 0;
  virtual double scale() const = 0;
  virtual double rotation() const = 0;
  virtual bool promptRotation() const = 0;
  virtual bool promptAttributes() const = 0;
  virtual bool explode() const = 0;
  // As shown: "Dimscale", "Plot scale" or "None", translated; may be empty.
  virtual OdString auxiliaryScale() const = 0;
};
using OdTcToolBlockCommandPtr = OdSmartPtr<OdTcToolBlockCommand>;

class OdTcToolBlockCommandImpl : public OdTcToolActionAgentImplBase<OdTcToolBlockCommand>
{
public:
  OdTcToolBlockCommandImpl();

  OdString tagName() const override { return "Block"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  // Keeps ATTREQ and sets it to whether attributes are asked for.
  void beginExecute(HostDocument* document) override;
  void endExecute(HostDocument* document) override;
  // Leaves the insertion's record with the conveyor and types
  // "__executetool" for it.
  bool execute(HostDocument* document) override;
  bool isImageSpecific() const override { return true; }
  // The rows of the tool properties dialog; the file kind has two more.
  void fillProperties() override;

  std::int32_t blockType() const override { return m_blockType; }
  void setBlockType(std::int32_t type) override { m_blockType = type; }
  OdString blockName() const override { return m_blockName; }
  void setBlockName(const OdString& name) override { m_blockName = name; }
  OdString sourceFile() const override { return m_sourceFile; }
  // For the file kind the block's name follows the file's.
  void setSourceFile(const OdString& path) override;
  std::int32_t insertAs() const override { return m_insertAs; }
  std::int32_t xrefType() const override { return m_xrefType; }
  double scale() const override { return m_scale; }
  double rotation() const override { return m_rotation; }
  bool promptRotation() const override { return m_promptRotation; }
  bool promptAttributes() const override { return m_promptAttributes; }
  bool explode() const override { return m_explode; }
  OdString auxiliaryScale() const override { return m_auxiliaryScale; }

  // What the rows read and write, as they show it.
  OdString getName() const { return m_blockName; }
  void setName(const OdString& name) { m_blockName = name; }
  OdString getSourceFile() const { return m_sourceFile; }
  OdString getInsertAs() const;
  // An unknown text is a block; a block has no reference type.
  void setInsertAs(const OdString& text);
  OdArray<OdString> getInsertAsAsEnum() const;
  OdString getXrefType() const;
  void setXrefType(const OdString& text);
  OdArray<OdString> getXrefTypeEnum() const;
  double getScale() const { return m_scale; }
  void setScale(double scale) { m_scale = scale; }
  OdString getAux() const { return m_auxiliaryScale; }
  void setAux(const OdString& text);
  OdArray<OdString> getAuxScaleEnum() const;
  double getRotation() const { return m_rotation; }
  void setRotation(double angle) { m_rotation = angle; }
  bool getIsAskForRotation() const { return m_promptRotation; }
  void setIsAskForRotaion(bool on) { m_promptRotation = on; }
  bool getIsQueryAttributes() const { return m_promptAttributes; }
  void setIsQueryAttributes(bool on) { m_promptAttributes = on; }
  bool getIsExplode() const { return m_explode; }
  void setIsExplode(bool on) { m_explode = on; }
  bool fileNameEnabler() const { return false; }
  bool xrefTypeEnabler() const { return m_insertAs == 2; }
  bool isQueryAttributes() const { return m_insertAs == 1; }
  bool isExplodable() const { return m_insertAs == 1; }

  // The insertion's scale in `database`: the tool's, times DIMSCALE or the
  // standard scale of the active layout's plot settings where the
  // auxiliary scale asks for one.
  double effectiveScale(OdDbDatabase* database) const;
  // The source file a run uses: a relative one taken from the folder of the
  // palette file that holds the tool.
  OdString sourceFileForRun();

private:
  std::int32_t m_blockType = 1;
  std::int32_t m_blockTypeEx = 0; // kept for the file, no other use
  OdString m_blockName;
  OdString m_sourceFile;
  std::int32_t m_insertAs = 1;
  std::int32_t m_xrefType = 0;
  double m_scale = 1.0;
  double m_rotation = 0.0;
  bool m_promptRotation = false;
  bool m_explode = false;
  bool m_promptAttributes = true;
  OdString m_auxiliaryScale;
  std::int32_t m_savedAttreq = 0;
};

} // namespace tc
