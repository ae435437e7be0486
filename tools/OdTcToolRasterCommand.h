// OdTcToolRasterCommand: the tool that places an image file in the drawing.
#pragma once

#include "tools/OdTcToolActionAgentImplBase.h"

namespace tc {

class OdTcToolRasterCommand : public OdTcToolActionAgent
{
  ODRX_DECLARE_MEMBERS(OdTcToolRasterCommand);

public:
  virtual OdString rasterName() const = 0;
  // May be relative to the drawing the tool runs in.
  virtual OdString sourceFile() const = 0;
  virtual double scale() const = 0;
  virtual double rotation() const = 0;
};
using OdTcToolRasterCommandPtr = OdSmartPtr<OdTcToolRasterCommand>;

class OdTcToolRasterCommandImpl : public OdTcToolActionAgentImplBase<OdTcToolRasterCommand>
{
public:
  OdTcToolRasterCommandImpl();

  OdString tagName() const override { return "Raster"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  // Leaves the record of the image, its path made absolute against the
  // drawing's folder, with the conveyor and types "__executetool" for it.
  bool execute(HostDocument* document) override;
  bool isImageSpecific() const override { return true; }
  void fillProperties() override;

  // What the rows read and write.
  OdString getRasterName() const { return m_rasterName; }
  void setRasterName(const OdString& name) { m_rasterName = name; }
  OdString getSourceFile() const { return m_sourceFile; }
  void setSourceFile(const OdString& path) { m_sourceFile = path; }
  double getScale() const { return m_scale; }
  void setScale(double scale) { m_scale = scale; }
  double getRotation() const { return m_rotation; }
  void setRotation(double angle) { m_rotation = angle; }
  // Name and file change through the file's button only.
  bool fileNameEnabler() const { return false; }

  // The image's path for a drawing saved as `drawingFile`: a relative path
  // resolved against the drawing's folder.
  static OdString imagePathFor(const OdString& sourceFile, const OdString& drawingFile);

  OdString rasterName() const override { return m_rasterName; }
  OdString sourceFile() const override { return m_sourceFile; }
  double scale() const override { return m_scale; }
  double rotation() const override { return m_rotation; }

private:
  OdString m_rasterName;
  OdString m_sourceFile;
  double m_scale = 1.0;
  double m_rotation = 0.0;
};

} // namespace tc
