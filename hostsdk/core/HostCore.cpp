// Translation and file tests of the host core.
#include "hostsdk/core/HostCore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryFile>
#include <QTextStream>

#include <cstdio>

namespace {
QHash<QString, QString>& catalog()
{
  static QHash<QString, QString> c;
  return c;
}

QString unescape(QString s)
{
  s.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
  s.replace(QStringLiteral("\\t"), QStringLiteral("\t"));
  return s;
}
} // namespace

OdString Supp_Translate(const OdString& text)
{
  const auto& c = catalog();
  if (c.isEmpty())
    return text;
  auto it = c.constFind(text.qstring());
  return it == c.constEnd() ? text : OdString(it.value());
}

bool Supp_InstallTranslations(const OdString& catalogFile)
{
  catalog().clear();
  if (catalogFile.isEmpty())
    return true;
  QFile f(catalogFile.qstring());
  if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
    return false;
  QTextStream in(&f);
  in.setEncoding(QStringConverter::Utf8);
  while (!in.atEnd()) {
    const QString line = in.readLine();
    const qsizetype tab = line.indexOf(u'\t');
    if (tab > 0)
      catalog().insert(unescape(line.left(tab)), unescape(line.mid(tab + 1)));
  }
  return true;
}

bool Fio_IsFileExist(const OdString& path)
{
  return !path.isEmpty() && QFileInfo::exists(path.qstring());
}

bool Fio_IsWritableDir(const OdString& folder)
{
  const QFileInfo info(folder.qstring());
  if (folder.isEmpty() || !info.isDir())
    return false;
  QTemporaryFile probe(QDir(folder.qstring()).filePath(QStringLiteral(".verdani-write-test-XXXXXX")));
  return probe.open();
}

bool Fio_DeleteFile(const OdString& path, OdString* reason)
{
  QFile file(path.qstring());
  if (!path.isEmpty() && file.remove())
    return true;
  if (reason)
    *reason = path.isEmpty() ? OdString("no file was named") : OdString(file.errorString());
  return false;
}

namespace {
HostMessageBoxHandler g_messageBoxHandler = nullptr;
} // namespace

void hostSetMessageBoxHandler(HostMessageBoxHandler handler)
{
  g_messageBoxHandler = handler;
}

int hostDefaultMessageBoxAnswer(unsigned style)
{
  switch (style & 0xF) {
  case 3:
  case 4: return kHostIdYes;
  default: return kHostIdOk;
  }
}

int hostMessageBox(const OdString& text, const OdString& caption, unsigned style)
{
  if (g_messageBoxHandler)
    return g_messageBoxHandler(text, caption, style);
  std::fprintf(stderr, "%s: %s\n", caption.toUtf8().c_str(), text.toUtf8().c_str());
  return hostDefaultMessageBoxAnswer(style);
}

namespace {
HostServices* g_services = nullptr;
IApp* g_app = nullptr;
} // namespace

void hostSetContext(HostServices* services, IApp* app)
{
  g_services = services;
  g_app = app;
}

HostServices* hostContextServices()
{
  return g_services;
}

IApp* hostContextApp()
{
  return g_app;
}

namespace {
OdString& cmdRouteMap()
{
  static OdString path;
  return path;
}
} // namespace

OdString hostGetCmdRouteMap()
{
  return cmdRouteMap();
}

void hostSetCmdRouteMap(const OdString& path)
{
  cmdRouteMap() = path;
}
