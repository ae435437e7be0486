// The functions that modules look up by name in "libverdanicmd1.so". None
// lets an exception out into its caller.
#include "hostsdk/core/HostCore.h"
#include "hostsdk/patterns/PatChooser.h"
#include "hostsdk/patterns/PatHost.h"
#include "hostsdk/patterns/PatLibrary.h"
#include "hostsdk/patterns/PatPatternImage.h"
#include "hostsdk/patterns/VerdaniCmd1.h"
#include "sdk/kernel/OdError.h"

#include <QSet>

#include <type_traits>

#define VERDANICMD1_EXPORT extern "C" __attribute__((visibility("default")))

static_assert(std::is_same_v<decltype(&hostCreatePatternImage), HostCreatePatternImageFn>);
static_assert(std::is_same_v<decltype(&hostCreatePatternImageEx), HostCreatePatternImageExFn>);
static_assert(std::is_same_v<decltype(&hostGetHatchPatterns), HostGetHatchPatternsFn>);
static_assert(std::is_same_v<decltype(&hostGetCustomPatternFileName), HostGetCustomPatternFileNameFn>);
static_assert(std::is_same_v<decltype(&hostSetHatchPatternDialog), HostSetHatchPatternDialogFn>);

namespace {

// Pictures are asked for in threes (one per size class) and again for
// every tool of a pattern: a broken file is told once per session.
void tellOnce(const OdString& message)
{
  static QSet<QString> told;
  if (!message.isEmpty() && !told.contains(message.qstring())) {
    told.insert(message.qstring());
    patHostTell(message);
  }
}

template <class F>
auto guarded(const char* function, F body) -> decltype(body())
{
  try {
    return body();
  } catch (const OdError& e) {
    patHostTell(OdString::formatted(Supp_Translate("%s failed: %s"), function, e.description()));
  } catch (const std::exception& e) {
    patHostTell(OdString::formatted(Supp_Translate("%s failed: %s"), function, e.what()));
  } catch (...) {
    patHostTell(OdString::formatted(Supp_Translate("%s failed."), function));
  }
  return decltype(body())();
}

bool createImage(const OdString& name, const OdString& file, int size, QImage& bitmap)
{
  bitmap = QImage();
  if (size < 1 || size > PatPatternImage::kMaxSize)
    return false;
  // Whatever a file holds under SOLID, it means the solid fill.
  if (name.iCompare("SOLID") == 0) {
    bitmap = PatPatternImage::solid(size);
    return true;
  }
  if (name.isEmpty() || name.iCompare("_USER") == 0) {
    bitmap = PatPatternImage::userDefined(size);
    return true;
  }
  PatPattern pattern;
  OdString error;
  if (!PatLibrary::findPattern(name, file, pattern, nullptr, &error)) {
    tellOnce(error);
    return false;
  }
  bitmap = PatPatternImage::draw(pattern, size);
  return !bitmap.isNull();
}

} // namespace

VERDANICMD1_EXPORT bool hostCreatePatternImage(const OdString& name, int size, QImage& bitmap)
{
  return guarded("hostCreatePatternImage", [&] { return createImage(name, OdString(), size, bitmap); });
}

VERDANICMD1_EXPORT bool hostCreatePatternImageEx(const OdString& name, const OdString& file, int size, QImage& bitmap)
{
  return guarded("hostCreatePatternImageEx", [&] { return createImage(name, file, size, bitmap); });
}

VERDANICMD1_EXPORT bool hostGetHatchPatterns(int type, OdString& file, OdArray<OdString>& list, OdString& name)
{
  return guarded("hostGetHatchPatterns", [&] { return PatChooser::choose(type, file, list, name); });
}

VERDANICMD1_EXPORT bool hostGetCustomPatternFileName(OdString& file)
{
  return guarded("hostGetCustomPatternFileName", [&] {
    file = PatLibrary::customPatternFile();
    if (file.isEmpty())
      return false;
    const OdString found = PatLibrary::findFile(file);
    if (!found.isEmpty())
      file = found;
    return true;
  });
}

VERDANICMD1_EXPORT void hostSetHatchPatternDialog(HostHatchPatternDialogFn dialog)
{
  PatChooser::setDialog(dialog);
}
