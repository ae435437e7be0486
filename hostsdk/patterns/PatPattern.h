// A hatch pattern as a .pat file defines it: a name, a description and its
// families of parallel lines.
#pragma once

#include "sdk/db/OdGeTypes.h"
#include "sdk/kernel/OdString.h"

#include <utility>
#include <vector>

// One line of a pattern definition: a family of parallel lines.
struct PatLineFamily
{
  double angle = 0.0; // degrees, counter-clockwise from the X axis
  OdGePoint2d origin; // a point that one line of the family passes through
  // From one line to the next, in the family's own axes: `x` along the
  // lines (the shift of the dash sequence), `y` across them (the spacing).
  OdGeVector2d delta;
  // Pen down for a positive length, pen up for a negative one, a dot for 0.
  // Empty: continuous lines.
  std::vector<double> dashes;
};

class PatPattern
{
public:
  PatPattern() = default;
  PatPattern(OdString name, OdString description, std::vector<PatLineFamily> families)
      : m_name(std::move(name)), m_description(std::move(description)), m_families(std::move(families))
  {
  }

  // The name as the file spells it; names compare ignoring case.
  const OdString& name() const { return m_name; }
  const OdString& description() const { return m_description; }
  const std::vector<PatLineFamily>& families() const { return m_families; }
  bool isNamed(const OdString& name) const { return m_name.iCompare(name) == 0; }

private:
  OdString m_name;
  OdString m_description;
  std::vector<PatLineFamily> m_families;
};
