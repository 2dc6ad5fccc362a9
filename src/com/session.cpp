#include "com/session.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "com/guarded.h"
#include "com/objects.h"
#include "forms/form.h"

namespace corvane::com {

Session::Session(std::unique_ptr<Home> home) : home_(std::move(home)), connect_(home_->Services(), home_->Toolkit()) {}

namespace {

// Null where the environment does not tell it.
HWND MainWindowOf(const Value& application) {
  HWND window = nullptr;
  host::PassOverErrors([&] {
    Dispatch main(Dispatch(application.ToObject()).Get(L"MainWindow").ToObject());
    window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(main.Get(L"HWnd").ToLong()));
  });
  return IsWindow(window) ? window : nullptr;
}

bool IsShown(const forms::Toolkit& toolkit, const forms::Form* form) {
  const auto& shown = toolkit.ShownForms();
  return std::find(shown.begin(), shown.end(), form) != shown.end();
}

// A modal window would keep its handler waiting for a user who sees it no more. Each window is asked once: one that is
// being unloaded below this call stays as it is until that goes on.
void CloseAll(forms::Toolkit& toolkit) {
  const std::vector<forms::Form*> shown = toolkit.ShownForms();
  for (auto form = shown.rbegin(); form != shown.rend(); ++form)
    if (IsShown(toolkit, *form)) host::PassOverErrors([&] { (*form)->Unload(); });
  // Those that refused, and what came up meanwhile.
  const std::vector<forms::Form*> left = toolkit.ShownForms();
  for (auto form = left.rbegin(); form != left.rend(); ++form)
    if (IsShown(toolkit, *form)) (*form)->Hide();
}

}  // namespace

void Session::Connect(IDispatch* application, addin::ConnectMode mode) {
  home_->Toolkit().Guard([&] {
    const Value root(application);
    home_->SetHostWindow(MainWindowOf(root));
    connect_.AddinInstance_OnConnection(Wrap<host::VBE>(root), mode);
  });
}

ScriptHome& Session::Scripts() {
  if (!scripts_ && !connect_.VBInstance) throw host::Error(runtime::kObjectNotSet);
  if (!scripts_) scripts_ = std::make_unique<ScriptHome>(connect_.VBInstance, home_->Services());
  return *scripts_;
}

void Session::Disconnect(addin::DisconnectMode mode) {
  if (scripts_ && scripts_->IsRunning())
    scripts_->Stop();
  else
    scripts_.reset();
  Guarded([&] { connect_.AddinInstance_OnDisconnection(mode); });
  Guarded([&] { CloseAll(home_->Toolkit()); });
  connect_.VBInstance = nullptr;
}

void Session::Run(const std::function<void(addin::Connect& add_in)>& act) {
  std::optional<host::Error> failed;
  home_->Toolkit().Guard([&] {
    try {
      act(connect_);
    } catch (const host::Error& error) {
      failed = error;
    }
  });
  if (failed) throw *failed;
}

namespace {

constexpr UINT kLookAgain = 50;  // milliseconds

// Sessions of which something is still running below a disconnection, and the timer that looks after them.
struct Leaving {
  std::vector<std::unique_ptr<Session>> sessions;
  UINT_PTR timer = 0;
};

// Never destroyed: at the end of the process nothing of COM may be called any more.
Leaving& LeavingSessions() {
  static Leaving& leaving = *new Leaving;
  return leaving;
}

void CALLBACK LookAgain(HWND, UINT, UINT_PTR, DWORD) {
  Leaving& leaving = LeavingSessions();
  std::vector<std::unique_ptr<Session>> done;
  const auto first =
      std::partition(leaving.sessions.begin(), leaving.sessions.end(), [](auto& session) { return session->IsBusy(); });
  std::move(first, leaving.sessions.end(), std::back_inserter(done));
  leaving.sessions.erase(first, leaving.sessions.end());
  if (leaving.sessions.empty() && leaving.timer) {
    KillTimer(nullptr, leaving.timer);
    leaving.timer = 0;
  }
}

}  // namespace

void LetGo(std::unique_ptr<Session> session) {
  if (!session->IsBusy()) return;
  Leaving& leaving = LeavingSessions();
  leaving.sessions.push_back(std::move(session));
  if (!leaving.timer) leaving.timer = SetTimer(nullptr, 0, kLookAgain, &LookAgain);
}

}  // namespace corvane::com
