// Paths in catalog and palette files: a palette's place relative to its
// catalog, and well-known folders replaced by tokens inside tools. Pure
// text rules on "/"; text read from files has its "\" turned into "/" first.
#pragma once

#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdString.h"

#include <map>

namespace tc {

// The folders the tokens stand for.
struct TcPathFolders
{
  OdString profile;               // the user's profile folder; empty: no tokens at all
  OdString toolPaletteDirs;       // the ";"-separated catalog folders of the host
  OdArray<OdString> shxFolders;   // the host's font search path
};

// The folders of the running host: the home folder, "ToolPaletteDir" and
// "Shx" of the host's configuration.
TcPathFolders hostPathFolders();

// Token text to its folders, ordered by token text. Made afresh on every
// call from `folders`.
std::map<OdString, OdArray<OdString>> pathTokenTable(const TcPathFolders& folders);

// Puts a token in place of the first known folder found in `path`; true if
// the text changed.
bool encodePathTokens(OdString& path, const TcPathFolders& folders);
bool encodePathTokens(OdString& path);
// Puts the folder in place of the first token found; true if the text
// changed.
bool decodePathTokens(OdString& path, const TcPathFolders& folders);
bool decodePathTokens(OdString& path);

// The path of `to` relative to the folder of `from` ("./Palettes/a.vtc",
// "../C/a.vtc"); false when the two share not even their first segment.
bool makeRelativePath(const OdString& from, const OdString& to, OdString& result);
// `relative` resolved against the folder of the file path `base`.
OdString makeAbsolutePath(const OdString& relative, const OdString& base);
// Removes "/./" and "/../"; false when a "/../" cannot be removed.
bool normalizePath(OdString& path);

// Path text read from a file: "\" becomes "/".
OdString pathFromFile(const OdString& text);

// A name as a file name: without the characters a file name cannot hold on
// either system (\ < > / ? : ; * | , = ' " and control characters), without
// "..", and short enough to leave room for what is added to it. An empty
// result becomes "Palette".
OdString cleanFileName(const OdString& name);

} // namespace tc
