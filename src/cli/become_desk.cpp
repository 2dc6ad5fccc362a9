#include "cli/become_desk.h"

#include <cerrno>
#include <cstring>
#include <ostream>
#include <unistd.h>

#include "cli/data_folder.h"

namespace corvane::cli {

int BecomeDesk(const DeskOptions&, int, char** argv, std::ostream& out, std::ostream& errors) {
  const std::string program = ProgramFolder() / "corvane-desk";
  out.flush();
  ::execv(program.c_str(), argv);
  errors << "corvane: the desk cannot be opened: " << program << ": " << std::strerror(errno) << '\n';
  return 1;
}

}  // namespace corvane::cli
