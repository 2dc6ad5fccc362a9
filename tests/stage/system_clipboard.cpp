#include "tests/stage/system_clipboard.h"

#include <windows.h>

namespace corvane::stage {

namespace {

// Where the pixels of a bitmap begin behind its header.
DWORD PixelOffset(const BITMAPINFOHEADER& header) {
  DWORD colors = header.biClrUsed;
  if (colors == 0 && header.biBitCount <= 8) colors = 1u << header.biBitCount;
  const DWORD masks = header.biCompression == BI_BITFIELDS && header.biSize == sizeof(BITMAPINFOHEADER) ? 12 : 0;
  return static_cast<DWORD>(sizeof(BITMAPFILEHEADER)) + header.biSize + masks + colors * 4;
}

runtime::PictureRef FileOf(HGLOBAL bitmap) {
  const auto size = static_cast<DWORD>(GlobalSize(bitmap));
  const auto* header = static_cast<const BITMAPINFOHEADER*>(GlobalLock(bitmap));
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;
  file.bfSize = static_cast<DWORD>(sizeof(file)) + size;
  file.bfOffBits = PixelOffset(*header);
  auto picture = std::make_shared<runtime::Picture>();
  picture->bytes.assign(reinterpret_cast<const char*>(&file), sizeof(file));
  picture->bytes.append(reinterpret_cast<const char*>(header), size);
  GlobalUnlock(bitmap);
  return picture;
}

}  // namespace

void SystemClipboard::Clear() {
  if (!OpenClipboard(nullptr)) return;
  EmptyClipboard();
  CloseClipboard();
}

runtime::PictureRef SystemClipboard::GetData() {
  if (!OpenClipboard(nullptr)) return nullptr;
  const HANDLE bitmap = GetClipboardData(CF_DIB);
  runtime::PictureRef picture = bitmap ? FileOf(bitmap) : nullptr;
  CloseClipboard();
  return picture;
}

}  // namespace corvane::stage
