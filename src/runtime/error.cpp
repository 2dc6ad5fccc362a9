#include "runtime/error.h"

namespace corvane::runtime {

namespace {

struct Row {
  long number;
  const char* description;
};

constexpr Row kDescriptions[] = {
    {kInvalidProcedureCall, "Invalid procedure call or argument"},
    {kOverflow, "Overflow"},
    {kSubscriptOutOfRange, "Subscript out of range"},
    {kTypeMismatch, "Type mismatch"},
    {kProcedureNotDefined, "Sub or Function not defined"},
    {kFileNotFound, "File not found"},
    {kFileAlreadyExists, "File already exists"},
    {kDiskFull, "Disk full"},
    {kPermissionDenied, "Permission denied"},
    {kPathFileAccessError, "Path/File access error"},
    {kPathNotFound, "Path not found"},
    {kObjectNotSet, "Object variable or With block variable not set"},
    {kInvalidPatternString, "Invalid pattern string"},
    {kControlArrayElementMissing, "Control array element doesn't exist"},
    {kInvalidFileFormat, "Invalid file format"},
    {kObjectAlreadyLoaded, "Object already loaded"},
    {kCannotUnloadDesignTimeControl, "Can't unload controls created at design time"},
    {kInvalidPropertyValue, "Invalid property value"},
    {kInvalidPropertyArrayIndex, "Invalid property array index"},
    {kPropertyReadOnly, "Property is read-only"},
    {kFormAlreadyDisplayed, "Form already displayed; can't show modally"},
    {kModelessOverModal, "Can't show non-modal form when modal form is displayed"},
    {kObjectRequired, "Object required"},
    {kCannotCreateObject, "ActiveX component can't create object"},
    {kNoSuchMember, "Object doesn't support this property or method"},
};

}  // namespace

std::string DescriptionOf(long number) {
  for (const Row& row : kDescriptions)
    if (row.number == number) return row.description;
  return "Application-defined or object-defined error";
}

}  // namespace corvane::runtime
