#include "toolkit_win32/visual_styles.h"

#include <iterator>
#include <string>

namespace corvane::toolkit_win32 {
namespace {

// A library's manifest has the number 2, a program's the number 1.
constexpr int kManifests[] = {2, 1};

std::wstring FileOf(HINSTANCE module) {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

}  // namespace

VisualStyles::VisualStyles(HINSTANCE module) {
  const std::wstring path = FileOf(module);
  for (int number : kManifests) {
    ACTCTXW wanted{};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    wanted.lpSource = path.c_str();
    wanted.hModule = module;
    wanted.lpResourceName = MAKEINTRESOURCEW(number);
    context_ = CreateActCtxW(&wanted);
    if (AreThere()) break;
  }
  // Makes the classes known that the peers use.
  const Use styled(*this);
  INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);
}

VisualStyles::~VisualStyles() {
  if (AreThere()) ReleaseActCtx(context_);
}

}  // namespace corvane::toolkit_win32
