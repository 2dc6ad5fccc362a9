// The tables of the environment's objects: one row a member, with the name and the number that the environment gives
// it.
#pragma once

#include <oaidl.h>
#include <string>
#include <vector>
#include <windows.h>

namespace corvane::stage {

class Call;
using Handler = void (*)(Call&);

struct Member {
  const char* name;
  DISPID id;
  // Arguments of the member, without the value of a put.
  int required, allowed;
  // Those that it does not offer are null.
  Handler get, method, put;
  // An environment with a library of types has it in an interface of its own.
  bool is_of_later_interface = false;
};

struct ObjectTable {
  std::string name;  // "VBProject"
  std::vector<Member> members;
  bool of_project = false;  // dead once its project is closed
};

// One for each interface of the host contract.
template <class T>
const ObjectTable& TableOf();

// Events as their later interface.
const ObjectTable& TableOfLaterEvents();

}  // namespace corvane::stage
