#include "com/object_creation.h"

#include "com/errors.h"
#include "com/texts.h"

namespace corvane::com {

Dispatch CreateObject(const std::string& prog_id) {
  CLSID id;
  ComPointer<IDispatch> object;
  HRESULT code = CLSIDFromProgID(ToWide(prog_id).c_str(), &id);
  if (SUCCEEDED(code)) code = CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, object.OutVoid());
  if (FAILED(code) || !object) throw host::Error(runtime::kCannotCreateObject);
  return Dispatch(std::move(object));
}

}  // namespace corvane::com
