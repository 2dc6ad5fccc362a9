// CodeModule and CodePane: the numbered lines of a component and the window that shows them.
#pragma once

#include "host/base.h"

namespace corvane::host {

class CodePane;
class Window;

// Values of vbext_ProcKind.
enum class ProcKind : long { Proc = 0, Let = 1, Set = 2, Get = 3 };

// Lines and columns count from 1. Only what the environment's editor shows counts: no file header, no designer part, no
// Attribute line. Bad line numbers are Error 9.
class CodeModule {
 public:
  virtual ~CodeModule() = default;

  virtual std::string Name() = 0;
  virtual long CountOfLines() = 0;
  virtual long CountOfDeclarationLines() = 0;
  // [count] lines from [start], joined with CR LF, no CR LF at the end; fewer where the module ends.
  virtual std::string Lines(long start, long count) = 0;

  // [text] is cut at CR LF into lines that stand before [line]; behind the last line it is appended.
  virtual void InsertLines(long line, const std::string& text) = 0;
  virtual void DeleteLines(long start, long count = 1) = 0;
  virtual void ReplaceLine(long line, const std::string& text) = 0;

  // The procedure that holds [line], and its kind; empty text and Proc in the declarations.
  virtual std::string ProcOfLine(long line, ProcKind& kind) = 0;
  // The first line that belongs to the procedure (comments above its header included), the line of its header, the
  // number of its lines from the start. An unknown name or kind is Error 35.
  virtual long ProcStartLine(const std::string& name, ProcKind kind) = 0;
  virtual long ProcBodyLine(const std::string& name, ProcKind kind) = 0;
  virtual long ProcCountLines(const std::string& name, ProcKind kind) = 0;

  // Searches forward from (start_line, start_column) to (end_line, end_column); -1 is the end. On a hit the four hold
  // its place, the end column one past its last character; without one they stay. A pattern knows ? * # [list] [!list].
  virtual bool Find(const std::string& target, long& start_line, long& start_column, long& end_line, long& end_column,
                    bool whole_word, bool match_case, bool pattern_search) = 0;

  // Opened on demand.
  virtual Ref<host::CodePane> CodePane() = 0;
};

struct Selection {
  long start_line = 1, start_column = 1, end_line = 1, end_column = 1;
  bool operator==(const Selection&) const = default;
};

class CodePane {
 public:
  virtual ~CodePane() = default;
  virtual Ref<host::CodeModule> CodeModule() = 0;
  virtual Ref<host::Window> Window() = 0;
  virtual Selection GetSelection() = 0;
  virtual void SetSelection(const Selection& selection) = 0;
  // Opens the pane and brings it to the front.
  virtual void Show() = 0;
};

class CodePanes : public Collection<CodePane> {};

}  // namespace corvane::host
