// The host's core services: translation of user texts and file tests.
#pragma once

#include "sdk/kernel/OdString.h"

class HostServices;
class IApp;

// The host's translation of a key or text. Without an installed catalog, or
// for a text the catalog lacks, the text comes back unchanged.
OdString Supp_Translate(const OdString& text);

// Installs a translation catalog: a file of lines "source<TAB>translation"
// (UTF-8; "\n" and "\t" escapes allowed). An empty path removes it. Returns
// false when the file cannot be read.
bool Supp_InstallTranslations(const OdString& catalogFile);

// True when a file or folder of that path exists.
bool Fio_IsFileExist(const OdString& path);

// True when `folder` exists and a file can be created in it: tested by
// creating and removing a file, since permission bits alone do not tell on
// read-only mounts.
bool Fio_IsWritableDir(const OdString& folder);

// Deletes a file (a link itself, never what it points to); false, with the
// system's reason when `reason` is given, when it cannot.
bool Fio_DeleteFile(const OdString& path, OdString* reason = nullptr);

// Message boxes of the host. Styles as the host knows them: 0 OK, 1 OK and
// Cancel, 4 Yes and No, 3 Yes, No and Cancel; plus 16 error, 32 question,
// 48 warning, 64 information. Answers: 1 OK, 2 Cancel, 6 Yes, 7 No.
enum HostMessageBoxAnswer
{
  kHostIdOk = 1,
  kHostIdCancel = 2,
  kHostIdYes = 6,
  kHostIdNo = 7
};
using HostMessageBoxHandler = int (*)(const OdString& text, const OdString& caption, unsigned style);
// The host installs how boxes are shown: a window in the desktop program, a
// print on the command line in the console (which answers the default
// button, so that scripts never wait).
void hostSetMessageBoxHandler(HostMessageBoxHandler handler);
int hostMessageBox(const OdString& text, const OdString& caption, unsigned style);
// The answer a box of that style gives without a user: its first button.
int hostDefaultMessageBoxAnswer(unsigned style);

// The running host as the host's own service libraries (the UI kit) reach
// it: its services and its application object. The host sets both when it
// starts and clears them when it stops; null while no host runs. Neither
// is owned here.
void hostSetContext(HostServices* services, IApp* app);
HostServices* hostContextServices();
IApp* hostContextApp();

// The host's command route map: an XML file that names, for each class of
// drawing object, the command that draws one. The host sets its path when
// it starts; empty while it has none.
OdString hostGetCmdRouteMap();
void hostSetCmdRouteMap(const OdString& path);
