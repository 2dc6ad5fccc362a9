// Connect: the add-in object. The environment creates it, hands it the VBE and tells it when it connects and
// disconnects. It puts one button on the standard toolbar and one item on the "Add-Ins" menu, and owns the explorer
// window.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "explorer/add_in_object.h"
#include "explorer/frm_add_in.h"
#include "host/services.h"
#include "host/vbe.h"

namespace corvane::addin {

// What the library registers with the environment.
inline constexpr char kRegistryRoot[] = "HKEY_CURRENT_USER\\Software\\Microsoft\\Visual Basic\\6.0";
inline constexpr char kFriendlyName[] = "Corvane - 2000";
inline constexpr char kDescription[] = "Powerfull Project Explorer with Color code analysis. ";
inline constexpr char kProgId[] = "corvane.Connect";
inline constexpr char kProjectDescription[] = "AddIn Corvane";

enum class ConnectMode : long { AfterStartup = 0, Startup = 1, External = 2, CommandLine = 3 };
enum class DisconnectMode : long { HostShutdown = 0, UserClosed = 1 };

class Connect : public explorer::AddInObject {
 public:
  // Both must outlive it.
  Connect(host::Services& services, forms::Toolkit& toolkit);
  ~Connect() override;

  bool FormDisplayed = false;       // the explorer is meant to be on the screen
  host::Ref<host::VBE> VBInstance;  // from the connection on

  // The event sources. Assigning one binds its event, Nothing unbinds it.
  host::Ref<host::CommandBarEvents> MenuHandler() const { return menuHandler; }
  void SetMenuHandler(host::Ref<host::CommandBarEvents> source);  // of the button
  host::Ref<host::CommandBarEvents> MenuHand() const { return menuHand; }
  void SetMenuHand(host::Ref<host::CommandBarEvents> source);  // of the menu item
  host::Ref<host::VBBuildEvents> mStart() const { return start; }
  void SetmStart(host::Ref<host::VBBuildEvents> source);

  void Hide() override;
  // Opens the explorer; with [display] by its Display, which also offers its menu. Errors are passed over.
  void Show(bool display) override;
  // What could be built of the control; Nothing without the bar.
  host::Ref<host::CommandBarControl> AddToAddInCommandBar(const std::string& caption);
  host::Ref<host::CommandBarControl> AddToAddInMenu(const std::string& caption);

  // Called by the environment. None of them throws an Error.
  void AddinInstance_OnConnection(const host::Ref<host::VBE>& application, ConnectMode mode);
  void AddinInstance_OnDisconnection(DisconnectMode mode);
  void AddinInstance_OnStartupComplete() {}
  void AddinInstance_OnAddInsUpdate() {}
  void AddinInstance_OnBeginShutdown() {}

  void MenuHandler_Click() { Show(false); }
  void MenuHand_Click() { Show(true); }
  void mStart_EnterRunMode();

  // The window as it is now; null before the first access to it and after a disconnection.
  explorer::frmAddIn* mfrmAddIn() const { return form.get(); }

 private:
  void ConnectTo(ConnectMode mode);
  void BindControls();
  void ShowIfLastShown();
  explorer::frmAddIn& Window();
  void LetGoOfWindow();
  void ForgetLeftWindows();

  host::Services& services;
  forms::Toolkit& toolkit;
  host::Ref<host::CommandBarControl> mcbToolButton, mcbMenuItem;
  std::unique_ptr<explorer::frmAddIn> form;
  std::vector<std::unique_ptr<explorer::frmAddIn>> left;  // windows whose act was still running at a disconnection
  host::Ref<host::CommandBarEvents> menuHandler, menuHand;
  host::Ref<host::VBBuildEvents> start;
  std::unique_ptr<host::Subscription> onMenuHandler, onMenuHand, onStart;
};

}  // namespace corvane::addin
