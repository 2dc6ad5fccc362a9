#include <algorithm>
#include <cerrno>
#include <iconv.h>

#include "runtime/code_page_tables.h"

namespace corvane::runtime {

namespace {

std::string IconvName(int page) {
  return page == 936 ? "GBK" : "CP" + std::to_string(page);
}

class Iconv {
 public:
  Iconv(const std::string& to, const std::string& from) : handle_(iconv_open(to.c_str(), from.c_str())) {}
  ~Iconv() {
    if (Good()) iconv_close(handle_);
  }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;
  bool Good() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  // Converts all of [input]; where it cannot, appends [substitute] and steps on by what [step] says.
  // Returns whether nothing was substituted.
  template <class Step>
  bool Convert(std::string_view input, std::string_view substitute, Step step, std::string& output) {
    bool clean = true;
    char* in = const_cast<char*>(input.data());
    size_t left = input.size();
    char buffer[4096];
    while (left > 0) {
      char* out = buffer;
      size_t room = sizeof buffer;
      size_t result = iconv(handle_, &in, &left, &out, &room);
      int error = errno;
      output.append(buffer, sizeof buffer - room);
      if (result != static_cast<size_t>(-1) || error == E2BIG) continue;
      Finish(output);
      output.append(substitute);
      clean = false;
      size_t skipped = std::min(left, step(std::string_view(in, left)));
      in += skipped;
      left -= skipped;
    }
    Finish(output);
    return clean;
  }

 private:
  // Pages with combining characters hold the last one back, to see whether an accent follows.
  void Finish(std::string& output) {
    char buffer[16];
    char* out = buffer;
    size_t room = sizeof buffer;
    iconv(handle_, nullptr, nullptr, &out, &room);
    output.append(buffer, sizeof buffer - room);
  }

  iconv_t handle_;
};

size_t OneByte(std::string_view) {
  return 1;
}

size_t OneUtf8Character(std::string_view rest) {
  size_t length = 1;
  while (length < rest.size() && (static_cast<unsigned char>(rest[length]) & 0xC0) == 0x80) ++length;
  return length;
}

char32_t CharacterOf(Iconv& iconv, unsigned char byte) {
  const char input = static_cast<char>(byte);
  std::string out;
  if (!iconv.Good() || !iconv.Convert({&input, 1}, "", OneByte, out) || out.size() < 4) return kNoCharacter;
  const char32_t character = static_cast<unsigned char>(out[0]) | static_cast<unsigned char>(out[1]) << 8 |
                             static_cast<char32_t>(static_cast<unsigned char>(out[2])) << 16;
  return character < 0xA0 ? kNoCharacter : character;  // a control character stands for none
}

}  // namespace

std::array<char32_t, 256> SingleByteCharacters(int page) {
  std::array<char32_t, 256> characters;
  Iconv iconv("UTF-32LE", IconvName(page));
  for (size_t byte = 0; byte < characters.size(); ++byte)
    characters[byte] = byte < 0x80 ? static_cast<char32_t>(byte) : CharacterOf(iconv, static_cast<unsigned char>(byte));
  return characters;
}

bool AppendAsUtf8(int page, std::string_view bytes, std::string& utf8) {
  Iconv iconv("UTF-8", IconvName(page));
  if (iconv.Good()) return iconv.Convert(bytes, "\xEF\xBF\xBD", OneByte, utf8);
  utf8.append(bytes.size(), '?');
  return false;
}

bool AppendFromUtf8(int page, std::string_view utf8, std::string& bytes) {
  Iconv iconv(IconvName(page), "UTF-8");
  return iconv.Good() && iconv.Convert(utf8, "?", OneUtf8Character, bytes);
}

}  // namespace corvane::runtime
