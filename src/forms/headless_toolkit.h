// HeadlessToolkit: windows without a display. Everything but the pixels works: drawing is recorded as text, modal
// windows run acts prepared before, popup menus choose what was prepared, timers tick when told. Metrics, whatever the
// font: a character is half an em wide and a line 1.2 em high, rounded to whole twips; one em is the font's size (20
// twips a point). In 8.25 points a character is 83 twips wide and a line 198 high.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "forms/toolkit.h"

namespace corvane::forms {

// Borders and caption of its windows; those with a menu bar have kMenuBar more. BorderStyle None has nothing.
inline constexpr Twips kHeadlessBorder = 60, kHeadlessCaption = 285, kHeadlessMenuBar = 285;

class FixedMetrics : public TextMetrics {
 public:
  Twips TextWidth(std::string_view text, const Font& font) override;
  Twips TextHeight(const Font& font) override;
};

// Each call is one line: its name, its numbers in twips, texts in quotes, colours as #rrggbb or system:n.
//   clear #ffffff | fill 0 0 1200 198 system:15 | frame 0 0 1200 198 #00ff00 | line 0 0 0 198 #000000 width 1
//   circle 80 99 40 #ff0000 filled #ffff00 | text 332 0 "Sub Main()" Arial 9.75 bold underline #000080
//   picture 10 10 300 178 1406 bytes | refresh
class RecordingCanvas : public Canvas {
 public:
  Twips TextWidth(std::string_view text, const Font& font) override { return metrics_.TextWidth(text, font); }
  Twips TextHeight(const Font& font) override { return metrics_.TextHeight(font); }
  void Clear(Color back) override;
  void FillBox(const Rect& box, Color color) override;
  void FrameBox(const Rect& box, Color color) override;
  void Line(Twips x1, Twips y1, Twips x2, Twips y2, Color color, int width = 1) override;
  void Circle(Twips x, Twips y, Twips radius, Color outline, bool filled, Color fill) override;
  void Text(Twips x, Twips y, std::string_view text, const Font& font, Color color) override;
  void PaintPicture(const PictureRef& picture, const Rect& place) override;
  void Refresh() override;

  const std::vector<std::string>& Calls() const { return calls_; }
  void Forget() { calls_.clear(); }
  static std::string PictureText(const Picture& picture);  // as a call names it

 private:
  void Record(std::string call) { calls_.push_back(std::move(call)); }
  FixedMetrics metrics_;
  std::vector<std::string> calls_;
};

class HeadlessToolkit : public Toolkit {
 public:
  HeadlessToolkit();

  std::unique_ptr<FormPeer> NewFormPeer(Form& form) override;
  std::unique_ptr<Peer> NewPeer(Control& control) override;
  TextMetrics& Metrics() override { return metrics_; }
  Rect FrameOf(const Form& form) override;
  void RunModal(Form& form) override;
  void DoEvents() override;
  void PopupMenu(Form& form, Menu& menu, Twips x, Twips y) override;
  Control* ControlUnderPointer() override { return under_pointer_; }

  // [act] runs in the next DoEvents (or modal loop), after those posted before.
  void Post(std::function<void()> act) { posted_.push_back(std::move(act)); }
  bool HasPosted() const { return !posted_.empty(); }

  // The next time the form called [name] is shown modally, [act] does what the user does there; each act serves once,
  // in the order given. A form that is still visible after its act is closed as by its control box, and hidden if it
  // stays; one that is shown with no act prepared is closed too. Both are faults.
  void OnModal(const std::string& name, std::function<void(Form&)> act);

  // The next popup menu chooses the item of that caption ("&" left out), below its sub-menus too; "" closes it without
  // a choice, as a menu does with no answer prepared. A caption that the menu does not offer is a fault.
  void OnPopup(std::string caption) { popup_answers_.push_back(std::move(caption)); }
  // Where the popup menus were shown so far: X, Y in their forms.
  const std::vector<std::pair<Twips, Twips>>& PopupPlaces() const { return popup_places_; }
  // What the popup menus offered so far: per menu its name, then the captions of its visible items; "(x)" for a
  // disabled one, "*x" for a checked one, "-" for a separator.
  const std::vector<std::vector<std::string>>& Popups() const { return popups_; }

  void SetControlUnderPointer(Control* control) { under_pointer_ = control; }

  // One tick of a timer that runs; nothing on one that is stopped or not loaded.
  void Tick(Timer& timer);
  // Time passes: every running timer ticks as often as its interval fits, in the order of time.
  void Advance(long milliseconds);
  long Now() const { return now_; }  // milliseconds since the start

  // What was drawn on [box]; its form must be loaded.
  RecordingCanvas& CanvasOf(PictureBox& box);
  // Notices that the toolkit's side of [control] got since it was made.
  const std::vector<Property>& Notices(const Control& control) const;

  // Errors that left an act of the user, and acts that went wrong here.
  const std::vector<std::string>& Faults() const { return faults_; }

 private:
  friend class HeadlessPeer;
  void Arm(Timer& timer);
  void Disarm(Timer& timer);
  bool RunModalAct(Form& form);

  FixedMetrics metrics_;
  std::deque<std::function<void()>> posted_;
  std::map<std::string, std::deque<std::function<void(Form&)>>> modal_acts_;
  std::deque<std::string> popup_answers_;
  std::vector<std::vector<std::string>> popups_;
  std::vector<std::pair<Twips, Twips>> popup_places_;
  std::map<Timer*, long> due_;
  Control* under_pointer_ = nullptr;
  long now_ = 0;
  std::vector<std::string> faults_;
};

}  // namespace corvane::forms
