// How a line becomes pixels: its background and gutter, the runs between its level marks, tree entries and grid cells.
// Before the text of a line stands one blank that the stored line does not have.
#include <algorithm>
#include <cmath>

#include "codelist/uc_list_box.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::codelist {

using forms::RGB;
using runtime::Space;

namespace {

constexpr Color kGutter = forms::k3DLight, kRule = RGB(0, 0, 0);
constexpr Color kSelectedBack = RGB(192, 192, 192), kSelectedCurrentBack = RGB(128, 128, 128);
constexpr Color kCurrentWithoutFocus = RGB(210, 255, 230), kFrameWithoutFocus = RGB(0, 255, 0);
constexpr Color kHeading = RGB(0, 0, 128), kLink = RGB(128, 0, 128);
constexpr int32_t kHiddenFrom = 1024;  // the painter's own bound, up to kBoundary

constexpr Twips kBoldShift = 8;  // bold is the same text printed twice
constexpr Twips kDotRadius = 40;
constexpr long kTwipsOfGridStep = 50;

bool IsHidden(int32_t state) {
  return state >= kHiddenFrom && state < kBoundary;
}

// What is seen of [run] when [skip] plain characters of it, fewer than it has, are scrolled out; half of one of two
// bytes is not. The marks among them still hold for what is behind them. [cut] keeps what is seen.
std::string_view Behind(std::string_view run, size_t skip, std::string& cut) {
  if (skip == 0) return run;
  cut.clear();
  size_t place = 0;
  for (; skip > 0; ++place)
    if (IsMarkCharacter(run[place]))
      cut += run[place];
    else
      --skip;
  if (runtime::AnsiCodePage().IsSecondByte(run, place)) ++place;
  return cut.append(run.substr(place));
}

bool HasWidth(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code >= 32 && code != 127;
}

}  // namespace

Twips ucListBox::RowTop(long row) const {
  return std::trunc(static_cast<Twips>(row - 1) * rowHeight);
}

Twips ucListBox::WidthOf(std::string_view text) {
  return widths.Of(text, [this](std::string_view measured) { return pic.TextWidth(measured); });
}

void ucListBox::ClearPane() {
  pic.Cls();
  pic.FillBox(0, 0, gutterWidth, pic.ScaleHeight(), kGutter);
  pic.DrawLine(gutterWidth, 0, gutterWidth, pic.ScaleHeight(), kRule);
  pic.SetCurrentX(0);
  pic.SetCurrentY(0);
}

void ucListBox::PaintLineAt(long row, long index, Color colour) {
  if (loading || index > store.Count() || row > visibleRows) return;
  PaintLine(0, RowTop(std::max(1L, row)), index, colour);
}

// An empty row, as below the last line.
void ucListBox::PaintRowsBehindLast() {
  long row = 1;
  for (long line = topLine; line <= store.Count() && row <= visibleRows; line = NextVisible(line)) ++row;
  if (row > visibleRows) return;
  pic.FillBox(0, RowTop(row), paneWidth, RowTop(row) + rowHeight, pic.BackColor());
  PaintGutter(0, RowTop(row));
}

void ucListBox::PaintLine(Twips x, Twips y, long index, Color colour) {
  if (index < 1) return;
  // What stands below the surface is only counted.
  if (loading || y >= pic.ScaleHeight()) return CountLevel(index);
  PaintBackground(x, y, index, colour);
  pic.SetCurrentX(x);
  pic.SetCurrentY(y);
  if (IsHidden(store.State(index))) return;
  PaintText(x, y, index);
  pic.SetCurrentX(x);
  pic.SetCurrentY(y + rowHeight);
}

// Advances the running level over the marks of a line that is not drawn.
void ucListBox::CountLevel(long index) {
  if (IsHidden(store.State(index)) || listMode == kGridList || treeMode) return;
  runningLevel = store.LineLevel(index) + SumOfMarks(store.Text(index));
}

void ucListBox::PaintGutter(Twips x, Twips y) {
  pic.FillBox(x, y, x + gutterWidth, y + rowHeight, kGutter);
  pic.DrawLine(x + gutterWidth, y, x + gutterWidth, y + rowHeight, kRule);
}

void ucListBox::PaintBackground(Twips x, Twips y, long index, Color colour) {
  const bool current = colour != kPlain;
  Color back = colour;
  if (store.IsSelected(index)) back = current ? kSelectedCurrentBack : kSelectedBack;
  pic.FillBox(x, y, paneWidth, y + rowHeight, back);
  PaintGutter(x, y);
  if (store.State(index) & kCollapseStart) {
    pic.SetFillStyle(0);
    pic.SetFillColor(RGB(255, 255, 0));
    pic.Circle(x + gutterWidth / 2, y + rowHeight / 2, kDotRadius, RGB(255, 0, 0));
    pic.SetFillStyle(1);
  }
  if (!current) return;
  if (!hasFocus) {
    pic.FillBox(x, y, paneWidth, y + rowHeight, kCurrentWithoutFocus);
    pic.FrameBox(x, y, paneWidth, y + rowHeight, kFrameWithoutFocus);
    PaintGutter(x, y);
  }
  pic.PaintPicture(img, x + 10, y + 10, gutterWidth - 20, rowHeight - 20);
}

// Runs between marks, each in the colour of its level. What is scrolled out at the left is counted, not drawn.
void ucListBox::PaintText(Twips x, Twips y, long index) {
  const std::string line = std::string(1, ' ').append(store.Text(index));
  std::string_view text = line;
  Twips pen = x + gutterWidth;
  long level = store.LineLevel(index);
  pic.SetForeColor(LevelColor(level));
  if (listMode == kGridList) return PaintGrid(x, y, text);
  auto skip = static_cast<size_t>(firstColumn);  // characters cut off in front; marks are none
  std::string cut;
  for (Mark mark = FirstMark(text); mark.step != 0; mark = FirstMark(text)) {
    const std::string_view segment = text.substr(0, mark.place);
    text.remove_prefix(mark.place + kLevelUp.size());
    if (const size_t length = PlainLength(segment); skip < length) {
      pic.SetForeColor(LevelColor(level));
      pen += PaintSegment(pen, y, Behind(segment, skip, cut), true);
      skip = 0;
    } else {
      skip -= length;
    }
    level += mark.step;
  }
  pic.SetForeColor(LevelColor(level));
  if (treeMode) return PaintTreeEntry(pen, y, index, text, level, skip);
  if (skip < PlainLength(text)) PaintSegment(pen, y, Behind(text, skip, cut), false);
  runningLevel = level;
}

// Returns the width that was drawn, if it is asked for.
Twips ucListBox::PaintSegment(Twips x, Twips y, std::string_view text, bool measured) {
  using std::string_view;
  if (text.empty()) return 0;
  if (text.substr(1, kCaption.size()) == kCaption && text[0] == ' ') {
    const std::string heading = Space(40) + runtime::Trim(text.substr(3)) + Space(125);
    return PrintEmphasized(x, y, heading, kHeading, measured);
  }
  if (text.size() > 7 && text[1] == '<' && runtime::UCase(text.substr(1, 6)) == "<HREF=")
    if (size_t close = text.find('>'); close != string_view::npos && close > 0)
      return PrintEmphasized(x, y, text.substr(close + 1), kLink, measured);
  if (size_t bold = text.find(kBold); bold != string_view::npos)
    return PaintSplit(x, y, text.substr(0, bold), text.substr(bold + 1), true, measured);
  if (size_t comment = CommentStart(listMode, text); comment != string_view::npos)
    return PaintSplit(x, y, text.substr(0, comment), text.substr(comment), false, measured);
  if (text.size() > 1 && text[1] == kPictureMark)
    if (size_t end = text.find(kPictureMark, 2); end != string_view::npos && end > 2) {
      pic.PaintPicture(PictureNamed(text.substr(2, end - 2)), x + 60, y + 10, rowHeight - 40, rowHeight - 40);
      return Print(x + 240, y, std::string(1, ' ').append(text.substr(end + 1)), measured);
    }
  return Print(x, y, text, measured);
}

Twips ucListBox::PaintSplit(Twips x, Twips y, std::string_view front, std::string_view behind, bool bold,
                            bool measured) {
  const Twips pen = x + Print(x, y, front, true);
  if (ListRole == kScriptTree) PaintGroupPicture(pen, y, behind);
  if (bold) {
    Print(pen - kBoldShift, y, behind, false);
  } else {
    pic.SetForeColor(kCommentColor);
  }
  return pen - x + Print(pen, y, behind, measured);
}

Twips ucListBox::PrintEmphasized(Twips x, Twips y, std::string_view text, Color colour, bool measured) {
  pic.SetForeColor(colour);
  pic.SetFontBold(true);
  pic.SetFontUnderline(true);
  if (const std::string_view seen = InFrontOfEdge(x, text); !seen.empty()) pic.PrintAt(x, y, seen);
  pic.SetFontBold(false);
  pic.SetFontUnderline(false);
  return measured ? WidthOf(text) : 0;
}

// What of [text] can be seen from [x] on, at the most: a character with a width is not narrower than a pixel.
std::string_view ucListBox::InFrontOfEdge(Twips x, std::string_view text) const {
  if (x >= paneWidth) return {};
  auto room = static_cast<long>((paneWidth - x) / forms::kTwipsPerPixel) + 1;
  size_t end = 0;
  for (; end < text.size() && room > 0; ++end)
    if (HasWidth(text[end])) --room;
  return text.substr(0, end);
}

// The mark of a block comment shows as a blank.
Twips ucListBox::Print(Twips x, Twips y, std::string_view text, bool measured) {
  if (text.find(kBlockComment) != std::string_view::npos) {
    std::string blank(text);
    std::replace(blank.begin(), blank.end(), kBlockComment, ' ');
    return Print(x, y, blank, measured);
  }
  const std::string_view seen = InFrontOfEdge(x, text);
  if (seen.find_first_not_of(' ') != std::string_view::npos) pic.PrintAt(x, y, seen);
  return measured ? WidthOf(text) : 0;
}

// The small picture behind a menu group of the script tree.
void ucListBox::PaintGroupPicture(Twips x, Twips y, std::string_view text) {
  static const std::string group = Space(14) + "{", run = Space(100);
  const long place = runtime::InStr(text, run);
  if (place == 0 || !runtime::Holds(text, group)) return;
  const Twips behind = x + pic.TextWidth(runtime::Left(text, place + 1));
  pic.PaintPicture(runtime::InStr(text, "}!") > place ? img2 : img1, behind + 10, y + 10, rowHeight - 40,
                   rowHeight - 40);
}

forms::PictureRef ucListBox::PictureNamed(std::string_view name) const {
  if (name == "*") return img2;
  const double position = runtime::Val(name);  // of any size
  return position >= 1 && position < imgList.Count() + 1 ? imgList.Item(static_cast<int>(position)) : nullptr;
}

// Bold unless it begins with character 3; behind that a tag in brackets is not shown, and gives a box when it ends in
// "!".
void ucListBox::PaintTreeEntry(Twips x, Twips y, long index, std::string_view text, long level, size_t skip) {
  const long indent = std::max(0L, (level - BaseLevel) * kColumnsOfLevel);
  bool box = true;
  std::string shown = Space(indent + 1);
  if (text.substr(0, 2) == std::string{' ', kPlainEntry}) {
    text.remove_prefix(2);
    box = false;
    const size_t close = text.substr(0, 1) == "(" ? text.find(')') : std::string_view::npos;
    if (close != std::string_view::npos && close >= 2) {
      box = text[close - 1] == '!';
      text.remove_prefix(close + 1);
    }
    shown.append(text);
  } else {
    (shown += kBold).append(text);
  }
  const size_t icon = runtime::UCase(shown).find("[ICON=", 1);
  const size_t icon_end = icon == std::string::npos ? icon : shown.find(']', icon);
  if (icon_end != std::string::npos) shown.erase(icon, icon_end - icon + 1);
  std::string cut;
  if (skip < PlainLength(shown)) PaintSegment(x, y, Behind(shown, skip, cut), false);
  if (!box || indent == 0 || skip > 0) return;
  PaintTreeBox(x + TreeBoxOffset(indent), y, index < store.Count() && IsHidden(store.State(index + 1)));
}

Twips ucListBox::TreeBoxOffset(long indent) {
  return WidthOf(Space(indent - 5)) + 2;
}

void ucListBox::PaintTreeBox(Twips x, Twips y, bool closed) {
  const Color colour = pic.ForeColor();
  pic.FrameBox(x, y + 40, x + kTreeBoxWidth, y + rowHeight - 40, colour);
  if (closed) {
    pic.DrawLine(x + 35, y + 120, x + 115, y + 120, colour);
    pic.DrawLine(x + 74, y + 78, x + 74, y + 162, colour);
  } else {
    pic.DrawLine(x + 38, y + 120, x + 109, y + 120, colour);
  }
}

// Cells at the positions of the grid, with a rule in front of each but the first. The bar moves them by twips.
void ucListBox::PaintGrid(Twips x, Twips y, std::string_view text) {
  const auto offset = static_cast<Twips>(hs.Value() * kTwipsOfGridStep);
  const std::string_view separator = std::string_view(sGridText).substr(0, 1);
  std::string_view positions = std::string_view(sGridText).substr(separator.size());
  Twips pen = x + gutterWidth - offset;
  while (true) {
    const size_t end = positions.empty() ? std::string_view::npos : text.find(separator);
    Print(pen, y, text.substr(0, end), false);
    if (end == std::string_view::npos || end + 1 >= text.size()) return;
    text.remove_prefix(end + 1);
    const size_t comma = std::min(positions.find(','), positions.size());
    const Twips place = static_cast<Twips>(runtime::Val(positions.substr(0, comma))) - offset;
    positions.remove_prefix(std::min(positions.size(), comma + 1));
    pic.DrawLine(place, y, place, y + rowHeight, kRule);
    pen = place + 100;
  }
}

}  // namespace corvane::codelist
