// VisualStyles: the newer common controls, for the windows made while one Use lives. Where the module has no manifest,
// or the host's system does not know them, windows look as they did before.
#pragma once

#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class VisualStyles {
 public:
  explicit VisualStyles(HINSTANCE module);
  ~VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;

  bool AreThere() const { return context_ != INVALID_HANDLE_VALUE; }

  class Use {
   public:
    explicit Use(const VisualStyles& styles)
        : used_(styles.AreThere() && ActivateActCtx(styles.context_, &cookie_) != FALSE) {}
    ~Use() {
      if (used_) DeactivateActCtx(0, cookie_);
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

   private:
    ULONG_PTR cookie_ = 0;
    bool used_;
  };

 private:
  HANDLE context_ = INVALID_HANDLE_VALUE;
};

}  // namespace corvane::toolkit_win32
