// PlainServices: the runtime's services without a display, for the command line. Clipboard and
// settings are the process's own; a message goes to standard error and is answered by its default button; printing is
// Error 482.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::cli {

class PlainServices {
 public:
  PlainServices();
  ~PlainServices();
  operator host::Services() const;
  host::Files& Files() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

// App as the command line and the desk set it up: the data folder, "Corvane".
host::App NewApp();
// Loads a picture as its bytes. Throws Error 53 (and what Files throws), 481 for what is no picture.
std::unique_ptr<host::Pictures> NewPictures(host::Files& files);
uint32_t MillisecondsSinceStart();
// The button that [style] makes the default one, as MsgBox returns it.
long DefaultAnswer(long style);

}  // namespace corvane::cli
