#include "tests/stage/box_watch.h"

#include <utility>

#include "tests/stage/add_in_windows.h"

namespace corvane::stage {

namespace {

constexpr UINT kEvery = 30;  // milliseconds
constexpr char kDialogClass[] = "#32770", kMenuClass[] = "#32768";

}  // namespace

BoxWatch* BoxWatch::current_ = nullptr;

BoxWatch::BoxWatch() : timer_(SetTimer(nullptr, 0, kEvery, &Look)) {
  current_ = this;
}

BoxWatch::~BoxWatch() {
  KillTimer(nullptr, timer_);
  current_ = nullptr;
}

void CALLBACK BoxWatch::Look(HWND, UINT, UINT_PTR, DWORD) {
  BoxWatch* self = current_;
  if (self == nullptr) return;
  if (const HWND box = FindShownOfClass(kDialogClass)) self->LookAtBox(box);
  if (FindShownOfClass(kMenuClass)) {
    ++self->menus_;
    EndMenu();
  }
}

void BoxWatch::LookAtBox(HWND box) {
  if (instead) return std::exchange(instead, nullptr)(box);
  std::string text;
  for (HWND part : Below(box, "static"))
    if (const std::string caption = CaptionOf(part); !caption.empty()) text = caption;
  boxes_.push_back(text);
  PostMessageW(box, WM_COMMAND, IDOK, 0);
  PostMessageW(box, WM_CLOSE, 0, 0);
}

}  // namespace corvane::stage
