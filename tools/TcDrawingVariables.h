// The drawing's and the host's variables as tools read and set them around
// a run: system variables by name, the host's store of named values, and
// the factors of an auxiliary scale.
#pragma once

#include "sdk/db/OdResBuf.h"
#include "sdk/kernel/OdString.h"

#include <boost/any.hpp>

class OdDbDatabase;

namespace tc {

// The value of a system variable of `database`; null when the host has no
// variable of that name (or no variables at all).
OdResBufPtr readSystemVariable(const OdString& name, OdDbDatabase* database);
// Sets a system variable; false when the host refuses it.
bool writeSystemVariable(const OdString& name, const OdResBuf* value, OdDbDatabase* database);

// The host's store of named values; false, with `value` untouched, when
// nothing is stored under the name or the host has no store.
bool readStoredValue(const OdString& name, boost::any& value);
void writeStoredValue(const OdString& name, const boost::any& value);

// The standard scale of the plot settings of the active space's layout;
// false when the layout gives no plot settings or they carry no scale.
bool activeLayoutStdScale(OdDbDatabase* database, double& scale);

} // namespace tc
