// OdTcCommandConveyor: the mailbox that carries a tool's parameters from the
// click to "__executetool", which the host runs later from its command line:
// one place for each kind of record. Setting a record overwrites what waits
// there; taking it lowers its flag and hands out a copy.
#pragma once

#include "sdk/kernel/OdRxObject.h"
#include "sdk/kernel/OdString.h"

#include <cstdint>

namespace tc {

// What a block or external reference tool leaves for "__executetool".
struct ToolBlockInsertParams
{
  OdString blockName;
  OdString sourceFile;    // absolute path of the drawing that holds it
  double scale = 1.0;     // with the auxiliary factor multiplied in
  double rotation = 0.0;  // radians
  bool promptRotation = false;
  bool explode = false;
  bool wholeFile = false; // the file as a whole is the block
  bool isXref = false;    // attach instead of insert
  bool reserved = false;  // always false on this road
  std::int32_t xrefType = 1; // 1 attachment, 2 overlay
};

// What a raster tool leaves for "__executetool".
struct ToolRasterInsertParams
{
  OdString imageName;
  OdString sourceFile;
  double scale = 1.0;
  double rotation = 0.0;
};

class OdTcCommandConveyor : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(OdTcCommandConveyor);

public:
  virtual void setBlockParams(const ToolBlockInsertParams& params) = 0;
  // Lowers the flag; the record stays as it was.
  virtual ToolBlockInsertParams takeBlockParams() = 0;
  virtual bool hasBlockParams() const = 0;
  virtual void setRasterParams(const ToolRasterInsertParams& params) = 0;
  virtual ToolRasterInsertParams takeRasterParams() = 0;
  virtual bool hasRasterParams() const = 0;
};
using OdTcCommandConveyorPtr = OdSmartPtr<OdTcCommandConveyor>;

class OdTcCommandConveyorImpl : public OdTcCommandConveyor
{
public:
  void setBlockParams(const ToolBlockInsertParams& params) override;
  ToolBlockInsertParams takeBlockParams() override;
  bool hasBlockParams() const override { return m_hasBlock; }
  void setRasterParams(const ToolRasterInsertParams& params) override;
  ToolRasterInsertParams takeRasterParams() override;
  bool hasRasterParams() const override { return m_hasRaster; }

private:
  ToolBlockInsertParams m_blockParams;
  bool m_hasBlock = false;
  ToolRasterInsertParams m_rasterParams;
  bool m_hasRaster = false;
};

} // namespace tc
