// Components by name and position.
#include "explorer/project_access.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class FindComponents : public ExplorerTest {
 protected:
  FindComponents() {
    environment->OpenFromTexts("C:\\Test\\Shop.vbp",
                               "Type=Exe\r\nForm=frmMain.frm\r\nRelatedDoc=Notes.txt\r\nModule=modMain; modMain.bas\r\n"
                               "Module=modMainTwo; modMainTwo.bas\r\nName=\"Shop\"\r\n",
                               {Frm("frmMain", {"Dim a", ""}),
                                Bas("modMain", {"Dim b", ""}),
                                Bas("modMainTwo", {"Dim c", ""}),
                                {"Notes.txt", "to do\r\n"}});
  }
};

TEST_F(FindComponents, PositionsCountRelatedDocuments) {
  EXPECT_EQ(explorer::FindComponentIndex(environment, "frmMain"), 1);
  EXPECT_EQ(explorer::FindComponentIndex(environment, "modMain"), 3);
  EXPECT_EQ(explorer::FindComponentIndex(environment, "modMainTwo"), 4);
  long index = 0;
  ASSERT_NE(explorer::FindComponent(environment, "modMain", &index), nullptr);
  EXPECT_EQ(index, 3);
}

TEST_F(FindComponents, APositionIsFoundWithoutCaseAComponentWithCase) {
  EXPECT_EQ(explorer::FindComponentIndex(environment, "MODmain"), 3);
  EXPECT_EQ(explorer::FindComponent(environment, "MODmain"), nullptr);
}

TEST_F(FindComponents, ARelatedDocumentIsNone) {
  host::Ref<host::VBComponent> document = environment->ActiveVBProject()->VBComponents()->Item(2);
  ASSERT_EQ(document->Type(), host::ComponentType::RelatedDocument);
  const std::string name = document->Name();
  ASSERT_NE(name, "");
  EXPECT_EQ(explorer::FindComponent(environment, name), nullptr);
  EXPECT_EQ(explorer::FindComponentIndex(environment, name), 0);
}

TEST_F(FindComponents, OnlyAWholeNameOfAModuleIsFound) {
  EXPECT_EQ(explorer::FindComponentIndex(environment, "modM"), 0);
  EXPECT_EQ(explorer::FindComponentIndex(environment, "Notes.txt"), 0);
  EXPECT_EQ(explorer::FindComponentIndex(environment, ""), 0);
}

}  // namespace
}  // namespace corvane::tests
