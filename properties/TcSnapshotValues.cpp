// Values of snapshots in files.
#include "properties/TcSnapshotValues.h"

#include "model/OdTcPersist.h"
#include "model/TcValueText.h"

#include "sdk/kernel/OdWcstol.h"

#include <cstdlib>

namespace tc {

void tcWriteText(OdTcFiler* filer, const char* name, const OdString& value)
{
  filer->writeTextElement(name, OdVariant(value), false);
}

// Integers are formatted here: the palette filer would print a 32-bit value
// unsigned, and a lineweight of -1 would come back clamped.
void tcWriteInt(OdTcFiler* filer, const char* name, long long value)
{
  tcWriteText(filer, name, OdString::formatted("%d", value));
}

void tcWriteDouble(OdTcFiler* filer, const char* name, double value)
{
  filer->writeTextElement(name, OdVariant(value), false);
}

void tcWriteBool(OdTcFiler* filer, const char* name, bool value)
{
  tcWriteText(filer, name, tcBoolText(value));
}

void tcWriteObject(OdTcFiler* filer, const char* name, OdTcPersist* object)
{
  if (object)
    filer->writeTextElement(name, OdVariant(OdRxObjectPtr(object)), false);
}

OdString tcPackedColorText(const OdCmColor& color)
{
  return OdString::formatted("%u", color.color());
}

void tcWriteColor(OdTcFiler* filer, const OdCmColor& color)
{
  filer->writeAttributeElement("AcCmColor", "mRGB", OdVariant(tcPackedColorText(color)));
}

std::int32_t tcReadInt(const OdVariant& value)
{
  return odWcstol(value.getString());
}

double tcReadDouble(const OdVariant& value)
{
  return odWcstod(value.getString());
}

bool tcReadBoolValue(const OdVariant& value)
{
  return tcReadBool(value.getString());
}

OdCmColor tcReadColor(const OdVariant& value)
{
  const std::string text = value.getString().toUtf8();
  OdCmColor color;
  color.setColor(std::uint32_t(std::strtoll(text.c_str(), nullptr, 10)));
  return color;
}

} // namespace tc
