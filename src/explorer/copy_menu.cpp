// The entries of the procedures' menu that copy: what goes through the clipboard is shown in the clip book.
#include "explorer/frm_add_in.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr long kBlanksBehindRow = 13;

// What a row shows.
std::string InFrontOfBlanks(const std::string& row) {
  const long blanks = InStr(row, Space(kBlanksBehindRow));
  return blanks > 0 ? Left(row, blanks - 1) : row;
}

}  // namespace

// A clipboard that refuses changes nothing here.
void frmAddIn::CopyToClipBook(const std::string& text) {
  PassOverErrors([&] {
    services.Clipboard.Clear();
    services.Clipboard.SetText(text);
  });
  ShowClipBook();
}

void frmAddIn::mnuCopy_Click() {
  CopyToClipBook(txtCode.Text());
}

void frmAddIn::mnuCopyAdd_Click() {
  PassOverErrors([&] { CopyToClipBook(services.Clipboard.GetText() + kCrLf + txtCode.Text()); });
}

void frmAddIn::mnuCopyPLB_Click() {
  std::string rows;
  for (long row = 0; row < lbxProc->ListCount(); ++row) rows += InFrontOfBlanks(lbxProc->List(row)) + kCrLf;
  CopyToClipBook(rows);
}

}  // namespace corvane::explorer
