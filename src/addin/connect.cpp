#include "addin/connect.h"

#include "explorer/project_access.h"

namespace corvane::addin {

using explorer::Object;
using host::PassOverErrors;
using host::Ref;

namespace {

constexpr char kSection[] = "Settings", kDisplayOnConnect[] = "DisplayOnConnect";
constexpr char kButtonCaption[] = "Corvane - 2000", kMenuCaption[] = "&Corvane - 2000";

host::ClickHandler Calling(std::function<void()> act) {
  return [act = std::move(act)](const Ref<host::CommandBarControl>&, bool&, bool&) { act(); };
}

// Not every environment tells when a program starts to run: then there are none.
Ref<host::VBBuildEvents> BuildEventsOf(host::Events& events) {
  try {
    return events.VBBuildEvents();
  } catch (const host::Error& error) {
    if (error.Number() != runtime::kNoSuchMember) throw;
  }
  return nullptr;
}

}  // namespace

Connect::Connect(host::Services& services, forms::Toolkit& toolkit) : services(services), toolkit(toolkit) {}

Connect::~Connect() = default;

void Connect::SetMenuHandler(Ref<host::CommandBarEvents> source) {
  onMenuHandler = source ? source->OnClick(Calling([this] { MenuHandler_Click(); })) : nullptr;
  menuHandler = std::move(source);
}

void Connect::SetMenuHand(Ref<host::CommandBarEvents> source) {
  onMenuHand = source ? source->OnClick(Calling([this] { MenuHand_Click(); })) : nullptr;
  menuHand = std::move(source);
}

void Connect::SetmStart(Ref<host::VBBuildEvents> source) {
  onStart = source ? source->OnEnterRunMode([this] { mStart_EnterRunMode(); }) : nullptr;
  start = std::move(source);
}

// Asked before an act of their own begins: from inside it they could never go.
void Connect::ForgetLeftWindows() {
  if (!toolkit.IsInAct()) left.clear();
}

explorer::frmAddIn& Connect::Window() {
  if (!form) form = std::make_unique<explorer::frmAddIn>(services, toolkit);
  return *form;
}

// A disconnection may come during a yield of the window's own handlers, which still go on behind it, but find no
// environment any more.
void Connect::LetGoOfWindow() {
  if (form) form->VBInstance = nullptr;
  if (form && toolkit.IsInAct()) left.push_back(std::move(form));
  form.reset();
  ForgetLeftWindows();
}

void Connect::AddinInstance_OnConnection(const Ref<host::VBE>& application, ConnectMode mode) {
  ForgetLeftWindows();
  VBInstance = application;
  try {
    ConnectTo(mode);
  } catch (const host::Error& error) {
    services.Prompts.MsgBox(error.Description());
  }
}

void Connect::ConnectTo(ConnectMode mode) {
  if (mode == ConnectMode::External) {
    Show(false);
  } else {
    mcbToolButton = AddToAddInCommandBar(kButtonCaption);
    mcbMenuItem = AddToAddInMenu(kMenuCaption);
    BindControls();
  }
  if (mode == ConnectMode::AfterStartup) ShowIfLastShown();
}

void Connect::BindControls() {
  Ref<host::Events> events;
  PassOverErrors([&] { events = Object(VBInstance).Events(); });
  SetMenuHandler(Object(VBInstance).Events()->CommandBarEvents(mcbToolButton));
  SetMenuHand(Object(VBInstance).Events()->CommandBarEvents(mcbMenuItem));
  if (events) SetmStart(BuildEventsOf(*events));
}

void Connect::ShowIfLastShown() {
  if (services.Settings.GetSetting(services.App.Title, kSection, kDisplayOnConnect, "0") == "1") Show(false);
}

Ref<host::CommandBarControl> Connect::AddToAddInCommandBar(const std::string& caption) {
  Ref<host::CommandBarControl> button;
  PassOverErrors([&] {
    Ref<host::CommandBar> bar = Object(VBInstance).CommandBars()->Item("Standard");
    if (!bar) return;
    Ref<host::CommandBarControls> controls = bar->Controls();
    // In front of the last control of the bar, not behind it.
    button = controls->Add(host::ControlType::Button, controls->Count());
    button->SetVisible(true);
    button->SetState(0);
    button->SetStyle(host::ButtonStyle::Icon);
    // A button takes its face from the clipboard alone; what was on it is lost.
    services.Clipboard.Clear();
    services.Clipboard.SetData(services.Pictures.LoadPicture(services.App.Path + "\\corvane.bmp"));
    button->PasteFace();
    button->SetCaption(caption);
  });
  return button;
}

Ref<host::CommandBarControl> Connect::AddToAddInMenu(const std::string& caption) {
  Ref<host::CommandBarControl> item;
  PassOverErrors([&] {
    Ref<host::CommandBar> menu = Object(VBInstance).CommandBars()->Item("Add-Ins");
    if (!menu) return;
    Ref<host::CommandBarControl> added = menu->Controls()->Add(host::ControlType::Button);
    added->SetCaption(caption);
    item = added;
  });
  return item;
}

void Connect::Show(bool display) {
  ForgetLeftWindows();
  toolkit.Guard([&] {
    PassOverErrors([&] {
      explorer::frmAddIn& window = Window();
      window.VBInstance = VBInstance;
      window.Connect = this;
      FormDisplayed = true;
      display ? window.Display() : window.Show();
    });
  });
}

void Connect::Hide() {
  FormDisplayed = false;
  PassOverErrors([&] { Window().Hide(); });
}

// The user's program starts with the explorer out of the way. Asking for the state of a window that was never opened
// loads it, out of sight.
void Connect::mStart_EnterRunMode() {
  ForgetLeftWindows();
  toolkit.Guard([&] {
    PassOverErrors([&] {
      explorer::frmAddIn& window = Window();
      window.LoadForm();
      bool minimised = window.WindowState() == forms::vbMinimized;
      if (!minimised && FormDisplayed) window.SetWindowState(forms::vbMinimized);
    });
  });
}

void Connect::AddinInstance_OnDisconnection(DisconnectMode) {
  PassOverErrors([&] {
    SetMenuHandler(nullptr);
    if (mcbToolButton) mcbToolButton->Delete();
  });
  PassOverErrors([&] {
    SetMenuHand(nullptr);
    if (mcbMenuItem) mcbMenuItem->Delete();
  });
  PassOverErrors([&] {
    services.Settings.SaveSetting(services.App.Title, kSection, kDisplayOnConnect, FormDisplayed ? "1" : "0");
  });
  FormDisplayed = false;
  PassOverErrors([&] {
    SetmStart(nullptr);
    if (form && form->IsLoaded()) form->Unload();
  });
  LetGoOfWindow();
  mcbToolButton = mcbMenuItem = nullptr;
}

}  // namespace corvane::addin
