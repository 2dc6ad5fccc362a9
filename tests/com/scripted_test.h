// ScriptedTest: one scripted object, and the calls that it hears.
#pragma once

#include <gtest/gtest.h>

#include "com/objects.h"
#include "tests/com/scripted_object.h"

namespace corvane::com {

class ScriptedTest : public testing::Test {
 protected:
  ScriptedTest() { object_ = New("object"); }
  ~ScriptedTest() override {
    object_ = {};
    EXPECT_EQ(ScriptedObject::Alive(), alive_before_) << "a reference was kept";
  }

  ComPointer<ScriptedObject> New(const std::string& name) { return ScriptedObject::New(name, log_); }
  static Value Of(const ComPointer<ScriptedObject>& object) { return Value(static_cast<IDispatch*>(object.Get())); }
  // The object as the contract's [T].
  template <class T>
  host::Ref<T> As() {
    return Wrap<T>(Of(object_));
  }
  std::string TakeCalls() {
    std::string all;
    for (const std::string& call : *log_) all += (all.empty() ? "" : "; ") + call;
    log_->clear();
    return all;
  }
  template <class Action>
  static long ErrorOf(Action&& action) {
    try {
      action();
    } catch (const host::Error& error) {
      return error.Number();
    }
    return 0;
  }

  const long alive_before_ = ScriptedObject::Alive();
  std::shared_ptr<Log> log_ = std::make_shared<Log>();
  ComPointer<ScriptedObject> object_;
};

}  // namespace corvane::com
