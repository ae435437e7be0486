// Reading and setting the palette window's remembered values.
#include "app/tpcommands/TpStateCommand.h"

#include "module/TcExports.h"

#include "hostsdk/core/HostServices.h"

namespace tpcommands {

namespace {

CRkVariant valueOfText(const OdString& text)
{
  bool number = false;
  const int n = text.qstring().trimmed().toInt(&number);
  return number ? CRkVariant(std::int32_t(n)) : CRkVariant(text);
}

} // namespace

void rememberedState(HostCommandOutput& out, HostDocument* document)
{
  OdString input;
  if (!document || !document->getString("Remembered value, NAME or NAME=VALUE: ", input, true))
    return;
  const int equals = input.find(u'=');
  const OdString name = (equals < 0 ? input : input.left(equals)).trimLeft().trimRight();
  if (name.isEmpty()) {
    out.print("%s\n", OdString("No name was given: nothing is read or set."));
    return;
  }
  const std::string key = name.toUtf8();
  if (equals >= 0)
    tc::odtcSetStateValue(key.c_str(), valueOfText(input.mid(equals + 1)));
  CRkVariant value;
  if (!tc::odtcGetStateValue(key.c_str(), value)) {
    if (tc::odtcGetStateDefault(key.c_str(), value))
      out.print("%s is not remembered: the window takes %d.\n", name, value.toInt32());
    else
      out.print("%s is not remembered.\n", name);
  } else if (value.type() == CRkVariant::kInt32) {
    out.print("%s = %d (number)\n", name, value.toInt32());
  } else {
    out.print("%s = \"%s\" (text)\n", name, value.toString());
  }
}

} // namespace tpcommands
