// The exported lookups of the host core, declared for programs and tests
// that call them directly (modules look them up by name; see HostLookup.h).
#pragma once

#include "hostsdk/core/HostLookup.h"

extern "C" {
void* GetMainDllInstance();
void* get_host_funcptr(int id);
IApp* GetApp();
const wchar_t* GetMainDllNameW();
void new_ICmdFactory(ICmdFactory** out);
}
