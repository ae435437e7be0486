// What a user waits for with a DXF drawing: the whole open in a fresh console
// host, its peak memory, the save, and the in-process read beside them.
#include "sdk/dxf/OdDxf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::time_point a, Clock::time_point b)
{
  return std::chrono::duration<double>(b - a).count();
}

// One run of a program, as the kernel accounted it.
struct ChildRun
{
  double wall = 0, user = 0, system = 0;
  long peakKiB = 0, pageFaults = 0;
  bool ok = false;
};

// Runs `args` with standard output and errors thrown away. The host gets a
// configuration and data folder of its own, so that the user's stay as they
// are.
ChildRun runChild(const std::vector<std::string>& args, const QString& home)
{
  std::vector<std::string> env;
  for (char** e = environ; *e; ++e)
    if (std::strncmp(*e, "XDG_CONFIG_HOME=", 16) != 0 && std::strncmp(*e, "XDG_DATA_HOME=", 14) != 0)
      env.emplace_back(*e);
  env.push_back("XDG_CONFIG_HOME=" + (home + "/config").toStdString());
  env.push_back("XDG_DATA_HOME=" + (home + "/data").toStdString());
  std::vector<char*> argv, envp;
  for (const std::string& a : args)
    argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  for (std::string& e : env)
    envp.push_back(e.data());
  envp.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
  ChildRun run;
  pid_t pid = 0;
  const auto t0 = Clock::now();
  const int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
  posix_spawn_file_actions_destroy(&actions);
  if (spawned != 0)
    return run;
  int status = 0;
  rusage usage{};
  if (wait4(pid, &status, 0, &usage) != pid)
    return run;
  run.wall = seconds(t0, Clock::now());
  run.user = double(usage.ru_utime.tv_sec) + usage.ru_utime.tv_usec / 1e6;
  run.system = double(usage.ru_stime.tv_sec) + usage.ru_stime.tv_usec / 1e6;
  run.peakKiB = usage.ru_maxrss;
  run.pageFaults = usage.ru_minflt + usage.ru_majflt;
  run.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  return run;
}

// The fastest of `runs` runs of the console host on `script` (the machine is
// shared: the fastest is the one least disturbed).
ChildRun bestConsoleRun(const QString& script, const QString& drawing, const QString& home, int runs)
{
  ChildRun best;
  best.wall = 1e9;
  for (int i = 0; i < runs; ++i) {
    std::vector<std::string> args{VERDANI_CONSOLE, "--script", script.toStdString()};
    if (!drawing.isEmpty())
      args.push_back(drawing.toStdString());
    const ChildRun r = runChild(args, home);
    if (!r.ok) {
      std::fprintf(stderr, "verdani-console failed on %s\n", qPrintable(drawing));
      return r;
    }
    if (r.wall < best.wall)
      best = r;
  }
  return best;
}

bool writeText(const QString& path, const char* text)
{
  QFile f(path);
  return f.open(QIODevice::WriteOnly) && f.write(text) == qint64(std::strlen(text));
}

// The drawings shaped like real ones, written by ezdxf once and kept in the
// build folder for the next run.
QStringList shapedDrawings()
{
  struct Shape { const char* name; const char* version; const char* scale; };
  static const Shape shapes[] = {{"shaped-37MB-R2018.dxf", "R2018", "1"},
                                 {"shaped-37MB-R2000.dxf", "R2000", "1"},
                                 {"shaped-62MB-R2018.dxf", "R2018", "1.69"},
                                 {"shaped-62MB-R2000.dxf", "R2000", "1.69"}};
  QDir().mkpath(VERDANI_BENCH_DRAWINGS);
  QStringList out;
  for (const Shape& s : shapes) {
    const QString path = QDir(VERDANI_BENCH_DRAWINGS).filePath(s.name);
    if (!QFileInfo::exists(path)) {
      std::printf("writing %s with ezdxf...\n", qPrintable(path));
      std::fflush(stdout);
      const std::vector<std::string> args{"/usr/bin/python3", VERDANI_BENCH_SCRIPT, path.toStdString(), s.version,
                                          s.scale};
      if (!runChild(args, QDir::tempPath()).ok) {
        std::fprintf(stderr, "cannot write %s: is python3-ezdxf installed?\n", qPrintable(path));
        QFile::remove(path);
        continue;
      }
    }
    out << path;
  }
  return out;
}

// The figures of one drawing.
struct Figures
{
  QString drawing;
  double mb = 0;
  ChildRun open, session;
  double read = 0, save = 0, savedMb = 0;
};

// Runs in fresh processes come first, while this process is still small: a
// child's peak memory counts this process's as it was when the child began.
void measureFresh(Figures& f, const QTemporaryDir& dir, int runs)
{
  const QString exitScript = dir.filePath("exit.scr"), saveScript = dir.filePath("save.scr");
  writeText(saveScript, ("SaveAsDocument\n" + dir.filePath("saved.dxf") + "\nExit\n").toUtf8().constData());
  f.mb = double(QFileInfo(f.drawing).size()) / 1e6;
  f.open = bestConsoleRun(exitScript, f.drawing, dir.path(), runs);
  f.session = bestConsoleRun(saveScript, f.drawing, dir.path(), runs);
}

void measureInProcess(Figures& f, const QTemporaryDir& dir, int runs)
{
  const QString saved = dir.filePath("saved.dxf");
  f.read = f.save = 1e9;
  for (int run = 0; run < runs; ++run) {
    const auto t0 = Clock::now();
    OdDbDatabasePtr db = odDxfReadFile(OdString(f.drawing));
    const auto t1 = Clock::now();
    odDxfWriteFile(db, OdString(saved));
    const auto t2 = Clock::now();
    f.read = std::min(f.read, seconds(t0, t1));
    f.save = std::min(f.save, seconds(t1, t2));
  }
  f.savedMb = double(QFileInfo(saved).size()) / 1e6;
}

void print(const Figures& f)
{
  std::printf("%s: %.1f MB\n", qPrintable(QFileInfo(f.drawing).fileName()), f.mb);
  if (!f.open.ok)
    return;
  const double peak = double(f.open.peakKiB) * 1024.0;
  std::printf("  whole open, fresh process: %6.3f s %6.1f MB/s   peak %6.1f MiB = %.2f bytes per byte"
              "   (%ld page faults, %.2f s user, %.2f s system)\n",
              f.open.wall, f.mb / f.open.wall, peak / 1048576.0, peak / (f.mb * 1e6), f.open.pageFaults, f.open.user,
              f.open.system);
  if (f.session.ok) {
    // What the save adds to a session that opens and closes the drawing.
    const double save = f.session.wall - f.open.wall;
    std::printf("  open, save, close:         %6.3f s                peak %6.1f MiB = %.2f bytes per byte\n",
                f.session.wall, double(f.session.peakKiB) / 1024.0,
                double(f.session.peakKiB) * 1024.0 / (f.mb * 1e6));
    std::printf("  save, fresh process:       %6.3f s %6.1f MB/s   (the session less the open)\n", save,
                f.savedMb / save);
  }
  std::printf("  read, in process:          %6.3f s %6.1f MB/s\n", f.read, f.mb / f.read);
  std::printf("  save, in process:          %6.3f s %6.1f MB/s   (%.1f MB written)\n", f.save, f.savedMb / f.save,
              f.savedMb);
}

} // namespace

int main(int argc, char** argv)
{
  int runs = 5;
  QStringList drawings;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--runs" && i + 1 < argc)
      runs = std::max(1, std::atoi(argv[++i]));
    else if (a == "-h" || a == "--help") {
      std::printf("Usage: bench_dxf [--runs N] [DRAWING.dxf]...\n"
                  "Times the whole open of each drawing in a fresh verdani-console (best of N runs),\n"
                  "its peak memory, and the read and the save in this process. Without drawings,\n"
                  "uses drawings shaped like real ones that ezdxf writes into %s.\n",
                  VERDANI_BENCH_DRAWINGS);
      return 0;
    } else
      drawings << QString::fromLocal8Bit(argv[i]);
  }
  if (drawings.isEmpty())
    drawings = shapedDrawings();
  QTemporaryDir dir;
  writeText(dir.filePath("exit.scr"), "Exit\n");
  const ChildRun bare = bestConsoleRun(dir.filePath("exit.scr"), QString(), dir.path(), runs);
  std::vector<Figures> figures;
  for (const QString& d : drawings) {
    figures.emplace_back();
    figures.back().drawing = d;
    measureFresh(figures.back(), dir, runs);
  }
  for (Figures& f : figures)
    measureInProcess(f, dir, runs);
  std::printf("best of %d runs; console host without a drawing: %.3f s, peak %.1f MiB\n", runs, bare.wall,
              double(bare.peakKiB) / 1024.0);
  for (const Figures& f : figures)
    print(f);
  return 0;
}
