// FlatProgram: a flat program that is decoded once, however often it runs.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "script/flat_items.h"

namespace corvane::script {

class FlatProgram;

// The parts of an IF statement's text: where its condition ends and what stands behind THEN.
struct IfParts {
  std::string condition;
  std::shared_ptr<FlatProgram> tail;  // of a one-line IF; none where the GO behind decides
};

// An item with what the loop finds out about it, which holds for as long as the program does.
struct ProgramItem : FlatItem {
  bool cut = false;    // reaches beyond the program's end: what follows it must be read with it
  size_t behind = 0;   // place behind it and the separators that follow
  std::string upper;   // the text in upper case
  int row = 0;         // first row of the table of statements that it may belong to
  std::string target;  // of a jump: what is sought
  std::optional<IfParts> if_parts;
};

// Whether [sought] can stand in a program only from a mark to the next ":".
bool IsLabel(std::string_view sought);

class FlatProgram {
 public:
  static constexpr size_t kNowhere = std::string::npos;

  explicit FlatProgram(std::string text);
  FlatProgram(const FlatProgram&) = delete;
  FlatProgram& operator=(const FlatProgram&) = delete;

  const std::string& Text() const { return text_; }
  // From [at] on, counted from 0, without separators.
  size_t SkipSeparators(size_t at) const;
  // The item that begins at [at], where no separator stands.
  ProgramItem& ItemAt(size_t at);
  // First place of [sought] at or behind [from], counted from 0, or kNowhere.
  size_t Find(const std::string& sought, size_t from);
  // The places of each label, with its mark and ":", rising.
  using LabelPlaces = std::unordered_map<std::string_view, std::vector<size_t>>;
  const LabelPlaces& Labels();

 private:
  ProgramItem& Decode(size_t at);
  size_t FindLabel(std::string_view label, size_t from, std::string_view before);
  void CollectLabels();

  const std::string text_;
  std::deque<ProgramItem> items_;
  std::vector<uint32_t> item_at_;  // by place: number in items_, from 1
  LabelPlaces labels_;             // once one is sought
  bool labels_known_ = false;
  struct Search {
    std::string sought;
    size_t from = 0, at = 0;
  };
  Search last_;  // for anything else
};

}  // namespace corvane::script
