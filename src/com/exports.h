// What the library gives to the system: its class, whether it may be unloaded, its registration.
#pragma once

#include "com/com_api.h"

extern "C" {

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID id, REFIID iid, void** object);
// S_FALSE for good once an add-in was made.
HRESULT STDAPICALLTYPE DllCanUnloadNow();
// For the user who calls it.
HRESULT STDAPICALLTYPE DllRegisterServer();
HRESULT STDAPICALLTYPE DllUnregisterServer();
// `regsvr32 /i:machine` registers the class for all users; "user" and no word are DllRegisterServer. E_INVALIDARG for
// another word.
HRESULT STDAPICALLTYPE DllInstall(BOOL install, LPCWSTR word);
}
