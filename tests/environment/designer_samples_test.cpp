// The designers of the sample projects: read whole, written back as they are, and in the layout that is written.
#include <filesystem>
#include <fstream>

#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Designers of a folder of the samples and of those in it.
std::vector<fs::path> Designers(const std::string& folder) {
  std::vector<fs::path> paths;
  for (const auto& entry : fs::recursive_directory_iterator(fs::path(CORVANE_SOURCE_DIR) / "samples" / folder)) {
    const std::string extension = runtime::LCase(entry.path().extension().string());
    const bool designer = extension == ".frm" || extension == ".ctl" || extension == ".pag" || extension == ".dob";
    if (designer && entry.is_regular_file()) paths.push_back(entry.path());
  }
  return paths;
}

// Reads siblings from the designer's own folder.
struct OpenFile {
  explicit OpenFile(const fs::path& path) : folder(path.parent_path()) {
    const std::string file = Read(path);
    text = file.substr(0, DesignerPartLength(file));
    for (const auto& entry : fs::directory_iterator(folder))
      if (entry.is_regular_file()) owner.files[entry.path().filename().string()] = Read(entry.path());
    designer = std::make_unique<Designer>(host::ComponentType::VBForm, text, owner);
    owner.designer = designer.get();
  }
  fs::path folder;
  std::string text;
  FakeOwner owner;
  std::unique_ptr<Designer> designer;
};

// Sets each property but the names to what it is already.
void SetToItself(host::Properties& properties) {
  for (const auto& property : host::Each(properties)) {
    if (property->Name() == "Name") continue;
    host::PassOverErrors([&] { property->SetValue(property->Value()); });
  }
}

TEST(DesignerSamples, EveryDesignerIsWrittenBackAsItIs) {
  size_t count = 0;
  for (const fs::path& path : Designers("")) {
    OpenFile open(path);
    EXPECT_GE(open.designer->Form()->VBControls()->Count(), 0);
    open.designer->Problems();
    EXPECT_EQ(open.designer->Write(), open.text) << path;
    ++count;
  }
  EXPECT_GT(count, 20u);
}

TEST(DesignerSamples, TheStockroomIsUnderstoodWithAllItRefersTo) {
  for (const fs::path& path : Designers("stockroom")) {
    OpenFile open(path);
    EXPECT_TRUE(open.designer->Problems().empty())
        << path << ":" << open.designer->Problems()[0].line << ": " << open.designer->Problems()[0].reason;
  }
}

TEST(DesignerSamples, APropertyThatIsSetToItselfChangesNothing) {
  for (const fs::path& path : Designers("")) {
    OpenFile open(path);
    SetToItself(*open.designer->Properties());
    const auto controls = open.designer->Form()->VBControls();
    for (const auto& control : host::Each(*controls)) SetToItself(*control->Properties());
    EXPECT_EQ(open.designer->Write(), open.text) << path;
    EXPECT_EQ(open.owner.changes, 0) << path;
  }
}

// What is taken away and set again comes back to its place and in its layout: the samples are in the environment's own.
TEST(DesignerSamples, APropertyThatIsTakenAwayAndSetAgainComesBackAsItWas) {
  size_t count = 0;
  for (const fs::path& path : Designers("stockroom")) {
    OpenFile open(path);
    const auto controls = open.designer->Form()->VBControls();
    for (const auto& control : host::Each(*controls)) {
      const auto properties = control->Properties();
      for (const char* name :
           {"Caption", "Enabled", "Visible", "ToolTipText", "BackColor", "Style", "Shortcut", "Alignment"}) {
        host::PassOverErrors([&] {
          const auto property = properties->Item(name);
          const runtime::Variant value = property->Value();
          for (const runtime::Variant& other :
               {runtime::Variant(std::string()), runtime::Variant(true), runtime::Variant(1L), runtime::Variant(0L)})
            host::PassOverErrors([&] { property->SetValue(other); });
          property->SetValue(value);
          ++count;
        });
        ASSERT_EQ(open.designer->Write(), open.text)
            << path << " " << runtime::ToText(properties->Item(1L)->Value()) << "." << name;
      }
    }
  }
  EXPECT_GT(count, 100u);
}

}  // namespace
}  // namespace corvane::environment
