#include "cli/unified_diff.h"

#include <algorithm>
#include <vector>

namespace corvane::cli {

namespace {

constexpr long kContext = 3;       // lines around a difference
constexpr long kMostSteps = 3000;  // of the search; its memory grows with their square

using Lines = std::vector<std::string_view>;  // each with its line end

Lines LinesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

// Lines [old_from, old_to) give way to [new_from, new_to), from 0.
struct Change {
  long old_from, old_to, new_from, new_to;
};

// The shortest way from one text to the other, by the greedy algorithm: after [steps] insertions and deletions, how far
// each diagonal (old line minus new line) got.
class Comparison {
 public:
  Comparison(const Lines& old_lines, const Lines& new_lines) : old_(old_lines), new_(new_lines) {}

  std::vector<Change> Changes() {
    TakeEndsOff();
    if (old_from_ == old_to_ && new_from_ == new_to_) return {};
    const long steps = Search();
    if (steps < 0) return {{old_from_, old_to_, new_from_, new_to_}};
    return WayBack(steps);
  }

 private:
  void TakeEndsOff() {
    old_to_ = static_cast<long>(old_.size());
    new_to_ = static_cast<long>(new_.size());
    while (old_from_ < old_to_ && new_from_ < new_to_ && Old(0) == New(0)) ++old_from_, ++new_from_;
    while (old_to_ > old_from_ && new_to_ > new_from_ &&
           old_[static_cast<size_t>(old_to_ - 1)] == new_[static_cast<size_t>(new_to_ - 1)])
      --old_to_, --new_to_;
  }
  std::string_view Old(long at) const { return old_[static_cast<size_t>(old_from_ + at)]; }
  std::string_view New(long at) const { return new_[static_cast<size_t>(new_from_ + at)]; }

  // How far a diagonal got in a row of that many steps.
  static long& Far(std::vector<long>& row, long diagonal) {
    return row[static_cast<size_t>(diagonal + (static_cast<long>(row.size()) - 1) / 2)];
  }
  // Whether a diagonal is entered from the one above it, by an insertion.
  static bool Inserts(std::vector<long>& before, long diagonal, long steps) {
    if (diagonal == -steps) return true;
    return diagonal != steps && Far(before, diagonal - 1) < Far(before, diagonal + 1);
  }
  static long Start(std::vector<long>& before, long diagonal, long steps) {
    return Inserts(before, diagonal, steps) ? Far(before, diagonal + 1) : Far(before, diagonal - 1) + 1;
  }

  // The number of steps; -1 where there are too many.
  long Search() {
    const long old_count = old_to_ - old_from_, new_count = new_to_ - new_from_;
    for (long steps = 0; steps <= std::min(old_count + new_count, kMostSteps); ++steps) {
      std::vector<long> row(static_cast<size_t>(2 * steps + 3), 0);
      for (long diagonal = -steps; diagonal <= steps; diagonal += 2) {
        long x = steps == 0 ? 0 : Start(rows_.back(), diagonal, steps);
        while (x < old_count && x - diagonal < new_count && Old(x) == New(x - diagonal)) ++x;
        Far(row, diagonal) = x;
        if (x >= old_count && x - diagonal >= new_count) return steps;
      }
      rows_.push_back(std::move(row));
    }
    return -1;
  }

  std::vector<Change> WayBack(long steps) {
    std::vector<Change> changes;
    long x = old_to_ - old_from_, y = new_to_ - new_from_;
    for (; steps > 0; --steps) {
      std::vector<long>& before = rows_[static_cast<size_t>(steps - 1)];
      const long diagonal = x - y;
      const bool inserts = Inserts(before, diagonal, steps);
      x = inserts ? Far(before, diagonal + 1) : Far(before, diagonal - 1);
      y = x - (inserts ? diagonal + 1 : diagonal - 1);
      const long old_at = old_from_ + x, new_at = new_from_ + y;
      AddInFront(changes, {old_at, old_at + (inserts ? 0 : 1), new_at, new_at + (inserts ? 1 : 0)});
    }
    std::reverse(changes.begin(), changes.end());
    return changes;
  }

  static void AddInFront(std::vector<Change>& changes, const Change& change) {
    Change* behind = changes.empty() ? nullptr : &changes.back();
    if (behind && behind->old_from == change.old_to && behind->new_from == change.new_to) {
      behind->old_from = change.old_from;
      behind->new_from = change.new_from;
    } else {
      changes.push_back(change);
    }
  }

  const Lines &old_, &new_;
  long old_from_ = 0, old_to_ = 0, new_from_ = 0, new_to_ = 0;  // what is between the lines alike at both ends
  std::vector<std::vector<long>> rows_;                         // by steps
};

void AddLines(std::string& out, char mark, const Lines& lines, long from, long to) {
  for (long at = from; at < to; ++at) {
    const std::string_view line = lines[static_cast<size_t>(at)];
    out.append(1, mark).append(line);
    if (line.back() != '\n') out += "\n\\ No newline at end of file\n";
  }
}

std::string Range(long from, long count) {
  const long first = count == 0 ? from : from + 1;
  return count == 1 ? std::to_string(first) : std::to_string(first) + "," + std::to_string(count);
}

// The stretch of changes [first, last] with the lines around it.
std::string Hunk(const Lines& old_lines, const Lines& new_lines, const Change* first, const Change* last) {
  const long before = std::min(kContext, first->old_from);
  const long behind = std::min(kContext, static_cast<long>(old_lines.size()) - last->old_to);
  const long old_from = first->old_from - before, new_from = first->new_from - before;
  std::string text = "@@ -" + Range(old_from, last->old_to + behind - old_from) + " +" +
                     Range(new_from, last->new_to + behind - new_from) + " @@\n";
  long at = old_from;
  for (const Change* change = first; change <= last; ++change) {
    AddLines(text, ' ', old_lines, at, change->old_from);
    AddLines(text, '-', old_lines, change->old_from, change->old_to);
    AddLines(text, '+', new_lines, change->new_from, change->new_to);
    at = change->old_to;
  }
  AddLines(text, ' ', old_lines, at, at + behind);
  return text;
}

bool IsBinary(std::string_view text) {
  return text.find('\0') != std::string_view::npos;
}

}  // namespace

std::string UnifiedDiff(std::string_view old_name, std::string_view new_name, std::string_view old_text,
                        std::string_view new_text) {
  if (old_text == new_text) return {};
  const std::string old_title(old_name), new_title(new_name);
  if (IsBinary(old_text) || IsBinary(new_text)) return "Binary files " + old_title + " and " + new_title + " differ\n";
  const Lines old_lines = LinesOf(old_text), new_lines = LinesOf(new_text);
  const std::vector<Change> changes = Comparison(old_lines, new_lines).Changes();
  std::string text = "--- " + old_title + "\n+++ " + new_title + "\n";
  for (size_t first = 0; first < changes.size();) {
    size_t last = first;
    while (last + 1 < changes.size() && changes[last + 1].old_from - changes[last].old_to <= 2 * kContext) ++last;
    text += Hunk(old_lines, new_lines, &changes[first], &changes[last]);
    first = last + 1;
  }
  return text;
}

}  // namespace corvane::cli
