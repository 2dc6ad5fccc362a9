// What the library writes into the registry, and that it takes all of it away again. The user's part of the registry is
// a key of the test's own meanwhile, and the machine's too.
#include "com/registration.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include "com/com_pointer.h"
#include "com/exports.h"
#include "com/module_use.h"
#include "com/registry_edit.h"
#include "com/texts.h"
#include "tests/support/registry_rights.h"

namespace corvane::com {
namespace {

constexpr wchar_t kLibrary[] = L"C:\\Program Files\\Corvane\\corvane.dll";
// Where everybody's classes and everything of the system's vendor stand.
const std::vector<std::string> kCommon = {"Software\\Classes", "Software\\Microsoft"};
using tests::kEverything;
using tests::kNoLookInside;
using tests::kNoValuesSet;
constexpr wchar_t kTestKey[] = L"Software\\CorvaneRegistrationTest";

class RegistrationTest : public testing::Test {
 protected:
  RegistrationTest() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey);
    user_ = MakeKey(HKEY_CURRENT_USER, std::wstring(kTestKey) + L"\\User");
    machine_ = MakeKey(HKEY_CURRENT_USER, std::wstring(kTestKey) + L"\\Machine");
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, user_), ERROR_SUCCESS);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_), ERROR_SUCCESS);
  }
  ~RegistrationTest() override {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegCloseKey(user_);
    RegCloseKey(machine_);
    EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, kTestKey), ERROR_SUCCESS);
  }

  static HKEY MakeKey(HKEY root, const std::wstring& path, DWORD options = 0) {
    HKEY key = nullptr;
    EXPECT_EQ(RegCreateKeyExW(root, path.c_str(), 0, nullptr, options, KEY_ALL_ACCESS, nullptr, &key, nullptr), 0);
    return key;
  }
  static void Make(const std::wstring& path, DWORD options = 0) {
    RegCloseKey(MakeKey(HKEY_CURRENT_USER, path, options));
  }

  static void Allow(const std::wstring& path, const wchar_t* who_may_what) {
    tests::Allow(HKEY_CURRENT_USER, path.c_str(), who_may_what);
  }

  // All below [root], a line each: "key\name = value".
  static std::vector<std::string> Contents(HKEY root, const std::wstring& path = {}) {
    std::vector<std::string> lines;
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key), ERROR_SUCCESS);
    wchar_t name[256];
    for (DWORD i = 0, size = 256; RegEnumValueW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) == 0;
         ++i, size = 256)
      lines.push_back(ToAnsi(path) + "\\" + ToAnsi(std::wstring_view(name)) + " = " + ValueOf(key, name));
    bool has_keys = false;
    for (DWORD i = 0, size = 256; RegEnumKeyExW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) == 0;
         ++i, size = 256) {
      has_keys = true;
      for (auto& line : Contents(root, path.empty() ? name : path + L"\\" + name)) lines.push_back(std::move(line));
    }
    if (lines.empty() && !has_keys && !path.empty()) lines.push_back(ToAnsi(path));
    RegCloseKey(key);
    return lines;
  }
  static std::string ValueOf(HKEY key, const wchar_t* name) {
    DWORD type = 0, size = 1024;
    BYTE data[1024];
    EXPECT_EQ(RegQueryValueExW(key, name, nullptr, &type, data, &size), ERROR_SUCCESS);
    if (type == REG_DWORD) return std::to_string(*reinterpret_cast<DWORD*>(data));
    return "\"" + ToAnsi(std::wstring_view(reinterpret_cast<wchar_t*>(data), size / 2 - 1)) + "\"";
  }

  static std::vector<std::string> ClassLines() {
    const std::string id = "{8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}", classes = "Software\\Classes\\";
    return {classes + "CLSID\\" + id + "\\ = \"AddIn Corvane\"",
            classes + "CLSID\\" + id + "\\InprocServer32\\ = \"C:\\Program Files\\Corvane\\corvane.dll\"",
            classes + "CLSID\\" + id + "\\InprocServer32\\ThreadingModel = \"Apartment\"",
            classes + "CLSID\\" + id + "\\ProgID\\ = \"corvane.Connect\"",
            classes + "CLSID\\" + id + "\\Programmable\\ = \"\"",
            classes + "corvane.Connect\\ = \"AddIn Corvane\"",
            classes + "corvane.Connect\\CLSID\\ = \"" + id + "\""};
  }
  static std::vector<std::string> AddInLines(long load = 1) {
    const std::string key = "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\corvane.Connect\\";
    return {key + "FriendlyName = \"Corvane - 2000\"",
            key + "Description = \"Powerfull Project Explorer with Color code analysis. \"",
            key + "CommandLineSafe = 0", key + "LoadBehavior = " + std::to_string(load)};
  }
  long CountOfAddInLines() const {
    const auto lines = Contents(user_);
    return static_cast<long>(std::count_if(lines.begin(), lines.end(), [](const auto& line) {
      return line.find("Addins\\corvane.Connect\\") != line.npos;
    }));
  }
  static std::vector<std::string> Both(long load = 1) {
    std::vector<std::string> lines = ClassLines();
    for (auto& line : AddInLines(load)) lines.push_back(std::move(line));
    return lines;
  }

  HKEY user_ = nullptr, machine_ = nullptr;
};

std::vector<std::string> Sorted(std::vector<std::string> lines) {
  std::sort(lines.begin(), lines.end());
  return lines;
}

TEST_F(RegistrationTest, AUserHasTheClassAndTheAddIn) {
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(Both()));
  EXPECT_TRUE(Contents(machine_).empty());
  EXPECT_EQ(Unregister(Scope::User), S_OK);
  EXPECT_EQ(Contents(user_), kCommon);
}

TEST_F(RegistrationTest, AMachineHasTheClassAndTheUserTheAddIn) {
  EXPECT_EQ(Register(Scope::Machine, kLibrary), S_OK);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(AddInLines()));
  EXPECT_EQ(Sorted(Contents(machine_)), Sorted(ClassLines()));
  EXPECT_EQ(Unregister(Scope::Machine), S_OK);
  EXPECT_EQ(Contents(machine_), std::vector<std::string>{"Software\\Classes"});
}

TEST_F(RegistrationTest, TheAddInOfAMachineStaysWithoutTheUsersOwn) {
  EXPECT_EQ(Register(Scope::Machine, kLibrary), S_OK);
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  EXPECT_EQ(Unregister(Scope::User), S_OK);
  EXPECT_EQ(Sorted(Contents(machine_)), Sorted(ClassLines()));
  auto left = AddInLines();
  left.push_back(kCommon[0]);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(left));
  EXPECT_EQ(Unregister(Scope::Machine), S_OK);
  EXPECT_EQ(Contents(user_), kCommon);
}

TEST_F(RegistrationTest, TheUsersAddInStaysWithoutTheMachines) {
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  EXPECT_EQ(Register(Scope::Machine, kLibrary), S_OK);
  EXPECT_EQ(Unregister(Scope::Machine), S_OK);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(Both()));
  EXPECT_EQ(Contents(machine_), std::vector<std::string>{"Software\\Classes"});
}

// Classes of 32-bit and of 64-bit programs stand apart, the class's name and the add-in do not.
TEST_F(RegistrationTest, WhatALibraryOfTheOtherWidthSharesStays) {
  constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  constexpr wchar_t kClass[] = L"Software\\Classes\\CLSID\\{8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}";
  for (const bool of_machine : {false, true}) {
    const HKEY root = of_machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    RegCloseKey(MakeKey(root, L"Software\\Classes\\Wow6432Node\\CLSID"));
    HKEY other = nullptr;
    ASSERT_EQ(RegCreateKeyExW(root, kClass, 0, nullptr, 0, KEY_READ | kOther, nullptr, &other, nullptr), ERROR_SUCCESS);
    RegCloseKey(other);
    if (HKEY same = nullptr; RegOpenKeyExW(root, kClass, 0, KEY_READ, &same) == ERROR_SUCCESS) {
      RegCloseKey(same);
      GTEST_SKIP() << "this system has programs of one width alone";
    }
    const Scope scope = of_machine ? Scope::Machine : Scope::User;
    const auto names = [&] {
      const auto lines = Contents(of_machine ? machine_ : user_);
      return std::count_if(lines.begin(), lines.end(),
                           [](const auto& line) { return line.find("Classes\\corvane.Connect") != line.npos; });
    };
    EXPECT_EQ(Register(scope, kLibrary), S_OK);
    EXPECT_EQ(Unregister(scope), S_OK);
    EXPECT_EQ(names(), 2);
    EXPECT_EQ(CountOfAddInLines(), 4);
    EXPECT_EQ(RegDeleteKeyExW(root, kClass, kOther, 0), ERROR_SUCCESS);
    EXPECT_EQ(Unregister(scope), S_OK);
    EXPECT_EQ(names(), 0);
    EXPECT_EQ(CountOfAddInLines(), 0);
  }
}

TEST_F(RegistrationTest, AClassThatCannotBeRemovedKeepsWhatBelongsToIt) {
  constexpr wchar_t kClass[] = L"Software\\Classes\\CLSID\\{8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}";
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  Allow(kClass, kNoLookInside);
  EXPECT_EQ(Unregister(Scope::User), E_ACCESSDENIED);
  for (const wchar_t* key :
       {L"Software\\Classes\\corvane.Connect", L"Software\\Microsoft\\Visual Basic\\6.0\\Addins\\corvane.Connect"})
    EXPECT_TRUE(HasKey(HKEY_CURRENT_USER, key, 0));
  Allow(kClass, kEverything);
  EXPECT_EQ(Unregister(Scope::User), S_OK);
  EXPECT_EQ(Contents(user_), kCommon);
}

TEST_F(RegistrationTest, WhatOthersHaveThereStays) {
  Make(L"Software\\Classes\\CLSID\\{other}");
  Make(L"Software\\Microsoft\\Visual Basic\\6.0\\Addins\\other.Connect");
  const auto before = Contents(user_);
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  EXPECT_EQ(Unregister(Scope::User), S_OK);
  EXPECT_EQ(Contents(user_), before);
}

TEST_F(RegistrationTest, TheUsersChoiceOfLoadingStays) {
  EXPECT_EQ(Register(Scope::User, L"C:\\old.dll"), S_OK);
  RegistryEdit edit;
  edit.SetNumber(HKEY_CURRENT_USER, L"Software\\Microsoft\\Visual Basic\\6.0\\Addins\\corvane.Connect", L"LoadBehavior",
                 0);
  edit.Keep();
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(Both(0)));
}

TEST_F(RegistrationTest, UnregisteringWhatIsNotRegisteredIsDone) {
  EXPECT_EQ(Unregister(Scope::User), S_OK);
  EXPECT_EQ(Unregister(Scope::Machine), S_OK);
}

// Nothing that lasts can be made below a key that is gone with the next start of the system.
TEST_F(RegistrationTest, ARegistryThatRefusesIsLeftAsItWas) {
  Make(L"Software\\Microsoft");
  Make(L"Software\\Microsoft\\Visual Basic", REG_OPTION_VOLATILE);
  const auto before = Contents(user_);
  EXPECT_EQ(Register(Scope::User, kLibrary), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
  EXPECT_EQ(Contents(user_), before);
}

TEST_F(RegistrationTest, WhatMayNotBeWrittenIsToldAsTheSystemTellsIt) {
  const std::wstring key = L"Software\\Microsoft\\Visual Basic\\6.0\\Addins\\corvane.Connect";
  Make(key);
  Allow(key, kNoValuesSet);
  EXPECT_EQ(Register(Scope::User, kLibrary), E_ACCESSDENIED);
  Allow(key, kEverything);
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
}

TEST_F(RegistrationTest, ARegistrationThatFailsLeavesTheOneBefore) {
  EXPECT_EQ(Register(Scope::User, kLibrary), S_OK);
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Visual Basic");
  Make(L"Software\\Microsoft\\Visual Basic", REG_OPTION_VOLATILE);
  const auto before = Contents(user_);
  EXPECT_NE(Register(Scope::User, L"C:\\other.dll"), S_OK);
  EXPECT_EQ(Contents(user_), before);
}

TEST_F(RegistrationTest, TheEntryPointsRegisterThisFile) {
  EXPECT_EQ(DllRegisterServer(), S_OK);
  const std::string path = ToAnsi(ModulePath());
  EXPECT_NE(path.find("corvane_com_tests"), std::string::npos);
  const auto lines = Contents(user_);
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [&](const std::string& line) { return line.find("\"" + path + "\"") != std::string::npos; }),
            1);
  EXPECT_EQ(DllUnregisterServer(), S_OK);
  EXPECT_EQ(Contents(user_), kCommon);
}

TEST_F(RegistrationTest, InstallingTakesAWordForTheWholeMachine) {
  EXPECT_EQ(DllInstall(TRUE, L"Machine"), S_OK);
  EXPECT_FALSE(Contents(machine_).empty());
  EXPECT_EQ(DllInstall(FALSE, L"machine"), S_OK);
  EXPECT_EQ(Contents(machine_), std::vector<std::string>{"Software\\Classes"});
  for (const wchar_t* word : {L"user", L"", static_cast<const wchar_t*>(nullptr)}) {
    EXPECT_EQ(DllInstall(TRUE, word), S_OK);
    EXPECT_GT(Contents(user_).size(), 5u);
    EXPECT_EQ(DllInstall(FALSE, word), S_OK);
  }
  EXPECT_EQ(DllInstall(TRUE, L"everywhere"), E_INVALIDARG);
}

// What another user of a machine does, whose administrator installed it and takes it away again.
TEST_F(RegistrationTest, AnotherUserOfAMachineHasALineOfTheListAlone) {
  EXPECT_EQ(Register(Scope::Machine, kLibrary), S_OK);
  EXPECT_EQ(DllInstall(FALSE, L"entry"), S_OK);
  EXPECT_EQ(CountOfAddInLines(), 0);
  EXPECT_EQ(DllInstall(TRUE, L"Entry"), S_OK);
  EXPECT_EQ(Sorted(Contents(user_)), Sorted(AddInLines()));
  EXPECT_EQ(DllInstall(FALSE, L"entry"), S_OK);
  EXPECT_EQ(CountOfAddInLines(), 0);
  EXPECT_EQ(Sorted(Contents(machine_)), Sorted(ClassLines()));
}

constexpr CLSID kOurs = {0x8C3B7E52, 0x4D1F, 0x4B7A, {0x9E, 0x65, 0x2F, 0x0C, 0x61, 0xA7, 0xD9, 0x4B}};

TEST(Exports, TheClassIsTheAddInsAlone) {
  const long before = ModuleUse::Count();
  void* object = nullptr;
  EXPECT_EQ(DllGetClassObject(kOurs, IID_IClassFactory, &object), S_OK);
  EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
  EXPECT_EQ(ModuleUse::Count(), before + 1);
  static_cast<IUnknown*>(object)->Release();
  EXPECT_EQ(DllGetClassObject(IID_IUnknown, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(DllGetClassObject(kOurs, IID_IDispatch, &object), E_NOINTERFACE);
  EXPECT_EQ(DllGetClassObject(kOurs, IID_IClassFactory, nullptr), E_POINTER);
  EXPECT_EQ(ModuleUse::Count(), before);
}

TEST(Exports, TheLibraryStaysForGoodOnceItMadeAnAddIn) {
  const long before = ModuleUse::Count();
  ComPointer<IClassFactory> factory;
  ASSERT_EQ(DllGetClassObject(kOurs, IID_IClassFactory, factory.OutVoid()), S_OK);
  ComPointer<IDispatch> add_in;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, add_in.OutVoid()), S_OK);
  add_in = {};
  factory = {};
  EXPECT_EQ(ModuleUse::Count(), before);
  EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
}

}  // namespace
}  // namespace corvane::com
