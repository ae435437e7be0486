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
  bool execute(HostDocument* document) override;
  bool isImageSpecific() const override { return true; }

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
