// ModuleText: the text of one module file: its head, the lines that the environment shows, and the Attribute lines that
// it hides.
//
// Invariant: Write() of an unedited text gives the bytes it was made from. The bytes are kept once; a line costs 8
// bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::environment {

// Cuts at CR LF and LF, as files are read; a CR alone is a character like others. "a" CR LF is "a" and an empty line;
// empty text is one empty line.
std::vector<std::string_view> CutIntoLines(std::string_view text);

// A run of lines that lie in one piece of memory, each behind the line end of the one before.
struct Stretch {
  uint32_t first_line = 0, last_line = 0;  // from 0
  bool operator==(const Stretch&) const = default;
};

class ModuleText {
 public:
  ModuleText() = default;
  // [bytes] is the whole file, below 2 GB; its code starts at [code_start].
  ModuleText(std::string bytes, size_t code_start);
  ModuleText(const ModuleText&) = delete;
  ModuleText& operator=(const ModuleText&) = delete;
  ModuleText(ModuleText&&) = default;
  ModuleText& operator=(ModuleText&&) = default;

  // Lines count from 1; requires 1 <= line <= Count(). Views live until the next change.
  long Count() const { return static_cast<long>(lines_.size()); }
  std::string_view Line(long line) const { return View(lines_[static_cast<size_t>(line - 1)]); }
  std::string Lines(long start, long count) const;  // joined with CR LF; clipped at the end

  // Replaces [count] lines from [start] (1 to Count() + 1) by [lines]; views into this text are allowed. Attributes
  // follow their members: they move with their line, stay when the member is declared again or its line is changed in
  // place, and go with it. [revives]: a member that had lost its attributes by such an edit gets them back.
  void Replace(long start, long count, const std::vector<std::string_view>& lines, bool revives = false);

  // Members that [other] lost may come back here, too.
  void KeepLostOf(const ModuleText& other) { lost_ = other.lost_; }

  // The bytes in front of the code: header, designer part, attributes of the module.
  std::string_view Head() const;
  void SetHead(std::string head);

  std::string Write() const { return Write(Head()); }
  std::string Write(std::string_view head) const;  // with another head
  std::string_view LineEnd() const { return line_end_; }

  // Asks the memory for what a search reads first.
  void PrefetchStart() const;
  // For searching: where the lines lie, each in one stretch. Valid until the next change.
  const std::vector<Stretch>& Stretches() const;
  // The line (from 1) of a stretch in which [at] lies.
  long LineAt(const Stretch& stretch, const char* at) const;

 private:
  static constexpr uint32_t kAdded = 0x80000000u;
  // A piece of bytes_, or of added_ where the offset has kAdded.
  struct Span {
    uint32_t offset = 0, length = 0;
  };
  // A hidden line below [line] (from 0). [touched]: the line above was edited, so the name may have to follow it.
  struct Attribute {
    uint32_t line = 0;
    Span text;
    bool touched = false;
  };
  // Attributes of a member that was deleted.
  struct Lost {
    std::string member;
    std::vector<std::string> lines;
  };

  std::string_view View(Span span) const {
    return span.offset & kAdded ? std::string_view(added_.data() + (span.offset & ~kAdded), span.length)
                                : std::string_view(bytes_.data() + span.offset, span.length);
  }
  void ReadLines(size_t at);
  Span Keep(std::string_view text);
  void CollectGarbage();
  void MoveAttributes(size_t start, size_t count, const std::vector<std::string_view>& lines);
  bool PlaceAttribute(Attribute& attribute, size_t start, size_t count,
                      const std::vector<std::string_view>& lines) const;
  void LoseAttribute(const Attribute& attribute);
  void Revive(size_t start, size_t count);
  size_t HeaderStart(size_t line) const;
  size_t HeaderEnd(size_t line) const;
  std::string_view OwnLineEnd(Span span) const;
  bool LiesBehind(size_t line) const;
  void AddStretches(std::vector<Stretch>& stretches, size_t from, size_t to) const;
  void PatchStretches(size_t start, size_t removed, size_t inserted);
  size_t WriteLine(std::string& out, Span span) const;
  size_t WriteAttribute(std::string& out, const Attribute& attribute) const;

  std::string bytes_, added_;
  std::string head_;  // when it is no longer the start of bytes_
  bool own_head_ = false, edited_ = false, final_line_end_ = true;
  size_t code_start_ = 0;
  size_t live_added_ = 0;  // bytes of added_ in use after the last collection
  std::string_view line_end_ = "\r\n";
  std::vector<Span> lines_;
  std::vector<Attribute> attributes_;  // by line
  std::vector<Lost> lost_;
  mutable std::vector<Stretch> stretches_;
};

}  // namespace corvane::environment
