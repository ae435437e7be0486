// A script of user events played into the main window, one line a step:
// typing, keys, clicks at drawing coordinates, menu choices, zooms,
// screenshots and checks. Each step runs from the event loop, as the user's
// would, so that commands waiting for input get what follows.
//
//   type TEXT              keys into the command line
//   key NAME               Enter, Escape, Tab, Up, Down or Space
//   click X,Y | move X,Y   the left button at a point of the drawing
//   menu PATH              a menu entry, as "Edit/Undo"
//   zoom extents | zoom window X0,Y0,X1,Y1
//   size W H               the main window's size
//   wait MS                lets the window work for a while
//   screenshot FILE        a picture of the main window
//   expect entities N      model space of the current drawing has N entities
//   expect output TEXT     the command line printed TEXT
//   exit                   closes the window, changed drawings left unsaved
//                          (the end of the script does too)
#pragma once

#include <QObject>
#include <QStringList>

class MainWindow;

class EventScript : public QObject
{
  Q_OBJECT

public:
  explicit EventScript(MainWindow& window, QObject* parent = nullptr);

  // False with the reason when the file cannot be read.
  bool load(const QString& file, QString& error);
  void setLines(const QStringList& lines) { m_lines = lines; }
  void start();
  int failures() const { return m_failures; }

signals:
  void finished(int failures);

private:
  void step();
  // False when the script ends here.
  bool run(const QString& line);
  void fail(const QString& message);

  MainWindow& m_window;
  QStringList m_lines;
  int m_next = 0;
  int m_failures = 0;
  bool m_done = false;
};
