// Ledger: what the add-in holds of the environment's objects and asks of them, and which of its calls fail on purpose.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

namespace corvane::stage {

// How a call fails: an Error of the environment by number and text, or a bare code.
struct Failure {
  HRESULT code;
  std::string text;  // of an Error

  static Failure Error(long number, const std::string& text);
  static Failure Code(HRESULT code) { return {code, {}}; }
  bool IsError() const { return (code & 0xFFFF0000) == 0x800A0000; }
};

// Calls are named "VBProject.VBComponents"; those of COM itself "CommandBarEvents.Advise". A search of a member's
// number by its name ("VBProject.GetIDsOfNames") is a call as well.
class Ledger {
 public:
  // What is out now.
  long objects = 0;     // published and not yet let go
  long references = 0;  // to them, all together
  long sinks = 0;       // bound to an event
  std::map<std::string, long> objects_by_name;
  // "CodeModule 1, VBE 2": those of which there are any.
  std::string Left() const;
  // What went wrong since the start.
  long dropped_sinks = 0;           // never unbound: they went with the object that raised their event
  long sink_failures = 0;           // codes that came back from a handler of an event
  long alien_calls = 0;             // calls from another thread
  std::vector<std::string> faults;  // calls that the stage could not understand

  long Calls(const std::string& name) const;
  long Calls() const { return total_; }
  const std::map<std::string, long>& ByName() const { return calls_; }
  // Names in the order of the calls, while it is asked for.
  bool keeps_order = false;
  std::vector<std::string> order;
  void ClearCalls();

  // The [nth] call from now on, from 1.
  void FailCall(long nth, Failure failure);
  void FailEvery(const std::string& name, Failure failure) { failing_[name] = std::move(failure); }
  void Lack(const std::string& name) { lacking_.insert(name); }
  void AnswerNothing(const std::string& name) { nothing_.insert(name); }
  void Heal();
  // How often one was asked for that is lacking, answered with Nothing or failing for good.
  long spoilt = 0;
  // The call that FailCall made fail; empty text while it has not come.
  const std::string& Failed() const { return failed_; }

  // For the published objects. Counts a call and tells how it shall fail.
  std::optional<Failure> Enter(const std::string& name);
  bool Lacks(const std::string& name) { return Spoils(lacking_.count(name) != 0); }
  bool AnswersNothing(const std::string& name) { return Spoils(nothing_.count(name) != 0); }

 private:
  bool Spoils(bool is_so) {
    spoilt += is_so;
    return is_so;
  }
  DWORD thread_ = GetCurrentThreadId();
  std::map<std::string, long> calls_;
  long total_ = 0;
  long until_failure_ = 0;
  Failure planned_{};
  std::string failed_;
  std::map<std::string, Failure> failing_;
  std::set<std::string> lacking_, nothing_;
};

}  // namespace corvane::stage
