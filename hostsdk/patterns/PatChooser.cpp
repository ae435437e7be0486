// Choosing a hatch pattern: from a file of patterns, by a dialog or on the
// command line.
#include "hostsdk/patterns/PatChooser.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/patterns/PatHost.h"
#include "hostsdk/patterns/PatLibrary.h"

#include <algorithm>

namespace {

HostHatchPatternDialogFn g_dialog = nullptr;

OdString unquoted(OdString text)
{
  text.trimLeft();
  text.trimRight();
  if (text.getLength() >= 2 && text.getAt(0) == u'"' && text.getAt(text.getLength() - 1) == u'"')
    text = text.mid(1, text.getLength() - 2);
  return text;
}

void listPatterns(HostCommandOutput& out, const PatFile& file)
{
  qsizetype width = 0;
  for (const PatPattern& pattern : file.patterns())
    width = std::max(width, pattern.name().qstring().size());
  out.printText("\n" + OdString::formatted(Supp_Translate("Patterns in %s:"), file.path()));
  for (const PatPattern& pattern : file.patterns()) {
    QString line = QStringLiteral("\n  ") + pattern.name().qstring();
    if (!pattern.description().isEmpty())
      line = line.leftJustified(width + 3) + QStringLiteral("  ") + pattern.description().qstring();
    out.printText(OdString(line));
  }
  out.printText("\n");
}

} // namespace

void PatChooser::setDialog(HostHatchPatternDialogFn dialog)
{
  g_dialog = dialog;
}

bool PatChooser::choose(int type, OdString& file, OdArray<OdString>& list, OdString& name)
{
  if (type == kHostHatchUserDefined) {
    patHostTell(Supp_Translate("A user-defined hatch has no pattern to choose: its angle and spacing make its lines."));
    return false;
  }
  OdString source = file;
  if (source.isEmpty() && type == kHostHatchCustom)
    source = PatLibrary::customPatternFile();
  OdString chosen;
  if (g_dialog && !g_dialog(type, source, chosen))
    return false;

  OdString error;
  const auto parsed = PatLibrary::loadFile(source, &error);
  if (!parsed) {
    patHostTell(error);
    return false;
  }
  if (parsed->patterns().empty()) {
    patHostTell(OdString::formatted(Supp_Translate("The pattern file %s holds no patterns."), parsed->path()));
    return false;
  }
  if (!g_dialog) {
    if (!chooseOnCommandLine(*parsed, chosen))
      return false;
  } else if (const PatPattern* pattern = parsed->find(chosen)) {
    chosen = pattern->name();
  } else {
    patHostTell(OdString::formatted(Supp_Translate("The pattern file %s has no pattern %s."), parsed->path(), chosen));
    return false;
  }

  OdArray<OdString> names;
  for (const PatPattern& pattern : parsed->patterns())
    names.append(pattern.name());
  file = parsed->path();
  list = names;
  name = chosen;
  return true;
}

bool PatChooser::chooseOnCommandLine(const PatFile& file, OdString& name)
{
  HostServices* services = patHostServices();
  HostDocument* document = services ? services->currentDocument() : nullptr;
  HostCommandOutput* out = document ? document->commandOutput() : nullptr;
  if (!out) {
    patHostTell(Supp_Translate("Choosing a pattern needs an open drawing, whose command line takes the choice."));
    return false;
  }
  listPatterns(*out, file);
  for (;;) {
    OdString input;
    if (!document->getString(Supp_Translate("Pattern name or [?] <none>: "), input, false))
      return false;
    input = unquoted(input);
    if (input.isEmpty())
      return false;
    if (input == "?") {
      listPatterns(*out, file);
      continue;
    }
    if (const PatPattern* pattern = file.find(input)) {
      name = pattern->name();
      return true;
    }
    out->printText("\n" + OdString::formatted(Supp_Translate("No pattern %s in %s."), input, file.path()) + "\n");
  }
}
