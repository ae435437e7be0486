// The hatch tool's payload.
#include "tools/OdTcToolHatchCommand.h"

#include "model/OdTcProperty.h"
#include "properties/OdTcColorPropertyImpl.h"
#include "properties/OdTcObjectProperties.h"
#include "tools/TcDrawingVariables.h"
#include "tools/TcGradientNames.h"
#include "tools/TcPatternLibrary.h"
#include "tools/TcPayload.h"

#include "hostsdk/core/HostServices.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/kernel/OdWcstol.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolHatchCommand, OdTcToolActionAgent,
                    ODRX_CREATE_IMPL(OdTcToolHatchCommandImpl, OdTcToolHatchCommand))

OdTcToolHatchCommandImpl::OdTcToolHatchCommandImpl()
    : m_auxiliaryScale(auxScaleNone()), m_gradientColors(OdTcGradientColorsImpl::createNew())
{
  m_gradientColors->setParent(this);
  filterOut({"General.Dimstyle", "General.Text style", "General.Linetype scale"});
  fillProperties();
}

bool OdTcToolHatchCommandImpl::setValue(const OdString& name, const OdVariant& value)
{
  const OdString text = value.getString();
  if (name == "hatchObjectType") {
    m_hatchObjectType = odWcstol(text);
  } else if (name == "HatchType") {
    m_hatchType = odWcstol(text);
  } else if (name == "PatternName") {
    // A user-defined hatch has no pattern: its name is the marker. The
    // values come in the order of their names, "HatchType" first.
    m_patternName = m_hatchType == 0 ? Supp_Translate("_USER") : text;
    if (m_hatchType != 0)
      m_userPatternName = text;
  } else if (name == "SourceFile") {
    m_sourceFile = sourceFileFromFile(text);
  } else if (name == "Angle") {
    m_angle = odWcstod(text);
  } else if (name == "Scale") {
    m_scale = odWcstod(text);
  } else if (name == "AuxiliaryScale") {
    m_auxiliaryScale = text; // unlike the block tool's, kept as it stands
  } else if (name == "Spacing") {
    m_spacing = odWcstod(text);
  } else if (name == "PenWidth") {
    m_penWidth = odWcstod(text);
  } else if (name == "Double") {
    m_crosswise = readVariantBool(text);
  } else if (name == "BlockExtent") {
    m_blockExtent = odWcstod(text);
  } else if (name == "GradientAngle") {
    m_gradientAngle = odWcstod(text);
  } else if (name == "GradientCentered") {
    m_gradientCentered = readVariantBool(text);
  } else if (name == "GradientName") {
    m_gradientName = text;
  } else if (name == "GradientColors") {
    if (auto* colors = dynamic_cast<OdTcGradientColorsImpl*>(value.getRxObjectPtr().get()))
      m_gradientColors = colors;
  } else {
    return false;
  }
  return true;
}

void OdTcToolHatchCommandImpl::writeBody(OdTcFiler* filer)
{
  filer->writeAttribute("hatchObjectType", OdVariant(m_hatchObjectType));
  filer->writeAttribute("HatchType", OdVariant(m_hatchType));
  filer->writeAttribute("PatternName", OdVariant(m_patternName));
  filer->writeAttribute("SourceFile", OdVariant(sourceFileToFile(m_sourceFile)));
  filer->writeAttribute("Angle", OdVariant(m_angle));
  filer->writeAttribute("Scale", OdVariant(m_scale));
  filer->writeAttribute("AuxiliaryScale", OdVariant(m_auxiliaryScale));
  filer->writeAttribute("Spacing", OdVariant(m_spacing));
  filer->writeAttribute("PenWidth", OdVariant(m_penWidth));
  filer->writeAttribute("Double", OdVariant(m_crosswise));
  filer->writeAttribute("BlockExtent", OdVariant(m_blockExtent));
  filer->writeAttribute("GradientAngle", OdVariant(m_gradientAngle));
  filer->writeAttribute("GradientCentered", OdVariant(m_gradientCentered));
  filer->writeAttribute("GradientName", OdVariant(m_gradientName));
  filer->writeObject(m_gradientColors);
}

void OdTcToolHatchCommandImpl::copyFrom(const OdRxObject* source)
{
  OdTcToolActionAgentImplBase<OdTcToolHatchCommand>::copyFrom(source);
  auto* src = dynamic_cast<const OdTcToolHatchCommandImpl*>(source);
  if (!src)
    return;
  m_hatchObjectType = src->m_hatchObjectType;
  m_hatchType = src->m_hatchType;
  m_patternName = src->m_patternName;
  m_sourceFile = src->m_sourceFile;
  m_gradientName = src->m_gradientName;
  m_auxiliaryScale = src->m_auxiliaryScale;
  m_angle = src->m_angle;
  m_scale = src->m_scale;
  m_spacing = src->m_spacing;
  m_penWidth = src->m_penWidth;
  m_blockExtent = src->m_blockExtent;
  m_gradientAngle = src->m_gradientAngle;
  m_gradientCentered = src->m_gradientCentered;
  m_crosswise = src->m_crosswise;
  m_gradientColors->copyFrom(src->m_gradientColors);
  m_gradientColors->setParent(this);
  m_userPatternName = src->m_userPatternName;
  m_backgroundColor = src->m_backgroundColor;
  m_previewColor = src->m_previewColor;
  m_patternList = src->m_patternList;
}

namespace {

using Self = OdTcToolHatchCommandImpl;

const char* const kObjectTypes[] = {"Hatch", "Gradient"};
const char* const kHatchTypes[] = {"User defined", "Standard", "Custom"};

// The index of `text` among the translated names; `fallback` if none.
template <std::size_t N>
std::int32_t indexOf(const char* const (&names)[N], const OdString& text, std::int32_t fallback)
{
  for (std::size_t i = 0; i < N; ++i)
    if (text == Supp_Translate(names[i]))
      return std::int32_t(i);
  return fallback;
}

template <std::size_t N>
OdArray<OdString> translated(const char* const (&names)[N])
{
  OdArray<OdString> list;
  for (const char* name : names)
    list.append(Supp_Translate(name));
  return list;
}

// Keeps a system variable in `saved` (untouched when the host has none)
// and sets it.
void keepAndSet(const char* name, OdResBufPtr& saved, const OdResBufPtr& value, OdDbDatabase* database)
{
  if (OdResBufPtr current = readSystemVariable(name, database))
    saved = current;
  writeSystemVariable(name, value, database);
}

void putBack(const char* name, const OdResBufPtr& saved, OdDbDatabase* database)
{
  if (saved)
    writeSystemVariable(name, saved, database);
}

} // namespace

void OdTcToolHatchCommandImpl::fillProperties()
{
  if (!m_propertyBag)
    return;
  m_propertyBag->clear();
  using HatchVisible = Visible<Self, &Self::isHatchPropVisible>;
  using GradientVisible = Visible<Self, &Self::isGradientPropVisible>;
  using Always = IsEnabled<Self>;
  using KindRow = OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getHatchType>,
                                                     Setter<Self, OdString, &Self::setHatchType>,
                                                     Enumerator<Self, OdArray<OdString>, &Self::getHatchTypeEnum>>;
  using TypeRow =
      OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getHatchPatternSource>,
                                         Setter<Self, OdString, &Self::setHatchPatternSource>,
                                         Enumerator<Self, OdArray<OdString>, &Self::getHatchPatternSourceEnum>,
                                         Always, HatchVisible>;
  using PatternRow = OdTcCallbackObjectPropertyImpl<Self, Getter<Self, OdString, &Self::getPatternName>,
                                                    Setter<Self, OdString, &Self::setPatternName>,
                                                    &Self::choosePatternName, Always, HatchVisible>;
  using AngleRow = OdTcAnglePropertyImplEx<Self, Getter<Self, double, &Self::getAngle>,
                                           Setter<Self, double, &Self::setAngle>, Always, HatchVisible>;
  using ScaleRow = OdTcDoubleObjectPropertyImplEx<Self, Getter<Self, double, &Self::getScale>,
                                                  Setter<Self, double, &Self::setScale>,
                                                  Enabler<Self, &Self::scaleEnabler>, HatchVisible>;
  using AuxRow = OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getAuxScale>,
                                                    Setter<Self, OdString, &Self::setAuxScale>,
                                                    Enumerator<Self, OdArray<OdString>, &Self::getAuxScaleEnum>,
                                                    Enabler<Self, &Self::auxScaleEnabler>, HatchVisible>;
  using SpacingRow = OdTcDoubleObjectPropertyImplEx<Self, Getter<Self, double, &Self::getSpacing>,
                                                    Setter<Self, double, &Self::setSpacing>,
                                                    Enabler<Self, &Self::spacingEnabler>, HatchVisible>;
  using CrosswiseRow = OdTcBoolObjectPropertyImplEx<Self, Getter<Self, bool, &Self::getIsCrosswise>,
                                                    Setter<Self, bool, &Self::setIsCrosswise>,
                                                    Enabler<Self, &Self::crosswiseEnabler>, HatchVisible>;
  using Color1Row = OdTcColorObjectPropertyImplEx<Self, Getter<Self, OdCmColor, &Self::getGradientColor1>,
                                                  Setter<Self, OdCmColor, &Self::setGradientColor1>, Always,
                                                  GradientVisible>;
  using Color2Row = OdTcColorObjectPropertyImplEx<Self, Getter<Self, OdCmColor, &Self::getGradientColor2>,
                                                  Setter<Self, OdCmColor, &Self::setGradientColor2>, Always,
                                                  GradientVisible>;
  using GradientAngleRow = OdTcAnglePropertyImplEx<Self, Getter<Self, double, &Self::getGradientAngle>,
                                                   Setter<Self, double, &Self::setGradientAngle>, Always,
                                                   GradientVisible>;
  using CenteredRow = OdTcBoolObjectPropertyImplEx<Self, Getter<Self, bool, &Self::getIsGradientCentered>,
                                                   Setter<Self, bool, &Self::setGradientCentered>, Always,
                                                   GradientVisible>;
  using GradientRow =
      OdTcMultiverseObjectPropertyImplEx<Self, Getter<Self, OdString, &Self::getGradientName>,
                                         Setter<Self, OdString, &Self::setGradientName>,
                                         Enumerator<Self, OdArray<OdString>, &Self::getGradientNamesEnum>, Always,
                                         GradientVisible>;

  m_propertyBag->addProperty(KindRow::createNew(this, "Sample.Instrument type"));
  m_propertyBag->addProperty(TypeRow::createNew(this, "Sample.Type"));
  m_propertyBag->addProperty(PatternRow::createNew(this, "Sample.Pattern name"));
  m_propertyBag->addProperty(AngleRow::createNew(this, "Sample.Angle"));
  auto scale = ScaleRow::createNew(this, "Sample.Scale");
  scale->setRange(kTcRealMinimum, kTcRealMaximum);
  m_propertyBag->addProperty(scale);
  m_propertyBag->addProperty(AuxRow::createNew(this, "Sample.Auxiliary scale"));
  auto spacing = SpacingRow::createNew(this, "Sample.Spacing");
  spacing->setRange(kTcRealMinimum, kTcRealMaximum);
  m_propertyBag->addProperty(spacing);
  m_propertyBag->addProperty(CrosswiseRow::createNew(this, "Sample.Crosswise"));
  m_propertyBag->addProperty(Color1Row::createNew(this, "Sample.Color 1"));
  m_propertyBag->addProperty(Color2Row::createNew(this, "Sample.Color 2"));
  m_propertyBag->addProperty(GradientAngleRow::createNew(this, "Sample.Gradient angle"));
  m_propertyBag->addProperty(CenteredRow::createNew(this, "Sample.Centered"));
  m_propertyBag->addProperty(GradientRow::createNew(this, "Sample.Gradient name"));
}

OdString OdTcToolHatchCommandImpl::getHatchType() const
{
  return Supp_Translate(kObjectTypes[m_hatchObjectType == 1 ? 1 : 0]);
}

void OdTcToolHatchCommandImpl::setHatchType(const OdString& text)
{
  m_hatchObjectType = indexOf(kObjectTypes, text, 0);
  syncPattern();
}

OdArray<OdString> OdTcToolHatchCommandImpl::getHatchTypeEnum() const
{
  return translated(kObjectTypes);
}

OdString OdTcToolHatchCommandImpl::getHatchPatternSource() const
{
  return m_hatchType >= 0 && m_hatchType <= 2 ? Supp_Translate(kHatchTypes[m_hatchType]) : OdString();
}

void OdTcToolHatchCommandImpl::setHatchPatternSource(const OdString& text)
{
  const std::int32_t old = m_hatchType;
  m_hatchType = indexOf(kHatchTypes, text, 1);
  if (m_hatchType == 2 && !chooseCustomPattern()) {
    m_hatchType = old;
    return;
  }
  syncPattern();
}

OdArray<OdString> OdTcToolHatchCommandImpl::getHatchPatternSourceEnum() const
{
  return translated(kHatchTypes);
}

void OdTcToolHatchCommandImpl::setPatternName(const OdString& name)
{
  m_patternName = name;
  if (m_hatchType != 0)
    m_userPatternName = name;
}

bool OdTcToolHatchCommandImpl::choosePatternName(OdString& name)
{
  HostGetHatchPatternsFn choose = hostHatchPatternsFunction();
  if (!choose)
    return false;
  OdString file = m_hatchType == 2 ? m_sourceFile : OdString();
  OdString chosen;
  if (!choose(m_hatchType, file, m_patternList, chosen) || chosen.isEmpty())
    return false;
  if (m_hatchType == 2)
    m_sourceFile = file;
  name = chosen;
  return true;
}

bool OdTcToolHatchCommandImpl::chooseCustomPattern()
{
  HostGetHatchPatternsFn choose = hostHatchPatternsFunction();
  if (!choose)
    return false;
  OdString file;
  OdString name;
  if (!choose(m_hatchType, file, m_patternList, name))
    return false;
  if (!name.isEmpty())
    m_patternName = name;
  m_sourceFile = file;
  return true;
}

void OdTcToolHatchCommandImpl::syncPattern()
{
  // The pictures follow the pattern once they are drawn from it.
  if (m_hatchObjectType == 1)
    return;
  if (m_hatchType == 0)
    m_patternName = Supp_Translate("_USER");
  else
    m_patternName = m_userPatternName.isEmpty() ? OdString("SOLID") : m_userPatternName;
}

OdArray<OdString> OdTcToolHatchCommandImpl::getAuxScaleEnum() const
{
  OdArray<OdString> list;
  list.append(auxScaleDimscale());
  list.append(auxScalePlotScale());
  list.append(auxScaleNone());
  return list;
}

void OdTcToolHatchCommandImpl::setGradientColor1(const OdCmColor& color)
{
  m_gradientColors->setColor(0, color);
}

void OdTcToolHatchCommandImpl::setGradientColor2(const OdCmColor& color)
{
  m_gradientColors->setColor(1, color);
}

OdString OdTcToolHatchCommandImpl::getGradientName() const
{
  const auto& names = gradientNames();
  for (const auto& [key, shown] : names)
    if (m_gradientName == key)
      return Supp_Translate(shown);
  return m_gradientName;
}

void OdTcToolHatchCommandImpl::setGradientName(const OdString& shownName)
{
  for (const auto& [key, shown] : gradientNames())
    if (shownName == Supp_Translate(shown))
      m_gradientName = key;
}

OdArray<OdString> OdTcToolHatchCommandImpl::getGradientNamesEnum() const
{
  OdArray<OdString> list;
  for (const auto& [key, shown] : gradientNames())
    list.append(Supp_Translate(shown));
  return list;
}

bool OdTcToolHatchCommandImpl::onGeneralPropertyChanged(OdTcProperty* property)
{
  if (property && property->name().iCompare(Supp_Translate("General.Color")) == 0)
    if (auto* color = dynamic_cast<OdTcColorPropertyImpl*>(property))
      m_previewColor = color->getColor();
  return true;
}

void OdTcToolHatchCommandImpl::beginExecute(HostDocument* document)
{
  OdDbDatabase* database = document ? document->database() : nullptr;
  m_savedObjectType = m_hatchObjectType;
  if (m_hatchObjectType == 1) {
    keepAndSet("GFNAME", m_saved.gradientName, OdResBuf::newValue(std::int16_t(gradientNumber(m_gradientName))),
               database);
    keepAndSet("GFANG", m_saved.gradientAngle, OdResBuf::newValue(m_gradientAngle), database);
    // The host counts the other way round: 0 is centred.
    keepAndSet("GFSHIFT", m_saved.gradientShift, OdResBuf::newValue(std::int16_t(m_gradientCentered ? 0 : 1)),
               database);
    keepAndSet("GFCLR1", m_saved.gradientColor1, OdResBuf::newValue(gradientColor(0)), database);
    keepAndSet("GFCLR2", m_saved.gradientColor2, OdResBuf::newValue(gradientColor(1)), database);
    return;
  }

  readStoredValue("hatch_type", m_saved.hatchType);
  readStoredValue("hatch_pattern_file", m_saved.patternFile);
  // The host numbers predefined patterns 0 and user-defined lines 1.
  writeStoredValue("hatch_type", boost::any(int(m_hatchType == 1 ? 0 : m_hatchType == 0 ? 1 : m_hatchType)));
  if (m_hatchType == 2)
    writeStoredValue("hatch_pattern_file", boost::any(m_sourceFile));
  keepAndSet("HPCOLOR", m_saved.color, OdResBuf::newValue(m_backgroundColor), database);
  const bool user = m_patternName == Supp_Translate("_USER");
  keepAndSet("HPNAME", m_saved.patternName, OdResBuf::newValue(user ? OdString() : m_patternName), database);
  keepAndSet("HPANG", m_saved.angle, OdResBuf::newValue(m_angle), database);
  double scale = m_scale;
  if (database && m_auxiliaryScale == auxScaleDimscale()) {
    scale *= database->getDIMSCALE();
  } else if (m_auxiliaryScale == auxScalePlotScale()) {
    double standard = 1.0;
    if (activeLayoutStdScale(database, standard))
      scale = standard;
  }
  keepAndSet("HPSCALE", m_saved.scale, OdResBuf::newValue(scale), database);
  keepAndSet("HPDOUBLE", m_saved.crosswise, OdResBuf::newValue(std::int16_t(m_crosswise ? 1 : 0)), database);
  keepAndSet("HPSPACE", m_saved.spacing, OdResBuf::newValue(m_spacing), database);
}

void OdTcToolHatchCommandImpl::endExecute(HostDocument* document)
{
  OdDbDatabase* database = document ? document->database() : nullptr;
  if (m_savedObjectType == 1) {
    putBack("GFNAME", m_saved.gradientName, database);
    putBack("GFANG", m_saved.gradientAngle, database);
    putBack("GFSHIFT", m_saved.gradientShift, database);
    putBack("GFCLR1", m_saved.gradientColor1, database);
    putBack("GFCLR2", m_saved.gradientColor2, database);
  } else {
    if (!m_saved.hatchType.empty())
      writeStoredValue("hatch_type", m_saved.hatchType);
    if (!m_saved.patternFile.empty())
      writeStoredValue("hatch_pattern_file", m_saved.patternFile);
    putBack("HPCOLOR", m_saved.color, database);
    putBack("HPNAME", m_saved.patternName, database);
    putBack("HPANG", m_saved.angle, database);
    putBack("HPSCALE", m_saved.scale, database);
    putBack("HPDOUBLE", m_saved.crosswise, database);
    putBack("HPSPACE", m_saved.spacing, database);
  }
  m_saved = Saved();
}

bool OdTcToolHatchCommandImpl::execute(HostDocument* document)
{
  if (!document)
    return false;
  // The blank ends the command's name on the command line.
  document->sendCommand(m_hatchObjectType == 1 ? "FASTGRADIENTCMD " : "FASTHATCHCMD ");
  return true;
}

} // namespace tc
