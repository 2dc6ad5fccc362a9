// The favourite wizards: the drop-down of the key that starts wizards.
#include "explorer/favorite_wizards.h"

#include <algorithm>

#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kFile[] = "FavrList.txt", kStart[] = "Start";
constexpr long kFirstBrace = 2;

std::string CaptionOf(const std::string& line) {
  const std::string title = Left(line, InStr(line, "{") - 1);
  return title.substr(0, title.find('['));
}

}  // namespace

std::vector<forms::ButtonMenu> ReadFavoriteWizards(std::string_view file) {
  std::vector<forms::ButtonMenu> entries;
  while (!file.empty()) {
    const size_t end = std::min(file.find_first_of("\r\n"), file.size());
    const std::string line(file.substr(0, end));
    file.remove_prefix(std::min(end + 1, file.size()));
    if (InStr(line, "}!") >= kFirstBrace && InStr(line, "{") >= kFirstBrace) entries.push_back({line, CaptionOf(line)});
  }
  return entries;
}

// Those of the library, then those of the project; a file that is not there has none.
void frmAddIn::LoadWizardFavorites() {
  std::vector<forms::ButtonMenu> entries;
  const auto add = [&](const std::string& folder) {
    for (forms::ButtonMenu& entry : ReadFavoriteWizards(services.Files.Read(folder + kFile)))
      entries.push_back(std::move(entry));
  };
  PassOverErrors([&] { add(services.App.Path + "\\"); });
  PassOverErrors([&] {
    const std::string project = ActiveProject(VBInstance)->FileName();
    if (!project.empty()) add(runtime::Left(project, InStrRev(project, "\\")));
  });
  tlbr.SetButtonMenus(tlbr.PositionOf(kStart), std::move(entries));
}

void frmAddIn::StartFavorite(int entry) {
  const auto entries = tlbr.Button(tlbr.PositionOf(kStart)).ButtonMenus;
  if (entry >= 1 && static_cast<size_t>(entry) <= entries.size())
    RunWizard(entries[static_cast<size_t>(entry) - 1].Key);
}

}  // namespace corvane::explorer
