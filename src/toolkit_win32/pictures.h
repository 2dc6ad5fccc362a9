// Pictures decoded by their content (BMP, ICO, PNG, GIF, JPEG) at the size they are shown in. An icon file of several
// sizes gives the one that fits best. What is decoded is kept while the logic's picture lives, of bitmaps the few sizes
// asked for last, and freed with the store.
#pragma once

#include <map>
#include <memory>

#include "forms/types.h"
#include "toolkit_win32/image_codec.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class PictureStore {
 public:
  PictureStore();
  ~PictureStore();

  // Its own size in logical pixels (of an icon file: that of its first picture); empty for none or one that cannot be
  // decoded.
  SIZE SizeOf(const forms::PictureRef& picture);
  // Scaled to [size] pixels, 32 bits with alpha, colours multiplied by it; [faded]: as of a disabled control. Null for
  // none or one that cannot be decoded. The store's own, until other sizes of it are asked for.
  HBITMAP BitmapOf(const forms::PictureRef& picture, SIZE size, bool faded = false);
  // The same, but it lasts as long as the picture: windows hold it.
  HICON IconOf(const forms::PictureRef& picture, SIZE size);
  // Draws it scaled into [place], transparent parts left as they are.
  void Draw(HDC dc, const RECT& place, const forms::PictureRef& picture, bool faded = false);

 private:
  struct Decoded;
  Decoded& DecodedOf(const forms::PictureRef& picture);

  ImageCodec codec_;
  std::map<const forms::Picture*, std::unique_ptr<Decoded>> decoded_;
};

}  // namespace corvane::toolkit_win32
