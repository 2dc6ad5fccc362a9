// The execution loop and its plain form on generated scripts: the same result, the same boxes, the same store.
#include <random>

#include "tests/script/lib_test.h"
#include "tests/script/plain_run.h"
#include "tests/script/run_outcome.h"

namespace corvane::script {
namespace {

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  std::string Script() {
    std::string script = "CODE{\n<%\ndim aa,bb,ii\naa=1\nbb=2\n";
    if (Chance(2)) script += "dim ar()\n";
    script += Sub("s1") + (Chance(2) ? Sub("s2") : "") + Function() + Statements(Pick(0, 4), 2);
    script += "%>\n";
    for (int blocks = Pick(1, 4); blocks > 0; --blocks) {
      if (Chance(3)) script += "text <%=" + Value() + "%>\n";
      if (Chance(3)) script += OverTemplateText();
      script += Chance(4) ? "<%" + OneLine() + "%>\n" : "<%\n" + Statements(Pick(1, 5), 2) + "%>\n";
    }
    return script + "}\n";
  }

 private:
  // Its end restarts the block.
  std::string OverTemplateText() {
    static const char* const kHeads[] = {"for ii=1 to 3\n", "while aa<3\naa++\n", "lab3:\nbb++\n",
                                         "if aa<3 then goto lab4\n", "lab5:\naa++\n"};
    static const char* const kEnds[] = {"next\n", "wend\n", "if bb<6 then goto lab3\n", "lab4:\n",
                                        "if aa<8 then goto lab5\n"};
    const int kind = Pick(0, 4);
    const std::string end = kEnds[kind];
    const std::string head = (Chance(4) ? "before <%=bb%> <%\n" : "<%\n") + std::string(kHeads[kind]);
    return head + (Chance(3) ? Statements(1, 1) : "") + "%> behind\nin <%=" + Value() + "%>\n" +
           (Chance(4) ? "<%" + OneLine() + "%>\n" : "") + "<%\n" + end + "%>" + (Chance(4) ? "=<%=aa%>\n" : "\n");
  }

  int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  bool Chance(int of) { return Pick(1, of) == 1; }
  template <size_t n>
  std::string One(const char* const (&words)[n]) {
    return words[Pick(0, static_cast<int>(n) - 1)];
  }
  std::string Value() {
    static const char* const kValues[] = {"aa",     "bb",    "ii", "1",      "2",       "\"x\"", "aa+1",
                                          "(bb*2)", "aa&bb", "nn", "f1(aa)", "len(aa)", "ar(1)", "nix"};
    return Chance(12) ? One(kValues) : kValues[Pick(0, 8)];
  }
  std::string Condition() {
    static const char* const kTests[] = {"=", "<", ">", "<>", "<=", "=>"};
    return Value() + One(kTests) + Value();
  }
  std::string Simple() {
    static const char* const kSimple[] = {"aa++",   "bb--",      "=aa",         "=bb",         "aa+=2",    "ar(2)=bb",
                                          "dim cc", "print(aa)", "goto lab1",   "goto lab2",   "exit for", "exit sub",
                                          "lab1:",  "lab2:",     "call s1(aa)", "call s2(bb)", "continue", "foo bar",
                                          "next",   "end if",    "step",        "call s1()",   "end code", "erase(ar)"};
    return Pick(1, 10) <= 6 ? "=" + Value() : One(kSimple);
  }
  std::string OneLine() { return Chance(2) ? "if " + Condition() + " then " + Simple() : Simple() + ":" + Simple(); }
  std::string Statements(int count, int depth) {
    std::string code;
    while (count-- > 0) code += depth > 0 && Chance(2) ? Block(depth - 1) : OneLine() + "\n";
    return code;
  }
  std::string Block(int depth) {
    const std::string body = Statements(Pick(1, 3), depth);
    switch (Pick(1, 5)) {
      case 1:
        return "for ii=1 to 3\n" + body + "next\n";
      case 2:
        return "while aa<4\naa++\n" + body + "wend\n";
      case 3:
        return "if " + Condition() + " then\n" + body + (Chance(2) ? "else\n" + OneLine() + "\n" : "") + "end if\n";
      case 4:
        return "if(" + Condition() + ")then\n" + body + "elseif " + Condition() + " then\n" + OneLine() + "\nend if\n";
      default:
        return "select case " + Value() + "\ncase 1," + Value() + "\n" + body + "case else\n=\"e\"\nend select\n";
    }
  }
  std::string Sub(const std::string& name) {
    return "sub " + name + "(nn)\n" + (Chance(2) ? "dim aa\n" : "") + "bb++\nif bb>6 then exit sub\n" +
           Statements(Pick(1, 3), 1) + "end sub\n";
  }
  std::string Function() { return "function f1(nn)\nf1=nn&\"f\"\nend function\n"; }

  std::mt19937 random_;
};

TEST(RunDifferential, GeneratedScriptsRunAsInThePlainForm) {
  constexpr unsigned kScripts = 900;
  size_t with_boxes = 0, with_output = 0;
  for (unsigned seed = 1; seed <= kScripts; ++seed) {
    const std::string script = Generator(seed).Script();
    const Outcome plain = RunOn<PlainLib>(script);
    const Outcome fast = RunOn<frmLib>(script);
    ASSERT_EQ(fast, plain) << "seed " << seed << "\n" << script;
    with_boxes += !plain.boxes.empty();
    with_output += plain.result.size() > 2;
  }
  EXPECT_GT(with_boxes, kScripts / 10);
  EXPECT_GT(with_output, kScripts / 2);
}

}  // namespace
}  // namespace corvane::script
