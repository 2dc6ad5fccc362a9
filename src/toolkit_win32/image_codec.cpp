#include "toolkit_win32/image_codec.h"

#include <cstring>
#include <objbase.h>
#include <wincodec.h>

namespace corvane::toolkit_win32 {
namespace {

constexpr GUID kFactoryClass = {0xCACAF262, 0x9370, 0x4615, {0xA1, 0x3B, 0x9F, 0x55, 0x39, 0xDA, 0x4C, 0x0A}};
constexpr GUID kStraightAlpha = {0x6FDDC324, 0x4E03, 0x4BFE, {0xB1, 0x85, 0x3D, 0x77, 0x76, 0x8D, 0xC9, 0x0F}};
constexpr GUID kPngContainer = {0x1B7CFAF4, 0x713F, 0x473C, {0xBB, 0xCD, 0x61, 0x37, 0x42, 0x5F, 0xAE, 0xAF}};
constexpr int kBytesPerPixel = 4;

using Frame = ComPointer<IWICBitmapFrameDecode>;

struct OpenFile {
  ComPointer<IWICStream> stream;
  ComPointer<IWICBitmapDecoder> decoder;
};

OpenFile Open(IWICImagingFactory* factory, std::string_view file) {
  OpenFile open;
  if (!factory || file.empty() || FAILED(factory->CreateStream(open.stream.Out()))) return open;
  auto* bytes = reinterpret_cast<BYTE*>(const_cast<char*>(file.data()));
  if (FAILED(open.stream->InitializeFromMemory(bytes, static_cast<DWORD>(file.size())))) return open;
  factory->CreateDecoderFromStream(open.stream.Get(), nullptr, WICDecodeMetadataCacheOnDemand, open.decoder.Out());
  return open;
}

SIZE SizeOfFrame(IWICBitmapSource* source) {
  UINT width = 0, height = 0;
  return SUCCEEDED(source->GetSize(&width, &height)) ? SIZE{static_cast<LONG>(width), static_cast<LONG>(height)}
                                                     : SIZE{};
}

// Of two pictures the one that needs no enlarging, and of those the nearer.
bool FitsBetter(SIZE candidate, SIZE best, SIZE wanted) {
  const bool large = candidate.cx >= wanted.cx, best_large = best.cx >= wanted.cx;
  if (large != best_large) return large;
  return large ? candidate.cx < best.cx : candidate.cx > best.cx;
}

Frame BestFrame(IWICBitmapDecoder* decoder, SIZE wanted) {
  Frame best;
  UINT count = 0;
  decoder->GetFrameCount(&count);
  for (UINT number = 0; number < count; ++number) {
    Frame frame;
    if (FAILED(decoder->GetFrame(number, frame.Out()))) continue;
    if (!best || FitsBetter(SizeOfFrame(frame.Get()), SizeOfFrame(best.Get()), wanted)) best = std::move(frame);
  }
  return best;
}

BYTE Multiplied(BYTE value, BYTE alpha) {
  return static_cast<BYTE>((value * alpha + 127) / 255);
}

}  // namespace

// The host may have started COM on this thread in its own way; then that way it is.
ImageCodec::ImageCodec() : started_com_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

ImageCodec::~ImageCodec() {
  factory_ = {};
  if (started_com_) CoUninitialize();
}

IWICImagingFactory* ImageCodec::Factory() {
  if (!factory_) {
    CoCreateInstance(kFactoryClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IWICImagingFactory), factory_.OutVoid());
  }
  return factory_.Get();
}

SIZE ImageCodec::SizeOf(std::string_view file) {
  const OpenFile open = Open(Factory(), file);
  Frame frame;
  if (!open.decoder || FAILED(open.decoder->GetFrame(0, frame.Out()))) return {};
  return SizeOfFrame(frame.Get());
}

Pixels ImageCodec::Decode(std::string_view file, SIZE size) {
  const OpenFile open = Open(Factory(), file);
  const Frame frame = open.decoder ? BestFrame(open.decoder.Get(), size) : Frame();
  ComPointer<IWICFormatConverter> converter;
  ComPointer<IWICBitmapScaler> scaler;
  if (!frame || FAILED(Factory()->CreateFormatConverter(converter.Out()))) return {};
  if (FAILED(converter->Initialize(frame.Get(), kStraightAlpha, WICBitmapDitherTypeNone, nullptr, 0,
                                   WICBitmapPaletteTypeCustom)) ||
      FAILED(Factory()->CreateBitmapScaler(scaler.Out()))) {
    return {};
  }
  const SIZE own = SizeOfFrame(frame.Get());
  IWICBitmapSource* source = converter.Get();
  if (own.cx != size.cx || own.cy != size.cy) {
    if (FAILED(scaler->Initialize(source, static_cast<UINT>(size.cx), static_cast<UINT>(size.cy),
                                  WICBitmapInterpolationModeFant))) {
      return {};
    }
    source = scaler.Get();
  }
  const UINT stride = static_cast<UINT>(size.cx) * kBytesPerPixel;
  Pixels pixels{size, std::vector<BYTE>(static_cast<size_t>(stride) * static_cast<size_t>(size.cy))};
  const HRESULT copied =
      source->CopyPixels(nullptr, stride, static_cast<UINT>(pixels.bytes.size()), pixels.bytes.data());
  return SUCCEEDED(copied) ? pixels : Pixels{};
}

bool ImageCodec::SavePng(HBITMAP bitmap, const std::wstring& path) {
  ComPointer<IWICBitmap> source;
  ComPointer<IWICStream> stream;
  ComPointer<IWICBitmapEncoder> encoder;
  ComPointer<IWICBitmapFrameEncode> frame;
  return Factory() &&
         SUCCEEDED(Factory()->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, source.Out())) &&
         SUCCEEDED(Factory()->CreateStream(stream.Out())) &&
         SUCCEEDED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
         SUCCEEDED(Factory()->CreateEncoder(kPngContainer, nullptr, encoder.Out())) &&
         SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
         SUCCEEDED(encoder->CreateNewFrame(frame.Out(), nullptr)) && SUCCEEDED(frame->Initialize(nullptr)) &&
         SUCCEEDED(frame->WriteSource(source.Get(), nullptr)) && SUCCEEDED(frame->Commit()) &&
         SUCCEEDED(encoder->Commit());
}

HBITMAP BitmapOf(const Pixels& pixels, bool multiplied) {
  if (pixels.IsEmpty()) return nullptr;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = pixels.size.cx;
  info.bmiHeader.biHeight = -pixels.size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 8 * kBytesPerPixel;
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (!bitmap) return nullptr;
  auto* to = static_cast<BYTE*>(bits);
  std::memcpy(to, pixels.bytes.data(), pixels.bytes.size());
  for (size_t at = 0; multiplied && at < pixels.bytes.size(); at += kBytesPerPixel) {
    for (size_t part = at; part < at + 3; ++part) to[part] = Multiplied(to[part], to[at + 3]);
  }
  return bitmap;
}

}  // namespace corvane::toolkit_win32
