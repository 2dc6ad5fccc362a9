// RowStore: the rows of a list. Inserting, removing and reading are fast at any length: rows are kept in blocks of
// bounded size, so that filling a sorted list of a hundred thousand rows is not a quadratic walk.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace corvane::forms {

struct Row {
  std::string text;
  long data = 0;
  bool selected = false;
};

class RowStore {
 public:
  long Count() const { return count_; }
  // Requires: 0 <= row < Count().
  const Row& At(long row) const;
  Row& At(long row);
  void Insert(long row, Row value);  // Requires: 0 <= row <= Count().
  void Remove(long row);
  void Clear();
  // Row behind all that are not above [text] in the listed order (runtime::CompareAsListed); for a sorted store.
  long SortedPlace(const std::string& text) const;

 private:
  struct Place {
    size_t block, offset;
  };
  Place Find(long row) const;
  void Split(size_t block);
  std::vector<std::vector<Row>> blocks_;
  long count_ = 0;
  // The block found last and its first row: neighbours are asked for one after the other.
  mutable size_t near_block_ = 0;
  mutable long near_first_ = 0;
};

}  // namespace corvane::forms
