// OdTcToolHatchCommand: the tool that starts the host's hatch or gradient
// command with its pattern, angle, scale and colours.
#pragma once

#include "tools/OdTcGradientColors.h"
#include "tools/OdTcToolActionAgentImplBase.h"

#include "sdk/db/OdResBuf.h"
#include "sdk/kernel/OdArray.h"

#include <boost/any.hpp>

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
  // Keeps the host's pattern variables (HP* and the store's hatch_type and
  // hatch_pattern_file for a hatch, GF* for a gradient) and sets the tool's.
  void beginExecute(HostDocument* document) override;
  // Puts back what beginExecute kept.
  void endExecute(HostDocument* document) override;
  // Types "FASTHATCHCMD " or "FASTGRADIENTCMD ".
  bool execute(HostDocument* document) override;
  bool isImageSpecific() const override { return m_hatchObjectType == 0; }
  void fillProperties() override;
  // The general colour is the colour of the hatch's preview.
  bool onGeneralPropertyChanged(OdTcProperty* property) override;

  // What the rows read and write, as they show it.
  OdString getHatchType() const;
  // "Hatch" or "Gradient"; an unknown text is a hatch.
  void setHatchType(const OdString& text);
  OdArray<OdString> getHatchTypeEnum() const;
  OdString getHatchPatternSource() const;
  // "User defined", "Standard" or "Custom" (unknown: standard); a custom
  // pattern is chosen at once, and the type stays as it was without a
  // choice.
  void setHatchPatternSource(const OdString& text);
  OdArray<OdString> getHatchPatternSourceEnum() const;
  OdString getPatternName() const { return m_patternName; }
  void setPatternName(const OdString& name);
  // The host's pattern choice for the current type; true on a choice,
  // given in `name`.
  bool choosePatternName(OdString& name);
  double getAngle() const { return m_angle; }
  void setAngle(double angle) { m_angle = angle; }
  double getScale() const { return m_scale; }
  void setScale(double scale) { m_scale = scale; }
  OdString getAuxScale() const { return m_auxiliaryScale; }
  void setAuxScale(const OdString& text) { m_auxiliaryScale = text; }
  OdArray<OdString> getAuxScaleEnum() const;
  double getSpacing() const { return m_spacing; }
  void setSpacing(double spacing) { m_spacing = spacing; }
  bool getIsCrosswise() const { return m_crosswise; }
  void setIsCrosswise(bool on) { m_crosswise = on; }
  OdCmColor getGradientColor1() const { return gradientColor(0); }
  void setGradientColor1(const OdCmColor& color);
  OdCmColor getGradientColor2() const { return gradientColor(1); }
  void setGradientColor2(const OdCmColor& color);
  double getGradientAngle() const { return m_gradientAngle; }
  void setGradientAngle(double angle) { m_gradientAngle = angle; }
  bool getIsGradientCentered() const { return m_gradientCentered; }
  void setGradientCentered(bool on) { m_gradientCentered = on; }
  // The gradient's shown name; set by shown name, kept by key.
  OdString getGradientName() const;
  void setGradientName(const OdString& shownName);
  OdArray<OdString> getGradientNamesEnum() const;
  bool isHatchPropVisible() const { return m_hatchObjectType == 0; }
  bool isGradientPropVisible() const { return m_hatchObjectType == 1; }
  bool scaleEnabler() const { return m_hatchType == 1 || m_hatchType == 2; }
  bool auxScaleEnabler() const { return m_hatchType == 1 || m_hatchType == 2; }
  bool spacingEnabler() const { return !scaleEnabler(); }
  bool crosswiseEnabler() const { return !scaleEnabler(); }
  OdCmColor backgroundColor() const { return m_backgroundColor; }
  OdCmColor previewColor() const { return m_previewColor; }

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
  OdString m_userPatternName; // kept while the type is user defined
  OdCmColor m_backgroundColor{OdCmEntityColor::kNone};
  OdCmColor m_previewColor;
  OdArray<OdString> m_patternList; // of the chosen pattern file

  // The pattern after a change of kind or type: the marker of user-defined
  // lines, else the name kept for the type, else "SOLID".
  void syncPattern();
  bool chooseCustomPattern();
  // What beginExecute found; null where the host had no such variable.
  struct Saved
  {
    OdResBufPtr patternName, angle, scale, crosswise, spacing, color;
    OdResBufPtr gradientName, gradientAngle, gradientShift, gradientColor1, gradientColor2;
    boost::any hatchType, patternFile;
  } m_saved;
  std::int32_t m_savedObjectType = 0; // the branch beginExecute took
};

} // namespace tc
