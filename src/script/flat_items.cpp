#include "script/flat_items.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

constexpr size_t kHeader = 7;

// By the rules of conversion: "-1" and " 7" are numbers, "2x" is none.
std::optional<long> FieldNumber(std::string_view field) {
  const std::optional<double> number = NumberOf(field);
  if (!number || std::abs(*number) > std::numeric_limits<int32_t>::max()) return {};
  return std::lround(std::nearbyint(*number));
}

FlatItem ReadLabel(std::string_view flat) {
  FlatItem label;
  const size_t colon = flat.find(':');
  label.kind = colon == std::string_view::npos ? FlatItem::kOpenLabel : FlatItem::kLabel;
  if (label.kind == FlatItem::kOpenLabel) return label;
  label.text = flat.substr(1, colon);
  label.size = colon + 1;
  return label;
}

}  // namespace

std::string FormatField2(long number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 2 ? "0" + digits : digits;
}

std::string FormatField3(size_t number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 3 ? std::string(3 - digits.size(), '0') + digits : digits;
}

void AppendStatement(std::string& flat, long eq, long paren, std::string_view text) {
  flat += FormatField2(eq);
  flat += FormatField2(paren);
  flat += FormatField3(text.size());
  flat += text;
}

void AppendLabel(std::string& flat, std::string_view name) {
  flat += labelMark;
  flat += name;
  flat += ':';
}

FlatItem ReadFlatItem(std::string_view flat) {
  if (flat.front() == labelMark) return ReadLabel(flat);
  if (flat.size() < kHeader) return {};
  const std::optional<long> length = FieldNumber(flat.substr(4, 3));
  if (!length || *length < 0) return {};
  const std::string_view text = flat.substr(kHeader, static_cast<size_t>(*length));
  return {FlatItem::kStatement, FieldNumber(flat.substr(0, 2)), FieldNumber(flat.substr(2, 2)), text,
          kHeader + text.size()};
}

std::string_view WithoutSeparators(std::string_view flat) {
  const size_t front = flat.find_first_not_of(": ");
  return front == std::string_view::npos ? std::string_view() : flat.substr(front);
}

}  // namespace corvane::script
