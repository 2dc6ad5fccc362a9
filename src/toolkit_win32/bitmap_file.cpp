#include "toolkit_win32/bitmap_file.h"

#include <cstring>

#include "toolkit_win32/pictures.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr WORD kFileMark = 0x4D42;  // "BM"
constexpr DWORD kMostColors = 256;

template <class Header>
bool ReadHeader(std::string_view bytes, Header& header) {
  if (bytes.size() < sizeof header) return false;
  std::memcpy(&header, bytes.data(), sizeof header);
  return true;
}

// Colour masks behind a header of the first kind; later kinds hold them.
size_t MasksOf(const BITMAPINFOHEADER& header) {
  if (header.biSize != sizeof header) return 0;
  if (header.biCompression == BI_BITFIELDS) return 3 * sizeof(DWORD);
  constexpr DWORD kAlphaBitFields = 6;
  return header.biCompression == kAlphaBitFields ? 4 * sizeof(DWORD) : 0;
}

// Where the pixels of a packed bitmap begin; 0 for what is none.
size_t PixelsOf(std::string_view packed) {
  BITMAPINFOHEADER header{};
  BITMAPCOREHEADER core{};
  if (!ReadHeader(packed, core)) return 0;
  size_t pixels = 0;
  if (core.bcSize == sizeof core) {
    pixels = sizeof core + (core.bcBitCount <= 8 ? (size_t{1} << core.bcBitCount) * sizeof(RGBTRIPLE) : 0);
  } else {
    if (!ReadHeader(packed, header) || header.biSize < sizeof header) return 0;
    DWORD colors = header.biClrUsed;
    if (colors == 0 && header.biBitCount <= 8) colors = 1u << header.biBitCount;
    if (colors > kMostColors) return 0;
    pixels = header.biSize + MasksOf(header) + colors * sizeof(RGBQUAD);
  }
  return pixels < packed.size() ? pixels : 0;
}

}  // namespace

// The file may leave a gap in front of its pixels; a packed bitmap has none.
std::string PackedBitmapOf(const runtime::PictureRef& picture) {
  const std::string_view file = picture->bytes;
  BITMAPFILEHEADER header{};
  const bool is_bitmap = ReadHeader(file, header) && header.bfType == kFileMark;
  const std::string_view packed = is_bitmap ? file.substr(sizeof header) : std::string_view();
  const size_t pixels = PixelsOf(packed);
  if (pixels == 0) return {};
  const size_t told = header.bfOffBits - sizeof header;
  const bool gap = header.bfOffBits > sizeof header && told > pixels && told < packed.size();
  return std::string(packed.substr(0, pixels)) + std::string(packed.substr(gap ? told : pixels));
}

std::string PaintedBitmapOf(PictureStore& pictures, const runtime::PictureRef& picture) {
  const SIZE size = pictures.SizeOf(picture);
  if (size.cx <= 0 || size.cy <= 0) return {};
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  info.bmiHeader.biHeight = size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (!bitmap) return {};
  const HDC dc = CreateCompatibleDC(nullptr);
  const HGDIOBJ before = SelectObject(dc, bitmap);
  const RECT whole{0, 0, size.cx, size.cy};
  FillRect(dc, &whole, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  pictures.Draw(dc, whole, picture);
  GdiFlush();
  std::string packed(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  packed.append(static_cast<const char*>(pixels), static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy) * 4);
  SelectObject(dc, before);
  DeleteDC(dc);
  DeleteObject(bitmap);
  return packed;
}

runtime::PictureRef PictureOfPacked(std::string_view packed) {
  const size_t pixels = PixelsOf(packed);
  if (pixels == 0) return nullptr;
  BITMAPFILEHEADER header{};
  header.bfType = kFileMark;
  header.bfSize = static_cast<DWORD>(sizeof header + packed.size());
  header.bfOffBits = static_cast<DWORD>(sizeof header + pixels);
  std::string file(reinterpret_cast<const char*>(&header), sizeof header);
  file += packed;
  return std::make_shared<runtime::Picture>(runtime::Picture{std::move(file)});
}

}  // namespace corvane::toolkit_win32
