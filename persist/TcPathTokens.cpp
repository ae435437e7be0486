// The path rules.
#include "persist/TcPathTokens.h"

#include "host/TcHost.h"

#include <QStringList>

namespace tc {

namespace {
constexpr char16_t kSep = u'/';

OdArray<OdString> splitList(const OdString& list)
{
  OdArray<OdString> out;
  for (const QString& piece : list.qstring().split(u';', Qt::SkipEmptyParts))
    out.append(OdString(piece));
  return out;
}
} // namespace

OdString pathFromFile(const OdString& text)
{
  OdString path = text;
  path.replace(u'\\', u'/');
  return path;
}

OdString cleanFileName(const OdString& name)
{
  QString clean;
  for (QChar c : name.qstring())
    if (c.unicode() >= 0x20 && !QStringLiteral("\\<>/?:;*|,='\"").contains(c))
      clean += c;
  while (clean.contains(QStringLiteral("..")))
    clean.replace(QStringLiteral(".."), QString());
  // A file name holds 255 bytes; the id, the extension and the temporary
  // name of a save come on top.
  QByteArray bytes = clean.toUtf8();
  if (bytes.size() > 120) {
    bytes.truncate(120);
    while (!bytes.isEmpty() && QString::fromUtf8(bytes).toUtf8() != bytes)
      bytes.chop(1);
    clean = QString::fromUtf8(bytes);
  }
  if (clean.isEmpty() || clean == QLatin1String("."))
    clean = QStringLiteral("Palette");
  return OdString(clean);
}

TcPathFolders hostPathFolders()
{
  TcPathFolders folders;
  folders.profile = userProfileFolder();
  readStdDir("ToolPaletteDir", folders.toolPaletteDirs);
  OdString shx;
  readStdDir("Shx", shx);
  folders.shxFolders = splitList(shx);
  return folders;
}

std::map<OdString, OdArray<OdString>> pathTokenTable(const TcPathFolders& folders)
{
  std::map<OdString, OdArray<OdString>> table;
  // The samples folder is the first catalog folder, the user's own.
  OdArray<OdString> list = splitList(folders.toolPaletteDirs);
  const OdString samples = list.isEmpty() ? OdString() : list.first();
  if (!samples.isEmpty() && list.contains(samples)) {
    table["%UserProfileSamplesFolder%"].append(samples);
    if (list.size() > 1)
      list.remove(samples);
  }
  // A single folder keeps a numbered token beside the samples token.
  for (unsigned i = 0; i < list.size(); ++i) {
    table[OdString::formatted("%%UserProfileSamplesFolder%d%%", int(i + 1))].append(list[i]);
  }
  table["%UserProfileFolder%"].append(folders.profile);
  for (const OdString& shx : folders.shxFolders)
    table["%ShxFolder%"].append(shx);
  return table;
}

bool encodePathTokens(OdString& path, const TcPathFolders& folders)
{
  if (folders.profile.isEmpty())
    return false;
  for (const auto& [token, paths] : pathTokenTable(folders)) {
    for (const OdString& folder : paths) {
      if (!folder.isEmpty() && path.find(folder) >= 0) {
        path.replace(folder, token);
        return true;
      }
    }
  }
  return false;
}

bool encodePathTokens(OdString& path)
{
  return encodePathTokens(path, hostPathFolders());
}

bool decodePathTokens(OdString& path, const TcPathFolders& folders)
{
  if (folders.profile.isEmpty())
    return false;
  for (const auto& [token, paths] : pathTokenTable(folders)) {
    if (path.find(token) >= 0) {
      if (paths.isEmpty())
        return false;
      path.replace(token, paths.first());
      return true;
    }
  }
  return false;
}

bool decodePathTokens(OdString& path)
{
  return decodePathTokens(path, hostPathFolders());
}

bool makeRelativePath(const OdString& from, const OdString& to, OdString& result)
{
  if (from.isEmpty() || to.isEmpty())
    return false;
  // Walk both paths segment by segment while they agree.
  int shared = 0; // length of the shared part, up to and without its separator
  int segments = 0;
  int i = 0;
  for (;;) {
    const int endFrom = [&] { int k = from.find(kSep, i); return k < 0 ? from.getLength() : k; }();
    const int endTo = [&] { int k = to.find(kSep, i); return k < 0 ? to.getLength() : k; }();
    if (endFrom != endTo || from.mid(i, endFrom - i) != to.mid(i, endTo - i))
      break;
    shared = endFrom;
    ++segments;
    if (endFrom >= from.getLength() || endTo >= to.getLength())
      break;
    i = endFrom + 1;
  }
  if (segments == 0)
    return false;
  result = OdString();
  for (int k = shared + 1; k < from.getLength(); ++k)
    if (from.getAt(k) == kSep)
      result += "../";
  if (result.isEmpty())
    result = "./";
  OdString rest = to.mid(shared);
  if (!rest.isEmpty() && rest.getAt(0) == kSep)
    rest = rest.mid(1);
  result += rest;
  return true;
}

OdString makeAbsolutePath(const OdString& relative, const OdString& base)
{
  if (base.isEmpty())
    return relative;
  const int slash = base.reverseFind(u'/');
  const int backslash = base.reverseFind(u'\\');
  const int at = std::max(slash, backslash);
  if (at < 0)
    return relative;
  const OdChar sep = base.getAt(at);
  if (relative == "." || relative == ".\\" || relative == "./")
    return base.left(at);
  OdString joined = base.left(at + 1) + relative;
  if (!joined.isEmpty() && joined.getAt(joined.getLength() - 1) == u'.')
    joined += sep;
  normalizePath(joined);
  return joined;
}

bool normalizePath(OdString& path)
{
  while (path.find("/./") >= 0)
    path.replace("/./", "/");
  int from = 0;
  for (;;) {
    const int hit = path.find("/../", from);
    if (hit < 0)
      return true;
    int previous = -1;
    for (int k = hit - 1; k >= 0; --k) {
      if (path.getAt(k) == kSep) {
        previous = k;
        break;
      }
    }
    if (previous < 0)
      return false;
    // From the previous separator through "..": one separator stays.
    path.deleteChars(previous, hit + 3 - previous);
    from = previous;
  }
}

} // namespace tc
