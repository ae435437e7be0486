// OdTcToolHatchCommand: the tool that starts the host's hatch or gradient
// command with its pattern, angle, scale and colours.
#pragma once

#include "tools/OdTcGradientColors.h"
#include "tools/OdTcToolActionAgentImplBase.h"

namespace tc {

class OdTcToolHatchCommand : public OdTcToolActionAgent
{
  ODRX_DECLARE_MEMBERS(OdTcToolHatchCommand);

public:
  // 0 a hatch, 1 a gradient.
  virtual std::int32_t hatchObjectType() const = 0;
  // 0 user defined, 1 standard, 2 custom.
  virtual std::int32_t hatchType() const = 0;
  virtual OdString patternName() const = 0;
  virtual OdString sourceFile() const = 0;
  virtual OdString gradientName() const = 0;
  virtual OdString auxiliaryScale() const = 0;
  virtual double angle() const = 0;
  virtual double scale() const = 0;
  virtual double spacing() const = 0;
  virtual bool crosswise() const = 0;
  virtual double gradientAngle() const = 0;
  virtual bool gradientCentered() const = 0;
  // The gradient's colours, two for a new tool.
  virtual int gradientColorCount() const = 0;
  virtual OdCmColor gradientColor(int index) const = 0;
};
using OdTcToolHatchCommandPtr = OdSmartPtr<OdTcToolHatchCommand>;

class OdTcToolHatchCommandImpl : public OdTcToolActionAgentImplBase<OdTcToolHatchCommand>
{
public:
  OdTcToolHatchCommandImpl();

  OdString tagName() const override { return "Hatch"; }
  bool setValue(const OdString& name, const OdVariant& value) override;
  void writeBody(OdTcFiler* filer) override;
  void copyFrom(const OdRxObject* source) override;
  bool execute(HostDocument* document) override;
  bool isImageSpecific() const override { return m_hatchObjectType == 0; }

  std::int32_t hatchObjectType() const override { return m_hatchObjectType; }
  std::int32_t hatchType() const override { return m_hatchType; }
  OdString patternName() const override { return m_patternName; }
  OdString sourceFile() const override { return m_sourceFile; }
  OdString gradientName() const override { return m_gradientName; }
  OdString auxiliaryScale() const override { return m_auxiliaryScale; }
  double angle() const override { return m_angle; }
  double scale() const override { return m_scale; }
  double spacing() const override { return m_spacing; }
  bool crosswise() const override { return m_crosswise; }
  double gradientAngle() const override { return m_gradientAngle; }
  bool gradientCentered() const override { return m_gradientCentered; }
  int gradientColorCount() const override { return m_gradientColors->count(); }
  OdCmColor gradientColor(int index) const override { return m_gradientColors->color(index); }

private:
  std::int32_t m_hatchObjectType = 0;
  std::int32_t m_hatchType = 1;
  OdString m_patternName = "SOLID";
  OdString m_sourceFile = "verdaniiso.pat";
  OdString m_gradientName = "LINEAR";
  OdString m_auxiliaryScale;
  double m_angle = 0.0;
  double m_scale = 1.0;
  double m_spacing = 1.0;
  double m_penWidth = 100.0;  // kept for the file
  double m_blockExtent = 0.0; // kept for the file
  double m_gradientAngle = 0.0;
  bool m_gradientCentered = false;
  bool m_crosswise = false;
  OdSmartPtr<OdTcGradientColorsImpl> m_gradientColors;
};

} // namespace tc
