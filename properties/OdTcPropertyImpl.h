// OdTcPropertyImpl and OdTcDatabasePropertyImpl: the plain properties that
// the class descriptions make: a value record and nothing that acts.
#pragma once

#include "properties/OdTcDatabasePropertyImplBase.h"

namespace tc {

class OdTcPropertyImpl : public OdTcPropertyImplBase<OdTcProperty>
{
public:
  static OdTcPropertyPtr createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
};

class OdTcDatabasePropertyImpl : public OdTcDatabasePropertyImplBase<OdTcDatabaseProperty>
{
public:
  static OdTcDatabasePropertyPtr createNew();
  static OdRxObjectPtr pseudoConstructor();
  OdRxObjectPtr clone() const override;
};

} // namespace tc
