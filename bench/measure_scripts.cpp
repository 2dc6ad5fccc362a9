#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <stdexcept>

#include "bench/measurements.h"
#include "bench/script_programs.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 5;
constexpr int kRoundsUnderWine = 3;  // it takes its time
constexpr double kMostSeconds = 2.0, kMostOfTcl = 4.0, kMostGrowth = 1.2, kMostToStart = 0.050;

struct Program {
  const char* name;
  const char* what;
  long size, small_size;
};

constexpr Program kPrograms[] = {
    {"counting", "counting to 1 000 000 and summing", 1'000'000, 1'000},
    {"nested", "100 000 steps with IF and SELECT", 1'000, 10},
    {"calls", "100 000 calls of a SUB", 100'000, 1'000},
    {"appending", "a text of 1 MB by appending", 50'000, 100},
    {"template", "a template of 50 000 lines", 50'000, 1'000},
};

std::string ProgramsOf(const Setting& setting) {
  return setting.tree + "/bench/programs";
}

ScriptLanguage Ours(const Setting& setting, const std::string& folder) {
  return {"ours", ".script", {setting.program, "script", "FILE", "--param", "SIZE"}, folder};
}

// The same programs as the body of a procedure, which Tcl compiles.
std::string ProceduresOfTcl(const Setting& setting) {
  const std::string folder = setting.scratch + "/procedures";
  std::filesystem::create_directory(folder);
  for (const auto& file : std::filesystem::directory_iterator(ProgramsOf(setting))) {
    if (file.path().extension() != ".tcl") continue;
    std::ifstream in(file.path());
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    std::ofstream(folder + "/" + file.path().filename().string()) << "proc main {argv} {\n"
                                                                  << text << "}\nmain $argv\n";
  }
  return folder;
}

// The Tcl that runs the program at top level is the first.
std::vector<ScriptLanguage> Peers(const Setting& setting) {
  const std::string folder = ProgramsOf(setting);
  return {
      {"Tcl, top level", ".tcl", {"tclsh8.6", "FILE", "SIZE"}, folder},
      {"Tcl, procedure", ".tcl", {"tclsh8.6", "FILE", "SIZE"}, ProceduresOfTcl(setting)},
      {"Lua", ".lua", {"lua5.4", "FILE", "SIZE"}, folder},
      {"Python", ".py", {"/usr/bin/python3", "FILE", "SIZE"}, folder},
  };
}

// Nothing where no Wine runs it.
std::optional<ScriptLanguage> VbScript(const Setting& setting) {
  const std::string prefix = std::filesystem::path(setting.self).parent_path().string() + "/wine";
  ScriptLanguage language{"VBScript",
                          ".vbs",
                          {"env", "WINEPREFIX=" + prefix, "CORVANE_DISPLAY=none", setting.tree + "/scripts/wine-run",
                           "cscript", "//nologo", "FILE", "SIZE"},
                          ProgramsOf(setting)};
  try {
    if (language.Output("counting", 3) == "6\n") return language;
  } catch (const std::runtime_error&) {
    // It is not there, or does not start.
  }
  return {};
}

void RequireSame(const ScriptLanguage& ours, const ScriptLanguage& peer, const Program& program) {
  for (const long size : {program.small_size, program.size})
    if (peer.Output(program.name, size) != ours.Output(program.name, size))
      throw std::runtime_error(peer.Name() + " and ours print different texts: " + program.name);
}

void MeasureBeside(const ScriptLanguage& ours, const ScriptLanguage& peer, int rounds, bool has_aim, Table& table) {
  for (const Program& program : kPrograms) {
    RequireSame(ours, peer, program);
    const auto [our_time, peer_time] = BeyondStart(ours, peer, program.name, program.size, rounds);
    const std::string what = std::string(program.what) + " (peer: " + peer.Name() + ")";
    if (!has_aim || &program != kPrograms) {
      table.Beside(what, Milliseconds(our_time), Milliseconds(peer_time), our_time / peer_time);
      continue;
    }
    table.AtMost(what, Milliseconds(our_time), Milliseconds(peer_time), our_time / peer_time, kMostOfTcl);
    table.AtMost("  beside its limit", Milliseconds(our_time), Milliseconds(kMostSeconds), our_time / kMostSeconds, 1);
  }
}

void MeasurePeers(const Setting& setting, const ScriptLanguage& ours, Table& table) {
  table.Note(
      "scripts: whole processes, the time of an empty program taken off on both sides; where no aim is, none was set");
  for (const ScriptLanguage& peer : Peers(setting))
    MeasureBeside(ours, peer, kRounds, peer.Name() == "Tcl, top level", table);
  if (const auto vb_script = VbScript(setting))
    MeasureBeside(ours, *vb_script, kRoundsUnderWine, false, table);
  else
    table.Note("  VBScript was not measured: `wine cscript` does not run here");
}

// Scripts of the moment: a name for the rows, the text, and what it prints at a size.
class OurScripts {
 public:
  explicit OurScripts(const Setting& setting) : folder_(setting.scratch + "/scripts"), ours_(Ours(setting, folder_)) {
    std::filesystem::create_directory(folder_);
  }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ + "/" + name + ".script") << text;
  }
  void RequireOutput(const std::string& name, long size, const std::string& expected) const {
    if (ours_.Output(name, size) != expected) throw std::runtime_error(name + ".script prints something else");
  }
  // Of the processor, beyond a run with nothing to do: what else runs meanwhile is no growth.
  double ProcessorSeconds(const std::string& name, long size) const {
    std::vector<double> full, none;
    for (int round = 0; round < kRounds; ++round) {
      full.push_back(ours_.Run(name, size).processor);
      none.push_back(ours_.Run(name, 0).processor);
    }
    return Median(full) - Median(none);
  }
  double Seconds(const std::string& name) const {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) times.push_back(ours_.Run(name, 0).seconds);
    return Median(times);
  }

 private:
  std::string folder_;
  ScriptLanguage ours_;
};

std::string Repeated(long count, const std::function<std::string(long)>& line) {
  std::string text;
  for (long i = 1; i <= count; ++i) text += line(i);
  return text;
}

std::string FurtherLines(long count) {
  return Repeated(count, [](long) { return "other=other&\"x\"\n"; });
}

// The counting loop with lines in front, lines in it that are jumped over, and lines behind.
std::string CountingLoop(const std::string& before, const std::string& inside, const std::string& behind) {
  return "CODE{\n<%\ndim count,ii,sum,other\ngetparams(count)\n" + before + "for ii=1 to count\nif sum<0 then\n" +
         inside + "end if\nsum=sum+ii\nnext\n" + behind + "%>\n<%=sum%>\n}\n";
}

using ScriptWith = std::function<std::string(long further)>;

// What a step of a loop costs in scripts of three sizes. [output] is what each prints.
void MeasureSteps(const OurScripts& scripts, const std::string& step, long steps, const std::string& with,
                  const ScriptWith& script, const ScriptWith& output, Table& table) {
  Growth growth;
  for (const long further : {10L, 100L, 1'000L}) {
    const std::string name = "loop-" + std::to_string(further);
    scripts.Write(name, script(further));
    scripts.RequireOutput(name, steps, output(further));
    const double seconds = scripts.ProcessorSeconds(name, steps);
    table.Beside(step + Count(further) + with, Nanoseconds(seconds / static_cast<double>(steps)));
    growth.Add(seconds, static_cast<double>(steps));
  }
  table.AtMost("  its time, the largest script to the smallest", "", "", growth.Ratio(), kMostGrowth);
}

void MeasureCountingSteps(const OurScripts& scripts, Table& table) {
  constexpr long kSteps = 200'000;
  const auto sum = [](long) { return std::to_string(kSteps * (kSteps + 1) / 2) + "\n"; };
  const auto with_lines = [](long lines) {
    return CountingLoop(FurtherLines(lines / 3), FurtherLines(lines / 3), FurtherLines(lines - lines / 3 * 2));
  };
  const auto with_variables = [](long variables) {
    return CountingLoop(Repeated(variables, [](long i) { return "dim further" + std::to_string(i) + "\n"; }), "", "");
  };
  MeasureSteps(scripts, "a step of the loop with ", kSteps, " further lines", with_lines, sum, table);
  MeasureSteps(scripts, "a step of the loop with ", kSteps, " further variables", with_variables, sum, table);
}

// What a unit of the output costs at sizes that double.
void MeasureGrowth(const OurScripts& scripts, const std::string& what, const std::string& name, const std::string& text,
                   const std::string& unit, Table& table) {
  scripts.Write(name, text);
  Growth growth;
  for (const long size : {50'000L, 100'000L, 200'000L, 400'000L}) {
    scripts.RequireOutput(name, size, Repeated(size, [&](long) { return unit; }) + "\n");
    const double seconds = scripts.ProcessorSeconds(name, size);
    table.Beside(what + ", " + Count(size) + " times", Nanoseconds(seconds / static_cast<double>(size)));
    growth.Add(seconds, static_cast<double>(size));
  }
  table.AtMost("  its time a unit, the largest to the smallest", "", "", growth.Ratio(), kMostGrowth);
}

void MeasureAppending(const OurScripts& scripts, Table& table) {
  const auto loop = [](const std::string& statement, const std::string& behind) {
    return "CODE{\n<%\ndim count,ii,text\ngetparams(count)\ntext=\"\"\nfor ii=1 to count\n" + statement +
           "\nnext\n%>\n" + behind + "}\n";
  };
  const std::string unit = "twenty characters...";
  MeasureGrowth(scripts, "text=text&\"...\"", "text", loop("text=text&\"" + unit + "\"", "<%=text%>\n"), unit, table);
  MeasureGrowth(scripts, "text=text&mid(...)&\"...\"", "parts",
                loop("text=text&mid(\"not twenty\",5)&\" characters...\"", "<%=text%>\n"), unit, table);
  MeasureGrowth(scripts, "RESULT=RESULT&\"...\"", "result", loop("result=result&\"" + unit + "\"", "\n"), unit, table);
}

// A loop over template text restarts its block at each pass; what stands in front of it there costs nothing.
void MeasureTemplate(const OurScripts& scripts, Table& table) {
  const std::string line = "a line of the template\n";
  const auto loop = [&](const std::string& before) {
    return "CODE{\n<%\ndim count,row\ngetparams(count)\n%>\n" + before + "<%\nwhile row<count\nrow=row+1\n%>\n" + line +
           "<%\nwend\n%>\n\n}\n";
  };
  const auto lines = [](const std::string& text, long count) { return Repeated(count, [&](long) { return text; }); };
  MeasureGrowth(scripts, "a line of a template", "template", loop(""), line, table);
  constexpr long kSteps = 50'000;
  MeasureSteps(
      scripts, "a line of a template with ", kSteps, " lines in front",
      [&](long before) { return loop(lines("in front <%=row%>\n", before)); },
      [&](long before) { return lines("in front 0\n", before) + lines(line, kSteps) + "\n"; }, table);
}

// The script as a whole is read and translated before its first statement runs, which here is also the last.
void MeasureStart(const OurScripts& scripts, Table& table) {
  constexpr long kLines = 10'000;
  const std::string ten_lines =
      "total=total+asc(\"a\")*2\nIF total>100 THEN text=\"big\"\nFOR ii=1 TO 10\nPRINT(ii & \" of \" & total)\n"
      "NEXT\nIF total=1 THEN\ntotal=1 ' note\nELSE\ntext=2\nEND IF\n";
  scripts.Write("long", "CODE{\n<%\n=\"started\"\nend code\n" + Repeated(kLines / 10, [&](long) { return ten_lines; }) +
                            "%>\n}\n");
  scripts.RequireOutput("long", 0, "started");
  const double seconds = scripts.Seconds("long");
  table.AtMost("a script of " + Count(kLines) + " lines starts, with the start of the process", Milliseconds(seconds),
               Milliseconds(kMostToStart), seconds / kMostToStart, 1);
}

}  // namespace

void MeasureScripts(const Setting& setting, Table& table) {
  MeasurePeers(setting, Ours(setting, ProgramsOf(setting)), table);
  const OurScripts scripts(setting);
  MeasureCountingSteps(scripts, table);
  MeasureAppending(scripts, table);
  MeasureTemplate(scripts, table);
  MeasureStart(scripts, table);
}

}  // namespace corvane::bench
