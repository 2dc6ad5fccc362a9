// What moves and grows with the window.
#include <algorithm>

#include "explorer/frm_add_in.h"

namespace corvane::explorer {

using forms::Twips;

namespace {

constexpr Twips kWidest = 12300, kLeastWidth = 10530, kLeastHeight = 8400;
constexpr Twips kFrameWidth = 260, kBelowFrames = 550, kBetweenButtons = 45, kBesideLabels = 75;

}  // namespace

void frmAddIn::Form_Resize() {
  // A second resize while the window is minimised brings it back.
  if (WindowState() == forms::vbMinimized && wasMinimised) SetWindowState(forms::vbNormal);
  if (WindowState() != forms::vbMinimized) {
    Twips w = std::min(Width(), kWidest);
    KeepMinimumSize();
    PlaceByWidth(std::max(w, kLeastWidth));
    PlaceByHeight();
    DoEvents();
  }
  wasMinimised = WindowState() == forms::vbMinimized;
}

void frmAddIn::KeepMinimumSize() {
  if (WindowState() == forms::vbMaximized) return;
  if (Height() < kLeastHeight) SetHeight(kLeastHeight);
  if (Width() < kLeastWidth) SetWidth(kLeastWidth);
}

void frmAddIn::PlaceByWidth(Twips w) {
  for (forms::Control* control : {static_cast<forms::Control*>(&txtCode), static_cast<forms::Control*>(&lbxProc1),
                                  static_cast<forms::Control*>(&lbxProc2)})
    control->SetWidth(w - kFrameWidth);
  AlignRight(lbxProc1.Left() + lbxProc1.Width());
  tlbr.SetWidth(ScaleWidth());
  codePlace.width = txtCode.Width();
}

// What stands at the right edge of the views stays there.
void frmAddIn::AlignRight(Twips right) {
  txtFind.SetWidth(right - txtFind.Left());
  cmdNext.SetLeft(right - cmdNext.Width());
  cmdPrev.SetLeft(cmdNext.Left() - kBetweenButtons - cmdPrev.Width());
  Label5.SetWidth(cmdPrev.Left() - kBesideLabels - Label5.Left());
  cmGo.SetLeft(right - cmGo.Width());
  lblSub.SetWidth(cmGo.Left() - kBesideLabels - lblSub.Left());
  txtClip.SetWidth(right - txtClip.Left());
}

// The frames keep their height and stand 550 above the bottom of the window; their top is the line for the rest.
void frmAddIn::PlaceByHeight() {
  Twips line = Height() - Frame4.Height() - kBelowFrames;
  Frame4.SetTop(line);
  Frame6.SetTop(line);
  txtClip.Move(txtClip.Left(), line + 90, txtClip.Width(), ScaleHeight() - 180 - (line + 90));
  cmdMore.SetTop(line + 90);
  cmdColor.SetTop(line + 500);
  SetCodeHeight(line - txtCode.Top() - 60);
  codePlace.height = line - codePlace.top - 60;
}

// The view rounds its height to whole rows; it must not grow into what stands below.
void frmAddIn::SetCodeHeight(Twips height) {
  txtCode.SetHeight(height);
  if (txtCode.Height() > height) txtCode.SetHeight(txtCode.Height() - txtCode.RowHeight());
}

}  // namespace corvane::explorer
