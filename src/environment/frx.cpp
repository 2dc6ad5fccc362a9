#include "environment/frx.h"

#include <algorithm>
#include <cstdint>

#include "runtime/error.h"

namespace corvane::environment::frx {

namespace {

constexpr std::string_view kPictureMark{"lt\0\0", 4};
// Class of a standard picture, as it stands before the pictures of ActiveX controls.
constexpr std::string_view kPictureClass{"\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51", 16};
constexpr size_t kMostItems = 0xFFFF, kLongestShort = 0xFFFF;
// The least that the second word of a list says, however short its items are.
constexpr size_t kLeastLongest = 3;
// A text's first byte is its length, or this and a word with the length.
constexpr unsigned char kLengthFollows = 0xFF;

// Reads forward from an offset; fails for good at the first byte that is not there.
class Cursor {
 public:
  Cursor(std::string_view file, size_t offset) : ok_(offset < file.size()) {
    if (ok_) rest_ = file.substr(offset);
  }
  bool Ok() const { return ok_; }
  size_t Left() const { return rest_.size(); }

  std::string_view Bytes(size_t count) {
    if (count > rest_.size()) ok_ = false;
    if (!ok_) return {};
    const std::string_view bytes = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return bytes;
  }
  uint32_t Number(size_t size) {
    uint32_t number = 0;
    const std::string_view bytes = Bytes(size);
    for (size_t i = bytes.size(); i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
  }
  bool Take(std::string_view expected) {
    if (Bytes(expected.size()) != expected) ok_ = false;
    return ok_;
  }

 private:
  std::string_view rest_;
  bool ok_;
};

std::string Number(size_t number, size_t size) {
  std::string bytes;
  for (size_t i = 0; i < size; ++i, number >>= 8) bytes += static_cast<char>(number & 0xFF);
  return bytes;
}

[[noreturn]] void TooLong() {
  throw runtime::Error(runtime::kInvalidPropertyValue);
}

}  // namespace

std::optional<std::string> ReadPicture(std::string_view file, size_t offset) {
  Cursor cursor(file, offset);
  const uint32_t total = cursor.Number(4);
  size_t around = 8;
  if (Cursor probe = cursor; probe.Take(kPictureClass)) {
    cursor = probe;
    around += kPictureClass.size();
  }
  cursor.Take(kPictureMark);
  const uint32_t size = cursor.Number(4);
  const std::string_view image = cursor.Bytes(size);
  if (!cursor.Ok() || total != static_cast<uint64_t>(size) + around) return std::nullopt;
  return std::string(image);
}

std::optional<std::vector<std::string>> ReadList(std::string_view file, size_t offset) {
  Cursor cursor(file, offset);
  const size_t count = cursor.Number(2);
  if (count > 0) cursor.Number(2);  // length of the longest item
  std::vector<std::string> items;
  for (size_t i = 0; i < count && cursor.Ok(); ++i) {
    const size_t length = cursor.Number(2);
    items.emplace_back(cursor.Bytes(length));
  }
  if (!cursor.Ok()) return std::nullopt;
  return items;
}

std::optional<std::string> ReadText(std::string_view file, size_t offset) {
  Cursor cursor(file, offset);
  size_t length = cursor.Number(1);
  if (length == kLengthFollows) {
    length = cursor.Number(2);
    // Seen at the end of files: the text is one byte shorter than it says.
    if (length > 0 && length == cursor.Left() + 1) --length;
  }
  const std::string_view text = cursor.Bytes(length);
  if (!cursor.Ok()) return std::nullopt;
  return std::string(text);
}

std::optional<std::string> ReadLongText(std::string_view file, size_t offset) {
  Cursor cursor(file, offset);
  const size_t length = cursor.Number(4);
  const std::string_view text = cursor.Bytes(length);
  if (!cursor.Ok()) return std::nullopt;
  return std::string(text);
}

std::string PictureRecord(std::string_view image) {
  if (image.size() > 0x7FFFFFFF) TooLong();
  return Number(image.size() + 8, 4) + std::string(kPictureMark) + Number(image.size(), 4) + std::string(image);
}

std::string ListRecord(const std::vector<std::string>& items) {
  if (items.size() > kMostItems) TooLong();
  std::string record = Number(items.size(), 2);
  if (items.empty()) return record;
  size_t longest = kLeastLongest;
  for (const std::string& item : items) longest = std::max(longest, item.size());
  if (longest > kLongestShort) TooLong();
  record += Number(longest, 2);
  for (const std::string& item : items) record += Number(item.size(), 2) + item;
  return record;
}

std::string TextRecord(std::string_view text) {
  if (text.size() > kLongestShort) TooLong();
  if (text.size() < kLengthFollows) return Number(text.size(), 1) + std::string(text);
  return Number(kLengthFollows, 1) + Number(text.size(), 2) + std::string(text);
}

std::string LongTextRecord(std::string_view text) {
  if (text.size() > 0x7FFFFFFF) TooLong();
  return Number(text.size(), 4) + std::string(text);
}

}  // namespace corvane::environment::frx
