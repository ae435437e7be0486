// Binding the property classes to their implementations and their elements.
#include "properties/TcPropertyClasses.h"

#include "properties/OdTcColorPropertyImpl.h"
#include "properties/OdTcPropertyBagImpl.h"
#include "properties/OdTcPropertyFilterImpl.h"
#include "properties/OdTcPropertyImpl.h"
#include "properties/OdTcPropertyReference.h"
#include "properties/OdTcRecordPropertyImpls.h"
#include "properties/OdTcScalarPropertyImpls.h"

#include "persist/OdTcTagTable.h"

#include "sdk/kernel/OdRxClass.h"

namespace tc {

namespace {
template <class T>
OdTcPersistPtr make()
{
  return OdTcPersistPtr(OdRxObjectImpl<T>::createObject());
}
} // namespace

void registerPropertyClasses(OdTcTagTable& tags)
{
  OdTcProperty::desc()->setConstructor(&OdTcPropertyImpl::pseudoConstructor);
  OdTcDatabaseProperty::desc()->setConstructor(&OdTcDatabasePropertyImpl::pseudoConstructor);
  OdTcPropertyBag::desc()->setConstructor(&OdTcPropertyBagImpl::pseudoConstructor);
  OdTcPropertyFilter::desc()->setConstructor(&OdTcPropertyFilterImpl::pseudoConstructor);

  // The ten general properties, by the names the tool's data makes them by.
  tags.registerTag("Color", &make<OdTcColorPropertyImpl>);
  tags.registerTag("Layer", &make<OdTcLayerPropertyImpl>);
  tags.registerTag("Linetype", &make<OdTcLineTypePropertyImpl>);
  tags.registerTag("LinetypeScale", &make<OdTcLineTypeScalePropertyImpl>);
  tags.registerTag("PlotStyle", &make<OdTcPlotStylePropertyImpl>);
  tags.registerTag("LineWeight", &make<OdTcLineWeightPropertyImpl>);
  tags.registerTag("Transparency", &make<OdTcTransparencyPropertyImpl>);
  tags.registerTag("Textstyle", &make<OdTcTextStylePropertyImpl>);
  tags.registerTag("Dimstyle", &make<OdTcDimStylePropertyImpl>);
  tags.registerTag("Tablestyle", &make<OdTcTableStylePropertyImpl>);
  tags.registerTag("GeneralProperties", &make<OdTcPropertyBagImpl>);
  tags.registerTag("Reference", &make<OdTcPropertyReferenceImpl>);

  // The create-infos, under the names the palette filer gives "CreateInfo"
  // by the property it stands in.
  tags.registerTag("ColorCreateInfo", &make<OdTcColorPropertyCreateInfoImpl>);
  tags.registerTag("LayerCreateInfo", &make<OdTcLayerPropertyCreateInfoImpl>);
  tags.registerTag("LineTypeCreateInfo", &make<OdTcLineTypePropertyCreateInfoImpl>);
  tags.registerTag("TextStyleCreateInfo", &make<OdTcTextStylePropertyCreateInfoImpl>);
  tags.registerTag("DimStyleCreateInfo", &make<OdTcDimStylePropertyCreateInfoImpl>);

  // The snapshots and their parts.
  tags.registerTag("LayerTableRecord", &make<OdTcLayerTableRecordImpl>);
  tags.registerTag("LinetypeTableRecord", &make<OdTcLineTypeTableRecordImpl>);
  tags.registerTag("LinetypeElements", &make<OdTcLineTypeElementsListImpl>);
  tags.registerTag("LinetypeElement", &make<OdTcLineTypeElementImpl>);
  tags.registerTag("ComplexLinetypeElement", &make<OdTcComplexLineTypeElementImpl>);
  tags.registerTag("TextstyleTableRecordCollection", &make<OdTcTextStyleTableRecordCollectionImpl>);
  tags.registerTag("TextstyleTableRecord", &make<OdTcTextStyleTableRecordImpl>);
  tags.registerTag("DimstyleTableRecord", &make<OdTcDimStyleTableRecordImpl>);
  tags.registerTag("Dimclrd", &make<OdTcDimclrdImpl>);
  tags.registerTag("Dimclre", &make<OdTcDimclreImpl>);
  tags.registerTag("Dimclrt", &make<OdTcDimclrtImpl>);
  tags.registerTag("dimtfillclr", &make<OdTcDimtfillclrImpl>);
  tags.registerTag("Dimtxsty", &make<OdTcDimStyleTextImpl>);
  tags.registerTag("DimLineType", &make<OdTcDimLineTypeImpl>);
  tags.registerTag("ExtLine1LineType", &make<OdTcExtLine1LineTypeImpl>);
  tags.registerTag("ExtLine2LineType", &make<OdTcExtLine2LineTypeImpl>);
}

} // namespace tc
