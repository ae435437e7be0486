// The host's texts of distances and angles in a drawing's units, and back:
// hostdbRToS and hostdbDisToF over LUNITS and LUPREC, hostdbAngToS and
// hostdbAngToF over AUNITS and AUPREC.
#pragma once

#include "sdk/kernel/OdString.h"

class OdDbDatabase;

// Linear units: 1 scientific, 2 decimal, 3 engineering (feet and decimal
// inches), 4 architectural (feet and fractional inches), 5 fractional.
// Angular units: 0 decimal degrees, 1 degrees/minutes/seconds, 2 grads,
// 3 radians, 4 surveyor's units.
// A unit or precision of -1 takes the drawing's (LUNITS, LUPREC, AUNITS,
// AUPREC); a null drawing has the defaults 2, 4, 0, 0.

OdString hostdbRToS(double value, int unit = -1, int precision = -1, const OdDbDatabase* database = nullptr);
// Reads a distance typed in any of the linear forms (the unit decides how
// a plain number of an engineering or architectural drawing is taken: in
// inches). False, leaving `value`, for a text that is no distance.
bool hostdbDisToF(const OdString& text, int unit, double& value, const OdDbDatabase* database = nullptr);

// Angles in radians, counter-clockwise from east.
OdString hostdbAngToS(double angle, int unit = -1, int precision = -1, const OdDbDatabase* database = nullptr);
// Reads an angle typed in any of the angular forms; a plain number is in
// `unit`. False, leaving `angle`, for a text that is no angle.
bool hostdbAngToF(const OdString& text, int unit, double& angle, const OdDbDatabase* database = nullptr);
