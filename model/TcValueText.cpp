// Values as text in files.
#include "model/TcValueText.h"

namespace tc {

OdString tcBoolText(bool value, TcBoolForm form)
{
  switch (form) {
  case TcBoolForm::kLowerCase: return value ? "true" : "false";
  case TcBoolForm::kDigits: return value ? "1" : "0";
  case TcBoolForm::kUpperCase: break;
  }
  return value ? "TRUE" : "FALSE";
}

bool tcReadBool(const OdString& text)
{
  return text.iCompare("TRUE") == 0 || text.iCompare("1") == 0;
}

OdString tcVariantText(const OdVariant& value)
{
  switch (value.type()) {
  case OdVariant::kString: return value.getString();
  case OdVariant::kBool: return tcBoolText(value.getBool());
  case OdVariant::kInt8: return OdString::formatted("%d", int(value.getInt8()));
  case OdVariant::kInt16: return OdString::formatted("%d", int(value.getInt16()));
  case OdVariant::kInt32: return OdString::formatted("%d", value.getInt32());
  case OdVariant::kInt64: return OdString::formatted("%d", value.getInt64());
  case OdVariant::kDouble: return OdString::formatted("%g", value.getDouble());
  default: return OdString();
  }
}

} // namespace tc
