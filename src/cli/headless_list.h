// HeadlessList: a list on a window that nobody sees, for commands that print what a list would hold.
#pragma once

#include <string>

#include "cli/plain_services.h"
#include "codelist/uc_list_box.h"
#include "forms/headless_toolkit.h"

namespace corvane::cli {

class HeadlessList {
 public:
  codelist::ucListBox& operator*() { return window_.list; }
  codelist::ucListBox* operator->() { return &window_.list; }

 private:
  struct Window : forms::Form {
    Window(forms::Toolkit& toolkit, host::Services& services)
        : Form(toolkit, "Window"), list(*this, "list", services) {}
    codelist::ucListBox list;
  };

  PlainServices plain_;
  host::Services services_ = plain_;
  forms::HeadlessToolkit toolkit_;
  Window window_{toolkit_, services_};
};

// The lines of a list end with CR LF: a lone LF of a file becomes one.
std::string WithCrLf(const std::string& text);

}  // namespace corvane::cli
