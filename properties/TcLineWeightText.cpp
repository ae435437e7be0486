// Lineweight texts.
#include "properties/TcLineWeightText.h"

#include "host/TcHost.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostSysVars.h"

#include <algorithm>

namespace tc {

namespace {

struct Word
{
  int weight;
  const char* display;
  const char* value;
};

const Word kWords[] = {{-1, "By Layer", "ByLayer"}, {-2, "By Block", "ByBlock"}, {-3, "By Default", "ByDefault"}};

bool sameWord(const OdString& text, const char* word)
{
  return text.iCompare(word) == 0 || text.iCompare(Supp_Translate(word)) == 0;
}

} // namespace

const std::vector<int>& tcLineWeights()
{
  static const std::vector<int> weights = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                           53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
  return weights;
}

OdString tcLineWeightText(int weight, int lwunits)
{
  for (const Word& w : kWords)
    if (w.weight == weight)
      return Supp_Translate(w.display);
  const double millimetres = weight / 100.0;
  if (lwunits == 0)
    return OdString::formatted("%.3f''", millimetres * 0.03937007874015748);
  return OdString::formatted("%.2f ", millimetres) + Supp_Translate("mm");
}

bool tcParseLineWeight(const OdString& text, int& weight)
{
  OdString t = text;
  t.trimLeft();
  t.trimRight();
  for (const Word& w : kWords)
    if (sameWord(t, w.display) || sameWord(t, w.value)) {
      weight = w.weight;
      return true;
    }
  for (int candidate : tcLineWeights())
    if (t == tcLineWeightText(candidate, 0) || t == tcLineWeightText(candidate, 1)) {
      weight = candidate;
      return true;
    }
  bool ok = false;
  const int number = t.qstring().toInt(&ok);
  const auto& weights = tcLineWeights();
  if (!ok || std::find(weights.begin(), weights.end(), number) == weights.end())
    return false;
  weight = number;
  return true;
}

int tcLwUnits()
{
  static int lwunits = -1; // not read yet
  if (lwunits == -1) {
    lwunits = 1;
    HostServices* services = hostServices();
    HostSystemVariables* variables = services ? services->systemVariables() : nullptr;
    if (OdResBufPtr value = variables ? variables->getVar("LWUNITS") : OdResBufPtr())
      lwunits = int(value->getInt64());
  }
  return lwunits;
}

} // namespace tc
