// FavoriteDesigners: names of components that the user keeps at hand, oldest first. Needs no window.
#pragma once

#include <string>
#include <vector>

namespace corvane::explorer {

class FavoriteDesigners {
 public:
  static constexpr size_t kMost = 14;

  // The newest is not added again; at the most of them the oldest goes.
  void Add(const std::string& name) {
    if (!names_.empty() && names_.back() == name) return;
    if (names_.size() == kMost) names_.erase(names_.begin());
    names_.push_back(name);
  }
  void Clear() { names_.clear(); }
  const std::vector<std::string>& Names() const { return names_; }

 private:
  std::vector<std::string> names_;
};

}  // namespace corvane::explorer
