// The host's button resource: a picture of each host command in the four
// size classes of tool pictures, looked up by the resource name a catalog
// gives (the markers "%ProgramBtnRes%" and "acadbtn.xmx").
#pragma once

#include "sdk/kernel/OdString.h"

#include <QImage>

class HostButtonResource
{
public:
  // Rendered at build time from the SVG drawings of the buttons; it stands
  // beside this library in a build tree and in ../share/verdani when
  // installed.
  static constexpr const char* kFileName = "verdanibtn.rcc";

  // The picture of `name` (see resourceKey) in the size class 1, 2, 3 or 4:
  // 16, 24, 32 or 64 pixels square, any other class 16. With transparency:
  // the caller puts it over its own background. Null for an unknown name,
  // or when the resource file is missing.
  static QImage image(const OdString& name, int sizeClass);
  // The key a name is found by: the long form "...RCDATA..._name" gives the
  // part behind the last "_", in lower case; any other name is taken in
  // lower case as it stands.
  static OdString resourceKey(const OdString& name);
  // The resource file in use; empty when none was found.
  static OdString filePath();
};
