// Fixed texts made once and shared.
#include "properties/TcSharedText.h"

#include "hostsdk/core/HostCore.h"

#include <mutex>
#include <string>
#include <unordered_map>

namespace tc {

OdString tcSharedText(const char* text)
{
  static std::mutex lock;
  static std::unordered_map<std::string, OdString> texts;
  const std::lock_guard<std::mutex> guard(lock);
  auto it = texts.find(text);
  if (it == texts.end())
    it = texts.emplace(text, OdString(text)).first;
  return it->second;
}

OdString tcTranslate(const char* text)
{
  return Supp_Translate(tcSharedText(text));
}

} // namespace tc
