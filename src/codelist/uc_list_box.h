// ucListBox: the list in which all code, trees and lists of the system are shown. It keeps its own lines, draws them
// itself and reads the markup inside their text. Lines count from 1, texts are bytes of the ANSI code page.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "codelist/drag.h"
#include "codelist/line_analysis.h"
#include "codelist/line_store.h"
#include "codelist/markup.h"
#include "codelist/text_widths.h"
#include "forms/lists.h"
#include "forms/picture_box.h"
#include "forms/scroll_bar.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toolbar.h"
#include "forms/user_control.h"
#include "host/services.h"

namespace corvane::codelist {

using forms::Color;
using forms::Event;
using forms::Twips;

// As a background: no highlight. Any other colour marks the current line.
inline constexpr Color kPlain = 0xFFFFFF;
inline constexpr Color kHighlightOfCurrent = forms::RGB(160, 255, 220);

inline constexpr long kColumnsOfLevel = 12;  // indent of a tree entry, in blanks
inline constexpr Twips kTreeBoxWidth = 150;

// Values of ListRole.
enum ListRoleValue : long { kCodeView = 0, kScriptTree = 1, kSourcePane = 2 };

class ReadingCommands;

class ucListBox : public forms::UserControl {
 public:
  ucListBox(forms::Container& container, std::string name, host::Services& services);
  ~ucListBox() override;

  bool NoAnalyse = false;      // lines are stored as they are
  bool ColorOff = false;       // only the end of a procedure is watched for
  long ClickLevel = 0;         // level of the line that was last right-clicked
  long ListRole = kCodeView;   // any other loads texts past the end of the first procedure
  bool KeepOnEscape = false;   // Escape does nothing; else it hides the control
  bool LockSelection = false;  // outside code, selection commands do nothing

  // "VB", "SQL", "TEXT", "TREE" in any case, or a grid: the cell separator and the column positions, comma-separated.
  // Neither clears the lines nor analyses them again.
  void sGrid(const std::string& value);

  void AddTreeItem(std::string_view text, long level, bool hidden);
  // Runs one line through the analyser and appends it.
  void AddStr(std::string_view text);
  // The general append; in a tree the leading "+" signs give the depth.
  void AddItem(std::string_view text);
  // Analyses line [index] anew from [text] and carries its change of level on to the lines behind. Ignored outside the
  // list. For another line than the current one the level behind the current line is what is compared.
  void ReplaceItem(long index, std::string_view text);
  // The count of images; an unreadable picture adds none.
  long AddIcon(const std::string& path);
  void Clear();

  // Reading gives every line cleaned, with CR LF behind each. Assigning loads a whole text, cut at each CR LF; assigned
  // while a load is running, the text replaces that load's. A code view stops behind the first end of a procedure.
  std::string Text() const;
  void SetText(std::string text);
  void AllProcText(bool value) { allProcText = value; }  // lets the next end of a procedure pass
  bool GetEndState() const { return analysis.endOfProc; }

  long ListCount() const { return store.Count(); }
  long ListIndex() const { return currentLine; }  // SetStrPos moves it
  std::string List(long index) const;             // cleaned; empty outside the list
  // The stored text with its markup, and the stored level. Requires 1 <= index <= ListCount().
  std::string_view StoredText(long index) const { return store.Text(index); }
  long LineLevel(long index) const { return store.LineLevel(index); }
  bool IsSelected(long index) const { return store.Has(index) && store.IsSelected(index); }
  bool IsLineVisible(long index) const { return store.Has(index) && store.IsVisible(index); }
  // The selected lines, cleaned, each with CR LF; with none the current line without a line end.
  std::string getValue() const;

  void GoHome();
  // Makes [index] the current line on the third row. Ignored while loading and outside the list. Returns [index].
  long SetStrPos(long index);

  void SetBackColor(Color value) override;
  void HScroll(bool enabled);  // enables the horizontal bar

  // The command "Set Color analyze Off", later "On", and its caption. Only with more than one line.
  void ToggleColor();
  std::string ColorCaption() const { return colorCaption; }
  void CopySelection();
  void AddSelection();  // to what the clip book holds
  void SelectAll();
  void ClearSelection();
  void ToggleSelect();  // of the current line
  void EditCodeline();  // in place
  // The quick list over the lower half: an entry for line [index], and its showing.
  void AddQuickItem(long index);
  void ClearQuickList();
  void ShowQuickList();

  // Click, DblClick and MouseMove are those of every control.
  Event<long> ColorOnOff;              // analysis is on again: the container reloads; the current line
  Event<const std::string&> GoProc;    // what to look for
  Event<long&> QuickReminder;          // action
  Event<const std::string&> Search;    // word; character 2 in front: in the whole project, 3: in the module
  Event<const std::string&> DBSearch;  // word
  Event<> TextDone, CtrlTab, EscapeClicked, UcClick, ClipBook;
  Event<long, const std::string&> UpdateString;  // the user changed a line: the container writes it and replaces it
  Event<long> CodeLostFocus;                     // the current line; negated: remember it in the history
  Event<const std::string&> PropertyChanged;     // "BackColor", "HScroll"

  // What it is made of.
  forms::PictureBox pic{*this, "pic"};
  forms::HScrollBar hs{*this, "hs"};
  forms::VScrollBar vs{*this, "vs"};
  forms::Label ffh{*this, "ffh"};  // fills the corner
  forms::TextBox txtEdit{*this, "txtEdit"};
  forms::ListBox lbx{*this, "lbx"};
  forms::Timer tmr{*this, "tmr"};
  forms::ImageList imgList{*this, "imgList"};

  // The menu of the right mouse button and what it does.
  ReadingCommands& Reading() { return *reading; }

  // What the painter shows, for tests and tools.
  long TopLine() const { return topLine; }
  long CurrentRow() const { return currentRow; }
  long VisibleRows() const { return visibleRows; }
  Twips RowHeight() const { return rowHeight; }
  Twips GutterWidth() const { return gutterWidth; }

 protected:
  void OnResize() override;

 private:
  friend class ReadingCommands;

  // uc_list_box.cpp
  void BindEvents();
  void Layout();
  void FocusChanged(bool gained);
  bool SelectionIsLocked() const { return LockSelection && listMode == kTreeList; }

  // list_text.cpp
  void AddLine(std::string_view text);
  void AppendLine(std::string_view text, Color colour);
  void StoreReplaced(std::string_view text);
  void CarryLevelOn(long index, long difference);
  bool LoadTexts(std::string text);
  bool LoadLines(std::string_view text);
  bool LoadLine(std::string_view line);
  void EndLoad();
  void SetRangeOfVs();

  // painter.cpp
  void ClearPane();
  void PaintLineAt(long row, long index, Color colour);
  void PaintRowsBehindLast();
  void PaintLine(Twips x, Twips y, long index, Color colour);
  void CountLevel(long index);
  void PaintGutter(Twips x, Twips y);
  void PaintBackground(Twips x, Twips y, long index, Color colour);
  void PaintText(Twips x, Twips y, long index);
  Twips PaintSegment(Twips x, Twips y, std::string_view text, bool measured);
  Twips PaintSplit(Twips x, Twips y, std::string_view front, std::string_view behind, bool bold, bool measured);
  Twips PrintEmphasized(Twips x, Twips y, std::string_view text, Color colour, bool measured);
  std::string_view InFrontOfEdge(Twips x, std::string_view text) const;
  Twips Print(Twips x, Twips y, std::string_view text, bool measured);
  void PaintGroupPicture(Twips x, Twips y, std::string_view text);
  forms::PictureRef PictureNamed(std::string_view name) const;
  void PaintTreeEntry(Twips x, Twips y, long index, std::string_view text, long level, size_t skip);
  Twips TreeBoxOffset(long indent);
  void PaintTreeBox(Twips x, Twips y, bool closed);
  void PaintGrid(Twips x, Twips y, std::string_view text);
  Twips WidthOf(std::string_view text);
  Twips RowTop(long row) const;

  // scrolling.cpp
  long NextVisible(long index) const;
  long PrevVisible(long index) const;
  void SetBar(forms::ScrollBar& bar, long value);
  void FireClick();
  void Repaint();
  void RepaintCurrent(Color colour);
  void PaintRows();
  void LineUp();
  void LineDown();
  void ScrollUpOne();
  void ScrollDownOne();
  void PageUp();
  void PageDown();
  void StepBackFrom(long line);
  void GoFirst();
  void GoLast();
  long LineToward(long line, bool down) const;
  long ValueOfTop() const;
  long LineOfBar(long before, bool dragging) const;
  void MovedByBar(bool dragging);
  void ShowFrom(long line, bool keep_highlight);

  // selection.cpp
  long RowAt(Twips y) const;
  long LineOnRow(long row) const;
  bool MoveToRow(long row);
  void FlipSelected();
  void pic_MouseDown(int button, Twips x, Twips y);
  void pic_MouseMove(int button, int shift, Twips x, Twips y);
  void DragTo(Twips y);
  bool DragStep(bool down);
  void tmr_Timer();
  void pic_MouseUp(int button, Twips x, Twips y);
  void MoveSelectionToClipBook(std::string copied);
  void OpenMenuByKey();
  void EndDrag();
  void pic_Click();
  void ToggleBranch(long index);
  void pic_KeyDown(int& key, int shift);

  // edit_box.cpp, quick_list.cpp
  void RaiseUpdate();
  void CloseEdit();
  void txtEdit_KeyDown(int& key);
  void txtEdit_KeyPress(int& key);
  void PlaceQuickList();
  void HideQuickList();
  void lbx_Click();
  void lbx_LostFocus();
  void lbx_KeyPress(int key);

  host::Services& services;
  LineStore store;
  AnalysisState analysis;
  LineBuffer buffer;
  forms::PictureRef img, img1, img2;  // in the gutter of the current line, and of the script tree

  std::string sGridText, pendingText, clipBook, colorCaption = "Set Color analyze Off";
  long listMode = kTreeList;
  bool treeMode = false, loading = false, allProcText = false, formatting = false;
  long clears = 0;  // how often the list was cleared
  long runningLevel = BaseLevel;
  long replaceIndex = 0, topLine = 0, currentLine = 0, currentRow = 0, previousLine = 0;
  long visibleRows = 0, firstColumn = 0;
  long valueOfVs = 0;  // its last one, from the user or from here
  Color highlightColor = kHighlightOfCurrent;
  Twips rowHeight = 0, gutterWidth = 0, paneWidth = 0;
  Twips curX = 0, curY = 0;  // where the next line is drawn
  bool scrollGuard = false, noRefresh = false, hasFocus = false, quickListBusy = false, placing = false;

  std::unique_ptr<ReadingCommands> reading;
  Drag drag;
  Twips mouseX = 0, mouseY = 0;
  TextWidths widths;  // in the font of the surface
};

}  // namespace corvane::codelist
