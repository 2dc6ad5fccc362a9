#include "bench/table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace corvane::bench {

namespace {

std::string Formatted(const char* format, double value) {
  char text[64];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

}  // namespace

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double ProcessorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

Pair InTurn(int rounds, const std::function<double()>& ours, const std::function<double()>& peer) {
  std::vector<double> our_times, peer_times;
  ours();
  peer();
  for (int round = 0; round < rounds; ++round) {
    our_times.push_back(ours());
    peer_times.push_back(peer());
  }
  return {Median(our_times), Median(peer_times)};
}

void Table::AtLeast(const std::string& what, const std::string& ours, const std::string& peer, double ratio,
                    double aim) {
  Add(what, ours, peer, ratio, Formatted(">= %.2f", aim), ratio >= aim);
}

void Table::AtMost(const std::string& what, const std::string& ours, const std::string& peer, double ratio,
                   double aim) {
  Add(what, ours, peer, ratio, Formatted("<= %.2f", aim), ratio <= aim);
}

void Table::Beside(const std::string& what, const std::string& ours, const std::string& peer, double ratio) {
  rows_.push_back({what, ours, peer, ratio > 0 ? Formatted("%.2f", ratio) : "", "", ""});
}

void Table::Note(const std::string& text) {
  rows_.push_back({text});
}

void Table::Add(const std::string& what, const std::string& ours, const std::string& peer, double ratio,
                const std::string& aim, bool met) {
  rows_.push_back({what, ours, peer, Formatted("%.2f", ratio), aim, met ? "met" : "MISSED"});
  all_met_ = all_met_ && met;
}

void Table::Print() const {
  constexpr int kWidths[] = {58, 12, 12, 7, 9};
  std::printf("%-58s %12s %12s %7s %9s\n", "what", "ours", "peer", "ratio", "aim");
  for (const auto& row : rows_) {
    if (row.size() == 1) {
      std::printf("%s\n", row[0].c_str());
      continue;
    }
    std::printf("%-*s", kWidths[0], row[0].c_str());
    for (size_t column = 1; column < 5; ++column) std::printf(" %*s", kWidths[column], row[column].c_str());
    std::printf("  %s\n", row[5].c_str());
  }
}

std::string Megabytes(double bytes_per_second) {
  return Formatted("%.0f MB/s", bytes_per_second / 1e6);
}

std::string Milliseconds(double seconds) {
  return Formatted(seconds < 0.1 ? "%.3f ms" : "%.0f ms", seconds * 1e3);
}

std::string Nanoseconds(double seconds) {
  return Formatted("%.0f ns", seconds * 1e9);
}

std::string Count(long value) {
  std::string digits = std::to_string(value);
  for (long at = static_cast<long>(digits.size()) - 3; at > 0; at -= 3) digits.insert(static_cast<size_t>(at), 1, ' ');
  return digits;
}

}  // namespace corvane::bench
