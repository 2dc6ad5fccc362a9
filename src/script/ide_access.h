// IdeAccess: what expressions and assignments ask of the project that is open. Arguments come as one text with listSep
// between them; lists come back with "|" behind each entry. Failed calls of the environment may throw runtime::Error.
#pragma once

#include <string>

namespace corvane::script {

class IdeAccess {
 public:
  virtual ~IdeAccess() = default;

  virtual std::string ProjectName() = 0;      // of ActiveVBProject
  virtual std::string ProjectFileName() = 0;  // its path; empty for one that was never saved

  virtual std::string Components(const std::string& filter) = 0;
  virtual std::string GetProp(const std::string& address_and_property) = 0;
  // [address] ends in "." and the name of the property.
  virtual void SetProp(const std::string& address, const std::string& value) = 0;
  virtual std::string FindLine(const std::string& arguments) = 0;
  virtual std::string Declaration(const std::string& arguments) = 0;
  virtual std::string ProcLines(const std::string& arguments) = 0;
  virtual std::string CodeLines(const std::string& arguments) = 0;
  virtual std::string ReadCode(const std::string& arguments) = 0;
  virtual std::string GetSelection(const std::string& component) = 0;
  virtual std::string Add(const std::string& arguments) = 0;
  virtual std::string SetPicture(const std::string& arguments) = 0;
};

}  // namespace corvane::script
