// IdeAccess: what expressions and assignments ask of the project that is open. Arguments come as one text with listSep
// between them; lists come back with "|" behind each entry. Messages go to [errors]. Failed calls of the environment
// may throw runtime::Error.
#pragma once

#include <string>

namespace corvane::script {

class ErrorReport;

class IdeAccess {
 public:
  virtual ~IdeAccess() = default;

  virtual std::string ProjectName() = 0;      // of ActiveVBProject
  virtual std::string ProjectFileName() = 0;  // its path; empty for one that was never saved

  virtual std::string Components(const std::string& filter) = 0;
  virtual std::string GetProp(ErrorReport& errors, const std::string& address_and_property) = 0;
  // [address] ends in "." and the name of the property.
  virtual void SetProp(ErrorReport& errors, const std::string& address, const std::string& value) = 0;
  virtual std::string FindLine(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string Declaration(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string ProcLines(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string CodeLines(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string ReadCode(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string GetSelection(ErrorReport& errors, const std::string& component) = 0;
  virtual std::string Add(ErrorReport& errors, const std::string& arguments) = 0;
  virtual std::string SetPicture(ErrorReport& errors, const std::string& arguments) = 0;
};

}  // namespace corvane::script
