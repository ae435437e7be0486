// The host's file and folder dialogs. Filters come in the host's form,
// "Description|*.a;*.b|Other|*.c||". Without windows each dialog asks for
// the name on the command line.
#pragma once

#include "sdk/kernel/OdString.h"

#include <QString>

class QWidget;

// The filter in Qt's form: "Description (*.a *.b);;Other (*.c)".
QString hostUiQtFilter(const OdString& filter);

// An existing file. False when cancelled (or, typed, when the file is not
// there; the user is told).
bool hostUiGetOpenFileName(QWidget* parent, const OdString& title, const OdString& filter,
                           const OdString& defaultExtension, const OdString& initialPath, OdString& path);
// A file to write; a name without an extension gets `defaultExtension`
// ("xtp", without the dot). With `overwritePrompt` the user confirms
// replacing a file that exists.
bool hostUiGetSaveFileName(QWidget* parent, const OdString& title, const OdString& filter,
                           const OdString& defaultExtension, const OdString& initialPath, bool overwritePrompt,
                           OdString& path);
// An existing folder.
bool hostUiBrowseForFolder(QWidget* parent, const OdString& title, const OdString& initialFolder, OdString& folder);
