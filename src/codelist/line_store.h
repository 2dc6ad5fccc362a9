// LineStore: the lines of a list with their markup, and one word of state for each.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::codelist {

// The word of state of a line.
enum LineState : int32_t {
  kLevelMask = 0x2FF,        // encoded block level at the start of the line
  kHidden = 0x400,           // inside a collapsed stretch or a closed tree branch
  kBoundary = 0x40000,       // visible although it may be hidden; closes a collapsed stretch
  kCollapseStart = 0x80000,  // last visible line before a collapsed stretch, always with kBoundary
  kSelected = 0x100000,
  kKeptByLevelShift = 0xFFFE00,
};

// A line is visible when its state is below the first or at least the second.
inline constexpr int32_t kVisibleBelow = 597, kVisibleFrom = kBoundary;

// Lines count from 1. A view of a text stays good until Clear, whatever is appended or replaced.
class LineStore {
 public:
  long Count() const { return static_cast<long>(lines_.size()); }
  bool Has(long index) const { return index >= 1 && index <= Count(); }

  // Requires Has(index).
  std::string_view Text(long index) const { return {At(index).text, At(index).length}; }
  int32_t State(long index) const { return At(index).state; }
  void SetState(long index, int32_t state) { lines_[static_cast<size_t>(index - 1)].state = state; }

  long LineLevel(long index) const { return State(index) & kLevelMask; }
  bool IsVisible(long index) const { return State(index) < kVisibleBelow || State(index) >= kVisibleFrom; }
  bool IsSelected(long index) const { return (State(index) & kSelected) != 0; }

  void Append(std::string_view text, int32_t state) { lines_.push_back({Keep(text), Length(text), state}); }
  void Replace(long index, std::string_view text);  // the state stays; Requires Has(index).
  void Clear();

 private:
  struct Line {
    const char* text;
    uint32_t length;
    int32_t state;
  };

  const Line& At(long index) const { return lines_[static_cast<size_t>(index - 1)]; }
  static uint32_t Length(std::string_view text) { return static_cast<uint32_t>(text.size()); }
  const char* Keep(std::string_view text);
  const char* KeepInNewBlock(std::string_view text);

  std::vector<Line> lines_;
  // Texts lie behind one another in blocks that never move.
  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;
  size_t room_ = 0;
};

}  // namespace corvane::codelist
