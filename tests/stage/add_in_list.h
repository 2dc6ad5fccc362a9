// The environment's list of add-ins: what its Add-In Manager shows, each user's own part of the registry.
#pragma once

#include <optional>
#include <string>
#include <vector>
#include <windows.h>

namespace corvane::stage {

struct ListedAddIn {
  std::wstring prog_id;  // the name of its key
  std::string name, description;
  DWORD load_behavior = 0, command_line_safe = 0;

  bool IsLoadedAtStartup() const { return load_behavior & 1; }
};

std::vector<ListedAddIn> ListedAddIns();
// The one that the user sees under this name.
std::optional<ListedAddIn> FindListed(const std::string& name);
// The user's choice in the Add-In Manager.
void ChooseLoading(const ListedAddIn& add_in, DWORD load_behavior);
// Takes an entry out, as if nothing had ever registered it.
void RemoveFromList(const ListedAddIn& add_in);

}  // namespace corvane::stage
