// PaintedPeer: a control that paints its own window, without flicker; where it leaves ground free, what lies behind it
// shows through.
#pragma once

#include "forms/types.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/units.h"

namespace corvane::toolkit_win32 {

class PaintedPeer : public ControlPeer {
 public:
  using ControlPeer::ControlPeer;
  ~PaintedPeer() override;
  void BringToFront(bool front) override;
  // For controls in front of this one. The origin of [dc] is this one's.
  void PaintWithoutGround(HDC dc) { Paint(dc, window_.Client()); }
  // Whether what lies behind shows through.
  bool IsClear() const { return !HasGround(); }

 protected:
  // A plain window; with [takes_mouse] false, presses go to what lies behind it.
  void CreatePainted(Mouse mouse, bool takes_mouse = true);
  // Over the ground that lies behind, or over anything where HasGround tells that all of [place] is painted.
  virtual void Paint(HDC dc, const RECT& place) = 0;
  virtual bool HasGround() const { return false; }
  // To be called when the picture has changed.
  void Repaint();

  void ShowOwn(forms::Property) override { Repaint(); }
  void ShowPlace() override;
  void ShowFont() override { Repaint(); }
  void ShowColors() override;
  LRESULT OnOwnMessage(Window& window, const Message& message) override;

 private:
  void PaintWindow();
  bool takes_mouse_ = true;
};

// Has [window] painted again, and what it shows through: clear controls on it and in front of it. [place]: the part
// that changed, of its client area; null: all of it.
void RepaintWithClear(HWND window, const RECT* place = nullptr);

// Pixels that a sunken border takes on each side, at 96 dots to the inch.
inline constexpr int kBorder = 2;
void PaintSunkenFrame(HDC dc, const RECT& place, const PixelScale& scale);
// [place] without a border of that width.
RECT InsideBorder(RECT place, int pixels);

// A bitmap to paint on, copied to [target] at the end: what is shown is never half painted.
class BufferedPaint {
 public:
  BufferedPaint(HDC target, const RECT& place);
  ~BufferedPaint();
  BufferedPaint(const BufferedPaint&) = delete;
  BufferedPaint& operator=(const BufferedPaint&) = delete;
  HDC Dc() const { return dc_; }  // in the coordinates of [target]

 private:
  HDC target_, dc_;
  RECT place_;
  HBITMAP bitmap_;
  HGDIOBJ bitmap_before_;
};

}  // namespace corvane::toolkit_win32
