// ScriptHome: the script engine inside the environment: it acts on the environment's project, asks in message and input
// boxes, and reads its library, LibCode.txt and WorkShop, beside the add-in's.
#pragma once

#include <memory>
#include <string>

#include "host/services.h"
#include "host/vbe.h"

namespace corvane::script {
class frmLib;
}

namespace corvane::com {

class ScriptHome {
 public:
  // [vbe] is not Nothing. [services] must outlive it.
  ScriptHome(host::Ref<host::VBE> vbe, host::Services& services);
  ~ScriptHome();

  // Runs a script text from its first block to its end; its result text. Empty, and nothing is run, while one runs.
  std::string Run(const std::string& script);
  bool IsRunning() const { return running_; }
  // The script that runs ends at its next yield.
  void Stop();
  // For windows that show it.
  script::frmLib& Lib();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
  bool running_ = false;
};

}  // namespace corvane::com
