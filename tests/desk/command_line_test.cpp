// The program itself, run as a user runs it without a display.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::desk {
namespace {

struct Result {
  int status = -1;
  QString out, errors;
  QStringList OutLines() const { return out.split('\n', Qt::SkipEmptyParts); }
  QStringList ErrorLines() const { return errors.split('\n', Qt::SkipEmptyParts); }
};

Result RunProgram(const QStringList& arguments, const QString& output_file = {}) {
  QProcess process;
  if (!output_file.isEmpty()) process.setStandardOutputFile(output_file);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
  process.setProcessEnvironment(environment);
  process.start(QDir(QCoreApplication::applicationDirPath()).filePath("corvane"), arguments);
  process.waitForFinished(60000);
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

QString Sample(const QString& name) {
  return QString(CORVANE_SOURCE_DIR) + "/samples/" + name;
}

TEST(CommandLine, HelpNamesTheCommandsAndIsDone) {
  const Result result = RunProgram({"--help"});
  EXPECT_EQ(result.status, 0);
  for (const char* command : {"list", "view", "check", "inspect"}) EXPECT_TRUE(result.out.contains(command)) << command;
}

TEST(CommandLine, WrongUsageIsTwo) {
  for (const QStringList& arguments :
       {QStringList{"list"},
        {"list", "--kind", "odd", "x.vbp"},
        {"--no-such-option"},
        {"--connect-mode", "7"},
        {"inspect"},
        {"inspect", "lines"},
        {"inspect", "lines", "x.bas", "--mode", "odd"},
        {"inspect", "lines", Sample("stockroom/modCsv.bas"), "--mode", "vb", "--role", "3"},
        {"check"}})
    EXPECT_EQ(RunProgram(arguments).status, 2) << arguments.join(' ').toStdString();
}

TEST(CommandLine, ACodePageThatIsNotKnownIsWrongUsage) {
  const QString project = Sample("stockroom/Stockroom.vbp"), file = Sample("stockroom/modCsv.bas");
  for (const QString& page : {"437", "0", "-1", "65001", "1252x", "cp1252", ""})
    for (const QStringList& command : {QStringList{"list", project},
                                       {"check", project},
                                       {"view", file},
                                       {"inspect", "lines", file, "--mode", "vb"},
                                       {project}}) {
      const Result result = RunProgram(command + QStringList{"--codepage", page});
      EXPECT_EQ(result.status, 2) << command.join(' ').toStdString() << " " << page.toStdString();
      EXPECT_TRUE(result.out.isEmpty());
    }
  EXPECT_EQ(RunProgram({"view", file, "--codepage", "1251"}).status, 0);
}

TEST(CommandLine, HelpSaysWhichCodePageIsTakenWhenItIsLeftOut) {
  for (const char* command : {"list", "check"})
    EXPECT_TRUE(RunProgram({command, "--help"}).out.simplified().contains("guessed when it is left out")) << command;
  for (const QStringList& command : {QStringList{"view"}, {"inspect", "lines"}})
    EXPECT_TRUE(RunProgram(command + QStringList{"--help"}).out.simplified().contains("1252 when it is left out"));
}

TEST(CommandLine, AnOutputThatCannotBeWrittenIsOneLineAndStatusOne) {
  const QString project = Sample("stockroom/Stockroom.vbp"), file = Sample("stockroom/modCsv.bas");
  if (!QFile::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  for (const QStringList& command :
       {QStringList{"list", project}, {"view", file}, {"inspect", "lines", file, "--mode", "vb"}}) {
    const Result result = RunProgram(command, "/dev/full");
    EXPECT_EQ(result.status, 1) << command.join(' ').toStdString();
    EXPECT_EQ(result.ErrorLines(), QStringList{"the output cannot be written"});
  }
}

TEST(CommandLine, WithoutADisplayTheDeskSaysSoAndNamesTheOtherWay) {
  const Result result = RunProgram({Sample("stockroom/Stockroom.vbp")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.ErrorLines().size(), 1);
  EXPECT_TRUE(result.errors.contains("--offscreen-tour"));
}

TEST(CommandLine, TheOffscreenTourNeedsNoDisplay) {
  QTemporaryDir folder;
  const Result result = RunProgram({"--offscreen-tour", folder.path(), Sample("stockroom/Stockroom.vbp")});
  EXPECT_EQ(result.status, 0) << result.errors.toStdString();
  EXPECT_TRUE(QFile::exists(folder.filePath("desk.png")));
  EXPECT_TRUE(QFile::exists(folder.filePath("explorer.png")));
}

TEST(CommandLine, ListNamesTheComponents) {
  const Result result = RunProgram({"list", Sample("stockroom/Stockroom.vbp")});
  EXPECT_EQ(result.status, 0) << result.errors.toStdString();
  EXPECT_EQ(result.OutLines().size(), 22);
  EXPECT_TRUE(result.out.startsWith("mdiMain\tMDI form\t"));
}

TEST(CommandLine, ListFiltersProceduresByKindVisibilityAndText) {
  const QString project = Sample("stockroom/Stockroom.vbp");
  const Result all = RunProgram({"list", project, "--procedures"});
  const Result functions = RunProgram({"list", project, "--procedures", "--kind", "functions"});
  const Result filtered = RunProgram({"list", project, "--procedures", "--filter", "load"});
  EXPECT_EQ(all.status, 0);
  EXPECT_GT(all.OutLines().size(), functions.OutLines().size());
  ASSERT_GT(filtered.OutLines().size(), 0);
  for (const QString& line : filtered.OutLines()) EXPECT_TRUE(line.contains("load", Qt::CaseInsensitive));
  for (const QString& line : functions.OutLines()) EXPECT_TRUE(line.contains("Function")) << line.toStdString();
}

struct BadInput {
  const char* name;
  QByteArray bytes;
};

TEST(CommandLine, AProjectThatCannotBeReadIsOneLineAndStatusOne) {
  QTemporaryDir folder;
  const BadInput inputs[] = {{"zeros.vbp", QByteArray(4096, '\0')}, {"empty.vbp", ""}, {"text.txt", "Type=Exe\r\n"}};
  for (const BadInput& input : inputs) {
    QFile file(folder.filePath(input.name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(input.bytes);
  }
  for (const QString& path : {folder.filePath("missing.vbp"), folder.path(), folder.filePath("zeros.vbp")}) {
    const Result result = RunProgram({"list", path});
    EXPECT_EQ(result.status, 1) << path.toStdString();
    EXPECT_EQ(result.ErrorLines().size(), 1) << result.errors.toStdString();
    EXPECT_TRUE(result.errors.contains(path)) << result.errors.toStdString();
    EXPECT_TRUE(result.out.isEmpty());
  }
}

TEST(CommandLine, ANameBeyondTheCodePageIsShownAsItIs) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QString::fromUtf8("Склад.vbp"));
  QFile project(path);
  ASSERT_TRUE(project.open(QIODevice::WriteOnly));
  project.write("Type=Exe\r\nModule=gone; gone.bas\r\nName=\"P\"\r\n");
  project.close();
  for (const char* command : {"list", "check"}) {
    const Result result = RunProgram({command, path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.ErrorLines(), (QStringList{path + ":2: gone.bas: file not found"}));
  }
}

TEST(CommandLine, ViewColoursAFileAndInspectShowsItsStoredLines) {
  const QString file = Sample("stockroom/modCsv.bas");
  EXPECT_TRUE(RunProgram({"view", file}).out.contains("\x1b["));
  EXPECT_TRUE(RunProgram({"view", "--html", file}).out.contains("<html"));
  const Result lines = RunProgram({"inspect", "lines", file, "--mode", "vb", "--role", "1"});
  EXPECT_EQ(lines.status, 0);
  ASSERT_GT(lines.OutLines().size(), 10);
  for (const QString& line : lines.OutLines()) EXPECT_TRUE(line.startsWith("{\"level\":")) << line.toStdString();
  for (const QStringList& arguments :
       {QStringList{"view", "/no/such.bas"}, {"inspect", "lines", "/no/such.bas", "--mode", "vb"}}) {
    const Result missing = RunProgram(arguments);
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.ErrorLines().size(), 1) << missing.errors.toStdString();
    EXPECT_TRUE(missing.errors.startsWith("/no/such.bas: ")) << missing.errors.toStdString();
  }
}

TEST(CommandLine, CheckFindsTheSamplesIdentical) {
  for (const char* project : {"stockroom/Stockroom.vbp", "group/Counters.vbg"}) {
    const Result result = RunProgram({"check", Sample(project)});
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.errors.isEmpty());
  }
}

TEST(CommandLine, AMissingModuleIsToldAndTheRestIsListed) {
  QTemporaryDir folder;
  QFile project(folder.filePath("p.vbp")), module(folder.filePath("here.bas"));
  ASSERT_TRUE(project.open(QIODevice::WriteOnly) && module.open(QIODevice::WriteOnly));
  project.write("Type=Exe\r\nModule=here; here.bas\r\nModule=gone; gone.bas\r\nName=\"P\"\r\n");
  module.write("Attribute VB_Name = \"here\"\r\nSub A()\r\nEnd Sub\r\n");
  project.close();
  module.close();
  const Result result = RunProgram({"list", folder.filePath("p.vbp")});
  EXPECT_EQ(result.status, 1);
  ASSERT_EQ(result.OutLines().size(), 1);
  EXPECT_TRUE(result.out.startsWith("here\t"));
  ASSERT_EQ(result.ErrorLines().size(), 1);
  EXPECT_TRUE(result.errors.contains("gone.bas")) << result.errors.toStdString();
}

TEST(CommandLine, AGroupOfWhichNoProjectOpensSaysSo) {
  QTemporaryDir folder;
  const QString group = folder.filePath("g.vbg"), none = group + ": no project in the group could be opened";
  const struct {
    QByteArray bytes;
    QStringList errors;
  } kCases[] = {{"VBGROUP 5.0\r\n", {none}},
                {"VBGROUP 5.0\r\nProject=gone.vbp\r\n", {group + ":2: gone.vbp: file not found", none}}};
  for (const auto& each : kCases) {
    QFile file(group);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(each.bytes);
    file.close();
    const Result result = RunProgram({"list", group});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.ErrorLines(), each.errors) << result.errors.toStdString();
    EXPECT_TRUE(result.out.isEmpty());
  }
}

TEST(CommandLine, AWordThatIsNotOfferedIsRefusedWithThoseThatAre) {
  const QString project = Sample("stockroom/Stockroom.vbp");
  for (const QString& word : {QString("odd"), QString("2"), QString("Subs")}) {
    const Result kind = RunProgram({"list", "--kind", word, project});
    EXPECT_EQ(kind.status, 2) << word.toStdString();
    EXPECT_EQ(kind.ErrorLines().value(0),
              "--kind: \"" + word + "\" is none of all, subs, functions, properties, events");
    EXPECT_TRUE(kind.out.isEmpty());
  }
  const Result visibility = RunProgram({"list", "--visibility", "1", project});
  EXPECT_EQ(visibility.status, 2);
  EXPECT_EQ(visibility.ErrorLines().value(0), "--visibility: \"1\" is none of all, public, private, static");
}

TEST(CommandLine, ListFiltersProceduresByVisibility) {
  const QString project = Sample("stockroom/Stockroom.vbp");
  const qsizetype all = RunProgram({"list", project, "--procedures", "--visibility", "all"}).OutLines().size();
  EXPECT_EQ(RunProgram({"list", project, "--procedures"}).OutLines().size(), all);
  for (const QString& word : {QString("Public"), QString("Private")}) {
    const Result result = RunProgram({"list", project, "--procedures", "--visibility", word.toLower()});
    EXPECT_EQ(result.status, 0);
    EXPECT_GT(result.OutLines().size(), 0);
    EXPECT_LT(result.OutLines().size(), all);
    for (const QString& line : result.OutLines())
      EXPECT_TRUE(line.section('\t', 2).contains(word + " ")) << line.toStdString();
  }
}

TEST(CommandLine, ListWritesJsonLines) {
  const QString project = Sample("stockroom/Stockroom.vbp");
  const struct {
    QStringList options, keys;
  } kCases[] = {{{}, {"component", "declarations", "kind", "lines", "procedures"}},
                {{"--procedures"}, {"component", "line", "text"}}};
  for (const auto& c : kCases) {
    const Result result = RunProgram(QStringList{"list", project, "--json"} + c.options);
    EXPECT_EQ(result.status, 0);
    EXPECT_GT(result.OutLines().size(), 0);
    EXPECT_EQ(result.OutLines().size(), RunProgram(QStringList{"list", project} + c.options).OutLines().size());
    for (const QString& line : result.OutLines())
      EXPECT_EQ(QJsonDocument::fromJson(line.toUtf8()).object().keys(), c.keys) << line.toStdString();
  }
}

TEST(CommandLine, ListOfAGroupSaysWhichProjectItLists) {
  const QString group = Sample("group/Counters.vbg");
  const Result result = RunProgram({"list", group});
  EXPECT_EQ(result.status, 0);
  EXPECT_TRUE(result.out.startsWith("frmTill\t"));
  EXPECT_EQ(result.ErrorLines(), QStringList{group + ": Till is listed, the active project; not listed: Report"});
  EXPECT_TRUE(RunProgram({"list", Sample("group/Till/Till.vbp")}).errors.isEmpty());
}

}  // namespace
}  // namespace corvane::desk
