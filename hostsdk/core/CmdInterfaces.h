// Commands: what a module registers with the host's command factory, and
// what the factory hands back to run a command by name.
#pragma once

#include "hostsdk/core/CRkVariant.h"
#include "hostsdk/core/RkUnknown.h"

// A command object of the class kind.
class ICmdProcess : public IRkUnknown
{
public:
  RK_DECLARE_IID(ICmdProcess);
  virtual int run(IRkUnknown* argument) = 0;
  virtual int prepare() = 0;
  virtual int finish(IRkUnknown* argument) = 0;
  // 1 plain, 3 marked as on (for a toggle shown in a menu).
  virtual int getState() = 0;
  virtual int getContext(IRkUnknown** out) = 0;
  virtual void setContext(IRkUnknown* context) = 0;
};

// Named parameters of a command run by name.
class IMemParam : public IRkUnknown
{
public:
  RK_DECLARE_IID(IMemParam);
  virtual void setValue(const char* name, const CRkVariant& value) = 0;
  virtual bool getValue(const char* name, CRkVariant& value) const = 0;
};

// A command found by name, ready to run.
class ICmdRun : public IRkUnknown
{
public:
  RK_DECLARE_IID(ICmdRun);
  virtual int run(IMemParam* parameters) = 0;
};

// creator(out, reserved): makes a new command object, stores it in `out`,
// returns 1.
using CmdCreatorFn = int (*)(ICmdProcess** out, void* reserved);
using CmdFunction = void (*)();

class ICmdFactory : public IRkUnknown
{
public:
  RK_DECLARE_IID(ICmdFactory);
  virtual bool registerCommandClass(const char* name, CmdCreatorFn creator, const OdString& group, int reserved1,
                                    int reserved2, int reserved3) = 0;
  virtual bool registerCommandFunction(const OdString& group, const OdString& localName,
                                       const OdString& globalName, int reserved1, CmdFunction function,
                                       int reserved2, int reserved3) = 0;
  virtual bool getCommand(const OdString& name, ICmdRun** out) = 0;
};

// Makes an empty bag of named parameters.
IMemParam* new_MemParam();
