// IDTExtensibility2 as the environment knows it: what an add-in answers.
#pragma once

#include <oaidl.h>
#include <windows.h>

namespace corvane::stage {

enum ConnectMode : LONG { kAfterStartup = 0, kStartup = 1, kExternal = 2, kCommandLine = 3 };
enum RemoveMode : LONG { kHostShutdown = 0, kUserClosed = 1 };

// B65AD801-ABAF-11D0-BB8B-00A0C90F2744
constexpr IID kExtensibility2 = {0xb65ad801, 0xabaf, 0x11d0, {0xbb, 0x8b, 0x00, 0xa0, 0xc9, 0x0f, 0x27, 0x44}};
// Its forerunner, which the environment asks for as well.
constexpr IID kExtensibility = {0x0002e151, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

struct Extensibility2 : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, LONG mode, IDispatch* instance,
                                                 SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnDisconnection(LONG mode, SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

}  // namespace corvane::stage
