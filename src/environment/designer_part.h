// DesignerPart: the head of a module file (VERSION line, Object lines, the Begin ... End tree) as a tree that keeps
// every byte. Write() of an unedited part is the text it was made from; after an edit only the touched lines differ.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::environment {

// A line that was not understood. Lines count from 1 and from the first line of the part.
struct DesignerProblem {
  long line = 0;
  std::string reason;
};

// Blocks in blocks, the root the first level. What is nested deeper is not understood: it is kept as lines.
inline constexpr int kDeepestLevel = 200;

struct DesignerBlock;
using DesignerBlockRef = std::shared_ptr<DesignerBlock>;

// One line of a block, or a block inside it.
struct DesignerItem {
  enum Kind { Property, Block, Other } kind = Other;
  std::string_view raw;   // the whole line with its line end; empty for a block
  std::string_view name;  // of a property
  DesignerBlockRef block;
};

// Begin ... End, or BeginProperty ... EndProperty.
struct DesignerBlock {
  bool is_property = false;
  std::string_view begin, end;  // whole lines with their line ends; no end where the text breaks off
  std::string_view type;        // "VB.Label", "Form" in old versions, "{...}"; of a BeginProperty the {GUID}, if any
  std::string_view name;
  long line = 0;  // of its Begin when the part was read; 0 for a new one
  int depth = 0;  // 0: the root
  DesignerBlock* parent = nullptr;
  std::vector<DesignerItem> items;

  const DesignerItem* Find(std::string_view name) const;  // a property line or a BeginProperty; null if there is none
  std::vector<DesignerBlockRef> Children() const;         // controls only, in file order
};

// The value of a property line: what stands right of "=", and the comment behind it ("'False").
struct DesignerValue {
  std::string_view text;     // without blanks around it, without the comment
  std::string_view comment;  // with its apostrophe; empty if there is none
};
DesignerValue ValueOf(std::string_view raw_line);

// Bytes of [file] that the designer part takes: up to and with the End of the root block. Where that End is missing, up
// to the first Attribute line, else the whole file. 0 for a file that does not begin with a VERSION line.
size_t DesignerPartLength(std::string_view file);

class DesignerPart {
 public:
  explicit DesignerPart(std::string text);
  DesignerPart(const DesignerPart&) = delete;
  DesignerPart& operator=(const DesignerPart&) = delete;

  DesignerBlock* Root() const { return root_.get(); }  // null where there is none
  const DesignerBlockRef& RootRef() const { return root_; }
  const std::vector<DesignerProblem>& Problems() const { return problems_; }
  // A part with problems is kept as it is: whoever edits asks first.
  bool IsUnderstood() const { return problems_.empty() && root_; }
  std::string_view LineEnd() const { return line_end_; }
  std::string Write() const;

  // Edits. Texts given to them are kept by the part.
  std::string_view Keep(std::string text);
  void SetRaw(DesignerItem& item, std::string raw);  // a property line
  // Requires: the Begin line has both.
  void SetBegin(DesignerBlock& block, std::string_view type, std::string_view name);
  DesignerItem NewProperty(std::string raw);  // with its line end
  DesignerBlockRef NewBlock(DesignerBlock& parent, bool is_property, std::string_view type, std::string_view name);

 private:
  class Reader;
  std::string text_;
  std::deque<std::string> kept_;
  std::vector<std::string_view> head_, tail_;  // lines before and behind the root block
  DesignerBlockRef root_;
  std::vector<DesignerProblem> problems_;
  std::string_view line_end_ = "\r\n";
};

}  // namespace corvane::environment
