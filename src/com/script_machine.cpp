#include "com/script_machine.h"

#include "com/texts.h"
#include "runtime/dates.h"
#include "toolkit_win32/file_names.h"

namespace corvane::com {

namespace {

long NumberOfStart(DWORD error) {
  const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
  return missing ? runtime::kFileNotFound : runtime::kInvalidProcedureCall;
}

long NumberOfDeletion(DWORD error, DWORD attributes) {
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY)) return runtime::kFileNotFound;
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) return runtime::kPermissionDenied;
  return runtime::kPathFileAccessError;
}

}  // namespace

double ScriptMachine::Shell(const std::string& program) {
  std::wstring command = ToWide(program);  // the system writes to it
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWMINIMIZED;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started))
    throw runtime::Error(NumberOfStart(GetLastError()));
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return started.dwProcessId;
}

void ScriptMachine::Open(const std::string& file) {
  ShellExecuteW(nullptr, L"open", ToWide(file).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

void ScriptMachine::Kill(const std::string& path) {
  const std::wstring file = toolkit_win32::PathForSystem(path);
  if (DeleteFileW(file.c_str())) return;
  const DWORD error = GetLastError();
  throw runtime::Error(NumberOfDeletion(error, GetFileAttributesW(file.c_str())));
}

double ScriptMachine::Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  runtime::DateParts parts;
  parts.year = now.wYear;
  parts.month = now.wMonth;
  parts.day = now.wDay;
  parts.hour = now.wHour;
  parts.minute = now.wMinute;
  parts.second = now.wSecond;
  return runtime::DateOf(parts);
}

}  // namespace corvane::com
