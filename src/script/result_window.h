// ResultWindow: frmResult as STOP and STOPEX use it.
#pragma once

#include <string>

namespace corvane::script {

class ResultWindow {
 public:
  virtual ~ResultWindow() = default;
  virtual void NewWidth(bool list) = 0;
  // Modal, and unloaded then.
  virtual void DisplayRes(const std::string& text, const std::string& label, const std::string& caption) = 0;
};

}  // namespace corvane::script
