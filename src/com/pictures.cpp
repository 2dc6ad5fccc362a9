#include "com/pictures.h"

#include <cstring>
#include <new>

#include "com/errors.h"

namespace corvane::com {

namespace {

constexpr long kInvalidPicture = 481;

HGLOBAL NewMemory(std::string_view bytes) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size() ? bytes.size() : 1);
  void* at = memory ? GlobalLock(memory) : nullptr;
  if (!at) throw std::bad_alloc();
  std::memcpy(at, bytes.data(), bytes.size());
  GlobalUnlock(memory);
  return memory;
}

ComPointer<IStream> NewStream(std::string_view bytes) {
  ComPointer<IStream> stream;
  Check(CreateStreamOnHGlobal(NewMemory(bytes), TRUE, stream.Out()));
  return stream;
}

}  // namespace

ComPointer<IPictureDisp> NewPicture(const runtime::Picture& picture) {
  const ComPointer<IStream> stream = NewStream(picture.bytes);
  ComPointer<IPictureDisp> loaded;
  const LONG size = static_cast<LONG>(picture.bytes.size());
  if (size == 0 || FAILED(OleLoadPicture(stream.Get(), size, TRUE, IID_IPictureDisp, loaded.OutVoid())))
    throw host::Error(kInvalidPicture, "Invalid picture");
  return loaded;
}

runtime::PictureRef BytesOf(IPicture& picture) {
  SHORT kind = PICTYPE_NONE;
  if (FAILED(picture.get_Type(&kind)) || kind == PICTYPE_NONE || kind == PICTYPE_UNINITIALIZED) return nullptr;
  const ComPointer<IStream> stream = NewStream({});
  LONG size = 0;
  Check(picture.SaveAsFile(stream.Get(), TRUE, &size));
  auto bytes = std::make_shared<runtime::Picture>();
  bytes->bytes.resize(static_cast<size_t>(size));
  const LARGE_INTEGER start{};
  Check(stream->Seek(start, STREAM_SEEK_SET, nullptr));
  ULONG read = 0;
  Check(stream->Read(bytes->bytes.data(), static_cast<ULONG>(size), &read));
  bytes->bytes.resize(read);
  return bytes;
}

}  // namespace corvane::com
