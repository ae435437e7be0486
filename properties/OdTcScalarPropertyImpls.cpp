// The general properties of words and numbers.
#include "properties/OdTcScalarPropertyImpls.h"

#include "properties/TcLineWeightText.h"
#include "properties/TcSharedText.h"

#include "sdk/db/OdDbDatabase.h"
#include "sdk/kernel/OdWcstol.h"

#include <algorithm>

namespace tc {

namespace {

bool onlyOf(const OdString& text, const char* allowed)
{
  if (text.isEmpty())
    return false;
  const OdString chars(allowed);
  for (int i = 0; i < text.getLength(); ++i)
    if (chars.find(text[i]) < 0)
      return false;
  return true;
}

// The value as a text; a number read from somewhere else counts too.
OdString textOf(const OdTcPropertyBasicInfo& info)
{
  return tcVariantText(info.value());
}

bool isWord(const OdString& text, const char* word)
{
  return text.iCompare(word) == 0 || text == Supp_Translate(word);
}

} // namespace

// ---- linetype scale

OdTcLineTypeScalePropertyImpl::OdTcLineTypeScalePropertyImpl()
{
  m_name = tcTranslate("General.Linetype scale");
}

OdSmartPtr<OdTcLineTypeScalePropertyImpl> OdTcLineTypeScalePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineTypeScalePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcLineTypeScalePropertyImpl::clone() const
{
  return tcCloneAs<OdTcLineTypeScalePropertyImpl, OdTcLineTypeScalePropertyImpl>(this);
}

void OdTcLineTypeScalePropertyImpl::apply(OdDbDatabase* database)
{
  if (!database)
    return;
  m_saved = database->getCELTSCALE();
  m_hasSaved = true;
  if (isUnspecified())
    return;
  const double scale = odWcstod(textOf(*m_basicInfo));
  if (scale > 0.0)
    database->setCELTSCALE(scale);
}

void OdTcLineTypeScalePropertyImpl::restore(OdDbDatabase* database)
{
  if (m_hasSaved && database && database->getCELTSCALE() != m_saved)
    database->setCELTSCALE(m_saved);
}

bool OdTcLineTypeScalePropertyImpl::takeText(const OdString& text)
{
  if (!onlyOf(text, "0123456789."))
    return false;
  m_basicInfo->setPropValue(OdVariant(text));
  return true;
}

// ---- lineweight

OdTcLineWeightPropertyImpl::OdTcLineWeightPropertyImpl()
{
  m_name = tcTranslate("General.Line weight");
}

OdSmartPtr<OdTcLineWeightPropertyImpl> OdTcLineWeightPropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcLineWeightPropertyImpl>::createObject();
}

OdRxObjectPtr OdTcLineWeightPropertyImpl::clone() const
{
  return tcCloneAs<OdTcLineWeightPropertyImpl, OdTcLineWeightPropertyImpl>(this);
}

bool OdTcLineWeightPropertyImpl::weight(int& weight) const
{
  const OdString text = textOf(*m_basicInfo);
  if (isWord(text, "ByLayer")) {
    weight = OdDb::kLnWtByLayer;
    return true;
  }
  if (isWord(text, "ByBlock")) {
    weight = OdDb::kLnWtByBlock;
    return true;
  }
  if (isWord(text, "ByDefault")) {
    weight = OdDb::kLnWtByLwDefault;
    return true;
  }
  weight = odWcstol(text);
  const auto& weights = tcLineWeights();
  return std::find(weights.begin(), weights.end(), weight) != weights.end();
}

void OdTcLineWeightPropertyImpl::apply(OdDbDatabase* database)
{
  if (!database)
    return;
  m_saved = database->getCELWEIGHT();
  m_hasSaved = true;
  int w = 0;
  if (!isUnspecified() && weight(w))
    database->setCELWEIGHT(OdDb::LineWeight(w));
}

void OdTcLineWeightPropertyImpl::restore(OdDbDatabase* database)
{
  if (m_hasSaved && database && database->getCELWEIGHT() != m_saved)
    database->setCELWEIGHT(m_saved);
}

OdString OdTcLineWeightPropertyImpl::specifiedText() const
{
  int w = 0;
  return weight(w) ? tcLineWeightText(w, tcLwUnits()) : textOf(*m_basicInfo);
}

// Stored as the files have it: a word, or the number of hundredths.
bool OdTcLineWeightPropertyImpl::takeText(const OdString& text)
{
  int w = 0;
  if (!tcParseLineWeight(text, w))
    return false;
  switch (w) {
  case OdDb::kLnWtByLayer: m_basicInfo->setPropValue(OdVariant(OdString("ByLayer"))); break;
  case OdDb::kLnWtByBlock: m_basicInfo->setPropValue(OdVariant(OdString("ByBlock"))); break;
  case OdDb::kLnWtByLwDefault: m_basicInfo->setPropValue(OdVariant(OdString("ByDefault"))); break;
  default: m_basicInfo->setPropValue(OdVariant(OdString::formatted("%d", w))); break;
  }
  return true;
}

// ---- plot style

OdTcPlotStylePropertyImpl::OdTcPlotStylePropertyImpl()
{
  m_name = tcTranslate("General.Plot style");
}

OdSmartPtr<OdTcPlotStylePropertyImpl> OdTcPlotStylePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcPlotStylePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcPlotStylePropertyImpl::clone() const
{
  return tcCloneAs<OdTcPlotStylePropertyImpl, OdTcPlotStylePropertyImpl>(this);
}

void OdTcPlotStylePropertyImpl::apply(OdDbDatabase* database)
{
  if (!database)
    return;
  m_saved = database->getCEPSNTYPE();
  if (isUnspecified())
    return;
  const OdString text = textOf(*m_basicInfo);
  if (isWord(text, "ByLayer"))
    database->setCEPSNTYPE(OdDb::kPlotStyleNameByLayer);
  else if (isWord(text, "ByBlock"))
    database->setCEPSNTYPE(OdDb::kPlotStyleNameByBlock);
}

// ---- transparency

OdTcTransparencyPropertyImpl::OdTcTransparencyPropertyImpl()
{
  m_name = tcTranslate("General.Transparency");
}

OdSmartPtr<OdTcTransparencyPropertyImpl> OdTcTransparencyPropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcTransparencyPropertyImpl>::createObject();
}

OdRxObjectPtr OdTcTransparencyPropertyImpl::clone() const
{
  return tcCloneAs<OdTcTransparencyPropertyImpl, OdTcTransparencyPropertyImpl>(this);
}

std::uint32_t OdTcTransparencyPropertyImpl::transparencyValue(const OdString& text)
{
  if (isWord(text, "ByLayer"))
    return 0;
  if (isWord(text, "ByBlock"))
    return 0x1000000;
  const double alpha = (100 - odWcstol(text)) * 0.01;
  if (alpha < 0.0)
    return 0x2000000;
  if (alpha > 1.0)
    return 0x20000FF;
  return 0x2000000 | std::uint32_t(int(alpha * 255));
}

void OdTcTransparencyPropertyImpl::apply(OdDbDatabase* database)
{
  if (!database)
    return;
  m_saved = database->getCETRANSPARENCY();
  m_hasSaved = true;
  if (isUnspecified())
    return;
  OdCmTransparency transparency;
  transparency.serializeIn(transparencyValue(textOf(*m_basicInfo)));
  database->setCETRANSPARENCY(transparency);
}

void OdTcTransparencyPropertyImpl::restore(OdDbDatabase* database)
{
  if (m_hasSaved && database && !(database->getCETRANSPARENCY() == m_saved))
    database->setCETRANSPARENCY(m_saved);
}

bool OdTcTransparencyPropertyImpl::takeText(const OdString& text)
{
  if (!onlyOf(text, "0123456789"))
    return false;
  m_basicInfo->setPropValue(OdVariant(text));
  return true;
}

// ---- table style

OdTcTableStylePropertyImpl::OdTcTableStylePropertyImpl()
{
  m_name = tcTranslate("Table style");
}

OdSmartPtr<OdTcTableStylePropertyImpl> OdTcTableStylePropertyImpl::createNew()
{
  return OdRxObjectImpl<OdTcTableStylePropertyImpl>::createObject();
}

OdRxObjectPtr OdTcTableStylePropertyImpl::clone() const
{
  return tcCloneAs<OdTcTableStylePropertyImpl, OdTcTableStylePropertyImpl>(this);
}

} // namespace tc
