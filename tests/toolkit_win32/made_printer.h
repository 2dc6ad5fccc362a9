// MadePrinter: a printer that prints PostScript into files, installed for a test and taken away again.
#pragma once

// The first is needed by the other.
// clang-format off
#include "toolkit_win32/win.h"
#include <winspool.h>
// clang-format on
#include <string>

namespace corvane::toolkit_win32 {

class MadePrinter {
 public:
  MadePrinter() {
    if (!DescribePaper()) return;
    std::wstring driver_file = L"wineps.drv", data_file = kPaperFile, type = L"RAW", driver = kDriver, name = Name();
    std::wstring port = L"FILE:", processor = L"winprint";
    DRIVER_INFO_3W driver_info{};
    driver_info.cVersion = 3;
    driver_info.pName = driver.data();
    driver_info.pDriverPath = driver_info.pConfigFile = driver_file.data();
    driver_info.pDataFile = data_file.data();
    driver_info.pDefaultDataType = type.data();
    AddPrinterDriverW(nullptr, 3, reinterpret_cast<BYTE*>(&driver_info));
    PRINTER_INFO_2W info{};
    info.pPrinterName = name.data();
    info.pPortName = port.data();
    info.pDriverName = driver.data();
    info.pPrintProcessor = processor.data();
    info.pDatatype = type.data();
    printer_ = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&info));
  }
  ~MadePrinter() {
    if (printer_) DeletePrinter(printer_), ClosePrinter(printer_);
    DeletePrinterDriverW(nullptr, nullptr, const_cast<wchar_t*>(kDriver));
    if (!paper_.empty()) DeleteFileW(paper_.c_str());
  }
  MadePrinter(const MadePrinter&) = delete;
  MadePrinter& operator=(const MadePrinter&) = delete;

  // The system may not allow it, or lack that driver.
  bool IsThere() const {
    const HDC dc = printer_ ? CreateDCW(L"WINSPOOL", Name(), nullptr, nullptr) : nullptr;
    if (dc) DeleteDC(dc);
    return dc != nullptr;
  }
  static const wchar_t* Name() { return L"Corvane test printer"; }

 private:
  static constexpr wchar_t kDriver[] = L"Corvane test driver", kPaperFile[] = L"corvane-test.ppd";
  static constexpr char kPaper[] =
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageLevel: \"2\"\n*ColorDevice: False\n"
      "*DefaultResolution: 300dpi\n*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n"
      "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: *PageSize\n"
      "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"18 18 577 824\"\n*DefaultPaperDimension: A4\n"
      "*PaperDimension A4/A4: \"595 842\"\n*DefaultFont: Courier\n"
      "*Font Courier: Standard \"(1.0)\" Standard ROM\n";

  bool DescribePaper() {
    wchar_t folder[MAX_PATH];
    DWORD needed = 0;
    if (!GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder), sizeof folder, &needed))
      return false;
    const std::wstring place = std::wstring(folder) + L"\\3";
    CreateDirectoryW(folder, nullptr);
    CreateDirectoryW(place.c_str(), nullptr);
    const std::wstring path = place + L"\\" + kPaperFile;
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    paper_ = path;
    DWORD written = 0;
    const BOOL all = WriteFile(file, kPaper, sizeof kPaper - 1, &written, nullptr);
    CloseHandle(file);
    return all != FALSE;
  }

  std::wstring paper_;
  HANDLE printer_ = nullptr;
};

}  // namespace corvane::toolkit_win32
