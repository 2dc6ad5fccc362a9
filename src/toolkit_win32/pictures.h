// Pictures decoded by their content (BMP, ICO, PNG, GIF, JPEG) at the size they are shown in. An icon file of several
// sizes gives the one that fits best. Freed with the store.
#pragma once

#include <map>
#include <memory>

#include "forms/types.h"
#include "toolkit_win32/win.h"

struct IWICImagingFactory;

namespace corvane::toolkit_win32 {

class PictureStore {
 public:
  PictureStore();
  ~PictureStore();
  PictureStore(const PictureStore&) = delete;
  PictureStore& operator=(const PictureStore&) = delete;

  // Its own size in logical pixels (of an icon file: that of its first picture); empty for none or one that cannot be
  // decoded.
  SIZE SizeOf(const forms::PictureRef& picture);
  // Scaled to [size] pixels, 32 bits with alpha, colours multiplied by it (as AlphaBlend wants them). Null for none or
  // one that cannot be decoded. The store's own, until the picture is gone.
  HBITMAP BitmapOf(const forms::PictureRef& picture, SIZE size);
  HICON IconOf(const forms::PictureRef& picture, SIZE size);
  // Draws it scaled into [place], transparent parts left as they are; [faded]: as of a disabled control.
  void Draw(HDC dc, const RECT& place, const forms::PictureRef& picture, bool faded = false);
  // Windows of the toolkit hold pictures as icons beyond the life of the logic's picture: those that are gone are swept
  // when another comes.

 private:
  struct Decoded;
  IWICImagingFactory* Factory();
  Decoded* DecodedOf(const forms::PictureRef& picture);
  void Sweep();

  IWICImagingFactory* factory_ = nullptr;
  bool com_started_ = false;
  std::map<const forms::Picture*, std::unique_ptr<Decoded>> decoded_;
};

// Writes what [bitmap] shows as a PNG file. False when it cannot be written.
bool SavePng(HBITMAP bitmap, const std::wstring& path);

}  // namespace corvane::toolkit_win32
