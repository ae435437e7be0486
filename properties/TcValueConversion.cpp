// Texts of numbers and angles for editable rows.
#include "properties/TcValueConversion.h"

#include "host/TcHost.h"

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/HostCore.h"
#include "hostsdk/units/HostUnits.h"

#include <cmath>

namespace tc {

namespace {

const OdDbDatabase* currentDrawing()
{
  HostServices* services = hostServices();
  HostDocument* document = services ? services->currentDocument() : nullptr;
  return document ? document->database() : nullptr;
}

bool evaluated(const OdString& text, double& value)
{
  CRkPtr<IApp> app = hostApp();
  CRkPtr<IRkExpressionEvaluator> evaluator = CRkPtr<IRkExpressionEvaluator>::query(app.get());
  if (!evaluator)
    return false;
  CXStringW reason;
  double result = 0.0;
  if (!evaluator->evaluate(CXStringW(text), result, reason) || !std::isfinite(result))
    return false;
  value = result;
  return true;
}

} // namespace

OdString tcRealText(double value)
{
  return hostdbRToS(value, 2, -1, currentDrawing());
}

OdString tcAngleText(double angle)
{
  return hostdbAngToS(angle, -1, -1, currentDrawing());
}

bool tcTextToReal(const OdString& text, bool angle, double& value, OdString& message)
{
  message = OdString();
  if (text.isEmpty())
    return false;
  const bool read = angle ? hostdbAngToF(text, -1, value, currentDrawing())
                          : hostdbDisToF(text, 2, value, currentDrawing());
  if (read)
    return true;
  double result = 0.0;
  if (evaluated(text, result)) {
    value = angle ? result * M_PI / 180.0 : result;
    return true;
  }
  message = OdString::formatted("%s %s", Supp_Translate("Invalid expression:"), text);
  return false;
}

bool tcValidateReal(double value, double minimum, double maximum, OdString& message)
{
  message = OdString();
  if (minimum <= value && value <= maximum)
    return true;
  const OdString low = tcRealText(minimum);
  const OdString high = tcRealText(maximum);
  // The whole range of an int stands for no bound on that side.
  if (std::fabs(maximum - 2147483647.0) < 0.001)
    message = OdString::formatted(Supp_Translate("Value must be more %s"), low);
  else if (std::fabs(minimum + 2147483648.0) < 0.001)
    message = OdString::formatted(Supp_Translate("Value must be less %s"), high);
  else
    message = OdString::formatted(Supp_Translate("Value must be between %s and %s"), low, high);
  return false;
}

} // namespace tc
