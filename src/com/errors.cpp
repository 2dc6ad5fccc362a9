#include "com/errors.h"

#include "addin/connect.h"
#include "com/texts.h"

namespace corvane::com {

namespace {

// What the run time of Visual Basic has numbers of its own for. Without a text the number's usual one is taken.
struct Row {
  HRESULT code;
  long number;
  const char* description;
};

constexpr char kCannotCreate[] = "ActiveX component can't create object";

const Row kRows[] = {
    {E_NOTIMPL, 445, "Object doesn't support this action"},
    {E_NOINTERFACE, 430, "Class does not support Automation or does not support expected interface"},
    {E_ABORT, 287, nullptr},
    {E_OUTOFMEMORY, 7, "Out of memory"},
    {E_INVALIDARG, 5, nullptr},
    {E_ACCESSDENIED, 70, nullptr},
    {DISP_E_UNKNOWNINTERFACE, 438, nullptr},
    {DISP_E_MEMBERNOTFOUND, 438, nullptr},
    {DISP_E_PARAMNOTFOUND, 448, "Named argument not found"},
    {DISP_E_TYPEMISMATCH, 13, nullptr},
    {DISP_E_UNKNOWNNAME, 438, nullptr},
    {DISP_E_NONAMEDARGS, 446, "Object doesn't support named arguments"},
    {DISP_E_BADVARTYPE, 458, "Variable uses an Automation type not supported in Visual Basic"},
    {DISP_E_OVERFLOW, 6, nullptr},
    {DISP_E_BADINDEX, 9, nullptr},
    {DISP_E_UNKNOWNLCID, 447, "Object doesn't support current locale setting"},
    {DISP_E_ARRAYISLOCKED, 10, "This array is fixed or temporarily locked"},
    {DISP_E_BADPARAMCOUNT, 450, "Wrong number of arguments or invalid property assignment"},
    {DISP_E_PARAMNOTOPTIONAL, 449, "Argument not optional"},
    {DISP_E_NOTACOLLECTION, 451, "Object not a collection"},
    {DISP_E_DIVBYZERO, 11, "Division by zero"},
    {CO_E_CLASSSTRING, 429, kCannotCreate},
    {REGDB_E_CLASSNOTREG, 429, kCannotCreate},
    {CO_E_SERVER_EXEC_FAILURE, 429, kCannotCreate},
    {CO_E_APPNOTFOUND, 429, kCannotCreate},
    {MK_E_UNAVAILABLE, 429, kCannotCreate},
    {CONNECT_E_NOCONNECTION, 459, "Object or class does not support the set of events"},
    {HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE), 462, "The remote server machine does not exist or is unavailable"},
    {STG_E_FILENOTFOUND, 53, nullptr},
    {STG_E_PATHNOTFOUND, 76, nullptr},
    {STG_E_ACCESSDENIED, 70, nullptr},
    {STG_E_MEDIUMFULL, 61, nullptr},
};

constexpr long kLastNumber = 0xFFFF, kAutomationError = 440;

const Row* FindRow(HRESULT code) {
  for (const Row& row : kRows)
    if (row.code == code) return &row;
  return nullptr;
}

long NumberOf(HRESULT code) {
  if (HRESULT_FACILITY(code) == FACILITY_CONTROL) return HRESULT_CODE(code);
  const Row* row = FindRow(code);
  return row ? row->number : static_cast<long>(code);
}

std::string SystemTextOf(HRESULT code) {
  wchar_t text[512];
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                      static_cast<DWORD>(code), 0, text, ARRAYSIZE(text), nullptr);
  std::wstring_view line(text, length);
  while (!line.empty() && (line.back() == L'\r' || line.back() == L'\n')) line.remove_suffix(1);
  return ToAnsi(line);
}

std::string DescriptionOf(HRESULT code) {
  const Row* row = FindRow(code);
  if (row && row->description) return row->description;
  const long number = NumberOf(code);
  if (number >= 0 && number <= kLastNumber) return runtime::DescriptionOf(number);
  const std::string text = SystemTextOf(code);
  return text.empty() ? "Automation error" : "Automation error\r\n" + text;
}

}  // namespace

host::Error ErrorOf(HRESULT code, const EXCEPINFO* told) {
  if (code != DISP_E_EXCEPTION || !told) return host::Error(NumberOf(code), DescriptionOf(code));
  // An object gives a code or, in the old way, a number.
  const WORD number = told->wCode ? told->wCode : kAutomationError;
  const HRESULT cause = told->scode ? told->scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
  const std::string text = TextOf(told->bstrDescription);
  return host::Error(NumberOf(cause), text.empty() ? DescriptionOf(cause) : text);
}

void Check(HRESULT code) {
  if (FAILED(code)) throw ErrorOf(code);
}

HRESULT CodeOf(const host::Error& error) {
  const long number = error.Number();
  if (number < 0) return static_cast<HRESULT>(number);
  if (number == 0 || number > kLastNumber) return E_FAIL;
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

HRESULT Raise(const host::Error& error, EXCEPINFO* told) {
  if (!told) return CodeOf(error);
  *told = {};
  told->scode = CodeOf(error);
  told->bstrDescription = NewBstr(error.Description());
  told->bstrSource = SysAllocString(ToWide(addin::kProgId).c_str());
  return DISP_E_EXCEPTION;
}

}  // namespace corvane::com
