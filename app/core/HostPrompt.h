// What the running command asks for, as a desktop host reads it to choose
// its cursor (a cross-hair for points, a pick box for objects) and to draw
// a rubber band from the base point; and one answer to it.
#pragma once

#include "sdk/db/OdDbObjectId.h"
#include "sdk/db/OdGeTypes.h"

#include <vector>

struct HostPrompt
{
  enum Kind
  {
    kNone,     // no command waits for input
    kString,   // a word; a blank ends it
    kText,     // a line of text, blanks included
    kPoint,
    kAngle,    // typed in degrees, or a point seen from the base point
    kDistance, // a number, or a point measured from the base point
    kReal,
    kInteger,
    kEntity,   // an object of the drawing: its handle typed, or picked
    kEntityOrPoint // an object, or a point that starts a polygon
  };
  Kind kind = kNone;
  OdString message; // as printed, "Specify next point or [Undo]: "
  std::vector<OdString> keywords;
  bool hasBasePoint = false;
  OdGePoint3d basePoint;

  // Whether a clicked point or a picked object answers this prompt.
  bool takesPoint() const
  {
    return kind == kPoint || kind == kAngle || kind == kDistance || kind == kEntityOrPoint;
  }
  bool takesEntity() const { return kind == kEntity || kind == kEntityOrPoint; }
  bool allowsSpaces() const { return kind == kText; }
};

struct HostInput
{
  enum Kind
  {
    kText,   // typed text, without its Enter
    kPoint,  // a clicked point
    kEntity, // a picked object
    kCancel  // "^C", Esc, or the end of input
  };
  Kind kind = kCancel;
  OdString text;
  OdGePoint3d point;
  OdDbObjectId entity;
};
