// WorkshopWindow: what a run and its commands show in the window in which scripts are written.
#pragma once

#include <string>

namespace corvane::script {

class WorkshopWindow {
 public:
  virtual ~WorkshopWindow() = default;
  virtual void Display() = 0;
  // The blocks of LibCode.txt, as the window keeps them.
  virtual std::string LibraryText() = 0;
  // The code list takes the result of a run, and the window comes to the front.
  virtual void ShowResult(const std::string& text) = 0;
  // The file that the editor saves to.
  virtual void SetScriptFile(const std::string& path) = 0;
  virtual void PutCode(const std::string& text) = 0;
  // Selects one character, and gives the edit box the focus when the run ends.
  virtual void SetSelStart(long start) = 0;
};

}  // namespace corvane::script
