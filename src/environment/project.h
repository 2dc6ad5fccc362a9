// Project: one .vbp. The environment's VBProject.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/environment.h"
#include "environment/module.h"

namespace corvane::environment {

enum class OnDiskChange { Refuse, Overwrite };  // what Save does with a file that somebody else changed

enum class FileInTheWay { Refuse, Replace };  // what SaveAs does with a file that is not the module's own

class Project : public host::VBProject {
 public:
  virtual std::vector<std::shared_ptr<Module>> Modules() const = 0;
  virtual bool IsDirty() const = 0;
  virtual std::string WriteToText() const = 0;  // the .vbp as it would be written now
  // Writes [module]'s file (and its .frx when that changed). Throws host::Error; the file on disk is then untouched.
  virtual void Save(Module& module, OnDiskChange rule = OnDiskChange::Refuse) = 0;
  // VBComponent's SaveAs, which refuses a file in its way (Error 58), with that file replaced where the user said so.
  // What is open here is never replaced.
  virtual void SaveAs(Module& module, const std::string& path, FileInTheWay rule) = 0;
  // Whether somebody else changed the .vbp since it was read or saved.
  virtual bool ChangedOnDisk() const = 0;
  virtual void SaveProjectFile(OnDiskChange rule = OnDiskChange::Refuse) = 0;
};

// One file of `corvane check`: read, written to memory, compared.
struct CheckedFile {
  std::string path;
  bool identical = true;
  long first_difference = -1;  // byte, from 0
};
std::vector<CheckedFile> CheckFiles(Environment& environment, host::Files& files);

}  // namespace corvane::environment
