// IdeCommands: what commands do to the project that is open. Arguments come as one text with listSep between them.
// Messages go to [errors]. Failed calls of the environment may throw runtime::Error.
#pragma once

#include <string>
#include <string_view>

namespace corvane::script {

class ErrorReport;

class IdeCommands {
 public:
  virtual ~IdeCommands() = default;

  virtual void Replace(ErrorReport& errors, const std::string& first, const std::string& second) = 0;
  virtual void Create(ErrorReport& errors, const std::string& class_name, const std::string& name) = 0;
  virtual void Remove(ErrorReport& errors, const std::string& address) = 0;
  virtual void ReplaceLine(ErrorReport& errors, const std::string& arguments) = 0;
  virtual void DeleteCode(ErrorReport& errors, const std::string& arguments) = 0;
  // INSERTCODE has its text among the arguments.
  virtual void InsertCode(ErrorReport& errors, const std::string& arguments) = 0;
  // WRITE puts in the result text of the script; its arguments may be empty.
  virtual void WriteResult(ErrorReport& errors, const std::string& arguments, std::string_view result) = 0;
  // Whether the line is shown.
  virtual bool GoCodeLine(ErrorReport& errors, const std::string& arguments) = 0;
  virtual void Open(ErrorReport& errors, const std::string& component) = 0;
};

}  // namespace corvane::script
