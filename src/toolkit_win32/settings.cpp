#include "toolkit_win32/settings.h"

#include "toolkit_win32/texts.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr wchar_t kRoot[] = L"Software\\VB and VBA Program Settings\\";

std::wstring PlaceOf(const std::string& app, const std::string& section) {
  if (app.empty() || section.empty()) throw runtime::Error(runtime::kInvalidProcedureCall);
  return kRoot + ShownText(app) + L"\\" + ShownText(section);
}

class RegistrySettings : public host::Settings {
 public:
  std::string GetSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& default_value) override {
    const std::wstring place = PlaceOf(app, section), name = ShownText(key);
    std::wstring value;
    for (DWORD size = 0;;) {
      const LSTATUS result = RegGetValueW(HKEY_CURRENT_USER, place.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr,
                                          size == 0 ? nullptr : value.data(), &size);
      if (result == ERROR_MORE_DATA || (result == ERROR_SUCCESS && value.empty())) {
        value.resize(size / sizeof(wchar_t) + 1);  // another program may make it longer meanwhile
        size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        continue;
      }
      if (result != ERROR_SUCCESS) return default_value;
      return BytesOf(value.c_str());
    }
  }

  void SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override {
    const std::wstring place = PlaceOf(app, section), name = ShownText(key), text = ShownText(value);
    const LSTATUS result = RegSetKeyValueW(HKEY_CURRENT_USER, place.c_str(), name.c_str(), REG_SZ, text.c_str(),
                                           static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    if (result != ERROR_SUCCESS) throw runtime::Error(runtime::kInvalidProcedureCall);
  }
};

}  // namespace

std::unique_ptr<host::Settings> NewSettings() {
  return std::make_unique<RegistrySettings>();
}

}  // namespace corvane::toolkit_win32
