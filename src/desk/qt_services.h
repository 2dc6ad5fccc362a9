// QtServices: the runtime's services on the desk: the system's clipboard, message boxes, printer, pointer and
// event loop.
#pragma once

#include <QWidget>
#include <memory>

#include "desk/qt_printer.h"
#include "host/services.h"

namespace corvane::desk {

class QtServices {
 public:
  QtServices();
  ~QtServices();
  operator host::Services() const;
  host::Clipboard& Clipboard() const;
  host::Files& Files() const;
  host::Prompts& Prompts() const;
  QtPrinter& Printer() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace corvane::desk
