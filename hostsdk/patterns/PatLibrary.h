// Where pattern files are, the custom pattern file of the host's settings,
// and the files read so far.
#pragma once

#include "hostsdk/patterns/PatFile.h"

#include <memory>
#include <vector>

class PatLibrary
{
public:
  // The host's own patterns, in its data folder.
  static constexpr const char* kDefaultFileName = "verdaniiso.pat";
  // The setting that names the custom pattern file: the value
  // "CustomPatternFile" in the folder "Hatch" of the host's configuration.
  static constexpr const char* kSettingsFolder = "Hatch";
  static constexpr const char* kCustomFileValue = "CustomPatternFile";

  // The host's data folder: "../share/verdani" beside this library when
  // installed, the source tree's "data" folder in a build tree.
  static OdString dataFolder();
  // Folders searched for a pattern file given without a usable folder, in
  // order: "patterns" in the host's user data folder, then "patterns" in
  // the data folder.
  static std::vector<OdString> searchFolders();
  // The full path of a pattern file: a path that exists, as it stands;
  // else its name in the search folders (so that a path written on another
  // machine still finds a file of that name here). An empty name means the
  // default file. Empty when nothing is found.
  static OdString findFile(const OdString& file);
  // The custom pattern file as the settings hold it, path separators
  // turned to "/"; empty when none is set or the process has no host.
  static OdString customPatternFile();

  // The file read and parsed, or null with `error`. A file is read again
  // only after it changed on disk.
  static std::shared_ptr<const PatFile> loadFile(const OdString& file, OdString* error = nullptr);
  // A pattern by name, ignoring case. From `file` when one is given; else
  // from the default file, then the custom pattern file, then a file named
  // after the pattern ("NAME.pat") in the search folders. `foundIn` gets
  // the full path of the file it came from. False with `error` when a file
  // cannot be read; false with `error` empty when the name is unknown.
  static bool findPattern(const OdString& name, const OdString& file, PatPattern& out, OdString* foundIn = nullptr,
                          OdString* error = nullptr);
};
