#include "toolkit_win32/services.h"

#include "toolkit_win32/clipboard.h"
#include "toolkit_win32/file_names.h"
#include "toolkit_win32/files.h"
#include "toolkit_win32/printer.h"
#include "toolkit_win32/prompts.h"
#include "toolkit_win32/send_keys.h"
#include "toolkit_win32/settings.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr char kTitle[] = "Corvane";
constexpr long kInvalidPicture = 481;

class ToolkitScreen : public host::Screen {
 public:
  explicit ToolkitScreen(Win32Toolkit& toolkit) : toolkit_(toolkit) {}
  int MousePointer() const override { return toolkit_.ScreenPointer(); }
  void SetMousePointer(int pointer) override { toolkit_.SetScreenPointer(pointer); }

 private:
  Win32Toolkit& toolkit_;
};

class ToolkitLoop : public host::EventLoop {
 public:
  explicit ToolkitLoop(Win32Toolkit& toolkit) : toolkit_(toolkit) {}
  void DoEvents() override { toolkit_.DoEvents(); }
  void SendKeys(const std::string& keys) override { toolkit_win32::SendKeys(toolkit_, keys); }
  uint32_t TickCount() override { return GetTickCount(); }

 private:
  Win32Toolkit& toolkit_;
};

class FilePictures : public host::Pictures {
 public:
  explicit FilePictures(host::Files& files) : files_(files) {}
  runtime::PictureRef LoadPicture(const std::string& path) override {
    std::string bytes = files_.Read(path);
    if (!runtime::IsPicture(bytes)) throw runtime::Error(kInvalidPicture, "Invalid picture");
    return std::make_shared<runtime::Picture>(runtime::Picture{std::move(bytes)});
  }

 private:
  host::Files& files_;
};

std::string FolderOfThisCode() {
  constexpr DWORD kRoom = 32768;  // characters: no path is longer
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&FolderOfThisCode), &module);
  std::wstring path(kRoom, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), kRoom));
  path.resize(std::min(path.size(), path.rfind(L'\\')));
  return PathFromSystem(path);
}

}  // namespace

struct Win32Services::State {
  explicit State(Win32Toolkit& toolkit)
      : clipboard(NewClipboard(toolkit.Pictures())),
        prompts(NewPrompts(app, toolkit)),
        screen(toolkit),
        loop(toolkit) {}

  host::App app{FolderOfThisCode(), kTitle, ""};
  std::unique_ptr<host::Clipboard> clipboard;
  std::unique_ptr<host::Prompts> prompts;
  std::unique_ptr<host::Settings> settings = NewSettings();
  ToolkitScreen screen;
  ToolkitLoop loop;
  std::unique_ptr<host::Files> files = NewFiles();
  FilePictures pictures{*files};
  std::unique_ptr<host::Printer> printer = NewPrinter();
};

Win32Services::Win32Services(Win32Toolkit& toolkit) : state_(std::make_unique<State>(toolkit)) {}

Win32Services::~Win32Services() = default;

Win32Services::operator host::Services() const {
  State& s = *state_;
  return {*s.clipboard, *s.prompts, *s.settings, s.app, s.screen, s.loop, *s.files, s.pictures, *s.printer};
}

}  // namespace corvane::toolkit_win32
