#include "explorer/code_points.h"

#include <algorithm>

#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kSnippetEnd[] = "... ";
constexpr long kSnippetLength = 25, kSnippetlessRows = 2, kShortestSnippetLine = 4, kFirstSnippetEnd = 3;
constexpr long kCaptionLength = 95;

// In the same module, and the same row behind the snippets. Without a snippet nothing tells it.
bool IsInSameProcedure(std::string_view newer, std::string_view entry) {
  std::string module = LabelOf(newer);
  long snippetEnd = InStr(newer, kSnippetEnd);
  if (module.empty() || snippetEnd == 0) return false;
  return BeginsWith(entry, module + ":") && InStr(entry, Mid(newer, snippetEnd)) >= kFirstSnippetEnd;
}

}  // namespace

void CodePoints::Push(const CodePoint& point) {
  if (!points_.empty()) {
    CodePoint& newest = points_.back();
    if (point.text == newest.text || IsInSameProcedure(point.text, newest.text)) {
      newest.line = point.line;
      newest.row = point.row;
      return;
    }
  }
  if (Count() >= kMost) points_.erase(points_.begin());
  points_.push_back(point);
  GoPastNewest();
}

void CodePoints::Clear() {
  points_.clear();
  index_ = 0;
}

std::string CodePoints::Caption(long index) const {
  const std::string& text = At(index).text;
  return Trim(Left(text.substr(0, text.find(kTailMark)), kCaptionLength));
}

bool CodePoints::Step(long direction, std::string_view title) {
  for (long index = index_ + direction; index >= 0 && index < Count(); index += direction)
    if (title.empty() || !Holds(At(index).text, title)) {
      index_ = index;
      return true;
    }
  return false;
}

std::string SnippetOf(std::string_view codeLine, long row) {
  if (row <= kSnippetlessRows || Len(codeLine) < kShortestSnippetLine) return {};
  std::string snippet = Left(codeLine, kSnippetLength);
  return snippet + Space(kSnippetLength - Len(snippet)) + kSnippetEnd;
}

std::string PointText(std::string_view module, std::string_view snippet, std::string_view row, long component) {
  std::string text(row), name(module);
  if (std::string label = std::string(kCurrentLine) + kLabelEnd; BeginsWith(text, label)) {
    text = Mid(text, Len(label) + 1);
    if (Mid(text, 4, 3) == "   " && Val(text) > 0) text = Mid(text, 7);
  } else if (long end = InStr(text, kLabelEnd); end > 1 && !Holds(Left(text, end), " ")) {
    name = Left(text, end - 1);
    text = Mid(text, end + Len(kLabelEnd));
  }
  if (ComponentInTail(text) < 0) text += TailOf(component);
  return name + kLabelEnd + std::string(snippet) + text;
}

std::string RowOfPoint(std::string_view text) {
  long label = InStr(text, kLabelEnd);
  if (label == 0) return std::string(text);
  label += Len(kLabelEnd);
  long end = label + kSnippetLength;
  if (Mid(text, end, Len(kSnippetEnd)) != kSnippetEnd) return std::string(text);
  return Left(text, label - 1) + Mid(text, end + Len(kSnippetEnd));
}

}  // namespace corvane::explorer
