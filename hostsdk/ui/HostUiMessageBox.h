// Message boxes of the host: the plain one in a window, and the one with a
// check box that stops it for good.
#pragma once

#include "sdk/kernel/OdString.h"

class QWidget;

// A message box in a window. Style and answers as hostMessageBox has them
// (buttons in the low four bits, the icon in the next four, the default
// button in the next: 0x100 second, 0x200 third).
int hostUiShowMessageBox(QWidget* parent, const OdString& text, const OdString& caption, unsigned style);

// A message box with a check box ("Do not show this message again" unless
// `checkText` says otherwise). When the user ticks it, the answer is kept in
// the host's configuration under `key` ("Folder\Name"), and later calls
// with that key answer it at once without a box. Without windows the text
// goes to the command line and the default button answers (or the kept
// answer, when there is one). An empty key keeps nothing.
int hostShowMessageBoxWithCheckBox(QWidget* parent, const OdString& text, const OdString& key,
                                   const OdString& caption, unsigned style, const OdString& checkText);

// Forgets the kept answer of `key`, so that the box shows again. True when
// there was one.
bool hostResetMessageBoxWithCheckBox(const OdString& key);
