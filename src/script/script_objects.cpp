#include "script/script_objects.h"

#include "runtime/strings.h"
#include "script/expressions.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

constexpr char kSibling[] = "Sernith.clsAction";
constexpr char kSiblingStart[] = "SERNITH.";

std::string UpToLast(std::string_view text, char mark) {
  const size_t at = text.rfind(mark);
  return std::string(text.substr(0, at));
}

}  // namespace

void ScriptObjects::Clear() {
  objectNames.clear();
  table_.clear();
  dbObject_.reset();
}

// An object of the sibling library is told the folder of this one first.
void ScriptObjects::TellFolder(ScriptObject& object) {
  object.Command("INIT:" + std::string(1, listSep) + outside_.services.App.Path);
}

std::string ScriptObjects::CreateScriptObject(const std::string& arguments) {
  const size_t separator = arguments.find(listSep);
  if (separator == std::string::npos || separator == 0) {
    errors_.ReportError("Bad syntax. Use var=CreateObject(\"DllName\",\"FunctionName\")");
    return "0";
  }
  const std::string key = runtime::UCase(runtime::Trim(std::string_view(arguments).substr(separator + 1))) + "(";
  if (const long place = Find(key)) return IndexAt(place);
  const std::string class_name = arguments.substr(0, separator) + ".clsAction";
  std::shared_ptr<ScriptObject> object;
  runtime::PassOverErrors([&] { object = outside_.objects.CreateObject(class_name); });
  if (!object) {
    errors_.ReportError("Can not create object " + class_name);
    return "0";
  }
  table_.push_back(object);
  objectNames.append(1, labelMark).append(key).append(std::to_string(table_.size())).append(1, labelMark);
  if (runtime::BeginsWith(runtime::UCase(class_name), kSiblingStart)) TellFolder(*object);
  return std::to_string(table_.size());
}

long ScriptObjects::Find(std::string_view function) const {
  if (objectNames.empty()) return 0;
  const std::string key = std::string(1, labelMark).append(function);
  const long at = runtime::InStr(objectNames, key);
  return at == 0 ? 0 : at + runtime::Len(key);
}

std::string ScriptObjects::IndexAt(long place) const {
  const size_t from = static_cast<size_t>(place) - 1;
  const size_t end = objectNames.find(labelMark, from);
  return end == std::string::npos ? std::string() : objectNames.substr(from, end - from);
}

std::string ScriptObjects::ObjectCall(long place, std::string_view arguments, Expressions& expressions) {
  const std::string text = IndexAt(place);
  if (text.empty()) {
    errors_.ReportError("Function calling Error.");
    return {};
  }
  expressions.EvalExpression(UpToLast(arguments, ')'));
  const std::string command = TextOf(state_.lastValue);
  state_.lastValue = std::string();
  const auto index = static_cast<size_t>(NumberOf(text).value_or(0));
  if (index < 1 || index > table_.size()) return {};
  const std::shared_ptr<ScriptObject> object = table_[index - 1];
  const bool connects = runtime::UCase(command) == "SETCONNECTION" && dbObject_;
  runtime::PassOverErrors(
      [&] { state_.lastValue = connects ? object->SetConnection(*dbObject_) : object->Command(command); });
  return TextOf(state_.lastValue);
}

std::string ScriptObjects::DbTaskCall(const std::string& command) {
  if (!dbObject_) {
    dbObject_ = outside_.objects.CreateObject(kSibling);
    TellFolder(*dbObject_);
  }
  return TextOf(dbObject_->Command(command));
}

}  // namespace corvane::script
