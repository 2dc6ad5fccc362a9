// ListSnapshots: copies of what was listed, one behind the other in the rows of a list that nobody sees, and the place
// among them. A copy is a header, then a row for each row that was copied.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/lists.h"

namespace corvane::explorer {

struct SnapshotHeader {
  std::string component;  // row of the components
  long itemData = 0;      // of that row
  long listIndex = 0;     // row that was selected in the list that was copied
  bool ofCode = false;    // rows of the code view and not of the procedures
};

class ListSnapshots {
 public:
  static constexpr long kMost = 5;

  explicit ListSnapshots(forms::ListBox& rows) : lstSave_(rows) {}

  // Begins a copy behind the newest, whose rows Add takes, and stands on it. One with the newest's header
  // is not begun: false; unless [anew].
  bool Begin(const SnapshotHeader& header, bool anew);
  void Add(std::string_view text, long itemData);
  // Ends the copy; where there are too many now, the oldest goes.
  void End();
  void Clear();

  long Count() const { return static_cast<long>(headers_.size()); }
  SnapshotHeader Header(long position) const;  // from 1
  // Rows of the hidden list that hold the copy at [position]: from, and behind the last.
  long FirstRow(long position) const { return headers_[static_cast<size_t>(position) - 1] + 1; }
  long RowsEnd(long position) const;

  long snapPos = 0;      // the current place, 0 in front of the oldest
  long snapNextRow = 0;  // row from 1 to select on the return to what no copy holds

 private:
  forms::ListBox& lstSave_;
  std::vector<long> headers_;  // rows of the headers in lstSave_
};

}  // namespace corvane::explorer
