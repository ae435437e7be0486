// The shared helpers of the picture tests, and the host lookups of the test
// program, so that the module finds a command line to print on.
#include "tests/images/ImageTestSupport.h"

#include "persist/OdTcTagTable.h"

#include "hostsdk/core/HostLookup.h"
#include "hostsdk/core/HostServices.h"

#include <QFileInfo>

#include <utility>

#include <dlfcn.h>

namespace tst {

namespace {

std::string& printed()
{
  static std::string text;
  return text;
}

class Output : public HostCommandOutput
{
public:
  void printText(const OdString& text) override { printed() += text.toUtf8(); }
};

class Events : public HostEditorEvents
{
public:
  void addReactor(HostEditorReactor*) override {}
  void removeReactor(HostEditorReactor*) override {}
};

class Completion : public HostEdCompletion::Registry
{
public:
  void addProvider(const OdString&, const HostEdCompletion::Provider*) override {}
  void removeProvider(const OdString&, const HostEdCompletion::Provider*) override {}
};

class Services : public HostServices
{
public:
  HostDocument* currentDocument() override { return nullptr; }
  HostCommandOutput* commandOutput() override { return &m_output; }
  HostEditorEvents* editorEvents() override { return &m_events; }
  HostEdCompletion::Registry* completionRegistry() override { return &m_completion; }
  QWidget* mainWindow() override { return nullptr; }

private:
  Output m_output;
  Events m_events;
  Completion m_completion;
};

HostServices* services()
{
  static Services s;
  return &s;
}

tc::OdTcPersistPtr makeTool()
{
  return TstTool::create(OdString());
}

} // namespace

tc::OdTcCatalogItemPtr TstTool::create(const OdString& name)
{
  tc::OdTcCatalogItemPtr tool(new OdRxObjectImpl<TstTool>, kOdRxObjAttach);
  if (!name.isEmpty())
    tool->setName(name);
  return tool;
}

void registerImageTestClasses()
{
  registerModelClasses();
  tc::OdTcTagTable::instance().registerTag("Tool", &makeTool);
}

tc::OdTcImagePtr pictureInMemory(int sizeClass, const OdString& src, const OdString& command)
{
  tc::OdTcImagePtr image = tc::OdTcImageImpl::createNew(sizeClass, tc::kProgramBtnRes, command);
  image->getBitmap();
  image->setSource(src, OdString());
  return image;
}

bool samePixels(const QImage& a, const QImage& b)
{
  return !a.isNull() && a.convertToFormat(QImage::Format_RGB32) == b.convertToFormat(QImage::Format_RGB32);
}

std::string takePrinted()
{
  return std::exchange(printed(), std::string());
}

QString externalData()
{
  const QString folder = QStringLiteral(VERDANI_EXTERNAL_DATA);
  return QFileInfo(folder).isDir() ? folder : QString();
}

} // namespace tst

extern "C" {

void* GetMainDllInstance()
{
  return dlopen(nullptr, RTLD_NOW);
}

void* get_host_funcptr(int id)
{
  return id == kHostServicesFuncId ? reinterpret_cast<void*>(&tst::services) : nullptr;
}
}
