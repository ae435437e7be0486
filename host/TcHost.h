// How the module finds its host: the three lookups by name, and the command
// line that user messages go to.
#pragma once

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/CmdInterfaces.h"
#include "hostsdk/core/HostServices.h"

namespace tc {

// The handle of the host's main library: "GetMainDllInstance" of the
// program, else the loaded "hostview", else "GetMainDllInstanceEx" of the
// loaded "hostapp". Null when none answers.
void* hostMainLibrary();

// HostServices through get_host_funcptr(2) of the main library; null when the
// host does not offer it. The module treats the host as always present.
HostServices* hostServices();

// A new counted command factory, or null (then nothing gets registered).
CRkPtr<ICmdFactory> hostCmdFactory();

// The application object, looked up anew: "GetApp" of the loaded
// "hostapp", else of the main library, else the core's object factory.
CRkPtr<IApp> lookupHostApp();

// What the module keeps of its host while it runs: the application object,
// looked up at the first success and held until the session ends. Sessions
// nest; the newest is the current one.
class TcHostSession
{
public:
  TcHostSession();
  ~TcHostSession();
  TcHostSession(const TcHostSession&) = delete;
  TcHostSession& operator=(const TcHostSession&) = delete;

  CRkPtr<IApp> app();

private:
  CRkPtr<IApp> m_app;
  TcHostSession* m_previous;
};

// The application object: the current session's, else looked up anew. A
// counted reference for the caller.
CRkPtr<IApp> hostApp();

// The command line for user messages: the current document's, or the
// application's when there is no document. Null without a host.
HostCommandOutput* hostCommandOutput();

// Prints a message for the user; the text is a format.
template <class... Args>
void hostPrint(const OdString& format, const Args&... args)
{
  if (HostCommandOutput* out = hostCommandOutput())
    out->print(format, args...);
}

// A text value of the host's standard folders (IStdDirs): "ToolPaletteDir",
// "CommonDirs", "Shx". Narrow and wide texts count; anything else, a missing
// value or a missing interface give false and an empty text.
bool readStdDir(const char* key, OdString& out);

// The user's home folder, where Windows has the user profile; empty when
// it cannot be had.
OdString userProfileFolder();

} // namespace tc
