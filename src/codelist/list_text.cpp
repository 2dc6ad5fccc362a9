// How texts come into the list and out of it again.
#include "codelist/raised.h"
#include "codelist/uc_list_box.h"
#include "runtime/strings.h"

namespace corvane::codelist {

using runtime::kCrLf;

namespace {

constexpr int kLinesBetweenEvents = 20;
constexpr long kFullWidth = 120;  // columns the horizontal bar covers after a load
constexpr long kColumnsBehindText = 40;

class DisabledBars {
 public:
  DisabledBars(forms::ScrollBar& across, forms::ScrollBar& down) : across_(across), down_(down) { Enable(false); }
  ~DisabledBars() { Enable(true); }
  DisabledBars(const DisabledBars&) = delete;
  DisabledBars& operator=(const DisabledBars&) = delete;

 private:
  void Enable(bool enabled) {
    across_.SetEnabled(enabled);
    down_.SetEnabled(enabled);
  }
  forms::ScrollBar& across_;
  forms::ScrollBar& down_;
};

}  // namespace

void ucListBox::sGrid(const std::string& value) {
  sGridText = value;
  listMode = kGridList;
  treeMode = ColorOff = false;
  const std::string mode = runtime::UCase(value);
  if (mode == "SQL") listMode = kSqlList;
  if (mode == "VB") listMode = kVbList;
  if (mode == "TEXT") {
    listMode = kTextList;
    sGridText.clear();
  }
  if (mode == "TREE") {
    listMode = kTreeList;
    treeMode = true;
  }
}

// Neither a drag nor an edit goes on in other lines.
void ucListBox::Clear() {
  EndDrag();
  if (txtEdit.Visible()) CloseEdit();
  ++clears;
  analysis = {};
  firstColumn = 0;
  runningLevel = BaseLevel;
  ClearQuickList();
  store.Clear();
  previousLine = replaceIndex = topLine = currentLine = currentRow = 0;
  pendingText.clear();
  highlightColor = kHighlightOfCurrent;
  loading = false;
  vs.SetMin(0);
  vs.SetMax(0);  // there is nothing to scroll
  SetBar(vs, 0);
  SetBar(hs, 0);
  ClearPane();
  treeMode = runtime::UCase(sGridText) == "TREE";
}

void ucListBox::AddTreeItem(std::string_view text, long level, bool hidden) {
  treeMode = true;
  runningLevel = hidden ? level | kHidden : level;
  AddLine(text);
}

void ucListBox::AddItem(std::string_view text) {
  if (treeMode) {
    const auto signs = static_cast<long>(std::min(text.find_first_not_of('+'), text.size()));
    AddTreeItem(text.substr(static_cast<size_t>(signs)), signs + BaseLevel, signs > 1);
  } else if (listMode >= kVbList) {
    AddStr(text);
  } else {
    AddLine(text);
  }
}

void ucListBox::AddStr(std::string_view text) {
  analysis.endOfProc = false;
  if (text.empty() || NoAnalyse || runtime::BeginsWith(text, kCaption)) return AddLine(text);
  if (ColorOff) {
    analysis.endOfProc = EndsProcedure(text);
    return AddLine(text);
  }
  if (listMode == kGridList || listMode == kTextList) return AddLine(text);
  AddLine(AnalyseLine(listMode == kSqlList ? Language::Sql : Language::Vb, analysis, text, buffer));
}

void ucListBox::AddLine(std::string_view text) {
  curX = pic.CurrentX();
  curY = pic.CurrentY();
  if (replaceIndex != 0) return StoreReplaced(text);
  Color colour = kPlain;
  if (store.Count() == 0) {
    if (!loading) ClearPane();
    curX = curY = 0;
    topLine = currentLine = currentRow = 1;
    colour = highlightColor;
  }
  AppendLine(text, colour);
}

void ucListBox::AppendLine(std::string_view text, Color colour) {
  store.Append(text, EncodeLevel(runningLevel));
  PaintLine(curX, curY, store.Count(), colour);
  if (loading) return;
  SetRangeOfVs();
  if (runtime::Len(text) > hs.Max()) {
    Raised guard(scrollGuard);
    hs.SetMax(runtime::Len(text) + kColumnsBehindText);
    hs.SetSmallChange(1);
    hs.SetLargeChange(4);
  }
  pic.Refresh();
}

void ucListBox::StoreReplaced(std::string_view text) {
  store.Replace(replaceIndex, text);
  if (replaceIndex == currentLine) Repaint();
}

void ucListBox::SetRangeOfVs() {
  Raised guard(scrollGuard);
  vs.SetMax(std::max(1L, store.Count()));
  vs.SetMin(1);
  vs.SetLargeChange(visibleRows + 1);
  valueOfVs = vs.Value();
}

void ucListBox::ReplaceItem(long index, std::string_view text) {
  if (!store.Has(index)) return;
  runtime::PassOverErrors([&] {
    const bool last = index == store.Count();
    const long behind = last ? 0 : store.LineLevel(index + 1);
    replaceIndex = index;
    AddStr(text);
    if (!last && !formatting && runningLevel != behind) CarryLevelOn(index, runningLevel - behind);
  });
  replaceIndex = 0;
  pic.Refresh();
}

void ucListBox::CarryLevelOn(long index, long difference) {
  long row = currentRow + 1;
  for (long line = index + 1; line <= store.Count(); ++line) {
    const int32_t kept = store.State(line) & kKeptByLevelShift;
    store.SetState(line, kept | EncodeLevel(store.LineLevel(line) + difference));
    if (row <= visibleRows && store.IsVisible(line)) PaintLineAt(row++, line, kPlain);
  }
}

std::string ucListBox::Text() const {
  std::string text;
  for (long index = 1; index <= store.Count(); ++index) text.append(CleanText(store.Text(index))).append(kCrLf);
  return text;
}

std::string ucListBox::List(long index) const {
  return store.Has(index) ? CleanText(store.Text(index)) : std::string();
}

std::string ucListBox::getValue() const {
  std::string value;
  bool any = false;
  for (long index = 1; index <= store.Count(); ++index) {
    if (!store.IsSelected(index)) continue;
    any = true;
    value.append(List(index)).append(kCrLf);
  }
  return any ? value : List(currentLine);
}

void ucListBox::SetText(std::string text) {
  if (loading) {
    pendingText = std::move(text);
    return;
  }
  if (LoadTexts(std::move(text))) EndLoad();
}

// Loads [text], or what was assigned in its place meanwhile. Returns false when the lines were cleared by somebody else
// while the event loop ran: the load has lost its object. However a load ends, the list can be used and loaded again.
bool ucListBox::LoadTexts(std::string text) {
  const DisabledBars bars(hs, vs);
  do {
    Clear();
    const Raised load(loading);
    if (!LoadLines(text)) return false;
    text = std::exchange(pendingText, {});
  } while (!text.empty());
  return true;
}

// Returns false when the lines were cleared by somebody else.
bool ucListBox::LoadLines(std::string_view text) {
  const long clears_before = clears;
  int lines = 0;
  size_t start = 0;
  for (size_t end; (end = text.find(kCrLf, start)) != std::string_view::npos; start = end + 2) {
    if (!pendingText.empty() || !LoadLine(text.substr(start, end - start))) return true;
    if (++lines % kLinesBetweenEvents == 0) {
      services.Loop.DoEvents();
      if (clears != clears_before) return false;
    }
  }
  if (start < text.size() && pendingText.empty()) AddStr(text.substr(start));
  return true;
}

// Returns false where a code view stops: behind the end of a procedure.
bool ucListBox::LoadLine(std::string_view line) {
  if (treeMode)
    AddItem(line);
  else
    AddStr(line);
  if (!analysis.endOfProc || ListRole != kCodeView) return true;
  return std::exchange(allProcText, false);
}

void ucListBox::EndLoad() {
  if (treeMode) {
    SetStrPos(1);
  } else {
    ClearPane();  // the surface may have another size by now
    for (long row = 1; row <= visibleRows; ++row) PaintLineAt(row, row, kPlain);
    PaintLineAt(currentRow, currentLine, highlightColor);
  }
  analysis.inBlockComment = false;
  SetRangeOfVs();
  {
    Raised guard(scrollGuard);
    hs.SetMax(kFullWidth);
  }
  pic.Refresh();
  TextDone();
}

}  // namespace corvane::codelist
