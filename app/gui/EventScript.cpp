// Playing user events.
#include "app/gui/EventScript.h"

#include "app/core/HostApp.h"
#include "app/core/HostDocumentManager.h"
#include "app/gui/CommandLineWidget.h"
#include "app/gui/DrawingView.h"
#include "app/gui/MainWindow.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbDatabase.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int kStepDelay = 30; // milliseconds between steps: room to paint

bool parsePoint(const QString& text, QPointF& p)
{
  const QStringList parts = text.split(u',');
  bool okX = false, okY = false;
  if (parts.size() >= 2)
    p = QPointF(parts[0].trimmed().toDouble(&okX), parts[1].trimmed().toDouble(&okY));
  return okX && okY;
}

int keyNamed(const QString& name, QString& text)
{
  const QString n = name.toLower();
  text.clear();
  if (n == QLatin1String("enter") || n == QLatin1String("return")) {
    text = QStringLiteral("\r");
    return Qt::Key_Return;
  }
  if (n == QLatin1String("escape") || n == QLatin1String("esc")) {
    text = QString(QChar(27));
    return Qt::Key_Escape;
  }
  if (n == QLatin1String("tab"))
    return Qt::Key_Tab;
  if (n == QLatin1String("up"))
    return Qt::Key_Up;
  if (n == QLatin1String("down"))
    return Qt::Key_Down;
  if (n == QLatin1String("space")) {
    text = QStringLiteral(" ");
    return Qt::Key_Space;
  }
  return 0;
}

void sendKey(QWidget* target, int key, const QString& text)
{
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &release);
}

std::size_t entityCount(OdDbDatabase* db)
{
  OdDbBlockTableRecordPtr space = db ? OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject()) : nullptr;
  std::size_t n = 0;
  if (space.get())
    for (const OdDbObjectId& id : space->entityIds())
      if (!id.isErased() && id.isValid())
        ++n;
  return n;
}

} // namespace

EventScript::EventScript(MainWindow& window, QObject* parent) : QObject(parent), m_window(window) {}

bool EventScript::load(const QString& file, QString& error)
{
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) {
    error = QStringLiteral("cannot read the event script %1: %2").arg(file, f.errorString());
    return false;
  }
  QTextStream in(&f);
  m_lines.clear();
  while (!in.atEnd())
    m_lines << in.readLine();
  return true;
}

void EventScript::start()
{
  m_next = 0;
  m_failures = 0;
  m_done = false;
  QTimer::singleShot(kStepDelay, this, &EventScript::step);
}

void EventScript::fail(const QString& message)
{
  ++m_failures;
  std::fprintf(stderr, "event script: %s\n", message.toUtf8().constData());
}

void EventScript::step()
{
  if (m_done)
    return;
  while (m_next < m_lines.size()) {
    const QString line = m_lines[m_next++].trimmed();
    if (line.isEmpty() || line.startsWith(u'#'))
      continue;
    const bool wait = line.startsWith(QLatin1String("wait "), Qt::CaseInsensitive);
    // The next step is booked before this one runs: a step that starts a
    // command waiting for input returns only once it has that input.
    auto* next = new QTimer(this);
    next->setSingleShot(true);
    connect(next, &QTimer::timeout, this, [this, next] {
      next->deleteLater();
      step();
    });
    next->start(wait ? std::max(0, line.mid(5).trimmed().toInt()) : kStepDelay);
    if (!wait && !run(line)) {
      next->stop();
      next->deleteLater();
    }
    return;
  }
  m_done = true;
  emit finished(m_failures);
}

bool EventScript::run(const QString& line)
{
  const qsizetype space = line.indexOf(u' ');
  const QString verb = line.left(space).toLower();
  const QString rest = space < 0 ? QString() : line.mid(space + 1).trimmed();
  QLineEdit* input = m_window.commandLine()->inputLine();
  DrawingView* view = m_window.currentView();

  if (verb == QLatin1String("type")) {
    m_window.commandLine()->focusInput();
    for (const QChar c : rest)
      sendKey(input, c.isLetter() ? Qt::Key_A + (c.toUpper().unicode() - u'A') : int(c.unicode()), QString(c));
  } else if (verb == QLatin1String("key")) {
    QString text;
    const int key = keyNamed(rest, text);
    if (!key)
      fail(QStringLiteral("unknown key %1").arg(rest));
    else
      sendKey(input, key, text);
  } else if (verb == QLatin1String("click") || verb == QLatin1String("move")) {
    QPointF world;
    if (!view || !parsePoint(rest, world)) {
      fail(QStringLiteral("cannot %1 at %2").arg(verb, rest));
      return true;
    }
    const QPointF at = view->view().toScreen(world);
    QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view, &move);
    if (verb == QLatin1String("click")) {
      QMouseEvent press(QEvent::MouseButtonPress, at, view->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                        Qt::NoModifier);
      QApplication::sendEvent(view, &press);
      QMouseEvent release(QEvent::MouseButtonRelease, at, view->mapToGlobal(at), Qt::LeftButton, Qt::NoButton,
                          Qt::NoModifier);
      QApplication::sendEvent(view, &release);
    }
  } else if (verb == QLatin1String("menu")) {
    QAction* action = m_window.action(rest);
    if (!action)
      fail(QStringLiteral("no menu entry %1").arg(rest));
    else if (!action->isEnabled())
      fail(QStringLiteral("the menu entry %1 is disabled").arg(rest));
    else
      action->trigger();
  } else if (verb == QLatin1String("zoom")) {
    QRectF area;
    QPointF a, b;
    const QStringList parts = rest.split(u' ', Qt::SkipEmptyParts);
    if (view && parts.value(0) == QLatin1String("extents")) {
      view->zoomExtents();
    } else if (view && parts.value(0) == QLatin1String("window") && parts.size() == 2) {
      const QStringList v = parts[1].split(u',');
      if (v.size() == 4 && parsePoint(v[0] + u',' + v[1], a) && parsePoint(v[2] + u',' + v[3], b)) {
        ViewTransform t = view->view();
        t.fit(QRectF(a, b).normalized(), 0.0);
        view->setView(t);
      } else {
        fail(QStringLiteral("zoom window wants X0,Y0,X1,Y1"));
      }
    } else {
      fail(QStringLiteral("cannot zoom %1").arg(rest));
    }
  } else if (verb == QLatin1String("size")) {
    const QStringList v = rest.split(u' ', Qt::SkipEmptyParts);
    m_window.resize(v.value(0).toInt(), v.value(1).toInt());
  } else if (verb == QLatin1String("screenshot")) {
    if (!m_window.grab().save(rest))
      fail(QStringLiteral("cannot save the screenshot %1").arg(rest));
    else
      std::printf("screenshot: %s\n", rest.toUtf8().constData());
  } else if (verb == QLatin1String("expect")) {
    const qsizetype at = rest.indexOf(u' ');
    const QString what = rest.left(at), value = rest.mid(at + 1);
    if (what == QLatin1String("entities")) {
      HostDocumentImpl* document = HostApp::instance().documents().current();
      const std::size_t n = entityCount(document ? document->database() : nullptr);
      if (n != value.toULongLong())
        fail(QStringLiteral("expected %1 entities, found %2").arg(value).arg(n));
      else
        std::printf("expect entities %s: ok\n", value.toUtf8().constData());
    } else if (what == QLatin1String("output")) {
      if (!m_window.commandLine()->historyText().contains(value))
        fail(QStringLiteral("the command line did not print \"%1\"").arg(value));
      else
        std::printf("expect output \"%s\": ok\n", value.toUtf8().constData());
    } else {
      fail(QStringLiteral("cannot expect %1").arg(what));
    }
  } else if (verb == QLatin1String("exit")) {
    m_done = true;
    emit finished(m_failures);
    return false;
  } else {
    fail(QStringLiteral("unknown step: %1").arg(line));
  }
  return true;
}
