// ScriptBoxes: the boxes of a script on the command line. Each is told on a stream and answered from a list.
#pragma once

#include <deque>
#include <iosfwd>
#include <stdexcept>
#include <string>

#include "host/services.h"

namespace corvane::cli {

// An answer that fits no button of the box it was for.
class WrongAnswer : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ScriptBoxes : public host::Prompts {
 public:
  // [answers] are taken in the order of the questions: texts for input boxes, "ok" or "cancel" for boxes that have both
  // buttons, where any other throws WrongAnswer. Without one an error box is cancelled, a message box gets OK, an input
  // box its default.
  ScriptBoxes(std::ostream& out, bool json, std::deque<std::string> answers, std::string program)
      : out_(out), json_(json), answers_(std::move(answers)), program_(std::move(program)) {}

  long MsgBox(const std::string& prompt, long style, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& default_text) override;
  long ErrorBox(const std::string& message, const std::string& flat);

  bool ErrorCameUp() const { return errors_ > 0; }

 private:
  struct Box {
    const char* kind;
    std::string title, message, flat;
  };
  void Tell(const Box& box, const std::string& answer);
  long Button(const Box& box, long otherwise);

  std::ostream& out_;
  bool json_;
  std::deque<std::string> answers_;
  std::string program_;
  long errors_ = 0;
};

}  // namespace corvane::cli
