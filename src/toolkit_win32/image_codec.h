// Image files as the system decodes and encodes them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit_win32/com_pointer.h"
#include "toolkit_win32/win.h"

struct IWICImagingFactory;

namespace corvane::toolkit_win32 {

// Rows from the top, 32 bits a pixel.
struct Pixels {
  SIZE size{};
  std::vector<BYTE> bytes;
  bool IsEmpty() const { return bytes.empty(); }
};

class ImageCodec {
 public:
  ImageCodec();
  ~ImageCodec();
  ImageCodec(const ImageCodec&) = delete;
  ImageCodec& operator=(const ImageCodec&) = delete;

  // The size of the first picture in a file; empty for one that cannot be decoded.
  SIZE SizeOf(std::string_view file);
  // The picture in [file] that fits [size] best, scaled to it. Empty for one that cannot be decoded.
  Pixels Decode(std::string_view file, SIZE size);
  // False when the file cannot be written.
  bool SavePng(HBITMAP bitmap, const std::wstring& path);

 private:
  IWICImagingFactory* Factory();
  bool started_com_ = false;
  ComPointer<IWICImagingFactory> factory_;
};

// A bitmap of [pixels] in memory, colours multiplied by their alpha (as GdiAlphaBlend wants them) or not (as icons do).
HBITMAP BitmapOf(const Pixels& pixels, bool multiplied);

}  // namespace corvane::toolkit_win32
