#include "environment/module_text.h"

#include <algorithm>
#include <cstring>

#include "environment/statement.h"

namespace corvane::environment {

namespace {

// The line end of a file is that of its first line.
std::string_view FirstLineEnd(std::string_view bytes) {
  size_t at = bytes.find('\n');
  return at == std::string_view::npos || (at > 0 && bytes[at - 1] == '\r') ? "\r\n" : "\n";
}

bool EndsALine(std::string_view text) {
  return text.empty() || text.back() == '\n';
}

}  // namespace

std::vector<std::string_view> CutIntoLines(std::string_view text) {
  std::vector<std::string_view> lines;
  size_t from = 0;
  for (size_t feed; (feed = text.find('\n', from)) != std::string_view::npos;) {
    size_t end = feed > from && text[feed - 1] == '\r' ? feed - 1 : feed;
    lines.push_back(text.substr(from, end - from));
    from = feed + 1;
  }
  lines.push_back(text.substr(from));
  return lines;
}

ModuleText::ModuleText(std::string bytes, size_t code_start) : bytes_(std::move(bytes)), code_start_(code_start) {
  bytes_.shrink_to_fit();
  line_end_ = FirstLineEnd(bytes_);
  final_line_end_ = EndsALine(std::string_view(bytes_).substr(code_start_));
  ReadLines(code_start_);
}

void ModuleText::ReadLines(size_t at) {
  const char* end = bytes_.data() + bytes_.size();
  lines_.reserve(static_cast<size_t>(std::count(bytes_.begin() + static_cast<long>(at), bytes_.end(), '\n')) +
                 (final_line_end_ ? 0 : 1));
  bool continued = false;
  for (const char* from = bytes_.data() + at; from < end;) {
    auto* feed = static_cast<const char*>(std::memchr(from, '\n', static_cast<size_t>(end - from)));
    const char* next = feed == nullptr ? end : feed + 1;
    const char* stop = feed == nullptr ? end : feed;
    if (feed != nullptr && stop > from && stop[-1] == '\r') --stop;
    Span span{static_cast<uint32_t>(from - bytes_.data()), static_cast<uint32_t>(stop - from)};
    // What follows a continued line is its text, even where it reads like an attribute.
    bool hidden = (*from == 'A' || *from == 'a') && !continued && !lines_.empty() && IsAttributeLine(View(span));
    if (hidden)
      attributes_.push_back({static_cast<uint32_t>(lines_.size() - 1), span});
    else
      lines_.push_back(span);
    continued = !hidden && IsContinued(View(span));
    from = next;
  }
}

std::string ModuleText::Lines(long start, long count) const {
  size_t from = static_cast<size_t>(start - 1);
  size_t to = std::min(lines_.size(), from + static_cast<size_t>(std::max(count, 0L)));
  size_t length = 0;
  for (size_t i = from; i < to; ++i) length += lines_[i].length + 2;
  std::string text;
  text.reserve(length);
  for (size_t i = from; i < to; ++i) {
    if (i > from) text += "\r\n";
    text += View(lines_[i]);
  }
  return text;
}

std::string_view ModuleText::Head() const {
  return own_head_ ? std::string_view(head_) : std::string_view(bytes_).substr(0, code_start_);
}

void ModuleText::SetHead(std::string head) {
  head_ = std::move(head);
  own_head_ = true;
}

ModuleText::Span ModuleText::Keep(std::string_view text) {
  auto offset = static_cast<uint32_t>(added_.size());
  added_ += text;
  return {offset | kAdded, static_cast<uint32_t>(text.size())};
}

// Typing replaces a line with each key: what is no longer shown is dropped before it outgrows the text itself.
void ModuleText::CollectGarbage() {
  if (added_.size() < 65536 || added_.size() < 2 * live_added_ + bytes_.size() / 2) return;
  std::string old = std::move(added_);
  added_.clear();
  auto move = [&](Span& span) {
    if (span.offset & kAdded) span = Keep(std::string_view(old).substr(span.offset & ~kAdded, span.length));
  };
  for (Span& line : lines_) move(line);
  for (Attribute& attribute : attributes_) move(attribute.text);
  live_added_ = added_.size();
}

void ModuleText::Replace(long start, long count, const std::vector<std::string_view>& lines, bool revives) {
  size_t from = static_cast<size_t>(start - 1), removed = static_cast<size_t>(count);
  std::string texts;  // a view may be one into added_
  std::vector<size_t> lengths;
  for (std::string_view line : lines) texts += line, lengths.push_back(line.size());
  if (!attributes_.empty()) MoveAttributes(from, removed, lines);
  CollectGarbage();

  std::vector<Span> spans;
  size_t at = 0;
  for (size_t length : lengths) spans.push_back(Keep(std::string_view(texts).substr(at, length))), at += length;
  size_t common = std::min(removed, spans.size());
  auto first = lines_.begin() + static_cast<long>(from);
  std::copy_n(spans.begin(), common, first);
  if (removed > common) lines_.erase(first + static_cast<long>(common), first + count);
  if (spans.size() > common)
    lines_.insert(first + static_cast<long>(common), spans.begin() + static_cast<long>(common), spans.end());

  edited_ = true;
  if (!stretches_.empty()) PatchStretches(from, removed, spans.size());
  if (revives && !lost_.empty()) Revive(from, spans.size());
}

std::string_view ModuleText::OwnLineEnd(Span span) const {
  if (span.offset & kAdded) return {};
  std::string_view behind = std::string_view(bytes_).substr(span.offset + span.length);
  if (behind.substr(0, 2) == "\r\n") return "\r\n";
  return !behind.empty() && behind[0] == '\n' ? "\n" : std::string_view();
}

// Returns where the text of the line ends in [out].
size_t ModuleText::WriteLine(std::string& out, Span span) const {
  out += View(span);
  size_t end = out.size();
  std::string_view own = OwnLineEnd(span);
  // A CR that ends the line itself would be taken for a part of an LF.
  bool ends_in_cr = end > 0 && out[end - 1] == '\r';
  out += !own.empty() ? own : ends_in_cr ? std::string_view("\r\n") : line_end_;
  return end;
}

std::string ModuleText::Write(std::string_view head) const {
  std::string out;
  out.reserve(head.size() + bytes_.size() - code_start_ + added_.size() + 64);
  out += head;
  if (lines_.empty()) return out;
  if (!EndsALine(out)) out += line_end_;
  auto attribute = attributes_.begin();
  size_t last_end = 0;  // of the text of the last line
  for (size_t i = 0; i < lines_.size(); ++i) {
    last_end = WriteLine(out, lines_[i]);
    // Behind the last line of a header, wherever that is now.
    bool due = attribute != attributes_.end() && attribute->line <= i && !IsContinued(View(lines_[i]));
    for (; due && attribute != attributes_.end() && attribute->line <= i; ++attribute)
      if (size_t end = WriteAttribute(out, *attribute)) last_end = end;
  }
  if (!final_line_end_) out.resize(last_end);
  return out;
}

}  // namespace corvane::environment
