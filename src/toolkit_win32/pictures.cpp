#include "toolkit_win32/pictures.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "toolkit_win32/units.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr int kFaded = 110;  // of 255
constexpr size_t kSizesKept = 4;

void Fade(Pixels& pixels) {
  for (size_t at = 0; at < pixels.bytes.size(); at += 4) {
    BYTE* pixel = &pixels.bytes[at];
    const auto gray = static_cast<BYTE>((pixel[0] * 11 + pixel[1] * 59 + pixel[2] * 30) / 100);
    pixel[0] = pixel[1] = pixel[2] = gray;
    pixel[3] = static_cast<BYTE>(pixel[3] * kFaded / 255);
  }
}

HICON IconFrom(const Pixels& pixels) {
  if (pixels.IsEmpty()) return nullptr;
  // All zero: the alpha of the colours decides.
  const size_t stride = static_cast<size_t>((pixels.size.cx + 15) / 16) * 2;
  const std::vector<BYTE> none(stride * static_cast<size_t>(pixels.size.cy));
  ICONINFO parts{};
  parts.fIcon = TRUE;
  parts.hbmColor = BitmapOf(pixels, false);
  parts.hbmMask = CreateBitmap(pixels.size.cx, pixels.size.cy, 1, 1, none.data());
  const HICON icon = CreateIconIndirect(&parts);
  DeleteObject(parts.hbmColor);
  DeleteObject(parts.hbmMask);
  return icon;
}

}  // namespace

struct PictureStore::Decoded {
  std::weak_ptr<const forms::Picture> owner;
  SIZE own{};
  struct Shown {
    SIZE size{};
    bool faded = false;
    HBITMAP bitmap = nullptr;
  };
  std::vector<Shown> bitmaps;  // the one asked for last is at the end
  std::map<std::tuple<LONG, LONG>, HICON> icons;

  ~Decoded() {
    for (const Shown& each : bitmaps) DeleteObject(each.bitmap);
    for (const auto& [size, icon] : icons) DestroyIcon(icon);
  }
  // Moves it to the end; false when there is none of that size.
  bool Reuse(SIZE size, bool faded) {
    const auto found = std::find_if(bitmaps.begin(), bitmaps.end(), [&](const Shown& each) {
      return each.size.cx == size.cx && each.size.cy == size.cy && each.faded == faded;
    });
    if (found == bitmaps.end()) return false;
    std::rotate(found, found + 1, bitmaps.end());
    return true;
  }
  void Keep(const Shown& shown) {
    if (bitmaps.size() == kSizesKept) {
      DeleteObject(bitmaps.front().bitmap);
      bitmaps.erase(bitmaps.begin());
    }
    bitmaps.push_back(shown);
  }
};

PictureStore::PictureStore() = default;
PictureStore::~PictureStore() = default;

// Pictures are few and long-lived; those that are gone are swept when another comes.
PictureStore::Decoded& PictureStore::DecodedOf(const forms::PictureRef& picture) {
  const auto found = decoded_.find(picture.get());
  if (found != decoded_.end() && !found->second->owner.expired()) return *found->second;
  std::erase_if(decoded_, [](const auto& entry) { return entry.second->owner.expired(); });
  auto fresh = std::make_unique<Decoded>();
  fresh->owner = picture;
  fresh->own = codec_.SizeOf(picture->bytes);
  return *(decoded_[picture.get()] = std::move(fresh));
}

SIZE PictureStore::SizeOf(const forms::PictureRef& picture) {
  return picture ? DecodedOf(picture).own : SIZE{};
}

HBITMAP PictureStore::BitmapOf(const forms::PictureRef& picture, SIZE size, bool faded) {
  if (!picture || size.cx <= 0 || size.cy <= 0) return nullptr;
  Decoded& decoded = DecodedOf(picture);
  if (decoded.own.cx <= 0) return nullptr;
  if (!decoded.Reuse(size, faded)) {
    Pixels pixels = codec_.Decode(picture->bytes, size);
    if (faded) Fade(pixels);
    decoded.Keep({size, faded, toolkit_win32::BitmapOf(pixels, true)});
  }
  return decoded.bitmaps.back().bitmap;
}

HICON PictureStore::IconOf(const forms::PictureRef& picture, SIZE size) {
  if (!picture || size.cx <= 0 || size.cy <= 0) return nullptr;
  Decoded& decoded = DecodedOf(picture);
  const auto [place, fresh] = decoded.icons.try_emplace({size.cx, size.cy}, nullptr);
  if (fresh && decoded.own.cx > 0) place->second = IconFrom(codec_.Decode(picture->bytes, size));
  return place->second;
}

void PictureStore::Draw(HDC dc, const RECT& place, const forms::PictureRef& picture, bool faded) {
  const HBITMAP bitmap = BitmapOf(picture, {WidthOf(place), HeightOf(place)}, faded);
  if (!bitmap) return;
  const HDC source = CreateCompatibleDC(dc);
  const HGDIOBJ before = SelectObject(source, bitmap);
  const BLENDFUNCTION by_alpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  GdiAlphaBlend(dc, place.left, place.top, WidthOf(place), HeightOf(place), source, 0, 0, WidthOf(place),
                HeightOf(place), by_alpha);
  SelectObject(source, before);
  DeleteDC(source);
}

}  // namespace corvane::toolkit_win32
