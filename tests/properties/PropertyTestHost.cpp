// The test program as a host with an expression evaluator: "GetApp" of the
// program gives an application whose evaluator knows products of numbers
// ("2*3"), and nothing else.
#include "hostsdk/core/AppInterfaces.h"

#include <QStringList>

#include <dlfcn.h>

namespace {

class Evaluator : public CRkUnknownImpl<IRkExpressionEvaluator>
{
public:
  bool evaluate(const CXStringW& expression, double& value, CXStringW& message) override
  {
    double product = 1.0;
    for (const QString& factor : OdString(expression).qstring().split('*')) {
      bool ok = false;
      product *= factor.trimmed().toDouble(&ok);
      if (!ok) {
        message = CXStringW("not a product");
        return false;
      }
    }
    value = product;
    return true;
  }
};

class App : public CRkUnknownImpl<IApp>
{
public:
  bool queryInterface(const char* iid, void** out) override
  {
    if (rkSameIID(iid, IRkExpressionEvaluator::kIID)) {
      *out = static_cast<IRkExpressionEvaluator*>(new Evaluator);
      return true;
    }
    return CRkUnknownImpl<IApp>::queryInterface(iid, out);
  }
};

} // namespace

extern "C" {

__attribute__((visibility("default"))) void* GetMainDllInstance()
{
  return dlopen(nullptr, RTLD_NOW);
}

__attribute__((visibility("default"))) IApp* GetApp()
{
  static IApp* app = new App;
  app->addRef();
  return app;
}
}
