#include "environment/text_search.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "environment/prefetch.h"
#include "runtime/code_page.h"

namespace corvane::environment {

namespace {

// Letters of source code from the most to the least frequent: the search looks for the rarest of its text first.
constexpr std::string_view kFrequent = " etairnslodcumpfgbhvwyxkTSCDFIPAENLRMBOVGWUH=.,()\"_'jqzXKYQJZ";

int FrequencyOf(unsigned char byte) {
  size_t place = kFrequent.find(static_cast<char>(byte));
  return place == std::string_view::npos ? 0 : static_cast<int>(kFrequent.size() - place);
}

constexpr size_t kBlock = 64;

// Whether any of the next kBlock places may begin a hit. Written so that the compiler makes vector code of it.
inline bool AnyCandidate(const unsigned char* a, unsigned char a1, unsigned char a2, const unsigned char* b,
                         unsigned char b1, unsigned char b2) {
  unsigned char any = 0;
  for (size_t i = 0; i < kBlock; ++i)
    any |= static_cast<unsigned char>(((a[i] == a1) | (a[i] == a2)) & ((b[i] == b1) | (b[i] == b2)));
  return any != 0;
}

}  // namespace

TextSearch::TextSearch(std::string_view text, bool match_case)
    : asked_(text), code_page_(runtime::AnsiCodePage().Number()), match_case_(match_case) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  double_byte_ = page.IsDoubleByte();
  text_ = match_case ? std::string(text) : page.ToUpper(text);
  for (size_t i = 0; i < fold_.size(); ++i) fold_[i] = match_case ? static_cast<unsigned char>(i) : page.Upper(i);
  ChooseProbes();
}

bool TextSearch::IsFor(std::string_view text, bool match_case) const {
  return match_case == match_case_ && text == asked_ && code_page_ == runtime::AnsiCodePage().Number();
}

TextSearch::Probe TextSearch::ProbeAt(size_t at) const {
  Probe probe{at, static_cast<unsigned char>(text_[at]), static_cast<unsigned char>(text_[at])};
  for (int byte = 0; byte < 256; ++byte)
    if (fold_[static_cast<size_t>(byte)] == probe.one && byte != probe.one)
      probe.other = static_cast<unsigned char>(byte);
  return probe;
}

// The two rarest places of the text. A byte with more than two forms (Greek sigma) is no probe.
void TextSearch::ChooseProbes() {
  std::array<int, 256> forms{};
  for (unsigned char upper : fold_) ++forms[upper];
  auto rarity = [&](size_t at) {
    Probe probe = ProbeAt(at);
    return FrequencyOf(probe.one) + (probe.other != probe.one ? FrequencyOf(probe.other) : 0);
  };
  int best = 1 << 20, next = 1 << 20;
  size_t best_at = 0, next_at = 0;
  for (size_t at = 0; at < std::min<size_t>(text_.size(), 64); ++at) {
    if (forms[static_cast<unsigned char>(text_[at])] > 2) continue;
    int value = rarity(at);
    if (value < best)
      next = best, next_at = best_at, best = value, best_at = at;
    else if (value < next)
      next = value, next_at = at;
  }
  has_probes_ = best < 1 << 20;
  if (!has_probes_) return;
  rare_ = ProbeAt(best_at);
  second_ = ProbeAt(next < 1 << 20 ? next_at : best_at);
}

bool TextSearch::FitsAt(const char* place) const {
  if (match_case_) return std::memcmp(place, text_.data(), text_.size()) == 0;
  if (double_byte_) return runtime::AnsiCodePage().ToUpper({place, text_.size()}) == text_;
  for (size_t i = 0; i < text_.size(); ++i)
    if (fold_[static_cast<unsigned char>(place[i])] != static_cast<unsigned char>(text_[i])) return false;
  return true;
}

const char* TextSearch::Find(const char* begin, const char* end) const {
  if (static_cast<size_t>(end - begin) < text_.size()) return nullptr;
  const char* last = end - text_.size();  // the last place of a hit
  const char* at = begin;
  while (has_probes_ && last - at >= static_cast<long>(kBlock)) {
    auto* bytes = reinterpret_cast<const unsigned char*>(at);
    PrefetchLine(at, kReadAhead);
    if (AnyCandidate(bytes + rare_.at, rare_.one, rare_.other, bytes + second_.at, second_.one, second_.other))
      for (size_t i = 0; i < kBlock; ++i) {
        unsigned char byte = bytes[i + rare_.at];
        if ((byte == rare_.one || byte == rare_.other) && FitsAt(at + i)) return at + i;
      }
    at += kBlock;
  }
  for (; at <= last; ++at)
    if (FitsAt(at)) return at;
  return nullptr;
}

void CharacterWalk::WalkTo(std::string_view line, size_t at) {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  if (line.data() != line_ || at < at_) line_ = line.data(), at_ = previous_ = 0;
  while (at_ < at) {
    previous_ = at_;
    at_ += page.IsLead(static_cast<unsigned char>(line[at_])) ? 2 : 1;
  }
}

bool CharacterWalk::IsAt(std::string_view line, size_t at) {
  if (!runtime::AnsiCodePage().IsDoubleByte()) return true;
  WalkTo(line, at);
  return at_ == at;
}

bool CharacterWalk::IsWordBefore(std::string_view line, size_t at) {
  if (at == 0) return false;
  const runtime::CodePage& page = runtime::AnsiCodePage();
  size_t before = at - 1;
  if (page.IsDoubleByte()) {
    WalkTo(line, at);
    before = previous_;
  }
  return page.IsWordByte(static_cast<unsigned char>(line[before]));
}

}  // namespace corvane::environment
