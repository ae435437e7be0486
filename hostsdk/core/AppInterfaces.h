// The application object of the host and the interfaces it answers for:
// the configuration tree, the standard folders, the user data folder and
// the notices of changed options.
#pragma once

#include "hostsdk/core/CRkVariant.h"
#include "hostsdk/core/CXStringW.h"
#include "hostsdk/core/RkUnknown.h"

#include <vector>

// A node of the configuration tree: named values and named sub-folders.
class IConfigManager : public IRkUnknown
{
public:
  RK_DECLARE_IID(IConfigManager);
  virtual CXStringW name() const = 0;
  // Opens a sub-folder; with `create` a missing one is made. Returns false
  // and leaves `out` null when there is none.
  virtual bool openFolder(const char* name, bool create, IConfigManager** out) = 0;
  virtual bool deleteFolder(const char* name) = 0;
  virtual bool getValue(const char* name, CRkVariant& value) const = 0;
  virtual bool setValue(const char* name, const CRkVariant& value) = 0;
  virtual bool deleteValue(const char* name) = 0;
  virtual std::vector<std::string> valueNames() const = 0;
  virtual std::vector<std::string> folderNames() const = 0;
};

// One value of the configuration, as an object.
class IConfigParam : public IRkUnknown
{
public:
  RK_DECLARE_IID(IConfigParam);
  virtual CXStringW name() const = 0;
  virtual bool getValue(CRkVariant& value) const = 0;
  virtual bool setValue(const CRkVariant& value) = 0;
};

class IProfile : public IRkUnknown
{
public:
  RK_DECLARE_IID(IProfile);
  virtual bool getRoot(IConfigManager** out) = 0;
  // The value `name` in the folder at `path` ("A/B"), as a parameter object.
  virtual bool getParam(const char* path, const char* name, bool create, IConfigParam** out) = 0;
};

// The standard folders: "ToolPaletteDir", "CommonDirs", "Shx", ... Text
// comes as a wide string (type 19).
class IStdDirs : public IRkUnknown
{
public:
  RK_DECLARE_IID(IStdDirs);
  virtual bool getValue(const char* key, CRkVariant& out) = 0;
};

class IAppInterior : public IRkUnknown
{
public:
  RK_DECLARE_IID(IAppInterior);
  // The user's data folder of the host, without a trailing separator.
  virtual CXStringW userDataFolder() = 0;
};

// Told of every change of the host's options.
class IPropReactor : public IRkUnknown
{
public:
  RK_DECLARE_IID(IPropReactor);
  virtual int onChange(const char* property, const CRkVariant& value) = 0;
};

class IAppProp : public IRkUnknown
{
public:
  RK_DECLARE_IID(IAppProp);
  // The host keeps a counted reference until removePropReactor.
  virtual bool addPropReactor(IPropReactor* reactor) = 0;
  virtual bool removePropReactor(IPropReactor* reactor) = 0;
};

// The host's evaluator of expressions typed where a number is asked for
// ("2*3"); a host may have none.
class IRkExpressionEvaluator : public IRkUnknown
{
public:
  RK_DECLARE_IID(IRkExpressionEvaluator);
  // False, with the evaluator's reason in `message`, for a text it cannot
  // evaluate.
  virtual bool evaluate(const CXStringW& expression, double& value, CXStringW& message) = 0;
};

// The application; answers queryInterface for IProfile, IAppProp, IStdDirs,
// IAppInterior and ICmdFactory.
class IApp : public IRkUnknown
{
public:
  RK_DECLARE_IID(IApp);
};
