// UnreadProgram: what is left of a running program. It reads as one text; underneath it is a pile of programs, each
// read from some place on, so that going on, jumping and putting a body in front copy nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "script/flat_program.h"

namespace corvane::script {

class UnreadProgram {
 public:
  UnreadProgram() = default;
  explicit UnreadProgram(std::shared_ptr<FlatProgram> program);

  std::string Text() const;
  // The first [count] characters.
  void ReadFront(std::string& front, size_t count) const;
  // Whether at least [count] characters are left.
  bool Holds(size_t count) const;
  size_t Size() const;

  void CutSeparators();
  // Cuts off the item at the front, where no separator stands and at least one character is left. [holder] keeps it.
  ProgramItem& TakeItem(std::shared_ptr<FlatProgram>& holder);

  void Push(std::shared_ptr<FlatProgram> program);
  // Cuts up to the first place of [sought], or behind it. False, and nothing cut, where it does not stand.
  bool CutTo(const std::string& sought);
  bool CutBehind(const std::string& sought);
  // How many characters stand in front of [sought], or FlatProgram::kNowhere, also where these are [limit] or more.
  size_t Find(const std::string& sought, size_t limit = FlatProgram::kNowhere) const;

 private:
  struct Segment {
    std::shared_ptr<FlatProgram> program;
    size_t at = 0;
  };
  struct Place {
    size_t segment, at;  // segment from 1; 0: none
  };
  Place PlaceOf(const std::string& sought, size_t limit = FlatProgram::kNowhere) const;
  bool CrossesEnd(size_t segment, const std::string& sought) const;
  ProgramItem& FirstItem();
  void DropEmpty();
  void MakeOne();
  void CutTo(const Place& place, size_t more);

  // The front is the last. They are mutable as a search flattens them where the sought stands across an end.
  mutable std::vector<Segment> segments_;
};

}  // namespace corvane::script
