// The services of Visual Basic's runtime that the logic uses, each a small interface; Services holds one of each.
// Texts are bytes in the ANSI code page; paths are Windows paths with "\", compared without case.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/error.h"
#include "runtime/picture.h"

namespace corvane::host {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual std::string GetText() = 0;  // empty when it holds no text
  virtual void SetText(const std::string& text) = 0;
  virtual void SetData(const runtime::PictureRef& picture) = 0;
  virtual runtime::PictureRef GetData() = 0;  // Nothing when it holds no picture
};

// Buttons, icon and default button of MsgBox, added together.
enum MsgBoxStyle : long {
  vbOKOnly = 0,
  vbOKCancel = 1,
  vbAbortRetryIgnore = 2,
  vbYesNoCancel = 3,
  vbYesNo = 4,
  vbRetryCancel = 5,
  vbCritical = 16,
  vbQuestion = 32,
  vbExclamation = 48,
  vbInformation = 64,
  vbDefaultButton2 = 256,
  vbDefaultButton3 = 512,
};
enum MsgBoxResult : long { vbOK = 1, vbCancel = 2, vbAbort = 3, vbRetry = 4, vbIgnore = 5, vbYes = 6, vbNo = 7 };

class Prompts {
 public:
  virtual ~Prompts() = default;
  // An empty title is App.Title.
  virtual long MsgBox(const std::string& prompt, long style = vbOKOnly, const std::string& title = {}) = 0;
  // Empty text on Cancel.
  virtual std::string InputBox(const std::string& prompt, const std::string& title = {},
                               const std::string& default_text = {}) = 0;
  // The same with [typed] in the box as if the user had just typed it there: what is typed next stands behind it.
  virtual std::string InputBoxTyped(const std::string& prompt, const std::string& typed) {
    return InputBox(prompt, {}, typed);
  }
};

class Settings {
 public:
  virtual ~Settings() = default;
  virtual std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                                 const std::string& default_value = {}) = 0;
  virtual void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                           const std::string& value) = 0;
};

struct App {
  std::string Path;      // folder of the library, without trailing "\"
  std::string Title;     // key of the settings store
  std::string HelpFile;  // read and write
};

enum MousePointer : int { vbDefault = 0, vbHourglass = 11 };

class Screen {
 public:
  virtual ~Screen() = default;
  virtual int MousePointer() const = 0;
  virtual void SetMousePointer(int pointer) = 0;
};

// The message loop of the one thread.
class EventLoop {
 public:
  virtual ~EventLoop() = default;
  virtual void DoEvents() = 0;
  // Keys as SendKeys writes them, into the window with the focus; waits until they are processed.
  virtual void SendKeys(const std::string& keys) = 0;
  virtual uint32_t TickCount() = 0;  // milliseconds
};

enum FileAttributes : uint32_t { kReadOnly = 1, kHidden = 2, kSystem = 4, kDirectory = 16, kNoSuchFile = 0xFFFFFFFF };

// What tells whether a file is still the one that was read.
struct FileStamp {
  int64_t size = -1;
  int64_t modified = 0;  // nanoseconds
  bool operator==(const FileStamp&) const = default;
};

class Files {
 public:
  virtual ~Files() = default;
  // The whole file. Throws Error 53 (no such file), 76 (no such folder), 70 (not allowed), 75 (a folder or unreadable).
  virtual std::string Read(const std::string& path) = 0;
  // Replaces or makes the file as a whole: either all of [bytes] is in it or it stays as it was. Throws 61, 70, 75, 76.
  virtual void Write(const std::string& path, std::string_view bytes) = 0;
  virtual uint32_t Attributes(const std::string& path) = 0;  // kNoSuchFile where there is none
  virtual FileStamp Stamp(const std::string& path) = 0;      // size -1 where there is none
  // Names in [folder] that fit [pattern] ("*.bas"; * and ? only), files only, in name order.
  virtual std::vector<std::string> List(const std::string& folder, const std::string& pattern) = 0;
};

// Throws Error 53, 481 for what is no picture.
class Pictures {
 public:
  virtual ~Pictures() = default;
  virtual runtime::PictureRef LoadPicture(const std::string& path) = 0;
};

// A document on the system's default printer. It begins with its first text and goes out with EndDoc. Error 482 where
// nothing can be printed.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual float FontSize() const = 0;  // points
  virtual void SetFontSize(float points) = 0;
  virtual void SetCurrentX(float twips) = 0;  // from the left edge of what can be printed on
  // One line at the place reached. The next one begins at the left edge below it, on a new page where this one is full.
  virtual void Print(const std::string& text) = 0;
  virtual void EndDoc() = 0;
};

struct Services {
  host::Clipboard& Clipboard;
  host::Prompts& Prompts;
  host::Settings& Settings;
  host::App& App;
  host::Screen& Screen;
  host::EventLoop& Loop;
  host::Files& Files;
  host::Pictures& Pictures;
  host::Printer& Printer;
};

}  // namespace corvane::host
