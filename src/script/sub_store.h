// SubStore: the SUBs that a run has come over, and the calls of them that are under way.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "script/flat_program.h"

namespace corvane::script {

// Ends a SUB in the flat program.
inline constexpr std::string_view kEndSub = "0000008END SUB:";

class SubStore {
 public:
  void Clear();

  // [header] is NAME(parameters) in upper case; what is appended then is its body, up to kEndSub.
  void Define(std::string_view header);
  void Append(std::string_view flat) { subsCode_ += flat; }

  // Where the header of the first SUB of that name begins, from 1; 0 if there is none. [name] is in upper case and
  // ends in "(".
  long OffsetOf(std::string_view name) const;
  // The header at [offset], without its line end; nothing where no line end stands behind it.
  std::optional<std::string_view> HeaderAt(long offset) const;
  // The flat statements of the SUB at [offset], kEndSub included; nothing where no kEndSub stands behind it.
  std::shared_ptr<FlatProgram> BodyAt(long offset);

  // subsCode: for each SUB its header, a line end, its statements.
  const std::string& Code() const { return subsCode_; }
  // subsIndex: for each SUB listSep, its name with "(", its offset, ")".
  const std::string& Index() const { return subsIndex_; }

  size_t Size() const { return subsCode_.capacity() + subsIndex_.capacity(); }

  // callChain: the offsets of the SUBs that are running, the innermost last.
  std::vector<long> callChain;
  // What the store held when the call of each depth began: savedStoreLen and savedVarCount.
  struct Saved {
    size_t storeLen = 0;
    long varCount = 0;
  };
  std::vector<Saved> saved;  // by depth, from 1

 private:
  std::string subsCode_, subsIndex_;
  std::unordered_map<std::string, long> offsets_;  // as long as no name holds a listSep
  bool plain_names_ = true;
  std::unordered_map<long, std::shared_ptr<FlatProgram>> bodies_;
};

}  // namespace corvane::script
