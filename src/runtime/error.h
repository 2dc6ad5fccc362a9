// Error: a failed call, as Visual Basic's Err object tells it: a number and a description.
// Every seam of the system fails by throwing it; nothing else is thrown on purpose.
#pragma once

#include <stdexcept>
#include <string>

namespace corvane::runtime {

// Visual Basic's own error numbers that this system raises.
enum ErrorNumber : long {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kProcedureNotDefined = 35,
  kFileNotFound = 53,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidPatternString = 93,
  kControlArrayElementMissing = 340,
  kInvalidFileFormat = 321,
  kObjectAlreadyLoaded = 360,
  kCannotUnloadDesignTimeControl = 362,
  kInvalidPropertyValue = 380,
  kInvalidPropertyArrayIndex = 381,
  kPropertyReadOnly = 383,
  kFormAlreadyDisplayed = 400,
  kModelessOverModal = 401,
  kObjectRequired = 424,
  kCannotCreateObject = 429,
  kNoSuchMember = 438,
  kNameInUse = 32813,
};

// The text Visual Basic gives for [number]; "Application-defined or object-defined error" for others.
std::string DescriptionOf(long number);

class Error : public std::runtime_error {
 public:
  explicit Error(long number) : Error(number, DescriptionOf(number)) {}
  Error(long number, const std::string& description) : std::runtime_error(description), number_(number) {}

  long Number() const { return number_; }
  std::string Description() const { return what(); }

 private:
  long number_;
};

// Runs [action] and passes over an Error, as "On Error Resume Next" does for one statement.
// Returns whether it ran to its end. Anything but an Error still leaves.
template <class Action>
bool PassOverErrors(Action&& action) {
  try {
    action();
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace corvane::runtime
