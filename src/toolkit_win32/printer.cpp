#include "toolkit_win32/printer.h"

// The first is needed by the others.
// clang-format off
#include "toolkit_win32/win.h"
#include <shlobj.h>
#include <winspool.h>
// clang-format on
#include <utility>
#include <vector>

#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr long kPrinterError = 482;
constexpr int kTwipsInInch = 1440, kTwipsInPoint = 20;
constexpr wchar_t kName[] = L"Corvane";

[[noreturn]] void Fail() {
  throw runtime::Error(kPrinterError, "Printer error");
}

std::wstring DefaultPrinter() {
  DWORD size = 0;
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || !GetDefaultPrinterW(name.data(), &size)) return {};
  name.resize(size - 1);
  return name;
}

struct InstalledPrinter {
  std::wstring name, driver;
  bool asks_for_file = false;
};

std::vector<InstalledPrinter> InstalledPrinters() {
  constexpr DWORD kWhich = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, kLevel = 2;
  DWORD size = 0, count = 0;
  EnumPrintersW(kWhich, nullptr, kLevel, nullptr, 0, &size, &count);
  std::vector<PRINTER_INFO_2W> room(size / sizeof(PRINTER_INFO_2W) + 1);
  if (!EnumPrintersW(kWhich, nullptr, kLevel, reinterpret_cast<BYTE*>(room.data()), size, &size, &count)) return {};
  const auto text = [](const wchar_t* value) { return std::wstring(value ? value : L""); };
  std::vector<InstalledPrinter> printers;
  for (DWORD i = 0; i < count; ++i) {
    const std::wstring port = text(room[i].pPortName);
    printers.push_back(
        {text(room[i].pPrinterName), text(room[i].pDriverName), port == L"PORTPROMPT:" || port == L"FILE:"});
  }
  return printers;
}

const wchar_t* ExtensionOf(const InstalledPrinter& printer) {
  const auto holds = [&](const wchar_t* word) { return printer.driver.find(word) != std::wstring::npos; };
  return holds(L"PDF") ? L".pdf" : holds(L"XPS") ? L".oxps" : L".prn";
}

std::wstring NewFile(const std::wstring& extension) {
  wchar_t folder[MAX_PATH];
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_PERSONAL | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder)))
    return {};
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t name[64];
  wsprintfW(name, L"\\%s %04d-%02d-%02d %02d.%02d.%02d", kName, now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute,
            now.wSecond);
  const std::wstring start = std::wstring(folder) + name;
  std::wstring path = start + extension;
  for (int number = 2; GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; ++number)
    path = start + L" (" + std::to_wstring(number) + L")" + extension;
  return path;
}

// A document that is being printed. One that could not be begun takes nothing and fails at each text.
class Document {
 public:
  explicit Document(const PrintTarget& target) {
    if (target.printer.empty()) return;
    dc_ = CreateDCW(L"WINSPOOL", target.printer.c_str(), nullptr, nullptr);
    if (!dc_) return;
    DOCINFOW info{};
    info.cbSize = sizeof info;
    info.lpszDocName = kName;
    info.lpszOutput = target.file.empty() ? nullptr : target.file.c_str();
    begun_ = StartDocW(dc_, &info) > 0;
    page_ = begun_ && StartPage(dc_) > 0;
  }
  ~Document() {
    if (begun_) AbortDoc(dc_);
    if (dc_) DeleteDC(dc_);
    if (font_) DeleteObject(font_);
  }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  void Print(const std::wstring& text, float points, float x) {
    if (!page_) Fail();
    UseFont(points);
    TEXTMETRICW metrics{};
    if (!GetTextMetricsW(dc_, &metrics)) Fail();
    if (y_ > 0 && y_ + metrics.tmHeight > GetDeviceCaps(dc_, VERTRES)) BeginNextPage();
    SetBkMode(dc_, TRANSPARENT);
    TabbedTextOutW(dc_, Pixels(x, LOGPIXELSX), y_, text.c_str(), static_cast<int>(text.size()), 0, nullptr, 0);
    y_ += metrics.tmHeight;
  }

  void End() {
    if (!page_ || EndPage(dc_) <= 0) Fail();
    page_ = false;
    if (EndDoc(dc_) <= 0) Fail();
    begun_ = false;
  }

 private:
  int Pixels(float twips, int resolution) const {
    return MulDiv(static_cast<int>(twips), GetDeviceCaps(dc_, resolution), kTwipsInInch);
  }

  void BeginNextPage() {
    page_ = false;
    if (EndPage(dc_) <= 0 || StartPage(dc_) <= 0) Fail();
    page_ = true;
    y_ = 0;
  }

  // A page may begin without the font of the one before.
  void UseFont(float points) {
    if (points != points_) {
      LOGFONTW wanted{};
      wanted.lfHeight = -Pixels(points * kTwipsInPoint, LOGPIXELSY);
      wanted.lfCharSet = DEFAULT_CHARSET;
      lstrcpyW(wanted.lfFaceName, L"Arial");
      const HFONT font = CreateFontIndirectW(&wanted);
      if (!font) Fail();
      SelectObject(dc_, font);
      if (font_) DeleteObject(font_);
      font_ = font;
      points_ = points;
    }
    SelectObject(dc_, font_);
  }

  HDC dc_ = nullptr;
  HFONT font_ = nullptr;
  float points_ = 0;
  bool begun_ = false, page_ = false;
  int y_ = 0;  // top of the next line, in pixels of the printer
};

class SystemPrinter : public host::Printer {
 public:
  explicit SystemPrinter(std::function<PrintTarget()> choose) : choose_(std::move(choose)) {}

  float FontSize() const override { return font_size_; }
  void SetFontSize(float points) override { font_size_ = points; }
  void SetCurrentX(float twips) override { x_ = twips; }

  void Print(const std::string& text) override {
    const float x = std::exchange(x_, 0.0f);
    if (!document_) document_ = std::make_unique<Document>(choose_());
    document_->Print(ShownText(text), font_size_, x);
  }

  void EndDoc() override {
    x_ = 0;
    if (const std::unique_ptr<Document> document = std::move(document_)) document->End();
  }

 private:
  std::function<PrintTarget()> choose_;
  float font_size_ = 12, x_ = 0;
  std::unique_ptr<Document> document_;
};

}  // namespace

PrintTarget DefaultPrintTarget() {
  const std::wstring wanted = DefaultPrinter();
  for (const InstalledPrinter& each : InstalledPrinters()) {
    if (wanted.empty() ? !each.asks_for_file : each.name != wanted) continue;
    return {each.name, each.asks_for_file ? NewFile(ExtensionOf(each)) : std::wstring()};
  }
  return {wanted, {}};
}

std::unique_ptr<host::Printer> NewPrinter(std::function<PrintTarget()> choose) {
  return std::make_unique<SystemPrinter>(std::move(choose));
}

}  // namespace corvane::toolkit_win32
