// A window with one list on it, open on the toolkit without a display. At 9.75 points a character is 98 twips wide and
// a line 234 high, so the gutter is 392 wide; ten rows fit.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "codelist/uc_list_box.h"
#include "forms/headless_toolkit.h"
#include "marked_text.h"
#include "tests/support/fake_services.h"

namespace corvane::codelist {

class ListTest : public testing::Test {
 protected:
  struct Window : forms::Form {
    Window(forms::Toolkit& toolkit, host::Services& services) : Form(toolkit, "Window"), list(*this, "list", services) {
      SetBorderStyle(forms::FormBorder::None);
      Move(0, 0, 12000, 6000);
      list.Move(0, 0, 4000, 2340);
      other.Move(6000, 0, 1000, 300);
    }
    ucListBox list;
    forms::CommandButton other{*this, "other"};
  };

  ListTest() {
    window.Show();
    list.Click = [this] { events.push_back("Click"); };
    list.UcClick = [this] { events.push_back("UcClick"); };
    list.DblClick = [this] { events.push_back("DblClick"); };
    list.TextDone = [this] { events.push_back("TextDone"); };
    list.CtrlTab = [this] { events.push_back("CtrlTab"); };
    list.EscapeClicked = [this] { events.push_back("EscapeClicked"); };
    list.ClipBook = [this] { events.push_back("ClipBook"); };
    list.ColorOnOff = [this](long line) { events.push_back("ColorOnOff " + std::to_string(line)); };
    list.CodeLostFocus = [this](long line) { events.push_back("CodeLostFocus " + std::to_string(line)); };
    list.PropertyChanged = [this](const std::string& name) { events.push_back("PropertyChanged " + name); };
    list.UpdateString = [this](long line, const std::string& text) {
      events.push_back("UpdateString " + std::to_string(line) + " " + text);
    };
  }
  ~ListTest() override { EXPECT_THAT(toolkit.Faults(), testing::IsEmpty()); }

  // "1", "2", ... as lines.
  void Load(long count, const std::string& mode = "TEXT") {
    list.sGrid(mode);
    std::string text;
    for (long line = 1; line <= count; ++line) text += std::to_string(line) + "\r\n";
    list.SetText(text);
    events.clear();
    Canvas().Forget();
  }

  forms::RecordingCanvas& Canvas() { return toolkit.CanvasOf(list.pic); }
  std::vector<std::string> DrawnTexts() { return Drawn("text "); }
  std::vector<std::string> Drawn(const std::string& kind) {
    std::vector<std::string> calls;
    for (const std::string& call : Canvas().Calls())
      if (call.compare(0, kind.size(), kind) == 0) calls.push_back(call);
    return calls;
  }
  void Key(int key, int shift = 0) { list.pic.UserKeyDown(key, shift); }
  void Press(long row, forms::Twips x = 1000, int button = forms::vbLeftButton) {
    list.pic.UserMouseDown(button, 0, x, YOf(row));
  }
  void ReleaseAt(long row, forms::Twips x = 1000, int button = forms::vbLeftButton) {
    list.pic.UserMouseUp(button, 0, x, YOf(row));
  }
  void ClickOn(long row, forms::Twips x = 1000) {
    Press(row, x);
    ReleaseAt(row, x);
  }
  forms::Twips YOf(long row) const { return static_cast<forms::Twips>(row - 1) * list.RowHeight() + 20; }
  std::vector<long> SelectedLines() const {
    std::vector<long> lines;
    for (long line = 1; line <= list.ListCount(); ++line)
      if (list.IsSelected(line)) lines.push_back(line);
    return lines;
  }
  std::string Stored(long line) const { return Readable(list.StoredText(line)); }
  std::vector<long> Levels() const {
    std::vector<long> levels;
    for (long line = 1; line <= list.ListCount(); ++line) levels.push_back(list.LineLevel(line));
    return levels;
  }

  tests::FakeServices services;
  forms::HeadlessToolkit toolkit;
  Window window{toolkit, services};
  ucListBox& list = window.list;
  std::vector<std::string> events;
};

}  // namespace corvane::codelist
