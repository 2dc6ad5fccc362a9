// The comment above a procedure: taken out of the module, shown for editing, put back.
#include <algorithm>

#include "explorer/find_line_near.h"
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "runtime/strings.h"
#include "workshop/frm_result.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

const std::string kToBeCollected = "\x02";
constexpr long kShortestComment = 4;

struct Comment {
  std::string text;  // without the apostrophes, CR LF behind each line
  long lines = 0;    // from the uppermost one to the header, blank ones included
};

// Above [line], blank lines do not count unless a comment stands over them.
Comment CommentAbove(host::CodeModule& module, long line) {
  Comment comment;
  for (long above = line - 1; above >= 1; --above) {
    std::string text = module.Lines(above, 1);
    if (Trim(text).empty()) continue;
    if (!BeginsWith(text, "'")) break;
    comment.text = Mid(text, 2) + kCrLf + comment.text;
    comment.lines = line - above;
  }
  return comment;
}

// At the end of the last line " _" would take the header behind it into the comment.
std::string WithoutContinuation(std::string text) {
  constexpr char kBlanks[] = " \t", kBlanksAndEnds[] = " \t\r\n";
  for (;;) {
    const size_t last = text.find_last_not_of(kBlanksAndEnds);
    if (last == std::string::npos || text[last] != '_') return text;
    if (last > 0 && std::string_view(kBlanks).find(text[last - 1]) == std::string_view::npos) return text;
    const size_t end = text.find_first_not_of(kBlanks, last + 1);
    const size_t code = text.find_last_not_of(kBlanks, last - (last > 0 ? 1 : 0));
    const size_t start = last == 0 || code == std::string::npos ? 0 : code + 1;
    text.erase(start, std::min(end, text.size()) - start);
  }
}

// An apostrophe in front of each line but an empty last one.
std::string AsComment(const std::string& text) {
  std::string commented = "'" + text;
  for (size_t at = 0; (at = commented.find(kCrLf, at)) != std::string::npos; ++at) {
    at += 2;
    if (at == commented.size()) break;
    commented.insert(at, "'");
  }
  return commented;
}

}  // namespace

void frmAddIn::mnuComnt_Click() {
  commentText = kToBeCollected;
  commentLines = 0;
  try {
    CommentProcedure();
  } catch (const Error& error) {
    services.Prompts.MsgBox(error.Description());
  }
  toProcStart = commentMode = false;
  commentText.clear();
  collectedComment.clear();
  commentLines = 0;
}

void frmAddIn::CommentProcedure() {
  RunInCommentMode();
  if (commentText == kToBeCollected) return;
  collectedComment = commentText;
  bool confirmed = false;
  {
    workshop::frmResult result(Toolkit());
    confirmed = result.DisplayRes(commentText, "Type comments for a Procedure", "Comments for a Procedure");
    if (confirmed) commentText = AsComment(WithoutContinuation(result.txtRes.Text()));
    result.Unload();
  }
  if (confirmed && Len(commentText) >= kShortestComment) RunInCommentMode();
}

void frmAddIn::RunInCommentMode() {
  if (!ComponentToWrite()) return SayChangedBefore();
  toProcStart = commentMode = true;
  GoToCode();
}

// The header of the procedure that the row names, or of the one around [line], which it shows; 0 when that is gone.
long frmAddIn::HeaderFor(host::CodeModule& module, long line) {
  const std::string row = lbxProc->List(lbxProc->ListIndex());
  if (line > module.CountOfLines() || Trim(module.Lines(line, 1)) != CodeOfRow(row)) return 0;
  host::ProcKind kind;
  std::string name = module.ProcOfLine(line, kind);
  return name.empty() ? line : std::min(module.ProcBodyLine(name, kind), line);
}

// Where GoToCode arrives in comment mode.
void frmAddIn::CommentAt(host::CodeModule& module, long line) {
  const long rowLine = FindLineNear(module, -line, lbxProc->List(lbxProc->ListIndex()), lblSub.Caption());
  line = HeaderFor(module, rowLine);
  if (line < 1) return SayChangedBefore();
  Comment above = CommentAbove(module, line);
  if (commentText == kToBeCollected) {
    commentText = above.text;
    commentLines = above.lines;
    return;
  }
  if (above.text != collectedComment || above.lines != commentLines) return SayChangedBefore();
  const long linesThen = module.CountOfLines();
  module.InsertLines(line, commentText);  // first: a comment that cannot be written takes none away
  if (commentLines > 0) module.DeleteLines(line - commentLines, commentLines);
  toProcStart = commentMode = false;
  const long row = lbxProc->ListIndex();
  lbxProc->SetItemData(row, rowLine + module.CountOfLines() - linesThen);
  if (txtCode.ListIndex() > 0) ReloadCode(txtCode.ListIndex());
}

}  // namespace corvane::explorer
