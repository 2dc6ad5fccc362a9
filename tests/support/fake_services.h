// Fake services of the host's runtime for tests: they record what was asked and answer from a script.
// Header only, but for MemoryFiles, which is the environment room's.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "environment/memory_files.h"
#include "host/services.h"
#include "runtime/code_page.h"

namespace corvane::tests {

class FakeClipboard : public host::Clipboard {
 public:
  std::string text;
  runtime::PictureRef picture;
  long clears = 0;
  long fail_with = 0;  // Error number of every call while it is not 0, as when another program holds the clipboard

  void Clear() override {
    Guard();
    ++clears;
    text.clear();
    picture = nullptr;
  }
  std::string GetText() override { return Guard(), text; }
  void SetText(const std::string& value) override {
    Guard();
    text = value;
  }
  void SetData(const runtime::PictureRef& value) override {
    Guard();
    picture = value;
  }
  runtime::PictureRef GetData() override { return Guard(), picture; }

 private:
  void Guard() const {
    if (fail_with != 0) throw runtime::Error(fail_with);
  }
};

// One question that was put to the user, and what was answered.
struct AskedMessage {
  std::string prompt;
  long style = 0;
  std::string title;
  long answer = 0;
};
struct AskedInput {
  std::string prompt, title, default_text, answer;
};

class FakePrompts : public host::Prompts {
 public:
  // Answers are taken from the front. Without one the default button is pressed, and an input box is cancelled.
  std::deque<long> answers;
  std::deque<std::string> inputs;
  // Runs while a box is open, before it is answered, as event handlers of the program may.
  std::function<void(const AskedMessage&)> while_open;

  std::vector<AskedMessage> messages;
  std::vector<AskedInput> input_boxes;

  long MsgBox(const std::string& prompt, long style = host::vbOKOnly, const std::string& title = {}) override {
    AskedMessage asked{prompt, style, title, 0};
    if (while_open) while_open(asked);
    asked.answer = Take(answers, DefaultButton(style));
    messages.push_back(asked);
    return asked.answer;
  }
  std::string InputBox(const std::string& prompt, const std::string& title = {},
                       const std::string& default_text = {}) override {
    input_boxes.push_back({prompt, title, default_text, Take(inputs, std::string())});
    return input_boxes.back().answer;
  }

  // The prompts of all boxes so far, for a comparison at one stroke.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const AskedMessage& message : messages) texts.push_back(message.prompt);
    return texts;
  }

 private:
  template <class T>
  static T Take(std::deque<T>& script, T otherwise) {
    if (script.empty()) return otherwise;
    T first = script.front();
    script.pop_front();
    return first;
  }
  static long DefaultButton(long style) {
    static constexpr long kButtons[6][3] = {
        {host::vbOK, host::vbOK, host::vbOK},           {host::vbOK, host::vbCancel, host::vbOK},
        {host::vbAbort, host::vbRetry, host::vbIgnore}, {host::vbYes, host::vbNo, host::vbCancel},
        {host::vbYes, host::vbNo, host::vbYes},         {host::vbRetry, host::vbCancel, host::vbRetry}};
    long buttons = style & 7, place = (style >> 8) & 3;
    return kButtons[buttons > 5 ? 0 : buttons][place > 2 ? 0 : place];
  }
};

// Keys compare without case, as the registry's do.
class FakeSettings : public host::Settings {
 public:
  std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& default_value = {}) override {
    auto found = values_.find(Key(app, section, key));
    return found == values_.end() ? default_value : found->second;
  }
  void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override {
    values_[Key(app, section, key)] = value;
  }
  bool Has(const std::string& app, const std::string& section, const std::string& key) const {
    return values_.count(Key(app, section, key)) != 0;
  }

 private:
  static std::string Key(const std::string& app, const std::string& section, const std::string& key) {
    return runtime::AnsiCodePage().ToUpper(app + '\\' + section + '\\' + key);
  }
  std::map<std::string, std::string> values_;
};

class FakeScreen : public host::Screen {
 public:
  std::vector<int> pointers;  // every pointer that was set, in order

  int MousePointer() const override { return pointers.empty() ? host::vbDefault : pointers.back(); }
  void SetMousePointer(int pointer) override { pointers.push_back(pointer); }
};

class FakeEventLoop : public host::EventLoop {
 public:
  long yields = 0;
  std::function<void()> on_do_events;  // what the user does during a yield
  std::vector<std::string> keys;
  std::function<void(const std::string&)> on_send_keys;
  uint32_t ticks = 0;

  void DoEvents() override {
    ++yields;
    if (on_do_events) on_do_events();
  }
  void SendKeys(const std::string& text) override {
    keys.push_back(text);
    if (on_send_keys) on_send_keys(text);
  }
  uint32_t TickCount() override { return ticks; }
};

// Takes its pictures from [files].
class FakePictures : public host::Pictures {
 public:
  explicit FakePictures(host::Files& files) : files_(files) {}

  std::vector<std::string> loaded;  // every path that was asked for

  runtime::PictureRef LoadPicture(const std::string& path) override {
    loaded.push_back(path);
    std::string bytes = files_.Read(path);
    if (!LooksLikePicture(bytes)) throw runtime::Error(481, "Invalid picture");
    return std::make_shared<runtime::Picture>(runtime::Picture{std::move(bytes)});
  }

 private:
  static bool LooksLikePicture(const std::string& bytes) {
    static const std::string kStarts[] = {"BM",   std::string("\0\0\1\0", 4), "\x89PNG", "GIF8", "\xFF\xD8", "<svg",
                                          "<?xml"};
    for (const std::string& start : kStarts)
      if (bytes.compare(0, start.size(), start) == 0) return true;
    return false;
  }
  host::Files& files_;
};

// Keeps the lines of the documents that were printed.
class FakePrinter : public host::Printer {
 public:
  struct Line {
    std::string text;
    float x = 0, font_size = 0;
  };
  std::vector<std::vector<Line>> documents;  // that were ended
  std::vector<Line> lines;                   // of the one that was not
  float font_size = 12;
  long fail_with = 0;  // Error number of every text and end while it is not 0, as without a printer
  std::function<void()> on_print;

  float FontSize() const override { return font_size; }
  void SetFontSize(float points) override { font_size = points; }
  void SetCurrentX(float twips) override { x_ = twips; }
  void Print(const std::string& text) override {
    if (on_print) on_print();
    Guard();
    lines.push_back({text, std::exchange(x_, 0.0f), font_size});
  }
  void EndDoc() override {
    Guard();
    if (!lines.empty()) documents.push_back(std::exchange(lines, {}));
  }
  // Of the documents that were ended, one after the other.
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& document : documents)
      for (const Line& line : document) texts.push_back(line.text);
    return texts;
  }

 private:
  void Guard() const {
    if (fail_with != 0) throw runtime::Error(fail_with);
  }
  float x_ = 0;
};

// One of each, and the host::Services that the logic takes. Files stand in `files`; App.Path is "C:\Corvane".
struct FakeServices {
  FakeClipboard clipboard;
  FakePrompts prompts;
  FakeSettings settings;
  host::App app{"C:\\Corvane", "Corvane", ""};
  FakeScreen screen;
  FakeEventLoop loop;
  environment::MemoryFiles files;
  FakePictures pictures{files};
  FakePrinter printer;
  host::Services services{clipboard, prompts, settings, app, screen, loop, files, pictures, printer};

  operator host::Services&() { return services; }
};

}  // namespace corvane::tests
