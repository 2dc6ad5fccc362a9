#include <algorithm>
#include <cerrno>
#include <iconv.h>

#include "runtime/code_page_tables.h"

namespace corvane::runtime {

namespace {

std::string IconvName(int number) {
  return number == 936 ? "GBK" : "CP" + std::to_string(number);
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

}  // namespace

CharacterTable::CharacterTable(int page) : handle_(new Iconv("UTF-32LE", IconvName(page))) {}

CharacterTable::~CharacterTable() {
  delete static_cast<Iconv*>(handle_);
}

char32_t CharacterTable::Of(unsigned char byte) const {
  auto& iconv = *static_cast<Iconv*>(handle_);
  std::string out;
  const char input = static_cast<char>(byte);
  const auto skip = [](std::string_view) { return size_t{1}; };
  if (!iconv.Good() || !iconv.Convert({&input, 1}, "", skip, out) || out.size() < 4) return 0xFFFD;
  return static_cast<unsigned char>(out[0]) | static_cast<unsigned char>(out[1]) << 8 |
         static_cast<char32_t>(static_cast<unsigned char>(out[2])) << 16;
}

std::string Utf8OfPage(int page, std::string_view bytes) {
  std::string result;
  Iconv iconv("UTF-8", IconvName(page));
  if (!iconv.Good()) return std::string(bytes.size(), '?');
  iconv.Convert(bytes, "\xEF\xBF\xBD", [](std::string_view) { return size_t{1}; }, result);
  return result;
}

bool PageOfUtf8(int page, std::string_view utf8, std::string& bytes) {
  Iconv iconv(IconvName(page), "UTF-8");
  if (!iconv.Good()) return false;
  auto step = [](std::string_view rest) {
    size_t length = 1;
    while (length < rest.size() && (static_cast<unsigned char>(rest[length]) & 0xC0) == 0x80) ++length;
    return length;
  };
  return iconv.Convert(utf8, "?", step, bytes);
}

}  // namespace corvane::runtime
