// The host's system variables by name, and its store of named values that
// are no system variable (the hatch command's "hatch_type" and
// "hatch_pattern_file").
#pragma once

#include "sdk/db/OdResBuf.h"

#include <boost/any.hpp>

class OdDbDatabase;

class HostSystemVariables
{
public:
  enum Status
  {
    kOk,
    kUnknown,  // no variable of that name
    kReadOnly, // it can be read only
    kBadType,  // the value's kind does not fit the variable
    kBadValue  // out of range, or no record of that name
  };

  virtual ~HostSystemVariables() = default;
  // The value of a variable, in a resbuf whose type is the result code of
  // the variable's kind (kRtInt16, kRtDouble, kRtAngle in radians,
  // kRtString, kRtColor, kRtPoint3d). Null when no variable has that name
  // (ignoring case). `database` null means the current document's drawing;
  // variables a drawing does not hold have their defaults.
  virtual OdResBufPtr getVar(const OdString& name, OdDbDatabase* database = nullptr) = 0;
  // Sets a variable from a value of any fitting kind: numbers convert
  // among themselves, a colour may come as a colour or an index. Fires the
  // editor reactors' sysVarChanged on success.
  virtual Status setVar(const OdString& name, const OdResBuf* value, OdDbDatabase* database = nullptr) = 0;
};

// Named values the host keeps for its commands. Names compare exactly;
// values are whatever the setter gave (an int, an OdString, ...).
class HostVariableStore
{
public:
  virtual ~HostVariableStore() = default;
  // False, with `value` untouched, when nothing is stored under the name.
  virtual bool getValue(const OdString& name, boost::any& value) const = 0;
  virtual void setValue(const OdString& name, const boost::any& value) = 0;
};
