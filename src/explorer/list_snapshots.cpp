#include "explorer/list_snapshots.h"

#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kHeaderEnd[] = "+()+";  // behind the component; the row that was selected follows the tail's mark
constexpr char kOfCode[] = "***";

std::string HeaderRow(const SnapshotHeader& header) {
  return (header.ofCode ? kOfCode : "") + header.component + kHeaderEnd + kTailMark + CStr(header.listIndex);
}

}  // namespace

bool ListSnapshots::Begin(const SnapshotHeader& header, bool anew) {
  snapPos = Count();
  std::string row = HeaderRow(header);
  if (!anew && Count() > 0 && lstSave_.List(headers_.back()) == row &&
      lstSave_.ItemData(headers_.back()) == header.itemData)
    return false;
  headers_.push_back(lstSave_.ListCount());
  snapPos = Count();
  Add(row, header.itemData);
  return true;
}

void ListSnapshots::Add(std::string_view text, long itemData) {
  lstSave_.AddItem(std::string(text));
  lstSave_.SetItemData(lstSave_.NewIndex(), itemData);
}

void ListSnapshots::End() {
  if (Count() <= kMost) return;
  long rows = RowsEnd(1);
  for (long row = 0; row < rows; ++row) lstSave_.RemoveItem(0);
  headers_.erase(headers_.begin());
  for (long& header : headers_) header -= rows;
  snapPos = Count();
}

void ListSnapshots::Clear() {
  lstSave_.Clear();
  headers_.clear();
  snapPos = 0;
  snapNextRow = 0;
}

SnapshotHeader ListSnapshots::Header(long position) const {
  long at = headers_[static_cast<size_t>(position) - 1];
  std::string row = lstSave_.List(at);
  SnapshotHeader header;
  header.ofCode = BeginsWith(row, kOfCode);
  if (header.ofCode) row = Mid(row, Len(kOfCode) + 1);
  long end = InStrRev(row, std::string(kHeaderEnd) + kTailMark);
  header.component = Left(row, end - 1);
  header.itemData = lstSave_.ItemData(at);
  header.listIndex = static_cast<long>(Val(Mid(row, end + Len(kHeaderEnd) + Len(kTailMark))));
  return header;
}

long ListSnapshots::RowsEnd(long position) const {
  return position < Count() ? headers_[static_cast<size_t>(position)] : lstSave_.ListCount();
}

}  // namespace corvane::explorer
