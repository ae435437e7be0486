// OdDmUtil: dimension helpers (the built-in arrow blocks).
#pragma once

#include "sdk/db/OdDbObjectId.h"

class OdDmUtil
{
public:
  // True for the names of the arrowheads every drawing program knows
  // ("_ArchTick", "Oblique", "" for closed filled), with or without the
  // leading underscore, ignoring case.
  static bool isBuiltInArrow(const OdString& name);
  // The block of an arrow; with `create`, an empty definition is made when
  // the drawing has none, as drawing programs make them on first use.
  static OdDbObjectId getArrowId(const OdString& name, OdDbDatabase* db, bool create = false);
  // The block name of an arrow name ("Open" -> "_Open").
  static OdString arrowBlockName(const OdString& name);
};
