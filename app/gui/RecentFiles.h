// The drawings opened or saved last, most recent first, kept in the host's
// configuration (folder "RecentFiles", values File1 to File8).
#pragma once

#include <QStringList>

class HostConfig;

class RecentFiles
{
public:
  static constexpr int kMax = 8;

  // Null config: nothing kept (the host is not running).
  static QStringList list(HostConfig* config);
  // Moves (or adds) the file to the top.
  static void add(HostConfig* config, const QString& path);
  static void remove(HostConfig* config, const QString& path);

private:
  static void write(HostConfig* config, const QStringList& files);
};
