// SystemClipboard: the picture on the system's clipboard, from which the environment takes the face of a button.
#pragma once

#include "host/services.h"

namespace corvane::stage {

class SystemClipboard : public host::Clipboard {
 public:
  void Clear() override;
  // The environment asks for pictures alone.
  std::string GetText() override { return {}; }
  void SetText(const std::string&) override {}
  void SetData(const runtime::PictureRef&) override {}
  runtime::PictureRef GetData() override;
};

}  // namespace corvane::stage
