// A component that has no file yet asks for one when it is saved. On a real disk.
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "environment/disk_files.h"
#include "environment/paths.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

// What the user does in the dialog for a file, and what it proposed.
struct FileAnswer {
  explicit FileAnswer(QString typed = {}) : typed(std::move(typed)) {
    QObject::connect(&timer, &QTimer::timeout, [this] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      timer.stop();
      title = dialog->windowTitle();
      folder = dialog->directory().absolutePath();
      auto* name = dialog->findChild<QLineEdit*>();
      proposed = name->text();
      if (this->typed.isEmpty()) return dialog->reject();
      name->setText(this->typed);
      static_cast<QDialog*>(dialog)->accept();
    });
    timer.start(1);
  }
  QTimer timer;
  QString typed, title, folder, proposed;
};

class SaveDialogTest : public testing::Test {
 protected:
  void SetUp() override {
    QFile file(folder_.filePath("Stock.vbp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Type=Exe\r\nName=\"Stock\"\r\n");
    file.close();
    environment_->Open(environment::WindowsPath(file.fileName().toStdString()));
    window_ = std::make_unique<MainWindow>(environment_, prompts_);
    window_->show();
    Settle();
  }
  void TearDown() override { window_.reset(); }

  std::shared_ptr<environment::Module> Add(host::ComponentType type) {
    environment_->ActiveVBProject()->VBComponents()->Add(type);
    return environment_->Projects().at(0)->Modules().back();
  }
  std::string Disk(const QString& name) {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }

  QTemporaryDir folder_;
  std::unique_ptr<host::Files> files_ = environment::NewDiskFiles();
  tests::FakePrompts prompts_;
  std::shared_ptr<environment::Environment> environment_ = environment::Environment::Create(*files_);
  std::unique_ptr<MainWindow> window_;
};

TEST_F(SaveDialogTest, ItProposesTheNameWithTheExtensionOfItsKindInTheFolderOfTheProject) {
  const struct {
    host::ComponentType type;
    const char* name;
  } cases[] = {
      {host::ComponentType::StdModule, "Module1.bas"},      {host::ComponentType::ClassModule, "Class1.cls"},
      {host::ComponentType::VBForm, "Form1.frm"},           {host::ComponentType::UserControl, "UserControl1.ctl"},
      {host::ComponentType::PropPage, "PropertyPage1.pag"},
  };
  for (const auto& each : cases) {
    const auto module = Add(each.type);
    FileAnswer answer;
    EXPECT_FALSE(window_->SaveModule(module));
    EXPECT_EQ(answer.proposed, each.name);
    EXPECT_EQ(answer.folder, QDir(folder_.path()).absolutePath()) << each.name;
    EXPECT_EQ(answer.title, "Save " + QString(each.name).section('.', 0, 0) + " As");
    EXPECT_EQ(module->Path(), "");
  }
}

TEST_F(SaveDialogTest, TheFileIsWrittenAndTheProjectNamesIt) {
  const auto module = Add(host::ComponentType::StdModule);
  module->CodeModule()->InsertLines(1, "' new");
  FileAnswer answer("modNew.bas");
  ASSERT_TRUE(window_->SaveAll());
  EXPECT_NE(Disk("modNew.bas").find("' new"), std::string::npos);
  EXPECT_NE(Disk("Stock.vbp").find("Module=Module1; modNew.bas\r\n"), std::string::npos);
  EXPECT_FALSE(environment_->IsDirty());
}

TEST_F(SaveDialogTest, ANameWithoutAnExtensionGetsThatOfTheKind) {
  const auto module = Add(host::ComponentType::ClassModule);
  FileAnswer answer("clsNew");
  ASSERT_TRUE(window_->SaveModule(module));
  EXPECT_NE(Disk("clsNew.cls"), "");
}

TEST_F(SaveDialogTest, AFileOfThatNameInOtherLettersIsNotReplaced) {
  QFile other(folder_.filePath("MODNEW.BAS"));
  ASSERT_TRUE(other.open(QIODevice::WriteOnly));
  other.write("precious");
  other.close();
  FileAnswer answer("modNew.bas");
  EXPECT_FALSE(window_->SaveModule(Add(host::ComponentType::StdModule)));
  EXPECT_EQ(Disk("MODNEW.BAS"), "precious");
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find("already exists"), std::string::npos) << prompts_.messages[0].prompt;
}

TEST_F(SaveDialogTest, AFailureNamesTheFileThatWasChosen) {
  const auto module = Add(host::ComponentType::StdModule);
  FileAnswer answer("Stock.vbp.bas/Module1.bas");
  prompts_.answers = {host::vbOK};
  EXPECT_FALSE(window_->SaveModule(module));
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_EQ(prompts_.messages[0].prompt.find(folder_.filePath("Stock.vbp.bas/Module1.bas").toStdString()), 0u)
      << prompts_.messages[0].prompt;
  EXPECT_TRUE(module->IsDirty());
}

}  // namespace
}  // namespace corvane::desk
