// verdani: the desktop CAD host.
#include "app/core/HostApp.h"
#include "app/gui/DrawingView.h"
#include "app/gui/EventScript.h"
#include "app/gui/GuiOptions.h"
#include "app/gui/MainWindow.h"
#include "sdk/dxf/OdDxf.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

// --render: the drawing as the view shows it, into a picture, no window.
int renderDrawing(const GuiOptions& options)
{
  OdDbDatabasePtr db;
  try {
    db = odDxfReadFile(options.drawings.front());
  } catch (const OdError& e) {
    std::fprintf(stderr, "verdani: %s\n", e.description().toUtf8().c_str());
    return 1;
  }
  DrawingView view;
  view.resize(options.size.isEmpty() ? QSize(1200, 800) : options.size);
  view.setDatabase(db.get());
  ViewTransform t = view.view();
  t.setViewport(view.size());
  if (options.window)
    t.fit(*options.window, 0.0);
  const QImage image = view.renderImage(t);
  if (!image.save(options.render.qstring())) {
    std::fprintf(stderr, "verdani: cannot write %s.\n", options.render.toUtf8().c_str());
    return 1;
  }
  const QRectF shown = t.worldRect();
  std::printf("window: %.17g,%.17g,%.17g,%.17g\n", shown.left(), shown.top(), shown.right(), shown.bottom());
  return 0;
}

} // namespace

int main(int argc, char* argv[])
{
  QApplication qtApp(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Verdani"));
  std::vector<OdString> arguments;
  for (int i = 1; i < argc; ++i)
    arguments.push_back(OdString(QString::fromLocal8Bit(argv[i])));
  GuiOptions options;
  OdString error;
  if (!options.parse(arguments, error)) {
    std::fprintf(stderr, "verdani: %s\n%s", error.toUtf8().c_str(), GuiOptions::usage().toUtf8().c_str());
    return 2;
  }
  if (options.help) {
    std::fputs(GuiOptions::usage().toUtf8().c_str(), stdout);
    return 0;
  }
  if (!options.render.isEmpty())
    return renderDrawing(options);

  HostApp& app = HostApp::instance();
  int failures = 0;
  {
    MainWindow window(app);
    window.resize(options.size.isEmpty() ? QSize(1280, 800) : options.size);
    window.show();
    window.startHost(options);
    EventScript script(window);
    if (!options.events.isEmpty()) {
      QString message;
      if (!script.load(options.events.qstring(), message)) {
        std::fprintf(stderr, "verdani: %s\n", message.toUtf8().constData());
        failures = 1;
      } else {
        QObject::connect(&script, &EventScript::finished, &window, [&](int n) {
          failures = n;
          window.closeDiscardingChanges();
        });
        script.start();
      }
    } else if (!options.screenshot.isEmpty()) {
      script.setLines({QStringLiteral("wait 300"), "screenshot " + options.screenshot.qstring(), QStringLiteral("exit")});
      QObject::connect(&script, &EventScript::finished, &window, [&](int n) {
        failures = n;
        window.closeDiscardingChanges();
      });
      script.start();
    }
    if (!app.exitRequested())
      qtApp.exec();
    window.stopHost();
  }
  return failures ? 1 : 0;
}
