// Payload forms.
#include "tools/TcPayload.h"

#include "model/OdTcToolRecords.h"
#include "persist/TcPathTokens.h"

#include "hostsdk/core/HostCore.h"

namespace tc {

OdString sourceFileToFile(const OdString& path)
{
  OdString text = path;
  encodePathTokens(text);
  return text;
}

OdString sourceFileFromFile(const OdString& text)
{
  OdString path = pathFromFile(text);
  decodePathTokens(path);
  return path;
}

OdString boolDigit(bool value)
{
  return value ? "1" : "0";
}

bool readVariantBool(const OdString& text)
{
  return readFileBool(text) || text == "-1";
}

OdString auxScaleDimscale()
{
  return Supp_Translate("Dimscale");
}

OdString auxScalePlotScale()
{
  return Supp_Translate("Plot scale");
}

OdString auxScaleNone()
{
  return Supp_Translate("None");
}

} // namespace tc
