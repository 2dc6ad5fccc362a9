#include "forms/row_store.h"

#include <algorithm>
#include <utility>

#include "runtime/collate.h"

namespace corvane::forms {

namespace {

constexpr size_t kBlockRows = 512;  // a full block is cut in half

}  // namespace

// Walks from the block found last, or from the start when the row lies before it.
RowStore::Place RowStore::Find(long row) const {
  if (row < near_first_ || near_block_ >= blocks_.size()) near_block_ = 0, near_first_ = 0;
  while (near_block_ + 1 < blocks_.size() && row - near_first_ >= static_cast<long>(blocks_[near_block_].size())) {
    near_first_ += static_cast<long>(blocks_[near_block_].size());
    ++near_block_;
  }
  return {near_block_, static_cast<size_t>(row - near_first_)};
}

const Row& RowStore::At(long row) const {
  const Place place = Find(row);
  return blocks_[place.block][place.offset];
}

Row& RowStore::At(long row) {
  const Place place = Find(row);
  return blocks_[place.block][place.offset];
}

void RowStore::Insert(long row, Row value) {
  if (blocks_.empty()) blocks_.emplace_back();
  const Place place = Find(row);
  auto& block = blocks_[place.block];
  block.insert(block.begin() + static_cast<long>(place.offset), std::move(value));
  ++count_;
  if (block.size() > kBlockRows) Split(place.block);
}

void RowStore::Split(size_t block) {
  auto& full = blocks_[block];
  // Rows added at the end leave full blocks behind them.
  const bool at_end = block + 1 == blocks_.size();
  const auto middle = full.begin() + static_cast<long>(at_end ? kBlockRows : kBlockRows / 2);
  std::vector<Row> behind(std::make_move_iterator(middle), std::make_move_iterator(full.end()));
  full.erase(middle, full.end());
  blocks_.insert(blocks_.begin() + static_cast<long>(block) + 1, std::move(behind));
}

void RowStore::Remove(long row) {
  const Place place = Find(row);
  auto& block = blocks_[place.block];
  block.erase(block.begin() + static_cast<long>(place.offset));
  --count_;
  if (!block.empty()) return;
  blocks_.erase(blocks_.begin() + static_cast<long>(place.block));
  near_block_ = 0;
  near_first_ = 0;
}

void RowStore::Clear() {
  blocks_.clear();
  count_ = near_first_ = 0;
  near_block_ = 0;
}

long RowStore::SortedPlace(const std::string& text) const {
  const auto above = [](const std::string& wanted, const Row& row) {
    return runtime::CompareAsListed(wanted, row.text) < 0;
  };
  const auto block = std::partition_point(blocks_.begin(), blocks_.end(),
                                          [&](const std::vector<Row>& rows) { return !above(text, rows.back()); });
  long place = 0;
  for (auto before = blocks_.begin(); before != block; ++before) place += static_cast<long>(before->size());
  if (block == blocks_.end()) return place;
  return place + (std::upper_bound(block->begin(), block->end(), text, above) - block->begin());
}

}  // namespace corvane::forms
