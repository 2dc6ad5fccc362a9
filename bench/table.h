// The table that `make bench` prints: what was measured, ours, the peer's, the ratio, and the aim.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvane::bench {

// Seconds of one run of [work].
double Seconds(const std::function<void()>& work);
// What this process has used of the processor, waits for the memory included.
double ProcessorSeconds();

double Median(std::vector<double> values);

// Medians of runs of ours and the peer's in turn, so that what else the machine does falls on both. One run of each
// goes before and is not counted: both are warm.
struct Pair {
  double ours = 0, peer = 0;
};
Pair InTurn(int rounds, const std::function<double()>& ours, const std::function<double()>& peer);

// What a unit (a line, a byte) costs, from the smallest project to the largest.
class Growth {
 public:
  void Add(double cost, double units) {
    last_ = cost / units;
    if (first_ == 0) first_ = last_;
  }
  // The largest to the smallest.
  double Ratio() const { return last_ / first_; }

 private:
  double first_ = 0, last_ = 0;
};

class Table {
 public:
  // [ratio] is better the larger it is for AtLeast, and the smaller it is for AtMost.
  void AtLeast(const std::string& what, const std::string& ours, const std::string& peer, double ratio, double aim);
  void AtMost(const std::string& what, const std::string& ours, const std::string& peer, double ratio, double aim);
  // A row without an aim; without a ratio, where that is 0.
  void Beside(const std::string& what, const std::string& ours, const std::string& peer = {}, double ratio = 0);
  // A line of text between the rows.
  void Note(const std::string& text);

  void Print() const;
  bool AllAimsMet() const { return all_met_; }

 private:
  void Add(const std::string& what, const std::string& ours, const std::string& peer, double ratio,
           const std::string& aim, bool met);
  std::vector<std::vector<std::string>> rows_;
  bool all_met_ = true;
};

std::string Megabytes(double bytes_per_second);  // "112 MB/s"
std::string Milliseconds(double seconds);        // "1.27 ms"
std::string Nanoseconds(double seconds);         // "640 ns"
std::string Count(long value);                   // "2 001 578"

}  // namespace corvane::bench
