#include "toolkit_win32/clipboard.h"

#include <cstring>

#include "toolkit_win32/bitmap_file.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr long kFormatNotSupported = 461, kCannotOpenClipboard = 521;
constexpr int kTries = 25;
constexpr DWORD kBetweenTries = 10;  // milliseconds

// The clipboard wants a window as its owner: one of this thread's own that is never seen.
class OwnerWindow {
 public:
  OwnerWindow() : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {}
  ~OwnerWindow() { DestroyWindow(window_); }
  OwnerWindow(const OwnerWindow&) = delete;
  OwnerWindow& operator=(const OwnerWindow&) = delete;
  HWND Get() const { return window_; }

 private:
  HWND window_;
};

[[noreturn]] void Fail() {
  throw runtime::Error(kCannotOpenClipboard, "Can't open Clipboard");
}

// The clipboard while this program has it open.
class Opened {
 public:
  explicit Opened(HWND owner) {
    for (int left = kTries; !OpenClipboard(owner); --left) {
      if (left == 0) Fail();
      Sleep(kBetweenTries);
    }
  }
  ~Opened() { CloseClipboard(); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  void Empty() {
    if (!EmptyClipboard()) Fail();
  }

  // Takes over a copy of these bytes.
  void Put(UINT format, const void* bytes, size_t size) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    void* place = memory ? GlobalLock(memory) : nullptr;
    if (!place) Fail();
    std::memcpy(place, bytes, size);
    GlobalUnlock(memory);
    if (SetClipboardData(format, memory)) return;
    GlobalFree(memory);
    Fail();
  }

  // Calls [read] with the bytes of that format, where there is one.
  template <class Read>
  void Take(UINT format, Read&& read) {
    HANDLE memory = GetClipboardData(format);
    const void* place = memory ? GlobalLock(memory) : nullptr;
    if (!place) return;
    read(static_cast<const char*>(place), GlobalSize(memory));
    GlobalUnlock(memory);
  }
};

class SystemClipboard : public host::Clipboard {
 public:
  explicit SystemClipboard(PictureStore& pictures) : pictures_(pictures) {}

  void Clear() override { Opened(owner_.Get()).Empty(); }

  std::string GetText() override {
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return {};
    std::string text;
    Opened(owner_.Get()).Take(CF_UNICODETEXT, [&](const char* bytes, size_t size) {
      const auto* characters = reinterpret_cast<const wchar_t*>(bytes);
      text = BytesOf({characters, wcsnlen(characters, size / sizeof(wchar_t))});
    });
    return text;
  }

  void SetText(const std::string& text) override {
    const std::wstring shown = ShownText(text);
    Opened opened(owner_.Get());
    opened.Empty();
    opened.Put(CF_UNICODETEXT, shown.c_str(), (shown.size() + 1) * sizeof(wchar_t));
  }

  void SetData(const runtime::PictureRef& picture) override {
    if (!picture) return Clear();
    std::string bitmap = PackedBitmapOf(picture);
    if (bitmap.empty()) bitmap = PaintedBitmapOf(pictures_, picture);
    if (bitmap.empty()) {
      throw runtime::Error(kFormatNotSupported, "Specified format doesn't match format of data");
    }
    Opened opened(owner_.Get());
    opened.Empty();
    opened.Put(CF_DIB, bitmap.data(), bitmap.size());
  }

  runtime::PictureRef GetData() override {
    if (!IsClipboardFormatAvailable(CF_DIB)) return nullptr;
    runtime::PictureRef picture;
    Opened(owner_.Get()).Take(CF_DIB, [&](const char* bytes, size_t size) {
      picture = PictureOfPacked({bytes, size});
    });
    return picture;
  }

 private:
  PictureStore& pictures_;
  OwnerWindow owner_;
};

}  // namespace

std::unique_ptr<host::Clipboard> NewClipboard(PictureStore& pictures) {
  return std::make_unique<SystemClipboard>(pictures);
}

}  // namespace corvane::toolkit_win32
