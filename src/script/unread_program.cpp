#include "script/unread_program.h"

#include <algorithm>

namespace corvane::script {

UnreadProgram::UnreadProgram(std::shared_ptr<FlatProgram> program) {
  Push(std::move(program));
}

std::string UnreadProgram::Text() const {
  std::string text;
  ReadFront(text, std::string::npos);
  return text;
}

void UnreadProgram::ReadFront(std::string& front, size_t count) const {
  front.clear();
  for (auto segment = segments_.rbegin(); segment != segments_.rend() && front.size() < count; ++segment)
    front.append(segment->program->Text(), segment->at, count - front.size());
}

bool UnreadProgram::Holds(size_t count) const {
  size_t held = 0;
  for (auto segment = segments_.rbegin(); segment != segments_.rend() && held < count; ++segment)
    held += segment->program->Text().size() - segment->at;
  return held >= count;
}

size_t UnreadProgram::Size() const {
  size_t size = 0;
  for (const Segment& segment : segments_) size += segment.program->Text().size() - segment.at;
  return size;
}

void UnreadProgram::DropEmpty() {
  while (!segments_.empty() && segments_.back().at >= segments_.back().program->Text().size()) segments_.pop_back();
}

void UnreadProgram::CutSeparators() {
  for (DropEmpty(); !segments_.empty(); DropEmpty()) {
    Segment& front = segments_.back();
    front.at = front.program->SkipSeparators(front.at);
    if (front.at < front.program->Text().size()) return;
  }
}

ProgramItem& UnreadProgram::FirstItem() {
  DropEmpty();
  Segment& front = segments_.back();
  ProgramItem& item = front.program->ItemAt(front.at);
  if (!item.cut || segments_.size() == 1) return item;
  MakeOne();
  return segments_.back().program->ItemAt(segments_.back().at);
}

ProgramItem& UnreadProgram::TakeItem(std::shared_ptr<FlatProgram>& holder) {
  ProgramItem& item = FirstItem();
  holder = segments_.back().program;
  segments_.back().at += item.size;
  return item;
}

void UnreadProgram::MakeOne() {
  auto whole = std::make_shared<FlatProgram>(Text());
  segments_.assign(1, {std::move(whole), 0});
}

void UnreadProgram::Push(std::shared_ptr<FlatProgram> program) {
  DropEmpty();
  segments_.push_back({std::move(program), 0});
}

// Whether [sought] begins before the end of the segment and ends behind it.
bool UnreadProgram::CrossesEnd(size_t segment, const std::string& sought) const {
  if (segment == 0 || sought.size() < 2) return false;
  const Segment& front = segments_[segment];
  const std::string& text = front.program->Text();
  const size_t around = sought.size() - 1;
  std::string window = text.substr(std::max(front.at, text.size() - std::min(around, text.size())));
  const size_t behind = window.size() + around;
  for (size_t next = segment; next-- > 0 && window.size() < behind;)
    window.append(segments_[next].program->Text(), segments_[next].at, behind - window.size());
  return window.find(sought) != std::string::npos;
}

// Looks no further than the program that [limit] characters reach into.
UnreadProgram::Place UnreadProgram::PlaceOf(const std::string& sought, size_t limit) const {
  size_t before = 0;
  for (size_t segment = segments_.size(); segment-- > 0 && before < limit;) {
    const Segment& here = segments_[segment];
    before += here.program->Text().size() - here.at;
    const size_t at = here.program->Find(sought, here.at);
    if (at != FlatProgram::kNowhere) return {segment + 1, at};
    if (CrossesEnd(segment, sought)) {
      const_cast<UnreadProgram*>(this)->MakeOne();
      return {1, segments_.front().program->Find(sought, 0)};
    }
  }
  return {0, 0};
}

void UnreadProgram::CutTo(const Place& place, size_t more) {
  segments_.resize(place.segment);
  segments_.back().at = place.at + more;
}

bool UnreadProgram::CutTo(const std::string& sought) {
  const Place place = PlaceOf(sought);
  if (place.segment == 0) return false;
  CutTo(place, 0);
  return true;
}

bool UnreadProgram::CutBehind(const std::string& sought) {
  const Place place = PlaceOf(sought);
  if (place.segment == 0) return false;
  CutTo(place, sought.size());
  return true;
}

size_t UnreadProgram::Find(const std::string& sought, size_t limit) const {
  const Place place = PlaceOf(sought, limit);
  if (place.segment == 0) return FlatProgram::kNowhere;
  size_t before = place.at - segments_[place.segment - 1].at;
  for (size_t segment = place.segment; segment < segments_.size(); ++segment)
    before += segments_[segment].program->Text().size() - segments_[segment].at;
  return before < limit ? before : FlatProgram::kNowhere;
}

}  // namespace corvane::script
