// Dialogs: what the language asks of the dialogs that it describes.
#pragma once

#include <string>

namespace corvane::script {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Builds and runs the dialog of a FORM block, or of the kept one of that name. Its code is lastValue then.
  virtual void Show(const std::string& form) = 0;
};

}  // namespace corvane::script
