// Documents on the system's default printer, without a dialog; where there is none, or it asks for a file, in a file of
// their own.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/services.h"

namespace corvane::toolkit_win32 {

// Where the next document goes: to [printer], into [file] when that is not empty. An empty printer: there is none.
struct PrintTarget {
  std::wstring printer, file;
};

// The default printer; else one that prints into files. A file has a name of its own, after the time, in the user's
// folder of documents.
PrintTarget DefaultPrintTarget();

std::unique_ptr<host::Printer> NewPrinter(std::function<PrintTarget()> choose = DefaultPrintTarget);

}  // namespace corvane::toolkit_win32
