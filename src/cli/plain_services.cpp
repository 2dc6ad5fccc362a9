#include "cli/plain_services.h"

#include <array>
#include <chrono>
#include <iostream>
#include <map>

#include "cli/data_folder.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"

namespace corvane::cli {

namespace {

class PlainClipboard : public host::Clipboard {
 public:
  void Clear() override {
    text_.clear();
    picture_ = nullptr;
  }
  std::string GetText() override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }
  void SetData(const runtime::PictureRef& picture) override { picture_ = picture; }
  runtime::PictureRef GetData() override { return picture_; }

 private:
  std::string text_;
  runtime::PictureRef picture_;
};

class PlainPrompts : public host::Prompts {
 public:
  long MsgBox(const std::string& prompt, long style, const std::string&) override {
    std::cerr << runtime::AnsiCodePage().ToUtf8(prompt) << '\n';
    return DefaultAnswer(style);
  }
  std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
};

class PlainSettings : public host::Settings {
 public:
  std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& default_value) override {
    const auto found = values_.find({app, section, key});
    return found == values_.end() ? default_value : found->second;
  }
  void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override {
    values_[{app, section, key}] = value;
  }

 private:
  std::map<std::array<std::string, 3>, std::string> values_;
};

class PlainScreen : public host::Screen {
 public:
  int MousePointer() const override { return pointer_; }
  void SetMousePointer(int pointer) override { pointer_ = pointer; }

 private:
  int pointer_ = host::vbDefault;
};

class PlainLoop : public host::EventLoop {
 public:
  void DoEvents() override {}
  void SendKeys(const std::string&) override {}
  uint32_t TickCount() override { return MillisecondsSinceStart(); }
};

constexpr long kInvalidPicture = 481;

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

constexpr long kPrinterError = 482;

// There is none.
class NoPrinter : public host::Printer {
 public:
  float FontSize() const override { return font_size_; }
  void SetFontSize(float points) override { font_size_ = points; }
  void SetCurrentX(float) override {}
  void Print(const std::string&) override { throw runtime::Error(kPrinterError, "Printer error"); }
  void EndDoc() override {}

 private:
  float font_size_ = 12;
};

}  // namespace

struct PlainServices::State {
  PlainClipboard clipboard;
  PlainPrompts prompts;
  PlainSettings settings;
  host::App app = NewApp();
  PlainScreen screen;
  PlainLoop loop;
  std::unique_ptr<host::Files> files = environment::NewDiskFiles();
  std::unique_ptr<host::Pictures> pictures = NewPictures(*files);
  NoPrinter printer;
};

PlainServices::PlainServices() : state_(std::make_unique<State>()) {}

PlainServices::~PlainServices() = default;

PlainServices::operator host::Services() const {
  State& s = *state_;
  return {s.clipboard, s.prompts, s.settings, s.app, s.screen, s.loop, *s.files, *s.pictures, s.printer};
}

host::Files& PlainServices::Files() const {
  return *state_->files;
}

host::App NewApp() {
  return {environment::WindowsPath(DataFolder().string()), "Corvane", ""};
}

std::unique_ptr<host::Pictures> NewPictures(host::Files& files) {
  return std::make_unique<FilePictures>(files);
}

uint32_t MillisecondsSinceStart() {
  using namespace std::chrono;
  static const steady_clock::time_point start = steady_clock::now();
  return static_cast<uint32_t>(duration_cast<milliseconds>(steady_clock::now() - start).count());
}

long DefaultAnswer(long style) {
  using namespace host;
  static constexpr std::array<std::array<long, 3>, 6> kButtons = {{{vbOK},
                                                                   {vbOK, vbCancel},
                                                                   {vbAbort, vbRetry, vbIgnore},
                                                                   {vbYes, vbNo, vbCancel},
                                                                   {vbYes, vbNo},
                                                                   {vbRetry, vbCancel}}};
  const long set = style & 15, place = style >> 8 & 3;
  if (set >= static_cast<long>(kButtons.size()) || place > 2) return vbOK;
  const long answer = kButtons[set][place];
  return answer ? answer : kButtons[set][0];
}

}  // namespace corvane::cli
