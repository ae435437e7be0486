// The functions through which a module finds its host. The host program
// exports them with C linkage; a module looks them up by name at run time.
#pragma once

class HostServices;
class IApp;
class ICmdFactory;

extern "C" {
// The handle of the host's main library (a dlopen handle).
using GetMainDllInstanceFn = void* (*)();
// get_host_funcptr(2) gives a function that returns HostServices.
using HostServicesFn = HostServices* (*)();
using GetHostFuncPtrFn = void* (*)(int id);
// A counted reference to the application, or null.
using GetAppFn = IApp* (*)();
// The file name of the host's main library.
using GetMainDllNameWFn = const wchar_t* (*)();
// Fills `out` with a counted command factory.
using NewICmdFactoryFn = void (*)(ICmdFactory** out);
}

inline constexpr int kHostServicesFuncId = 2;
