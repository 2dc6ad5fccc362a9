// CodeModule and CodePane of the environment.
#include "com/collection.h"

namespace corvane::com {

namespace {

using host::ProcKind;

class WrappedCodeModule : public host::CodeModule, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Name() override { return object_.Get(L"Name").ToText(); }
  long CountOfLines() override { return object_.Get(L"CountOfLines").ToLong(); }
  long CountOfDeclarationLines() override { return object_.Get(L"CountOfDeclarationLines").ToLong(); }
  std::string Lines(long start, long count) override { return object_.Get(L"Lines", start, count).ToText(); }

  void InsertLines(long line, const std::string& text) override { object_.Call(L"InsertLines", line, text); }
  void DeleteLines(long start, long count) override { object_.Call(L"DeleteLines", start, count); }
  void ReplaceLine(long line, const std::string& text) override { object_.Call(L"ReplaceLine", line, text); }

  std::string ProcOfLine(long line, ProcKind& kind) override {
    long written = static_cast<long>(kind);
    std::string name = object_.Get(L"ProcOfLine", line, &written).ToText();
    kind = static_cast<ProcKind>(written);
    return name;
  }
  long ProcStartLine(const std::string& name, ProcKind kind) override {
    return OfProcedure(L"ProcStartLine", name, kind);
  }
  long ProcBodyLine(const std::string& name, ProcKind kind) override {
    return OfProcedure(L"ProcBodyLine", name, kind);
  }
  long ProcCountLines(const std::string& name, ProcKind kind) override {
    return OfProcedure(L"ProcCountLines", name, kind);
  }

  bool Find(const std::string& target, long& start_line, long& start_column, long& end_line, long& end_column,
            bool whole_word, bool match_case, bool pattern_search) override {
    return object_
        .Get(L"Find", target, &start_line, &start_column, &end_line, &end_column, whole_word, match_case,
             pattern_search)
        .ToBool();
  }

  host::Ref<host::CodePane> CodePane() override { return WrapExisting<host::CodePane>(object_.Get(L"CodePane")); }

 private:
  long OfProcedure(const wchar_t* member, const std::string& name, ProcKind kind) {
    return object_.Get(member, name, static_cast<long>(kind)).ToLong();
  }
};

class WrappedCodePane : public host::CodePane, public Wrapped {
 public:
  using Wrapped::Wrapped;
  host::Ref<host::CodeModule> CodeModule() override {
    return WrapExisting<host::CodeModule>(object_.Get(L"CodeModule"));
  }
  host::Ref<host::Window> Window() override { return WrapExisting<host::Window>(object_.Get(L"Window")); }
  host::Selection GetSelection() override {
    host::Selection place;
    object_.Call(L"GetSelection", &place.start_line, &place.start_column, &place.end_line, &place.end_column);
    return place;
  }
  void SetSelection(const host::Selection& place) override {
    object_.Call(L"SetSelection", place.start_line, place.start_column, place.end_line, place.end_column);
  }
  void Show() override { object_.Call(L"Show"); }
};

}  // namespace

template <>
host::Ref<host::CodeModule> Wrap(const Value& value) {
  return MakeWrapped<WrappedCodeModule>(value);
}

template <>
host::Ref<host::CodePane> Wrap(const Value& value) {
  return MakeWrapped<WrappedCodePane>(value);
}

template <>
host::Ref<host::CodePanes> Wrap(const Value& value) {
  return MakeWrapped<WrappedCollection<host::CodePanes, host::CodePane>>(value);
}

}  // namespace corvane::com
