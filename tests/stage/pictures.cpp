#include "tests/stage/pictures.h"

#include <cstring>
#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include "tests/stage/com_pointer.h"

namespace corvane::stage {

IUnknown* NewPicture(const runtime::PictureRef& picture) {
  if (!picture) return nullptr;
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, picture->bytes.size());
  std::memcpy(GlobalLock(memory), picture->bytes.data(), picture->bytes.size());
  GlobalUnlock(memory);
  ComPointer<IStream> stream;
  if (FAILED(CreateStreamOnHGlobal(memory, TRUE, stream.Out()))) return nullptr;
  void* loaded = nullptr;
  const LONG size = static_cast<LONG>(picture->bytes.size());
  if (FAILED(OleLoadPicture(stream.Get(), size, FALSE, IID_IPictureDisp, &loaded))) return nullptr;
  return static_cast<IUnknown*>(loaded);
}

runtime::PictureRef PictureOf(IUnknown* object) {
  ComPointer<IPicture> picture;
  if (object == nullptr || FAILED(object->QueryInterface(IID_IPicture, picture.OutVoid()))) return nullptr;
  ComPointer<IStream> stream;
  LONG size = 0;
  if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()))) return nullptr;
  if (FAILED(picture->SaveAsFile(stream.Get(), TRUE, &size)) || size <= 0) return nullptr;
  HGLOBAL memory = nullptr;
  if (FAILED(GetHGlobalFromStream(stream.Get(), &memory))) return nullptr;
  runtime::Picture bytes{std::string(static_cast<const char*>(GlobalLock(memory)), static_cast<size_t>(size))};
  GlobalUnlock(memory);
  return std::make_shared<runtime::Picture>(std::move(bytes));
}

}  // namespace corvane::stage
