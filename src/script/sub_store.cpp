#include "script/sub_store.h"

#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

void SubStore::Clear() {
  *this = SubStore();
}

void SubStore::Define(std::string_view header) {
  const std::string_view name = header.substr(0, header.find('(') + 1);
  const long offset = runtime::Len(subsCode_) + 1;
  if (runtime::Holds(name, std::string_view(&listSep, 1))) plain_names_ = false;
  offsets_.try_emplace(std::string(name), offset);
  subsIndex_.append(1, listSep).append(name).append(std::to_string(offset)).append(")");
  subsCode_.append(header).append(runtime::kCrLf);
}

// The first definition of a name stays. A name with a listSep in it can be found by its end alone.
long SubStore::OffsetOf(std::string_view name) const {
  if (plain_names_) {
    const auto found = offsets_.find(std::string(name));
    return found == offsets_.end() ? 0 : found->second;
  }
  const std::string key = std::string(1, listSep).append(name);
  const long place = runtime::InStr(subsIndex_, key);
  return place == 0 ? 0 : static_cast<long>(runtime::Val(runtime::Mid(subsIndex_, place + runtime::Len(key))));
}

std::optional<std::string_view> SubStore::HeaderAt(long offset) const {
  const std::string_view code = std::string_view(subsCode_).substr(static_cast<size_t>(offset - 1));
  const size_t end = code.find(runtime::kCrLf);
  if (end == std::string_view::npos) return std::nullopt;
  return code.substr(0, end);
}

// What was found stays as it is, since definitions are only added behind.
std::shared_ptr<FlatProgram> SubStore::BodyAt(long offset) {
  std::shared_ptr<FlatProgram>& body = bodies_[offset];
  if (body != nullptr) return body;
  const auto header = HeaderAt(offset);
  if (!header) return nullptr;
  const size_t begin = static_cast<size_t>(offset - 1) + header->size() + 2;
  const size_t end = subsCode_.find(kEndSub, begin);
  if (end == std::string::npos) return nullptr;
  return body = std::make_shared<FlatProgram>(subsCode_.substr(begin, end - begin + kEndSub.size()));
}

}  // namespace corvane::script
