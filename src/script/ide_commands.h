// IdeCommands: what commands do to the project that is open. Arguments come as one text with listSep between them.
// Failed calls of the environment may throw runtime::Error.
#pragma once

#include <string>

namespace corvane::script {

class IdeCommands {
 public:
  virtual ~IdeCommands() = default;

  virtual void Replace(const std::string& first, const std::string& second) = 0;
  virtual void Create(const std::string& class_name, const std::string& name) = 0;
  virtual void Remove(const std::string& address) = 0;
  virtual void ReplaceLine(const std::string& arguments) = 0;
  virtual void DeleteCode(const std::string& arguments) = 0;
  // INSERTCODE has its text among the arguments; WRITE puts in the result text.
  virtual void InsertCode(const std::string& arguments, bool with_text) = 0;
  // Whether the line is shown.
  virtual bool GoCodeLine(const std::string& arguments) = 0;
  virtual void Open(const std::string& component) = 0;
};

}  // namespace corvane::script
