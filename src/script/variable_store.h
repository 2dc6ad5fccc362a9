// VariableStore: the variables, constants and local names of a run. It is one text of entries, searched as a text; an
// index beside it finds a name without walking the text, with the same answer as the search.
//
// An entry is "<(_", the name in upper case, "=", then the value itself (a constant) or listSep and the number of a
// cell with three digits at least. The name of an array keeps its "(". A local's name ends in "__" and the depth of
// calls.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "script/memory_use.h"

namespace corvane::script {

class VariableStore {
 public:
  void Clear();

  // The whole text: varStore.
  const std::string& Text() const { return text_; }
  long varCount() const { return count_; }

  // "<(_" and [line], which is NAME=value: a constant.
  void AppendConstant(std::string_view line);
  // A new cell that holds 0, and its entry behind all others. Returns the number of the cell.
  long Declare(std::string_view name);

  // Place behind the first "<(_" [name] "=" of the text, from 1; 0 if there is none.
  long FindForReading(std::string_view name) const;
  // Place of the listSep of the first "_" [name] "=" listSep, from 1; 0 if there is none. It may stand behind the end
  // of a longer name.
  long FindForStoring(std::string_view name) const;

  // The cell whose reference stands at [place], or 0 if what stands there is a value.
  long CellNumberAt(long place) const;
  // What stands from [place] to the next entry.
  std::string_view ValueAt(long place) const;

  // The two looked up, first as a local of [depth], then as it is. 0 for none.
  long FindVisible(std::string_view name, int depth) const;
  long CellForStoring(std::string_view name, int depth) const;

  // Cells count from 1. Reading one beyond the end gives 0; a number below 1 or beyond varCount is not stored.
  const Cell& Value(long cell) const;
  void Store(long cell, Cell value);
  bool HasCell(long cell) const { return cell >= 1 && cell < static_cast<long>(values_.size()); }
  Cell& At(long cell) { return values_[static_cast<size_t>(cell)]; }

  // Forgets what was declared since the text was [length] long, as the end of a call does.
  void CutTo(size_t length, long varCount);

  void AddTo(MemoryUse& use) const;

  // Changes whenever the answer of a search may have changed.
  uint64_t Generation() const { return generation_; }

 private:
  // Where a key ends in the text, by its name's hash.
  struct Mention {
    uint64_t hash;
    size_t name, equals;  // from 0
  };
  class Index {
   public:
    void Clear();
    void Add(const Mention& mention);
    // Takes back the mentions whose end would be cut, the last first.
    template <class Forgotten>
    void CutTo(size_t length, size_t behind, Forgotten&& forgotten);
    const Mention* First(std::string_view text, std::string_view name) const;
    size_t Size() const { return mentions_.size(); }

   private:
    std::vector<Mention> mentions_;                                // by place of the "="
    std::unordered_map<uint64_t, std::vector<uint32_t>> by_hash_;  // numbers in mentions_, rising
  };

  void Append(std::string_view more);
  void Scan(size_t from);
  void MentionNamesBefore(size_t equals);

  std::string text_;
  std::vector<Cell> values_ = std::vector<Cell>(1);  // varValues; the first is not used
  long count_ = 0;
  std::vector<size_t> open_;   // "<(_" without a "=" behind it so far
  size_t last_reference_ = 0;  // behind the last "=" listSep, where the search for longer names starts
  Index reading_, storing_;
  uint64_t generation_ = 1;
};

// "NAME__2": a name as a local of [depth] has it; at depth 0 the name itself. An array's bracket stays last but for it:
// "NAME(__2".
std::string LocalName(std::string_view name, int depth);

}  // namespace corvane::script
