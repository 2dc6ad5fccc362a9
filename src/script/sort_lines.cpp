#include "script/sort_lines.h"

#include <algorithm>

#include "runtime/find_text.h"
#include "runtime/strings.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

// Where the text behind [key] (upper case) starts, from 0; npos without it.
size_t BehindKey(std::string_view upper, std::string_view key) {
  if (runtime::BeginsWith(upper, key)) return key.size();
  size_t place = std::string::npos;
  for (const char separator : {' ', ','})
    place = std::min(place, runtime::FindFirst(upper, std::string(1, separator).append(key)));
  return place == std::string::npos ? place : place + 1 + key.size();
}

std::string SortValue(const std::string& line, std::string_view key) {
  const size_t from = key.empty() ? std::string::npos : BehindKey(runtime::UCase(line), key);
  if (from == std::string::npos) return line;
  const size_t end = std::min(line.find_first_of(" ,", from), line.size());
  const std::string value = line.substr(from, end - from);
  const auto number = NumberOf(value);
  return number ? runtime::Format(*number, "0000000") : value;
}

}  // namespace

std::string SortLines(Workshop& workshop, std::string_view text, std::string_view key, std::string_view order) {
  const std::string upper_key = runtime::UCase(key);
  std::vector<std::string> items;
  while (!text.empty()) {
    const size_t end = std::min(text.find(runtime::kCrLf), text.size());
    const std::string line(text.substr(0, end));
    items.push_back(SortValue(line, upper_key) + listSep + line);
    text.remove_prefix(std::min(end + 2, text.size()));
  }
  items = workshop.Sorted(std::move(items));
  if (runtime::UCase(runtime::Left(order, 3)) == "DES") std::reverse(items.begin(), items.end());
  std::string sorted;
  for (const std::string& item : items) sorted += item.substr(item.find(listSep) + 1) + runtime::kCrLf;
  return sorted;
}

}  // namespace corvane::script
